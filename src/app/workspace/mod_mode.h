#pragma once
// Switching between the game's own data and a mod's.

#include "app/workspace/workspace.h"

#include <string>

namespace varrocade {

/// Looks for a mod, first in the user's profile, then below the program; turns mod mode on when a "Mod.txt"
/// is there and off when there is none. Returns whether one was found.
bool detectModMode(Workspace& workspace);

/// Creates the user's mod folder with a new "Mod.txt" and turns mod mode on. False when a folder or the file
/// could not be created, which has been shown.
bool createModFolder(Workspace& workspace);

/// Turns mod mode off.
void leaveModMode(Workspace& workspace);

/// Goes on in the folder of another game as if the program had been started there; `folder` ends in a
/// backslash. False where it has no "Data", which is told, or where the user wants to stay.
bool moveToGame(Workspace& workspace, const std::string& folder);

/// The "Mod Mode" command; true when it has created a mod, whose settings are to be asked for.
bool switchModMode(Workspace& workspace);

/// Whether a folder is that of a mod.
bool hasModFile(const std::string& folder);

/// Turns mod mode on with the mod of a folder.
void enterMod(Workspace& workspace, std::string folder);

} // namespace varrocade
