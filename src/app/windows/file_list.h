#pragma once
// The list of the present category's files with the filter above it.

#include <windows.h>

#include <string>
#include <vector>

namespace varrocade {

/// Creates the list box and the filter edit.
void createFileList(HWND parent);

/// Fills the list from the folder of the present category.
void refillList();

/// Shows the entries that hold every word of the filter, letter case ignored.
void applyFilter();

/// Selects an entry by its name without opening it; false when it is not in the list.
bool selectEntry(const std::string& name);

/// The name of the selected entry, or empty.
std::string selectedEntry();

/// The entries before and after the selected one, as far as they are there.
std::vector<std::string> neighbouringEntries();

/// The names that the list shows, from top to bottom.
std::vector<std::string> listedEntries();

void drawListEntry(const DRAWITEMSTRUCT& item);
int listEntryHeight();

/// Shows the selected entry anew: its mark for unsaved changes may be another.
void redrawSelectedEntry();

/// Empties the filter and takes the keyboard focus to the list.
void leaveFilter();

} // namespace varrocade
