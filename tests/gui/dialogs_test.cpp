// The dialogs behind "Details": each is opened, refuses, is cancelled, is saved, and the file is compared.

#include "gui_test.h"
#include "layout_check.h"

namespace varrocade::gui {

namespace {

/// From a dialog to the next one: by a button, or by the line of the component list.
struct Step {
    int control;
    std::string_view caption;
    int line = 0;
};

/// What a user does in a dialog.
struct Action {
    enum class Kind { SetText, Click, Press, ChooseText, ChooseLine };
    Kind kind;
    int control;
    std::string_view text = {};
    int line = 0;
};

Action setText(int control, std::string_view text) {
    return {Action::Kind::SetText, control, text};
}
Action click(int control) {
    return {Action::Kind::Click, control};
}
Action press(int control) {
    return {Action::Kind::Press, control};
}
Action choose(int control, std::string_view text) {
    return {Action::Kind::ChooseText, control, text};
}
Action chooseLine(int control, int line) {
    return {Action::Kind::ChooseLine, control, {}, line};
}

struct DialogCase {
    std::vector<Step> path;
    std::vector<Action> wrong; ///< what OK refuses
    Box refusal;
    int focused; ///< the field that has the keyboard then
    std::vector<Action> changes;
    /// What the file has then in place of what.
    std::vector<std::pair<std::string_view, std::string_view>> replacements;
};

constexpr std::string_view Superstructure =
    "\t\t<superstructure>\r\n"
    "\t\t\t<width>180</width>\r\n"
    "\t\t\t<length>190</length>\r\n"
    "\t\t\t<height>40</height>\r\n"
    "\t\t\t<offsetX>0</offsetX>\r\n"
    "\t\t\t<offsetY>-20</offsetY>\r\n"
    "\t\t\t<armour>\t\t\t\t// @0 means vertically upright, @90 is horizontal\r\n"
    "\t\t\t\t<front>30</front>\r\n"
    "\t\t\t\t<side>20</side>\r\n"
    "\t\t\t\t<rear>20</rear>\r\n"
    "\t\t\t\t<top>10</top>\r\n"
    "\t\t\t</armour>\r\n"
    "\t\t</superstructure>\r\n"
    "\r\n";

const Step HullStep = {IDC_COMPONENTS, "Hull", 0};
const Step SuperstructureStep = {IDC_COMPONENTS, "Superstructure", 1};
const Step TurretStep = {IDC_COMPONENTS, "Turret", 2};
const Step FixedWeaponStep = {IDC_COMPONENTS, "Fixed Weapon", 3};

Box refusal(std::string_view caption, std::string_view text) {
    return {std::string(caption), std::string(text), {IDOK}};
}

std::vector<DialogCase> driveAndDateCases() {
    return {
        {{{IDC_DRIVE, "Drive"}},
         {setText(IDC_RPM_LIMIT, "100")},
         refusal("Drive", "The revolution limit must not be below the idle revolutions"),
         IDC_RPM_LIMIT,
         {setText(IDC_RPM_LIMIT, "2600"), choose(IDC_ENGINE, "Buick Series 60"), click(IDC_SMOKE_SCREEN),
          choose(IDC_ENGINE_MOUNT, "Front")},
         {{"Maybach HL230 P45", "Buick Series 60"},
          {"<horsepower>700", "<horsepower>330"},
          {"RELIABILITY_POOR</reliability>\r\n",
           "RELIABILITY_POOR</reliability>\r\n\t\t\t\t<mount>MOUNT_FRONT</mount>\r\n"},
          {"_MAYBACH</steering>\r\n",
           "_MAYBACH</steering>\r\n\t\t\t<can_make_smoke_screen>yes</can_make_smoke_screen>\r\n"}}},
        {{{IDC_DRIVE, "Drive"}, {IDC_EXHAUSTS_BUTTON, "Exhaust Pipes"}},
         {setText(IDC_OFFSET_X, "far")},
         refusal("Exhaust Pipes", "\"OffsetX\" must be a whole number"),
         IDC_OFFSET_X,
         {setText(IDC_OFFSET_X, "-50"), setText(IDC_ANGLE, "135"), press(IDC_ENTRY_MIRROR),
          setText(IDC_VERTICAL_ANGLE, "0"), chooseLine(IDC_ENTRY_LIST, 1), press(IDC_ENTRY_DELETE)},
         {{"<exhaust_pipe><offsetX>-56</offsetX><offsetY>-302</offsetY><vertical_angle>90",
           "<exhaust_pipe><offsetX>-50</offsetX><offsetY>-302</offsetY><angle>135</angle><vertical_angle>90"},
          {"<offsetX>56</offsetX><offsetY>-302</offsetY><vertical_angle>90</vertical_angle>",
           "<offsetX>50</offsetX><offsetY>-302</offsetY><angle>225</angle>"}}},
        {{{IDC_AVAILABILITY, "Availability"}},
         {setText(IDC_MONTH, "13")},
         refusal("Availability", "\"Month\" must be a whole number from 1 to 12"),
         IDC_MONTH,
         {setText(IDC_MONTH, "9"), press(IDC_ENTRY_ADD), setText(IDC_NUMBER, "7"), press(IDC_ENTRY_SORT)},
         {{"<data><month>8</month>", "<data><month>9</month>"},
          {"<number>50</number></data>\r\n",
           "<number>50</number></data>\r\n"
           "\t\t<data><month>5</month><year>1945</year><number>7</number></data>\r\n"}}},
    };
}

std::vector<DialogCase> hullCases() {
    return {
        {{HullStep},
         {setText(IDC_WIDTH, "wide")},
         refusal("Error", "\"Width\" must be a whole number"),
         IDC_WIDTH,
         {setText(IDC_WIDTH, "372"), setText(IDC_DESTROYED_IMAGE, "")},
         {{"<width>371", "<width>372"},
          {"\t\t\t<image_destroyed>German Panzer VI Tiger Ausf E hull destroyed.png</image_destroyed>\r\n",
           ""}}},
        {{HullStep, {IDC_ARMOUR_BUTTON, "Hull 1: armour"}},
         {setText(IDC_PLATES + 1, "91")},
         refusal("Armour", "\"Upper front angle\" must be a whole number from 0 to 90"),
         IDC_PLATES + 1,
         {setText(IDC_PLATES + 1, "10"), setText(IDC_PLATES + 6, "90"), press(IDC_MIRROR_ARMOUR),
          click(IDC_BOTTOM_GIVEN)},
         {{"100@9", "100@10"},
          {"<upper_side>80", "<upper_side>90"},
          {"\t\t\t\t<bottom>25</bottom>\r\n", ""}}},
        {{HullStep, {IDC_DISCHARGERS_BUTTON, "Hull 1: smoke dischargers"}},
         {press(IDC_ENTRY_ADD), setText(IDC_ROUNDS, "-1")},
         refusal("Smoke Dischargers", "\"Rounds\" must be a whole number of at least 0"),
         IDC_ROUNDS,
         {setText(IDC_ROUNDS, "5"), setText(IDC_OFFSET_X, "-100"), click(IDC_DIRECTIONAL),
          click(IDC_ANGLE_GIVEN), setText(IDC_ANGLE, "-30"), press(IDC_ENTRY_MIRROR)},
         {{"\t\t\t</armour>\r\n", "\t\t\t</armour>\r\n"
                                  "\t\t\t<smoke_discharger><offsetX>-100</offsetX><offsetY>0</"
                                  "offsetY><angle>-30</angle><speed>0</speed>"
                                  "<ammo>5</ammo><reload>0</reload></smoke_discharger>\r\n"
                                  "\t\t\t<smoke_discharger><offsetX>100</offsetX><offsetY>0</"
                                  "offsetY><angle>30</angle><speed>0</speed>"
                                  "<ammo>5</ammo><reload>0</reload></smoke_discharger>\r\n"}}},
        {{HullStep, {IDC_CREW_BUTTON, "Hull 1: crew"}},
         {},
         {},
         0,
         {press(IDC_ENTRY_COPY), choose(IDC_JOB, "JOB_RADIO"), click(IDC_BODY_ARMOUR), press(IDC_ENTRY_UP)},
         {{"\t\t\t\t<job>JOB_DRIVER</job>\r\n",
           "\t\t\t\t<job>JOB_RADIO</job>\r\n\t\t<body_armour>yes</body_armour>\r\n"
           "\t\t\t\t<weapon><type>WEAPON_PISTOL_P38</type></weapon>\r\n"
           "\t\t\t\t<ammo><for>WEAPON_PISTOL_P38</for><rounds>16</rounds></ammo>\r\n"
           "\t\t\t</man>\r\n\r\n\t\t\t<man>\r\n\t\t\t\t<job>JOB_DRIVER</job>\r\n"}}},
        {{HullStep,
          {IDC_CREW_BUTTON, "Hull 1: crew"},
          {IDC_MAN_WEAPONS_BUTTON, "Hull 1, man 1: personal weapons"}},
         {},
         {},
         0,
         {press(IDC_ENTRY_ADD), choose(IDC_WEAPON_TYPE, "WEAPON_SMG_MP40")},
         {{"P38</type></weapon>\r\n", "P38</type></weapon>\r\n"
                                      "\t\t\t\t<weapon><type>WEAPON_SMG_MP40</type></weapon>\r\n"}}},
        {{HullStep, {IDC_CREW_BUTTON, "Hull 1: crew"}, {IDC_MAN_AMMO_BUTTON, "Hull 1, man 1: ammunition"}},
         {setText(IDC_ROUNDS, "some")},
         refusal("Ammunition", "\"Rounds\" must be a whole number of at least 0"),
         IDC_ROUNDS,
         {setText(IDC_ROUNDS, "24")},
         {{"<rounds>16", "<rounds>24"}}},
    };
}

std::vector<DialogCase> turretCases() {
    return {
        {{SuperstructureStep},
         {setText(IDC_OFFSET_Y, "")},
         refusal("Error", "\"OffsetY\" must be a whole number"),
         IDC_OFFSET_Y,
         {setText(IDC_OFFSET_Y, "-25")},
         {{"<offsetY>-20", "<offsetY>-25"}}},
        {{TurretStep},
         {click(IDC_LIMITED_TRAVERSE), setText(IDC_ROTATE_LEFT, "181"), setText(IDC_ROTATE_RIGHT, "180")},
         refusal("Rotate angles",
                 "The turret rotate left and right angles must add up to less that 360 degrees"),
         IDC_ROTATE_LEFT,
         {setText(IDC_ROTATE_LEFT, "180"), setText(IDC_OFFSET_ANGLE, "-180"),
          setText(IDC_ROTATE_SPEED, "12.0"), click(IDC_ANTI_AIRCRAFT), click(IDC_NIGHT_VISION)},
         {{"<rotate_time>60</rotate_time>\r\n",
           "<rotate_time>30</rotate_time>\r\n\t\t\t<rotate_left>180</rotate_left>\r\n"
           "\t\t\t<rotate_right>180</rotate_right>\r\n\t\t\t<offset_angle>-180</offset_angle>\r\n"
           "\t\t\t<AA>yes</AA>\r\n\t\t\t<night_vision>yes</night_vision>\r\n"}}},
        {{TurretStep, {IDC_WEAPONS_BUTTON, "Turret 3: weapons"}},
         {setText(IDC_OFFSET_ANGLE, "361")},
         refusal("Weapons", "\"Angle\" must be a whole number from -360 to 360"),
         IDC_OFFSET_ANGLE,
         {setText(IDC_OFFSET_ANGLE, "5")},
         {{"<offsetY>145</offsetY>", "<offsetY>145</offsetY><offset_angle>5</offset_angle>"}}},
        {{TurretStep, {IDC_WEAPONS_BUTTON, "Turret 3: weapons"}, {IDC_AMMO_BUTTON, "Turret 3: ammunition"}},
         {setText(IDC_ROUNDS, "-1")},
         refusal("Ammunition", "\"Rounds\" must be a whole number of at least 0"),
         IDC_ROUNDS,
         {setText(IDC_ROUNDS, "40"), choose(IDC_FLAVOUR, "FLAVOUR_APCR")},
         {{"FLAVOUR_APCBC</flavour><rounds>44", "FLAVOUR_APCR</flavour><rounds>40"}}},
        {{FixedWeaponStep},
         {setText(IDC_OFFSET_Z, "0")},
         refusal("Error", "OffsetZ must be greater than zero"),
         IDC_OFFSET_Z,
         {setText(IDC_OFFSET_Z, "151"), setText(IDC_ROTATE_SPEED, "14.4")},
         {{"<offsetZ>150", "<offsetZ>151"}, {"<rotate_time>24", "<rotate_time>25"}}},
    };
}

} // namespace

class DialogsTest : public GuiTest {
protected:
    void SetUp() override {
        GuiTest::SetUp();
        game.copyFromSample("Data\\Weapons");
        game.write(dataFile(Tiger),
                   withReplaced(tigerText(), "\t\t<turret>", std::string(Superstructure) + "\t\t<turret>"));
    }
    [[nodiscard]] std::string tigerText() const { return game.read(dataFile(Tiger)); }

