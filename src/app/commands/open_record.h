#pragma once
// The one open unit or weapon: loading, saving, editing it.

#include "data/unit/unit_writers.h"
#include "editors/unit/edit_context.h"

#include <functional>
#include <string>
#include <string_view>

namespace varrocade {

/// Opens a file of the present category; false when it could not be loaded, which leaves nothing open and has
/// been shown.
bool openFile(const std::string& name);

/// Opens the file of the open record again when another program has changed it. What is unsaved here stays
/// open.
void reopenIfChanged();

/// Writes the open record to its file.
SaveResult saveOpenRecord();

/// Writes the open unit among the backups when it differs from its file, so that changes that were kept in
/// memory only are not lost when another file is opened.
void keepUnsavedUnit(const std::string& base);

/// Notes a change of the open unit that can be undone under this name, and shows it.
void unitChanged(std::string_view change);

void undoChange();
void redoChange();

/// Lets an editor work on the open unit, saves the unit when that is what the editor returns, and shows it.
void withEditContext(const std::function<bool(EditContext&)>& work);

/// Opens the editor of the open record's kind and saves what the user keeps.
void editOpenRecord();

/// Whether the open record has an editor.
bool canEditOpenRecord();

} // namespace varrocade
