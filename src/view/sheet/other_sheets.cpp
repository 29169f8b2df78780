// What the data sheets of squads, heavy weapons, aircraft and weapons have of their own.

#include "view/sheet/data_sheet.h"

#include "data/finding_text.h"
#include "data/format/words.h"
#include "data/unit/enumerations.h"
#include "data/unit_fields.h"
#include "view/sheet/field_pair.h"
#include "weapons/ammo_words.h"
#include "weapons/weapon_fields.h"
#include "weapons/weapon_names.h"

#include <algorithm>
#include <array>
#include <set>
#include <span>
#include <utility>

namespace varrocade {

namespace {

/// The weapons with what is carried for each.
SheetTable armamentTable(std::span<const WeaponMountRecord> weapons, std::span<const AmmoLoadRecord> ammo,
                         const WeaponCatalogue& catalogue) {
    // A heavy weapon's file has no places of its weapons.
    const bool hasPlaces = std::any_of(weapons.begin(), weapons.end(), [](const WeaponMountRecord& weapon) {
        return weapon.offsetX != 0 || weapon.offsetY != 0;
    });
    SheetTable table;
    table.rows.push_back({{"Weapon", "Ammunition"}});
    if (hasPlaces) {
        table.rows.back().cells.emplace_back("Place (cm)");
    }
    std::set<std::string, std::less<>> known;
    for (std::size_t i = 0; i < weapons.size(); ++i) {
        const WeaponMountRecord& weapon = weapons[i];
        const std::string type = weapon.type.str();
        const bool isFirst = known.insert(type).second;
        table.rows.push_back({{weaponWord(type), isFirst ? ammoFor(ammo, type) : ""},
                              {PartKind::Weapon, 0, i},
                              isFirst ? weaponFigures(catalogue, type) : std::string()});
        if (hasPlaces) {
            table.rows.back().cells.push_back(std::to_string(weapon.offsetX) + ", " +
                                              std::to_string(weapon.offsetY));
        }
    }
    return table;
}

SheetSection menSection(const SquadRecord& record) {
    SheetSection section{.heading = {"Men"}};
    SheetTable table = tableOfMen();
    for (std::size_t i = 0; i < record.infantrymen.size(); ++i) {
        table.rows.push_back(rowOfMan(record.infantrymen[i], std::to_string(i + 1), {PartKind::Man, 0, i}));
    }
    section.tables.push_back(std::move(table));
    return section;
}

/// Files keep guns of all kinds as anti-tank guns.
std::string_view heavyWeaponWord(const SquadRecord& record) {
    constexpr std::array<std::string_view, 4> kinds = {"Mortar", "Heavy machine gun", "Anti-tank gun",
                                                       "Recoilless rifle"};
    constexpr std::string_view howitzer = "TYPE_HOWITZER";
    const HeavyWeaponRecord& heavy = *record.heavyWeapon;
    if (heavy.kind == HeavyWeaponKind::AtGun && record.type == howitzer) {
        return "Howitzer";
    }
    if (heavy.kind == HeavyWeaponKind::AtGun && heavy.antiAircraft) {
        return "Anti-aircraft gun";
    }
    return kinds[static_cast<std::size_t>(heavy.kind)];
}

SheetSection heavyWeaponSection(const SquadRecord& record, const WeaponCatalogue& catalogue) {
    const HeavyWeaponRecord& heavy = *record.heavyWeapon;
    SheetSection section{.heading = {std::string(heavyWeaponWord(record))}, .part = {PartKind::HeavyWeapon}};
    const std::string traverse = heavy.limitedTraverse ? std::to_string(heavy.rotateLeft) + "\xB0 left, " +
                                                             std::to_string(heavy.rotateRight) + "\xB0 right"
                                                       : "all round";
    section.pairs = {{"Traverse", traverse},
                     pairOf(field::Moveable, heavy),
                     pairOf(field::HeavyAntiAircraft, heavy),
                     pairOf(field::HeavyNightVision, heavy)};
    if (heavy.kind == HeavyWeaponKind::AtGun) {
        section.pairs.push_back(pairOf(field::Mass, heavy));
        section.pairs.push_back(pairOf(field::TrailLength, heavy, {.zeroIsNothing = true}));
    }
    section.tables.push_back(armamentTable(heavy.weapons, heavy.ammo, catalogue));
    return section;
}

SheetSection notesSection(std::string heading, std::span<const std::string> lines) {
    SheetSection section{.heading = {std::move(heading)}};
    for (const std::string& line : lines) {
        section.notes.push_back({line});
    }
    return section;
}

} // namespace

SheetTable tableOfMen() {
    SheetTable table;
    table.rows.push_back({{"", std::string(field::Job.label), "Arms", "Ammunition"}});
    return table;
}

SheetRow rowOfMan(const CrewManRecord& man, std::string place, const UnitPart& part) {
    std::string arms;
    for (const Text& weapon : man.weapons) {
        arms += (arms.empty() ? "" : ", ") + weaponWord(weapon);
    }
    std::string rounds;
    for (const AmmoLoadRecord& ammo : man.ammo) {
        rounds += (rounds.empty() ? "" : ", ") + ammoText(ammo);
        rounds += ammo.weaponType.empty() ? "" : " for " + weaponWord(ammo.weaponType);
    }
    const std::string job =
        part.kind == PartKind::Man ? squadJobWord(man.job) : shownValue(field::Job, man, {.nothing = {}});
    return {{std::move(place), job, arms, rounds}, part};
}

void addSquadSections(DataSheet& sheet, const SquadRecord& record, const WeaponCatalogue& catalogue) {
    if (record.heavyWeapon) {
        sheet.sections.push_back(heavyWeaponSection(record, catalogue));
    }
    if (!record.infantrymen.empty()) {
        sheet.sections.push_back(menSection(record));
    }
    if (record.heavyWeapon || !record.infantrymen.empty()) {
        sheet.sections.front().pairs.insert(sheet.sections.front().pairs.begin(),
                                            pairOf(field::Quality, record));
    }
}

void addAircraftSections(DataSheet& sheet, const AircraftRecord& aircraft, const WeaponCatalogue& catalogue) {
    SheetSection section{.heading = {"Aircraft"}, .part = {PartKind::Aircraft}};
    section.pairs = {pairOf(field::AircraftSpeed, aircraft), pairOf(field::EjectsFlares, aircraft),
                     pairOf(field::AircraftSound, aircraft)};
    if (!aircraft.rotorBlades.empty()) {
        section.pairs.push_back({"Rotors", std::to_string(aircraft.rotorBlades.size())});
    }
    sheet.sections.push_back(std::move(section));
    SheetSection armament{.heading = {"Armament"}};
    armament.tables.push_back(armamentTable(aircraft.weapons, aircraft.ammo, catalogue));
    sheet.sections.push_back(std::move(armament));
}

namespace {

/// The worst first, otherwise in their order.
std::vector<SheetProblem> bySeverity(std::span<const SheetProblem> problems) {
    std::vector<SheetProblem> sorted(problems.begin(), problems.end());
    std::stable_sort(sorted.begin(), sorted.end(), [](const SheetProblem& a, const SheetProblem& b) {
        return a.finding.severity > b.finding.severity;
    });
    return sorted;
}

/// A line each, below one that counts them where there are several.
void fillBar(DataSheet& sheet, std::span<const SheetProblem> problems) {
    if (problems.size() > 1) {
        sheet.warnings.push_back({severityCounts(problems, &SheetProblem::finding, false)});
    }
    for (const SheetProblem& problem : problems) {
        sheet.warnings.push_back({sentence(problem.finding), problem.part, problem.finding.field});
    }
}

} // namespace

void addProblems(DataSheet& sheet, std::span<const SheetProblem> unsorted) {
    if (unsorted.empty()) {
        return;
    }
    const std::vector<SheetProblem> problems = bySeverity(unsorted);
    fillBar(sheet, problems);
    SheetSection section{.heading = {"Problems"}, .holdsProblems = true};
    SheetTable table;
    table.rows.push_back({{"What is wrong"}});
    for (const SheetProblem& problem : problems) {
        table.rows.push_back({{sentence(problem.finding)}, problem.part, problem.source});
    }
    section.tables.push_back(std::move(table));
    sheet.sections.push_back(std::move(section));
}

DataSheet weaponSheet(const WeaponRecord& weapon, std::span<const SheetProblem> unsorted,
                      const std::optional<std::vector<std::string>>& users) {
    DataSheet sheet;
    sheet.title.text = weaponWord(weapon.name.empty() ? weapon.fileName : weapon.name);
    sheet.title.subtitle = shownValue(weapon_field::Type, weapon, {.nothing = {}});
    sheet.comment = weapon.comments;
    if (!unsorted.empty()) {
        const std::vector<SheetProblem> problems = bySeverity(unsorted);
        fillBar(sheet, problems);
        std::vector<std::string> lines(problems.size());
        std::transform(problems.begin(), problems.end(), lines.begin(),
                       [](const SheetProblem& problem) { return sentence(problem.finding); });
        sheet.sections.push_back(notesSection("Problems of the file", lines));
        sheet.sections.back().holdsProblems = true;
    }
    SheetSection figures{.heading = {"Figures"}, .part = {PartKind::Details}};
    constexpr PairTerms figure = {.zeroIsNothing = true};
    figures.pairs = {pairOf(weapon_field::Calibre, weapon, figure),
                     pairOf(weapon_field::BarrelLength, weapon, figure),
                     pairOf(weapon_field::NumberOfBarrels, weapon, {.label = "Barrels"}),
                     pairOf(weapon_field::Range, weapon, figure),
                     pairOf(weapon_field::RateOfFire, weapon, figure),
                     pairOf(weapon_field::Capacity, weapon, {.label = "Magazine", .withoutUnit = true}),
                     pairOf(weapon_field::Reload, weapon),
                     pairOf(weapon_field::SingleShot, weapon),
                     pairOf(weapon_field::Period, weapon),
                     pairOf(weapon_field::Countries, weapon)};
    sheet.sections.push_back(std::move(figures));
    SheetSection ammunition{.heading = {"Ammunition"}};
    SheetTable table;
    table.rows.push_back({{"Type", "Name", "Velocity", "Mass", "HE", "HEAT era"}});
    for (const AmmoTypeRecord& ammo : weapon.ammoTypes) {
        table.rows.push_back(
            {{flavourWord(nameOf(ammo.flavour)), ammo.name, shownValue(weapon_field::Speed, ammo, figure),
              shownValue(weapon_field::Mass, ammo, figure),
              shownValue(weapon_field::HighExplosive, ammo, figure),
              isHeat(ammo.flavour) ? shownValue(weapon_field::Era, ammo) : "-"},
             {PartKind::Ammunition, 0, table.rows.size() - 1}});
    }
    if (weapon.ammoTypes.empty()) {
        ammunition.notes.push_back({"None."});
    } else {
        ammunition.tables.push_back(std::move(table));
    }
    sheet.sections.push_back(std::move(ammunition));
    const auto instead =
        std::to_array<std::string>({users ? "No unit carries it." : "Looking through the units..."});
    sheet.sections.push_back(
        notesSection("Used by", users && !users->empty() ? std::span<const std::string>(*users) : instead));
    for (SheetNote& user : sheet.sections.back().notes) {
        user.isLink = users && !users->empty();
    }
    return sheet;
}

} // namespace varrocade
