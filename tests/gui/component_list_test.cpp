#include "gui_test.h"

namespace varrocade::gui {

namespace {

const Box DeleteQuestion = {
    "Delete Component", "Are you sure you want to delete this component?", {IDYES, IDNO}};

} // namespace

class ComponentListTest : public GuiTest {
protected:
    using Lines = std::vector<std::string>;

    Window startWith(std::string_view vehicle) {
        start();
        select(vehicle);
        return openDetails();
    }
    static Lines lines(Window details) { return details.control(IDC_COMPONENTS).listTexts(); }
    static void selectLine(Window details, int index) { details.control(IDC_COMPONENTS).choose(index); }
    static LRESULT selectedLine(Window details) { return details.control(IDC_COMPONENTS).send(LB_GETCURSEL); }
    static void expectMoves(Window details, bool up, bool down) {
        EXPECT_EQ(details.control(IDC_UP).isEnabled(), up);
        EXPECT_EQ(details.control(IDC_DOWN).isEnabled(), down);
    }
    void add(Window details, std::string_view kind) const {
        details.startPress(IDC_ADD);
        const Window dialog = editor->waitForDialog("Add New Component");
        dialog.control(IDC_COMPONENT_KIND).choose(kind);
        finish(dialog);
    }
    [[nodiscard]] std::string tigerText() const { return game.read(dataFile(Tiger)); }
};

TEST_F(ComponentListTest, UpAndDownSwapNeighbours) {
    Window details = startWith(Tiger);
    EXPECT_EQ(lines(details), (Lines{"1. Hull (crew 1)", "2. Turret (crew 3)", "3. Fixed Weapon (crew 1)"}));
    expectMoves(details, false, false);
    selectLine(details, 0);
    expectMoves(details, false, true);
    selectLine(details, 1);
    expectMoves(details, true, true);
    details.press(IDC_DOWN);
    EXPECT_EQ(lines(details), (Lines{"1. Hull (crew 1)", "2. Fixed Weapon (crew 1)", "3. Turret (crew 3)"}));
    EXPECT_EQ(selectedLine(details), 2) << "the selection goes with the component";
    expectMoves(details, true, false);
    finish(details);
    EXPECT_LT(tigerText().find("<fixed_weapon>"), tigerText().find("<turret>"));

    details = openDetails();
    selectLine(details, 2);
    details.press(IDC_UP);
    EXPECT_EQ(lines(details), (Lines{"1. Hull (crew 1)", "2. Turret (crew 3)", "3. Fixed Weapon (crew 1)"}));
    details.press(IDC_UP);
    EXPECT_EQ(lines(details), (Lines{"1. Turret (crew 3)", "2. Hull (crew 1)", "3. Fixed Weapon (crew 1)"}));
    finish(details, IDCANCEL);
}

TEST_F(ComponentListTest, AddingAppends) {
    const Window details = startWith(Tiger);
    details.startPress(IDC_ADD);
    Window dialog = editor->waitForDialog("Add New Component");
    EXPECT_EQ(dialog.control(IDC_COMPONENT_KIND).choices(),
              (Lines{"Superstructure", "Fixed Weapon", "Turret"}));
    EXPECT_EQ(dialog.control(IDC_COMPONENT_KIND).text(), "Superstructure");
    finish(dialog, IDCANCEL);
    EXPECT_EQ(lines(details).size(), 3U);
    for (const std::string_view kind : {"Superstructure", "Fixed Weapon", "Turret"}) {
        add(details, kind);
        const std::string number = std::to_string(lines(details).size());
        EXPECT_EQ(lines(details).back(), number + ". " + std::string(kind)) << "nobody is in it yet";
    }
    EXPECT_EQ(lines(details).size(), 6U);
    finish(details);
    EXPECT_NE(tigerText().find("<superstructure>"), std::string::npos);
}

TEST_F(ComponentListTest, ThirteenAreTheMost) {
    std::string text = tigerText();
    const std::string superstructure = "\t\t<superstructure><height>40</height></superstructure>\r\n";
    const std::size_t end = text.find("\t</vehicle>");
    for (int i = 3; i < 12; ++i) {
        text.insert(end, superstructure);
    }
    game.write(dataFile(Tiger), text);
    const Window details = startWith(Tiger);
    EXPECT_EQ(lines(details).size(), 12U);
    add(details, "Turret");
    EXPECT_EQ(lines(details).size(), 13U);
    details.startPress(IDC_ADD);
    answer({.caption = "Squad full",
            .text = "There are already the maximum number of components allowed per squad"});
    EXPECT_EQ(lines(details).size(), 13U);
    EXPECT_TRUE(details.isEnabled()) << "nothing else opened";
    finish(details, IDCANCEL);
}

TEST_F(ComponentListTest, DeletingAsksAndSparesTheHull) {
    const Window details = startWith(Tiger);
    selectLine(details, 0);
    details.startPress(IDC_REMOVE);
    answer({.caption = "Delete Component", .text = "You cannot delete the Hull component!"});
    selectLine(details, 1);
    details.startPress(IDC_REMOVE);
    answer(DeleteQuestion, IDNO);
    EXPECT_EQ(lines(details).size(), 3U);
    details.startPress(IDC_REMOVE);
    answer(DeleteQuestion, IDYES);
    EXPECT_EQ(lines(details), (Lines{"1. Hull (crew 1)", "2. Fixed Weapon (crew 1)"}));
    finish(details);
    EXPECT_EQ(tigerText().find("<turret>"), std::string::npos);
    EXPECT_NE(tigerText().find("<fixed_weapon>"), std::string::npos);
}

TEST_F(ComponentListTest, ChangesAreUndoneAndSavedFromTheMenu) {
    Window details = startWith(Tiger);
    const std::string before = tigerText();
    add(details, "Superstructure");
    add(details, "Turret");
    finish(details, IDCANCEL);
    const auto count = [&] {
        const Window dialog = openDetails();
        const std::size_t lineCount = lines(dialog).size();
        finish(dialog, IDCANCEL);
        return lineCount;
    };
    EXPECT_FALSE(menuState(IDM_UNDO) & MF_GRAYED);
    EXPECT_TRUE(menuState(IDM_REDO) & MF_GRAYED);
    sendCommand(IDM_UNDO);
    EXPECT_EQ(count(), 4U);
    sendCommand(IDM_UNDO);
    EXPECT_EQ(count(), 3U);
    EXPECT_TRUE(menuState(IDM_UNDO) & MF_GRAYED);
    EXPECT_TRUE(menuState(IDM_SAVE) & MF_GRAYED) << "the vehicle is as its file";
    sendCommand(IDM_REDO);
    EXPECT_EQ(count(), 4U);
    EXPECT_EQ(tigerText(), before);
    sendCommand(IDM_SAVE);
    EXPECT_NE(tigerText().find("<superstructure>"), std::string::npos);
    EXPECT_TRUE(menuState(IDM_SAVE) & MF_GRAYED);
    EXPECT_EQ(game.backups(dataFile(Tiger)), Lines{before});
}

TEST_F(ComponentListTest, CancellingKeepsTheComponentsOnly) {
    Window details = startWith(Tiger);
    const std::string before = tigerText();
    add(details, "Superstructure");
    details.setText(IDC_LONG_NAME, "Lost");
    finish(details, IDCANCEL);
    EXPECT_EQ(tigerText(), before);
    details = openDetails();
    EXPECT_EQ(lines(details).back(), "4. Superstructure");
    EXPECT_NE(details.control(IDC_LONG_NAME).text(), "Lost");
    finish(details, IDCANCEL);

    // Leaving the vehicle drops the change from the file's view, but it is not lost.
    list().choose(0);
    select(Tiger);
    details = openDetails();
    EXPECT_EQ(lines(details).size(), 3U);
    finish(details, IDCANCEL);
    EXPECT_EQ(tigerText(), before);
    const Lines kept = game.backups(dataFile(Tiger));
    ASSERT_EQ(kept.size(), 1U);
    EXPECT_NE(kept[0].find("<superstructure>"), std::string::npos);

    details = openDetails();
    add(details, "Turret");
    finish(details, IDCANCEL);
    close();
    EXPECT_EQ(game.backups(dataFile(Tiger)).size(), 2U) << "nor is it at the end of the program";
}

} // namespace varrocade::gui
