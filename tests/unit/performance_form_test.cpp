// What the dialogs of weight and speed show, the charts they paint, and the comparison of all vehicles.

#include "editors/performance/performance_form.h"

#include "editors/performance/comparison_form.h"
#include "notebook_device.h"
#include "test_support.h"
#include "view/chart/chart_painter.h"
#include "view/sheet/data_sheet.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace varrocade::tests {
namespace {

constexpr std::string_view TigerName = "German Panzer VI Tiger Ausf E";

std::string sampleText(std::string_view name) {
    const auto& files = sampleFiles();
    const auto file = std::find_if(files.begin(), files.end(),
                                   [name](const SampleFile& sample) { return sample.name == name; });
    return file == files.end() ? std::string() : file->content;
}

SquadRecord tiger() {
    SquadRecord unit = readUnitText(sampleText(TigerName));
    unit.fileName = std::string(TigerName).c_str();
    return unit;
}

const WeaponCatalogue& gunsOfSample() {
    static const WeaponCatalogue catalogue = [] {
        WeaponCatalogue loaded;
        loaded.load(SampleBase);
        return loaded;
    }();
    return catalogue;
}

VehiclePerformance performanceOf(const SquadRecord& unit) {
    return vehiclePerformance(unit, WeaponMasses(gunsOfSample(), *unit.vehicle));
}

bool holds(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

TEST(PerformanceForm, WeaponsOfOneVehicleWeighAsAmongAll) {
    const WeaponMasses all(gunsOfSample());
    for (const SampleFile& file : sampleFiles()) {
        const SquadRecord unit = readUnitText(file.content);
        if (file.category == Category::Vehicles) {
            EXPECT_EQ(performanceOf(unit).estimate, vehiclePerformance(unit, all).estimate) << file.name;
        }
    }
}

TEST(PerformanceForm, SaysWhatIsGivenAndWhatIsMissing) {
    SquadRecord unit = tiger();
    VehiclePerformance performance = performanceOf(unit);
    const std::string rounded = std::to_string(roundedWeight(performance.estimate));
    EXPECT_TRUE(rounded.ends_with("00")) << rounded;
    EXPECT_EQ(roundedWeight(9'876.0), 9'880);
    EXPECT_TRUE(weightSentence(performance).starts_with("Weight given: 56,900 kg. Estimate: "));
    EXPECT_TRUE(weightSentence(performance).ends_with(" the weight given."));
    EXPECT_TRUE(holds(performanceLine(performance), " km/h on roads, "));
    const DataSheet sheet = unitSheet(unit, {}, gunsOfSample());
    ASSERT_EQ(sheet.sections.at(1).heading.text, "Drive");
    EXPECT_EQ(sheet.sections[1].notes.at(0).text, performanceLine(performance));

    unit.vehicle->weight = roundedWeight(performance.estimate);
    performance = performanceOf(unit);
    EXPECT_EQ(estimateAgainstWeight(performance), "as given");
    unit.vehicle->weight *= 2;
    EXPECT_EQ(estimateAgainstWeight(performanceOf(unit)), "50 % below the weight given");
    unit.vehicle->weight = 0;
    performance = performanceOf(unit);
    EXPECT_TRUE(weightSentence(performance).ends_with(" kg; it drives with that."));
    EXPECT_GT(topSpeed(*performance.drive, {}), 0.0);
    unit.vehicle->horsepower = 0;
    performance = performanceOf(unit);
    EXPECT_EQ(performanceLine(performance), "No estimate of weight and speed: no weight, no horsepower.");
    EXPECT_EQ(weightSentence(performance), "No weight is given. No estimate: no weight, no horsepower.");
    EXPECT_EQ(drivingText(performance, {}), "Not known: no weight, no horsepower.");
    EXPECT_EQ(forceCurves(performance, {}).nothing, "Not known: no weight, no horsepower.");
    EXPECT_EQ(weightBars(performance).bars.size(), 1U);
    EXPECT_FALSE(holds(performanceTable(performance, {}), "Top speed"));
}

TEST(PerformanceForm, SlopesAreNumbersInTheirRange) {
    const std::pair<std::string_view, std::optional<double>> cases[] = {{"", 0.0},
                                                                        {" ", 0.0},
                                                                        {"12.5", 12.5},
                                                                        {"200", 200.0},
                                                                        {"201", std::nullopt},
                                                                        {"-1", std::nullopt},
                                                                        {"steep", std::nullopt},
                                                                        {"nan", std::nullopt}};
    for (const auto& [text, slope] : cases) {
        EXPECT_EQ(slopeOf(text), slope) << text;
    }
}

TEST(PerformanceForm, BarsAddUpToTheEstimate) {
    const VehiclePerformance performance = performanceOf(tiger());
    const BarChart chart = weightBars(performance);
    ASSERT_EQ(chart.bars.size(), 2 + WeightShareCount);
    EXPECT_EQ(chart.bars[0].to, 56'900.0);
    double end = 0.0;
    for (std::size_t i = 2; i < chart.bars.size(); ++i) {
        EXPECT_EQ(chart.bars[i].from, end) << chart.bars[i].label;
        EXPECT_GT(chart.bars[i].to, end) << chart.bars[i].label;
        end = chart.bars[i].to;
    }
    EXPECT_NEAR(end, chart.bars[1].to, 1e-6);

    NotebookDevice device;
    const PixelRect area{0, 0, 600, 180};
    paintBars(device, area, chart);
    ASSERT_EQ(device.fills.size(), chart.bars.size());
    for (std::size_t i = 1; i < device.fills.size(); ++i) {
        EXPECT_GE(device.fills[i].top, device.fills[i - 1].bottom) << "below one another";
        EXPECT_TRUE(i < 3 || device.fills[i].left == device.fills[i - 1].right) << "one behind the other";
    }
    for (const NotebookDevice::Words& words : device.texts) {
        EXPECT_TRUE(words.place.left >= 0 && words.place.right <= area.right) << words.text;
    }
}

TEST(PerformanceForm, CurvesFollowSurfaceAndSlope) {
    const VehiclePerformance performance = performanceOf(tiger());
    const CurveChart road = forceCurves(performance, {});
    const CurveChart sand = forceCurves(performance, {.surface = Surface::Sand, .slope = 10});
    const std::size_t gears = performance.drive->gears.size();
    ASSERT_EQ(road.curves.size(), gears + 2) << "the gears, the resistance, the top speed";
    EXPECT_EQ(sand.title, "Tractive force of the gears against resistance (sand, 10 % uphill)");
    for (std::size_t i = 1; i < gears; ++i) {
        EXPECT_LT(road.curves[i].points.front().y, road.curves[i - 1].points.front().y) << i;
        EXPECT_GT(road.curves[i].points.back().y, 0.0) << "up to the limit, gear " << i + 1;
    }
    EXPECT_GT(sand.curves[gears].points.front().y, road.curves[gears].points.front().y);
    EXPECT_LT(sand.curves.back().points.back().x, road.curves.back().points.back().x);
    const CurveChart speed = speedCurve(performance, {});
    EXPECT_NEAR(speed.curves[0].points.back().y, 0.98 * topSpeed(*performance.drive, {}), 0.1);
    EXPECT_EQ(speedCurve(performance, {.slope = 150}).nothing, "Too steep to climb.");
    EXPECT_TRUE(drivingText(performance, {.slope = 150}).starts_with("Too steep to climb; does not reach"));

    NotebookDevice device;
    const PixelRect area{10, 20, 410, 270};
    paintCurves(device, area, road);
    for (const NotebookDevice::Line& line : device.lines) {
        for (const PixelPoint& point : {line.from, line.to}) {
            EXPECT_TRUE(point.x >= area.left && point.x < area.right && point.y >= area.top &&
                        point.y < area.bottom);
        }
    }
    const auto isNamed = [&](std::string_view name) {
        return std::any_of(device.texts.begin(), device.texts.end(),
                           [&](const NotebookDevice::Words& words) { return words.text == name; });
    };
    EXPECT_TRUE(isNamed("resistance"));
    EXPECT_TRUE(isNamed("1"));
}

TEST(PerformanceForm, TableHasAllThatIsShown) {
    const VehiclePerformance performance = performanceOf(tiger());
    const std::string table = performanceTable(performance, {.surface = Surface::Field});
    EXPECT_TRUE(table.starts_with(std::string(TigerName) + "\ttracked\t\r\nWeight given\t56900\tkg\r\n"));
    std::string speed;
    for (const std::string_view row :
         {"Armour of the hull\t", "Crew\t500\tkg\r\n", "Surface\tfield\t", "Top speed\t", "Ground pressure\t",
          "Gear 1, from\t", "Gear 8, greatest force\t", "0 to 32 km/h\t", "0 to 10 km/h\t"}) {
        EXPECT_TRUE(holds(table, row)) << row << table;
    }
}

TEST(Charts, StandWhateverTheirValues) {
    constexpr double infinite = std::numeric_limits<double>::infinity();
    const double notNumber = std::numeric_limits<double>::quiet_NaN();
    NotebookDevice device;
    const PixelRect area{0, 0, 300, 200};
    for (const double value : {0.0, 1e-9, 1e300, infinite, notNumber, -5.0}) {
        paintBars(device, area, {.bars = {{.label = "a", .figure = "b", .from = value, .to = value}}});
        paintCurves(device, area, {.curves = {{.name = "c", .points = {{value, 1}, {1, value}}}}});
        paintPoints(device, area, {.points = {{.place = {value, value}, .name = "d"}}}, 0);
    }
    for (const NotebookDevice::Line& line : device.lines) {
        EXPECT_TRUE(line.to.x >= 0 && line.to.x <= 300 && line.to.y >= 0 && line.to.y <= 200);
    }
    paintBars(device, area, {});
    EXPECT_EQ(pointAt(device, area, {}, {5, 5}), std::nullopt);
}

TEST(Comparison, ReadsAllNamesThePlantedFaultAndFindsPointsUnderTheMouse) {
    const TemporaryFolder folder;
    const std::string game = folder.path() + "Game\\";
    for (const SampleFile& file : sampleFiles()) {
        if (file.category == Category::Vehicles) {
            folder.write("Game\\Data\\Vehicles\\" + file.name + ".txt", file.content);
        }
    }
    folder.write("Game\\Data\\Vehicles\\Empty.txt", "");
    SquadRecord open = tiger();
    open.vehicle->weight *= 3;
    VehicleComparison comparison;
    const auto readAll = [&](const std::optional<SquadRecord>& inWindow) {
        comparison.start({.program = game}, WeaponMasses(gunsOfSample()), inWindow);
        EXPECT_TRUE(comparison.step());
        EXPECT_TRUE(progressText(comparison).starts_with("Reading 1 of 17: "));
        while (comparison.step()) {
        }
        EXPECT_FALSE(comparison.step());
    };
    readAll(std::nullopt);
    EXPECT_EQ(progressText(comparison), "16 vehicles, none out of line.");
    readAll(open);
    const auto& vehicles = comparison.vehicles();
    ASSERT_EQ(progressText(comparison), "16 vehicles, 1 out of line.");
    const std::vector<OutlierRow> rows = outlierRows(vehicles);
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0].cells[0], TigerName);
    EXPECT_TRUE(rows[0].cells[1].starts_with("The weight is given as 170700 kg; ")) << rows[0].cells[1];
    EXPECT_TRUE(holds(comparedSentence(vehicles[rows[0].vehicle]), "weight 170.7 t, estimated weight 5"));
    EXPECT_TRUE(holds(comparisonTable(vehicles), std::string(TigerName) + "\t170700\t"));

    const ComparisonPoints points = comparisonPoints(vehicles, "german panzer vi tiger ausf e",
                                                     ComparedFigure::Weight, ComparedFigure::RoadSpeed);
    ASSERT_EQ(points.chart.points.size(), 16U);
    NotebookDevice device;
    const PixelRect area{0, 0, 600, 300};
    paintPoints(device, area, points.chart, std::nullopt);
    const auto named = std::find_if(device.texts.begin(), device.texts.end(),
                                    [](const auto& words) { return words.text == TigerName; });
    ASSERT_NE(named, device.texts.end()) << "the open one is named";
    // It is the heaviest and has its name on the left.
    const PixelPoint beside{named->place.right + 6, (named->place.top + named->place.bottom) / 2};
    const auto clicked = pointAt(device, area, points.chart, beside);
    ASSERT_TRUE(clicked);
    EXPECT_EQ(vehicles[points.places[*clicked]].name, TigerName);
    EXPECT_TRUE(points.chart.points[*clicked].isOpen && points.chart.points[*clicked].isOutlier);
    EXPECT_EQ(pointAt(device, area, points.chart, {590, 10}), std::nullopt);

    comparison.start({.program = folder.path() + "Nowhere\\"}, {}, std::nullopt);
    while (comparison.step()) {
    }
    EXPECT_TRUE(holds(progressText(comparison), "0 vehicles, none out of line. 1 could not be read"));
}

} // namespace
} // namespace varrocade::tests
