// The list of a category's files, the mod's before the game's, and the walk that reads them.

#include "data/game_files.h"
#include "test_support.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <system_error>

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace varrocade::tests {
namespace {

using Texts = std::vector<std::string>;

/// A game and a mod with the files of these names below them; what a file holds is its own path.
class GameFilesTest : public ::testing::Test {
protected:
    void write(const std::string& below) { folder.write(below, below); }
    [[nodiscard]] GameFolders folders() const { return {folder.path() + "Game\\", folder.path() + "Mod\\"}; }

    /// "Mod: tank", for each file.
    static Texts described(const std::vector<GameFile>& files) {
        Texts texts;
        for (const GameFile& file : files) {
            texts.push_back((file.isOfMod ? "Mod: " : "Game: ") + file.name);
        }
        return texts;
    }

    TemporaryFolder folder;
};

struct ListCase {
    const char* description;
    Texts written; ///< below the vehicles of either base
    Texts files;
    Texts hidden;
};

TEST_F(GameFilesTest, TheModsCountsWhateverTheCaseOfLetters) {
    const std::vector<ListCase> cases = {
        {"one name in another case and another ending",
         {"Game\\Tank.txt", "Mod\\tANK.TXT"},
         {"Mod: tANK"},
         {"Game: Tank"}},
        {"sorted for people, not by bytes or by where they come from",
         {"Game\\b.txt", "Game\\C 2.txt", "Mod\\C.txt", "Mod\\a.txt", "Game\\_.txt"},
         {"Game: _", "Mod: a", "Game: b", "Mod: C", "Game: C 2"},
         {}},
        {"a beginning is no equal name",
         {"Game\\Tank 2.txt", "Mod\\Tank.txt", "Game\\tan.txt"},
         {"Game: tan", "Mod: Tank", "Game: Tank 2"},
         {}},
        {"no other files and no folders",
         {"Game\\Tank.txt.bak", "Game\\notes", "Mod\\folder.txt\\inner.txt", "Mod\\.txt"},
         {"Mod: "},
         {}},
    };
    for (const ListCase& c : cases) {
        const TemporaryFolder below;
        for (const std::string& name : c.written) {
            const std::size_t base = name.find('\\');
            below.write(name.substr(0, base) + "\\Data\\Vehicles" + name.substr(base), name);
        }
        const GameFolders both{below.path() + "Game\\", below.path() + "Mod\\"};
        for (const FileStamps stamps : {FileStamps::Without, FileStamps::With}) {
            const GameFileList list = listGameFiles(both, Category::Vehicles, stamps);
            EXPECT_EQ(described(list.files), c.files) << c.description;
            EXPECT_EQ(described(list.hidden), c.hidden) << c.description;
            for (const GameFile& file : list.files) {
                EXPECT_EQ(file.size > 0, stamps == FileStamps::With) << file.path;
            }
        }
    }
}

#ifndef _WIN32
TEST_F(GameFilesTest, ListsRegularFilesOnly) {
    namespace fs = std::filesystem;
    write("Game\\Data\\Vehicles\\Tank.txt");
    const fs::path vehicles = folder.nativePath("Game\\Data\\Vehicles");
    std::ofstream(vehicles / "..\\Other.txt") << "a name with a separator of paths";
    ASSERT_EQ(::mkfifo((vehicles / "pipe.txt").c_str(), 0600), 0);
    fs::create_symlink("/dev/zero", vehicles / "device.txt");
    fs::create_symlink("Tank.txt", vehicles / "link.txt");
    for (const FileStamps stamps : {FileStamps::Without, FileStamps::With}) {
        EXPECT_EQ(described(listGameFiles(folders(), Category::Vehicles, stamps).files),
                  (Texts{"Game: link", "Game: Tank"}));
    }
}
#endif

TEST_F(GameFilesTest, OnlyTheGamesFolderMustBeThere) {
    write("Game\\Data\\Aircraft\\Plane.txt");
    EXPECT_EQ(described(listGameFiles(folders(), Category::Aircraft).files), Texts{"Game: Plane"});
    EXPECT_TRUE(listGameFiles(folders(), Category::Aircraft).failures.empty());
    write("Mod\\Data\\Infantry\\Squad.txt");
    const GameFileList list = listGameFiles(folders(), Category::Infantry);
    EXPECT_EQ(described(list.files), Texts{"Mod: Squad"});
    ASSERT_EQ(list.failures.size(), 1U);
    EXPECT_EQ(list.failures[0].path, folders().program + "Data\\Infantry\\");
    EXPECT_FALSE(list.failures[0].reason.empty());
}

TEST_F(GameFilesTest, AWalkTellsHowFarItIsAndWhatItCouldNotRead) {
    for (const char* name : {"a", "b", "c"}) {
        write(std::string("Game\\Data\\Vehicles\\") + name + ".txt");
    }
    std::vector<GameFile> files = listGameFiles(folders(), Category::Vehicles).files;
    std::filesystem::remove(folder.nativePath("Game\\Data\\Vehicles\\b.txt"));
    GameFileWalk walk(files);
    Texts visited;
    Texts progress;
    const auto note = [&] {
        const WalkProgress now = walk.progress();
        progress.push_back(std::to_string(now.done) + " of " + std::to_string(now.total) + " " +
                           std::string(now.name));
    };
    note();
    while (walk.step([&](const GameFile& file, std::string_view content) {
        visited.push_back(file.name);
        EXPECT_TRUE(file.path.ends_with(content)) << file.path;
    })) {
        note();
    }
    note();
    EXPECT_EQ(visited, (Texts{"a", "c"}));
    EXPECT_EQ(progress, (Texts{"0 of 3 a", "1 of 3 b", "2 of 3 c", "3 of 3 "}));
    ASSERT_EQ(walk.failures().size(), 1U);
    EXPECT_EQ(walk.failures()[0].path, files[1].path);
    EXPECT_FALSE(walk.failures()[0].reason.empty());
    EXPECT_FALSE(walk.step([](const GameFile&, std::string_view) { FAIL() << "after the end"; }));
}

TEST_F(GameFilesTest, AVisitorStopsTheWalk) {
    for (const char* name : {"a", "b", "c"}) {
        write(std::string("Game\\Data\\Vehicles\\") + name + ".txt");
    }
    for (const std::string last : {"a", "b", "c", "none"}) {
        GameFileWalk walk(listGameFiles(folders(), Category::Vehicles).files);
        std::string visited;
        const bool isWhole = walk.run([&](const GameFile& file, std::string_view) {
            visited += file.name;
            return file.name != last;
        });
        EXPECT_EQ(visited,
                  last == "none" ? "abc" : std::string("abc").substr(0, std::string("abc").find(last) + 1));
        EXPECT_EQ(isWhole, last == "none");
        EXPECT_EQ(walk.progress().done, visited.size());
        EXPECT_FALSE(walk.step([](const GameFile&, std::string_view) { FAIL() << "after it was stopped"; }));
    }
    EXPECT_TRUE(GameFileWalk().run([](const GameFile&, std::string_view) {})) << "nothing to do";
}

} // namespace
} // namespace varrocade::tests
