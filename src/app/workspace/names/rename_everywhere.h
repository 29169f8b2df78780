#pragma once
// Another name for a weapon, a picture, a sound or a unit in all files that have it.

#include "app/workspace/workspace.h"
#include "tools/renaming/rename_plan.h"

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace varrocade {

/// The places among `unsavedRecords` of those that a renaming would pass over: whose files it changes, or
/// which have the name themselves. They have to be saved, or given up, before.
std::vector<std::size_t> unsavedWithName(const Workspace& workspace, const RenamePlan& plan,
                                         const std::string& name);

/// Does what a plan says, as one step that can be undone. What is open is read again. False where a file
/// cannot be written, which has been shown and leaves all files as they were.
bool renameEverywhere(Workspace& workspace, const RenamePlan& plan);

/// Takes such a step back; false where that fails, which has been shown.
bool undoRenaming(Workspace& workspace, const FileStep& step);

} // namespace varrocade
