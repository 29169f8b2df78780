#include "editors/penetration/penetration_form.h"

#include "data/finding_text.h"
#include "data/format/numbers.h"
#include "data/format/texts.h"
#include "data/format/words.h"
#include "resources/resource.h"
#include "weapons/weapon_names.h"

#include <algorithm>
#include <array>

namespace varrocade {

namespace {

/// The controls of the drag coefficients, in the order of `DragClass`.
constexpr std::array<int, 8> DragControls = {IDC_DRAG_AP,   IDC_DRAG_APC,  IDC_DRAG_APCBC,  IDC_DRAG_APCNR,
                                             IDC_DRAG_APCR, IDC_DRAG_APDS, IDC_DRAG_APFSDS, IDC_DRAG_BULLET};

constexpr std::string_view NoValue = "-";

std::string number(double value) {
    std::string text;
    appendShortest(text, static_cast<float>(value));
    return text;
}

void showDashes(FormPort& port) {
    for (const int control : {IDC_PEN_VELOCITY, IDC_PEN_MASS, IDC_PEN_HE, IDC_PEN_CALIBRE}) {
        port.setText(control, NoValue);
    }
    for (int row = 0; row < static_cast<int>(PenetrationRanges.size()); ++row) {
        port.setText(IDC_PENETRATION_ROWS + row, NoValue);
        port.setText(IDC_VELOCITY_ROWS + row, NoValue);
    }
}

/// For the drag coefficients and the angle in the form.
auto formRows(FormPort& port, const Projectile& projectile) {
    return penetrationRows(projectile, formDrag(port, projectile.flavour), formAngle(port));
}

} // namespace

std::vector<std::string> penetrationWeapons(const WeaponCatalogue& catalogue) {
    std::vector<std::string> names;
    for (const CatalogueEntry& entry : catalogue.entries()) {
        names.push_back(entry.weapon.fileName);
    }
    return names;
}

std::size_t firstPenetrationWeapon(const WeaponCatalogue& catalogue, std::string_view name) {
    const auto& entries = catalogue.entries();
    const WeaponRecord* wanted = catalogue.find(name);
    if (wanted == nullptr) {
        wanted = catalogue.find(FirstPenetrationWeapon);
    }
    const auto first = std::find_if(entries.begin(), entries.end(), [wanted](const CatalogueEntry& entry) {
        return &entry.weapon == wanted;
    });
    return first == entries.end() ? 0 : static_cast<std::size_t>(first - entries.begin());
}

std::vector<std::string> shellTypes(const WeaponRecord& weapon) {
    std::vector<std::string> names;
    for (const AmmoTypeRecord& ammo : weapon.ammoTypes) {
        std::string name(displayNameOf(ammo.flavour));
        if (name.empty()) {
            name = nameOf(ammo.flavour);
        }
        names.push_back(ammo.name.empty() ? name : name + " - " + ammo.name);
    }
    return names;
}

void fillPenetrationDefaults(FormPort& port) {
    const DragTexts drags = defaultDragTexts();
    for (std::size_t i = 0; i < DragControls.size(); ++i) {
        port.setText(DragControls[i], drags[i]);
    }
    std::vector<std::string> angles;
    angles.reserve(OfferedAngles.size());
    for (const int angle : OfferedAngles) {
        angles.push_back(std::to_string(angle));
    }
    port.setChoices(IDC_PEN_ANGLE, angles);
    port.setText(IDC_PEN_ANGLE, "0");
}

DragTexts formDrags(FormPort& port) {
    DragTexts texts;
    for (std::size_t i = 0; i < DragControls.size(); ++i) {
        texts[i] = port.text(DragControls[i]);
    }
    return texts;
}

double formDrag(FormPort& port, AmmoFlavour flavour) {
    return toReal(port.text(DragControls[static_cast<std::size_t>(dragClassOf(flavour))]));
}

double formAngle(FormPort& port) {
    return toReal(port.text(IDC_PEN_ANGLE));
}

void showPenetration(FormPort& port, const WeaponRecord* weapon, std::size_t shell) {
    if (weapon == nullptr || shell >= weapon->ammoTypes.size()) {
        showDashes(port);
        return;
    }
    const AmmoTypeRecord& ammo = weapon->ammoTypes[shell];
    const Projectile projectile = projectileOf(*weapon, ammo);
    port.setText(IDC_PEN_VELOCITY, number(projectile.muzzleVelocity));
    port.setText(IDC_PEN_MASS, number(projectile.mass));
    port.setText(IDC_PEN_HE, number(projectile.highExplosive));
    port.setText(IDC_PEN_CALIBRE, number(projectile.calibre));
    int row = 0;
    for (const PenetrationRow& result : formRows(port, projectile)) {
        port.setText(IDC_PENETRATION_ROWS + row, result.penetration);
        port.setText(IDC_VELOCITY_ROWS + row, result.velocity);
        ++row;
    }
}

std::string weaponFileNote(const WeaponCatalogue& catalogue, std::size_t weapon) {
    const auto& entries = catalogue.entries();
    if (weapon < entries.size()) {
        const auto problems = catalogue.problemsOf(entries[weapon].path);
        if (!problems.empty()) {
            return "This weapon's file: " + explanation(problems.front());
        }
    }
    return catalogue.problems().empty() ? ""
                                        : "Some weapon files have problems: see Tools, Weapon file problems.";
}

std::string penetrationTable(FormPort& port, const WeaponRecord& weapon, std::size_t shell) {
    std::string table =
        weapon.name + "\t" + shellTypes(weapon)[shell] + "\t" + port.text(IDC_PEN_ANGLE) + " degrees\r\n";
    table += "Range\tPenetration\tVelocity\r\n";
    for (const PenetrationRow& row : formRows(port, projectileOf(weapon, weapon.ammoTypes[shell]))) {
        table += grouped(row.range) + " m\t" + row.penetration + "\t" + row.velocity + "\r\n";
    }
    return table;
}

} // namespace varrocade
