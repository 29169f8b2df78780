#pragma once
// Reading unit files of all four kinds, in today's form and in the older ones.

#include "data/category.h"
#include "data/finding.h"
#include "data/unit/unit_record.h"
#include "platform/file_operations.h"

#include <optional>
#include <string>
#include <string_view>

namespace varrocade {

/// Reads the content of a unit file. Nothing is refused: unknown elements are left out, absent ones leave
/// their defaults. `fileName` is the name to give the record, without folder and ".txt"; the findings call
/// the file so too.
SquadRecord readUnit(std::string_view fileContent, std::string_view fileName, Diagnostics& diagnostics);

/// Reads the unit file at `path`; nothing when it cannot be opened.
std::optional<SquadRecord> readUnitFile(const std::string& path, std::string_view fileName,
                                        Diagnostics& diagnostics);

/// What came of loading a unit.
struct LoadedUnit {
    std::optional<SquadRecord> record; ///< nothing when the file could not be read
    FileFailure failure;               ///< why not
    std::string content;               ///< the file's bytes
    Diagnostics diagnostics;
};

/// Loads a unit of a category below `base`.
LoadedUnit loadUnit(FileOperations& files, std::string_view base, Category category,
                    std::string_view fileName);

} // namespace varrocade
