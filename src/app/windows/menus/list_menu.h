#pragma once

#include <windows.h>

namespace varrocade {

/// The menu of the list of files: what can be done with the selected one. `detail` is that of WM_CONTEXTMENU.
void showListMenu(HWND list, LPARAM detail);

} // namespace varrocade
