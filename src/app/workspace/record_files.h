#pragma once
// The open record and its file: loading, saving, and what the user is told and asked of it.

#include "app/workspace/workspace.h"
#include "data/writing/unit_writers.h"

#include <string>

namespace varrocade {

/// Opens a file of the present category in the place of what is open: as it was left where it has unsaved
/// changes, else from the disk. False when it could not be loaded, which leaves nothing open and has been
/// shown.
bool openFile(Workspace& workspace, const std::string& name);

/// Opens the file of the open record again when another program has changed it. What is unsaved here stays
/// open.
void reopenIfChanged(Workspace& workspace);

/// Looks for what other programs have done to the files of the list and of the records in memory: a record
/// without changes is read again, one with changes is marked. One whose file is gone stays open. False when a
/// file cannot be read at the moment, which leaves its record as it is.
bool noticeOutsideChanges(Workspace& workspace);

/// Writes the open record to its file, after the questions about what another program has changed there and
/// about what a file that was written by hand loses by that. A failure, or a refusal of the user's, changes
/// nothing of what is open; reloading is nothing saved.
SaveResult saveOpenRecord(Workspace& workspace);

/// Does the same with a record in memory and its file below a base folder; shows nothing but boxes.
SaveResult saveRecord(Workspace& workspace, OpenRecord& record, const std::string& base);

/// Before a record is written under another name: tells what the copy of a file that was written by hand has
/// no place for, and asks.
bool mayCopyHandMade(const OpenRecord& record);

/// Saves all records of the base folder in use, asking as for each of them alone; false when one is still
/// unsaved.
bool saveAll(Workspace& workspace);

/// Makes the open record what its file holds, as a change that can be undone. One that has no file is closed.
void discardChanges(Workspace& workspace);

/// Says what a save has come to where it failed, in a box and to the debugger; returns whether it failed.
bool tellFailure(const SaveOutcome& outcome);

/// Takes the open record from the screen. With unsaved changes it stays in memory, but for positions that
/// were moved and, as the user has answered by now, are not to be saved.
void closeRecord(Workspace& workspace);

} // namespace varrocade
