// Working in the drawing: what lies where, moving it, looking at it closer.

#include "view/drawing/component_places.h"
#include "view/drawing/drawing_angles.h"
#include "view/drawing/part_at.h"
#include "view/drawing/part_positions.h"
#include "view/drawing/traverse.h"
#include "view/drawing/view_place.h"
#include "view_support.h"

#include <limits>
#include <optional>

#include <gtest/gtest.h>

namespace varrocade::tests {
namespace {

constexpr UnitPart Gun{PartKind::Weapon, 1, 0};
constexpr UnitPart BowGun{PartKind::Weapon, 2, 0};
constexpr UnitPart Pipe{PartKind::Exhaust, 0, 0};

/// A hull, a turret 20 cm ahead that rests turned to the right, and a bow machine gun.
SquadRecord tankUnit() {
    SquadRecord unit;
    VehicleRecord& vehicle = unit.vehicle.emplace();
    vehicle.components.resize(3);
    vehicle.components[0].viewImage = "hull";
    vehicle.components[0].length = 600;
    ComponentRecord& turret = vehicle.components[1];
    turret = {.kind = ComponentKind::Turret,
              .viewImage = Text("turret"),
              .offsetY = 20,
              .limitedTraverse = true,
              .rotateLeft = 30,
              .rotateRight = 45,
              .offsetAngle = 90};
    turret.weapons.push_back({.type = Text("WEAPON_CANNON_75"), .offsetX = 5, .offsetY = 100});
    ComponentRecord& bow = vehicle.components[2];
    bow = {.kind = ComponentKind::FixedWeapon,
           .offsetX = 50,
           .offsetY = 200,
           .rotateLeft = 15,
           .rotateRight = 10};
    bow.weapons.resize(1);
    vehicle.exhaustPipes.push_back({.offsetX = -40, .offsetY = -300, .verticalAngle = 90});
    return unit;
}

DrawList drawingOf(const SquadRecord& unit, FakePictures& pictures, const std::vector<double>& turns = {}) {
    pictures.sizes["g\\Images\\Units\\Vehicles\\Hulls\\hull.png"] = {300, 600};
    pictures.sizes["g\\Images\\Units\\Vehicles\\Turrets\\turret.png"] = {100, 400};
    return drawVehicle(*unit.vehicle, {.bases = {"g\\"}, .turns = turns}, pictures);
}

void expectNear(Point is, Point expected) {
    EXPECT_NEAR(is.x, expected.x, 1e-9);
    EXPECT_NEAR(is.y, expected.y, 1e-9);
}

TEST(Positions, CountInTheFrameOfTheirComponent) {
    SquadRecord unit = tankUnit();
    // The turret's front is the hull's right, its right the hull's rear.
    expectNear(positionOf(unit, Gun).value(), {100, 15});
    EXPECT_TRUE(movePart(unit, Gun, {130.4, 8.6}));
    EXPECT_EQ(positionText(unit, Gun), "X 11 cm, Y 130 cm");
    EXPECT_FALSE(movePart(unit, Gun, {129.6, 9.4})) << "the same whole centimetres";
    // Turned by another 90 degrees for looking at it.
    const std::vector<double> turns = {0, 90};
    expectNear(positionOf(unit, Gun, turns).value(), {-11, -110});
    EXPECT_TRUE(movePart(unit, Gun, {-5, -80}, turns));
    EXPECT_EQ(positionText(unit, Gun), "X 5 cm, Y 100 cm");
}

TEST(Positions, ArrowKeysLeadBackWhereTheyCameFrom) {
    for (const std::int32_t angle : {0, 30, 90, 135, 200, 359}) {
        SquadRecord unit = tankUnit();
        unit.vehicle->components[1].offsetAngle = angle;
        const SquadRecord before = unit;
        for (const auto& [right, up] : {std::pair(1, 0), std::pair(0, 10)}) {
            const Point from = positionOf(unit, Gun).value();
            EXPECT_TRUE(nudgePart(unit, Gun, right, up));
            const Point step = positionOf(unit, Gun).value() - from;
            EXPECT_GT(step.x * right + step.y * up, 0) << "as the key says at " << angle;
            EXPECT_TRUE(nudgePart(unit, Gun, -right, -up));
        }
        EXPECT_EQ(unit, before);
    }
}

TEST(Positions, OnlyWhatFilesKeepMoves) {
    SquadRecord unit = tankUnit();
    unit.vehicle->components[0].weapons.resize(1);
    EXPECT_FALSE(isMovable(unit, {PartKind::Weapon, 0, 0})) << "weapons of a hull are not stored";
    EXPECT_FALSE(isMovable(unit, {PartKind::Weapon, 1, 1}));
    EXPECT_FALSE(isMovable(unit, {PartKind::Component, 1, 0}));
    EXPECT_TRUE(movePart(unit, BowGun, {1e9, 210}));
    EXPECT_EQ(unit.vehicle->components[2].offsetX, 100000);
    EXPECT_EQ(unit.vehicle->components[2].offsetY, 210);
    EXPECT_TRUE(movePart(unit, Pipe, {-41, -300}));

    SquadRecord aircraft;
    aircraft.aircraft.emplace().weapons.resize(2);
    EXPECT_TRUE(nudgePart(aircraft, {PartKind::Weapon, 0, 1}, -10, 1));
    EXPECT_EQ(aircraft.aircraft->weapons[1].offsetX, -10);
}

TEST(PartAt, MarksComeBeforePicturesAndEmptyPartsOfPicturesDoNotCount) {
    const SquadRecord unit = tankUnit();
    FakePictures pictures;
    const DrawList list = drawingOf(unit, pictures);
    struct Row {
        Point point;
        UnitPart part;
    };
    const Row rows[] = {
        {{103, 12}, Gun},
        {{100, 0}, {PartKind::Component, 1, 0}},  // the turret's right half, turned to the rear
        {{100, 40}, {PartKind::Component, 0, 0}}, // its left half is empty
        {{-100, 40}, {}},                         // so is the hull's
        {{-42, -300}, Pipe},
        {{400, 0}, {}},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(partAt(list, row.point, 9, pictures), row.part) << row.point.x << ", " << row.point.y;
    }
}

TEST(DrawVehicle, TurnsWhatIsOnATurretWithinItsTraverse) {
    const SquadRecord unit = tankUnit();
    Traverse traverse = traverseOf(unit, {PartKind::Component, 1, 0}).value();
    EXPECT_EQ(traverse.pivot, (Point{0, 20}));
    EXPECT_DOUBLE_EQ(allowedTurn(traverse, -40), -30);
    EXPECT_DOUBLE_EQ(allowedTurn(traverse, 100), 45);
    traverse.isLimited = false;
    EXPECT_DOUBLE_EQ(allowedTurn(traverse, 200), -160);
    EXPECT_FALSE(traverseOf(unit, {PartKind::Component, 0, 0}).has_value()) << "a hull";

    FakePictures pictures;
    const DrawList list = drawingOf(unit, pictures, {0, -30});
    EXPECT_DOUBLE_EQ(allOf<PictureItem>(list)[1].angle, 60);
    const auto sectors = allOf<SectorItem>(list);
    ASSERT_EQ(sectors.size(), 2U);
    EXPECT_DOUBLE_EQ(sectors[0].from, 60) << "the traverse stays where it is";
    EXPECT_DOUBLE_EQ(sectors[0].to, 135);
    EXPECT_EQ(sectors[1].centre, (Point{50, 200}));
    EXPECT_DOUBLE_EQ(allOf<MarkItem>(list)[1].direction.value(), 60);
    EXPECT_DOUBLE_EQ(allOf<MarkItem>(list)[0].elevation, 90);
}

TEST(DrawVehicle, SectorsAreBoundedWhateverTheLimitsSay) {
    constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
    constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
    struct Case {
        std::int32_t left, right;
        std::optional<double> sweep;
    };
    for (const Case& c :
         {Case{15, 10, 25}, Case{-5, 20, 15}, Case{0, most, 360}, Case{most, most, 360},
          Case{least, 0, std::nullopt}, Case{5, -5, std::nullopt}, Case{least, most, std::nullopt}}) {
        const auto sector = sectorOf({}, 100, 0, c.left, c.right, BowGun);
        ASSERT_EQ(sector.has_value(), c.sweep.has_value()) << c.left << " " << c.right;
        if (sector) {
            EXPECT_DOUBLE_EQ(sector->to - sector->from, *c.sweep);
            EXPECT_LE(outlineOf(*sector).size(), 183U);
        }
    }
    const std::vector<Point> corners = outlineOf({{1, 2}, 100, -90, 90});
    expectNear(corners[1], {-99, 2});
    expectNear(corners[46], {1, 102});
    expectNear(corners.back(), {1, 2});
    EXPECT_EQ(nearestPixel(-1e300), -(1 << 24));
}

TEST(ComponentPlaces, WhatIsKeptOfAComponentGoesWithIt) {
    const auto list = [](std::vector<std::int32_t> widths) {
        std::vector<ComponentRecord> components(widths.size());
        for (std::size_t i = 0; i < widths.size(); ++i) {
            components[i].width = widths[i];
        }
        return components;
    };
    const auto between = [&](std::vector<std::int32_t> before, std::vector<std::int32_t> after) {
        return placesBetween(list(std::move(before)), list(std::move(after)));
    };
    EXPECT_EQ(swappedPlaces(3, 1, 2), (FormerPlaces{0, 2, 1}));
    EXPECT_EQ(placesWithout(3, 1), (FormerPlaces{0, 2}));
    EXPECT_EQ(between({1, 2, 3}, {1, 3, 2}), (FormerPlaces{0, 2, 1}));
    EXPECT_EQ(between({1, 2, 2, 3}, {1, 2, 3}), (FormerPlaces{0, 1, 3}));
    EXPECT_EQ(between({1, 3}, {1, 2, 3}), (FormerPlaces{0, NewPlace, 1}));
    EXPECT_EQ(between({1, 2}, {1, 7}), (FormerPlaces{0, 1})) << "changed in its place";
    std::vector<double> turns = {0, 45};
    carryTurns(turns, swappedPlaces(3, 1, 2));
    EXPECT_EQ(turns, (std::vector<double>{0, 0, 45}));
    const UnitPart gun{PartKind::Weapon, 2, 1};
    EXPECT_EQ(carriedPart(gun, {0, 2}), (UnitPart{PartKind::Weapon, 1, 1}));
    EXPECT_EQ(carriedPart(gun, {0, 1}), UnitPart{}) << "gone with its component";
    const UnitPart exhaust{PartKind::Exhaust, 0, 1};
    EXPECT_EQ(carriedPart(exhaust, {1, 0}), exhaust) << "is no component's";
}

TEST(Fit, FitsTheAreaWithWholePixelsAMetre) {
    DrawList list;
    list.least = {-150, -300};
    list.greatest = {150, 500};
    const Fit fit = fitInto(list, 540, 900, 50);
    EXPECT_EQ(fit, (Fit{100, 270, 550})); // 800 cm in 800 pixels
    EXPECT_DOUBLE_EQ(fit.screenY(500), 50);
    EXPECT_EQ(fit.pointAt(fit.screenX(33), fit.screenY(-44)), (Point{33, -44}));
}

TEST(Fit, ZoomsAboutAPixelWithinBounds) {
    Fit fit{100, 270, 550};
    const Point under = fit.pointAt(123, 456);
    for (const int step : {1, 1, -1, 3, -2}) {
        fit = zoomedAbout(fit, 123, 456, step);
        const Point now = fit.pointAt(123, 456);
        EXPECT_NEAR(now.x, under.x, 2);
        EXPECT_NEAR(now.y, under.y, 2);
    }
    EXPECT_GT(fit.pixelsPerMetre, 100);
    for (int i = 0; i < 60; ++i) {
        fit = zoomedAbout(fit, 0, 0, -1);
    }
    EXPECT_EQ(fit.pixelsPerMetre, LeastPixelsPerMetre);
    EXPECT_EQ(zoomedAbout(fit, 0, 0, 1).pixelsPerMetre, LeastPixelsPerMetre + 1) << "never stuck";
    for (int i = 0; i < 60; ++i) {
        fit = zoomedAbout(fit, 0, 0, 1);
    }
    EXPECT_EQ(fit.pixelsPerMetre, GreatestScale);
}

} // namespace
} // namespace varrocade::tests
