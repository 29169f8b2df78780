// The window "Problems": finds beside the window, leads to the field, mends, and follows what is done.

#include "gui_test.h"
#include "layout_check.h"

#include <commctrl.h>

namespace varrocade::gui {

namespace {

constexpr std::string_view Gun = "<weapon><type>WEAPON_CANNON_88_KWK36_L56</type>";
constexpr std::string_view Misspelt = "<weapon><type>WEAPON_CANNON_88_KWK63_L56</type>";

} // namespace

class ProblemsTest : public GuiTest {
protected:
    /// Starts with a gun misspelt in one vehicle.
    void startMisspelt() {
        for (const std::string_view folder : {"Data\\Weapons", "Images", "Sounds"}) {
            game.copyFromSample(folder);
        }
        // The files of the sample that are as they are on purpose.
        game.copyFromSample("Checks.txt");
        broken = withReplaced(game.read(dataFile(Tiger)), Gun, Misspelt);
        game.write(dataFile(Tiger), broken);
        start();
    }
    [[nodiscard]] static int rows(Window problems) {
        return static_cast<int>(problems.control(IDC_PROBLEMS_LIST).send(LVM_GETITEMCOUNT));
    }
    /// Opens the window on the errors alone, and waits until all files were looked at.
    [[nodiscard]] Window openProblems() const {
        Window problems = openDialog(IDM_PROBLEMS, "Problems");
        problems.control(IDC_PROBLEMS_WARNINGS).send(BM_CLICK);
        problems.control(IDC_PROBLEMS_NOTES).send(BM_CLICK);
        EXPECT_TRUE(eventually([&] {
            const std::string count = problems.control(IDC_PROBLEMS_COUNT).text();
            return count.find("checking") == std::string::npos;
        }));
        return problems;
    }

    std::string broken;
};

TEST_F(ProblemsTest, LeadsToTheFieldAndMendsIt) {
    startMisspelt();
    const Window problems = openProblems();
    expectWellLaidOut(problems);
    ASSERT_EQ(problems.control(IDC_PROBLEMS_COUNT).text(), "1 error");
    ASSERT_EQ(rows(problems), 1);

    problems.startPress(IDOK);
    const Window weapons = editor->waitForDialog("Turret 2: weapons");
    ASSERT_TRUE(weapons);
    EXPECT_EQ(selected(), Tiger);
    EXPECT_TRUE(eventually(
        [&] { return Window(GetParent(editor->focus().handle())) == weapons.control(IDC_WEAPON_TYPE); }));
    finish(weapons, IDCANCEL);

    problems.press(IDC_PROBLEMS_FIX);
    EXPECT_EQ(rows(problems), 0);
    EXPECT_EQ(problems.control(IDC_PROBLEMS_COUNT).text(),
              "No problems; 1 problem fixed in 1 file, 1 of them not saved yet");
    sendCommand(IDM_UNDO);
    EXPECT_TRUE(eventually([&] { return rows(problems) == 1; })) << "the open file is checked again";
    EXPECT_EQ(game.read(dataFile(Tiger)), broken);
    finish(problems, IDCANCEL);
}

TEST_F(ProblemsTest, MendsAFileThatIsNotOpenAndTakesItBack) {
    startMisspelt();
    chooseCategory(WeaponsId);
    const Window problems = openProblems();
    ASSERT_EQ(rows(problems), 1);
    problems.press(IDC_PROBLEMS_FIX);
    EXPECT_EQ(rows(problems), 0);
    EXPECT_EQ(game.read(dataFile(Tiger)), withReplaced(broken, Misspelt, Gun));
    sendCommand(IDM_UNDO);
    EXPECT_EQ(game.read(dataFile(Tiger)), broken);
    EXPECT_TRUE(eventually([&] { return rows(problems) == 1; }));
    problems.control(IDC_PROBLEMS_SCOPE).choose("Category");
    EXPECT_EQ(rows(problems), 0);
    finish(problems, IDCANCEL);
}

TEST_F(ProblemsTest, F8GoesToAProblemBeforeTheWindowWasOpen) {
    startMisspelt();
    chooseCategory(WeaponsId);
    const Window problems = openDialog(IDM_NEXT_PROBLEM, "Problems");
    EXPECT_TRUE(eventually([&] { return rows(problems) > 0; }));
    problems.control(IDC_PROBLEMS_WARNINGS).send(BM_CLICK);
    problems.control(IDC_PROBLEMS_NOTES).send(BM_CLICK);
    sendCommand(IDM_NEXT_PROBLEM);
    EXPECT_TRUE(eventually([&] { return selected() == Tiger; }));
    finish(problems, IDCANCEL);
}

} // namespace varrocade::gui
