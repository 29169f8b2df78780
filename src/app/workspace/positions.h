#pragma once
// Positions that were moved in the drawing and are not saved yet.

#include "data/category.h"

#include <string_view>

namespace varrocade {

/// The question to ask before such positions are lost; empty when nothing would be.
std::string_view unsavedPositionsQuestion(bool isUnitOpen, Category category, bool weaponPosChanged,
                                          bool exhaustPosChanged);

/// Asks it where there is something to ask, and saves on Yes. Returns whether the open unit may be replaced.
bool mayLeavePositions();

} // namespace varrocade
