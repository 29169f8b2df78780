#pragma once
// The data sheet of the open record: a window of its own with a scroll bar.

#include <windows.h>

namespace varrocade {

bool registerSheetWindow();
HWND createSheetWindow(HWND parent);

/// Scrolls by what the wheel was turned.
void scrollSheetByWheel(int delta);

} // namespace varrocade
