#pragma once
// What files held before they were replaced, deleted or renamed away: dated copies in the folder Backups.

#include "platform/file_operations.h"

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace varrocade {

inline constexpr std::string_view BackupFolder = "Backups\\";

/// Keeps contents as `Backups\<path below the base folder> <time stamp>` under the base folder. Of each file
/// the newest copies stay, and the oldest, which is what the user began with.
class BackupKeeper {
public:
    /// The newest copies that are kept of a file, besides the oldest.
    static constexpr std::size_t MostNewest = 20;

    /// Copies `path` to a backup unless the newest backup holds the same, or the file does not exist. `base`
    /// ends in a backslash and begins `path`.
    std::optional<FileFailure> keep(FileOperations& files, const std::string& base, const std::string& path);

    /// Keeps a content that is to go from elsewhere, as if it were that of `path`.
    std::optional<FileFailure> keepContent(FileOperations& files, const std::string& base,
                                           const std::string& path, const std::string& content);

private:
    struct Backup {
        std::string path;
        std::string content;
    };
    /// The newest backup of each file, as far as it was written in this run.
    std::map<std::string, Backup, std::less<>> newest_;
};

/// The longest path that the game opens; backups and temporary files may be longer.
inline constexpr std::size_t MaxDataPathLength = 259;

/// Backs up, then saves: what every writer of the editor's data files goes through.
std::optional<FileFailure> replaceDataFile(FileOperations& files, BackupKeeper& backups,
                                           const std::string& base, const std::string& path,
                                           std::string_view content);

} // namespace varrocade
