// The tables of fields: paths, what is stored where, and whether the page about the file format says the
// same.

#include "data/each_field.h"
#include "data/field_text.h"
#include "data/writing/unit_writers.h"
#include "mod/mod_fields.h"
#include "platform/file_operations.h"
#include "test_support.h"
#include "weapons/weapon_fields.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <sstream>

namespace varrocade::tests {
namespace {

/// Every value of a record by its path, in brackets where its file does not store it.
template <typename Record>
std::map<std::string, std::string> valuesOf(const Record& record) {
    std::map<std::string, std::string> values;
    forEachField(record, [&](const FieldPlace& place, const auto& value) {
        const std::string text = textOfValue(value);
        EXPECT_TRUE(place.path == place.path.text());
        EXPECT_FALSE(place.path == place.path.text().substr(1));
        EXPECT_TRUE(
            values.emplace(place.path.text(), place.isStored() ? text : std::string("(") + text + ")").second)
            << place.path.text() << " twice";
    });
    return values;
}

TEST(EachField, VisitsAUnitWithThePathToEachValue) {
    SquadRecord unit;
    unit.availability.push_back({.month = 6, .year = 1943, .number = 12});
    VehicleRecord& vehicle = unit.vehicle.emplace();
    for (const ComponentKind kind : {ComponentKind::Turret, ComponentKind::Hull, ComponentKind::Turret}) {
        vehicle.components.emplace_back().kind = kind;
    }
    ComponentRecord& turret = vehicle.components.back();
    turret.armour.mantlet = 100;
    turret.armour.upperFront = {80, 10};
    turret.weapons.push_back({.type = "WEAPON_HMG_MG34"});
    turret.crew.emplace_back().weapons = {"WEAPON_PISTOL_P38", "WEAPON_SMG_MP40"};
    turret.crew.back().ammo.push_back({.weaponType = "WEAPON_PISTOL_P38", .flavour = "FLAVOUR_BALL"});
    std::map<std::string, std::string> values = valuesOf(unit);
    for (const auto& [path, expected] : std::map<std::string, std::string>{
             {"type", "TYPE_TANK"},
             {"quality", "(QUALITY_REGULAR)"},
             {"availability[1].year", "1943"},
             {"vehicle.mount", "MOUNT_REAR"},
             {"vehicle.hull[1].diameter", "(0)"},
             {"vehicle.turret[2].armour.mantlet", "100"},
             {"vehicle.hull[1].armour.mantlet", "(-1)"},
             {"vehicle.turret[2].armour.upper_front", "80@10"},
             {"vehicle.turret[2].weapon[1].type", "WEAPON_HMG_MG34"},
             {"vehicle.turret[2].man[1].weapon[2]", "WEAPON_SMG_MP40"},
             {"vehicle.turret[2].man[1].ammo[1].flavour", "(FLAVOUR_BALL)"},
         }) {
        EXPECT_EQ(values[path], expected) << path;
    }
    forEachField(unit, [](const FieldPlace& place, auto& value) {
        if constexpr (std::is_same_v<decltype(value), std::int32_t&>) {
            value = place.path == "vehicle.weight" ? 25000 : value;
        }
    });
    EXPECT_EQ(unit.vehicle->weight, 25000);
}

TEST(EachField, VisitsAWeaponWithItsAmmunition) {
    WeaponRecord weapon{.type = WeaponType::Grenade};
    weapon.ammoTypes.push_back({.flavour = AmmoFlavour::GrenadeSmoke});
    weapon.ammoTypes.push_back({.flavour = AmmoFlavour::GrenadeHeat, .speed = 20});
    std::map<std::string, std::string> values = valuesOf(weapon);
    EXPECT_EQ(values["calibre"], "(0)");
    EXPECT_EQ(values["ammo[1].HE"], "(0)");
    EXPECT_EQ(values["ammo[1].era"], "(HEAT_ERA_EARLY)");
    EXPECT_EQ(values["ammo[2].era"], "HEAT_ERA_EARLY");
    EXPECT_EQ(values["ammo[2].speed"], "(20)") << "it is thrown";
}

/// What the table calls stored comes back from the file that the writer makes.
TEST(EachField, TellsWhatAFileStores) {
    for (const SampleFile& file : sampleFiles()) {
        if (file.category == Category::Weapons) {
            continue;
        }
        const SquadRecord unit = readUnitText(file.content);
        const SquadRecord again = readUnitText(unitFileText(file.category, unit).value_or(""));
        const auto before = valuesOf(unit);
        const auto after = valuesOf(again);
        for (const auto& [path, text] : before) {
            const auto found = after.find(path);
            // What goes without saying: default pictures and flavours, the job of an ordinary rifleman.
            const bool mayBeSilent = path.ends_with("uniform_profile") || path.ends_with("flavour") ||
                                     (path.starts_with("man[") && path.ends_with("job"));
            if (!text.starts_with('(') && !mayBeSilent) {
                EXPECT_TRUE(found != after.end() && found->second == text) << file.name << " " << path;
            }
        }
    }
}

/// How the page calls the values of a kind.
std::string_view docWord(FieldKind kind) {
    switch (kind) {
    case FieldKind::Number:
        return "whole";
    case FieldKind::Real:
        return "real";
    case FieldKind::Flag:
        return "flag";
    case FieldKind::Image:
        return "image";
    case FieldKind::Language:
        return "code";
    case FieldKind::Colour:
        return "colour";
    case FieldKind::Word:
    case FieldKind::Choice:
    case FieldKind::Nationality:
    case FieldKind::Weapon:
    case FieldKind::Flavour:
        return "name";
    default:
        return "text";
    }
}

/// The rows of the page's tables that are about an element: those that name it in their first cell.
std::vector<std::string> docRows(const std::string& page, std::string_view element) {
    std::vector<std::string> rows;
    const std::string name = "`" + std::string(element) + "`";
    std::istringstream lines(page);
    for (std::string line; std::getline(lines, line);) {
        const std::size_t end = line.find('|', 1);
        if (line.starts_with('|') && end != std::string::npos && line.find(name) < end) {
            rows.push_back(line);
        }
    }
    return rows;
}

/// The default as the page must name it; empty where it does so in words.
template <typename FieldType>
std::string docDefault(const FieldType& field) {
    if constexpr (std::is_same_v<const FieldType, decltype(field::PersonalWeapons)>) {
        return {};
    } else {
        const std::string text = textOfValue(field.standard());
        const bool isWord = field.kind == FieldKind::Word || field.kind == FieldKind::Nationality;
        const bool isNumber = field.kind == FieldKind::Number && text > "0";
        return isWord || isNumber ? text : std::string();
    }
}

template <typename Record>
void compareWithPage(const std::string& page) {
    std::apply(
        [&](const auto&... fields) {
            const auto compare = [&](const auto& field) {
                // Plates have a table of what each spelling sets, without a column for their type.
                if (field.kind == FieldKind::Plate) {
                    EXPECT_FALSE(docRows(page, field.element).empty()) << field.element;
                    return;
                }
                const auto rows = docRows(page, field.element);
                const std::string standard = docDefault(field);
                EXPECT_TRUE(std::any_of(rows.begin(), rows.end(),
                                        [&](const std::string& row) {
                                            return row.find(docWord(field.kind)) != std::string::npos &&
                                                   row.find(standard) != std::string::npos;
                                        }))
                    << field.element << ": no row of docs/file-format.md says \"" << docWord(field.kind)
                    << "\" and \"" << standard << "\"";
            };
            (compare(fields), ...);
        },
        fieldsOf<Record>);
}

TEST(Fields, StandInThePageAboutTheFileFormat) {
    std::string page;
    ASSERT_TRUE(readWholeFile("docs\\file-format.md", page));
    compareWithPage<SquadRecord>(page);
    compareWithPage<AvailabilityPoint>(page);
    compareWithPage<VehicleRecord>(page);
    compareWithPage<ExhaustPipeRecord>(page);
    compareWithPage<ComponentRecord>(page);
    compareWithPage<ArmourRecord>(page);
    compareWithPage<SmokeDischargerRecord>(page);
    compareWithPage<CrewManRecord>(page);
    compareWithPage<WeaponMountRecord>(page);
    compareWithPage<AmmoLoadRecord>(page);
    compareWithPage<HeavyWeaponRecord>(page);
    compareWithPage<AircraftRecord>(page);
    compareWithPage<RotorBladesRecord>(page);
    compareWithPage<WeaponRecord>(page);
    compareWithPage<AmmoTypeRecord>(page);
    compareWithPage<ModSettings>(page);
    compareWithPage<ModColours>(page);
    compareWithPage<ModPeriod>(page);
    compareWithPage<ModAllegiance>(page);
    compareWithPage<ModSurname>(page);
    compareWithPage<ModUniform>(page);
    compareWithPage<ModRank>(page);
    compareWithPage<ModEquipment>(page);
    compareWithPage<ModListedUnit>(page);
    compareWithPage<ModNationality>(page);
}

} // namespace
} // namespace varrocade::tests
