#pragma once
// What a unit still lacks to be of use in the game: for a new one, a list of what to do next.

#include "data/finding.h"
#include "data/unit/unit_record.h"

#include <vector>

namespace varrocade {

/// Each gap as a note, with its field from the unit on: "vehicle.hull[1].image_view".
std::vector<Finding> unitGaps(const SquadRecord& unit);

} // namespace varrocade
