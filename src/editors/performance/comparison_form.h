#pragma once
// What the dialog "Compare Vehicles" shows, without any window.

#include "tools/vehicle_comparison.h"
#include "view/chart/chart.h"

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// What the axes of the points can show.
enum class ComparedFigure : std::uint8_t { Weight = 0, Estimate = 1, PowerToWeight = 2, RoadSpeed = 3 };

/// "Weight (t)" and the like, in the order of `ComparedFigure`.
std::vector<std::string> comparedFigureChoices();

/// The vehicles of which both figures are known; `places` tells each point's place in `vehicles`.
struct ComparisonPoints {
    PointChart chart;
    std::vector<std::size_t> places;
};
ComparisonPoints comparisonPoints(std::span<const ComparedVehicle> vehicles, std::string_view open,
                                  ComparedFigure across, ComparedFigure upwards);

/// The name and the figures of a vehicle in a sentence, for the one that the mouse points to.
std::string comparedSentence(const ComparedVehicle& vehicle);

/// "Reading 120 of 4,000: German Panzer VI Tiger"; at its end what was found.
std::string progressText(const VehicleComparison& comparison);

inline constexpr std::array<std::string_view, 2> OutlierHeads = {"Vehicle", "Out of line"};

/// A row for each fault of each vehicle, in the columns of `OutlierHeads`, and whose it is.
struct OutlierRow {
    std::size_t vehicle = 0;
    std::array<std::string, OutlierHeads.size()> cells;
};
std::vector<OutlierRow> outlierRows(std::span<const ComparedVehicle> vehicles);

/// All vehicles as tab separated lines below a head, for the clipboard.
std::string comparisonTable(std::span<const ComparedVehicle> vehicles);

} // namespace varrocade
