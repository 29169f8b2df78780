#pragma once
// The settings of a mod, as its "Mod.txt" holds them.

#include "mod/mod_record.h"
#include "platform/file_operations.h"
#include "platform/safe_save.h"

#include <optional>
#include <string>
#include <string_view>

namespace varrocade {

inline constexpr std::string_view ModFileName = "Mod.txt";

/// Reads the content of a "Mod.txt"; what it does not name keeps its default.
ModSettings readModSettings(std::string_view fileContent);

/// The text of a "Mod.txt", in the tagged syntax of the data files.
std::string modSettingsText(const ModSettings& settings);

/// Reads "Mod.txt" in `modFolder`; the default settings when there is none.
ModSettings loadModSettings(const std::string& modFolder);

/// Writes "Mod.txt" into `modFolder`.
std::optional<FileFailure> saveModSettings(FileOperations& files, const std::string& modFolder,
                                           const ModSettings& settings);

} // namespace varrocade
