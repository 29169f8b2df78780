#include "platform/safe_save.h"

#include <memory>
#include <string>
#include <utility>

namespace varrocade {

namespace {

constexpr int MaxNameAttempts = 100;

/// Writes, flushes and closes; a short write is continued where it stopped.
bool writeAll(OutputFile& file, std::string_view content) {
    while (!content.empty()) {
        const std::size_t written = file.write(content);
        if (written == 0 || written > content.size()) {
            return false;
        }
        content.remove_prefix(written);
    }
    return file.flush() && file.close();
}

struct TemporaryFile {
    std::string path;
    std::unique_ptr<OutputFile> file;
    std::string reason; ///< why there is none
};

/// A file beside the target. A leftover of a run that was cut off is stepped over, never overwritten.
TemporaryFile createTemporary(FileOperations& files, const std::string& target) {
    for (int attempt = 0; attempt < MaxNameAttempts; ++attempt) {
        std::string path = target + std::string(TemporaryEnding);
        if (attempt > 0) {
            path += std::to_string(attempt);
        }
        if (auto file = files.createNew(path)) {
            return {path, std::move(file), {}};
        }
        // Looking whether the name is taken would replace the reason by its own.
        std::string reason = files.lastError();
        if (!files.exists(path)) {
            return {{}, nullptr, std::move(reason)};
        }
    }
    return {{}, nullptr, "there are too many unfinished files of that name"};
}

} // namespace

std::optional<FileFailure> saveFile(FileOperations& files, const std::string& path,
                                    std::string_view content) {
    TemporaryFile temporary = createTemporary(files, path);
    if (!temporary.file) {
        return FileFailure{path, std::move(temporary.reason)};
    }
    const bool written = writeAll(*temporary.file, content);
    std::string reason = written ? std::string() : files.lastError();
    temporary.file.reset();
    if (written && files.replace(temporary.path, path)) {
        return std::nullopt;
    }
    if (written) {
        reason = files.lastError();
    }
    files.remove(temporary.path);
    return FileFailure{path, reason};
}

std::optional<FileFailure> createFolders(FileOperations& files, const std::string& path) {
    constexpr std::string_view separators = "\\/";
    for (std::size_t end = path.find_first_of(separators); end != std::string::npos;
         end = path.find_first_of(separators, end + 1)) {
        const std::string folder = path.substr(0, end);
        const bool isRoot = folder.empty() || folder.ends_with(':');
        if (!isRoot && !files.exists(folder) && !files.createFolder(folder)) {
            return FileFailure{folder, files.lastError()};
        }
    }
    return std::nullopt;
}

} // namespace varrocade
