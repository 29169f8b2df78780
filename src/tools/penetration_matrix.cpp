#include "tools/penetration_matrix.h"

#include "analysis/plate_ranges.h"
#include "data/each_field.h"
#include "data/finding_text.h"
#include "data/format/numbers.h"
#include "weapons/weapon_names.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <utility>

namespace varrocade {

namespace {

constexpr std::string_view MatrixHeading =
    "weapon\tshell\tflavour\tammunition\tvehicle\tcomponent\tkind\tplate\tthickness\tangle\trange";

/// The heads of the penetrations at the calculator's ranges: "mm_at_100".
std::string heading() {
    std::string text(MatrixHeading);
    for (const int range : PenetrationRanges) {
        text += "\tmm_at_";
        appendInteger(text, range);
    }
    return text;
}

/// The penetrations of one ammunition type as cells, worked out once for each angle.
class PenetrationCells {
public:
    PenetrationCells(const Projectile& projectile, double drag) : projectile_(projectile), drag_(drag) {}

    const std::string& at(std::int32_t angle) {
        const auto [known, isNew] = cells_.try_emplace(angle);
        for (std::size_t i = 0; isNew && i < PenetrationRanges.size(); ++i) {
            known->second += '\t';
            appendFixed(known->second, impactAt(projectile_, drag_, PenetrationRanges[i], angle).penetration,
                        1);
        }
        return known->second;
    }

private:
    const Projectile& projectile_;
    double drag_;
    std::map<std::int32_t, std::string> cells_;
};

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

} // namespace

/// The text on its way to the sink.
class PenetrationMatrix::Rows {
public:
    explicit Rows(const TextSink& sink) : sink_(sink) { text_.reserve(2 * PieceSize); }

    std::string& text() { return text_; }

    /// Whether everything so far could be written.
    bool endRow() {
        text_ += '\n';
        return text_.size() < PieceSize || flush();
    }

    bool flush() {
        const bool isWritten = sink_(text_);
        text_.clear();
        return isWritten;
    }

private:
    static constexpr std::size_t PieceSize = std::size_t{64} << 10U;

    const TextSink& sink_;
    std::string text_;
};

bool PenetrationMatrix::read(const GameFolders& folders) {
    *this = {};
    const std::string weaponFolder = categoryFolder(folders.program, Category::Weapons);
    if (!isFolder(weaponFolder)) {
        problems_.push_back(cannotRead({weaponFolder, "no such folder"}));
        return false;
    }
    catalogue_.load(folders.program, folders.mod);
    problems_ = catalogue_.problems();
    GameFileList vehicles = listGameFiles(folders, Category::Vehicles);
    const auto add = [this](const std::vector<FileFailure>& failures) {
        std::transform(failures.begin(), failures.end(), std::back_inserter(problems_), cannotRead);
    };
    add(vehicles.failures);
    if (!vehicles.failures.empty()) {
        return false;
    }
    // A folder by the whole names on the disk, ending included: scripts compare matrices line by line.
    std::sort(vehicles.files.begin(), vehicles.files.end(),
              [](const GameFile& a, const GameFile& b) { return a.path < b.path; });
    GameFileWalk walk(std::move(vehicles.files));
    walk.run([this](const GameFile& file, std::string_view content) {
        const SquadRecord unit = readUnit(content, file.name, diagnostics_);
        if (unit.vehicle) {
            addPlates(file.name, *unit.vehicle);
        }
    });
    add(walk.failures());
    return true;
}

void PenetrationMatrix::addPlates(std::string_view vehicleName, const VehicleRecord& vehicle) {
    for (const VehiclePlate& plate : armourPlates(vehicle)) {
        Target& target = targets_.emplace_back();
        target.plate = plate.plate;
        appendCell(target.cells, vehicleName);
        appendCell(target.cells, static_cast<std::int32_t>(plate.component + 1));
        appendCell(target.cells, elementOf(vehicle.components[plate.component].kind));
        appendCell(target.cells, plate.name);
        appendCell(target.cells, plate.plate.thickness);
        appendCell(target.cells, plate.plate.angle);
    }
}

bool PenetrationMatrix::write(const TextSink& sink) const {
    Rows rows(sink);
    rows.text() += heading();
    if (!rows.endRow()) {
        return false;
    }
    for (const CatalogueEntry& entry : catalogue_.entries()) {
        for (std::size_t shell = 0; shell < entry.weapon.ammoTypes.size(); ++shell) {
            if (!writeAmmoType(entry.weapon, shell, rows)) {
                return false;
            }
        }
    }
    return rows.flush();
}

/// False when the rows could not be written.
bool PenetrationMatrix::writeAmmoType(const WeaponRecord& weapon, std::size_t shell, Rows& rows) const {
    const AmmoTypeRecord& ammoType = weapon.ammoTypes[shell];
    const Projectile projectile = projectileOf(weapon, ammoType);
    if (penetrationOf(projectile, projectile.muzzleVelocity) <= 0) {
        return true;
    }
    const double drag = defaultDrag(ammoType.flavour);
    const PenetrationCurve curve = penetrationCurve(projectile, drag);
    PenetrationCells penetrations(projectile, drag);
    std::string start;
    appendCell(start, weapon.fileName);
    appendCell(start, static_cast<std::int32_t>(shell));
    appendCell(start, nameOf(ammoType.flavour));
    appendCell(start, ammoType.name);
    for (const Target& target : targets_) {
        rows.text() += start;
        rows.text() += target.cells;
        if (const auto range = rangeThrough(curve, target.plate)) {
            appendInteger(rows.text(), *range);
        } else {
            rows.text() += '-';
        }
        rows.text() += penetrations.at(target.plate.angle);
        if (!rows.endRow()) {
            return false;
        }
    }
    return true;
}

} // namespace varrocade
