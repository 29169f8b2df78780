#pragma once
// Working in a mod with the game's units at hand: showing them, bringing them into the mod and back, and
// changing from one mod to another.

#include "app/workspace/workspace.h"

#include <span>
#include <string>
#include <vector>

namespace varrocade {

/// Shows the game's units that the mod has none of behind the mod's, or the mod's alone. Remembered.
void showGameUnits(Workspace& workspace, bool isShown);

/// The files of a category that can be copied into the mod: the game's that it has none of.
std::vector<std::string> namesToCopy(const Workspace& workspace, Category category);
/// Those that can be taken out of it.
std::vector<std::string> namesToRemove(const Workspace& workspace, Category category);

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

/// Turns mod mode on with the mod of any folder, which ends in a backslash; false, and nothing changes, where
/// it has no "Mod.txt" or the user cancels. Drops the open record as leaving mod mode does, and remembers the
/// folder from run to run.
bool openOtherMod(Workspace& workspace, const std::string& folder);

/// Remembers the folder of a mod no longer.
void forgetMod(Workspace& workspace, const std::string& folder);

} // namespace varrocade
