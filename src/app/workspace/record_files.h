#pragma once
// The open record and its file: loading, saving, and what the user is told and asked of it.

#include "app/workspace/workspace.h"
#include "data/writing/unit_writers.h"

#include <string>

namespace varrocade {

/// Opens a file of the present category in the place of what is open; false when it could not be loaded,
/// which leaves nothing open and has been shown.
bool openFile(Workspace& workspace, const std::string& name);

/// Opens the file of the open record again when another program has changed it. What is unsaved here stays
/// open.
void reopenIfChanged(Workspace& workspace);

/// Writes the open record to its file, after the question about what a file that was written by hand loses by
/// that. A failure, or a refusal of the user's, changes nothing of what is open.
SaveResult saveOpenRecord(Workspace& workspace);

/// Says what a save has come to where it failed, in a box and to the debugger; returns whether it failed.
bool tellFailure(const SaveOutcome& outcome);

/// Drops the open record and with it the unsaved positions. What was changed in it only here is kept among
/// the backups of the base folder that it came from.
void closeRecord(Workspace& workspace, const std::string& base);
void closeRecord(Workspace& workspace);

/// Writes the open record among the backups of a base folder when it differs from its file.
void keepUnsaved(Workspace& workspace, const std::string& base);

} // namespace varrocade
