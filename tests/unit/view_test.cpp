// What the drawing, the timeline and the data sheet consist of, without a device.

#include "view/data_sheet.h"
#include "view/timeline.h"
#include "view_support.h"

#include <gtest/gtest.h>

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

} // namespace
} // namespace varrocade::tests
