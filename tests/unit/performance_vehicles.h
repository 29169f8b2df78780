#pragma once
// Real vehicles by their published figures, as the unit records that a game's files would hold of them.

#include "data/unit/unit_record.h"

#include <string>
#include <vector>

namespace varrocade::tests {

struct RealVehicle {
    SquadRecord unit;
    double roadSpeed = 0.0;  ///< km/h
    double fieldSpeed = 0.0; ///< km/h; 0: not published
    bool isConfident = true;
};

/// The table tests/golden/performance_vehicles.txt, read once; fails the test when a line does not fit it.
const std::vector<RealVehicle>& realVehicles();

} // namespace varrocade::tests
