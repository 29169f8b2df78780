// The "Weapon Data" dialog: opened, changed, refused, cancelled, saved.

#include "gui_test.h"
#include "layout_check.h"

#include <algorithm>

namespace varrocade::gui {

namespace {

constexpr std::string_view Kwk36 = "WEAPON_CANNON_88_KWK36_L56";
constexpr std::string_view DialogCaption = "Weapon Data";

/// A drop-down list tells its dialog of typing only.
void type(Window dialog, int control, std::string_view text) {
    dialog.setText(control, text);
    dialog.send(WM_COMMAND, MAKEWPARAM(control, CBN_EDITCHANGE),
                reinterpret_cast<LPARAM>(dialog.control(control).handle()));
}

} // namespace

class WeaponDataTest : public GuiTest {
protected:
    void SetUp() override {
        GuiTest::SetUp();
        game.copyFromSample("Data\\Weapons");
        game.copyFromSample("Images\\Tracers");
        game.copyFromSample("Sounds");
    }
    void open(std::string_view weapon) {
        start();
        chooseCategory(WeaponsId);
        select(weapon);
    }
    [[nodiscard]] Window openData() const { return openDialog(IDC_EDIT_DETAILS, DialogCaption); }
    [[nodiscard]] std::string file(std::string_view weapon) const {
        return game.read(dataFile(weapon, "Weapons"));
    }
};

TEST_F(WeaponDataTest, ChangesAreTakenRefusedAndUndone) {
    open(Kwk36);
    const std::string original = file(Kwk36);
    Window dialog = openData();
    expectWellLaidOut(dialog);
    EXPECT_EQ(dialog.control(IDC_WD_TYPE).text(), "Cannon (WEAPON_CANNON)");
    finish(dialog);
    EXPECT_FALSE(game.exists("Backups")) << "OK alone changes and saves nothing";

    window.post(WM_COMMAND, MAKEWPARAM(ListId, LBN_DBLCLK));
    dialog = editor->waitForDialog(DialogCaption);
    dialog.setText(IDC_WD_CALIBRE, "-1");
    dialog.startPress(IDOK);
    answer({"Weapon", "\"Calibre\" must be a number of at least 0"});
    dialog.setText(IDC_WD_CALIBRE, "88.5");
    EXPECT_EQ(dialog.control(IDC_WD_NOTES).text(), "");
    dialog.setText(IDC_WD_SPEED, "9000");
    EXPECT_NE(dialog.control(IDC_WD_NOTES).text().find("Speed 9000 m/s: usual for "), std::string::npos);
    type(dialog, IDC_WD_SHOOT_SOUND, "nothing");
    EXPECT_EQ(dialog.control(IDC_WD_SOUND_NOTE).text(), "missing");
    EXPECT_FALSE(dialog.control(IDC_WD_PLAY).isEnabled());
    type(dialog, IDC_WD_SHOOT_SOUND, "shot_mortar");
    EXPECT_TRUE(dialog.control(IDC_WD_PLAY).isEnabled());
    dialog.control(IDC_WD_COMPARE).choose(1);
    dialog.control(IDC_WD_TYPE).choose("Multiple rocket launcher (WEAPON_MLRS)");
    EXPECT_EQ(dialog.control(IDC_WD_NAME).text(), Kwk36) << "names do not change by themselves";
    EXPECT_EQ(dialog.control(IDC_WD_NAME_NOTE).text(), "Names of this type begin with WEAPON_MLRS_");
    dialog.press(IDC_WD_FIX_PREFIX);
    EXPECT_EQ(dialog.control(IDC_WD_NAME).text(), "WEAPON_MLRS_88_KWK36_L56");
    dialog.control(IDC_WD_TYPE).choose("Grenade (WEAPON_GRENADE)");
    EXPECT_FALSE(dialog.control(IDC_WD_CALIBRE).isEnabled() || dialog.control(IDC_WD_SPEED).isEnabled());
    EXPECT_NE(dialog.control(IDC_WD_NOT_CARRIED).text().find("Calibre, Barrel length"), std::string::npos);
    dialog.control(IDC_WD_TYPE).choose("Cannon (WEAPON_CANNON)");
    dialog.setText(IDC_WD_NAME, Kwk36);
    // A space on the first period sets its check.
    dialog.control(IDC_WD_PERIOD_LIST).send(WM_SETFOCUS);
    dialog.control(IDC_WD_PERIOD_LIST).pressKey(VK_HOME);
    dialog.setText(IDC_WD_PERIOD, "WW2, Space Age");
    dialog.control(IDC_WD_PERIOD_LIST).pressKey(VK_SPACE);
    EXPECT_TRUE(eventually([&] { return dialog.control(IDC_WD_PERIOD).text() == "WW2, Space Age, WW1"; }));
    finish(dialog);
    const std::string saved = file(Kwk36);
    for (const std::string_view line : {"<calibre>88.5</calibre>", "<speed>9000</speed>",
                                        "WW2, Space Age, WW1", "<sound_shoot>shot_mortar</sound_shoot>"}) {
        EXPECT_NE(saved.find(line), std::string::npos) << line << saved;
    }
    sendCommand(IDM_UNDO);
    EXPECT_EQ(file(Kwk36), saved);
    sendCommand(IDM_SAVE);
    EXPECT_EQ(file(Kwk36), original);
    dialog = openData();
    dialog.setText(IDC_WD_RANGE, "1");
    finish(dialog, IDCANCEL);
    EXPECT_EQ(file(Kwk36), original);
}

TEST_F(WeaponDataTest, AmmunitionUpToTheGamesMost) {
    std::string text = "<weapon><name>WEAPON_CANNON_ALL</name><type>WEAPON_CANNON</type><ammo>";
    constexpr int mostTypes = 255;
    for (int i = 1; i < mostTypes; ++i) {
        text +=
            "<type><flavour>FLAVOUR_HE</flavour><mass>1</mass><name>" + std::to_string(i) + "</name></type>";
    }
    game.write("Data\\Weapons\\WEAPON_CANNON_ALL.txt", text + "</ammo></weapon>");
    open("WEAPON_CANNON_ALL");
    const Window dialog = openData();
    dialog.press(IDC_ENTRY_COPY);
    EXPECT_EQ(dialog.control(IDC_ENTRY_LIST).listTexts().size(), 255U);
    EXPECT_EQ(dialog.control(IDC_ENTRY_LIST).selectedText(), "255. HE  1");
    dialog.startPress(IDC_ENTRY_ADD);
    answer({"Weapon", "There are already 255 ammunition types, the most that the game counts"});
    const auto has = [&](std::string_view flavour) {
        const std::vector<std::string> all = dialog.control(IDC_WD_FLAVOUR).choices();
        return std::find(all.begin(), all.end(), flavour) != all.end();
    };
    EXPECT_FALSE(has("HE (FLAVOUR_MORTAR_HE)"));
    dialog.control(IDC_WD_ALL_FLAVOURS).send(BM_CLICK);
    EXPECT_TRUE(has("HE (FLAVOUR_MORTAR_HE)"));
    EXPECT_FALSE(dialog.control(IDC_WD_ERA).isEnabled());
    dialog.control(IDC_WD_FLAVOUR).choose("HEAT (FLAVOUR_HEAT)");
    EXPECT_TRUE(dialog.control(IDC_WD_ERA).isEnabled());
    EXPECT_EQ(dialog.control(IDC_ENTRY_LIST).selectedText(), "255. HEAT  1");
    dialog.setText(IDC_WD_MASS, "2.5");
    finish(dialog);
    const std::string saved = file("WEAPON_CANNON_ALL");
    EXPECT_GT(std::count(saved.begin(), saved.end(), '\n'), mostTypes);
    EXPECT_NE(
        saved.find(
            "<type><flavour>FLAVOUR_HEAT</flavour><speed>0</speed><mass>2.5</mass><name>1</name></type>"),
        std::string::npos);
}

TEST_F(WeaponDataTest, UsersAreOpenedAndToldOf) {
    open(Kwk36);
    const Window dialog = openData();
    const std::string tiger = "Vehicles: " + std::string(Tiger);
    const Window users = dialog.control(IDC_WD_USERS);
    ASSERT_TRUE(eventually([&] { return !users.listTexts().empty(); }));
    users.choose(tiger);
    finish(dialog, IDC_WD_OPEN_UNIT);
    EXPECT_EQ(selected(), Tiger);
    chooseCategory(WeaponsId);
    window.startPress(DeleteId);
    const Window box = editor->waitForDialog("Weapon in use");
    EXPECT_NE(contentOf(box).text.find("    " + tiger + "\n"), std::string::npos);
    finish(box, IDCANCEL);
    EXPECT_TRUE(game.exists(dataFile(Kwk36, "Weapons")));
}

} // namespace varrocade::gui
