#include "view/sheet/data_sheet.h"

#include "analysis/performance/vehicle_performance.h"
#include "data/format/numbers.h"
#include "data/format/words.h"
#include "data/unit/component_words.h"
#include "data/unit/enumerations.h"
#include "data/unit/image_folders.h"
#include "data/unit/image_names.h"
#include "data/unit_fields.h"
#include "view/sheet/field_pair.h"
#include "weapons/ammo_words.h"
#include "weapons/weapon_fields.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <utility>

namespace varrocade {

namespace {

std::string degrees(std::int32_t value) {
    return std::to_string(value) + "\xB0";
}

constexpr std::string_view DefaultWord = "Default";

std::string optionalThickness(std::int32_t value) {
    return value < 0 ? "-" : std::to_string(value);
}

SheetSection figuresSection(const SquadRecord& record) {
    const VehicleRecord& vehicle = *record.vehicle;
    SheetSection section{.heading = {"Vehicle"}, .part = {PartKind::Details}};
    section.pairs.push_back(pairOf(field::Type, record));
    section.pairs.push_back(pairOf(field::Weight, vehicle));
    for (const ComponentRecord& component : vehicle.components) {
        if (component.kind == ComponentKind::Hull) {
            section.pairs.push_back(pairOf(field::Length, component, {.zeroIsNothing = true}));
            section.pairs.push_back(pairOf(field::Width, component, {.zeroIsNothing = true}));
            section.pairs.push_back(
                pairOf(field::Height, component, {.label = "Hull height", .zeroIsNothing = true}));
            break;
        }
    }
    std::size_t crew = 0;
    for (const ComponentRecord& component : vehicle.components) {
        crew += component.crew.size();
    }
    section.pairs.push_back({"Crew", std::to_string(crew)});
    section.pairs.push_back(pairOf(field::CanMountInfantry, vehicle, {.label = "Carries infantry"}));
    section.pairs.push_back(pairOf(field::Amphibious, vehicle, {.label = "Amphibious"}));
    return section;
}

SheetSection driveSection(const SquadRecord& record, const WeaponCatalogue& catalogue) {
    const VehicleRecord& vehicle = *record.vehicle;
    SheetSection section{.heading = {"Drive"}, .part = {PartKind::Drive}};
    section.pairs.push_back(pairOf(field::EngineName, vehicle));
    section.pairs.push_back(pairOf(field::Horsepower, vehicle, {.label = "Power"}));
    section.pairs.push_back({"Power to weight", powerToWeight(vehicle.horsepower, vehicle.weight)});
    section.pairs.push_back(pairOf(field::MountOfEngine, vehicle));
    section.pairs.push_back(pairOf(field::Reliability, vehicle));
    section.pairs.push_back({"Revolutions", grouped(vehicle.idleRevolutions) + " to " +
                                                shownValue(field::RevolutionLimit, vehicle)});
    section.pairs.push_back({"Gears", std::to_string(vehicle.forwardGears) + " forward, " +
                                          std::to_string(vehicle.reverseGears) + " reverse"});
    section.pairs.push_back(pairOf(field::Steering, vehicle));
    section.pairs.push_back({"Exhaust pipes", std::to_string(vehicle.exhaustPipes.size())});
    section.pairs.push_back(pairOf(field::SmokeScreen, vehicle, {.label = "Smoke screen"}));
    const WeaponMasses weapons(catalogue, vehicle);
    section.notes.push_back({performanceLine(vehiclePerformance(record, weapons))});
    return section;
}

SheetSection armourSection(const VehicleRecord& vehicle) {
    SheetSection section{.heading = {"Armour (mm @ angle from the vertical)"}};
    SheetTable table;
    table.rows.push_back({{"", "Upper front", "Lower front", "Upper side", "Lower side", "Upper rear",
                           "Lower rear", "Top", "Bottom", "Mantlet"}});
    const auto sides = [](const ArmourPlate& left, const ArmourPlate& right) {
        return left == right ? plateText(left) : plateText(left) + " / " + plateText(right);
    };
    for (std::size_t i = 0; i < vehicle.components.size(); ++i) {
        const ComponentRecord& component = vehicle.components[i];
        // The files have no place for a fixed weapon's armour.
        if (component.kind == ComponentKind::FixedWeapon) {
            continue;
        }
        const ArmourRecord& armour = component.armour;
        const std::string name = componentTitle(i + 1, component.kind);
        const UnitPart part{PartKind::Armour, i, 0};
        table.rows.push_back(
            {{name, plateText(armour.upperFront), plateText(armour.lowerFront),
              sides(armour.upperLeft, armour.upperRight), sides(armour.lowerLeft, armour.lowerRight),
              plateText(armour.upperRear), plateText(armour.lowerRear), std::to_string(armour.top),
              optionalThickness(armour.bottom), optionalThickness(armour.mantlet)},
             part});
        section.armour.push_back({name, part, sideSketch(armour), crossSketch(armour)});
        const std::array<std::pair<std::string_view, std::int32_t>, 3> spaced = {
            {{"front", armour.frontSpaced}, {"side", armour.sideSpaced}, {"rear", armour.rearSpaced}}};
        std::string text;
        for (const auto& [where, thickness] : spaced) {
            if (thickness > 0) {
                text +=
                    (text.empty() ? "" : ", ") + std::string(where) + " " + std::to_string(thickness) + " mm";
            }
        }
        if (!text.empty()) {
            section.notes.push_back(
                {std::string(componentKindWord(component.kind)) + ", spaced armour: " + text + "."});
        }
    }
    section.tables.push_back(std::move(table));
    return section;
}

std::string traverseText(const ComponentRecord& component) {
    if (component.kind == ComponentKind::Turret && !component.limitedTraverse) {
        return "all round";
    }
    std::string text = degrees(component.rotateLeft) + " left, " + degrees(component.rotateRight) + " right";
    if (component.offsetAngle != 0) {
        text += " of " + degrees(component.offsetAngle);
    }
    return text;
}

SheetSection weaponsSection(const VehicleRecord& vehicle, const WeaponCatalogue& catalogue) {
    SheetSection section{.heading = {"Weapons"}};
    SheetTable table;
    table.rows.push_back({{"", "Weapon", "Ammunition", "Traverse", "Full circle"}});
    std::set<std::string, std::less<>> known;
    for (std::size_t i = 0; i < vehicle.components.size(); ++i) {
        const ComponentRecord& component = vehicle.components[i];
        std::string place = componentTitle(i + 1, component.kind);
        for (std::size_t j = 0; j < component.weapons.size(); ++j) {
            const std::string type = component.weapons[j].type.str();
            // Once is enough where a vehicle has several of a kind.
            const std::string figures =
                known.insert(type).second ? weaponFigures(catalogue, type) : std::string();
            table.rows.push_back(
                {{place, weaponWord(type), ammoFor(component.ammo, type), traverseText(component),
                  shownValue(field::RotateTime, component, {.zeroIsNothing = true})},
                 {PartKind::Weapon, i, j},
                 figures});
            place.clear();
        }
    }
    for (const ComponentRecord& component : vehicle.components) {
        const std::size_t count = component.smokeDischargers.size();
        if (count > 0) {
            section.notes.push_back({std::string(componentKindWord(component.kind)) + ": " +
                                     std::to_string(count) +
                                     (count == 1 ? " smoke discharger." : " smoke dischargers.")});
        }
    }
    if (table.rows.size() > 1) {
        section.tables.push_back(std::move(table));
    }
    return section;
}

SheetSection crewSection(const VehicleRecord& vehicle) {
    SheetSection section{.heading = {"Crew"}};
    SheetTable table = tableOfMen();
    for (std::size_t i = 0; i < vehicle.components.size(); ++i) {
        const ComponentRecord& component = vehicle.components[i];
        std::string place = componentTitle(i + 1, component.kind);
        for (std::size_t j = 0; j < component.crew.size(); ++j) {
            table.rows.push_back(rowOfMan(component.crew[j], std::move(place), {PartKind::CrewMan, i, j}));
            place.clear();
        }
    }
    if (table.rows.size() > 1) {
        section.tables.push_back(std::move(table));
    }
    return section;
}

SheetSection uniformSection(const SquadRecord& record) {
    SheetSection section{.heading = {record.vehicle ? "Crew uniforms" : "Uniforms"},
                         .part = {PartKind::Details}};
    const NationalUniform* national = findNationalUniform(record.nationality);
    const auto add = [&](const Field<SquadRecord, Text>& field, std::string_view usual) {
        const Text& name = field.of(record);
        const bool isDefault = name.empty() || isDefaultImage(name);
        SheetPair pair = pairOf(field, record);
        if (isDefault) {
            pair.value = DefaultWord;
        }
        const std::string shown = isDefault ? std::string(usual) : name.str();
        if (!shown.empty()) {
            section.pictures.push_back(
                {std::string(image_folder::Uniforms) + shown + std::string(ImageEnding), pair.label});
        }
        section.pairs.push_back(std::move(pair));
    };
    const auto usual = [&](std::string_view NationalUniform::*image) {
        return national != nullptr && record.vehicle ? national->*image : std::string_view();
    };
    if (record.namedUniform) {
        add(field::UniformName, {});
    } else {
        add(field::UniformProfile, usual(&NationalUniform::profile));
        add(field::UniformGame, usual(&NationalUniform::game));
    }
    add(field::UniformRanks, usual(&NationalUniform::ranks));
    section.pairs.push_back(pairOf(field::VoiceLanguage, record, {.nothing = DefaultWord}));
    return section;
}

SheetSection availabilitySection(const SquadRecord& record) {
    constexpr std::array<std::string_view, 12> months = {"January",   "February", "March",    "April",
                                                         "May",       "June",     "July",     "August",
                                                         "September", "October",  "November", "December"};
    SheetSection section{.heading = {"Availability"}, .part = {PartKind::Availability}};
    for (const AvailabilityPoint& point : record.availability) {
        const std::string month = point.month >= 1 && point.month <= months.size()
                                      ? std::string(months[point.month - 1U])
                                      : "month " + std::to_string(point.month);
        const std::string date = month + " " + std::to_string(point.year);
        section.pairs.push_back(pairOf(field::NumberOfUnits, point, {.label = date}));
    }
    section.timeline = record.availability;
    if (record.availability.empty()) {
        section.notes.push_back({"No dates are given."});
    }
    if (record.convertedAvailability) {
        section.notes.push_back({"Converted from the older quarterly form."});
    }
    return section;
}

} // namespace

std::string weaponFigures(const WeaponCatalogue& catalogue, std::string_view weaponType) {
    const WeaponRecord* weapon = catalogue.find(weaponType);
    if (weapon == nullptr) {
        return {};
    }
    std::string text;
    const auto add = [&](const std::string& part) { text += (text.empty() ? "" : ", ") + part; };
    if (weapon->calibre > 0) {
        add(shownValue(weapon_field::Calibre, *weapon));
    }
    if (weapon->barrelLength > 0) {
        constexpr double millimetres = 1000;
        std::string metres;
        appendFixed(metres, weapon->barrelLength / millimetres, 2);
        add("barrel " + metres + " m");
    }
    float slowest = 0;
    float fastest = 0;
    for (const AmmoTypeRecord& ammo : weapon->ammoTypes) {
        slowest = ammo.speed > 0 && (slowest == 0 || ammo.speed < slowest) ? ammo.speed : slowest;
        fastest = std::max(fastest, ammo.speed);
    }
    if (fastest > 0) {
        const auto whole = [](float speed) { return std::to_string(std::lround(speed)); };
        add((slowest == fastest ? whole(fastest) : whole(slowest) + " to " + whole(fastest)) + " m/s");
    }
    if (weapon->range > 0) {
        add("range " + shownValue(weapon_field::Range, *weapon));
    }
    if (weapon->rateOfFire > 0) {
        add(grouped(weapon->rateOfFire) + " rounds/min");
    }
    return text;
}

DataSheet unitSheet(const SquadRecord& record, std::span<const std::string> missingPictures,
                    const WeaponCatalogue& catalogue) {
    DataSheet sheet;
    sheet.title.text = record.longName.empty() ? record.fileName.str() : record.longName.str();
    sheet.title.subtitle = shownValue(field::Nationality, record, {.nothing = {}}) +
                           (record.shortName.empty() ? "" : ", " + record.shortName.str());
    sheet.title.nationality = record.nationality.str();
    sheet.comment = record.comment.str();
    if (record.vehicle) {
        sheet.sections.push_back(figuresSection(record));
        sheet.sections.push_back(driveSection(record, catalogue));
        sheet.sections.push_back(armourSection(*record.vehicle));
        sheet.sections.push_back(weaponsSection(*record.vehicle, catalogue));
        sheet.sections.push_back(crewSection(*record.vehicle));
    }
    addSquadSections(sheet, record, catalogue);
    if (record.aircraft) {
        addAircraftSections(sheet, *record.aircraft, catalogue);
    }
    sheet.sections.push_back(availabilitySection(record));
    if (!record.aircraft) {
        sheet.sections.push_back(uniformSection(record));
    }
    if (!missingPictures.empty()) {
        SheetSection missing{.heading = {"Missing pictures"}};
        for (const std::string& path : missingPictures) {
            missing.notes.push_back({path});
        }
        sheet.sections.push_back(std::move(missing));
    }
    std::erase_if(sheet.sections, [](const SheetSection& section) {
        return section.pairs.empty() && section.tables.empty() && section.notes.empty();
    });
    return sheet;
}

} // namespace varrocade
