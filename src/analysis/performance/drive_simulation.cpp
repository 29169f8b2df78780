#include "analysis/performance/drive_simulation.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace varrocade {

namespace {

constexpr double Gravity = 9.81;          ///< m/s2
constexpr double AirDensity = 1.225;      ///< kg/m3
constexpr double Watts = 735.5;           ///< of a metric horsepower
constexpr double KilometresPerHour = 3.6; ///< of a metre a second

/// What depends on the running gear. Resistances in newton for each newton of weight.
struct GearRow {
    /// Engine to ground: gears, steering and cooling, and tracks or tyres. Ogorkiewicz gives 0.65 to 0.75
    /// for tracked vehicles, 0.8 to 0.85 is usual for lorries.
    double efficiency;
    double dragCoefficient; ///< of the whole face; a tank's is about 1
    /// By `Surface`. Textbooks (Bekker; Wong, Theory of Ground Vehicles) give tracks 0.03 to 0.05 on hard
    /// roads, 0.08 to 0.15 on fields, 0.15 to 0.20 in sand; wheels 0.015 to 0.02, 0.06 to 0.12 and 0.15 to
    /// 0.30. The road's value is fitted to published top speeds and holds what gearing leaves unused.
    std::array<double, SurfaceCount> resistance;
    double resistancePerSpeed; ///< more for each m/s: rubber and track links work
    /// By `Surface`: the greatest force for each newton of weight before tracks or wheels slip.
    std::array<double, SurfaceCount> adhesion;
    /// By `Surface`, of the road's: how fast men and springs stand the ground.
    std::array<double, SurfaceCount> ceilingPart;
};

/// By `RunningGear`.
constexpr std::array<GearRow, RunningGearCount> GearRows = {{
    {0.70, 1.0, {0.047, 0.060, 0.100, 0.160}, 0.0005, {0.80, 0.75, 0.70, 0.45}, {1.0, 0.85, 0.60, 0.50}},
    {0.75, 0.9, {0.040, 0.052, 0.105, 0.170}, 0.0003, {0.75, 0.65, 0.60, 0.40}, {1.0, 0.80, 0.55, 0.45}},
    {0.80, 0.9, {0.018, 0.028, 0.085, 0.180}, 0.0001, {0.75, 0.60, 0.50, 0.35}, {1.0, 0.75, 0.50, 0.40}},
}};

/// A figure that improved over the years: straight lines between the years of `EraYears`.
constexpr std::array<int, 4> EraYears = {1916, 1935, 1960, 1985};
using EraRow = std::array<double, EraYears.size()>;

/// The road's resistance against that of the 1960s. Tracks of the First World War ran unsprung on plain
/// bearings in mud.
constexpr std::array<EraRow, RunningGearCount> RoadEras = {
    {{2.43, 1.04, 1.0, 0.96}, {1.2, 1.05, 1.0, 0.95}, {1.2, 1.05, 1.0, 1.0}}};
/// The same on fields and sand, where springs count for more.
constexpr std::array<EraRow, RunningGearCount> OffRoadEras = {
    {{2.28, 1.20, 1.0, 0.80}, {1.3, 1.15, 1.0, 0.85}, {1.3, 1.15, 1.0, 0.85}}};
/// Ceilings on roads, in km/h.
constexpr std::array<EraRow, RunningGearCount> Ceilings = {
    {{57, 58, 88, 90}, {60, 75, 85, 90}, {105, 125, 130, 135}}};

/// Sharpness with which the ceiling cuts off what the power would allow.
constexpr double CeilingSharpness = 4.0;

/// Rotating parts count as so much more mass.
constexpr double RotatingMass = 1.25;
/// Seconds of a shift by hand in 1940, and with the automatic transmissions from the 1970s on.
constexpr double EarlyShift = 1.2;
constexpr double LateShift = 0.4;
constexpr int EarlyShiftYear = 1940;
constexpr int LateShiftYear = 1975;

/// The highest gear is so many times as fast as the lowest, for each gear above the first; converters and
/// electric drives with few gears do as well as the lower limit.
constexpr double SpreadPerGear = 2.6;
constexpr double MinSpread = 6.0;
constexpr double MaxSpread = 16.0;

/// Speeds and forces near rest are those at this speed, m/s.
constexpr double Crawl = 0.2;
constexpr int Halvings = 60;
constexpr double MaxSpeed = 200.0; ///< m/s
constexpr int TimeSteps = 128;
/// Newton for each kilogram that are left at the top speed: what takes for ever ends.
constexpr double LeastSurplus = 0.005;

const GearRow& rowOf(RunningGear gear) {
    return GearRows[static_cast<std::size_t>(gear)];
}

double inYear(const EraRow& row, int year) {
    for (std::size_t i = 1; i < EraYears.size(); ++i) {
        if (year <= EraYears[i]) {
            const double part = (year - EraYears[i - 1]) / static_cast<double>(EraYears[i] - EraYears[i - 1]);
            return row[i - 1] + std::max(part, 0.0) * (row[i] - row[i - 1]);
        }
    }
    return row.back();
}

/// Power of an engine at a part of its limiting revolutions, of the greatest: its torque is highest, a
/// quarter above that at the limit, at half the revolutions.
double powerPart(double revolutions) {
    return revolutions * (1.0 + revolutions - revolutions * revolutions);
}
constexpr double TorqueReserve = 1.25;

double slopeAngle(double percent) {
    return std::atan(std::clamp(percent, 0.0, 1e6) / 100.0);
}

/// Newton at `speed` m/s.
double resistance(const DriveModel& model, const DriveConditions& conditions, double speed) {
    const GearRow& row = rowOf(model.gear);
    const double angle = slopeAngle(conditions.slope);
    const bool isMade = conditions.surface == Surface::Road || conditions.surface == Surface::Gravel;
    const double rolling = row.resistance[static_cast<std::size_t>(conditions.surface)] *
                               (isMade ? model.roadEra : model.offRoadEra) +
                           row.resistancePerSpeed * speed;
    return model.mass * Gravity * (rolling * std::cos(angle) + std::sin(angle)) +
           0.5 * AirDensity * model.dragArea * speed * speed;
}

/// m/s at which the whole power goes into the resistance.
double balanceSpeed(const DriveModel& model, const DriveConditions& conditions) {
    double low = 0.0;
    double high = MaxSpeed;
    for (int i = 0; i < Halvings; ++i) {
        const double middle = (low + high) / 2.0;
        (resistance(model, conditions, middle) * middle < model.power ? low : high) = middle;
    }
    return low;
}

double underCeiling(double speed, double ceiling) {
    return speed / std::pow(1.0 + std::pow(speed / ceiling, CeilingSharpness), 1.0 / CeilingSharpness);
}

/// km/h on ground that is not too steep.
double heldSpeed(const DriveModel& model, const DriveConditions& conditions) {
    const double part = rowOf(model.gear).ceilingPart[static_cast<std::size_t>(conditions.surface)];
    return underCeiling(balanceSpeed(model, conditions) * KilometresPerHour, model.ceiling * part);
}

/// Newton that the lowest gear gives at most, whatever the ground.
double lowestGearForce(const DriveModel& model) {
    const double lowestSpeed =
        std::max(model.roadSpeed / model.spread / KilometresPerHour, Crawl / model.spread);
    return TorqueReserve * model.power / lowestSpeed;
}

double groundHolds(const DriveModel& model, const DriveConditions& conditions) {
    return rowOf(model.gear).adhesion[static_cast<std::size_t>(conditions.surface)] * model.mass * Gravity *
           std::cos(slopeAngle(conditions.slope));
}

/// Newton at `speed` m/s over all gears, with the power that is used on the mean between two shifts; at the
/// top speed all of it.
double drivingForce(const DriveModel& model, const DriveConditions& conditions, double speed) {
    const double part = std::min(speed * KilometresPerHour / std::max(model.roadSpeed, Crawl), 1.0);
    const double used = model.utilisation + (1.0 - model.utilisation) * part;
    return std::min({used * model.power / std::max(speed, Crawl), lowestGearForce(model),
                     groundHolds(model, conditions)});
}

void addGears(const VehicleFigures& figures, DriveModel& model) {
    const int count = figures.forwardGears;
    model.spread = std::clamp(SpreadPerGear * (count - 1), MinSpread, MaxSpread);
    const double step = count > 1 ? std::pow(model.spread, 1.0 / (count - 1)) : model.spread;
    constexpr int samples = 8;
    for (int i = 0; i < samples; ++i) {
        const double lowest = 1.0 / step;
        model.utilisation += powerPart(lowest + (1.0 - lowest) * (i + 0.5) / samples) / samples;
    }
    model.utilisation = std::min(model.utilisation, 1.0);
    const double idlePart = std::min(figures.idleRevolutions / figures.revolutionLimit, 1.0);
    for (int gear = count - 1; gear >= 0; --gear) {
        const double limit = model.roadSpeed / std::pow(step, gear);
        model.gears.push_back({.idle = limit * idlePart, .limit = limit});
    }
}

template <typename Visit>
std::optional<double> accelerate(const DriveModel& model, const DriveConditions& conditions, double speed,
                                 Visit visit) {
    if (speed > topSpeed(model, conditions) || speed <= 0) {
        return std::nullopt;
    }
    const double step = speed / KilometresPerHour / TimeSteps;
    double pulling = 0.0;
    std::size_t shifts = 0;
    // Shifts are counted and not added up as they come: rounding would make an equal drive slower.
    const auto seconds = [&] { return pulling + static_cast<double>(shifts) * model.shiftSeconds; };
    for (int i = 0; i < TimeSteps; ++i) {
        const double middle = (i + 0.5) * step;
        const double reached = (i + 1) * step * KilometresPerHour;
        const double surplus =
            drivingForce(model, conditions, middle) - resistance(model, conditions, middle);
        pulling += step * RotatingMass * model.mass / std::max(surplus, LeastSurplus * model.mass);
        while (shifts + 1 < model.gears.size() && model.gears[shifts].limit < reached) {
            ++shifts;
        }
        visit(SpeedAtTime{.seconds = seconds(), .speed = reached});
    }
    return seconds();
}

} // namespace

