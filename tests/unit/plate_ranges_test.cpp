// What goes through the plates of a vehicle, as a table and as an outline.

#include "analysis/plate_ranges.h"
#include "editors/penetration/can_penetrate_form.h"
#include "test_support.h"
#include "view/drawing/plate_outline.h"

#include <gtest/gtest.h>

#include <map>
#include <utility>

namespace varrocade::tests {
namespace {

/// 100 mm at the muzzle, a millimetre less every 50 m, as far as the curve goes.
PenetrationCurve fallingCurve() {
    PenetrationCurve curve;
    for (int metre = 0; metre <= CurveEnd; ++metre) {
        curve.push_back(100 - metre / 50.0);
    }
    return curve;
}

/// A hull of 3 by 6 m, a turret of 2 m a metre before its centre, turned to the right.
VehicleRecord target() {
    VehicleRecord vehicle;
    ComponentRecord& hull = vehicle.components.emplace_back();
    hull.width = 300;
    hull.length = 600;
    hull.armour.upperFront = {.thickness = 101, .angle = 0};
    hull.armour.lowerFront = {.thickness = 45, .angle = 60};
    hull.armour.lowerLeft = {.thickness = 40, .angle = 0};
    hull.armour.upperRight = {.thickness = 60, .angle = 0};
    hull.armour.top = hull.armour.bottom = 10; // which a level shot does not meet
    ComponentRecord& turret = vehicle.components.emplace_back();
    turret.kind = ComponentKind::Turret;
    turret.diameter = 200;
    turret.offsetY = 100;
    turret.limitedTraverse = true;
    turret.offsetAngle = 90;
    turret.armour.lowerFront = {.thickness = 80, .angle = 0};
    turret.armour.mantlet = 90;
    return vehicle;
}

TEST(PlateRanges, TakesThePlatesOwnAngle) {
    const VehicleRecord vehicle = target();
    const std::vector<PlateRange> ranges = plateRanges(vehicle, fallingCurve());
    // 45 mm at 60 degrees take 90 mm, which are left at 500 m.
    EXPECT_EQ(plateRangeTable({"Tank", "GUN", "AP", "25"}, vehicle, ranges),
              "Tank\tGUN\tAP\twind resistance 25\r\n"
              "Component\tPlate\tThickness\tAngle\tGoes through\r\n"
              "1. Hull\tUpper front\t101 mm\t0\tnever\r\n"
              "1. Hull\tLower front\t45 mm\t60\tup to 500 m\r\n"
              "1. Hull\tUpper right\t60 mm\t0\tup to 2,000 m\r\n"
              "1. Hull\tLower left\t40 mm\t0\tat every range\r\n"
              "2. Turret\tLower front\t80 mm\t0\tup to 1,000 m\r\n"
              "2. Turret\tMantlet\t90 mm\t0\tup to 500 m\r\n");
    EXPECT_EQ(plateRangeSentence(vehicle, ranges[3]),
              "1. Hull, Lower left, 40 mm at 0 degrees: at every range");
}

TEST(PlateRanges, BandsHaveNoGaps) {
    const std::map<int, std::string_view> cases = {
        {0, "up to 500 m"},      {500, "up to 500 m"},     {501, "up to 1,000 m"},   {1001, "up to 2,000 m"},
        {2000, "up to 2,000 m"}, {2001, "beyond 2,000 m"}, {2999, "beyond 2,000 m"}, {3000, "at every range"},
    };
    EXPECT_EQ(rangeBands()[rangeBandOf(std::nullopt)].name, "never");
    for (const auto& [range, name] : cases) {
        EXPECT_EQ(rangeBands()[rangeBandOf(range)].name, name) << range;
    }
}

TEST(PlateOutline, ShowsEachPlateOnItsSide) {
    const VehicleRecord vehicle = target();
    const std::vector<PlateRange> ranges = plateRanges(vehicle, fallingCurve());
    const PlateOutline outline = plateOutline(vehicle, ranges);
    // The turret looks to the right, so its front is there, and its mantlet before that.
    using Case = std::pair<Point, std::string_view>;
    for (const auto& [point, name] :
         {Case{{0, 290}, "lower_front"}, Case{{0, 250}, "upper_front"}, Case{{-145, -100}, "lower_left"},
          Case{{-100, -100}, ""}, Case{{145, -100}, ""}, Case{{100, -100}, "upper_right"},
          Case{{0, -200}, ""}, Case{{0, 305}, ""}, Case{{95, 100}, "lower_front"},
          Case{{115, 100}, "mantlet"}, Case{{0, 5}, ""}, Case{{-95, 100}, ""}}) {
        const auto plate = plateAt(outline, point);
        EXPECT_EQ(plate ? ranges[*plate].plate.name : "", name) << point.x << ", " << point.y;
    }
    EXPECT_EQ(plateAt(outline, {95, 100}), 4U) << "the turret's, above the hull's";
    EXPECT_EQ(outline.greatest, (Point{150, 300}));
    EXPECT_EQ(outline.least, (Point{-150, -300}));
    VehicleRecord sizeless;
    sizeless.components.emplace_back().armour.top = 10;
    EXPECT_TRUE(plateOutline(sizeless, plateRanges(sizeless, fallingCurve())).patches.empty());
}

} // namespace
} // namespace varrocade::tests
