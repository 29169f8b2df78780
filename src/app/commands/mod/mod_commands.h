#pragma once
// The commands of the menu "Mod" that work on the mod's files.

#include <windows.h>

#include <cstddef>

namespace varrocade {

/// Shows the game's units behind the mod's, or the mod's alone.
void toggleGameUnits();

/// Ask for files, any number at once, and bring them into the mod or take them out.
void copyFilesIntoMod();
void removeFilesFromMod();

/// Asks for the folder of another mod.
void browseForMod();

/// Works on a mod that was opened before; one that is gone is told of and forgotten.
void openRecentMod(std::size_t place);

/// Fills the menu of these.
void listRecentMods(HMENU menu);

/// Lists what the mod changes of the game.
void showModChanges();

} // namespace varrocade
