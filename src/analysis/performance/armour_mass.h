#pragma once
// What a vehicle's armour weighs: the area of each plate from the box of its component, times its thickness.

#include "analysis/performance/vehicle_kind.h"
#include "data/unit/unit_record.h"

namespace varrocade {

/// Kilograms.
struct ArmourMass {
    double hull = 0.0; ///< with superstructures and gun shields
    double turrets = 0.0;
    double mantlets = 0.0;
    double spaced = 0.0;
};

/// Thicknesses count with 7,850 kg/m3, the density of steel. Sizes and thicknesses beyond any vehicle's are
/// cut, so that no figure of a file makes the result infinite. Never negative; thicker is never lighter.
ArmourMass armourMass(const VehicleRecord& vehicle, RunningGear gear, BodyKind body, int year);

/// Millimetres of steel that weigh as much as a plate given with this thickness. Up to the 1950s they are
/// the same. Later files give very thick fronts and light carriers as the steel that they are worth: layers
/// with ceramics and light alloys protect better than they weigh.
double weighingThickness(double thickness, BodyKind body, int year);

} // namespace varrocade
