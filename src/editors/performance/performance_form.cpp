#include "editors/performance/performance_form.h"

#include "data/format/numbers.h"
#include "data/format/words.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace varrocade {

namespace {

constexpr Colour GivenColour = {90, 90, 90};
constexpr Colour EstimateColour = {0, 114, 178};
constexpr Colour ResistanceColour = {190, 30, 30};
constexpr Colour TopSpeedColour = {20, 90, 30};
constexpr int CurveSamples = 32;
/// The resistance is shown a little beyond the last gear.
constexpr double BeyondLastGear = 1.1;

std::string kilogramsText(double kilograms) {
    return grouped(static_cast<std::int32_t>(std::lround(std::min(kilograms, 2e9)))) + " kg";
}

std::string fixedText(double value, int decimals) {
    std::string text;
    appendFixed(text, value, decimals);
    return text;
}

std::string capitalised(std::string_view words) {
    std::string text(words);
    if (!text.empty() && text.front() >= 'a' && text.front() <= 'z') {
        text.front() = static_cast<char>(text.front() - 'a' + 'A');
    }
    return text;
}

double shareOf(const VehiclePerformance& performance, std::size_t share) {
    return performance.shares->mass[share];
}

/// Why there is nothing to show.
std::string reasonFor(const VehiclePerformance& performance) {
    return "Not known: " + missingFiguresText(performance.figures) + ".";
}

std::string percentText(double percent) {
    return fixedText(percent, 0) + " %";
}

std::string conditionsText(const DriveConditions& conditions) {
    return std::string(surfaceName(conditions.surface)) +
           (conditions.slope > 0 ? ", " + percentText(conditions.slope) + " uphill" : ", level");
}

ChartCurve gearCurve(const DriveModel& drive, Surface surface, std::size_t gear) {
    const GearSpeeds& speeds = drive.gears[gear];
    const double from = gear == 0 ? 0.0 : speeds.idle;
    ChartCurve curve{.name = std::to_string(gear + 1),
                     .points = {},
                     .colour = ChartColours[gear % ChartColours.size()],
                     .width = 2};
    for (int i = 0; i <= CurveSamples; ++i) {
        // Not beyond the limit by a rounding: there is no force there.
        const double speed = std::min(from + (speeds.limit - from) * i / CurveSamples, speeds.limit);
        curve.points.push_back({speed, tractiveForceAt(drive, surface, gear, speed) / 1000.0});
    }
    return curve;
}

ChartCurve resistanceCurve(const DriveModel& drive, const DriveConditions& conditions) {
    ChartCurve curve{.name = "resistance", .points = {}, .colour = ResistanceColour, .width = 2};
    const double end = drive.gears.back().limit * BeyondLastGear;
    for (int i = 0; i <= CurveSamples; ++i) {
        const double speed = end * i / CurveSamples;
        curve.points.push_back({speed, resistanceAt(drive, conditions, speed) / 1000.0});
    }
    return curve;
}

void addRow(std::string& table, std::string_view name, const std::string& value, std::string_view unit) {
    table += std::string(name) + "\t" + value + "\t" + std::string(unit) + "\r\n";
}

void addWeights(std::string& table, const VehiclePerformance& performance) {
    const double given = performance.figures.weight;
    addRow(table, "Weight given", given > 0 ? fixedText(given, 0) : std::string(), "kg");
    if (!performance.shares) {
        addRow(table, "Weight estimated", "", missingFiguresText(performance.figures));
        return;
    }
    addRow(table, "Weight estimated", fixedText(performance.estimate, 0), "kg");
    for (std::size_t i = 0; i < WeightShareCount; ++i) {
        addRow(table, capitalised(weightShareName(static_cast<WeightShare>(i))),
               fixedText(shareOf(performance, i), 0), "kg");
    }
}

void addDriving(std::string& table, const VehiclePerformance& performance,
                const DriveConditions& conditions) {
    const DriveModel& drive = *performance.drive;
    addRow(table, "Surface", std::string(surfaceName(conditions.surface)), "");
    addRow(table, "Slope", fixedText(conditions.slope, 0), "percent");
    addRow(table, "Top speed", fixedText(topSpeed(drive, conditions), 1), "km/h");
    addRow(table, "Steepest slope", fixedText(steepestSlope(drive, conditions.surface), 0), "percent");
    const GroundPressure pressure = groundPressure(performance.figures, performance.weight);
    if (pressure.kilopascals) {
        addRow(table, "Ground pressure", fixedText(*pressure.kilopascals, 0), "kPa");
    } else {
        addRow(table, "Ground pressure", "", pressure.remark);
    }
    for (std::size_t i = 0; i < drive.gears.size(); ++i) {
        const GearSpeeds& gear = drive.gears[i];
        const std::string name = "Gear " + std::to_string(i + 1);
        addRow(table, name + ", from", fixedText(gear.idle, 1), "km/h");
        addRow(table, name + ", up to", fixedText(gear.limit, 1), "km/h");
        addRow(table, name + ", greatest force",
               fixedText(tractiveForceAt(drive, conditions.surface, i, std::max(gear.idle, gear.limit / 2)) /
                             1000.0,
                         1),
               "kN");
    }
    addRow(
        table, "0 to 32 km/h",
        [&] {
            const auto seconds = secondsTo(drive, conditions, ComparedSpeed);
            return seconds ? fixedText(*seconds, 1) : std::string();
        }(),
        "s");
    constexpr int step = 10; // km/h
    for (int speed = step; speed <= topSpeed(drive, conditions); speed += step) {
        if (const auto seconds = secondsTo(drive, conditions, speed)) {
            addRow(table, "0 to " + std::to_string(speed) + " km/h", fixedText(*seconds, 1), "s");
        }
    }
}

} // namespace

