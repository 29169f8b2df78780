#pragma once

#include <windows.h>

namespace varrocade {

/// The private message that refills the list of files.
inline constexpr UINT RefreshListMessage = WM_USER + 1;

/// Registers the window class and creates the main window; null when it cannot be created.
HWND createMainWindow();

/// The open record is another one: shows it from its top and updates the buttons.
void showOpenRecord();

/// The open record changed: drawing and sheet are made anew with the next painting.
void displayChanged();

/// Paints the display at once, without erasing it first.
void redrawNow();

/// Whether a message was the main window's keyboard navigation, or one that its accelerators or dialogs took.
bool isWindowNavigation(MSG& message);

} // namespace varrocade
