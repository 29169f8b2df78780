#pragma once
// The data files of a game with the mod in use: one list for a category, and one walk that reads them.

#include "data/category.h"
#include "platform/file_operations.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace varrocade {

/// The base folders that data files are read from, each ending in a separator.
struct GameFolders {
    std::string program;  ///< of the game, where the program was started
    std::string mod = {}; ///< whose files count before the game's; empty without a mod
    bool operator==(const GameFolders&) const = default;
};

struct GameFile {
    Category category = Category::Vehicles;
    bool isOfMod = false;
    std::string name = {}; ///< without ".txt", in the letter case that it has on the disk
    std::string path = {};
    std::uint64_t size = 0;   ///< 0 where no stamps were asked for, as the next
    std::int64_t changed = 0; ///< in the system's own count
    bool operator==(const GameFile&) const = default;
};

/// The files of a category. Two names that differ in the case of letters only are one, as for the game's
/// system, whatever system this is. Both lists are sorted by name, letter case aside.
struct GameFileList {
    std::vector<GameFile> files;  ///< those that count, one a name
    std::vector<GameFile> hidden; ///< the game's, where the mod has a file of that name
    /// Folders that could not be listed. Only the game's must be there.
    std::vector<FileFailure> failures;
};

/// Whether to tell sizes and times, which takes a call of the system for each file on some.
enum class FileStamps : bool { Without, With };

GameFileList listGameFiles(const GameFolders& folders, Category category,
                           FileStamps stamps = FileStamps::Without);

/// How far a walk has come.
struct WalkProgress {
    std::size_t done = 0;
    std::size_t total = 0;
    std::string_view name; ///< of the file that is read or comes next; empty at the end
};

/// Reads files one after the other, in steps between which a window can answer. A walk has one buffer for all
/// contents: threads that share the work take a walk each, over a part of the list.
class GameFileWalk {
public:
    GameFileWalk() = default;
    explicit GameFileWalk(std::vector<GameFile> files) : files_(std::move(files)) {}

    /// Reads the next file and calls `visit(const GameFile&, std::string_view content)`, which gives back
    /// whether to go on, or nothing to go on in any case. A file that cannot be read is not visited, and
    /// stops nothing. False when there is nothing more to do.
    template <typename Visit>
    bool step(Visit&& visit) {
        if (isOver()) {
            return false;
        }
        const GameFile& file = files_[done_];
        if (read(file)) {
            using OfVisit = std::invoke_result_t<Visit&, const GameFile&, std::string_view>;
            if constexpr (std::is_void_v<OfVisit>) {
                visit(file, std::string_view(content_));
            } else {
                isStopped_ = !visit(file, std::string_view(content_));
            }
        }
        ++done_;
        return !isOver();
    }

    /// Steps to the end; false when the visitor stopped the walk before.
    template <typename Visit>
    bool run(Visit&& visit) {
        while (step(visit)) {
        }
        return !isStopped_;
    }

    /// Within a visit, its file is not done yet.
    [[nodiscard]] WalkProgress progress() const;

    /// The files that could not be read so far.
    [[nodiscard]] const std::vector<FileFailure>& failures() const { return failures_; }

private:
    bool read(const GameFile& file);
    [[nodiscard]] bool isOver() const { return isStopped_ || done_ == files_.size(); }

    std::vector<GameFile> files_;
    std::size_t done_ = 0;
    bool isStopped_ = false;
    std::string content_;
    std::vector<FileFailure> failures_;
};

} // namespace varrocade
