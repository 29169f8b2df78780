#pragma once
// What saving a weapon file anew would lose, as `unitSaveLosses` tells it of units.

#include "data/losses/save_losses.h"

#include <string_view>
#include <vector>

namespace varrocade {

std::vector<Finding> weaponSaveLosses(std::string_view fileContent);

} // namespace varrocade
