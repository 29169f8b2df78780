#pragma once

#include <windows.h>

namespace varrocade {

/// Registers the window class and creates the main window; null when it cannot be created.
HWND createMainWindow();

/// Whether a message was the main window's keyboard navigation, or one that its accelerators or dialogs took.
bool isWindowNavigation(MSG& message);

} // namespace varrocade
