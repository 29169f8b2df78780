#include "gui_test.h"

namespace varrocade::gui {

namespace {

constexpr int ModOnlyCommands[] = {EditModCommand, 32782, 32783, 32785};

} // namespace

class ModModeTest : public GuiTest {
protected:
    /// Title, check mark and enabling that show the mode. `folder` is the mod's, or empty outside mod mode.
    void expectMode(const std::string& folder) const {
        const bool isOn = !folder.empty();
        EXPECT_EQ(window.text(), "Varrocade Data Editor" + (isOn ? " - Mod Mode from: " + folder : ""));
        EXPECT_EQ((menuState(ModModeCommand) & MF_CHECKED) != 0, isOn);
        for (const int command : ModOnlyCommands) {
            EXPECT_EQ((menuState(command) & MF_GRAYED) == 0, isOn) << command;
        }
    }
    [[nodiscard]] Box createQuestion() const {
        return {"Create New Mod",
                "This will create a new mod (starting with the default WW2 settings) in the folder:\n\n" +
                    userMod.modFolder() +
                    "\n\nWhen you next run the game this mod will be used. To return to the orignal game "
                    "with no mod, just rename or move this folder",
                {IDOK, IDCANCEL}};
    }
    /// Nothing is open, as far as the buttons show it.
    void expectNothingOpen() const {
        EXPECT_FALSE(isEnabled(DuplicateId) || isEnabled(RenameId) || isEnabled(DeleteId));
        EXPECT_FALSE(window.control(IDC_EDIT_DETAILS).isVisible());
    }
};

TEST_F(ModModeTest, CreatingAModIsAskedFor) {
    start();
    select(Tiger);
    chooseCategory(WeaponsId);
    chooseCategory(VehiclesId);
    window.post(WM_COMMAND, MAKEWPARAM(ModModeCommand, 0));
    answer(createQuestion(), IDCANCEL);
    expectMode("");
    EXPECT_FALSE(fileExists(userMod.makerFolder()));
    EXPECT_EQ(selected(), Tiger);
    EXPECT_TRUE(isEnabled(DuplicateId)) << "the vehicle is still open";
    chooseCategory(WeaponsId);
    chooseCategory(VehiclesId);
    EXPECT_EQ(selected(), Tiger) << "cancelling forgets no selection";
}

TEST_F(ModModeTest, NewModStartsEmptyAndKeepsItsOwnFiles) {
    start();
    select(Tiger);
    window.post(WM_COMMAND, MAKEWPARAM(ModModeCommand, 0));
    answer(createQuestion(), IDOK);
    const Window settings = editor->waitForDialog("Edit Mod");
    settings.setText(IDC_MOD_NAME, "Eastern Front");
    finish(settings);
    expectMode(userMod.modFolder());
    const std::string modFile = readFile(userMod.modFolder() + "Mod.txt");
    EXPECT_NE(modFile.find("<name>Eastern Front</name>"), std::string::npos);
    EXPECT_NE(modFile.find("<file>Russian T-34 Model 1941</file>"), std::string::npos);
    EXPECT_TRUE(fileExists(userMod.modFolder() + "Mod.txt"));
    EXPECT_TRUE(entries().empty());
    expectNothingOpen();

    const Window dialog = openDialog(NewId, "New Squad");
    dialog.control(IDC_NEW_NATIONALITY).choose("Russian");
    dialog.setText(IDC_NEW_NAME, "Russian Mod Tank");
    finish(dialog);
    EXPECT_EQ(entries(), std::vector<std::string>{"Russian Mod Tank"});
    EXPECT_TRUE(fileExists(userMod.modFolder() + dataFile("Russian Mod Tank")));
    EXPECT_FALSE(game.exists(dataFile("Russian Mod Tank")));

    sendCommand(ModModeCommand);
    expectMode("");
    EXPECT_EQ(entries(), game.names("Data\\Vehicles"));
    EXPECT_EQ(selected(), "") << "leaving forgets the selections";
    expectNothingOpen();

    // The mod is there now: no question.
    sendCommand(ModModeCommand);
    expectMode(userMod.modFolder());
    EXPECT_EQ(entries(), std::vector<std::string>{"Russian Mod Tank"});
}

TEST_F(ModModeTest, ExistingModKeepsTheOpenUnitAndSavesItThere) {
    const std::string original = game.read(dataFile(Tiger));
    start();
    select(Tiger);
    userMod.create();
    writeFile(userMod.modFolder() + dataFile(Tiger), original);
    sendCommand(ModModeCommand);
    expectMode(userMod.modFolder());
    EXPECT_EQ(selected(), "") << "what is open is the game's";
    EXPECT_TRUE(isEnabled(DuplicateId));
    EXPECT_FALSE(isEnabled(DeleteId));
    const Window details = openDetails();
    details.setText(IDC_WEIGHT, "1");
    finish(details);
    EXPECT_EQ(game.read(dataFile(Tiger)), original);
    EXPECT_NE(readFile(userMod.modFolder() + dataFile(Tiger)).find("<weight>1</weight>"), std::string::npos);
    EXPECT_TRUE(fileExists(userMod.modFolder() + "Backups"));
    EXPECT_FALSE(game.exists("Backups"));

    window.startPress(DeleteId);
    answer({"Delete " + std::string(Tiger), "Are you sure you want to delete this squad?", {IDYES, IDNO}},
           IDYES);
    EXPECT_TRUE(eventually([&] { return entries().empty(); }));
    EXPECT_FALSE(fileExists(userMod.modFolder() + dataFile(Tiger)));
    EXPECT_EQ(game.read(dataFile(Tiger)), original);
}

TEST_F(ModModeTest, StartFindsTheUsersModBeforeTheProgramFolders) {
    game.write("Mod\\Mod.txt", "<mod></mod>");
    game.write("Mod\\" + dataFile("German Program Mod"), "<squad>");
    start();
    expectMode(game.path() + "Mod\\");
    EXPECT_EQ(entries(), std::vector<std::string>{"German Program Mod"});
    close();

    writeFile(userMod.modFolder() + dataFile("German User Mod"), "<squad>");
    start();
    expectMode(game.path() + "Mod\\");
    close();

    userMod.create();
    start();
    expectMode(userMod.modFolder());
    EXPECT_EQ(entries(), std::vector<std::string>{"German User Mod"});
}

TEST_F(ModModeTest, ModCommandsOpenTheirDialogs) {
    game.copyFromSample("Data\\Weapons");
    userMod.create();
    start();
    constexpr std::pair<int, std::string_view> dialogs[] = {
        {EditModCommand, "Edit Mod"},
        {32782, "Check Mod For Unneeded Duplicate Files"},
        {32783, "Check Mod For Unused Files"},
        {32785, "Check Mod For Missing Voice Files"},
    };
    for (const auto& [command, caption] : dialogs) {
        dismiss(openDialog(command, caption));
    }
}

TEST_F(ModModeTest, FolderThatCannotBeMadeIsReported) {
    writeFile(userMod.makerFolder() + "Varrocade", "in the way");
    start();
    select(Tiger);
    window.post(WM_COMMAND, MAKEWPARAM(ModModeCommand, 0));
    answer(createQuestion(), IDOK);
    answer({.caption = "Failed to create directory", .text = userMod.modFolder()});
    expectMode("");
    EXPECT_EQ(selected(), Tiger);
    EXPECT_TRUE(isEnabled(DuplicateId));
}

} // namespace varrocade::gui
