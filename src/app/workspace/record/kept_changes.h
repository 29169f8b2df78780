#pragma once
// Unsaved changes that the user gives up: a copy of each goes to the backups, so that no answer is final.

#include "app/workspace/workspace.h"

#include <string>

namespace varrocade {

/// Puts the unsaved state of a record among the backups of its file. False when that fails, which is told:
/// then nothing may be given up.
bool keepChanges(Workspace& workspace, const OpenRecord& record);

/// Takes the record with unsaved changes of a file out of memory, where it is not shown, with a copy among
/// the backups: another record is to be that of the file. False when that fails, which is told.
bool dropAside(Workspace& workspace, const std::string& base, Category category, const std::string& name);

/// Says what could not be written, and what has become of the changes.
void tellNotKept(const FileFailure& failure);

} // namespace varrocade
