#pragma once
// Working in a mod with the game's units at hand: showing them, bringing them into the mod and back, and
// changing from one mod to another.

#include "app/workspace/workspace.h"

#include <span>
#include <string>
#include <vector>

namespace varrocade {

/// Shows the game's units that the mod has none of behind the mod's, or the mod's alone.
void showGameUnits(Workspace& workspace, bool isShown);

/// What came of bringing files into the mod, or of taking them out. Paths below the mod's folder.
struct ModWork {
    std::vector<std::string> done;
    std::vector<std::string> left;     ///< that the mod had already, or had not
    std::vector<FileFailure> failures; ///< what went wrong, which stops nothing else
};

/// What of the game a unit or weapon needs besides its own file comes along.
enum class CopyNeeds : bool { No, Yes };

/// Copies the game's files of a category byte for byte into the mod. What the mod has already stays as it is.
ModWork copyIntoMod(Workspace& workspace, Category category, std::span<const std::string> names,
                    CopyNeeds needs);

/// Moves files of the mod to the recycle bin, so that the game's count again. They are kept among the mod's
/// backups.
ModWork removeFromMod(Workspace& workspace, Category category, std::span<const std::string> names);

/// How many folders of mods are remembered.
inline constexpr std::size_t MostOtherMods = 9;

/// Turns mod mode on with the mod of any folder, which ends in a backslash; false, and nothing changes, where
/// it has no "Mod.txt" or the user cancels. Drops the open record as leaving mod mode does, and remembers the
/// folder.
bool openOtherMod(Workspace& workspace, const std::string& folder);

} // namespace varrocade
