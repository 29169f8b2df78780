#include "analysis/performance/vehicle_performance.h"

#include "data/format/words.h"

#include <algorithm>
#include <cmath>

namespace varrocade {

namespace {

std::string wholeText(double value) {
    return grouped(static_cast<std::int32_t>(std::lround(value)));
}

} // namespace

VehiclePerformance vehiclePerformance(const SquadRecord& unit, const WeaponMasses& weapons) {
    VehiclePerformance performance;
    performance.figures = vehicleFigures(unit, weapons);
    performance.shares = estimateWeight(performance.figures);
    performance.estimate = performance.shares ? performance.shares->total() : 0.0;
    performance.weight = performance.figures.weight > 0 ? performance.figures.weight : performance.estimate;
    performance.drive = driveModel(performance.figures, performance.weight);
    return performance;
}

std::int32_t roundedWeight(double kilograms) {
    constexpr double light = 10'000.0;
    constexpr double most = 2e9;
    const double step = kilograms < light ? 10.0 : 100.0;
    return static_cast<std::int32_t>(std::round(std::clamp(kilograms, 0.0, most) / step) * step);
}

std::string missingFiguresText(const VehicleFigures& figures) {
    std::string text;
    for (const MissingFigure figure : figures.missing()) {
        text += (text.empty() ? "" : ", ") + std::string(missingFigureText(figure));
    }
    return text;
}

std::string estimateAgainstWeight(const VehiclePerformance& performance) {
    if (performance.figures.weight <= 0 || !performance.shares) {
        return {};
    }
    const double percent = (performance.estimate / performance.figures.weight - 1.0) * 100.0;
    // What a file gives in grams by mistake need not be told to the percent.
    const double told = std::min(std::abs(percent), 1e6);
    return std::lround(told) == 0
               ? "as given"
               : wholeText(told) + " % " + (percent > 0 ? "above" : "below") + " the weight given";
}

std::string performanceLine(const VehiclePerformance& performance) {
    if (!performance.shares || !performance.drive) {
        return "No estimate of weight and speed: " + missingFiguresText(performance.figures) + ".";
    }
    const std::string against = estimateAgainstWeight(performance);
    return "Estimate: " + grouped(roundedWeight(performance.estimate)) + " kg" +
           (against.empty() ? "" : ", " + against) + "; " + wholeText(topSpeed(*performance.drive, {})) +
           " km/h on roads, " + wholeText(topSpeed(*performance.drive, {.surface = Surface::Field})) +
           " km/h on fields.";
}

} // namespace varrocade