    /// "Details" and the dialogs on the path, the last one in front.
    [[nodiscard]] std::vector<Window> open(const std::vector<Step>& path) const {
        std::vector<Window> dialogs = {openDetails()};
        for (const Step& step : path) {
            if (step.control == IDC_COMPONENTS) {
                const Window components = dialogs.back().control(IDC_COMPONENTS);
                components.choose(step.line);
                dialogs.back().post(WM_COMMAND, MAKEWPARAM(IDC_COMPONENTS, LBN_DBLCLK),
                                    reinterpret_cast<LPARAM>(components.handle()));
            } else {
                dialogs.back().startPress(step.control);
            }
            dialogs.push_back(editor->waitForDialog(step.caption));
        }
        return dialogs;
    }
    /// The last one first, as they stand one above the other.
    void closeAll(std::vector<Window> dialogs, int button) const {
        for (; !dialogs.empty(); dialogs.pop_back()) {
            finish(dialogs.back(), button);
        }
    }
    static void act(Window dialog, const std::vector<Action>& actions) {
        for (const Action& action : actions) {
            const Window control = dialog.control(action.control);
            EXPECT_TRUE(control.isEnabled()) << action.control;
            switch (action.kind) {
            case Action::Kind::SetText:
                dialog.setText(action.control, action.text);
                break;
            case Action::Kind::Click:
                control.send(BM_CLICK);
                break;
            case Action::Kind::Press:
                dialog.press(action.control);
                break;
            case Action::Kind::ChooseText:
                control.choose(action.text);
                break;
            case Action::Kind::ChooseLine:
                control.choose(action.line);
                break;
            }
        }
    }
    /// Presses a button that shows a box. The box may have the dialog's own caption.
    void refuse(Window dialog, int button, const Box& box) const {
        dialog.startPress(button);
        EXPECT_TRUE(eventually([&] { return !dialog.isEnabled(); })) << "nothing is refused";
        answer(box);
    }
    /// Whether a control shows that it was refused.
    static bool isMarked(Window control) {
        return GetPropA(control.handle(), "Varrocade.Refused") != nullptr;
    }
    void runCase(const DialogCase& row) const {
        const std::string before = tigerText();
        std::vector<Window> dialogs = open(row.path);
        const Window dialog = dialogs.back();
        SCOPED_TRACE(dialog.text());
        expectWellLaidOut(dialog);
        act(dialog, row.wrong);
        if (!row.wrong.empty()) {
            refuse(dialog, IDOK, row.refusal);
            EXPECT_EQ(editor->focus(), dialog.control(row.focused));
            EXPECT_TRUE(isMarked(dialog.control(row.focused)));
        }
        act(dialog, row.changes);
        EXPECT_FALSE(!row.wrong.empty() && isMarked(dialog.control(row.focused))) << "put right";
        closeAll(dialogs, IDCANCEL);
        EXPECT_EQ(tigerText(), before) << "cancelled";
        EXPECT_TRUE(menuState(IDM_UNDO) & MF_GRAYED) << "cancelled";

        dialogs = open(row.path);
        // What was wrong is put right by the changes that follow.
        act(dialogs.back(), row.wrong);
        act(dialogs.back(), row.changes);
        closeAll(dialogs, IDOK);
        std::string expected = before;
        for (const auto& [part, replacement] : row.replacements) {
            expected = withReplaced(expected, part, replacement);
        }
        EXPECT_EQ(tigerText(), expected);
    }
    /// Every case begins with the file of the one before, read anew, and nothing to undo.
    void runCases(const std::vector<DialogCase>& cases) {
        start();
        for (const DialogCase& row : cases) {
            list().choose(0);
            select(Tiger);
            runCase(row);
        }
    }
};

TEST_F(DialogsTest, DriveExhaustAndDates) {
    runCases(driveAndDateCases());
}

TEST_F(DialogsTest, HullAndWhatItCarries) {
    runCases(hullCases());
}

TEST_F(DialogsTest, TurretsAndWeapons) {
    runCases(turretCases());
}

TEST_F(DialogsTest, ADeletedWeaponAsksForItsAmmunition) {
    start();
    select(Tiger);
    const std::string before = tigerText();
    std::vector<Window> dialogs = open({TurretStep, {IDC_WEAPONS_BUTTON, "Turret 3: weapons"}});
    act(dialogs.back(), {chooseLine(IDC_ENTRY_LIST, 1), press(IDC_ENTRY_DELETE)});
    const Window weapons = dialogs.back();
    weapons.startPress(IDOK);
    ASSERT_TRUE(eventually([&] { return !weapons.isEnabled(); })) << "nobody asks";
    const Window question = editor->waitForDialog("Weapons");
    EXPECT_EQ(
        contentOf(question),
        (Box{"Weapons",
             "The weapon HMG MG34 is no longer there. Does its ammunition (rounds: 3000) go with it?\n\n"
             "Yes: it is deleted.\nNo: it stays, for a weapon that is not there.",
             {IDCANCEL, IDYES, IDNO}}));
    // The answer ends the dialog below the box too.
    question.startPress(IDYES);
    EXPECT_TRUE(eventually([&] { return !weapons.exists(); }));
    dialogs.pop_back();
    closeAll(dialogs, IDOK);
    std::string expected = withReplaced(before,
                                        "\t\t\t<weapon><type>WEAPON_HMG_MG34</type><offsetX>40</offsetX>"
                                        "<offsetY>118</offsetY></weapon>\r\n",
                                        "");
    expected =
        withReplaced(expected, "\t\t\t<ammo><for>WEAPON_HMG_MG34</for><rounds>3000</rounds></ammo>\r\n", "");
    EXPECT_EQ(tigerText(), expected);
}

TEST_F(DialogsTest, CrewEndsAtThirteen) {
    start();
    select(Tiger);
    const std::vector<Window> dialogs = open({HullStep, {IDC_CREW_BUTTON, "Hull 1: crew"}});
    for (int man = 1; man < 13; ++man) {
        dialogs.back().press(IDC_ENTRY_ADD);
    }
    EXPECT_EQ(editor->focus().handle(), GetWindow(dialogs.back().control(IDC_JOB).handle(), GW_CHILD))
        << "the new man's first field";
    for (const int button : {IDC_ENTRY_ADD, IDC_ENTRY_COPY}) {
        refuse(dialogs.back(), button,
               {.caption = "Squad full",
                .text = "There are already the maximum number of components allowed per squad"});
    }
    EXPECT_EQ(dialogs.back().control(IDC_ENTRY_LIST).listTexts().size(), 13U);
    EXPECT_EQ(dialogs.back().control(IDC_ENTRY_LIST).selectedText(), "13. Loader");
    closeAll(dialogs, IDCANCEL);
}

TEST_F(DialogsTest, TheDrawingStaysInSight) {
    start();
    select(Tiger);
    RECT drawing{};
    GetWindowRect(window.control(IDC_DRAWING).handle(), &drawing);
    const std::vector<Window> dialogs = open({{IDC_DRIVE, "Drive"}, {IDC_EXHAUSTS_BUTTON, "Exhaust Pipes"}});
    for (const Window dialog : dialogs) {
        RECT place{};
        GetWindowRect(dialog.handle(), &place);
        EXPECT_GT(place.left, (drawing.left + drawing.right) / 2) << dialog.text();
    }
    closeAll(dialogs, IDCANCEL);
}

TEST_F(DialogsTest, KeysOfTheListChangeIt) {
    start();
    select(Tiger);
    const std::vector<Window> dialogs = open({HullStep, {IDC_CREW_BUTTON, "Hull 1: crew"}});
    const Window crew = dialogs.back().control(IDC_ENTRY_LIST);
    constexpr LPARAM withAlt = LPARAM{1} << 29;
    crew.send(WM_KEYDOWN, VK_INSERT);
    EXPECT_EQ(crew.selectedText(), "2. Loader");
    crew.send(WM_SYSKEYDOWN, VK_UP, withAlt);
    EXPECT_EQ(crew.selectedText(), "1. Loader");
    crew.send(WM_SYSKEYDOWN, VK_DOWN, withAlt);
    EXPECT_EQ(crew.selectedText(), "2. Loader");
    crew.send(WM_KEYDOWN, VK_DELETE);
    EXPECT_EQ(crew.selectedText(), "1. Driver, Pistol P38");
    closeAll(dialogs, IDCANCEL);
}

TEST_F(DialogsTest, LinesWiderThanTheirListAreScrolled) {
    start();
    select(Tiger);
    const std::vector<Window> dialogs = open({TurretStep, {IDC_WEAPONS_BUTTON, "Turret 3: weapons"}});
    const Window weapons = dialogs.back().control(IDC_ENTRY_LIST);
    EXPECT_FALSE(weapons.hasStyle(WS_HSCROLL));
    dialogs.back().setText(IDC_WEAPON_TYPE, "WEAPON_CANNON_" + std::string(100, 'X'));
    dialogs.back().send(WM_COMMAND, MAKEWPARAM(IDC_WEAPON_TYPE, CBN_EDITCHANGE));
    EXPECT_TRUE(weapons.hasStyle(WS_HSCROLL));
    closeAll(dialogs, IDCANCEL);
}

TEST_F(DialogsTest, UnknownValuesAreNamedAndKept) {
    std::string text = tigerText();
    text = withReplaced(text, "NATIONALITY_GERMAN", "NATIONALITY_OLD");
    text = withReplaced(text, "RELIABILITY_POOR", "RELIABILITY_OLD");
    text = withReplaced(text, "JOB_DRIVER", "JOB_OLD");
    text = withReplaced(text, "<type>WEAPON_CANNON_88_KWK36_L56", "<type>WEAPON_CANNON_OLD");
    game.write(dataFile(Tiger), text);
    start();
    select(Tiger);
    const auto expectUnknown = [](Window dialog, std::string_view part) {
        EXPECT_NE(dialog.control(IDC_UNKNOWN).text().find(part), std::string::npos)
            << dialog.text() << ": " << dialog.control(IDC_UNKNOWN).text();
    };
    const std::pair<std::vector<Step>, std::string_view> cases[] = {
        {{}, "Nationality \"NATIONALITY_OLD\""},
        {{{IDC_DRIVE, "Drive"}}, "Reliability \"RELIABILITY_OLD\""},
        {{HullStep, {IDC_CREW_BUTTON, "Hull 1: crew"}}, "Job \"JOB_OLD\""},
        {{TurretStep, {IDC_WEAPONS_BUTTON, "Turret 3: weapons"}}, "\"WEAPON_CANNON_OLD\""},
    };
    for (const auto& [path, part] : cases) {
        const std::vector<Window> dialogs = open(path);
        expectUnknown(dialogs.back(), part);
        closeAll(dialogs, IDOK);
    }
    EXPECT_EQ(tigerText(), text);

    const std::vector<Window> dialogs = open({{IDC_DRIVE, "Drive"}});
    dialogs.back().control(IDC_RELIABILITY).choose("RELIABILITY_GOOD");
    EXPECT_EQ(dialogs.back().control(IDC_UNKNOWN).text(), "");
    closeAll(dialogs, IDCANCEL);
}

TEST_F(DialogsTest, TimelineIsEditedByMouse) {
    start();
    select(Tiger);
    const std::vector<Window> dialogs = open({{IDC_AVAILABILITY, "Availability"}});
    const Window timeline = dialogs.back().control(IDC_TIMELINE);
    const Window points = dialogs.back().control(IDC_ENTRY_LIST);
    // A pixel within the first years, where nothing stands yet, half way up.
    const Area area = timeline.areaInParent();
    const auto at = [&](int x, int y) { return MAKELPARAM(x, y); };
    const int x = area.width / 14;
    const int y = area.height / 2;
    timeline.send(WM_LBUTTONDBLCLK, MK_LBUTTON, at(x, y));
    ASSERT_EQ(points.listTexts().size(), 8U);
    const std::string added = points.listTexts().front();
    EXPECT_EQ(added.substr(0, 5), "1939-") << "in order: " << added;
    EXPECT_EQ(added.back(), '0') << "round: " << added;
    const std::string number = added.substr(added.find(':'));
    timeline.send(WM_LBUTTONDOWN, MK_LBUTTON, at(x, y));
    timeline.send(WM_MOUSEMOVE, MK_LBUTTON, at(3 * x, y));
    timeline.send(WM_LBUTTONUP, 0, at(3 * x, y));
    EXPECT_EQ(points.listTexts().front().substr(0, 5), "1940-") << points.listTexts().front();
    EXPECT_EQ(points.listTexts().front().substr(added.find(':')), number) << "moved to the side only";
    timeline.send(WM_RBUTTONUP, 0, at(3 * x, y));
    EXPECT_EQ(points.listTexts().size(), 7U);
    closeAll(dialogs, IDOK);
}

TEST_F(DialogsTest, TheDrawingShowsWhatIsTypedUntilItIsCancelled) {
    start();
    select(Tiger);
    const Window drawing = window.control(IDC_DRAWING);
    const auto shows = [&](std::string_view name) {
        return eventually([&] { return drawing.text().find(name) != std::string::npos; });
    };
    // The keys of the drawing select one part after the other.
    for (int parts = 0; parts < 40 && drawing.text().find("X 58 cm") == std::string::npos; ++parts) {
        drawing.send(WM_KEYDOWN, VK_NEXT);
    }
    const std::string before = drawing.text();
    ASSERT_TRUE(shows("X 58 cm")) << before;
    const std::vector<Window> dialogs = open({FixedWeaponStep});
    dialogs.back().setText(IDC_OFFSET_X, "77");
    EXPECT_TRUE(shows("X 77 cm")) << drawing.text();
    dialogs.back().setText(IDC_OFFSET_X, "seven");
    dialogs.back().startPress(IDC_CREW_BUTTON);
    const Window crew = editor->waitForDialog("Fixed Weapon 4: crew");
    crew.press(IDC_ENTRY_ADD);
    finish(crew);
    dialogs.back().setText(IDC_OFFSET_X, "78");
    EXPECT_TRUE(shows("X 78 cm")) << drawing.text();
    closeAll(dialogs, IDCANCEL);
    EXPECT_TRUE(shows(before)) << drawing.text();
    EXPECT_FALSE(menuState(IDM_UNDO) & MF_GRAYED) << "the crew stays";
    sendCommand(IDM_UNDO);
    EXPECT_TRUE(menuState(IDM_UNDO) & MF_GRAYED) << "and is all there is";
    EXPECT_TRUE(menuState(IDM_SAVE) & MF_GRAYED);
}

/// Holds a key for another thread while it lives.
class HeldKey {
public:
    HeldKey(DWORD thread, int key) : thread_(thread), key_(key) {
        AttachThreadInput(GetCurrentThreadId(), thread_, TRUE);
        set(0x80);
    }
    HeldKey(const HeldKey&) = delete;
    HeldKey& operator=(const HeldKey&) = delete;
    ~HeldKey() {
        set(0);
        AttachThreadInput(GetCurrentThreadId(), thread_, FALSE);
    }

private:
    void set(BYTE state) const {
        std::array<BYTE, 256> keys{};
        GetKeyboardState(keys.data());
        keys[static_cast<std::size_t>(key_)] = state;
        SetKeyboardState(keys.data());
    }
    DWORD thread_;
    int key_;
};

TEST_F(DialogsTest, ControlZTakesBackTyping) {
    start();
    select(Tiger);
    std::vector<Window> dialogs = open({HullStep, {IDC_CREW_BUTTON, "Hull 1: crew"}});
    dialogs.back().press(IDC_ENTRY_ADD);
    closeAll(dialogs, IDOK);
    const auto undoTyping = [](Window edit) {
        const HeldKey control(GetWindowThreadProcessId(edit.handle(), nullptr), VK_CONTROL);
        edit.pressKey('Z');
        EXPECT_TRUE(eventually([&] { return edit.text().empty(); })) << edit.text();
    };
    const Window filter = window.control(IDC_FILTER);
    sendCommand(IDM_FIND);
    filter.send(WM_CHAR, 't');
    ASSERT_EQ(filter.text(), "t");
    undoTyping(filter);
    EXPECT_FALSE(menuState(IDM_UNDO) & MF_GRAYED) << "the unit's change was not meant";

    dialogs = open({HullStep, {IDC_CREW_BUTTON, "Hull 1: crew"}});
    const Window job = dialogs.back().control(IDC_JOB);
    const Window typed(GetWindow(job.handle(), GW_CHILD));
    const std::string former = job.text();
    dialogs.back().send(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(job.handle()), TRUE);
    for (const char letter : {'g', 'u', 'n'}) {
        typed.send(WM_CHAR, static_cast<WPARAM>(letter));
    }
    EXPECT_NE(job.text(), former);
    EXPECT_EQ(typed.send(EM_CANUNDO), TRUE);
    typed.send(WM_CHAR, 0x1A);
    EXPECT_EQ(job.text(), former);
    EXPECT_EQ(dialogs.back().control(IDC_UNKNOWN).text(), "") << "the dialog has followed";
    closeAll(dialogs, IDCANCEL);
}

} // namespace varrocade::gui
