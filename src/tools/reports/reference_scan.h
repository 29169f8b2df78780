#pragma once
// Who names which file: all units, weapons and the mod's settings gone through once, in steps or by several
// threads.

#include "data/game_files.h"
#include "tools/asset_files.h"
#include "tools/job.h"
#include "tools/reports/reference_notes.h"

#include <deque>
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

    /// Lists the folders, reads a file, or looks for some of what files name; false when there is nothing
    /// left to do.
    bool step();
    /// All of it in one go, by as many threads; see `Job::run`.
    void run(unsigned threads);
    [[nodiscard]] JobProgress progress() const;
    [[nodiscard]] std::vector<FileFailure> failures() const;

    [[nodiscard]] const std::vector<ReferenceUser>& users() const { return users_; }
    /// The places among `users` of those who name a file; null when nobody does.
    [[nodiscard]] const std::vector<std::size_t>* usersOf(const AssetFile& file) const;
    /// Sorted by path.
    [[nodiscard]] std::vector<MissingFile> missing() const;
    AssetFiles& files() { return files_; }

private:
    void list();
    void sortNamed();
    void settle(NamedFile& named);
    std::vector<std::size_t>* listOf(const Reference& reference);

    AssetFiles files_;
    GameFileWalk walk_;
    std::vector<GameFile> toRead_; ///< until the walk has them
    bool isListed_ = false;
    std::vector<FileFailure> failures_;
    std::vector<ReferenceUser> users_; ///< the files in the order in which they are read
    std::size_t firstFile_ = 0;        ///< among the users
    std::size_t readInThreads_ = 0;    ///< how many files, which the walk knows nothing of
    /// One a thread; the first one has those of the game and the mod, too.
    std::deque<ReferenceNotes> notes_ = std::deque<ReferenceNotes>(1);
    std::vector<NamedFile*> named_; ///< what all notes name, as one user after the other came to it
    std::size_t settled_ = 0;       ///< how many of them were looked for
    std::unordered_map<const AssetFile*, std::vector<std::size_t>> usages_;
    std::map<std::string, MissingFile> missing_; ///< by path in small letters
};

/// The lines of a list of users, each behind a tab.
void appendUsers(std::string& text, const ReferenceScan& scan, const std::vector<std::size_t>& users);

} // namespace varrocade
