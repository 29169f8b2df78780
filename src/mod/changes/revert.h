#pragma once
// Taking changes of a mod back to the game's values. Every file is backed up in the mod's folder before.

#include "mod/changes/mod_changes.h"
#include "platform/backups.h"

#include <optional>
#include <string>
#include <string_view>

namespace varrocade {

/// Gives a record the game's value at a path. False where one of the two has no such value, except for the
/// points of availability, whose list goes back as a whole.
bool revertValue(SquadRecord& mod, const SquadRecord& game, std::string_view path);
bool revertValue(WeaponRecord& mod, const WeaponRecord& game, std::string_view path);

struct RevertFolders {
    std::string game;
    std::string mod;
};

/// Writes a mod's file with the game's value at a path. The failure names the file.
std::optional<FileFailure> revertValueInFile(FileOperations& files, BackupKeeper& backups,
                                             const RevertFolders& folders, Category category,
                                             const std::string& name, std::string_view path);

/// Removes a mod's file, so that the game's counts again. Of an added file nothing is left but the backup.
std::optional<FileFailure> revertFile(FileOperations& files, BackupKeeper& backups,
                                      const std::string& modFolder, Category category,
                                      const std::string& name);

} // namespace varrocade
