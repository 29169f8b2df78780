// The tools over all files of a game or mod, in the window: thumbnails, smaller pictures, spreadsheets,
// checks of a mod.

#include "gui_test.h"
#include "layout_check.h"

namespace varrocade::gui {

namespace {

constexpr int ThumbnailsCommand = 32772;
constexpr int SheetsCommand = 32780;
constexpr int DuplicatesCommand = 32782;
constexpr int UnusedCommand = 32783;
constexpr int VoicesCommand = 32785;
constexpr int ReduceCommand = 32789;
const std::string Pictures = "Images\\Units\\Vehicles\\";
const std::string SmallPicture = Pictures + "Hulls\\Small.png";

} // namespace

class ToolsTest : public GuiTest {
protected:
    /// Gives a command that asks first, and says yes.
    void confirm(int command, std::string_view caption) const {
        const Window box = openDialog(command, caption);
        ASSERT_EQ(contentOf(box).buttons, (std::vector<int>{IDYES, IDNO}));
        finish(box, IDYES);
    }
    /// A tank of 18 by 52 cm, whose picture has twice as many pixels each way.
    void makeSmallTank() const {
        game.copyFromSample(Pictures + "Turrets");
        game.write(SmallPicture, game.read(Pictures + "Turrets\\Bow MG34 ball mount.png"));
        game.remove(Pictures + "Turrets");
        game.write(dataFile("German Small"),
                   "<squad><description><type>TYPE_TANK</type><nationality>NATIONALITY_GERMAN</nationality>"
                   "</description><vehicle><hull><width>18</width><length>52</length>"
                   "<image_view>Small.png</image_view></hull></vehicle></squad>");
    }
    /// Chooses a sheet in the system's dialog.
    void importSheet(std::string_view sheet) const {
        game.write("Changed.csv", sheet);
        const Window files = openDialog(IDM_IMPORT_SHEET, "Import spreadsheet");
        constexpr int nameEdit = 0x480;
        constexpr int nameCombo = 0x47C;
        const bool isCombo = GetDlgItem(files.handle(), nameCombo) != nullptr;
        files.setText(isCombo ? nameCombo : nameEdit, game.path() + "Changed.csv");
        files.startPress(IDOK);
    }
    [[nodiscard]] std::string weightInFile() const {
        const std::string text = game.read(dataFile(Tiger));
        const std::size_t begin = text.find("<weight>") + std::string_view("<weight>").size();
        return text.substr(begin, text.find('<', begin) - begin);
    }
};

TEST_F(ToolsTest, ThumbnailsAreMadeToTheChosenSizeAndCanBeCancelled) {
    game.copyFromSample(Pictures + "Hulls");
    start();
    constexpr std::string_view caption = "Generate vehicle thumbnails";
    confirm(ThumbnailsCommand, caption);
    Window dialog = editor->waitForDialog("Generate Vehicle Thumbnails");
    expectWellLaidOut(dialog);
    EXPECT_FALSE(dialog.control(IDC_THUMBNAIL_SCALE).isEnabled());
    dialog.setText(IDC_THUMBNAIL_SIDE, "5");
    dialog.startPress(IDOK);
    answer({std::string(caption), "\"Pixels of a side\" must be a whole number from 16 to 2048"});
    dialog.setText(IDC_THUMBNAIL_SIDE, "64");
    finish(dialog);
    Window result = editor->waitForDialog("Vehicle thumbnails");
    expectWellLaidOut(result);
    EXPECT_TRUE(result.control(IDC_JOB_SUMMARY).text().starts_with("Created ")) << "of a sample of vehicles";
    EXPECT_EQ(result.control(IDC_JOB_FOLDER).text(), game.path() + "Thumbnails\\");
    EXPECT_TRUE(result.control(IDC_JOB_OPEN_FOLDER).isEnabled());
    finish(result);
    EXPECT_TRUE(game.exists("Thumbnails\\German\\" + std::string(Tiger) + ".png"));
    EXPECT_TRUE(game.exists("Thumbnails\\German.png"));

    game.remove("Thumbnails");
    confirm(ThumbnailsCommand, caption);
    dialog = editor->waitForDialog("Generate Vehicle Thumbnails");
    dialog.setText(IDC_THUMBNAIL_SIDE, "2048");
    finish(dialog);
    const Window progress = editor->waitForDialog(caption);
    ASSERT_TRUE(eventually([&] { return game.exists("Thumbnails\\American.png"); }));
    progress.post(WM_COMMAND, IDCANCEL);
    result = editor->waitForDialog("Vehicle thumbnails");
    EXPECT_TRUE(result.control(IDC_JOB_SUMMARY).text().starts_with("Cancelled. Created "));
    finish(result);
    EXPECT_FALSE(game.exists("Thumbnails\\German.png")) << "not all of its vehicles were drawn";
}

TEST_F(ToolsTest, PicturesAreReducedAsTheUserChooses) {
    makeSmallTank();
    const std::string original = game.read(SmallPicture);
    start();
    select("German Small");
    confirm(ReduceCommand, "Reduce image sizes");
    const Window dialog = editor->waitForDialog("Reduce Image Sizes");
    expectWellLaidOut(dialog);
    const Window summary = dialog.control(IDC_REDUCE_SUMMARY);
    EXPECT_TRUE(summary.text().starts_with("1 of 1 picture can be smaller: ")) << summary.text();
    dialog.press(IDC_COPY_TABLE);
    EXPECT_NE(clipboardText().find("Small.png\t36 x 104\t"), std::string::npos) << clipboardText();
    EXPECT_NE(clipboardText().find("\trecompressed\t" + Pictures + "Hulls\\\r\n"), std::string::npos);
    EXPECT_TRUE(dialog.control(IDC_REDUCE_BEFORE_TEXT).text().starts_with("Now: 36 x 104, "));

    dialog.control(IDC_REDUCE_SCALE).send(BM_SETCHECK, BST_CHECKED);
    dialog.startPress(IDC_REDUCE_SCALE);
    const Window then = dialog.control(IDC_REDUCE_AFTER_TEXT);
    ASSERT_TRUE(eventually([&] { return then.text().starts_with("Then: 18 x 52, "); })) << then.text();
    for (const int button : {IDNO, IDYES}) {
        EXPECT_EQ(game.read(SmallPicture), original);
        dialog.startPress(button == IDNO ? IDC_REDUCE_SELECTED : IDOK);
        const Window box = editor->waitForDialog("Reduce image sizes");
        EXPECT_NE(contentOf(box).text.find("1 picture is scaled: its pixels change. "), std::string::npos);
        finish(box, button);
    }
    EXPECT_TRUE(eventually([&] { return summary.text().starts_with("1 picture was written: "); }))
        << summary.text();
    EXPECT_FALSE(dialog.control(IDOK).isEnabled());
    finish(dialog, IDCANCEL);
    EXPECT_LT(game.read(SmallPicture).size(), original.size());
    EXPECT_EQ(game.backups(SmallPicture), std::vector<std::string>{original});

    // All of the game: as small as can be by now.
    confirm(IDM_REDUCE_ALL, "Reduce image sizes");
    const Window all = editor->waitForDialog("Reduce Image Sizes");
    EXPECT_EQ(all.control(IDC_REDUCE_SUMMARY).text(), "None of 1 picture can be smaller.");
    finish(all, IDCANCEL);
}

TEST_F(ToolsTest, SheetIsShownWrittenAndUndone) {
    start();
    confirm(SheetsCommand, "Generate unit spreadsheets");
    const Window created = editor->waitForDialog("Unit spreadsheets");
    EXPECT_EQ(created.control(IDC_JOB_SUMMARY).text(), "Created 5 files in the folder:");
    finish(created);
    EXPECT_TRUE(game.exists("Vehicles.csv"));

    // A change that is not saved is not lost.
    select(Tiger);
    const Window details = openDetails();
    details.setText(IDC_WEIGHT, "1");
    finish(details);
    sendCommand(IDM_UNDO);
    ASSERT_EQ(weightInFile(), "1");
    const std::string sheet = "Vehicles\tWeight [kg]\r\n" + std::string(Tiger) + "\t";
    importSheet(sheet + "57000\r\n");
    const Window unsaved = editor->waitForDialog("Unsaved changes");
    EXPECT_NE(contentOf(unsaved).text.find("    Vehicles: " + std::string(Tiger)), std::string::npos);
    finish(unsaved, IDOK);
    Window preview = editor->waitForDialog("Import Spreadsheet");
    EXPECT_EQ(weightInFile(), "56900");
    expectWellLaidOut(preview);
    preview.press(IDC_COPY_TABLE);
    EXPECT_TRUE(clipboardText().ends_with("\r\n2\t" + std::string(Tiger) + "\tWeight [kg]\t56900\t57000\r\n"))
        << clipboardText();
    finish(preview);
    const Window imported = editor->waitForDialog("Imported spreadsheet");
    EXPECT_EQ(imported.control(IDC_JOB_SUMMARY).text(),
              "1 value of 1 file was changed. What the files held before is in the folder:");
    expectWellLaidOut(imported);
    finish(imported);
    EXPECT_TRUE(eventually([&] { return (menuState(IDM_UNDO) & MF_GRAYED) == 0; }));
    EXPECT_EQ(weightInFile(), "57000");
    EXPECT_EQ(game.backups(dataFile(Tiger)).back().find("<weight>57000"), std::string::npos);
    sendCommand(IDM_UNDO);
    EXPECT_EQ(weightInFile(), "56900");

    importSheet(sheet + "heavy\r\n");
    preview = editor->waitForDialog("Import Spreadsheet");
    EXPECT_TRUE(preview.control(IDC_IMPORT_SUMMARY).text().starts_with("Nothing can be written: 1 refusal"));
    EXPECT_FALSE(preview.control(IDOK).isEnabled());
    finish(preview, IDCANCEL);
    EXPECT_EQ(weightInFile(), "56900");
}

TEST_F(ToolsTest, ChecksOfAModMoveItsFilesOnlyAndLeadToWhoNamesThem) {
    game.copyFromSample("Data\\Weapons");
    userMod.create();
    const std::string mod = userMod.modFolder();
    writeFile(mod + dataFile(Tiger), game.read(dataFile(Tiger)));
    for (const std::string_view name : {"One", "Two"}) {
        writeFile(mod + Pictures + "Hulls\\" + std::string(name) + ".png", name);
    }
    game.write(Pictures + "Hulls\\Three.png", "of the game");
    start();
    Window dialog = openDialog(UnusedCommand, "Check Mod For Unused Files");
    expectWellLaidOut(dialog);
    EXPECT_EQ(dialog.control(IDC_CHECK_SUMMARY).text(), "2 files:");
    dialog.control(IDC_CHECK_ROWS).selectRows(0, 1);
    for (const int button : {IDNO, IDYES}) {
        EXPECT_TRUE(fileExists(mod + Pictures + "Hulls\\One.png"));
        dialog.startPress(IDC_CHECK_RECYCLE);
        answer({"Move to recycle bin",
                "These 2 files would be moved to the recycle bin:\n\n    " + Pictures +
                    "Hulls\\One.png\n    " + Pictures + "Hulls\\Two.png\n\nMove them?",
                {IDYES, IDNO}},
               button);
    }
    EXPECT_TRUE(eventually([&] {
        return dialog.control(IDC_CHECK_SUMMARY).text() ==
               "2 files were moved to the recycle bin. None is left.";
    }));
    EXPECT_FALSE(dialog.control(IDC_CHECK_RECYCLE).isEnabled());
    finish(dialog, IDCANCEL);
    EXPECT_FALSE(fileExists(mod + Pictures + "Hulls\\One.png") ||
                 fileExists(mod + Pictures + "Hulls\\Two.png"));
    EXPECT_TRUE(game.exists(Pictures + "Hulls\\Three.png"));

    dialog = openDialog(DuplicatesCommand, "Check Mod For Unneeded Duplicate Files");
    expectWellLaidOut(dialog);
    EXPECT_EQ(dialog.control(IDC_CHECK_SUMMARY).text(), "One file:");
    EXPECT_EQ(dialog.control(IDC_CHECK_USERS).listTexts(),
              std::vector<std::string>{"Vehicles: " + std::string(Tiger)});
    finish(dialog, IDC_CHECK_SHOW);
    EXPECT_EQ(selected(), Tiger);

    dialog = openDialog(VoicesCommand, "Check Mod For Missing Voice Files");
    expectWellLaidOut(dialog);
    dialog.press(IDC_COPY_TABLE);
    EXPECT_NE(clipboardText().find("Sounds\\Voices\\de_"), std::string::npos) << "the game has no sounds";
    EXPECT_EQ(dialog.control(IDC_CHECK_USERS).listTexts(),
              std::vector<std::string>{"Vehicles: " + std::string(Tiger)});
    finish(dialog, IDC_CHECK_SHOW);
}

} // namespace varrocade::gui
