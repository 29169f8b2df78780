// What the data sheets of squads, heavy weapons, aircraft and weapons have of their own.

#include "view/sheet/data_sheet.h"

#include "data/finding_text.h"
#include "data/format/numbers.h"
#include "data/format/words.h"
#include "data/unit/enumerations.h"
#include "data/unit_fields.h"
#include "view/sheet/field_pair.h"
#include "weapons/ammo_words.h"
#include "weapons/weapon_names.h"

#include <algorithm>
#include <array>
#include <set>
#include <span>

namespace varrocade {

namespace {

std::string realText(float value, std::string_view unit) {
    if (value == 0) {
        return "-";
    }
    std::string text;
    appendShortest(text, value);
    return text + " " + std::string(unit);
}

/// The weapons with what is carried for each.
SheetTable armamentTable(std::span<const WeaponMountRecord> weapons, std::span<const AmmoLoadRecord> ammo,
                         const WeaponCatalogue& catalogue) {
    SheetTable table;
    table.rows.push_back({{"Weapon", "Ammunition", "Place (cm)"}});
    std::set<std::string, std::less<>> known;
    for (std::size_t i = 0; i < weapons.size(); ++i) {
        const WeaponMountRecord& weapon = weapons[i];
        const std::string type = weapon.type.str();
        const bool hasPlace = weapon.offsetX != 0 || weapon.offsetY != 0;
        const bool isFirst = known.insert(type).second;
        table.rows.push_back(
            {{weaponWord(type), isFirst ? ammoFor(ammo, type) : "",
              hasPlace ? std::to_string(weapon.offsetX) + ", " + std::to_string(weapon.offsetY) : "-"},
             {PartKind::Weapon, 0, i},
             isFirst ? weaponFigures(catalogue, type) : std::string()});
    }
    return table;
}

SheetSection menSection(const SquadRecord& record) {
    SheetSection section{.heading = {"Men"}};
    SheetTable table;
    table.rows.push_back({{"", "Job", "Arms", "Ammunition"}});
    for (std::size_t i = 0; i < record.infantrymen.size(); ++i) {
        const CrewManRecord& man = record.infantrymen[i];
        std::string arms;
        for (const Text& weapon : man.weapons) {
            arms += (arms.empty() ? "" : ", ") + weaponWord(weapon);
        }
        std::string rounds;
        for (const AmmoLoadRecord& ammo : man.ammo) {
            rounds += (rounds.empty() ? "" : ", ") + ammoText(ammo) + " for " + weaponWord(ammo.weaponType);
        }
        table.rows.push_back(
            {{std::to_string(i + 1), shownWord(man.job, JobPrefix, jobNames()), arms, rounds},
             {PartKind::Man, 0, i}});
    }
    section.tables.push_back(std::move(table));
    return section;
}

SheetSection heavyWeaponSection(const HeavyWeaponRecord& heavy, const WeaponCatalogue& catalogue) {
    constexpr std::array<std::string_view, 4> kinds = {"Mortar", "Heavy machine gun", "Anti-tank gun",
                                                       "Recoilless rifle"};
    SheetSection section{.heading = {std::string(kinds[static_cast<std::size_t>(heavy.kind)])},
                         .part = {PartKind::HeavyWeapon}};
    const std::string traverse = heavy.limitedTraverse ? std::to_string(heavy.rotateLeft) + "\xB0 left, " +
                                                             std::to_string(heavy.rotateRight) + "\xB0 right"
                                                       : "all round";
    section.pairs = {{"Traverse", traverse},
                     {"Moveable", yesNo(heavy.moveable)},
                     {"Shoots aircraft", yesNo(heavy.antiAircraft)},
                     {"Night vision", yesNo(heavy.nightVision)}};
    if (heavy.kind == HeavyWeaponKind::AtGun) {
        std::string trail = "-";
        if (heavy.trailLength > 0) {
            trail.clear();
            appendFixed(trail, heavy.trailLength, 2);
            trail += " m";
        }
        section.pairs.push_back(pairOf(field::Mass, heavy));
        section.pairs.push_back({"Trail length", trail});
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

void addSquadSections(DataSheet& sheet, const SquadRecord& record, const WeaponCatalogue& catalogue) {
    if (record.heavyWeapon) {
        sheet.sections.push_back(heavyWeaponSection(*record.heavyWeapon, catalogue));
    }
    if (!record.infantrymen.empty()) {
        sheet.sections.push_back(menSection(record));
    }
    if (record.heavyWeapon || !record.infantrymen.empty()) {
        sheet.sections.front().pairs.insert(sheet.sections.front().pairs.begin(),
                                            {"Quality", displayName(record.quality, "QUALITY_")});
    }
}

void addAircraftSections(DataSheet& sheet, const AircraftRecord& aircraft, const WeaponCatalogue& catalogue) {
    SheetSection section{.heading = {"Aircraft"}, .part = {PartKind::Aircraft}};
    section.pairs = {{"Speed", std::to_string(aircraft.speed)},
                     {"Ejects flares", yesNo(aircraft.ejectsFlares)},
                     {"Sound", aircraft.sound.empty() ? "-" : aircraft.sound.str()}};
    if (!aircraft.rotorBlades.empty()) {
        section.pairs.push_back({"Rotors", std::to_string(aircraft.rotorBlades.size())});
    }
    sheet.sections.push_back(std::move(section));
    SheetSection armament{.heading = {"Armament"}};
    armament.tables.push_back(armamentTable(aircraft.weapons, aircraft.ammo, catalogue));
    sheet.sections.push_back(std::move(armament));
}

void addProblems(DataSheet& sheet, std::span<const SheetProblem> problems) {
    if (problems.empty()) {
        return;
    }
    SheetSection section{.heading = {"Problems"}, .holdsProblems = true};
    SheetTable table;
    table.rows.push_back({{"What is wrong"}});
    for (const SheetProblem& problem : problems) {
        const std::string text = sentence(problem.finding);
        sheet.warnings.push_back({text, problem.part});
        table.rows.push_back({{text}, problem.part, problem.source});
    }
    section.tables.push_back(std::move(table));
    sheet.sections.push_back(std::move(section));
}

DataSheet weaponSheet(const WeaponRecord& weapon, std::span<const Finding> problems,
                      const std::optional<std::vector<std::string>>& users) {
    DataSheet sheet;
    sheet.title.text = weaponWord(weapon.name.empty() ? weapon.fileName : weapon.name);
    sheet.title.subtitle = displayName(nameOf(weapon.type), WeaponPrefix);
    sheet.comment = weapon.comments;
    if (!problems.empty()) {
        std::vector<std::string> lines(problems.size());
        std::transform(problems.begin(), problems.end(), lines.begin(), sentence);
        sheet.sections.push_back(notesSection("Problems of the file", lines));
        sheet.sections.back().holdsProblems = true;
        for (std::string& line : lines) {
            sheet.warnings.push_back({std::move(line)});
        }
    }
    SheetSection figures{.heading = {"Figures"}};
    const auto whole = [](std::int32_t value, std::string_view unit) {
        return value == 0 ? std::string("-") : grouped(value) + " " + std::string(unit);
    };
    figures.pairs = {
        {"Calibre", realText(weapon.calibre, "mm")},
        {"Barrel length", whole(weapon.barrelLength, "mm")},
        {"Barrels", std::to_string(weapon.numberOfBarrels)},
        {"Range", whole(weapon.range, "m")},
        {"Rate of fire", whole(weapon.rateOfFire, "rounds/min")},
        {"Magazine", grouped(weapon.magazineCapacity)},
        {"Reload", weapon.reload == ReloadMode::None ? "-" : displayName(nameOf(weapon.reload), "RELOAD_")},
        {"Single shot", yesNo(weapon.singleShot)},
        {"Period", weapon.period.empty() ? "-" : weapon.period},
        {"Countries", weapon.countries.empty() ? "-" : weapon.countries}};
    sheet.sections.push_back(std::move(figures));
    SheetSection ammunition{.heading = {"Ammunition"}};
    SheetTable table;
    table.rows.push_back({{"Type", "Name", "Velocity", "Mass", "HE", "HEAT era"}});
    for (const AmmoTypeRecord& ammo : weapon.ammoTypes) {
        table.rows.push_back({{flavourWord(nameOf(ammo.flavour)), ammo.name, realText(ammo.speed, "m/s"),
                               realText(ammo.mass, "kg"), realText(ammo.highExplosive, "kg"),
                               isHeat(ammo.flavour) ? displayName(nameOf(ammo.era), "HEAT_ERA_") : "-"}});
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
    return sheet;
}

} // namespace varrocade
