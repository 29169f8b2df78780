// What the drawing, the timeline and the data sheet consist of, without a device.

#include "data/reading/unit_reader.h"
#include "data/unit/component_words.h"
#include "test_support.h"
#include "view/drawing/part_at.h"
#include "view/drawing/weapon_shapes.h"
#include "view/sheet/data_sheet.h"
#include "view/sheet/timeline.h"
#include "view_support.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace varrocade::tests {
namespace {

VehicleRecord tank() {
    VehicleRecord vehicle;
    ComponentRecord& hull = vehicle.components.emplace_back();
    hull.viewImage = "hull";
    hull.width = 300;
    hull.length = 600;
    ComponentRecord& turret = vehicle.components.emplace_back();
    turret.kind = ComponentKind::Turret;
    turret.viewImage = "turret";
    turret.offsetX = 10;
    turret.offsetY = 50;
    turret.offsetAngle = 90;
    turret.smokeDischargers.push_back({.directional = true, .angleGiven = true, .angle = 20, .offsetY = 100});
    return vehicle;
}

TEST(DrawVehicle, DrawsAllPicturesAtTheHullsScale) {
    FakePictures pictures;
    // The hull's picture has half a pixel a centimetre, so the turret's counts double too.
    pictures.sizes["mod\\Images\\Units\\Vehicles\\Hulls\\hull.png"] = {150, 300};
    pictures.sizes["game\\Images\\Units\\Vehicles\\Turrets\\turret.png"] = {80, 200};
    const DrawList list = drawVehicle(tank(), {.bases = {"mod\\", "game\\"}}, pictures);
    const auto items = allOf<PictureItem>(list);
    ASSERT_EQ(items.size(), 2U);
    EXPECT_EQ(items[0].path, "mod\\Images\\Units\\Vehicles\\Hulls\\hull.png");
    EXPECT_DOUBLE_EQ(items[0].height, 600);
    EXPECT_DOUBLE_EQ(items[1].height, 400);
    EXPECT_EQ(items[1].centre, (Point{10, 50}));
    // Without limited traverse an offset angle has no meaning.
    EXPECT_DOUBLE_EQ(items[1].angle, 0);
    EXPECT_TRUE(list.missingPictures.empty());
}

TEST(DrawVehicle, TurnsDischargersWithTheirTurret) {
    FakePictures pictures;
    VehicleRecord vehicle = tank();
    vehicle.components[1].limitedTraverse = true;
    vehicle.exhaustPipes.push_back({.offsetX = 5, .offsetY = -300});
    const DrawList list = drawVehicle(vehicle, {.bases = {"game\\"}}, pictures);
    const auto marks = allOf<MarkItem>(list);
    ASSERT_EQ(marks.size(), 2U);
    EXPECT_EQ(marks[0].shape, MarkItem::Shape::Exhaust);
    EXPECT_DOUBLE_EQ(marks[0].direction.value_or(0), 180);
    // Turned by 90 degrees to the right, the turret's front is the hull's right.
    EXPECT_NEAR(marks[1].centre.x, 110, 1e-9);
    EXPECT_NEAR(marks[1].centre.y, 50, 1e-9);
    EXPECT_DOUBLE_EQ(marks[1].direction.value_or(0), 110);
}

TEST(DrawVehicle, ShowsMissingPicturesAsPlaceholdersAndListsThem) {
    FakePictures pictures;
    const DrawList list = drawVehicle(tank(), {.bases = {"game\\"}}, pictures);
    const auto holders = allOf<PlaceholderItem>(list);
    ASSERT_EQ(holders.size(), 2U);
    EXPECT_EQ(holders[0].label, "Missing: hull.png");
    EXPECT_DOUBLE_EQ(holders[0].width, 300);
    EXPECT_EQ(list.missingPictures,
              (std::vector<std::string>{"Images\\Units\\Vehicles\\Hulls\\hull.png",
                                        "Images\\Units\\Vehicles\\Turrets\\turret.png"}));
}

TEST(Timeline, StepsFollowTheDatesAndReachToTheEnd) {
    const std::vector<AvailabilityPoint> points = {{1, 1943, 50}, {7, 1941, 100}};
    const TimelineScale scale = timelineScale(points, 840, 106);
    EXPECT_EQ(scale.firstYear, 1939);
    EXPECT_EQ(scale.lastYear, 1945);
    const auto steps = timelineSteps(points, scale);
    ASSERT_EQ(steps.size(), 2U);
    EXPECT_EQ(steps[0].point, 1U);
    EXPECT_EQ(steps[0].left, 300); // 30 months at 10 pixels
    EXPECT_EQ(steps[0].right, steps[1].left);
    EXPECT_EQ(steps[1].right, 840);
    EXPECT_EQ(steps[1].top, 56);
    const AvailabilityPoint back = scale.pointAt(steps[1].left, steps[1].top);
    EXPECT_EQ(back, (AvailabilityPoint{1, 1943, 50}));
    EXPECT_EQ(timelinePointNear(points, scale, 303, 8, 5), 1U);
    EXPECT_EQ(timelinePointNear(points, scale, 400, 8, 5), std::nullopt);
}

TEST(Timeline, SpansOtherYearsThanTheWars) {
    EXPECT_EQ(timelineScale(std::vector<AvailabilityPoint>{{1, 1916, 1}, {2, 1918, 3}}, 100, 50).lastYear,
              1918);
    const TimelineScale both =
        timelineScale(std::vector<AvailabilityPoint>{{1, 1944, 1}, {2, 1966, 3}}, 100, 50);
    EXPECT_EQ(both.firstYear, 1939);
    EXPECT_EQ(both.lastYear, 1966);
}

TEST(DataSheet, NamesComponentsWithTheirCrew) {
    ComponentRecord weapon;
    weapon.kind = ComponentKind::FixedWeapon;
    EXPECT_EQ(componentLine(3, weapon), "3. Fixed Weapon");
    weapon.crew.resize(2);
    EXPECT_EQ(componentLine(3, weapon), "3. Fixed Weapon (crew 2)");
}

TEST(DataSheet, RowsNameTheirPartsAndWeaponsTheirFigures) {
    WeaponCatalogue catalogue;
    catalogue.load(SampleBase);
    SquadRecord unit;
    unit.vehicle = tank();
    for (const char* weapon : {"WEAPON_CANNON_88_KWK36_L56", "WEAPON_HMG_MG34", "WEAPON_HMG_MG34"}) {
        unit.vehicle->components[1].weapons.push_back({.type = Text(weapon)});
    }
    const DataSheet sheet = unitSheet(unit, {}, catalogue);
    const auto section = [&](std::string_view heading) {
        return *std::find_if(sheet.sections.begin(), sheet.sections.end(),
                             [&](const SheetSection& one) { return one.heading.text == heading; });
    };
    const std::vector<SheetRow> rows = section("Weapons").tables.at(0).rows;
    ASSERT_EQ(rows.size(), 4U);
    EXPECT_EQ(rows[1].part, (UnitPart{PartKind::Weapon, 1, 0}));
    EXPECT_EQ(rows[1].detail, "88 mm, barrel 4.93 m, 600 to 930 m/s, range 3,500 m, 8 rounds/min");
    EXPECT_FALSE(rows[2].detail.empty());
    EXPECT_EQ(rows[3].detail, "") << "said once";
    EXPECT_EQ(section("Armour (mm @ angle from the vertical)").armour.at(1).part,
              (UnitPart{PartKind::Armour, 1, 0}));
    // The uniforms that an American crew has by default.
    ASSERT_FALSE(section("Crew uniforms").pictures.empty());
    EXPECT_TRUE(section("Crew uniforms").pictures[0].path.starts_with("Images\\Uniforms\\uniform_american"));
}

TEST(ArmourSketch, PlatesLeanAsTheyDoAndSayWhatAShotMeets) {
    ArmourRecord armour;
    armour.upperFront = {80, 60};
    armour.lowerFront = {50, 0};
    armour.frontSpaced = 20;
    armour.top = 16;
    armour.mantlet = 100;
    const ArmourSketch sketch = sideSketch(armour);
    const SketchPlate& upper = sketch.plates.at(0);
    EXPECT_EQ(upper.label, "80 @ 60\xB0 + 20");
    EXPECT_EQ(upper.effective, "= 160");
    EXPECT_GT(upper.to.x - upper.from.x, 0.3) << "leans to the rear";
    EXPECT_EQ(sketch.plates.at(1).effective, "");
    EXPECT_EQ(sketch.plates.at(1).to.x, sketch.plates.at(1).from.x) << "upright";
    EXPECT_EQ(sketch.plates.back().label, "mantlet 100");
    // No bottom is given: four plates, the top, the mantlet.
    EXPECT_EQ(sketch.plates.size(), 6U);
    EXPECT_EQ(effectiveThickness({80, 90}), std::nullopt);
}

TEST(DrawSquad, ShowsEveryManWithHisWeaponsAndGrenadesToScale) {
    WeaponCatalogue catalogue;
    catalogue.load(SampleBase);
    Diagnostics diagnostics;
    const auto squad = readUnitFile(SampleBase + "Data\\Infantry\\German Grenadier Gruppe 1944.txt",
                                    "German Grenadier Gruppe 1944", diagnostics);
    ASSERT_TRUE(squad.has_value());
    FakePictures pictures;
    const DrawOptions options{.bases = {"g\\"}};
    DrawList list;
    addMen(list, *squad, catalogue, options, pictures);
    EXPECT_EQ(list.missingPictures,
              std::vector<std::string>{"Images\\Uniforms\\uniform_game_german_infantry_1944.png"});
    EXPECT_EQ(allOf<PlaceholderItem>(list).size(), squad->infantrymen.size());
    pictures.sizes["g\\Images\\Uniforms\\uniform_game_german_infantry_1944.png"] = {48, 48};
    list = {};
    addMen(list, *squad, catalogue, options, pictures);
    EXPECT_EQ(allOf<PictureItem>(list).size(), squad->infantrymen.size());
    for (std::size_t i = 0; i < squad->infantrymen.size(); ++i) {
        EXPECT_GE(itemsOf(list, {PartKind::Man, 0, i}).size(), 3U) << "a man, his weapon, his name: " << i;
    }
    // Everyone lies within what the drawing covers.
    for (const LabelItem& label : allOf<LabelItem>(list)) {
        EXPECT_GT(label.top.y, list.least.y);
        EXPECT_LT(std::abs(label.top.x), list.greatest.x);
    }
}

TEST(WeaponShapes, AreAsLongAsTheirFiguresSay) {
    WeaponCatalogue catalogue;
    catalogue.load(SampleBase);
    struct Row {
        std::string_view weapon;
        double least; ///< centimetres over all
        double most;
    };
    const Row rows[] = {{"WEAPON_CANNON_88_KWK36_L56", 493, 540},
                        {"WEAPON_RIFLE_KAR98K", 100, 115},
                        {"WEAPON_PISTOL_P38", 18, 25},
                        {"WEAPON_LMG_MG42", 95, 125},
                        {"WEAPON_BOMB_FAB100", 90, 150},
                        {"WEAPON_GRENADE_F1", 7, 13}};
    for (const Row& row : rows) {
        const WeaponRecord* weapon = catalogue.find(row.weapon);
        ASSERT_NE(weapon, nullptr) << row.weapon;
        const double length = weaponShape(*weapon).length;
        EXPECT_TRUE(length >= row.least && length <= row.most) << row.weapon << ": " << length;
    }
    // Every weapon of the sample can be drawn, and a shell is as thick as its calibre.
    FakePictures pictures;
    for (const CatalogueEntry& entry : catalogue.entries()) {
        const DrawList list = drawWeapon(entry.weapon, {.bases = {"g\\"}}, pictures);
        EXPECT_FALSE(allOf<ShapeItem>(list).empty()) << entry.path;
        EXPECT_GT(list.greatest.y, 5) << entry.path;
    }
    const WeaponRecord& gun = *catalogue.find("WEAPON_CANNON_88_KWK36_L56");
    const ShapeGroup round = roundShape(gun, gun.ammoTypes.front());
    EXPECT_NEAR(round.width, 8.8 * 1.4, 0.2) << "the rim of its case";
    EXPECT_NEAR(round.length, 90, 15);
}

} // namespace
} // namespace varrocade::tests
