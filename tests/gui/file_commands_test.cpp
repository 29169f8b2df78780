// New, Duplicate, Rename, Delete.

#include "gui_test.h"

#include <algorithm>

namespace varrocade::gui {

namespace {

/// Of each category a file that the editor's writer would write as it is.
constexpr std::string_view WrittenAlike[] = {Tiger, "German 88mm FlaK 36", "German Grenadier Gruppe 1944",
                                             "American P-47D Thunderbolt", "WEAPON_CANNON_88_KWK36_L56"};

constexpr std::string_view NoName = "A name must be entered";
constexpr std::string_view NoCharacter = "Ilegal characters in the filename";
constexpr std::string_view NoNation =
    "The filename must begin with the squad's nationality name:\n\n        German";

Box refusal(std::string_view text) {
    return {.caption = "Error", .text = std::string(text)};
}

} // namespace

class FileCommandsTest : public GuiTest {
protected:
    /// Tries a name in a dialog that refuses it and stays open.
    void expectRefusal(Window dialog, std::string_view name, std::string_view reason) const {
        SCOPED_TRACE(name);
        dialog.setText(IDC_NEW_NAME, name);
        dialog.startPress(IDOK);
        answer(refusal(reason));
        EXPECT_TRUE(dialog.exists());
    }
    void expectNameRefusals(Window dialog, std::string_view goodName,
                            std::string_view badCharacters = "\\.") const {
        expectRefusal(dialog, "", NoName);
        for (const char character : badCharacters) {
            expectRefusal(dialog, std::string(goodName) + character + "2", NoCharacter);
        }
    }
    /// Opens each of the files written alike, and what it holds.
    template <typename Test>
    void forEachWrittenAlike(Test test) const {
        for (std::size_t i = 0; i < std::size(WrittenAlike); ++i) {
            SCOPED_TRACE(WrittenAlike[i]);
            chooseCategory(Categories[i].button);
            select(WrittenAlike[i]);
            test(std::string(WrittenAlike[i]), Categories[i].name,
                 game.read(dataFile(WrittenAlike[i], Categories[i].name)));
        }
    }
    /// Presses "Delete..." and answers the box, which names the file.
    void startDeleting(int button, std::string_view kind = "squad") const {
        const std::string caption = "Delete " + selected();
        window.startPress(DeleteId);
        const std::string question = "Are you sure you want to delete this " + std::string(kind) + "?";
        answer({caption, question, {IDYES, IDNO}}, button);
    }
    void takeName(Window dialog, std::string_view name) const {
        dialog.setText(IDC_NEW_NAME, name);
        finish(dialog);
    }
    [[nodiscard]] bool isListed(std::string_view name) const {
        const std::vector<std::string> all = entries();
        return std::find(all.begin(), all.end(), name) != all.end();
    }
    void expectOpen(std::string_view name) const {
        EXPECT_EQ(selected(), name);
        EXPECT_TRUE(isEnabled(DuplicateId) && isEnabled(RenameId) && isEnabled(DeleteId)) << name;
    }
};

TEST_F(FileCommandsTest, NewSquadIsWrittenAtOnceInEveryCategory) {
    constexpr std::string_view types[] = {"TYPE_TANK", "TYPE_ATGUN", "TYPE_INFANTRY_SECTION", "TYPE_PLANE"};
    constexpr std::string_view name = "German Test";
    start();
    for (std::size_t i = 0; i < std::size(types); ++i) {
        SCOPED_TRACE(types[i]);
        chooseCategory(Categories[i].button);
        const Window dialog = openDialog(NewId, "New Squad");
        dialog.control(IDC_NEW_NATIONALITY).choose("German");
        takeName(dialog, name);
        expectOpen(name);
        const std::string text = game.read(dataFile(name, Categories[i].name));
        EXPECT_NE(text.find("<type>" + std::string(types[i]) + "</type>"), std::string::npos) << text;
        EXPECT_NE(text.find("<nationality>NATIONALITY_GERMAN</nationality>"), std::string::npos) << text;
    }
    chooseCategory(VehiclesId);
    const Window details = openDetails();
    EXPECT_EQ(details.control(IDC_COMPONENTS).listTexts(), std::vector<std::string>{"1. Hull"});
    finish(details, IDCANCEL);
}

TEST_F(FileCommandsTest, NewSquadRefusesBadNames) {
    start();
    const Window dialog = openDialog(NewId, "New Squad");
    dialog.control(IDC_NEW_NATIONALITY).choose("German");
    expectNameRefusals(dialog, "German 2", "<>:\"/\\|?*.");
    expectRefusal(dialog, "Tiger", NoNation);
    expectRefusal(dialog, Tiger, "Squad name already exists");
    finish(dialog, IDCANCEL);
    EXPECT_EQ(entries(), game.names("Data\\Vehicles"));
    EXPECT_FALSE(game.exists("Backups"));
    EXPECT_FALSE(isEnabled(DuplicateId));
}

TEST_F(FileCommandsTest, NewWeapon) {
    game.copyFromSample("Data\\Weapons");
    start();
    chooseCategory(WeaponsId);
    const std::size_t count = entries().size();
    Window dialog = openDialog(NewId, "New Weapon");
    expectNameRefusals(dialog, "WEAPON_TEST");
    expectRefusal(dialog, "WEAPON_CANNON_88_KWK36_L56", "Weapon name already exists");
    EXPECT_EQ(dialog.control(IDC_NEW_WEAPON_TYPE).text(), "Cannon (WEAPON_CANNON)") << "as the name has it";
    dialog.setText(IDC_NEW_NAME, "99_TEST");
    dialog.control(IDC_NEW_WEAPON_TYPE).choose("Mortar (WEAPON_MORTAR)");
    EXPECT_EQ(dialog.control(IDC_NEW_WEAPON_PREFIX).text(), "File: WEAPON_MORTAR_99_TEST");
    dialog.startPress(IDOK);
    // The editor of what is new opens at once.
    finish(editor->waitForDialog("Weapon Data"), IDCANCEL);
    expectOpen("WEAPON_MORTAR_99_TEST");
    EXPECT_EQ(entries().size(), count + 1);
    const std::string text = game.read(dataFile("WEAPON_MORTAR_99_TEST", "Weapons"));
    EXPECT_NE(text.find("<calibre>81.2</calibre>"), std::string::npos) << text;
    EXPECT_NE(text.find("<flavour>FLAVOUR_MORTAR_HE</flavour>"), std::string::npos) << text;
}

TEST_F(FileCommandsTest, DuplicateWritesTheOpenRecordUnderAnotherName) {
    game.copyFromSample("Data\\Weapons");
    start();
    forEachWrittenAlike([&](const std::string& name, std::string_view category, const std::string& original) {
        const Window dialog = openDialog(DuplicateId, "Duplicate");
        const std::string copy = dialog.control(IDC_NEW_NAME).text();
        EXPECT_EQ(copy, name + " (copy)");
        expectRefusal(dialog, name, "File already exists");
        takeName(dialog, copy);
        EXPECT_EQ(game.read(dataFile(copy, category)), original);
        EXPECT_EQ(game.read(dataFile(name, category)), original);
        EXPECT_TRUE(isListed(copy) && isListed(name));
        expectOpen(copy);
    });
    chooseCategory(VehiclesId);
    const Window dialog = openDialog(DuplicateId, "Duplicate");
    expectNameRefusals(dialog, "German");
    expectRefusal(dialog, "Tiger", NoNation);
    finish(dialog, IDCANCEL);
}

TEST_F(FileCommandsTest, RenameMovesTheFileAndTheOpenRecord) {
    game.copyFromSample("Data\\Weapons");
    start();
    forEachWrittenAlike([&](const std::string& name, std::string_view category, const std::string& original) {
        const std::string renamed = name + " II";
        const Window dialog = openDialog(RenameId, "Rename");
        EXPECT_EQ(dialog.control(IDC_NEW_NAME).text(), name);
        expectRefusal(dialog, "", NoName);
        expectRefusal(dialog, name + "?", NoCharacter);
        game.write(dataFile(renamed, category), "in the way");
        expectRefusal(dialog, renamed, "That file already exists");
        game.remove(dataFile(renamed, category));
        if (category == "Weapons") {
            dialog.setText(IDC_NEW_NAME, renamed);
            dialog.startPress(IDOK);
            finish(editor->waitForDialog("Rename Everywhere"), IDC_RENAME_FILE_ONLY);
            expectGone(dialog, window);
        } else {
            takeName(dialog, renamed);
        }
        EXPECT_EQ(game.read(dataFile(renamed, category)), original);
        EXPECT_FALSE(game.exists(dataFile(name, category)) || isListed(name));
        EXPECT_EQ(game.backups(dataFile(name, category)), std::vector<std::string>{original});
        expectOpen(renamed);
    });
    // What is saved from now on goes to the new name.
    chooseCategory(VehiclesId);
    const Window details = openDetails();
    details.setText(IDC_WEIGHT, "1");
    finish(details);
    EXPECT_FALSE(game.exists(dataFile(Tiger)));
    const std::string renamed = std::string(Tiger) + " II";
    EXPECT_NE(game.read(dataFile(renamed)).find("<weight>1</weight>"), std::string::npos);
    EXPECT_EQ(game.backups(dataFile(renamed)).size(), 1U);
}

TEST_F(FileCommandsTest, DeleteKeepsABackupAndSelectsTheNeighbour) {
    game.copyFromSample("Data\\Weapons");
    start();
    const std::vector<std::string> all = entries();
    const std::string original = game.read(dataFile(all[1]));
    select(all[1]);
    startDeleting(IDNO);
    EXPECT_TRUE(game.exists(dataFile(all[1])));
    EXPECT_FALSE(game.exists("Backups"));
    startDeleting(IDYES);
    EXPECT_TRUE(eventually([&] { return selected() == all[2]; }));
    expectOpen(all[2]);
    EXPECT_FALSE(game.exists(dataFile(all[1])));
    EXPECT_FALSE(isListed(all[1]));
    EXPECT_EQ(game.backups(dataFile(all[1])), std::vector<std::string>{original});

    select(all.back());
    startDeleting(IDYES);
    EXPECT_TRUE(eventually([&] { return selected() == all[all.size() - 2]; }));

    chooseCategory(WeaponsId);
    list().choose(0);
    const std::string weapon = selected();
    startDeleting(IDYES, "weapon");
    EXPECT_TRUE(eventually([&] { return !isListed(weapon); }));
    EXPECT_FALSE(game.exists(dataFile(weapon, "Weapons")));
}

TEST_F(FileCommandsTest, DeletingTheLastFileLeavesNothingOpen) {
    game.remove("Data\\Aircraft");
    game.write(dataFile("German Only One", "Aircraft"), "<aircraft></aircraft>");
    start();
    chooseCategory(AircraftId);
    list().choose(0);
    startDeleting(IDYES);
    EXPECT_TRUE(eventually([&] { return entries().empty() && !isEnabled(DuplicateId); }));
    EXPECT_FALSE(isEnabled(RenameId) || isEnabled(DeleteId));
    EXPECT_TRUE(isEnabled(NewId));
}

} // namespace varrocade::gui
