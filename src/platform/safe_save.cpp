#include "platform/safe_save.h"

#include <memory>
#include <string>

namespace varrocade {

namespace {

constexpr std::string_view TemporaryEnding = ".saving";
constexpr std::string_view BackupFolder = "Backups\\";
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
};

/// A file beside the target. A leftover of a run that was cut off is stepped over, never overwritten.
TemporaryFile createTemporary(FileOperations& files, const std::string& target) {
    for (int attempt = 0; attempt < MaxNameAttempts; ++attempt) {
        std::string path = target + std::string(TemporaryEnding);
        if (attempt > 0) {
            path += std::to_string(attempt);
        }
        if (auto file = files.createNew(path)) {
            return {path, std::move(file)};
        }
        if (!files.exists(path)) {
            break;
        }
    }
    return {};
}

std::string withoutEndingBackslash(std::string_view path) {
    if (path.ends_with('\\')) {
        path.remove_suffix(1);
    }
    return std::string(path);
}

/// Where the backup of `path` goes: its path below the base folder, with a mark and the time in its name.
std::string backupPath(FileOperations& files, const std::string& base, std::string_view path,
                       std::string_view mark) {
    const std::string_view below = path.starts_with(base) ? path.substr(base.size()) : path;
    const std::size_t name = below.rfind('\\') + 1;
    const std::size_t dot = below.find('.', name);
    const std::string stem = base + std::string(BackupFolder) + std::string(below.substr(0, dot)) +
                             std::string(mark) + " " + timeStamp();
    const std::string ending(dot == std::string_view::npos ? std::string_view() : below.substr(dot));
    std::string backup = stem + ending;
    for (int attempt = 2; files.exists(backup) && attempt < MaxNameAttempts; ++attempt) {
        backup = stem + " " + std::to_string(attempt) + ending;
    }
    return backup;
}

std::optional<FileFailure> writeBackup(FileOperations& files, const std::string& base,
                                       const std::string& path, std::string_view mark,
                                       std::string_view content) {
    const std::string backup = backupPath(files, base, path, mark);
    if (auto failure = createFolders(files, backup.substr(0, backup.rfind('\\') + 1))) {
        return failure;
    }
    return saveFile(files, backup, content);
}

} // namespace

std::optional<FileFailure> saveFile(FileOperations& files, const std::string& path,
                                    std::string_view content) {
    TemporaryFile temporary = createTemporary(files, path);
    if (!temporary.file) {
        return FileFailure{path, files.lastError()};
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

std::optional<FileFailure> BackupKeeper::keep(FileOperations& files, const std::string& base,
                                              const std::string& path) {
    if (kept_.contains(path) || !files.exists(path)) {
        return std::nullopt;
    }
    std::string content;
    if (!files.read(path, content)) {
        return FileFailure{path, files.lastError()};
    }
    if (auto failure = writeBackup(files, base, path, "", content)) {
        return failure;
    }
    kept_.insert(path);
    return std::nullopt;
}

std::optional<FileFailure> BackupKeeper::keepUnsaved(FileOperations& files, const std::string& base,
                                                     const std::string& path, std::string_view content) {
    return writeBackup(files, base, path, " (unsaved)", content);
}

std::optional<FileFailure> replaceDataFile(FileOperations& files, BackupKeeper& backups,
                                           const std::string& base, const std::string& path,
                                           std::string_view content) {
    if (path.size() > MaxDataPathLength) {
        return FileFailure{path, "the path is longer than the game can open"};
    }
    const std::string folder = withoutEndingBackslash(std::string_view(path).substr(0, path.rfind('\\') + 1));
    if (!folder.empty()) {
        if (auto failure = createFolders(files, folder + "\\")) {
            return FileFailure{path, failure->reason};
        }
    }
    if (auto failure = backups.keep(files, base, path)) {
        return FileFailure{path, "the former content could not be kept as " + failure->path + ": " +
                                     failure->reason};
    }
    return saveFile(files, path, content);
}

} // namespace varrocade
