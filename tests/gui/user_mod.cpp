#include "user_mod.h"

#include "temp_game.h"
#include "windows_driver.h"

#include <gtest/gtest.h>

#include <shlobj.h>

#include <array>
#include <filesystem>

namespace varrocade::gui {

namespace {

namespace fs = std::filesystem;

std::string profileFolder() {
    std::array<wchar_t, MAX_PATH> path{};
    EXPECT_EQ(SHGetFolderPathW(nullptr, CSIDL_PROFILE, nullptr, SHGFP_TYPE_CURRENT, path.data()), S_OK);
    return toUtf8(path.data());
}

} // namespace

UserMod::UserMod()
    : maker_(profileFolder() + "\\AppData\\Roaming\\Quorlin Games"),
      aside_(maker_ + " (put aside by tests)") {
    // Where something lies aside already, a run was cut off: what is in the way is likely its, but nothing is
    // deleted.
    std::string place = aside_;
    for (int number = 2; fileExists(place); ++number) {
        place = maker_ + " (left by tests " + std::to_string(number) + ")";
    }
    if (fileExists(maker_)) {
        fs::rename(toWide(maker_), toWide(place));
    }
}

UserMod::~UserMod() {
    std::error_code error;
    EXPECT_TRUE(eventually([&] {
        return fs::remove_all(toWide(maker_), error) != static_cast<std::uintmax_t>(-1);
    })) << maker_
        << ": " << error.message();
    if (fileExists(aside_)) {
        fs::rename(toWide(aside_), toWide(maker_), error);
        EXPECT_FALSE(error) << aside_ << ": " << error.message();
    }
}

void UserMod::create() const {
    writeFile(modFolder() + "Mod.txt", "<mod>\r\n\t<name>Test Mod</name>\r\n</mod>\r\n");
}

} // namespace varrocade::gui
