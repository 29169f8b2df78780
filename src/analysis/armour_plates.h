#pragma once
// The plates that a shot can meet on a vehicle.

#include "data/unit/unit_record.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace varrocade {

struct VehiclePlate {
    std::size_t component = 0; ///< in the vehicle's list
    std::string_view name;     ///< as files name it, such as "upper_front"
    ArmourPlate plate;
};

/// Every plate with a thickness above 0, component by component. Top and bottom are horizontal, a mantlet is
/// upright. Spaced armour is no plate of its own: nothing tells how it leans.
std::vector<VehiclePlate> armourPlates(const VehicleRecord& vehicle);

} // namespace varrocade
