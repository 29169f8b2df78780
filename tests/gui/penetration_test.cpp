// The penetration calculator and "Can it penetrate?", driven by the numbers of their controls.

#include "gui_test.h"
#include "layout_check.h"

#include <algorithm>

namespace varrocade::gui {

namespace {

constexpr int PenetrationCommand = 32773;
constexpr int WeaponBox = 1036;
constexpr int ShellBox = 1035;
constexpr int AngleBox = 1037;
constexpr int ApDrag = 1091;
constexpr int ApcbcDrag = 1093;
constexpr int Velocity = 1099;
constexpr int Mass = 1012;
constexpr int Explosive = 1013;
constexpr int Calibre = 1101;
constexpr int PenetrationRows = 1111;
constexpr int VelocityRows = 1119;
constexpr int Rows = 7;
constexpr std::string_view Kwk42 = "WEAPON_CANNON_75_KWK42_L70";
using Texts = std::vector<std::string>;

Texts rows(Window dialog, int first) {
    Texts texts;
    for (int row = 0; row < Rows; ++row) {
        texts.push_back(dialog.control(first + row).text());
    }
    return texts;
}

/// A drop-down list tells its dialog of typing only.
void typeInto(Window dialog, int list, std::string_view text) {
    dialog.setText(list, text);
    dialog.send(WM_COMMAND, MAKEWPARAM(list, CBN_EDITCHANGE),
                reinterpret_cast<LPARAM>(dialog.control(list).handle()));
}

/// A weapon with the given ammunition entries.
std::string weaponText(std::string_view name, std::string_view ammo) {
    return "<weapon><name>" + std::string(name) +
           "</name><type>WEAPON_CANNON</type><dimensions><calibre>75</calibre></dimensions><ammo>" +
           std::string(ammo) + "</ammo></weapon>";
}

} // namespace

class PenetrationTest : public GuiTest {
protected:
    void SetUp() override {
        GuiTest::SetUp();
        game.copyFromSample("Data\\Weapons");
    }
    [[nodiscard]] Window openCalculator() const {
        return openDialog(PenetrationCommand, "Penetration Calculation");
    }
    [[nodiscard]] Texts offeredWeapons() const {
        const Window dialog = openCalculator();
        Texts weapons = dialog.control(WeaponBox).choices();
        finish(dialog, IDCANCEL);
        return weapons;
    }
    [[nodiscard]] bool isOffered(const std::string& weapon) const {
        const Texts weapons = offeredWeapons();
        return std::find(weapons.begin(), weapons.end(), weapon) != weapons.end();
    }
};

TEST_F(PenetrationTest, FollowsEveryChange) {
    game.write("Data\\Weapons\\WEAPON_CANNON_TEST.txt",
               weaponText("WEAPON_CANNON_TEST",
                          "<type><flavour>FLAVOUR_HEAT</flavour><speed>450</speed><mass>4.4</mass>"
                          "<era>HEAT_ERA_LATE</era></type>"
                          "<type><flavour>FLAVOUR_HE</flavour><speed>450</speed></type>"));
    game.write("Data\\Weapons\\WEAPON_CANNON_EMPTY.txt", weaponText("WEAPON_CANNON_EMPTY", ""));
    start();
    const Window dialog = openCalculator();
    expectWellLaidOut(dialog);
    EXPECT_EQ(dialog.control(WeaponBox).text(), Kwk42);
    EXPECT_EQ(dialog.control(ShellBox).choices().size(), 3U);
    const std::pair<int, std::string_view> figures[] = {
        {Velocity, "935"}, {Mass, "6.8"}, {Explosive, "0.017"}, {Calibre, "75"}, {ApcbcDrag, "12"}};
    for (const auto& [control, text] : figures) {
        EXPECT_EQ(dialog.control(control).text(), text) << control;
    }
    EXPECT_EQ(rows(dialog, PenetrationRows),
              (Texts{"152 mm", "149 mm", "147 mm", "144 mm", "141 mm", "139 mm", "127 mm"}));
    const Texts velocities = {"935 m/s", "924 m/s", "913 m/s", "902 m/s", "891 m/s", "881 m/s", "829 m/s"};
    EXPECT_EQ(rows(dialog, VelocityRows), velocities);
    dialog.control(AngleBox).choose("60");
    EXPECT_EQ(rows(dialog, PenetrationRows),
              (Texts{"76 mm", "75 mm", "73 mm", "72 mm", "71 mm", "69 mm", "63 mm"}));
    EXPECT_EQ(rows(dialog, VelocityRows), velocities) << "whatever the angle";
    typeInto(dialog, AngleBox, "30");
    dialog.setText(ApcbcDrag, "none");
    EXPECT_EQ(rows(dialog, PenetrationRows), Texts(Rows, "132 mm"));
    EXPECT_EQ(rows(dialog, VelocityRows), Texts(Rows, "935 m/s"));

    dialog.control(WeaponBox).choose("WEAPON_CANNON_TEST");
    typeInto(dialog, AngleBox, "");
    EXPECT_EQ(rows(dialog, PenetrationRows), Texts(Rows, "128 mm"));
    dialog.setText(ApDrag, "0");
    EXPECT_EQ(rows(dialog, VelocityRows), Texts(Rows, "450 m/s"));
    dialog.control(ShellBox).choose(1);
    EXPECT_EQ(rows(dialog, PenetrationRows), Texts(Rows, "0.1 mm"));
    dialog.control(WeaponBox).choose("WEAPON_CANNON_EMPTY");
    EXPECT_TRUE(dialog.control(ShellBox).choices().empty());
    EXPECT_EQ(rows(dialog, PenetrationRows), Texts(Rows, "-"));
    EXPECT_EQ(rows(dialog, VelocityRows), Texts(Rows, "-"));
    EXPECT_FALSE(dialog.control(IDC_COPY_TABLE).isEnabled());
    typeInto(dialog, WeaponBox, "kwk36");
    EXPECT_EQ(dialog.control(WeaponBox).choices(), Texts{"WEAPON_CANNON_88_KWK36_L56"});
    EXPECT_TRUE(dialog.control(ShellBox).choices().empty()) << "nothing is chosen yet";
    typeInto(dialog, WeaponBox, "weapon_cannon_88_kwk36_l56");
    EXPECT_EQ(dialog.control(Calibre).text(), "88");
    finish(dialog, IDCANCEL);
}

TEST_F(PenetrationTest, CurvesAreChosenWithTheMouse) {
    start();
    const Window dialog = openCalculator();
    dialog.control(WeaponBox).choose("WEAPON_CANNON_88_KWK36_L56");
    const Texts shells = dialog.control(ShellBox).choices();
    ASSERT_GE(shells.size(), 3U);
    const Window curves = dialog.control(IDC_CURVES);
    const Area area = curves.areaInParent();
    // The legend stands at the bottom, a line each ammunition type.
    const LPARAM lastLine = MAKELPARAM(area.width / 4, area.height - 14);
    curves.send(WM_MOUSEMOVE, 0, MAKELPARAM(area.width / 2, area.height / 4));
    curves.send(WM_LBUTTONDOWN, 0, lastLine);
    EXPECT_EQ(dialog.control(ShellBox).text(), shells.back());
    const Texts ofLast = rows(dialog, PenetrationRows);
    dialog.control(ShellBox).choose(0);
    EXPECT_NE(rows(dialog, PenetrationRows), ofLast);
    dialog.control(ShellBox).choose(static_cast<int>(shells.size()) - 1);
    EXPECT_EQ(rows(dialog, PenetrationRows), ofLast);
    finish(dialog, IDCANCEL);
}

TEST_F(PenetrationTest, ListsFilesWithProblems) {
    start();
    EXPECT_NE(menuState(IDM_WEAPON_PROBLEMS) & MF_GRAYED, 0U) << "none";
    game.write("Data\\Weapons\\WEAPON_CANNON_SPOILT.txt", "nothing of the kind");
    const std::size_t files = game.names("Data\\Weapons").size();
    Window dialog = openCalculator();
    EXPECT_EQ(dialog.control(WeaponBox).choices().size(), files) << "read anew, and all of them";
    EXPECT_NE(dialog.control(IDC_PEN_NOTE).text().find("Weapon file problems"), std::string::npos);
    dialog.control(WeaponBox).choose("WEAPON_CANNON_SPOILT");
    EXPECT_EQ(dialog.control(IDC_PEN_NOTE).text(), "This weapon's file: holds no weapon");
    EXPECT_EQ(rows(dialog, PenetrationRows), Texts(Rows, "-"));
    finish(dialog, IDCANCEL);
    dialog = openDialog(IDM_WEAPON_PROBLEMS, "Weapon File Problems");
    expectWellLaidOut(dialog);
    dialog.press(IDC_COPY_TABLE);
    EXPECT_NE(clipboardText().find("WEAPON_CANNON_SPOILT.txt\tHolds no weapon.\r\n"), std::string::npos);
    finish(dialog, IDC_SHOW_FILE);
    EXPECT_EQ(selected(), "WEAPON_CANNON_SPOILT") << "in the list of weapons";
}

TEST_F(PenetrationTest, WeaponsFollowTheFilesAndTheMod) {
    userMod.create();
    const std::string modWeapons = userMod.modFolder() + "Data\\Weapons\\";
    game.remove("Data\\Weapons\\" + std::string(Kwk42) + ".txt");
    start();
    EXPECT_EQ(selected(), "");
    Window dialog = openCalculator();
    EXPECT_EQ(dialog.control(WeaponBox).text(), dialog.control(WeaponBox).choices()[0])
        << "the first one instead";
    finish(dialog, IDCANCEL);
    EXPECT_FALSE(isOffered("WEAPON_CANNON_OF_MOD"));
    CreateDirectoryW(toWide(userMod.modFolder() + "Data").c_str(), nullptr);
    CreateDirectoryW(toWide(modWeapons).c_str(), nullptr);
    writeFile(modWeapons + "WEAPON_CANNON_OF_MOD.txt", weaponText("WEAPON_CANNON_OF_MOD", ""));
    sendCommand(IDM_REFRESH);
    EXPECT_TRUE(isOffered("WEAPON_CANNON_OF_MOD"));
    sendCommand(ModModeCommand);
    EXPECT_FALSE(isOffered("WEAPON_CANNON_OF_MOD")) << "outside mod mode";
    EXPECT_TRUE(isOffered("WEAPON_RIFLE_KAR98K"));
    chooseCategory(WeaponsId);
    select("WEAPON_RIFLE_KAR98K");
    window.startPress(DeleteId);
    finish(editor->waitForDialog("Weapon in use"));
    finish(editor->waitForDialog("Delete WEAPON_RIFLE_KAR98K"), IDYES);
    EXPECT_FALSE(isOffered("WEAPON_RIFLE_KAR98K"));
}

TEST_F(PenetrationTest, BeginsWithTheOpenWeapon) {
    start();
    chooseCategory(WeaponsId);
    select("WEAPON_RIFLE_KAR98K");
    const Window calculator = openCalculator();
    EXPECT_EQ(calculator.control(WeaponBox).text(), "WEAPON_RIFLE_KAR98K");
    finish(calculator, IDCANCEL);
    const Window dialog = openDialog(IDM_CAN_PENETRATE, "Can It Penetrate?");
    EXPECT_EQ(dialog.control(IDC_SHOT_WEAPON).text(), "WEAPON_RIFLE_KAR98K");
    finish(dialog, IDCANCEL);
}

TEST_F(PenetrationTest, TellsWhatGoesThroughAVehicle) {
    start();
    select(Tiger);
    const Window calculator = openCalculator();
    calculator.setText(ApcbcDrag, "50");
    calculator.startPress(IDC_CAN_PENETRATE);
    const Window dialog = editor->waitForDialog("Can It Penetrate?");
    expectWellLaidOut(dialog);
    EXPECT_EQ(dialog.control(IDC_TARGET_VEHICLE).text(), Tiger) << "the open vehicle";
    EXPECT_EQ(dialog.control(IDC_SHOT_WEAPON).text(), Kwk42);
    EXPECT_EQ(dialog.control(IDC_SHOT_DRAG).text(), "50") << "as in the calculator";
    const auto table = [&](std::string_view drag, const Texts& ranges) {
        constexpr std::string_view plates[] = {
            "1. Hull\tUpper front\t100 mm\t9",   "1. Hull\tLower front\t100 mm\t24",
            "1. Hull\tUpper left\t80 mm\t0",     "1. Hull\tUpper right\t80 mm\t0",
            "1. Hull\tLower left\t60 mm\t0",     "1. Hull\tLower right\t60 mm\t0",
            "1. Hull\tUpper rear\t80 mm\t9",     "1. Hull\tLower rear\t80 mm\t9",
            "2. Turret\tUpper front\t100 mm\t8", "2. Turret\tLower front\t100 mm\t8",
            "2. Turret\tUpper left\t80 mm\t0",   "2. Turret\tUpper right\t80 mm\t0",
            "2. Turret\tLower left\t80 mm\t0",   "2. Turret\tLower right\t80 mm\t0",
            "2. Turret\tUpper rear\t80 mm\t0",   "2. Turret\tLower rear\t80 mm\t0",
            "2. Turret\tMantlet\t120 mm\t0"};
        std::string text = std::string(Tiger) + "\t" + std::string(Kwk42) +
                           "\tAPCBC - PzGr 39/42\twind resistance " + std::string(drag) +
                           "\r\nComponent\tPlate\tThickness\tAngle\tGoes through\r\n";
        for (std::size_t i = 0; i < std::size(plates); ++i) {
            text += std::string(plates[i]) + "\t" + ranges[i] + "\r\n";
        }
        return text;
    };
    const std::string all = "at every range";
    dialog.press(IDC_COPY_TABLE);
    EXPECT_EQ(clipboardText(),
              table("50", {"up to 542 m", "up to 438 m", "up to 856 m", "up to 856 m", "up to 1,239 m",
                           "up to 1,239 m", "up to 839 m", "up to 839 m", "up to 545 m", "up to 545 m",
                           "up to 856 m", "up to 856 m", "up to 856 m", "up to 856 m", "up to 856 m",
                           "up to 856 m", "up to 315 m"}));
    dialog.setText(IDC_SHOT_DRAG, "12");
    dialog.press(IDC_COPY_TABLE);
    EXPECT_EQ(clipboardText(),
              table("12", {"up to 2,259 m", "up to 1,825 m", all, all, all, all, all, all, "up to 2,273 m",
                           "up to 2,273 m", all, all, all, all, all, all, "up to 1,314 m"}));
    // The middle of the drawing is the turret's top, which no shot meets; the turret's plates lie around it.
    const Window outline = dialog.control(IDC_PLATE_OUTLINE);
    const Area area = outline.areaInParent();
    const auto pointAt = [&](int y) {
        outline.send(WM_MOUSEMOVE, 0, MAKELPARAM(area.width / 2, y));
        return dialog.control(IDC_POINTED_PLATE).text();
    };
    EXPECT_EQ(pointAt(area.height * 2 / 5), "");
    std::string above;
    for (int y = area.height * 2 / 5; y > 0 && above.empty(); --y) {
        above = pointAt(y);
    }
    EXPECT_EQ(above, "2. Turret, Upper front, 100 mm at 8 degrees: up to 2,273 m");
    dialog.control(IDC_SHOT_WEAPON).choose("WEAPON_RIFLE_KAR98K");
    dialog.press(IDC_COPY_TABLE);
    EXPECT_EQ(clipboardText().find("up to"), std::string::npos);
    dialog.control(IDC_TARGET_VEHICLE).choose("Russian GAZ-MM");
    finish(dialog, IDCANCEL);
    finish(calculator, IDCANCEL);
}

} // namespace varrocade::gui
