#pragma once
// How fast a vehicle goes: power against rolling resistance, drag and slope, gear by gear.

#include "analysis/performance/vehicle_figures.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace varrocade {

enum class Surface : std::uint8_t { Road = 0, Gravel = 1, Field = 2, Sand = 3 };
inline constexpr std::size_t SurfaceCount = 4;

/// "road", "gravel", "field", "sand"
std::string_view surfaceName(Surface surface);

struct DriveConditions {
    Surface surface = Surface::Road;
    double slope = 0.0; ///< percent, uphill; downhill counts as level
};

/// One gear: the speeds in km/h at which the engine idles and reaches its limit.
struct GearSpeeds {
    double idle = 0.0;
    double limit = 0.0;
};

/// What the formulas take from a vehicle, worked out once. All finite and above 0.
struct DriveModel {
    RunningGear gear = RunningGear::Tracked;
    double mass = 0.0;     ///< kilograms
    double power = 0.0;    ///< watts at sprockets or wheels
    double dragArea = 0.0; ///< square metres times the coefficient
    double roadEra = 0.0;  ///< of the resistance on roads, against that of the 1960s
    double offRoadEra = 0.0;
    double ceiling = 0.0;      ///< km/h that the running gear stands on a road
    double shiftSeconds = 0.0; ///< without traction, each time
    double spread = 0.0;       ///< of the highest to the lowest gear
    double utilisation = 0.0;  ///< mean power between two shifts, of the greatest
    double roadSpeed = 0.0;    ///< km/h, level: what the highest gear is made for
    std::vector<GearSpeeds> gears;
};

/// Nothing where power, hull, date or the weight is missing. `weight` in kilograms: the given one, or an
/// estimate.
std::optional<DriveModel> driveModel(const VehicleFigures& figures, double weight);

/// Newton against the vehicle at `speed` km/h.
double resistanceAt(const DriveModel& model, const DriveConditions& conditions, double speed);

/// Newton at sprockets or wheels in a gear (counted from 0) at `speed` km/h, as far as the ground holds it.
/// None above the speed of the engine's limit; below that of idling only the lowest gear pulls, on its
/// clutch.
double tractiveForceAt(const DriveModel& model, Surface surface, std::size_t gear, double speed);

/// km/h that are held; 0 where the slope is too steep. More power is never slower, steeper never faster.
double topSpeed(const DriveModel& model, const DriveConditions& conditions);

/// The steepest slope that is climbed, in percent.
double steepestSlope(const DriveModel& model, Surface surface);

/// Seconds from rest to `speed` km/h; nothing where it is not reached.
std::optional<double> secondsTo(const DriveModel& model, const DriveConditions& conditions, double speed);

struct SpeedAtTime {
    double seconds = 0.0;
    double speed = 0.0; ///< km/h
};

/// From rest up to the top speed, less a fiftieth: the rest takes for ever.
std::vector<SpeedAtTime> speedOverTime(const DriveModel& model, const DriveConditions& conditions);

/// The speed in km/h by which acceleration is compared: 20 miles an hour.
inline constexpr double ComparedSpeed = 32.0;

struct GroundPressure {
    std::optional<double> kilopascals;
    std::string_view remark; ///< what the file does not tell
};

/// Unit files give neither the width of tracks nor their length on the ground, nor tyres: tracks are taken
/// in usual proportion to the hull, for wheels there is no figure.
GroundPressure groundPressure(const VehicleFigures& figures, double weight);

} // namespace varrocade
