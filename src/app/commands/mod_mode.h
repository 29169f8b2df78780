#pragma once
// Switching between the game's own data and a mod's.

#include <string>

namespace varrocade {

/// Looks for a mod, first in the user's profile, then below the program; turns mod mode on when a "Mod.txt"
/// is there and off when there is none. Returns whether one was found.
bool detectModMode();

/// Creates the user's mod folder with a new "Mod.txt" and turns mod mode on. False when a folder or the file
/// could not be created, which has been shown.
bool createModFolder();

/// Turns mod mode off.
void leaveModMode();

/// The "Mod Mode" command.
void switchModMode();

} // namespace varrocade
