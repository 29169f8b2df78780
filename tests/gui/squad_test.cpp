// The editors of squads on foot, heavy weapons and aircraft, in the window.

#include "gui_test.h"
#include "layout_check.h"

namespace varrocade::gui {

class SquadTest : public GuiTest {
protected:
    void open(int category, std::string_view name) {
        game.copyFromSample("Data\\Weapons");
        start();
        chooseCategory(category);
        select(name);
    }
    /// Opens a dialog by a button, looks at its layout and leaves it.
    void expectOpens(Window owner, int button, std::string_view caption) const {
        owner.startPress(button);
        const Window dialog = editor->waitForDialog(caption);
        ASSERT_TRUE(dialog) << caption;
        expectWellLaidOut(dialog);
        dialog.startPress(IDCANCEL);
        expectGone(dialog, owner);
    }
    static void chooseRows(Window dialog, int first, int last) {
        const Window list = dialog.control(IDC_MEMBERS);
        list.send(LB_SETSEL, FALSE, -1);
        list.send(LB_SELITEMRANGE, TRUE, MAKELPARAM(first, last));
        dialog.send(WM_COMMAND, MAKEWPARAM(IDC_MEMBERS, LBN_SELCHANGE),
                    reinterpret_cast<LPARAM>(list.handle()));
    }
};

TEST_F(SquadTest, OpeningAndSavingLeavesEveryFileAsItIs) {
    start();
    for (const CategoryParts& category : Categories) {
        if (category.button == VehiclesId || category.button == WeaponsId) {
            continue;
        }
        chooseCategory(category.button);
        for (const std::string& name : entries()) {
            SCOPED_TRACE(name);
            const std::string before = game.read(dataFile(name, category.name));
            select(name);
            finish(openDetails());
            // What was made by hand asks before it is written anew.
            for (const Window& box : editor->dialogs()) {
                finish(box, IDCANCEL);
            }
            EXPECT_EQ(game.read(dataFile(name, category.name)), before);
        }
    }
}

TEST_F(SquadTest, MenAreAddedCopiedChangedAndUndone) {
    constexpr std::string_view name = "American Bazooka Team";
    open(InfantryId, name);
    const std::string before = game.read(dataFile(name, "Infantry"));
    const Window details = openDetails();
    expectWellLaidOut(details);
    const Window members = details.control(IDC_MEMBERS);
    ASSERT_EQ(members.listTexts().size(), 2U);
    expectOpens(details, IDC_UNIFORM_BUTTON, "Uniform");
    expectOpens(details, IDC_MEMBER_EDIT, "Man");
    chooseRows(details, 1, 1);
    details.startPress(IDC_MEMBER_SEVERAL);
    const Window count = editor->waitForDialog("Add Several Men");
    expectWellLaidOut(count);
    EXPECT_EQ(count.control(IDC_MEN_COUNT).text(), "5");
    count.startPress(IDOK);
    expectGone(count, details);
    EXPECT_EQ(members.listTexts().size(), 7U);
    for (int i = 0; i < 3; ++i) {
        chooseRows(details, 0, 1);
        details.press(IDC_MEMBER_COPY);
    }
    EXPECT_EQ(members.listTexts().size(), 13U);
    details.startPress(IDC_MEMBER_COPY);
    answer({"Squad full", "There are already the maximum number of infantryman allowed per squad"});
    constexpr WPARAM controlA = 1;
    members.send(WM_CHAR, controlA);
    EXPECT_EQ(members.send(LB_GETSELCOUNT), 13);
    details.startPress(IDC_MEMBER_EDIT);
    const Window change = editor->waitForDialog("Change Several Men");
    expectWellLaidOut(change);
    change.control(IDC_ARMOUR_CHANGE).choose("yes");
    change.control(IDC_ARMS_CHANGE).choose("also carry");
    change.control(IDC_WEAPON_TYPE).choose("WEAPON_SMG_M1_THOMPSON");
    change.control(IDC_AMMO_CHANGE).choose("carry");
    EXPECT_EQ(change.control(IDC_AMMO_FOR).text(), "WEAPON_SMG_M1_THOMPSON") << "what they get";
    EXPECT_EQ(change.control(IDC_ROUNDS).text(), "160");
    change.startPress(IDOK);
    expectGone(change, details);
    finish(details);
    const std::string after = game.read(dataFile(name, "Infantry"));
    std::size_t armoured = 0;
    for (std::size_t at = after.find("<body_armour>"); at != std::string::npos;
         at = after.find("<body_armour>", at + 1)) {
        ++armoured;
    }
    EXPECT_EQ(armoured, 13U);
    for (int steps = 0; steps < 10; ++steps) {
        sendCommand(IDM_UNDO);
    }
    sendCommand(IDM_SAVE);
    EXPECT_EQ(game.read(dataFile(name, "Infantry")), before);
}

TEST_F(SquadTest, HeavyWeaponTellsWhatItsFileStores) {
    constexpr std::string_view name = "German 75mm PaK 40";
    open(AtGunsId, name);
    const Window details = openDetails();
    chooseRows(details, 0, 0);
    details.startPress(IDC_MEMBER_EDIT);
    const Window heavy = editor->waitForDialog("Heavy Weapon");
    ASSERT_TRUE(heavy);
    expectWellLaidOut(heavy);
    expectOpens(heavy, IDC_WEAPONS_BUTTON, "Weapons");
    EXPECT_TRUE(heavy.control(IDC_HEAVY_MASS).isEnabled());
    heavy.control(IDC_HEAVY_KIND).choose("Mortar");
    EXPECT_FALSE(heavy.control(IDC_HEAVY_MASS).isEnabled());
    EXPECT_NE(heavy.control(IDC_KIND_NOTE).text().find("contradict"), std::string::npos);
    heavy.press(IDC_MATCH_TYPE);
    EXPECT_EQ(heavy.control(IDC_KIND_NOTE).text(), "");
    heavy.startPress(IDOK);
    expectGone(heavy, details);
    EXPECT_EQ(details.control(IDC_TYPE).text(), "TYPE_MORTAR");
    finish(details);
    const std::string text = game.read(dataFile(name, "AT Guns"));
    EXPECT_NE(text.find("<mortar>"), std::string::npos);
    EXPECT_EQ(text.find("<mass>"), std::string::npos);
}

TEST_F(SquadTest, HeavyWeaponStandsAmongTheMen) {
    constexpr std::string_view name = "American Bazooka Team";
    open(InfantryId, name);
    const Window details = openDetails();
    expectOpens(details, IDC_MEMBER_HEAVY, "Heavy Weapon");
    EXPECT_EQ(details.control(IDC_MEMBERS).listTexts().size(), 2U) << "what is cancelled is not added";
    details.startPress(IDC_MEMBER_HEAVY);
    const Window heavy = editor->waitForDialog("Heavy Weapon");
    heavy.startPress(IDOK);
    expectGone(heavy, details);
    EXPECT_FALSE(details.control(IDC_MEMBER_HEAVY).isEnabled());
    details.press(IDC_MEMBER_UP);
    EXPECT_EQ(details.control(IDC_MEMBERS).listTexts().at(1), "2. Mortar: no weapon  (!)");
    finish(details);
    const std::string text = game.read(dataFile(name, "Infantry"));
    const std::size_t mortar = text.find("<mortar>");
    EXPECT_LT(text.find("<man>"), mortar);
    EXPECT_GT(text.rfind("<man>"), mortar);
}

TEST_F(SquadTest, AircraftHaveRotorsWeaponsAndSounds) {
    constexpr std::string_view name = "American UH-1C Huey";
    game.copyFromSample("Sounds");
    open(AircraftId, name);
    const Window details = openDetails();
    expectWellLaidOut(details);
    EXPECT_TRUE(details.control(IDC_PLAY_SOUND).isEnabled());
    expectOpens(details, IDC_WEAPONS_BUTTON, "Weapons");
    details.startPress(IDC_ROTORS_BUTTON);
    const Window rotors = editor->waitForDialog("Rotor Blades");
    expectWellLaidOut(rotors);
    const std::size_t count = rotors.control(IDC_ENTRY_LIST).listTexts().size();
    rotors.press(IDC_ENTRY_MIRROR);
    EXPECT_EQ(rotors.control(IDC_ENTRY_LIST).listTexts().size(), count + 1);
    rotors.startPress(IDOK);
    expectGone(rotors, details);
    details.setText(IDC_AIRCRAFT_SPEED, "210");
    finish(details);
    const std::string text = game.read(dataFile(name, "Aircraft"));
    EXPECT_NE(text.find("<speed>210</speed>"), std::string::npos);
    EXPECT_NE(text.find("<clockwise>no</clockwise>"), std::string::npos);
}

TEST_F(SquadTest, NewSquadBeginsWithTheOpenNationAndWhatIsChosen) {
    game.copyFromSample("Images\\Units");
    open(AtGunsId, "German 75mm PaK 40");
    const Window dialog = openDialog(NewId, "New Squad");
    EXPECT_EQ(dialog.control(IDC_NEW_NAME).text(), "German ");
    EXPECT_TRUE(eventually([&] { return editor->focus() == dialog.control(IDC_NEW_NAME); }));
    expectWellLaidOut(dialog);
    EXPECT_EQ(dialog.control(IDC_START_WEAPON).text(), "") << "until it is asked for";
    dialog.control(IDC_START_USUAL).send(BM_CLICK);
    EXPECT_EQ(dialog.control(IDC_START_MEN).text(), "5");
    dialog.control(IDC_START_KIND).choose("Mortar");
    EXPECT_EQ(dialog.control(IDC_START_WEAPON).text(), "WEAPON_MORTAR_80_GRW34");
    EXPECT_EQ(dialog.control(IDC_START_PICTURE).text(), "Image-GrW34 gun");
    dialog.control(IDC_START_KIND).choose("Anti-tank gun");
    dialog.control(IDC_NEW_NATIONALITY).choose("Russian");
    EXPECT_EQ(dialog.control(IDC_NEW_NAME).text(), "Russian ");
    EXPECT_TRUE(dialog.control(IDC_START_ARMS).text().starts_with("WEAPON_RIFLE_"));
    dialog.setText(IDC_NEW_NAME, "Russian New Gun");
    dialog.setText(IDC_START_MEN, "3");
    dialog.control(IDC_START_PICTURE).choose("Image-Pak40 gun");
    finish(dialog);
    const std::string text = game.read(dataFile("Russian New Gun", "AT Guns"));
    EXPECT_NE(text.find("<image_view_base>Image-Pak40 base.png</image_view_base>"), std::string::npos)
        << text;
    EXPECT_NE(text.find("JOB_SQUAD_LEADER"), std::string::npos) << text;
    EXPECT_NE(text.find("<rounds>60</rounds>"), std::string::npos) << "for the rifles: " << text;
    EXPECT_NE(text.find("<rounds>40</rounds>"), std::string::npos) << "for the gun: " << text;
}

} // namespace varrocade::gui
