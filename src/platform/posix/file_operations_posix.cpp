#include "platform/file_operations.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace varrocade {

namespace {

std::string nativePath(std::string_view path) {
    std::string native(path);
    std::replace(native.begin(), native.end(), '\\', '/');
    return native;
}

class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (number_ >= 0) {
            ::close(number_);
        }
    }
    [[nodiscard]] int number() const { return number_; }
    int release() {
        const int number = number_;
        number_ = -1;
        return number;
    }

private:
    int number_;
};

class PosixOutputFile : public OutputFile {
public:
    explicit PosixOutputFile(int descriptor) : descriptor_(descriptor) {}
    std::size_t write(std::string_view bytes) override {
        const ssize_t written = ::write(descriptor_.number(), bytes.data(), bytes.size());
        return written > 0 ? static_cast<std::size_t>(written) : 0;
    }
    bool flush() override { return ::fsync(descriptor_.number()) == 0; }
    bool close() override { return ::close(descriptor_.release()) == 0; }

private:
    Descriptor descriptor_;
};

class PosixFiles : public FileOperations {
public:
    bool read(const std::string& path, std::string& content) override { return readWholeFile(path, content); }
    bool exists(const std::string& path) override {
        const int lastReason = errno;
        const bool isThere = ::access(nativePath(path).c_str(), F_OK) == 0;
        errno = lastReason;
        return isThere;
    }
    std::unique_ptr<OutputFile> createNew(const std::string& path) override {
        constexpr int mode = 0666;
        const int descriptor =
            ::open(nativePath(path).c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
        return descriptor < 0 ? nullptr : std::make_unique<PosixOutputFile>(descriptor);
    }
    bool replace(const std::string& from, const std::string& to) override {
        struct stat former {};
        if (::lstat(nativePath(to).c_str(), &former) == 0 && S_ISREG(former.st_mode)) {
            constexpr mode_t permissions = 0777;
            // Who may not give files away keeps this one.
            const int isGiven = ::chown(nativePath(from).c_str(), former.st_uid, former.st_gid);
            static_cast<void>(isGiven);
            if (::chmod(nativePath(from).c_str(), former.st_mode & permissions) != 0) {
                return false;
            }
        }
        return ::rename(nativePath(from).c_str(), nativePath(to).c_str()) == 0;
    }
    bool rename(const std::string& from, const std::string& to) override {
        if (exists(to)) {
            errno = EEXIST;
            return false;
        }
        return ::rename(nativePath(from).c_str(), nativePath(to).c_str()) == 0;
    }
    bool remove(const std::string& path) override { return ::unlink(nativePath(path).c_str()) == 0; }
    bool recycle(const std::string& path) override { return remove(path); }
    bool createFolder(const std::string& path) override {
        constexpr int mode = 0777;
        return ::mkdir(nativePath(path).c_str(), mode) == 0 || errno == EEXIST;
    }
    std::string lastError() override { return std::strerror(errno); }
};

} // namespace

FileOperations& systemFiles() {
    static PosixFiles files;
    return files;
}

bool readWholeFile(const std::string& path, std::string& content) {
    const Descriptor file(::open(nativePath(path).c_str(), O_RDONLY | O_CLOEXEC));
    struct stat status {};
    if (file.number() < 0 || ::fstat(file.number(), &status) != 0) {
        return false;
    }
    if (S_ISDIR(status.st_mode)) {
        errno = EISDIR;
        return false;
    }
    // One byte more than the file is said to hold: a full buffer tells that it grew meanwhile.
    content.resize(static_cast<std::size_t>(status.st_size) + 1);
    std::size_t length = 0;
    while (true) {
        if (length == content.size()) {
            content.resize(2 * length);
        }
        const ssize_t got = ::read(file.number(), content.data() + length, content.size() - length);
        if (got < 0) {
            return false;
        }
        length += static_cast<std::size_t>(got);
        // A regular file that gave less than it was asked for is at its end.
        if (got == 0 || (S_ISREG(status.st_mode) && length < content.size())) {
            break;
        }
    }
    content.resize(length);
    return true;
}

