#pragma once
// Every command of the menu, the buttons and the accelerators: what it does and when it can.

#include <windows.h>

namespace varrocade {

/// Runs a command; false when there is none of this id or it is disabled.
bool runCommand(int id);

/// Whether a command can be run as things are.
bool isCommandEnabled(int id);

/// Greys the menu items whose commands cannot be run now.
void updateMenu(HMENU menu);

/// Enables the file buttons as the open record and the list allow.
void updateButtons();

} // namespace varrocade
