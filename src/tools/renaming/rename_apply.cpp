#include "tools/renaming/rename_apply.h"

#include "data/format/texts.h"
#include "platform/safe_save.h"
#include "tools/renaming/rename_file.h"

#include <algorithm>
#include <utility>

namespace varrocade {

namespace {

/// Why a file cannot be changed as planned; empty where it can.
std::string reasonAgainst(FileOperations& files, const FileRewrite& rewrite) {
    if (rewrite.keepsContent) {
        if (!files.exists(rewrite.path)) {
            return "it is not there any more";
        }
    } else {
        std::string content;
        if (!files.read(rewrite.path, content)) {
            return files.lastError();
        }
        if (content != rewrite.before) {
            return "another program has changed it";
        }
    }
    // Another case of the same letters may be the same file to the system.
    const bool isInTheWay =
        !equalsIgnoringCase(rewrite.path, rewrite.newPath) && files.exists(rewrite.newPath);
    return isInTheWay ? "there is a file " + rewrite.newPath : std::string();
}

std::optional<FileFailure> write(FileOperations& files, const FileRewrite& rewrite) {
    if (!rewrite.keepsContent && rewrite.after != rewrite.before) {
        if (auto failure = saveFile(files, rewrite.path, rewrite.after)) {
            return failure;
        }
    }
    if (rewrite.path == rewrite.newPath) {
        return std::nullopt;
    }
    std::string reason = renameFileOnDisk(files, rewrite.path, rewrite.newPath);
    return reason.empty() ? std::nullopt : std::optional(FileFailure{rewrite.path, std::move(reason)});
}

/// Puts one back of which the last step may not have been done.
std::optional<FileFailure> putBack(FileOperations& files, const FileRewrite& rewrite) {
    const bool isSameButForCase = equalsIgnoringCase(rewrite.path, rewrite.newPath);
    if (rewrite.path != rewrite.newPath && files.exists(rewrite.newPath) &&
        (isSameButForCase || !files.exists(rewrite.path))) {
        renameFileOnDisk(files, rewrite.newPath, rewrite.path);
    }
    if (rewrite.keepsContent) {
        return files.exists(rewrite.path) ? std::nullopt
                                          : std::optional(FileFailure{rewrite.path, files.lastError()});
    }
    std::string content;
    if (files.read(rewrite.path, content) && content == rewrite.before) {
        return std::nullopt;
    }
    return saveFile(files, rewrite.path, rewrite.before);
}

} // namespace

std::optional<FileFailure> applyRewrites(FileOperations& files, BackupKeeper& backups,
                                         const std::string& base, std::span<const FileRewrite> rewrites) {
    for (const FileRewrite& rewrite : rewrites) {
        if (std::string reason = reasonAgainst(files, rewrite); !reason.empty()) {
            return FileFailure{rewrite.path, std::move(reason)};
        }
    }
    for (const FileRewrite& rewrite : rewrites) {
        if (auto failure = backups.keep(files, base, rewrite.path)) {
            return FileFailure{rewrite.path,
                               "it could not be kept as " + failure->path + ": " + failure->reason};
        }
    }
    for (std::size_t i = 0; i < rewrites.size(); ++i) {
        auto failure = write(files, rewrites[i]);
        if (!failure) {
            continue;
        }
        std::string left;
        for (std::size_t j = i + 1; j-- > 0;) {
            if (putBack(files, rewrites[j])) {
                left += "\n    " + rewrites[j].path;
            }
        }
        if (!left.empty()) {
            failure->reason +=
                "\n\nCould not be put back (the former content is in the folder Backups):" + left;
        }
        return failure;
    }
    return std::nullopt;
}

std::vector<FileRewrite> reversed(std::span<const FileRewrite> rewrites) {
    std::vector<FileRewrite> result;
    for (const FileRewrite& rewrite : rewrites) {
        result.push_back({.path = rewrite.newPath,
                          .newPath = rewrite.path,
                          .keepsContent = rewrite.keepsContent,
                          .before = rewrite.after,
                          .after = rewrite.before});
    }
    std::reverse(result.begin(), result.end());
    return result;
}

} // namespace varrocade
