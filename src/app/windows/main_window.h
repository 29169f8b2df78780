#pragma once

#include <windows.h>

namespace varrocade {

/// Registers the window class and creates the main window; null when it cannot be created.
HWND createMainWindow();

/// Whether a message was the main window's keyboard navigation, or one that its accelerators or dialogs took.
bool isWindowNavigation(MSG& message);

/// Has the main window lay its controls out anew, without its size having changed.
inline constexpr UINT LayOutMessage = WM_APP + 2;

} // namespace varrocade
