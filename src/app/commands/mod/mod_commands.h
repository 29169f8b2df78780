#pragma once
// The commands of the menu "Mod" that work on the mod's files.

namespace varrocade {

/// Shows the game's units behind the mod's, or the mod's alone.
void toggleGameUnits();

/// Whether the selected file is the game's, shown behind the mod's; or the mod's.
bool isGameUnitSelected();
bool isModUnitSelected();

void copySelectedIntoMod();
void removeSelectedFromMod();

/// Asks for the folder of another mod.
void browseForMod();

/// Lists what the mod changes of the game.
void showModChanges();

} // namespace varrocade
