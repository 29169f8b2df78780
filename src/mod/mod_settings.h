#pragma once
// The settings of a mod, as its "Mod.txt" holds them. The file is the modder's own: what the editor does not
// know, comments and layout stay as they are, and saving what was not changed gives its bytes.

#include "mod/mod_text.h"
#include "platform/backups.h"
#include "platform/file_operations.h"

#include <optional>
#include <string>
#include <string_view>

namespace varrocade {

inline constexpr std::string_view ModFileName = "Mod.txt";

/// Reads "Mod.txt" in `modFolder`; nothing when there is none.
std::optional<ModSettings> loadModSettings(const std::string& modFolder);

/// Writes "Mod.txt" into `modFolder`. A file that is there is changed in place, and backed up before.
std::optional<FileFailure> saveModSettings(FileOperations& files, BackupKeeper& backups,
                                           const std::string& modFolder, const ModSettings& settings);

} // namespace varrocade
