#include "platform/file_operations.h"

#include <windows.h>

#include <shellapi.h>

#include <array>
#include <cstdio>
#include <string>

namespace varrocade {

namespace {

/// The path in the system's own characters. A path beyond the classic limit, which backups and temporary
/// files may reach, is given in the form that has no limit.
std::wstring nativePath(const std::string& path) {
    const int count = static_cast<int>(path.size());
    std::wstring wide(path.size(), L'\0');
    wide.resize(
        static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, path.data(), count, wide.data(), count)));
    // A folder needs room for a file of eight and three characters in it.
    constexpr std::size_t longestFolder = MAX_PATH - 13;
    if (wide.size() < longestFolder || wide.starts_with(L"\\\\")) {
        return wide;
    }
    std::wstring full(wide.size() + MAX_PATH, L'\0');
    full.resize(GetFullPathNameW(wide.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
    return L"\\\\?\\" + full;
}

class FileHandle {
public:
    explicit FileHandle(HANDLE handle) : handle_(handle) {}
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;
    ~FileHandle() { close(); }
    [[nodiscard]] bool valid() const { return handle_ != INVALID_HANDLE_VALUE; }
    [[nodiscard]] HANDLE get() const { return handle_; }
    bool close() {
        if (!valid()) {
            return true;
        }
        const bool closed = CloseHandle(handle_) != 0;
        handle_ = INVALID_HANDLE_VALUE;
        return closed;
    }

private:
    HANDLE handle_;
};

class Win32OutputFile : public OutputFile {
public:
    explicit Win32OutputFile(HANDLE handle) : handle_(handle) {}
    std::size_t write(std::string_view bytes) override {
        constexpr std::size_t largest = 1U << 30U;
        DWORD written = 0;
        const auto length = static_cast<DWORD>(bytes.size() < largest ? bytes.size() : largest);
        return WriteFile(handle_.get(), bytes.data(), length, &written, nullptr) != 0 ? written : 0;
    }
    bool flush() override { return FlushFileBuffers(handle_.get()) != 0; }
    bool close() override { return handle_.close(); }

private:
    FileHandle handle_;
};

class Win32Files : public FileOperations {
public:
    bool read(const std::string& path, std::string& content) override { return readWholeFile(path, content); }
    bool exists(const std::string& path) override {
        const DWORD lastReason = GetLastError();
        const bool isThere = GetFileAttributesW(nativePath(path).c_str()) != INVALID_FILE_ATTRIBUTES;
        SetLastError(lastReason);
        return isThere;
    }
    std::unique_ptr<OutputFile> createNew(const std::string& path) override {
        HANDLE handle = CreateFileW(nativePath(path).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
        return handle == INVALID_HANDLE_VALUE ? nullptr : std::make_unique<Win32OutputFile>(handle);
    }
    bool replace(const std::string& from, const std::string& to) override {
        const std::wstring target = nativePath(to);
        // Wine replaces read-only files too.
        const DWORD attributes = GetFileAttributesW(target.c_str());
        if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0) {
            SetLastError(ERROR_ACCESS_DENIED);
            return false;
        }
        return MoveFileExW(nativePath(from).c_str(), target.c_str(),
                           MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
    }
    bool rename(const std::string& from, const std::string& to) override {
        return MoveFileW(nativePath(from).c_str(), nativePath(to).c_str()) != 0;
    }
    bool remove(const std::string& path) override { return DeleteFileW(nativePath(path).c_str()) != 0; }
    bool recycle(const std::string& path) override {
        // The shell takes a list of paths that ends with an empty one.
        std::string paths = path;
        paths += '\0';
        paths += '\0';
        SHFILEOPSTRUCTA operation{};
        operation.wFunc = FO_DELETE;
        operation.pFrom = paths.c_str();
        operation.fFlags = FOF_ALLOWUNDO | FOF_NOCONFIRMATION | FOF_SILENT | FOF_NOERRORUI;
        if (SHFileOperationA(&operation) != 0 || operation.fAnyOperationsAborted != FALSE) {
            return false;
        }
        // Wine's shell reports success for a file that is still there.
        if (GetFileAttributesW(nativePath(path).c_str()) != INVALID_FILE_ATTRIBUTES) {
            SetLastError(ERROR_ACCESS_DENIED);
            return false;
        }
        return true;
    }
    bool createFolder(const std::string& path) override {
        return CreateDirectoryW(nativePath(path).c_str(), nullptr) != 0 ||
               GetLastError() == ERROR_ALREADY_EXISTS;
    }
    std::string lastError() override {
        std::array<char, 512> text{};
        const DWORD length =
            FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                           GetLastError(), 0, text.data(), static_cast<DWORD>(text.size()), nullptr);
        std::string_view reason(text.data(), length);
        while (!reason.empty() && (reason.back() == '\r' || reason.back() == '\n' || reason.back() == ' ')) {
            reason.remove_suffix(1);
        }
        return std::string(reason);
    }
};

} // namespace

FileOperations& systemFiles() {
    static Win32Files files;
    return files;
}

bool readWholeFile(const std::string& path, std::string& content) {
    const FileHandle file(CreateFileW(nativePath(path).c_str(), GENERIC_READ,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                      FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
    LARGE_INTEGER size{};
    if (!file.valid() || GetFileSizeEx(file.get(), &size) == 0) {
        return false;
    }
    content.resize(static_cast<std::size_t>(size.QuadPart));
    std::size_t length = 0;
    while (length < content.size()) {
        constexpr std::size_t largest = 1U << 30U;
        const std::size_t rest = content.size() - length;
        DWORD got = 0;
        if (ReadFile(file.get(), content.data() + length, static_cast<DWORD>(rest < largest ? rest : largest),
                     &got, nullptr) == 0) {
            return false;
        }
        if (got == 0) {
            break;
        }
        length += got;
    }
    content.resize(length);
    return true;
}

bool readFileBeginning(const std::string& path, std::size_t length, std::string& content) {
    const FileHandle file(CreateFileW(nativePath(path).c_str(), GENERIC_READ,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                      FILE_ATTRIBUTE_NORMAL, nullptr));
    content.resize(length);
    DWORD got = 0;
    const bool isRead =
        file.valid() && ReadFile(file.get(), content.data(), static_cast<DWORD>(length), &got, nullptr) != 0;
    content.resize(isRead ? got : 0);
    return isRead;
}

namespace {

/// Calls `take` for every file of a folder that ends so.
template <typename Take>
bool forEachFile(const std::string& folder, std::string_view ending, Take take) {
    WIN32_FIND_DATAA found{};
    HANDLE search = FindFirstFileA((folder + "*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) {
        return false;
    }
    const std::string endingText(ending);
    do {
        const std::string_view name = found.cFileName;
        // The system's own "*.txt" would also match longer endings through the short names of old file
        // systems.
        if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0 && name.size() >= ending.size() &&
            lstrcmpiA(found.cFileName + (name.size() - ending.size()), endingText.c_str()) == 0) {
            take(found);
        }
    } while (FindNextFileA(search, &found) != 0);
    FindClose(search);
    return true;
}

std::uint64_t joined(DWORD high, DWORD low) {
    return (static_cast<std::uint64_t>(high) << 32U) | low;
}

} // namespace

bool listFiles(const std::string& folder, std::string_view ending, std::vector<std::string>& names) {
    names.clear();
    return forEachFile(folder, ending,
                       [&](const WIN32_FIND_DATAA& found) { names.emplace_back(found.cFileName); });
}

/// Folders hold nothing else here: pipes and devices have a place of their own.
bool listRegularFiles(const std::string& folder, std::string_view ending, std::vector<std::string>& names) {
    return listFiles(folder, ending, names);
}

bool listStampedFiles(const std::string& folder, std::string_view ending, std::vector<StampedFile>& files) {
    files.clear();
    return forEachFile(folder, ending, [&](const WIN32_FIND_DATAA& found) {
        const FILETIME& time = found.ftLastWriteTime;
        files.push_back({found.cFileName, joined(found.nFileSizeHigh, found.nFileSizeLow),
                         static_cast<std::int64_t>(joined(time.dwHighDateTime, time.dwLowDateTime))});
    });
}

bool isFolder(const std::string& path) {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

PathStatus statusOf(const std::string& path) {
    const std::wstring native = nativePath(path);
    // Opened without any right, not even to read: a pipe or device is not waited for.
    const FileHandle file(
        CreateFileW(native.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                    OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
    if (!file.valid()) {
        const bool isThere = GetFileAttributesW(native.c_str()) != INVALID_FILE_ATTRIBUTES;
        return {.kind = isThere ? PathKind::Other : PathKind::Missing};
    }
    BY_HANDLE_FILE_INFORMATION status{};
    if (GetFileType(file.get()) != FILE_TYPE_DISK || GetFileInformationByHandle(file.get(), &status) == 0) {
        return {.kind = PathKind::Other};
    }
    const auto has = [&](DWORD attribute) { return (status.dwFileAttributes & attribute) != 0; };
    const PathKind kind = has(FILE_ATTRIBUTE_REPARSE_POINT) ? PathKind::Link
                          : has(FILE_ATTRIBUTE_DIRECTORY)   ? PathKind::Folder
                                                            : PathKind::File;
    return {kind, status.dwVolumeSerialNumber, joined(status.nFileIndexHigh, status.nFileIndexLow),
            status.nNumberOfLinks};
}

std::string timeStamp() {
    SYSTEMTIME now{};
    GetLocalTime(&now);
    std::array<char, 64> text{};
    const int length = std::snprintf(text.data(), text.size(), "%04u-%02u-%02u %02u%02u%02u", now.wYear,
                                     now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond);
    return {text.data(), static_cast<std::size_t>(length > 0 ? length : 0)};
}

} // namespace varrocade
