#pragma once
// Several files that get new contents together, or all keep what they hold.

#include "platform/backups.h"
#include "tools/job.h"

#include <optional>
#include <string>
#include <vector>

namespace varrocade {

struct FileReplacement {
    std::string path;
    std::string before; ///< what the file must hold still
    std::string after;
};

/// Looks at all files and keeps what they hold among the backups, then writes them, a file a step. Where one
/// of them holds something else by now, or fails, those that were written get back what they held.
class FileReplacementJob : public Job {
public:
    /// `base` ends in a backslash and begins all paths.
    FileReplacementJob(FileOperations& files, BackupKeeper& backups, std::string base,
                       std::vector<FileReplacement> replacements);

    bool step() override;
    [[nodiscard]] JobProgress progress() const override;
    /// At most one, for which nothing is written.
    [[nodiscard]] std::vector<FileFailure> failures() const override;

    /// Gives the files that were written what they held, for one that was cancelled.
    void putBack();

private:
    std::optional<FileFailure> keep(const FileReplacement& file);

    FileOperations& files_;
    BackupKeeper& backups_;
    std::string base_;
    std::vector<FileReplacement> replacements_;
    std::size_t kept_ = 0;
    std::size_t written_ = 0;
    std::optional<FileFailure> failure_;
};

/// The same in one go.
std::optional<FileFailure> replaceTogether(FileOperations& files, BackupKeeper& backups,
                                           const std::string& base,
                                           std::vector<FileReplacement> replacements);

} // namespace varrocade
