#pragma once
// What a mod changes of the game: the files that it adds, changes and takes out, value by value.

#include "data/category.h"
#include "data/unit/unit_record.h"
#include "platform/file_operations.h"
#include "weapons/weapon_record.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// A value of a file that differs. A value that one of the two does not have is of an entry that it does not
/// have, such as a second turret.
struct ValueChange {
    std::string path;                ///< such as "vehicle.turret[1].armour.mantlet"
    std::string_view label;          ///< of the field
    std::string_view unit;           ///< behind numbers, such as "mm"
    std::optional<std::string> game; ///< as people compare it
    std::optional<std::string> mod;
    bool operator==(const ValueChange&) const = default;
};

enum class FileChangeKind : std::uint8_t {
    Added,   ///< the game has no such file
    Changed, ///< the game has one, too
    Removed  ///< the mod's file holds nothing and hides the game's
};

struct FileChange {
    FileChangeKind kind = FileChangeKind::Changed;
    Category category = Category::Vehicles;
    std::string name; ///< as the mod writes it
    /// Of a changed file. Empty where the file differs in comments, layout and order alone.
    std::vector<ValueChange> values;
    bool operator==(const FileChange&) const = default;
};

struct ModChanges {
    std::vector<FileChange> files;     ///< by category, then by name
    std::vector<std::string> same;     ///< paths of the mod's files that are the game's byte for byte
    std::vector<FileFailure> failures; ///< what could not be listed or read
};

/// The stored values that differ, in the order of the mod's record; those that only the game has behind.
std::vector<ValueChange> changedValues(const SquadRecord& game, const SquadRecord& mod);
std::vector<ValueChange> changedValues(const WeaponRecord& game, const WeaponRecord& mod);

/// Compares what two files of a category hold.
FileChange compareFiles(Category category, const std::string& name, std::string_view game,
                        std::string_view mod);

/// Compares all files of a mod with the game's. Both folders end in a separator.
ModChanges findModChanges(const std::string& gameFolder, const std::string& modFolder);

} // namespace varrocade
