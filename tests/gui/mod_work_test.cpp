// Working in a mod: the game's units in it, its settings, and what it changes.

#include "gui_test.h"
#include "layout_check.h"

#include <commctrl.h>

namespace varrocade::gui {

namespace {

constexpr std::string_view T34 = "Russian T-34 Model 1941";

/// Hand-written, with what no editor knows.
constexpr std::string_view HandWritten = "// my mod, do not touch\n"
                                         "<mod>\n"
                                         "  <name>Mine</name>   // working title\n"
                                         "  <weather>bad</weather>\n"
                                         "  <years><first>1943</first><last>1944</last></years>\n"
                                         "  <nationality><id>NATIONALITY_GERMAN</id>  // them\n"
                                         "    <surnames>\n"
                                         "      <surname><name>Meier</name></surname> // first\n"
                                         "      <surname><name>Schulz</name><medal>yes</medal></surname>\n"
                                         "    </surnames>\n"
                                         "    <motto>none</motto>\n"
                                         "  </nationality>\n"
                                         "</mod>\n";

} // namespace

class ModWorkTest : public GuiTest {
protected:
    void startInMod() {
        userMod.create();
        start();
    }
    [[nodiscard]] std::string band() const { return window.control(IDC_MOD_BAND).text(); }
    [[nodiscard]] std::string modFile(std::string_view name) const {
        return userMod.modFolder() + dataFile(name);
    }
    /// Presses a button that shows a box, whose caption may be the dialog's own, and answers that.
    void pressAndAnswer(Window dialog, int button, const Box& box, int with = IDOK) const {
        dialog.startPress(button);
        EXPECT_TRUE(eventually([&] { return !dialog.isEnabled(); })) << "no box, no end";
        answer(box, with);
    }
    [[nodiscard]] int clientHeight() const {
        RECT client{};
        GetClientRect(window.handle(), &client);
        return client.bottom;
    }
    [[nodiscard]] static int rowCount(Window table) { return static_cast<int>(table.send(LVM_GETITEMCOUNT)); }
    /// Selects a row of a table of another process as the arrow keys do.
    static void selectRow(Window table, int row) {
        table.pressKey(VK_HOME);
        for (int i = 0; i < row; ++i) {
            table.pressKey(VK_DOWN);
        }
    }
};

TEST_F(ModWorkTest, TheGamesUnitsAreAtHand) {
    startInMod();
    EXPECT_TRUE(band().starts_with("Mod: Test Mod  The editor has started in the mod that is in " +
                                   userMod.modFolder()))
        << band();
    EXPECT_TRUE(entries().empty());
    EXPECT_EQ(window.control(IDC_LIST_REMEDY).text(), "Show the game's");
    window.press(IDC_LIST_REMEDY);
    EXPECT_EQ(entries(), game.names("Data\\Vehicles"));
    EXPECT_TRUE(window.control(IDC_MOD_GAME_UNITS).isChecked());
    select(T34);
    EXPECT_EQ(band(), "Mod: Test Mod  The game's file. What is changed is saved as " + modFile(T34));

    const Window copying = openDialog(IDM_MOD_COPY, "Copy into mod");
    expectWellLaidOut(copying);
    const Window files = copying.control(IDC_MOD_FILES_LIST);
    copying.setText(IDC_MOD_FILES_FILTER, "panther");
    EXPECT_EQ(files.listTexts(), std::vector<std::string>{"German Panzer V Panther Ausf G"});
    copying.press(IDC_MOD_FILES_ALL);
    copying.setText(IDC_MOD_FILES_FILTER, "");
    EXPECT_TRUE(copying.control(IDC_MOD_FILES_COUNT).text().starts_with("2 of ")) << "the hidden one stays";
    copying.control(IDC_MOD_FILES_NEEDS).send(BM_CLICK);
    pressAndAnswer(copying, IDOK, {"Copy into mod", "2 files copied."});
    EXPECT_TRUE(eventually([&] { return fileExists(modFile("German Panzer V Panther Ausf G")); }));
    EXPECT_EQ(readFile(modFile(T34)), game.read(dataFile(T34)));
    EXPECT_TRUE(eventually([&] {
        return band() == "Mod: Test Mod  The editor has started in the mod that is in " +
                             userMod.modFolder() + "    Mod > Mod Mode goes to the game.";
    })) << band()
        << ": the open one is the mod's now";

    const Window removing = openDialog(IDM_MOD_REMOVE, "Remove from mod");
    EXPECT_EQ(removing.control(IDC_MOD_FILES_LIST).listTexts().size(), 2U);
    removing.press(IDC_MOD_FILES_ALL);
    pressAndAnswer(
        removing, IDOK,
        {"Remove from mod",
         "Are you sure you want to remove 2 files from the mod?\n\nThe game's files of the same names, where "
         "there are any, count again. The mod's are kept in the folder Backups.",
         {IDYES, IDNO}},
        IDYES);
    EXPECT_TRUE(eventually([&] { return !removing.exists(); }));
    answer({"Remove from mod", "2 files removed."});
    EXPECT_FALSE(fileExists(modFile(T34)));

    const int height = clientHeight();
    sendCommand(ModModeCommand);
    EXPECT_EQ(band(), "");
    EXPECT_FALSE(window.control(IDC_MOD_GAME_UNITS).isVisible());
    EXPECT_EQ(clientHeight() - height, 22) << "the band was in the frame";
    close();
    start();
    EXPECT_EQ(entries(), game.names("Data\\Vehicles")) << "also in the next run";
}

TEST_F(ModWorkTest, AHandWrittenFileKeepsWhatWasNotChanged) {
    writeFile(userMod.modFolder() + "Mod.txt", HandWritten);
    start();
    Window settings = openDialog(EditModCommand, "Edit Mod");
    expectWellLaidOut(settings);
    EXPECT_EQ(settings.control(IDC_MOD_FIRST).text(), "1943");
    finish(settings);
    EXPECT_EQ(readFile(userMod.modFolder() + "Mod.txt"), HandWritten) << "OK without a change";

    settings = openDialog(EditModCommand, "Edit Mod");
    settings.setText(IDC_MOD_LAST, "1942");
    pressAndAnswer(settings, IDOK, {"Edit Mod", "The end is before the beginning"});
    EXPECT_EQ(editor->focus(), settings.control(IDC_MOD_LAST));
    settings.setText(IDC_MOD_LAST, "1945");
    settings.startPress(IDC_MOD_NATIONALITIES);
    const Window nations = editor->waitForDialog("Nationalities");
    expectWellLaidOut(nations);
    nations.startPress(IDC_MOD_SURNAMES);
    const Window surnames = editor->waitForDialog("German: surnames");
    expectWellLaidOut(surnames);
    const Window names = surnames.control(IDC_ENTRY_LIST);
    surnames.press(IDC_ENTRY_ADD);
    surnames.setText(IDC_MOD_NAME, "meier");
    EXPECT_TRUE(eventually([&] { return names.listTexts().front() == "Meier  1  (!)"; })) << "a double";
    surnames.press(IDC_MOD_SORT_NAMES);
    surnames.press(IDC_MOD_DOUBLES);
    EXPECT_EQ(names.listTexts(), (std::vector<std::string>{"Meier  1", "Schulz  1"}));
    // Ctrl+Z, wherever the keyboard is.
    names.send(WM_CHAR, 0x1A);
    EXPECT_EQ(names.listTexts().size(), 3U);
    surnames.press(IDC_ENTRY_REDO);
    EXPECT_EQ(names.listTexts().size(), 2U);
    EXPECT_FALSE(surnames.control(IDC_ENTRY_REDO).isEnabled());
    surnames.press(IDC_ENTRY_ADD);
    surnames.press(IDC_ENTRY_UNDO);
    EXPECT_EQ(names.listTexts().size(), 2U) << "an entry without a name goes, too";
    names.choose("Schulz  1");
    surnames.setText(IDC_MOD_SHARE, "5");
    finish(surnames);
    nations.press(IDC_ENTRY_ADD);
    EXPECT_EQ(nations.control(IDC_ENTRY_LIST).listTexts().size(), 2U);
    nations.press(IDC_ENTRY_UNDO);
    EXPECT_EQ(nations.control(IDC_ENTRY_LIST).listTexts(), std::vector<std::string>{"1. German"});
    finish(nations);
    const std::string meanwhile = std::string(HandWritten) + "// written meanwhile\r\n";
    writeFile(userMod.modFolder() + "Mod.txt", meanwhile);
    finish(settings);
    EXPECT_EQ(readFile(userMod.modFolder() + "Mod.txt"),
              withReplaced(withReplaced(meanwhile, "<last>1944<", "<last>1945<"), "<name>Schulz</name>",
                           "<name>Schulz</name><commonness>5</commonness>"));
}

TEST_F(ModWorkTest, EquipmentIsPutTogetherFromTheUnitsThatThereAre) {
    userMod.create();
    writeFile(
        userMod.modFolder() + "Mod.txt",
        "<mod><name>M</name><nationality><id>NATIONALITY_RUSSIAN</id><equipment><name>All</name><unit><file>"
        "Nobody</file></unit></equipment></nationality></mod>");
    start();
    const Window settings = openDialog(EditModCommand, "Edit Mod");
    settings.startPress(IDC_MOD_NATIONALITIES);
    const Window nations = editor->waitForDialog("Nationalities");
    nations.startPress(IDC_MOD_EQUIPMENT);
    const Window lists = editor->waitForDialog("Russian: equipment lists");
    EXPECT_EQ(lists.control(IDC_ENTRY_LIST).selectedText(), "All (always), 1 unit  (!)");
    lists.startPress(IDC_MOD_UNITS);
    const Window units = editor->waitForDialog("Russian, All: units");
    expectWellLaidOut(units);
    const Window there = units.control(IDC_MOD_SOURCE_LIST);
    const Window listed = units.control(IDC_MOD_LISTED);
    EXPECT_EQ(units.control(IDC_MOD_SUMMARY).text(), "1 unit, 1 not there (!)");
    const int own = rowCount(there);
    units.control(IDC_MOD_SOURCE_NATION).send(BM_CLICK);
    EXPECT_GT(rowCount(there), own) << "of all nationalities";
    units.setText(IDC_MOD_SOURCE_FILTER, "t-34");
    const int tanks = rowCount(there);
    ASSERT_GE(tanks, 1);
    selectRow(there, 0);
    ASSERT_TRUE(eventually([&] { return units.control(IDC_MOD_UNITS_ADD).isEnabled(); }));
    units.press(IDC_MOD_UNITS_ADD);
    EXPECT_EQ(rowCount(listed), 2);
    EXPECT_EQ(rowCount(there), tanks - 1);
    units.setText(IDC_MOD_COST, "x");
    pressAndAnswer(units, IDOK, {"Units", "\"Cost\" must be a whole number from 0 to 100000"});
    EXPECT_EQ(editor->focus(), units.control(IDC_MOD_COST));
    units.setText(IDC_MOD_COST, "120");
    listed.send(WM_CHAR, 0x1A);
    listed.send(WM_CHAR, 0x1A);
    EXPECT_EQ(rowCount(listed), 1);
    units.press(IDC_ENTRY_REDO);
    units.press(IDC_ENTRY_REDO);
    finish(units);
    EXPECT_EQ(lists.control(IDC_ENTRY_LIST).selectedText(), "All (always), 2 units  (!)");
    finish(lists);
    finish(nations);
    finish(settings);
    const std::string saved = readFile(userMod.modFolder() + "Mod.txt");
    EXPECT_NE(saved.find("<cost>120</cost>"), std::string::npos) << saved;
    EXPECT_NE(saved.find("Nobody"), std::string::npos);
}

TEST_F(ModWorkTest, PicturesAreChosenByTheirLooks) {
    userMod.create();
    game.copyFromSample("Images\\Flags");
    game.copyFromSample("Images\\Uniforms");
    start();
    const Window settings = openDialog(EditModCommand, "Edit Mod");
    settings.startPress(IDC_MOD_COLOURS);
    const Window colours = editor->waitForDialog("Colours");
    expectWellLaidOut(colours);
    finish(colours, IDCANCEL);
    settings.startPress(IDC_MOD_NATIONALITIES);
    const Window nations = editor->waitForDialog("Nationalities");
    nations.press(IDC_ENTRY_ADD);
    nations.startPress(IDC_MOD_FLAG_CHOOSE);
    const Window pictures = editor->waitForDialog("Choose a picture");
    expectWellLaidOut(pictures);
    pictures.setText(IDC_MOD_PICTURES_FILTER, "finn");
    pictures.control(IDC_MOD_PICTURES_LIST).choose("finnish");
    finish(pictures);
    EXPECT_EQ(nations.control(IDC_MOD_FLAG).text(), "finnish");
    nations.press(IDC_ENTRY_UNDO);
    EXPECT_EQ(nations.control(IDC_MOD_FLAG).text(), "");
    nations.press(IDC_ENTRY_REDO);
    for (const auto& [button, caption] : std::initializer_list<std::pair<int, std::string_view>>{
             {IDC_MOD_SIDES, "United States: sides"},
             {IDC_MOD_UNIFORMS, "United States: uniforms"},
             {IDC_MOD_RANKS, "United States: ranks"},
             {IDC_MOD_EQUIPMENT, "United States: equipment lists"}}) {
        nations.startPress(button);
        const Window page = editor->waitForDialog(caption);
        expectWellLaidOut(page);
        finish(page, IDCANCEL);
    }
    finish(nations);
    finish(settings);
    EXPECT_NE(readFile(userMod.modFolder() + "Mod.txt").find("<flag>finnish"), std::string::npos);
}

TEST_F(ModWorkTest, ChangesAreListedAndTakenBack) {
    game.copyFromSample("Data\\Weapons");
    userMod.create();
    writeFile(modFile(Tiger), withReplaced(game.read(dataFile(Tiger)), "<weight>56900<", "<weight>60000<"));
    writeFile(modFile(T34), withReplaced(game.read(dataFile(T34)), "<vehicle>", "// ours\r\n<vehicle>"));
    start();
    select(Tiger);
    Window changes = openDialog(IDM_MOD_CHANGES, "What this mod changes");
    expectWellLaidOut(changes);
    const Window table = changes.control(IDC_MOD_CHANGE_LIST);
    EXPECT_EQ(changes.control(IDC_MOD_CHANGE_COUNT).text(), "0 added, 2 changed, 0 removed");
    EXPECT_EQ(rowCount(table), 3);
    changes.press(IDC_MOD_COPY_MARKDOWN);
    EXPECT_NE(clipboardText().find("| Weight | `vehicle.weight` | 56900 kg | 60000 kg |\r\n"),
              std::string::npos);
    EXPECT_FALSE(changes.control(IDC_MOD_REVERT).isEnabled());
    selectRow(table, 1);
    ASSERT_TRUE(eventually([&] { return changes.control(IDC_MOD_REVERT).isEnabled(); }));
    changes.press(IDC_MOD_REVERT);
    EXPECT_NE(readFile(modFile(Tiger)).find("<weight>56900<"), std::string::npos);
    EXPECT_EQ(rowCount(table), 1) << "the Tiger is the game's over again";
    EXPECT_EQ(changes.control(IDC_MOD_CHANGE_COUNT).text(),
              "0 added, 1 changed, 0 removed; 1 file as the game has them");
    pressAndAnswer(
        changes, IDC_MOD_REVERT_FILE,
        {"What this mod changes",
         "Are you sure you want to remove " + std::string(T34) +
             " from the mod?\n\nThe game's files of the same names, where there are any, count again. The "
             "mod's "
             "are kept in the folder Backups.",
         {IDYES, IDNO}},
        IDYES);
    EXPECT_TRUE(eventually([&] { return rowCount(table) == 0; }));
    EXPECT_FALSE(fileExists(modFile(T34)));
    finish(changes, IDCANCEL);
    EXPECT_EQ(entries(), std::vector<std::string>{std::string(Tiger)});
}

} // namespace varrocade::gui
