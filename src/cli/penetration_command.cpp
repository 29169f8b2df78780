#include "analysis/armour_plates.h"
#include "analysis/penetration.h"
#include "cli/command_line.h"
#include "data/category.h"
#include "data/finding_text.h"
#include "data/format/numbers.h"
#include "data/unit/elements.h"
#include "data/unit/unit_reader.h"
#include "platform/file_operations.h"
#include "weapons/weapon_catalogue.h"
#include "weapons/weapon_files.h"
#include "weapons/weapon_names.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <optional>
#include <system_error>
#include <vector>

namespace varrocade::cli {

namespace {

constexpr std::string_view MatrixOption = "--matrix";
constexpr std::string_view MatrixHeading =
    "weapon\tshell\tflavour\tammunition\tvehicle\tcomponent\tkind\tplate\tthickness\tangle\trange\n";

/// By `ComponentKind`.
constexpr std::array<std::string_view, 4> KindNames = {element::Hull, element::Superstructure,
                                                       element::Turret, element::FixedWeapon};

/// Standard output in large pieces: a whole mod has millions of rows.
class Output {
public:
    Output() { text_.reserve(2 * PieceSize); }

    std::string& text() { return text_; }

    /// Whether everything so far could be written.
    bool endRow() {
        text_ += '\n';
        return text_.size() < PieceSize || flush();
    }

    bool flush() {
        const bool isWritten = std::fwrite(text_.data(), 1, text_.size(), stdout) == text_.size();
        text_.clear();
        return isWritten;
    }

private:
    static constexpr std::size_t PieceSize = std::size_t{64} << 10U;

