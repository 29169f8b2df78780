#pragma once
// The settings of a mod, as its "Mod.txt" holds them. The file is the modder's own: what the editor does not
// know, comments and layout stay as they are, and saving what was not changed gives its bytes.

#include "mod/mod_text.h"
#include "platform/backups.h"
#include "platform/file_operations.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

inline constexpr std::string_view ModFileName = "Mod.txt";

/// Reads "Mod.txt" in `modFolder`; nothing when there is none.
std::optional<ModSettings> loadModSettings(const std::string& modFolder);

/// Writes "Mod.txt" into `modFolder`. A file that is there is changed in place, and backed up before; where
/// it has gone, `opened` is what it held, so that comments come back.
std::optional<FileFailure> saveModSettings(FileOperations& files, BackupKeeper& backups,
                                           const std::string& modFolder, const ModSettings& settings,
                                           std::string_view opened = {});

/// Settings that were changed in two places since they were `opened`: `wanted` here, `present` elsewhere.
/// What was changed in one place is taken from there; what was changed in both is as wanted, and named in
/// `conflicts`.
ModSettings joinedSettings(const ModSettings& opened, const ModSettings& present, const ModSettings& wanted,
                           std::vector<std::string>& conflicts);

} // namespace varrocade
