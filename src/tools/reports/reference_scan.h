#pragma once
// Who names which file: all units, weapons and the mod's settings gone through once, in steps.

#include "data/game_files.h"
#include "tools/asset_files.h"
#include "tools/job.h"
#include "tools/references.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace varrocade {

/// Somebody who names files.
struct ReferenceUser {
    std::string name;                  ///< "Vehicles: German Panzer VI Tiger Ausf E", "Mod.txt", "the game"
    std::optional<GameFile> file = {}; ///< of a unit or weapon
};

/// A file that is named and not there.
struct MissingFile {
    ReferenceKind kind = ReferenceKind::Picture;
    std::string below = {};              ///< where it should be, below the base folder
    std::vector<std::size_t> users = {}; ///< as places among `ReferenceScan::users`
};

class ReferenceScan {
public:
    /// Looks at the units and weapons that count, of the mod and of the game behind it.
    explicit ReferenceScan(GameFolders folders);
    ReferenceScan(const ReferenceScan&) = delete;
    ReferenceScan& operator=(const ReferenceScan&) = delete;
    ~ReferenceScan() = default;

    /// Lists the folders, or reads a file; false when there is nothing left to do.
    bool step();
    [[nodiscard]] JobProgress progress() const;
    [[nodiscard]] std::vector<FileFailure> failures() const;

    [[nodiscard]] const std::vector<ReferenceUser>& users() const { return users_; }
    /// The places among `users` of those who name a file; null when nobody does.
    [[nodiscard]] const std::vector<std::size_t>* usersOf(const AssetFile& file) const;
    /// Sorted by path.
    [[nodiscard]] std::vector<MissingFile> missing() const;
    AssetFiles& files() { return files_; }

private:
    struct NameHash {
        using is_transparent = void; // NOLINT(readability-identifier-naming): the library asks for this name
        std::size_t operator()(std::string_view name) const { return std::hash<std::string_view>()(name); }
    };
    using ListsByName = std::unordered_map<std::string, std::vector<std::size_t>*, NameHash, std::equal_to<>>;

    void list();
    void read(const GameFile& file, std::string_view content);
    void note(const Reference& reference);
    std::vector<std::size_t>* listOf(const Reference& reference);

    AssetFiles files_;
    GameFileWalk walk_;
    bool isListed_ = false;
    std::vector<FileFailure> failures_;
    std::vector<ReferenceUser> users_;
    ReferenceVisit noteUser_; ///< notes what the last of the users names
    std::unordered_map<const AssetFile*, std::vector<std::size_t>> usages_;
    /// The lists among `usages_` and `missing_` by the folders that a reference is looked for in, and its
    /// name.
    std::map<const ImageSource*, ListsByName> lists_;
    std::map<std::string, MissingFile> missing_; ///< by path in small letters
};

/// The lines of a list of users, each behind a tab.
void appendUsers(std::string& text, const ReferenceScan& scan, const std::vector<std::size_t>& users);

} // namespace varrocade
