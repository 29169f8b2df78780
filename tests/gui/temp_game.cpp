#include "temp_game.h"

#include "windows_driver.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace varrocade::gui {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view DataEnding = ".txt";

fs::path pathOf(std::string_view utf8) {
    return toWide(utf8);
}

fs::path sampleFolder() {
    const char* given = std::getenv("VARROCADE_SAMPLE");
    return pathOf(given == nullptr ? "sample" : given);
}

/// The editor may have let go of a file only a moment ago.
void removeFolder(const fs::path& folder) {
    std::error_code error;
    EXPECT_TRUE(eventually([&] { return fs::remove_all(folder, error) != static_cast<std::uintmax_t>(-1); }))
        << toUtf8(folder.wstring()) << ": " << error.message();
}

} // namespace

std::string readFile(const std::string& path) {
    std::ifstream file(pathOf(path), std::ios::binary);
    EXPECT_TRUE(file) << "cannot read " << path;
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void writeFile(const std::string& path, std::string_view content) {
    fs::create_directories(pathOf(path).parent_path());
    std::ofstream file(pathOf(path), std::ios::binary);
    file << content;
    file.close();
    EXPECT_TRUE(file) << "cannot write " << path;
}

bool fileExists(const std::string& path) {
    return fs::exists(pathOf(path));
}

TempGame::TempGame() {
    static int count = 0;
    const std::string name =
        "varrocade-gui-" + std::to_string(GetCurrentProcessId()) + "-" + std::to_string(++count);
    const fs::path folder = fs::temp_directory_path() / name;
    fs::create_directories(folder);
    path_ = toUtf8(folder.wstring()) + "\\";
}

TempGame::~TempGame() {
    removeFolder(pathOf(path_));
}

void TempGame::copyFromSample(std::string_view name) const {
    const fs::path target = pathOf(path_ + std::string(name));
    std::error_code error;
    fs::create_directories(target.parent_path(), error);
    fs::copy(sampleFolder() / pathOf(name), target,
             fs::copy_options::recursive | fs::copy_options::overwrite_existing, error);
    EXPECT_FALSE(error) << "cannot copy " << name << " of the sample: " << error.message();
}

bool TempGame::exists(std::string_view below) const {
    return fileExists(path_ + std::string(below));
}

std::string TempGame::read(std::string_view below) const {
    return readFile(path_ + std::string(below));
}

void TempGame::write(std::string_view below, std::string_view content) const {
    writeFile(path_ + std::string(below), content);
}

void TempGame::remove(std::string_view below) const {
    fs::remove_all(pathOf(path_ + std::string(below)));
}

std::vector<std::string> TempGame::names(std::string_view folder) const {
    std::vector<std::string> found;
    for (const auto& entry : fs::directory_iterator(pathOf(path_ + std::string(folder)))) {
        std::string name = toUtf8(entry.path().filename().wstring());
        if (name.ends_with(DataEnding)) {
            name.resize(name.size() - DataEnding.size());
            found.push_back(std::move(name));
        }
    }
    return found;
}

std::vector<std::string> TempGame::backups(std::string_view file, std::string_view base) const {
    const fs::path wanted = pathOf(path_ + std::string(base) + "Backups\\" + std::string(file));
    const std::wstring stem = wanted.stem().wstring() + L" ";
    std::vector<std::string> contents;
    std::error_code missing;
    for (const auto& entry : fs::directory_iterator(wanted.parent_path(), missing)) {
        if (entry.path().filename().wstring().starts_with(stem)) {
            contents.push_back(readFile(toUtf8(entry.path().wstring())));
        }
    }
    return contents;
}

HeldFile::HeldFile(const std::string& path, Others others)
    : handle_(CreateFileW(toWide(path).c_str(), GENERIC_READ, others == Others::CanRead ? FILE_SHARE_READ : 0,
                          nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr)) {
    EXPECT_NE(handle_, INVALID_HANDLE_VALUE) << "cannot hold " << path;
}

HeldFile::~HeldFile() {
    CloseHandle(handle_);
}

} // namespace varrocade::gui