    std::string text_;
};

/// The cells of a row that depend on the plate alone, written once.
struct PlateRow {
    ArmourPlate plate;
    std::string cells;
};

void complainOf(const FileFailure& failure) {
    complain(failure.path + ": " + failure.reason);
}

/// A value of a file as a cell, with the tab after it.
void appendCell(std::string& row, std::string_view value) {
    for (const char c : value) {
        row += static_cast<unsigned char>(c) < ' ' ? ' ' : c;
    }
    row += '\t';
}

void appendCell(std::string& row, std::int32_t value) {
    appendInteger(row, value);
    row += '\t';
}

void addPlates(std::string_view vehicleName, const VehicleRecord& vehicle, std::vector<PlateRow>& rows) {
    for (const VehiclePlate& plate : armourPlates(vehicle)) {
        PlateRow& row = rows.emplace_back();
        row.plate = plate.plate;
        appendCell(row.cells, vehicleName);
        appendCell(row.cells, static_cast<std::int32_t>(plate.component));
        appendCell(row.cells, KindNames[static_cast<std::size_t>(vehicle.components[plate.component].kind)]);
        appendCell(row.cells, plate.name);
        appendCell(row.cells, plate.plate.thickness);
        appendCell(row.cells, plate.plate.angle);
    }
}

/// The plates of all vehicles of a game; `Findings` when a vehicle could not be read.
int readPlates(const std::string& base, std::vector<PlateRow>& rows) {
    const std::string folder = categoryFolder(base, Category::Vehicles);
    std::vector<std::string> names;
    if (!listFiles(folder, DataFileEnding, names)) {
        complainOf({folder, systemFiles().lastError()});
        return CouldNot;
    }
    std::sort(names.begin(), names.end());
    int status = Done;
    for (const std::string& diskName : names) {
        const std::string name = diskName.substr(0, diskName.size() - DataFileEnding.size());
        Diagnostics diagnostics;
        const std::optional<SquadRecord> unit = readUnitFile(folder + diskName, name, diagnostics);
        if (!unit) {
            complainOf({folder + diskName, systemFiles().lastError()});
            status = Findings;
        } else if (unit->vehicle) {
            addPlates(name, *unit->vehicle, rows);
        }
        for (const Finding& finding : diagnostics) {
            complain(debuggerLine(finding));
        }
    }
    return status;
}

/// The rows of one ammunition type; false when they could not be written.
bool printAmmoType(const WeaponRecord& weapon, std::size_t shell, const std::vector<PlateRow>& plates,
                   Output& out) {
    const AmmoTypeRecord& ammoType = weapon.ammoTypes[shell];
    const Projectile projectile = projectileOf(weapon, ammoType);
    if (penetrationOf(projectile, projectile.muzzleVelocity) <= 0) {
        return true;
    }
    const PenetrationCurve curve = penetrationCurve(projectile, defaultDrag(ammoType.flavour));
    std::string start;
    appendCell(start, weapon.fileName);
    appendCell(start, static_cast<std::int32_t>(shell));
    appendCell(start, nameOf(ammoType.flavour));
    appendCell(start, ammoType.name);
    for (const PlateRow& row : plates) {
        out.text() += start;
        out.text() += row.cells;
        if (const auto range = rangeThrough(curve, row.plate.thickness, row.plate.angle)) {
            appendInteger(out.text(), *range);
        } else {
            out.text() += '-';
        }
        if (!out.endRow()) {
            return false;
        }
    }
    return true;
}

int printMatrix(const std::string& base) {
    const std::string weaponFolder = categoryFolder(base, Category::Weapons);
    if (!isFolder(weaponFolder)) {
        complain(weaponFolder + ": no such folder");
        return CouldNot;
    }
    WeaponCatalogue catalogue;
    catalogue.load(base);
    for (const Finding& problem : catalogue.problems()) {
        complain(problem.file + ": " + explanation(problem));
    }
    std::vector<PlateRow> plates;
    const int status = std::max(readPlates(base, plates), catalogue.problems().empty() ? Done : Findings);
    if (status == CouldNot) {
        return CouldNot;
    }
    Output out;
    out.text() += MatrixHeading;
    for (const CatalogueEntry& entry : catalogue.entries()) {
        for (std::size_t shell = 0; shell < entry.weapon.ammoTypes.size(); ++shell) {
            if (!printAmmoType(entry.weapon, shell, plates, out)) {
                return CouldNot;
            }
        }
    }
    return out.flush() ? status : CouldNot;
}

std::optional<std::size_t> indexOf(std::string_view text) {
    std::size_t index = 0;
    const char* const end = text.data() + text.size();
    const auto [stopped, error] = std::from_chars(text.data(), end, index);
    return error == std::errc() && stopped == end ? std::optional(index) : std::nullopt;
}

int printTable(const std::string& path, std::string_view shellText, double angle, double drag) {
    Diagnostics diagnostics;
    const std::optional<WeaponRecord> weapon = readWeaponFile(path, path, diagnostics);
    if (!weapon) {
        complain(path + ": cannot be read: " + systemFiles().lastError());
        return CouldNot;
    }
    for (const Finding& finding : diagnostics) {
        complain(debuggerLine(finding));
    }
    const std::optional<std::size_t> shell = indexOf(shellText);
    if (!shell || *shell >= weapon->ammoTypes.size()) {
        complain("there is no ammunition type '" + std::string(shellText) + "': " + path + " has " +
                 std::to_string(weapon->ammoTypes.size()) + ", counted from 0");
        return CouldNot;
    }
    const Projectile projectile = projectileOf(*weapon, weapon->ammoTypes[*shell]);
    std::string lines;
    for (const int range : PenetrationRanges) {
        const Impact impact = impactAt(projectile, drag, range, angle);
        appendInteger(lines, range);
        lines += " m\t" + penetrationText(impact.penetration) + "\t" + velocityText(impact.velocity) + "\n";
    }
    return std::fwrite(lines.data(), 1, lines.size(), stdout) == lines.size() ? Done : CouldNot;
}

} // namespace

int penetrationCommand(Arguments arguments) {
    if (arguments.size() == 2 && arguments[0] == MatrixOption) {
        return printMatrix(asFolder(arguments[1]));
    }
    if (arguments.size() != 4) {
        complain(
            "penetration takes a weapon file, the number of the ammunition type, the angle of the armour and "
            "the drag coefficient, or --matrix and a game folder");
        return CouldNot;
    }
    return printTable(arguments[0], arguments[1], toReal(arguments[2]), toReal(arguments[3]));
}

} // namespace varrocade::cli
