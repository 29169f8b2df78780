// What goes through the plates of a vehicle, as a table and as an outline.

#include "analysis/plate_ranges.h"
#include "editors/can_penetrate_form.h"
#include "test_support.h"
#include "view/plate_outline.h"

#include <gtest/gtest.h>

#include <map>

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
    const std::vector<std::optional<int>> expected = {std::nullopt, 500, 2000, 3000, 1000, 500};
    ASSERT_EQ(ranges.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(ranges[i].range, expected[i]) << ranges[i].plate.name;
    }
    EXPECT_EQ(plateRangeTable({"Tank", "GUN", "AP", "25"}, vehicle, std::span(ranges).first(3)),
              "Tank\tGUN\tAP\twind resistance 25\r\n"
              "Component\tPlate\tThickness\tAngle\tGoes through\r\n"
              "1. Hull\tUpper front\t101 mm\t0\tnever\r\n"
              "1. Hull\tLower front\t45 mm\t60\tup to 500 m\r\n"
              "1. Hull\tUpper right\t60 mm\t0\tup to 2,000 m\r\n");
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
    struct Case {
        Point point;
        std::string_view plate; ///< empty: none
    };
    // The turret looks to the right, so its front is there, and its mantlet before that.
    const std::vector<Case> cases = {
        {{0, 290}, "lower_front"},
        {{0, 250}, "upper_front"},
        {{-145, -100}, "lower_left"},
        {{-100, -100}, ""},
        {{145, -100}, ""},
        {{100, -100}, "upper_right"},
        {{0, -200}, ""},
        {{0, 305}, ""},
        {{95, 100}, "lower_front"},
        {{115, 100}, "mantlet"},
        {{0, 5}, ""},
        {{-95, 100}, ""},
    };
    for (const Case& row : cases) {
        const auto plate = plateAt(outline, row.point);
        EXPECT_EQ(plate ? ranges[*plate].plate.name : "", row.plate) << row.point.x << ", " << row.point.y;
    }
    EXPECT_EQ(plateAt(outline, {95, 100}), 4U) << "the turret's, above the hull's";
    EXPECT_EQ(outline.greatest, (Point{150, 300}));
    EXPECT_EQ(outline.least, (Point{-150, -300}));
    VehicleRecord sizeless;
    sizeless.components.emplace_back().armour.top = 10;
    EXPECT_TRUE(plateOutline(sizeless, plateRanges(sizeless, fallingCurve())).patches.empty());
}

TEST(VehicleFiles, TheModsCountsOnEqualNames) {
    const TemporaryFolder folder;
    folder.write("Game\\Data\\Vehicles\\B.txt", "");
    folder.write("Game\\Data\\Vehicles\\a.txt", "");
    folder.write("Mod\\Data\\Vehicles\\b.TXT", "");
    const std::vector<std::string> bases = {folder.path() + "Mod\\", folder.path() + "Game\\",
                                            folder.path() + "None\\"};
    const std::vector<VehicleFile> files = vehicleFiles(bases);
    ASSERT_EQ(files.size(), 2U);
    EXPECT_EQ(files[0].name, "a");
    EXPECT_EQ(files[1].path, bases[0] + "Data\\Vehicles\\b.TXT");
}

} // namespace
} // namespace varrocade::tests
