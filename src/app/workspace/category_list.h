#pragma once
// Going about in the list of files: another category, another entry, a filter.

#include "app/workspace/workspace.h"

#include <cstddef>
#include <string>

namespace varrocade {

/// Shows the names that hold every word of a filter.
void setFilter(Workspace& workspace, const std::string& filter);

/// Opens an entry that was selected in the list, after the question about unsaved positions; of the one that
/// is open, only what another program has changed.
void openEntry(Workspace& workspace, const std::string& name);

/// Opens the first of the names that the filter lets through, unless one of them is selected already; false
/// where there is none.
bool openFirstShown(Workspace& workspace);

/// Shows another category, unfiltered, with the file that was selected in it last.
void chooseCategory(Workspace& workspace, Category category);

/// Shows a file of any category, whatever the filter holds back.
void showFile(Workspace& workspace, Category category, const std::string& name);

/// Shows one of `unsavedRecords`; nothing where it is of the base folder that is not in use.
void showUnsaved(Workspace& workspace, std::size_t index);

/// Reads the list anew, and selects and remembers an entry of it, which is not opened.
void refillAndSelect(Workspace& workspace, const std::string& name);

/// Reads everything anew that other programs may have changed: weapons, list, the open record's file.
void refreshAll(Workspace& workspace);

} // namespace varrocade
