#pragma once
// Undo of all that was done: changes of the open record, files that were deleted or renamed, spreadsheets
// that were imported.

#include "app/workspace/workspace.h"

#include <string>

namespace varrocade {

/// What `undoLast` would take back, such as "Delete German Tiger"; empty when there is nothing.
std::string lastStepName(const Workspace& workspace);
bool canUndoLast(const Workspace& workspace);

/// Takes the last step back. A file that was deleted or renamed comes back under its former name and is
/// opened with its history; files that were rewritten get back what they held. What is in the way is told.
void undoLast(Workspace& workspace);

} // namespace varrocade
