// "Where used...", "Rename everywhere...", and going back and forward.

#include "gui_test.h"
#include "layout_check.h"

#include <algorithm>

namespace varrocade::gui {

class WhereUsedTest : public GuiTest {
protected:
    static constexpr std::string_view Kwk36 = "WEAPON_CANNON_88_KWK36_L56";

    void SetUp() override {
        GuiTest::SetUp();
        game.copyFromSample("Data\\Weapons");
        start();
        chooseCategory(WeaponsId);
        select(Kwk36);
    }
    static void waitForUses(Window dialog, std::string_view summary) {
        EXPECT_TRUE(eventually([&] { return dialog.control(IDC_USED_SUMMARY).text().starts_with(summary); }))
            << dialog.control(IDC_USED_SUMMARY).text();
    }
    [[nodiscard]] bool hasTiger(std::string_view weapon) const {
        return game.read(dataFile(Tiger)).find("<type>" + std::string(weapon) + "</type>") !=
               std::string::npos;
    }
};

TEST_F(WhereUsedTest, LinksOpenTheUsersAndTheWayLeadsBack) {
    const Window dialog = openDialog(IDM_WHERE_USED, "Where Used");
    expectWellLaidOut(dialog);
    EXPECT_EQ(dialog.control(IDC_USED_NAME).text(), "weapon: " + std::string(Kwk36));
    waitForUses(dialog, "4 places in 1 file.");
    dialog.press(IDC_COPY_TABLE);
    EXPECT_TRUE(clipboardText().starts_with("Vehicles: " + std::string(Tiger) +
                                            "\t83\tvehicle.turret[1].weapon[1].type\tweapon\r\n"))
        << clipboardText();
    dialog.press(IDC_SHOW_FILE);
    EXPECT_EQ(selected(), Tiger);
    EXPECT_TRUE(window.control(IDC_DRAWING).text().starts_with("Drawing: Cannon 88 KWK36 L56,"))
        << "the part that names it";
    EXPECT_TRUE(dialog.exists()) << "for the next one";
    // Any name can be typed.
    dialog.setText(IDC_USED_NAME, "NATIONALITY_FINNISH");
    dialog.send(WM_COMMAND, MAKEWPARAM(IDC_USED_NAME, CBN_EDITCHANGE),
                reinterpret_cast<LPARAM>(dialog.control(IDC_USED_NAME).handle()));
    waitForUses(dialog, "1 place in 1 file.");
    EXPECT_FALSE(dialog.control(IDC_USED_RENAME).isEnabled()) << "of nationalities there is no file";
    finish(dialog, IDCANCEL);

    sendCommand(IDM_BACK);
    EXPECT_EQ(selected(), Kwk36);
    EXPECT_NE(menuState(IDM_BACK) & MF_GRAYED, 0U);
    sendCommand(IDM_FORWARD);
    EXPECT_EQ(selected(), Tiger);
}

TEST_F(WhereUsedTest, RenamingEverywhereIsShownFirstAndUndoneAsOne) {
    const Window dialog = openDialog(RenameId, "Rename");
    dialog.setText(IDC_NEW_NAME, "WEAPON_CANNON_88_NEW");
    dialog.startPress(IDOK);
    Window plan = editor->waitForDialog("Rename Everywhere");
    expectWellLaidOut(plan);
    plan.press(IDC_COPY_TABLE);
    EXPECT_NE(clipboardText().find(dataFile(Tiger) + "\t83\tvehicle.turret[1].weapon[1].type\t"),
              std::string::npos)
        << clipboardText();
    plan.startPress(IDOK);
    expectGone(plan, dialog);
    expectGone(dialog, window);
    EXPECT_EQ(selected(), "WEAPON_CANNON_88_NEW");
    EXPECT_TRUE(hasTiger("WEAPON_CANNON_88_NEW"));
    EXPECT_FALSE(game.exists(dataFile(Kwk36, "Weapons")));
    sendCommand(IDM_UNDO);
    EXPECT_TRUE(hasTiger(Kwk36) && game.exists(dataFile(Kwk36, "Weapons")));
    EXPECT_EQ(selected(), Kwk36);

    // A sound that the weapon names, from the list of its users.
    const Window used = openDialog(IDM_WHERE_USED, "Where Used");
    const auto choices = used.control(IDC_USED_NAME).choices();
    const auto isSound = [](const std::string& choice) { return choice.starts_with("sound: "); };
    const auto found = std::find_if(choices.begin(), choices.end(), isSound);
    ASSERT_NE(found, choices.end());
    const std::string& sound = *found;
    used.control(IDC_USED_NAME).choose(sound);
    waitForUses(used, "");
    used.startPress(IDC_USED_RENAME);
    const Window ask = editor->waitForDialog("Rename the sound everywhere");
    ask.setText(IDC_NEW_NAME, "boom");
    ask.startPress(IDOK);
    answer({.caption = "Error", .text = "There is no file of the sound " + sound.substr(7)});
    game.write("Sounds\\" + sound.substr(7) + ".wav", "");
    ask.startPress(IDOK);
    plan = editor->waitForDialog("Rename Everywhere");
    EXPECT_FALSE(plan.control(IDC_RENAME_FILE_ONLY).isVisible());
    plan.startPress(IDOK);
    expectGone(plan, ask);
    expectGone(ask, window);
    EXPECT_NE(game.read(dataFile(Kwk36, "Weapons")).find(">boom<"), std::string::npos);
    EXPECT_TRUE(game.exists("Sounds\\boom.wav"));
    finish(used, IDCANCEL);
}

} // namespace varrocade::gui
