// Files that vanish, are locked or cannot be written: the box says so, the program goes on, nothing is lost.

#include "gui_test.h"

#include <algorithm>
#include <optional>

namespace varrocade::gui {

class FailureTest : public GuiTest {
protected:
    [[nodiscard]] Box couldNotLoad(const std::string& file) const {
        return {.caption = "Couldn't load file",
                .text = game.path() + file +
                        "\n\nCheck that the filename is made of ASCII characters and not Unicode"};
    }
    [[nodiscard]] Box couldNotSave(const std::string& file) const {
        return {.caption = "Couldn't save file", .text = game.path() + file};
    }
    void expectNothingOpen() const {
        EXPECT_FALSE(isEnabled(DuplicateId) || isEnabled(RenameId) || isEnabled(DeleteId));
    }
    /// A message box whose text ends with the system's own words.
    void expectReport(std::string_view caption, const std::string& path) const {
        const Window box = editor->waitForDialog(caption);
        EXPECT_TRUE(contentOf(box).text.starts_with(path)) << contentOf(box);
        finish(box);
    }
    void saveAnotherWeight() const {
        const Window details = openDetails();
        details.setText(IDC_WEIGHT, "1");
        finish(details);
    }
    /// Saves a change from the "Details" dialog, which fails, and then again when the obstacle is gone.
    template <typename Make, typename Clear>
    void expectSaveFailsOnlyFor(Make makeObstacle, Clear clearIt) {
        const std::string before = game.read(dataFile(Tiger));
        start();
        select(Tiger);
        makeObstacle();
        const Window details = openDetails();
        details.setText(IDC_WEIGHT, "1");
        details.startPress(IDOK);
        answer(couldNotSave(dataFile(Tiger)));
        EXPECT_TRUE(eventually([&] { return window.isEnabled(); }));
        EXPECT_EQ(game.names("Data\\Vehicles"), entries()) << "no half-written file is left";
        clearIt();
        EXPECT_EQ(game.read(dataFile(Tiger)), before);
        const Window again = openDetails();
        EXPECT_EQ(again.control(IDC_WEIGHT).text(), "1") << "the change is not lost";
        finish(again);
        EXPECT_EQ(game.read(dataFile(Tiger)), withReplaced(before, "56900", "1"));
    }
};

TEST_F(FailureTest, FileThatVanished) {
    game.copyFromSample("Data\\Weapons");
    start();
    for (const CategoryParts& category : {Categories[0], Categories[4]}) {
        chooseCategory(category.button);
        const std::vector<std::string> all = entries();
        list().choose(0);
        // Another file vanishes, then the one that is open.
        for (const std::size_t gone : {1U, 2U}) {
            const std::string file = dataFile(all[gone], category.name);
            const int place = list().indexOf(all[gone]);
            game.remove(file);
            list().startChoosing(place);
            // The editor may have noticed by itself, and the file has left the list.
            const auto isListed = [&] {
                const std::vector<std::string> left = entries();
                return std::find(left.begin(), left.end(), all[gone]) != left.end();
            };
            EXPECT_TRUE(eventually([&] { return !editor->dialogs().empty() || !isListed(); }));
            if (isListed()) {
                answer(couldNotLoad(file));
                expectNothingOpen();
            }
            select(all[2 * gone]);
            EXPECT_TRUE(isEnabled(DuplicateId));
        }
    }
}

TEST_F(FailureTest, FileThatIsLocked) {
    start();
    const std::string path = game.path() + dataFile(Tiger);
    {
        const HeldFile held(path, HeldFile::Others::CannotOpen);
        list().startChoosing(Tiger);
        answer(couldNotLoad(dataFile(Tiger)));
        expectNothingOpen();
    }
    list().choose(0);
    select(Tiger);
    const HeldFile held(path, HeldFile::Others::CannotOpen);
    const Window dialog = openDialog(RenameId, "Rename");
    dialog.setText(IDC_NEW_NAME, "German Renamed");
    dialog.startPress(IDOK);
    expectReport("Couldn't rename file", path);
    finish(dialog, IDCANCEL);
    EXPECT_FALSE(game.exists(dataFile("German Renamed")));

    window.startPress(DeleteId);
    answer({"Delete " + std::string(Tiger), "Are you sure you want to delete this squad?", {IDYES, IDNO}},
           IDYES);
    expectReport("Couldn't delete file", path);
    EXPECT_TRUE(game.exists(dataFile(Tiger)));
    EXPECT_EQ(selected(), Tiger);
}

TEST_F(FailureTest, SavingOverAFileInUse) {
    std::optional<HeldFile> held;
    expectSaveFailsOnlyFor([&] { held.emplace(game.path() + dataFile(Tiger), HeldFile::Others::CanRead); },
                           [&] { held.reset(); });
}

TEST_F(FailureTest, SavingOverAReadOnlyFile) {
    const std::wstring path = toWide(game.path() + dataFile(Tiger));
    expectSaveFailsOnlyFor([&] { SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY); },
                           [&] { SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL); });
}

TEST_F(FailureTest, SavingWithoutARoomForTheBackup) {
    expectSaveFailsOnlyFor([&] { game.write("Backups", ""); }, [&] { game.remove("Backups"); });
}

TEST_F(FailureTest, PathsOfNearly260Characters) {
    const std::string text = game.read(dataFile(Tiger));
    const std::size_t rest = 259 - game.path().size() - dataFile("").size();
    const std::string longest = "German " + std::string(rest - 7, 'x');
    game.write(dataFile(longest), text);
    start();
    select(longest);
    EXPECT_TRUE(isEnabled(DuplicateId));
    const Window dialog = openDialog(DuplicateId, "Duplicate");
    dialog.startPress(IDOK);
    answer({.caption = "Error",
            .text = "The path of the file would have 266 characters. The game opens paths of at most 259."});
    finish(dialog, IDCANCEL);
    EXPECT_EQ(game.read(dataFile(longest)), text);
    saveAnotherWeight();
    EXPECT_EQ(game.read(dataFile(longest)), withReplaced(text, "56900", "1"))
        << "although its backup's is longer";
}

TEST_F(FailureTest, NewFilesInAFolderThatCannotBe) {
    game.remove("Data\\Aircraft");
    game.write("Data\\Aircraft", "in the way");
    start();
    chooseCategory(AircraftId);
    const Window dialog = openDialog(NewId, "New Squad");
    dialog.control(IDC_NEW_NATIONALITY).choose("German");
    dialog.setText(IDC_NEW_NAME, "German Plane");
    dialog.startPress(IDOK);
    answer(couldNotSave(dataFile("German Plane", "Aircraft")));
    EXPECT_TRUE(dialog.isEnabled()) << "the name can be changed, or the folder";
    finish(dialog, IDCANCEL);
    expectNothingOpen();
}

TEST_F(FailureTest, NamesBeyondAscii) {
    const std::string text = game.read(dataFile(Tiger));
    const std::string umlaut = "German Sch\xC3\xBCtzenpanzer";
    game.write(dataFile(umlaut), text);
    game.write(dataFile("German \xE6\x88\xA6\xE8\xBB\x8A"), text);
    start();
    select(umlaut);
    EXPECT_TRUE(isEnabled(DuplicateId));
    saveAnotherWeight();
    EXPECT_EQ(game.read(dataFile(umlaut)), withReplaced(text, "56900", "1"));
    // Letters that the system's 8-bit character set does not have.
    list().startChoosing("German ??");
    answer(couldNotLoad(dataFile("German ??")));
    expectNothingOpen();
    select(Tiger);
    EXPECT_TRUE(isEnabled(DuplicateId));
}

} // namespace varrocade::gui
