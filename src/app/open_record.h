#pragma once
// The one open unit or weapon: loading, saving, editing it.

#include "data/unit_writers.h"

#include <string>

namespace varrocade {

/// Opens a file of the present category; false when it could not be loaded, which leaves nothing open and has
/// been shown.
bool openFile(const std::string& name);

/// Writes the open record to its file.
SaveResult saveOpenRecord();

/// Opens the editor of the open record's kind and saves what the user keeps.
void editOpenRecord();

/// Whether the open record has an editor.
bool canEditOpenRecord();

} // namespace varrocade
