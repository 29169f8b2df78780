#pragma once
// The data sheet of the open record: a window of its own with a scroll bar.

#include <windows.h>

namespace varrocade {

bool registerSheetWindow();
HWND createSheetWindow(HWND parent);

/// Paints the sheet at once.
void redrawSheet();

/// Looks for the units that carry the open weapon, whenever the window has nothing else to do.
void startLookingForUsers();

/// Scrolls by what the wheel was turned.
void scrollSheetByWheel(int delta);

/// Scrolls to the selected part, where it is out of sight.
void showSelectedRow();

} // namespace varrocade
