#pragma once
// Switching between the game's own data and a mod's.

#include "app/workspace/workspace.h"

namespace varrocade {

/// Looks for a mod, first in the user's profile, then below the program; turns mod mode on when a "Mod.txt"
/// is there and off when there is none. Returns whether one was found.
bool detectModMode(Workspace& workspace);

/// Creates the user's mod folder with a new "Mod.txt" and turns mod mode on. False when a folder or the file
/// could not be created, which has been shown.
bool createModFolder(Workspace& workspace);

/// Turns mod mode off.
void leaveModMode(Workspace& workspace);

/// The "Mod Mode" command; true when it has created a mod, whose settings are to be asked for.
bool switchModMode(Workspace& workspace);

} // namespace varrocade