std::string_view surfaceName(Surface surface) {
    constexpr std::array<std::string_view, SurfaceCount> names = {"road", "gravel", "field", "sand"};
    return names[static_cast<std::size_t>(surface)];
}

std::optional<DriveModel> driveModel(const VehicleFigures& figures, double weight) {
    if (!figures.canEstimate() || !(weight > 0)) {
        return std::nullopt;
    }
    const GearRow& row = rowOf(figures.gear);
    const auto gear = static_cast<std::size_t>(figures.gear);
    DriveModel model;
    model.gear = figures.gear;
    model.mass = weight;
    model.power = figures.horsepower * Watts * row.efficiency;
    model.dragArea = row.dragCoefficient * 0.85 * figures.width * figures.totalHeight;
    model.roadEra = inYear(RoadEras[gear], figures.year);
    model.offRoadEra = inYear(OffRoadEras[gear], figures.year);
    model.ceiling = inYear(Ceilings[gear], figures.year);
    const double lateness =
        (figures.year - EarlyShiftYear) / static_cast<double>(LateShiftYear - EarlyShiftYear);
    model.shiftSeconds = EarlyShift + std::clamp(lateness, 0.0, 1.0) * (LateShift - EarlyShift);
    model.roadSpeed = heldSpeed(model, {});
    addGears(figures, model);
    return model;
}

