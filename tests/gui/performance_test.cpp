// "Weight and top speed..." and "Compare vehicles...".

#include "gui_test.h"
#include "layout_check.h"

namespace varrocade::gui {

class PerformanceTest : public GuiTest {
protected:
    static constexpr std::string_view Caption = "Weight and Top Speed";

    void SetUp() override {
        GuiTest::SetUp();
        game.copyFromSample("Data\\Weapons");
    }
    [[nodiscard]] std::string weightInDetails() const {
        const Window details = openDetails();
        std::string weight = details.control(IDC_WEIGHT).text();
        finish(details, IDCANCEL);
        return weight;
    }
};

TEST_F(PerformanceTest, FollowsTheGroundAndItsEstimateIsTakenAndUndone) {
    start();
    EXPECT_NE(menuState(IDM_PERFORMANCE) & MF_GRAYED, 0U) << "no vehicle is open";
    select(Tiger);
    const Window dialog = openDialog(IDM_PERFORMANCE, Caption);
    expectWellLaidOut(dialog);
    EXPECT_TRUE(
        dialog.control(IDC_WEIGHT_SENTENCE).text().starts_with("Weight given: 56,900 kg. Estimate: "));
    const std::string onRoad = dialog.control(IDC_DRIVING_TEXT).text();
    dialog.control(IDC_SURFACE).choose("Sand");
    const std::string onSand = dialog.control(IDC_DRIVING_TEXT).text();
    EXPECT_NE(onSand, onRoad);
    dialog.setText(IDC_SLOPE, "12");
    const std::string uphill = dialog.control(IDC_DRIVING_TEXT).text();
    EXPECT_NE(uphill, onSand);
    dialog.setText(IDC_SLOPE, "steep");
    EXPECT_EQ(dialog.control(IDC_DRIVING_TEXT).text(), uphill) << "as long as it is no number";
    dialog.press(IDC_COPY_TABLE);
    const std::string table = clipboardText();
    EXPECT_TRUE(table.starts_with(std::string(Tiger) + "\ttracked\t\r\nWeight given\t56900\tkg\r\n"))
        << table;
    EXPECT_NE(table.find("Surface\tsand\t\r\nSlope\t12\tpercent\r\n"), std::string::npos) << table;

    dialog.press(IDC_TAKE_ESTIMATE);
    const std::string sentence = dialog.control(IDC_WEIGHT_SENTENCE).text();
    EXPECT_TRUE(sentence.ends_with("as given.")) << sentence;
    EXPECT_FALSE(dialog.control(IDC_TAKE_ESTIMATE).isEnabled());
    finish(dialog, IDCANCEL);
    const std::string taken = weightInDetails();
    EXPECT_NE(taken, "56900");
    EXPECT_TRUE(taken.ends_with("00")) << taken;
    sendCommand(IDM_UNDO);
    EXPECT_EQ(weightInDetails(), "56900");
}

TEST_F(PerformanceTest, InDriveItGoesByWhatIsTyped) {
    start();
    select(Tiger);
    const Window details = openDetails();
    details.startPress(IDC_DRIVE);
    const Window drive = editor->waitForDialog("Drive");
    expectWellLaidOut(drive);
    const std::string before = drive.control(IDC_DRIVE_FIGURES).text();
    EXPECT_TRUE(before.starts_with("Estimate: ")) << before;
    drive.setText(IDC_HORSEPOWER, "200");
    EXPECT_NE(drive.control(IDC_DRIVE_FIGURES).text(), before) << "while it is typed";
    drive.startPress(IDC_PERFORMANCE);
    const Window dialog = editor->waitForDialog(Caption);
    EXPECT_FALSE(dialog.control(IDC_COMPARE).isEnabled()) << "the open vehicle cannot be left here";
    const std::string weak = dialog.control(IDC_DRIVING_TEXT).text();
    drive.setText(IDC_HORSEPOWER, "1400");
    const std::string strong = dialog.control(IDC_DRIVING_TEXT).text();
    EXPECT_NE(strong, weak) << "it stands beside the dialog and follows the typing";
    drive.setText(IDC_HORSEPOWER, "200");
    EXPECT_EQ(dialog.control(IDC_DRIVING_TEXT).text(), weak);
    dialog.press(IDC_COPY_TABLE);
    const std::string table = clipboardText();
    const std::string estimate = "Weight estimated\t";
    EXPECT_NE(table.find(estimate), std::string::npos);
    dialog.press(IDC_TAKE_ESTIMATE);
    EXPECT_NE(drive.control(IDC_DRIVE_FIGURES).text().find("as given"), std::string::npos);
    finish(drive, IDCANCEL);
    const std::string taken = details.control(IDC_WEIGHT).text();
    EXPECT_NE(taken, "56900") << "the form would put it back";
    EXPECT_NE(dialog.control(IDC_DRIVING_TEXT).text(), weak) << "Drive was cancelled";
    details.setText(IDC_WEIGHT, "90000");
    const std::string sentence = dialog.control(IDC_WEIGHT_SENTENCE).text();
    EXPECT_TRUE(sentence.starts_with("Weight given: 90,000 kg.")) << sentence;
    dialog.press(IDC_TAKE_ESTIMATE);
    const std::string typed = details.control(IDC_WEIGHT).text();
    EXPECT_TRUE(typed != "90000" && typed.ends_with("00")) << typed << ", as if it had been typed";
    finish(details, IDCANCEL);
    // It finds its place again, and what was chosen in it.
    dialog.control(IDC_SURFACE).choose("Sand");
    SetWindowPos(dialog.handle(), nullptr, 40, 50, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    finish(dialog, IDCANCEL);
    const Window again = openDialog(IDM_PERFORMANCE, Caption);
    RECT place{};
    GetWindowRect(again.handle(), &place);
    EXPECT_EQ(place.left, 40);
    EXPECT_EQ(place.top, 50);
    EXPECT_EQ(again.control(IDC_SURFACE).text(), "Sand");
    chooseCategory(InfantryId);
    EXPECT_EQ(again.control(IDC_WEIGHT_SENTENCE).text(), "No vehicle is open.");
    chooseCategory(VehiclesId);
    EXPECT_TRUE(again.control(IDC_TAKE_ESTIMATE).exists());
    finish(again, IDCANCEL);
    sendCommand(IDM_UNDO);
    EXPECT_EQ(weightInDetails(), "56900");
}

TEST_F(PerformanceTest, ComparesAllVehiclesAndOpensTheOneThatIsClicked) {
    game.write("Data\\Vehicles\\Heavy Tiger.txt",
               withReplaced(game.read("Data\\Vehicles\\" + std::string(Tiger) + ".txt"),
                            "<weight>56900</weight>", "<weight>156900</weight>"));
    start();
    select(Tiger);
    const Window performance = openDialog(IDM_PERFORMANCE, Caption);
    performance.startPress(IDC_COMPARE);
    Window dialog = editor->waitForDialog("Compare Vehicles");
    const auto isDone = [&] {
        return dialog.control(IDC_COMPARISON_PROGRESS).text().ends_with("1 out of line.");
    };
    ASSERT_TRUE(eventually(isDone)) << dialog.control(IDC_COMPARISON_PROGRESS).text();
    expectWellLaidOut(dialog);
    EXPECT_EQ(dialog.control(IDCANCEL).text(), "Close");
    dialog.press(IDC_COPY_TABLE);
    EXPECT_NE(clipboardText().find("Heavy Tiger\t156900\t"), std::string::npos);
    const Window points = dialog.control(IDC_VEHICLE_POINTS);
    const Area area = points.areaInParent();
    std::string pointed;
    LPARAM place = 0;
    for (int y = 10; y < area.height && pointed.empty(); y += 8) {
        for (int x = 40; x < area.width && pointed.empty(); x += 8) {
            place = MAKELPARAM(x, y);
            points.send(WM_MOUSEMOVE, 0, place);
            pointed = dialog.control(IDC_POINTED_VEHICLE).text();
        }
    }
    ASSERT_FALSE(pointed.empty());
    points.post(WM_LBUTTONDOWN, 0, place);
    EXPECT_TRUE(eventually([&] { return !dialog.exists(); }));
    const std::string shown = pointed.substr(0, pointed.find(','));
    ASSERT_TRUE(eventually([&] { return selected() == shown; }));
    performance.press(IDC_COPY_TABLE);
    EXPECT_TRUE(clipboardText().starts_with(shown + "\t")) << "it follows to the vehicle that was chosen";
    finish(performance, IDCANCEL);

    // From the menu, and by the list of what is out of line.
    dialog = openDialog(IDM_COMPARE_VEHICLES, "Compare Vehicles");
    ASSERT_TRUE(eventually(isDone));
    dialog.control(IDC_UPWARDS).choose("Power to weight (hp/t)");
    ASSERT_TRUE(dialog.control(IDC_SHOW_FILE).isEnabled());
    finish(dialog, IDC_SHOW_FILE);
    EXPECT_EQ(selected(), "Heavy Tiger");
}

} // namespace varrocade::gui
