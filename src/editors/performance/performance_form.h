#pragma once
// What the dialog "Weight and Top Speed" shows, without any window.

#include "analysis/performance/vehicle_performance.h"
#include "view/chart/chart.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// The surfaces in the order of `Surface`: "Road" and the like.
std::vector<std::string> surfaceChoices();

/// The percent that a text states, nothing where it is no slope from 0 to `SteepestAsked`. An empty text is
/// level ground.
inline constexpr double SteepestAsked = 200.0;
inline constexpr std::string_view SlopeRefusal = "\"Slope\" must be a number from 0 to 200";
std::optional<double> slopeOf(std::string_view text);

/// "Weight given: 56,900 kg. Estimate: 55,800 kg, 2 % below the weight given." Or what is missing for it.
std::string weightSentence(const VehiclePerformance& performance);

/// How it drives on this ground, in a few lines: top speed, acceleration, steepest slope, ground pressure.
std::string drivingText(const VehiclePerformance& performance, const DriveConditions& conditions);

/// The weight given, the estimate, and its shares, each of which begins where the one before ends.
BarChart weightBars(const VehiclePerformance& performance);

/// Kilonewtons over km/h: a curve for each gear, the resistance, and a mark at the top speed.
CurveChart forceCurves(const VehiclePerformance& performance, const DriveConditions& conditions);

/// km/h over seconds from rest.
CurveChart speedCurve(const VehiclePerformance& performance, const DriveConditions& conditions);

/// All of it as tab separated lines of name, value and unit, for the clipboard.
std::string performanceTable(const VehiclePerformance& performance, const DriveConditions& conditions);

} // namespace varrocade
