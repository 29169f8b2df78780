#pragma once
// Reading and writing weapon files.

#include "data/finding.h"
#include "data/format/tag_tree.h"
#include "data/unit/unit_writers.h"
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

/// Loads a weapon below `base` for the window, with the boxes for a file that cannot be opened and for an
/// unknown weapon type.
std::optional<WeaponRecord> loadWeapon(std::string_view base, std::string_view fileName);

/// The text of a weapon's file.
std::string weaponFileText(const WeaponRecord& weapon);

/// Writes a weapon to `fileName` below `base`, as `saveUnit` writes units.
SaveResult saveWeapon(FileOperations& files, BackupKeeper& backups, const std::string& base,
                      std::string_view fileName, const WeaponRecord& weapon);

} // namespace varrocade
