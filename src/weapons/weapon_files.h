#pragma once
// Reading and writing weapon files.

#include "data/finding.h"
#include "data/format/tag_tree.h"
#include "data/writing/unit_writers.h"
#include "weapons/weapon_record.h"

#include <optional>
#include <string>
#include <string_view>

namespace varrocade {

/// Reads the content of a weapon file. `fileName` is without folder and ".txt"; the findings call the file so
/// too.
WeaponRecord readWeapon(std::string_view fileContent, std::string_view fileName, Diagnostics& diagnostics);

/// The same with a tree of the caller's, whose memory a loop over many files uses again.
WeaponRecord readWeapon(TagTree& tree, std::string_view fileContent, std::string_view fileName,
                        Diagnostics& diagnostics);

/// Reads the weapon file at `path`; nothing when it cannot be opened.
std::optional<WeaponRecord> readWeaponFile(const std::string& path, std::string_view fileName,
                                           Diagnostics& diagnostics);

/// What came of loading a weapon.
struct LoadedWeapon {
    std::optional<WeaponRecord> record; ///< nothing when the file could not be read
    FileFailure failure;                ///< why not
    std::string content;                ///< the file's bytes
    Diagnostics diagnostics;
};

/// Loads a weapon below `base`.
LoadedWeapon loadWeapon(FileOperations& files, std::string_view base, std::string_view fileName);

/// The text of a weapon's file.
std::string weaponFileText(const WeaponRecord& weapon);

/// Writes a weapon to `fileName` below `base`, as `saveUnit` writes units.
SaveOutcome saveWeapon(FileOperations& files, BackupKeeper& backups, const std::string& base,
                       std::string_view fileName, const WeaponRecord& weapon);

} // namespace varrocade