double resistanceAt(const DriveModel& model, const DriveConditions& conditions, double speed) {
    return resistance(model, conditions, std::clamp(speed / KilometresPerHour, 0.0, MaxSpeed));
}

double tractiveForceAt(const DriveModel& model, Surface surface, std::size_t gear, double speed) {
    if (gear >= model.gears.size() || speed > model.gears[gear].limit ||
        (gear > 0 && speed < model.gears[gear].idle)) {
        return 0.0;
    }
    const double limit = std::max(model.gears[gear].limit, Crawl);
    const double revolutions = std::max(speed, model.gears[gear].idle) / limit;
    // Power by speed: the speed that both share is cut short.
    const double force =
        model.power * (1.0 + revolutions - revolutions * revolutions) / (limit / KilometresPerHour);
    return std::min(force, groundHolds(model, {.surface = surface}));
}

double topSpeed(const DriveModel& model, const DriveConditions& conditions) {
    return conditions.slope > steepestSlope(model, conditions.surface) ? 0.0 : heldSpeed(model, conditions);
}

double steepestSlope(const DriveModel& model, Surface surface) {
    // Force and resistance both go with the weight; the angle at which they meet is looked for.
    constexpr double steepest = 200.0;
    double low = 0.0;
    double high = steepest;
    for (int i = 0; i < Halvings; ++i) {
        const double middle = (low + high) / 2.0;
        const DriveConditions conditions = {.surface = surface, .slope = middle};
        const double force = std::min(lowestGearForce(model), groundHolds(model, conditions));
        (resistance(model, conditions, 0.0) < force ? low : high) = middle;
    }
    return low;
}

std::optional<double> secondsTo(const DriveModel& model, const DriveConditions& conditions, double speed) {
    return accelerate(model, conditions, speed, [](const SpeedAtTime&) {});
}

std::vector<SpeedAtTime> speedOverTime(const DriveModel& model, const DriveConditions& conditions) {
    std::vector<SpeedAtTime> points = {{}};
    accelerate(model, conditions, 0.98 * topSpeed(model, conditions),
               [&points](const SpeedAtTime& point) { points.push_back(point); });
    return points;
}

GroundPressure groundPressure(const VehicleFigures& figures, double weight) {
    // Of the hull's length and width, from some dozen tanks; Panther 0.57 and 0.19, T-34 0.63 and 0.17,
    // Panzer IV 0.60 and 0.13, Leopard 1 0.60 and 0.17.
    constexpr double contactPart = 0.60;
    constexpr double trackPart = 0.155;
    if (figures.gear != RunningGear::Tracked) {
        return {.kilopascals = std::nullopt, .remark = "the file does not tell the tyres"};
    }
    const double area = 2.0 * contactPart * figures.length * trackPart * figures.width;
    if (area <= 0 || weight <= 0) {
        return {.kilopascals = std::nullopt, .remark = "no weight, or no hull with width and length"};
    }
    return {.kilopascals = weight * Gravity / area / 1000.0,
            .remark = "with tracks in usual proportion to the hull: the file does not tell them"};
}

} // namespace varrocade
