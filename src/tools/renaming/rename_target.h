#pragma once
// The files that a new name is for: which they are, and whether they may have it.

#include "tools/asset_files.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

enum class RenameKind : std::uint8_t { Weapon, Picture, Sound, Unit };

/// What a kind is called, on the command line as elsewhere: "weapon".
std::string_view renameWord(RenameKind kind);
std::optional<RenameKind> renameKindOf(std::string_view word);

struct RenameRequest {
    GameFolders folders;
    RenameKind kind = RenameKind::Weapon;
    /// The present name, with or without the ending. A folder before it ("Hulls\Tiger", "Vehicles\German
    /// Tiger") tells which one is meant of files in several folders; pictures are all meant without it.
    std::string from;
    std::string to; ///< without folder
};

/// A file that gets the new name.
struct RenameTarget {
    std::string folder; ///< below the base, such as "Data\Weapons\"
    std::string path;
    std::string newPath;
};

struct RenameTargets {
    std::string from; ///< without folder and ending, in the letter case of the first file
    std::string to;
    std::string ending;
    bool isOneOfSeveral = false; ///< a folder was named
    std::vector<RenameTarget> files;
    std::vector<std::string> refusals;
};

/// Finds the files in the folder that is worked on, which is the mod's where one is in use.
RenameTargets findRenameTargets(const RenameRequest& request, AssetFiles& assets);

} // namespace varrocade
