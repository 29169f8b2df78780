#pragma once
// Saving that never loses the old file: the new content goes to a temporary file beside the target, is
// flushed to the device and closed, and only then takes the target's place in one step.

#include "platform/file_operations.h"

#include <cstddef>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace varrocade {

/// Replaces the file `path` by `content`. Every step is checked; on failure the old file is whole, the
/// temporary file is gone, and the failure names `path`.
std::optional<FileFailure> saveFile(FileOperations& files, const std::string& path, std::string_view content);

/// Keeps the former content of each file that is about to be replaced for the first time in a run, as
/// `Backups\<path below the base folder> <time stamp>` under the base folder.
class BackupKeeper {
public:
    /// Copies `path` to its backup unless that was done before in this run or the file does not exist.
    /// `base` ends in a backslash and begins `path`.
    std::optional<FileFailure> keep(FileOperations& files, const std::string& base, const std::string& path);

    /// Whether the former content of `path` was kept in this run already.
    [[nodiscard]] bool hasKept(const std::string& path) const { return kept_.contains(path); }

    /// Writes a content that never reached `path` beside its backups, marked as unsaved.
    std::optional<FileFailure> keepUnsaved(FileOperations& files, const std::string& base,
                                           const std::string& path, std::string_view content);

private:
    std::set<std::string, std::less<>> kept_;
};

/// Creates every folder of `path` (which ends in a backslash) that does not exist yet.
/// On failure the folder that could not be created.
std::optional<FileFailure> createFolders(FileOperations& files, const std::string& path);

/// The longest path that the game opens; backups and temporary files may be longer.
inline constexpr std::size_t MaxDataPathLength = 259;

/// Backs up, then saves: what every writer of the editor's data files goes through.
std::optional<FileFailure> replaceDataFile(FileOperations& files, BackupKeeper& backups,
                                           const std::string& base, const std::string& path,
                                           std::string_view content);

} // namespace varrocade
