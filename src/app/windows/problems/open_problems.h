#pragma once
// What is known of the open record's problems, for its signs.

#include "view/sheet/unit_problems.h"

#include <vector>

namespace varrocade {

/// Forgets what was found in a folder that is no longer in use.
void followProblemFolder();

/// What the sheet tells of the open unit or weapon, for its signs and, before all files were checked, for the
/// list.
void noteOpenProblems(const std::vector<SheetProblem>& problems);

} // namespace varrocade
