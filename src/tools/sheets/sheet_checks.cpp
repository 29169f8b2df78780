#include "tools/sheets/sheet_checks.h"

#include "data/reading/unit_reader.h"
#include "data/writing/unit_writers.h"
#include "tools/sheets/sheet_cells.h"
#include "weapons/weapon_files.h"

#include <map>
#include <set>

namespace varrocade {

namespace {

/// A heading or a path without its numbers.
std::string withoutNumbers(std::string_view text) {
    std::string result;
    for (const char c : text) {
        if (c < '0' || c > '9') {
            result += c;
        }
    }
    return result;
}

template <typename Record>
void addHeadings(std::set<std::string>& headings, const Record& record) {
    forEachCell(record, [&](const CellPlace& cell, const auto&) {
        headings.insert(withoutNumbers(headingOf(cell)));
    });
}

/// Those of records that have one of everything.
std::set<std::string> allHeadings() {
    std::set<std::string> headings;
    CrewManRecord man;
    man.weapons.resize(1);
    man.ammo.resize(1);
    SquadRecord tank;
    tank.availability.resize(1);
    tank.vehicle.emplace().exhaustPipes.resize(1);
    for (const ComponentKind kind : {ComponentKind::Hull, ComponentKind::Superstructure,
                                     ComponentKind::Turret, ComponentKind::FixedWeapon}) {
        ComponentRecord& component = tank.vehicle->components.emplace_back();
        component.kind = kind;
        component.smokeDischargers.resize(1);
        component.crew = {man};
        component.weapons.resize(1);
        component.ammo.resize(1);
    }
    addHeadings(headings, tank);
    SquadRecord squad;
    squad.infantrymen = {man};
    squad.heavyWeapon.emplace().kind = HeavyWeaponKind::AtGun;
    squad.heavyWeapon->weapons.resize(1);
    squad.heavyWeapon->ammo.resize(1);
    addHeadings(headings, squad);
    SquadRecord plane;
    plane.aircraft.emplace().weapons.resize(1);
    plane.aircraft->ammo.resize(1);
    plane.aircraft->rotorBlades.resize(1);
    addHeadings(headings, plane);
    WeaponRecord gun;
    for (const AmmoFlavour flavour : {AmmoFlavour::Heat, AmmoFlavour::He}) {
        gun.ammoTypes.emplace_back().flavour = flavour;
    }
    addHeadings(headings, gun);
    return headings;
}

using Counts = std::map<CellValue, int>;

template <typename Record>
Counts countsOf(const Record& record) {
    Counts counts;
    forEachCell(record, [&](const CellPlace& cell, const auto& value) {
        ++counts[{withoutNumbers(cell.place.path.text()), plainText(cell, value)}];
    });
    return counts;
}

SquadRecord readAgain(const SquadRecord& unit, std::string_view text) {
    Diagnostics diagnostics;
    return readUnit(text, unit.fileName, diagnostics);
}

WeaponRecord readAgain(const WeaponRecord& weapon, std::string_view text) {
    Diagnostics diagnostics;
    return readWeapon(text, weapon.fileName, diagnostics);
}

/// How often each value is lost.
template <typename Record>
Counts lostOf(Category category, const Record& record) {
    Counts lost = countsOf(record);
    const std::optional<std::string> text = fileTextOf(category, record);
    if (text) {
        for (const auto& [value, count] : countsOf(readAgain(record, *text))) {
            lost[value] -= count;
        }
    }
    return lost;
}

template <typename Record>
const CellValue* firstLost(Category category, const Record& before, const Record& after,
                           const std::vector<CellValue>& changed) {
    Counts lostBefore = lostOf(category, before);
    Counts lostAfter = lostOf(category, after);
    for (const CellValue& value : changed) {
        const CellValue key{withoutNumbers(value.first), value.second};
        if (lostAfter[key] > std::max(0, lostBefore[key])) {
            return &value;
        }
    }
    return nullptr;
}

} // namespace

bool isFieldHeading(std::string_view heading) {
    static const std::set<std::string> known = allHeadings();
    return known.contains(withoutNumbers(heading));
}

std::optional<std::string> fileTextOf(Category category, const SquadRecord& unit) {
    return unitFileText(category, unit);
}

std::optional<std::string> fileTextOf(Category, const WeaponRecord& weapon) {
    return weaponFileText(weapon);
}

const CellValue* lostValue(Category category, const SquadRecord& before, const SquadRecord& after,
                           const std::vector<CellValue>& changed) {
    return firstLost(category, before, after, changed);
}

const CellValue* lostValue(Category category, const WeaponRecord& before, const WeaponRecord& after,
                           const std::vector<CellValue>& changed) {
    return firstLost(category, before, after, changed);
}

} // namespace varrocade
