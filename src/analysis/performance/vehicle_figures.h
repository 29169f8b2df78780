#pragma once
// What weight and speed of a vehicle are computed from, taken out of its unit file once.

#include "analysis/performance/armour_mass.h"
#include "analysis/performance/vehicle_kind.h"
#include "analysis/performance/weapon_mass.h"

#include <cstdint>
#include <string>
#include <vector>

namespace varrocade {

/// What a file leaves out. A vehicle is estimated when nothing but the weight is missing.
enum class MissingFigure : std::uint8_t { Weight = 0, Power = 1, Hull = 2, Date = 3 };

/// Why there is no figure, such as "no horsepower".
std::string_view missingFigureText(MissingFigure figure);

/// Plain, finite numbers, brought into ranges that no vehicle leaves: the formulas need no further care.
struct VehicleFigures {
    std::string name; ///< of the file
    RunningGear gear = RunningGear::Tracked;
    BodyKind body = BodyKind::Tank;
    double weight = 0.0;     ///< kilograms as given; 0: not given
    double horsepower = 0.0; ///< metric; 0: not given
    double length = 0.0;     ///< metres, of the first hull, as width and height
    double width = 0.0;
    double height = 0.0;
    double totalHeight = 0.0; ///< metres, with the highest turret or superstructure
    double volume = 0.0;      ///< cubic metres of the boxes of hull and superstructures
    int year = 0;             ///< of the first availability; 0: not given
    int forwardGears = 0;     ///< at least 1
    double idleRevolutions = 0.0;
    double revolutionLimit = 0.0; ///< above the idle ones
    bool amphibious = false;
    ArmourMass armour;
    double guns = 0.0;       ///< kilograms
    double ammunition = 0.0; ///< kilograms
    int crew = 0;

    [[nodiscard]] bool lacks(MissingFigure figure) const;
    /// Whether there is all that the weight is estimated from.
    [[nodiscard]] bool canEstimate() const;
    /// In the order of `MissingFigure`.
    [[nodiscard]] std::vector<MissingFigure> missing() const;
};

/// The figures of a unit with a vehicle; those of one without are all missing.
VehicleFigures vehicleFigures(const SquadRecord& unit, const WeaponMasses& weapons);

} // namespace varrocade
