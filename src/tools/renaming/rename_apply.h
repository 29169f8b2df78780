#pragma once
// Changing several files as one: all of them, or none.

#include "platform/backups.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace varrocade {

/// A file that gets another content, another name, or both.
struct FileRewrite {
    std::string path;
    std::string newPath;       ///< the same for a file that keeps its name
    bool keepsContent = false; ///< as pictures and sounds, whose bytes are not looked at
    std::string before = {};   ///< what the file holds
    std::string after = {};
    bool operator==(const FileRewrite&) const = default;
};

/// Writes all of them, each after a copy of it went to the backups. Where a file is not what it should be, or
/// a write fails, everything is put back; the failure names the file, and those that could not be put back.
/// `base` ends in a separator and begins all paths.
std::optional<FileFailure> applyRewrites(FileOperations& files, BackupKeeper& backups,
                                         const std::string& base, std::span<const FileRewrite> rewrites);

/// What takes rewrites back, in the other order.
std::vector<FileRewrite> reversed(std::span<const FileRewrite> rewrites);

} // namespace varrocade
