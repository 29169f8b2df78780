#pragma once
// The seam to the operating system's files. Paths are built with backslashes everywhere; an implementation
// maps them where the system separates otherwise.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// What failed, on which path (as the caller built it), and the system's own reason.
struct FileFailure {
    std::string path;
    std::string reason;
};

/// A file opened for writing. Every call returns whether it succeeded; the destructor closes without a
/// report.
class OutputFile {
public:
    OutputFile() = default;
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;
    virtual ~OutputFile() = default;

    /// Writes at most `bytes.size()` bytes; returns how many went out, 0 on failure.
    virtual std::size_t write(std::string_view bytes) = 0;
    /// Hands everything written to the device.
    virtual bool flush() = 0;
    virtual bool close() = 0;
};

/// The operations on files that saving is made of. Tests put their own in between to make each step fail.
class FileOperations {
public:
    FileOperations() = default;
    FileOperations(const FileOperations&) = delete;
    FileOperations& operator=(const FileOperations&) = delete;
    virtual ~FileOperations() = default;

    /// The whole content of a file into `content`; false when it cannot be opened or read.
    virtual bool read(const std::string& path, std::string& content) = 0;
    /// Leaves the reason of the last failure as it is.
    virtual bool exists(const std::string& path) = 0;
    /// Creates a new file that nobody else may write; fails when it exists. Null on failure.
    virtual std::unique_ptr<OutputFile> createNew(const std::string& path) = 0;
    /// Puts `from` in the place of `to` in one step; `to` need not exist. What the system lets others do with
    /// `to` stays as it was.
    virtual bool replace(const std::string& from, const std::string& to) = 0;
    /// Gives a file another name; fails where another file has it. The same letters in another case are a
    /// fair new name.
    virtual bool rename(const std::string& from, const std::string& to) = 0;
    virtual bool remove(const std::string& path) = 0;
    /// Moves a file to the recycle bin; removes it where the system has none.
    virtual bool recycle(const std::string& path) = 0;
    /// Creates one folder; an existing one is no failure.
    virtual bool createFolder(const std::string& path) = 0;
    /// The reason of the last failure, in the system's words.
    virtual std::string lastError() = 0;
};

/// The real files.
FileOperations& systemFiles();

/// Reads a whole file; false when it cannot be opened or read. `content` keeps its capacity, so that a loop
/// over many files allocates once.
bool readWholeFile(const std::string& path, std::string& content);

/// At most the first `length` bytes of a file.
bool readFileBeginning(const std::string& path, std::size_t length, std::string& content);

/// The names of the files in `folder` (ending in a backslash) that end in `ending` (letter case ignored, as
/// in
/// "*.txt"), in the order in which the system lists them. False when the folder cannot be listed.
bool listFiles(const std::string& folder, std::string_view ending, std::vector<std::string>& names);

/// The same of regular files only, links to such included, that can be reached by their names: opening a pipe
/// would wait for its other end.
bool listRegularFiles(const std::string& folder, std::string_view ending, std::vector<std::string>& names);

/// A file of a folder with what tells whether it has changed.
struct StampedFile {
    std::string name;
    std::uint64_t size = 0;
    std::int64_t changed = 0; ///< in the system's own count
    bool operator==(const StampedFile&) const = default;
};

/// Regular files with their sizes and times.
bool listStampedFiles(const std::string& folder, std::string_view ending, std::vector<StampedFile>& files);

/// Whether `path` names a folder.
bool isFolder(const std::string& path);

enum class PathKind : std::uint8_t {
    Missing,
    File, ///< a regular one
    Folder,
    Link, ///< stands for another path, whatever there is
    Other ///< a device, a pipe, a socket
};

/// What stands at a path, and which it is: two paths of the same volume and number lead to one file.
struct PathStatus {
    PathKind kind = PathKind::Missing;
    std::uint64_t volume = 0;
    std::uint64_t number = 0;
    std::uint64_t names = 0; ///< how many names of one file lead here
    [[nodiscard]] bool isSameAs(const PathStatus& other) const {
        return kind != PathKind::Missing && kind == other.kind && volume == other.volume &&
               number == other.number;
    }
};

/// Looks at the path itself: a link at its end is not followed, unless a separator stands behind it.
PathStatus statusOf(const std::string& path);

/// Whether a folder's entry can be reached by its name. Some systems let names hold the separator of paths.
inline bool isPlainName(std::string_view name) {
    return name.find_first_of("\\/") == std::string_view::npos;
}

/// The present local time as "2026-11-21 090533", to name backups.
std::string timeStamp();

} // namespace varrocade