std::vector<std::string> surfaceChoices() {
    std::vector<std::string> choices;
    for (std::size_t i = 0; i < SurfaceCount; ++i) {
        choices.push_back(capitalised(surfaceName(static_cast<Surface>(i))));
    }
    return choices;
}

std::optional<double> slopeOf(std::string_view text) {
    if (text.find_first_not_of(' ') == std::string_view::npos) {
        return 0.0;
    }
    const std::optional<double> slope = entireReal(text);
    return slope && *slope >= 0 && *slope <= SteepestAsked ? slope : std::nullopt;
}

std::string weightSentence(const VehiclePerformance& performance) {
    const double given = performance.figures.weight;
    std::string text = given > 0 ? "Weight given: " + kilogramsText(given) + ". " : "No weight is given. ";
    if (!performance.shares) {
        return text + "No estimate: " + missingFiguresText(performance.figures) + ".";
    }
    const std::string against = estimateAgainstWeight(performance);
    return text + "Estimate: " + kilogramsText(roundedWeight(performance.estimate)) +
           (against.empty() ? "; it drives with that." : ", " + against + ".");
}

std::string drivingText(const VehiclePerformance& performance, const DriveConditions& conditions) {
    if (!performance.drive) {
        return reasonFor(performance);
    }
    const DriveModel& drive = *performance.drive;
    const double speed = topSpeed(drive, conditions);
    std::string text = speed > 0 ? "Top speed " + fixedText(speed, 1) + " km/h" : "Too steep to climb";
    const auto seconds = secondsTo(drive, conditions, ComparedSpeed);
    text += seconds ? "; 0 to 32 km/h in " + fixedText(*seconds, 1) + " s" : "; does not reach 32 km/h";
    text += ". Steepest slope on " + std::string(surfaceName(conditions.surface)) + " " +
            percentText(steepestSlope(drive, conditions.surface)) + ".\n";
    const GroundPressure pressure = groundPressure(performance.figures, performance.weight);
    text += "Ground pressure";
    text += pressure.kilopascals ? " " + fixedText(*pressure.kilopascals, 0) + " kPa, " : " is not known: ";
    return text + std::string(pressure.remark) + ".";
}

BarChart weightBars(const VehiclePerformance& performance) {
    BarChart chart;
    const double given = performance.figures.weight;
    chart.bars.push_back({.label = "Given",
                          .figure = given > 0 ? kilogramsText(given) : "none",
                          .to = given,
                          .colour = GivenColour});
    if (!performance.shares) {
        return chart;
    }
    chart.bars.push_back({.label = "Estimate",
                          .figure = kilogramsText(roundedWeight(performance.estimate)),
                          .to = performance.estimate,
                          .colour = EstimateColour});
    double from = 0.0;
    for (std::size_t i = 0; i < WeightShareCount; ++i) {
        const double mass = shareOf(performance, i);
        const double percent = performance.estimate > 0 ? mass / performance.estimate * 100.0 : 0.0;
        chart.bars.push_back({.label = capitalised(weightShareName(static_cast<WeightShare>(i))),
                              .figure = kilogramsText(mass) + ", " + percentText(percent),
                              .from = from,
                              .to = from + mass,
                              .colour = ChartColours[i % ChartColours.size()]});
        from += mass;
    }
    return chart;
}

CurveChart forceCurves(const VehiclePerformance& performance, const DriveConditions& conditions) {
    CurveChart chart{.title = "Tractive force of the gears against resistance (" +
                              conditionsText(conditions) + ")",
                     .horizontal = "km/h",
                     .vertical = "kN",
                     .curves = {}};
    if (!performance.drive) {
        chart.nothing = reasonFor(performance);
        return chart;
    }
    const DriveModel& drive = *performance.drive;
    for (std::size_t i = 0; i < drive.gears.size(); ++i) {
        chart.curves.push_back(gearCurve(drive, conditions.surface, i));
    }
    chart.curves.push_back(resistanceCurve(drive, conditions));
    if (const double speed = topSpeed(drive, conditions); speed > 0) {
        const double force = resistanceAt(drive, conditions, speed) / 1000.0;
        chart.curves.push_back(
            {.name = "", .points = {{speed, 0.0}, {speed, force}}, .colour = TopSpeedColour, .width = 2});
    }
    return chart;
}

CurveChart speedCurve(const VehiclePerformance& performance, const DriveConditions& conditions) {
    CurveChart chart{.title = "Speed from rest", .horizontal = "s", .vertical = "km/h", .curves = {}};
    if (!performance.drive) {
        chart.nothing = reasonFor(performance);
        return chart;
    }
    ChartCurve curve{.name = "", .points = {}, .colour = EstimateColour, .width = 2};
    for (const SpeedAtTime& point : speedOverTime(*performance.drive, conditions)) {
        curve.points.push_back({point.seconds, point.speed});
    }
    if (curve.points.size() < 2) {
        chart.nothing = "Too steep to climb.";
        return chart;
    }
    chart.curves.push_back(std::move(curve));
    return chart;
}

std::string performanceTable(const VehiclePerformance& performance, const DriveConditions& conditions) {
    std::string table =
        performance.figures.name + "\t" + std::string(runningGearName(performance.figures.gear)) + "\t\r\n";
    addWeights(table, performance);
    if (performance.drive) {
        addDriving(table, performance, conditions);
    }
    return table;
}

} // namespace varrocade
