#pragma once
// The list of the present category's files with the filter above it.

#include <windows.h>

#include <string>

namespace varrocade {

/// Creates the list box and the filter edit.
void createFileList(HWND parent);

/// The private message that reads the files of the present category anew.
inline constexpr UINT RefreshListMessage = WM_USER + 1;

/// Fills the list with the names that the workspace shows.
void showNames();

/// Selects the workspace's selected name in the list.
void showSelectedName();

/// What is selected in the list box, or empty.
std::string selectedEntry();

/// Hands what is typed into the filter to the workspace.
void applyFilter();

void drawListEntry(const DRAWITEMSTRUCT& item);
int listEntryHeight();

/// Shows the open record's entry anew, or all: their marks for unsaved changes may be others.
void redrawOpenEntry();
void redrawEntries();

/// Empties the filter and takes the keyboard focus to the list.
void leaveFilter();

} // namespace varrocade
