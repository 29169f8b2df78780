#pragma once
// The settings of a mod, as its "Mod.txt" holds them.

#include "platform/file_operations.h"
#include "platform/safe_save.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace varrocade {

inline constexpr std::string_view ModFileName = "Mod.txt";

/// A mod's identity and the years that it spans. A new mod begins with the Second World War.
struct ModSettings {
    std::string name = "New Mod";
    std::string author;
    std::string comment;
    std::int32_t firstYear = 1939;
    std::int32_t lastYear = 1945;
    bool operator==(const ModSettings&) const = default;
};

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