bool readFileBeginning(const std::string& path, std::size_t length, std::string& content) {
    const Descriptor file(::open(nativePath(path).c_str(), O_RDONLY | O_CLOEXEC));
    content.resize(length);
    const ssize_t got = file.number() < 0 ? -1 : ::read(file.number(), content.data(), length);
    content.resize(got > 0 ? static_cast<std::size_t>(got) : 0);
    return got >= 0;
}

namespace {

/// Whether a path leads to a regular file, or nowhere, which is told when it is opened.
bool isRegular(const std::string& path) {
    struct stat status {};
    return ::stat(nativePath(path).c_str(), &status) != 0 || S_ISREG(status.st_mode);
}

/// The entries of a folder that end so and are regular files, or of which `isListed` says so.
template <typename IsListed>
bool listEntries(const std::string& folder, std::string_view ending, std::vector<std::string>& names,
                 IsListed isListed) {
    names.clear();
    const std::unique_ptr<DIR, int (*)(DIR*)> directory(::opendir(nativePath(folder).c_str()), ::closedir);
    if (!directory) {
        return false;
    }
    const std::string endingText(ending);
    while (const dirent* entry = ::readdir(directory.get())) {
        const std::string_view name = entry->d_name;
        if (name.size() >= ending.size() &&
            ::strcasecmp(entry->d_name + (name.size() - ending.size()), endingText.c_str()) == 0 &&
            isListed(name, entry->d_type == DT_REG)) {
            names.emplace_back(name);
        }
    }
    return true;
}

} // namespace

bool listFiles(const std::string& folder, std::string_view ending, std::vector<std::string>& names) {
    return listEntries(folder, ending, names, [&](std::string_view name, bool isFile) {
        return isFile || !isFolder(folder + std::string(name));
    });
}

bool listRegularFiles(const std::string& folder, std::string_view ending, std::vector<std::string>& names) {
    return listEntries(folder, ending, names, [&](std::string_view name, bool isFile) {
        return isPlainName(name) && (isFile || isRegular(folder + std::string(name)));
    });
}

bool listStampedFiles(const std::string& folder, std::string_view ending, std::vector<StampedFile>& files) {
    files.clear();
    std::vector<std::string> names;
    if (!listRegularFiles(folder, ending, names)) {
        return false;
    }
    for (std::string& name : names) {
        struct stat status {};
        if (::stat(nativePath(folder + name).c_str(), &status) == 0) {
            constexpr std::int64_t nanoseconds = 1000000000;
            const std::int64_t changed = status.st_mtim.tv_sec * nanoseconds + status.st_mtim.tv_nsec;
            files.push_back({std::move(name), static_cast<std::uint64_t>(status.st_size), changed});
        }
    }
    return true;
}

bool isFolder(const std::string& path) {
    struct stat status {};
    return ::stat(nativePath(path).c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

PathStatus statusOf(const std::string& path) {
    struct stat status {};
    if (::lstat(nativePath(path).c_str(), &status) != 0) {
        return {};
    }
    const PathKind kind = S_ISREG(status.st_mode)   ? PathKind::File
                          : S_ISDIR(status.st_mode) ? PathKind::Folder
                          : S_ISLNK(status.st_mode) ? PathKind::Link
                                                    : PathKind::Other;
    return {kind, static_cast<std::uint64_t>(status.st_dev), static_cast<std::uint64_t>(status.st_ino),
            static_cast<std::uint64_t>(status.st_nlink)};
}

std::string timeStamp() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    std::array<char, 32> text{};
    const std::size_t length = std::strftime(text.data(), text.size(), "%Y-%m-%d %H%M%S", &local);
    return {text.data(), length};
}

} // namespace varrocade
