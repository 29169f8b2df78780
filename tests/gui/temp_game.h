#pragma once

#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

namespace varrocade::gui {

/// A game folder of the test's own, gone with it. Paths below it are built with backslashes; all texts are
/// UTF-8.
class TempGame {
public:
    /// An empty folder.
    TempGame();
    TempGame(const TempGame&) = delete;
    TempGame& operator=(const TempGame&) = delete;
    ~TempGame();

    /// Copies a file or folder of the sample ("Data\Weapons") here. The sample is `sample` below the working
    /// directory, or where the environment variable VARROCADE_SAMPLE says.
    void copyFromSample(std::string_view name) const;

    /// The folder, with a backslash at its end.
    [[nodiscard]] const std::string& path() const { return path_; }
    [[nodiscard]] bool exists(std::string_view below) const;
    /// The content of a file; fails the test when it cannot be read.
    [[nodiscard]] std::string read(std::string_view below) const;
    /// Writes a file, creating the folders above it.
    void write(std::string_view below, std::string_view content) const;
    void remove(std::string_view below) const;
    /// The files of a folder, without their ".txt", as the system lists them.
    [[nodiscard]] std::vector<std::string> names(std::string_view folder) const;
    /// The contents of the backups of a file ("Data\Vehicles\Name.txt") below a base folder ("" or "Mod\").
    [[nodiscard]] std::vector<std::string> backups(std::string_view file, std::string_view base = "") const;

private:
    std::string path_;
};

std::string readFile(const std::string& path);
void writeFile(const std::string& path, std::string_view content);
bool fileExists(const std::string& path);

/// A file that nobody else can open while this lives, or that others can read only.
class HeldFile {
public:
    enum class Others { CannotOpen, CanRead };

    HeldFile(const std::string& path, Others others);
    HeldFile(const HeldFile&) = delete;
    HeldFile& operator=(const HeldFile&) = delete;
    ~HeldFile();

private:
    HANDLE handle_;
};

} // namespace varrocade::gui
