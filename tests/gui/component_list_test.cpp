#include "gui_test.h"
#include "layout_check.h"

namespace varrocade::gui {

namespace {

const Box DeleteQuestion = {
    "Delete Component", "Are you sure you want to delete this component?", {IDYES, IDNO}};

// What is written of new components, whose numbers are all zero, with the blank line behind.
constexpr std::string_view NewSuperstructure =
    "\t\t<superstructure>\r\n"
    "\t\t\t<width>0</width>\r\n"
    "\t\t\t<length>0</length>\r\n"
    "\t\t\t<height>0</height>\r\n"
    "\t\t\t<offsetX>0</offsetX>\r\n"
    "\t\t\t<offsetY>0</offsetY>\r\n"
    "\t\t\t<armour>\t\t\t\t// @0 means vertically upright, @90 is horizontal\r\n"
    "\t\t\t\t<front>0</front>\r\n"
    "\t\t\t\t<side>0</side>\r\n"
    "\t\t\t\t<rear>0</rear>\r\n"
    "\t\t\t\t<top>0</top>\r\n"
    "\t\t\t\t<bottom>0</bottom>\r\n"
    "\t\t\t</armour>\r\n"
    "\t\t</superstructure>\r\n\r\n";
constexpr std::string_view NewTurret =
    "\t\t<turret>\r\n"
    "\t\t\t<image_view>.png</image_view>\r\n"
    "\t\t\t<diameter>0</diameter>\r\n"
    "\t\t\t<height>0</height>\r\n"
    "\t\t\t<offsetX>0</offsetX>\r\n"
    "\t\t\t<offsetY>0</offsetY>\r\n"
    "\t\t\t<rotate_time>0</rotate_time>\r\n"
    "\t\t\t<armour>\t\t\t\t// @0 means vertically upright, @90 is horizontal\r\n"
    "\t\t\t\t<front>0</front>\r\n"
    "\t\t\t\t<side>0</side>\r\n"
    "\t\t\t\t<rear>0</rear>\r\n"
    "\t\t\t\t<top>0</top>\r\n"
    "\t\t\t\t<bottom>0</bottom>\r\n"
    "\t\t\t\t<mantlet>0</mantlet>\r\n"
    "\t\t\t</armour>\r\n"
    "\t\t</turret>\r\n\r\n";
constexpr std::string_view NewFixedWeapon = "\t\t<fixed_weapon>\r\n"
                                            "\t\t\t<offsetX>0</offsetX>\r\n"
                                            "\t\t\t<offsetY>0</offsetY>\r\n"
                                            "\t\t\t<offsetZ>0</offsetZ>\r\n"
                                            "\t\t\t<rotate_time>0</rotate_time>\r\n"
                                            "\t\t\t<rotate_left>0</rotate_left>\r\n"
                                            "\t\t\t<rotate_right>0</rotate_right>\r\n"
                                            "\t\t</fixed_weapon>\r\n\r\n";

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
    expectWellLaidOut(dialog);
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

TEST_F(ComponentListTest, ThirteenAreTheMostAndAllAreWritten) {
    const std::string before = tigerText();
    const Window details = startWith(Tiger);
    constexpr std::string_view kinds[] = {"Turret", "Superstructure", "Fixed Weapon"};
    for (std::size_t i = 3; i < 13; ++i) {
        add(details, kinds[i % 3]);
    }
    EXPECT_EQ(lines(details).back(), "13. Turret");
    for (int press = 0; press < 2; ++press) {
        details.startPress(IDC_ADD);
        answer({.caption = "Squad full",
                .text = "There are already the maximum number of components allowed per squad"});
    }
    EXPECT_TRUE(details.isEnabled()) << "nothing else opened";
    selectLine(details, 12);
    details.press(IDC_UP);
    EXPECT_EQ(lines(details)[11], "12. Turret");
    finish(details);

    // Superstructures stand before the turret; the others follow what was there, in the list's order.
    std::string superstructures;
    for (int i = 0; i < 3; ++i) {
        superstructures += NewSuperstructure;
    }
    std::string others = "\r\n";
    for (const char kind : std::string_view("twtwttw")) {
        others += kind == 't' ? NewTurret : NewFixedWeapon;
    }
    others.erase(others.size() - 2); // no blank line after the last one
    std::string expected = withReplaced(before, "\t\t<turret>", superstructures + "\t\t<turret>");
    expected.insert(expected.find("\t</vehicle>"), others);
    EXPECT_EQ(tigerText(), expected);
}

TEST_F(ComponentListTest, KeysDoWhatTheButtonsDo) {
    const Window details = startWith(Tiger);
    const Window components = details.control(IDC_COMPONENTS);
    components.choose(1);
    constexpr LPARAM withAlt = LPARAM{1} << 29;
    components.send(WM_SYSKEYDOWN, VK_DOWN, withAlt);
    EXPECT_EQ(lines(details)[2], "3. Turret (crew 3)");
    components.send(WM_SYSKEYDOWN, VK_DOWN, withAlt);
    components.send(WM_SYSKEYDOWN, VK_UP, withAlt);
    EXPECT_EQ(lines(details)[1], "2. Turret (crew 3)");
    components.pressKey(VK_INSERT);
    finish(editor->waitForDialog("Add New Component"));
    EXPECT_EQ(lines(details).back(), "4. Superstructure");
    components.pressKey(VK_DELETE);
    answer(DeleteQuestion, IDYES);
    EXPECT_EQ(lines(details).size(), 3U);

    // A button that can be pressed no more gives the keyboard to the list.
    components.choose(1);
    details.send(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(details.control(IDC_UP).handle()), TRUE);
    details.press(IDC_UP);
    EXPECT_EQ(editor->focus(), components);
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

TEST_F(ComponentListTest, CopiesAndTwinsCarryWhatTheirComponentDoes) {
    const Window details = startWith(Tiger);
    selectLine(details, 0);
    EXPECT_FALSE(details.control(IDC_COPY_COMPONENT).isEnabled()) << "a vehicle has one hull";
    EXPECT_FALSE(details.control(IDC_MIRROR_COMPONENT).isEnabled());
    selectLine(details, 2);
    details.press(IDC_COPY_COMPONENT);
    EXPECT_EQ(lines(details).back(), "4. Fixed Weapon (crew 1)");
    EXPECT_EQ(selectedLine(details), 3);
    details.press(IDC_MIRROR_COMPONENT);
    details.startPress(IDC_EDIT_COMPONENT);
    const Window twin = editor->waitForDialog("Fixed Weapon");
    const int offset = std::stoi(twin.control(IDC_OFFSET_X).text());
    finish(twin, IDCANCEL);
    finish(details);
    const std::string element = "<offsetX>" + std::to_string(-offset) + "</offsetX>";
    EXPECT_NE(tigerText().find(element, tigerText().find("<fixed_weapon>")), std::string::npos);
    EXPECT_NE(tigerText().find("<offsetX>" + std::to_string(offset) + "</offsetX>"), std::string::npos);
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

    // Leaving the vehicle keeps the change in memory, and the end of the program in the journal.
    list().choose(0);
    select(Tiger);
    details = openDetails();
    EXPECT_EQ(lines(details).back(), "4. Superstructure");
    finish(details, IDCANCEL);
    close();
    EXPECT_EQ(tigerText(), before);
    EXPECT_NE(game.read("Backups\\Unsaved\\" + dataFile(Tiger)).find("<superstructure>"), std::string::npos);
}

} // namespace varrocade::gui
