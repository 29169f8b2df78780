// The dialogs' forms, driven without windows.

#include "editors/penetration/penetration_form.h"
#include "editors/unit/unit_lists.h"
#include "editors/unit/weapon_choices.h"
#include "editors/vehicle/armour_form.h"
#include "editors/vehicle/component_form.h"
#include "editors/vehicle/component_list.h"
#include "editors/vehicle/drive_form.h"
#include "editors/vehicle/vehicle_form.h"
#include "fake_form_port.h"
#include "resources/resource.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace varrocade::tests {
namespace {

SquadRecord vehicleUnit() {
    SquadRecord record;
    record.longName = "Long";
    record.language = "de";
    record.vehicle.emplace().weight = 20000;
    return record;
}

TEST(VehicleForm, TakesTheFieldsOverAsTheUserLeftThem) {
    SquadRecord record = vehicleUnit();
    FakeFormPort port;
    fillVehicleForm(port, record);
    EXPECT_EQ(port.texts[IDC_WEIGHT], "20000");
    EXPECT_EQ(port.texts[IDC_LANGUAGE], "de");
    EXPECT_EQ(port.texts[IDC_UNIFORM_PROFILE], "Default");
    SquadRecord unchanged = record;
    ASSERT_FALSE(readVehicleForm(port, unchanged));
    EXPECT_EQ(unchanged, record);

    port.texts[IDC_WEIGHT] = "heavy";
    port.texts[IDC_UNIFORM_GAME] = "Other.PNG";
    port.setChecked(IDC_AMPHIBIOUS, true);
    ASSERT_FALSE(readVehicleForm(port, record));
    EXPECT_EQ(record.vehicle->weight, 0);
    EXPECT_EQ(record.uniformGame, "Other");
    EXPECT_TRUE(record.vehicle->amphibious);
}

TEST(VehicleForm, LanguageIsTwoCharactersOrNone) {
    for (const auto& [text, expected] : std::map<std::string, std::string>{
             {"fr", "fr"}, {"f", ""}, {"fra", ""}, {"Default", ""}, {"", ""}}) {
        SquadRecord record = vehicleUnit();
        FakeFormPort port;
        fillVehicleForm(port, record);
        port.texts[IDC_LANGUAGE] = text;
        ASSERT_FALSE(readVehicleForm(port, record));
        EXPECT_EQ(record.language, expected.c_str()) << text;
    }
}

TEST(VehicleForm, UniformMethodsEnableTheirListsAndKeepWhatTheyDoNotShow) {
    SquadRecord record = vehicleUnit();
    record.uniformProfile = "kept";
    FakeFormPort port;
    fillVehicleForm(port, record);
    EXPECT_TRUE(port.disabled.contains(IDC_UNIFORM_NAME));
    EXPECT_FALSE(port.disabled.contains(IDC_UNIFORM_PROFILE));
    port.setChecked(IDC_UNIFORM_NEW_METHOD, false);
    port.setChecked(IDC_UNIFORM_OLD_METHOD, true);
    enableUniformLists(port);
    EXPECT_TRUE(port.disabled.contains(IDC_UNIFORM_PROFILE));
    EXPECT_TRUE(port.disabled.contains(IDC_UNIFORM_GAME));
    EXPECT_FALSE(port.disabled.contains(IDC_UNIFORM_NAME));
    port.texts[IDC_UNIFORM_NAME] = "winter";
    ASSERT_FALSE(readVehicleForm(port, record));
    EXPECT_TRUE(record.namedUniform);
    EXPECT_EQ(record.uniformName, "winter");
    EXPECT_EQ(record.uniformProfile, "kept");
}

// Each would spoil the file for every reader.
TEST(VehicleForm, TextsThatNoFileCouldHoldAreRefused) {
    constexpr std::pair<int, const char*> refused[] = {{IDC_LONG_NAME, "see // there"},
                                                       {IDC_SHORT_NAME, "</squad>"},
                                                       {IDC_DESCRIPTION, "<hull> at once"},
                                                       {IDC_NATIONALITY, "</nationality"},
                                                       {IDC_LANGUAGE, "//"},
                                                       {IDC_PROFILE_IMAGE, "http://a"},
                                                       {IDC_UNIFORM_GAME, "<game>"},
                                                       {IDC_UNIFORM_RANKS, "a//b.png"}};
    SquadRecord record = vehicleUnit();
    const SquadRecord before = record;
    FakeFormPort port;
    for (const auto& [control, text] : refused) {
        fillVehicleForm(port, record);
        port.texts[control] = text;
        const auto error = readVehicleForm(port, record);
        ASSERT_TRUE(error) << text;
        EXPECT_EQ(error->control, control);
        EXPECT_EQ(record, before);
    }
    fillVehicleForm(port, record);
    port.texts[IDC_LONG_NAME] = "A & B <C> 1/2 /";
    EXPECT_FALSE(readVehicleForm(port, record));
}

TEST(Forms, NumbersBeyondTheirFieldAreRefusedUnlessTheFileHasThem) {
    std::vector<ExhaustPipeRecord> pipes = {{.angle = 720}};
    VectorListModel<ExhaustPipeRecord> model(pipes, exhaustPipeShape());
    FakeFormPort port;
    model.show(0, port);
    EXPECT_FALSE(model.read(0, port)) << "what an old file holds is no hindrance to other changes";
    constexpr std::pair<const char*, const char*> cases[] = {
        {"99999999999999999999", "\"OffsetX\" must be a whole number from -2147483648 to 2147483647"},
        {"-2147483649", "\"OffsetX\" must be a whole number from -2147483648 to 2147483647"},
        {"1e5", "\"OffsetX\" must be a whole number"},
        {"-", "\"OffsetX\" must be a whole number"},
        {" -0 ", ""},
        {"-2147483648", ""},
    };
    for (const auto& [text, message] : cases) {
        port.texts[IDC_OFFSET_X] = text;
        const auto error = model.read(0, port);
        EXPECT_EQ(error ? error->message : "", message) << text;
    }
    port.texts[IDC_ANGLE] = "721";
    EXPECT_TRUE(model.read(0, port));
}

ComponentRecord turret() {
    ComponentRecord component;
    component.kind = ComponentKind::Turret;
    component.rotateTime = 16;
    component.limitedTraverse = true;
    return component;
}

struct TraverseCase {
    const char* left;
    const char* right;
    const char* offset;
    const char* message; ///< without "The turret " or "The "; empty: accepted
    const char* caption;
};

constexpr TraverseCase TraverseCases[] = {
    {"180", "180", "0", "", ""},
    {"0", "360", "-180", "", ""},
    {"10", "10", "180", "", ""},
    {"181", "180", "0", "rotate left and right angles must add up to less that 360 degrees", "Rotate angles"},
    {"-1", "0", "0", "rotate left and right angles must be between 0 and 360 degrees", "Rotate angles"},
    {"0", "361", "0", "rotate left and right angles must be between 0 and 360 degrees", "Rotate angles"},
    {"10", "10", "181", "offset angle must be between -180 and 180 degrees", "Offset angle"},
    {"10", "10", "-181", "offset angle must be between -180 and 180 degrees", "Offset angle"},
    // The limits are looked at before the offset angle.
    {"400", "10", "400", "rotate left and right angles must be between 0 and 360 degrees", "Rotate angles"},
};

TEST(ComponentForm, ChecksTraverseOfTurretsAndFixedWeapons) {
    for (const bool isTurret : {true, false}) {
        for (const TraverseCase& row : TraverseCases) {
            ComponentRecord component = turret();
            component.kind = isTurret ? ComponentKind::Turret : ComponentKind::FixedWeapon;
            component.offsetZ = 1;
            FakeFormPort port;
            fillComponentForm(port, component);
            port.texts[IDC_ROTATE_LEFT] = row.left;
            port.texts[IDC_ROTATE_RIGHT] = row.right;
            port.texts[IDC_OFFSET_ANGLE] = row.offset;
            const ComponentRecord before = component;
            const auto error = readComponentForm(port, component);
            if (*row.message == '\0') {
                EXPECT_FALSE(error) << row.left << " " << row.right;
                EXPECT_EQ(std::to_string(component.rotateRight), row.right);
            } else {
                ASSERT_TRUE(error) << row.left << " " << row.right;
                EXPECT_EQ(error->message, (isTurret ? "The turret " : "The ") + std::string(row.message));
                EXPECT_EQ(error->caption, row.caption);
                EXPECT_EQ(component, before);
            }
        }
    }
}

TEST(ComponentForm, LeavesLimitsAloneWithoutLimitedTraverse) {
    ComponentRecord component = turret();
    FakeFormPort port;
    fillComponentForm(port, component);
    port.setChecked(IDC_LIMITED_TRAVERSE, false);
    enableTraverse(port);
    EXPECT_TRUE(port.disabled.contains(IDC_ROTATE_LEFT));
    EXPECT_TRUE(port.disabled.contains(IDC_OFFSET_ANGLE));
    port.texts[IDC_ROTATE_LEFT] = "nonsense";
    ASSERT_FALSE(readComponentForm(port, component));
    EXPECT_FALSE(component.limitedTraverse);
}

TEST(ComponentForm, FixedWeaponsStandAboveTheGround) {
    ComponentRecord weapon = turret();
    weapon.kind = ComponentKind::FixedWeapon;
    FakeFormPort port;
    fillComponentForm(port, weapon);
    const auto error = readComponentForm(port, weapon);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->message, "OffsetZ must be greater than zero");
    EXPECT_EQ(error->caption, "Error");
}

TEST(ComponentForm, RotateSpeedIsDegreesASecond) {
    EXPECT_EQ(rotateSpeedText(16), "22.5");
    EXPECT_EQ(rotateSpeedText(7), "51.4");
    EXPECT_EQ(rotateSpeedText(0), "0.0");
    EXPECT_EQ(rotateTimeOf("22.5"), 16);
    EXPECT_EQ(rotateTimeOf("0"), std::nullopt);
    EXPECT_EQ(rotateTimeOf("-3"), std::nullopt);
    EXPECT_EQ(rotateTimeOf("fast"), std::nullopt);
    EXPECT_EQ(rotateTimeOf("0.001"), 86400);
    // A speed of 1.0 stands for many times: one that was not touched keeps its own.
    ComponentRecord slow = turret();
    slow.limitedTraverse = false;
    slow.rotateTime = 349;
    FakeFormPort port;
    fillComponentForm(port, slow);
    ASSERT_FALSE(readComponentForm(port, slow));
    EXPECT_EQ(slow.rotateTime, 349);
    constexpr std::pair<const char*, const char*> refused[] = {
        {"0", "The rotate speed must be greater than zero"},
        {"12abc", "\"Rotate speed\" must be a number"},
        {"1,5", "\"Rotate speed\" must be a number"},
        {"1000000000",
         "The rotate speed must be at most 360 degrees per second: the file counts the seconds for a "
         "full circle"},
    };
    for (const auto& [text, message] : refused) {
        port.texts[IDC_ROTATE_SPEED] = text;
        const auto error = readComponentForm(port, slow);
        ASSERT_TRUE(error) << text;
        EXPECT_EQ(error->message, message);
    }
}

TEST(ArmourForm, NotGivenIsAStateOfItsOwn) {
    ArmourRecord armour;
    armour.upperFront = {50, 60};
    FakeFormPort port;
    fillArmourForm(port, armour, true);
    EXPECT_EQ(port.texts[IDC_PLATES + 2], "100 mm"); // 50 mm at 60 degrees
    EXPECT_TRUE(port.disabled.contains(IDC_MANTLET));
    port.setChecked(IDC_MANTLET_GIVEN, true);
    port.texts[IDC_MANTLET] = "0";
    ASSERT_FALSE(readArmourForm(port, armour, true));
    EXPECT_EQ(armour.mantlet, 0);
    EXPECT_EQ(armour.bottom, ArmourNotGiven);
    port.texts[IDC_PLATES + 1] = "91";
    const auto error = readArmourForm(port, armour, true);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->control, IDC_PLATES + 1);
    EXPECT_EQ(error->message, "\"Upper front angle\" must be a whole number from 0 to 90");
    // The other plates follow what is typed all the same.
    port.texts[IDC_PLATES + 3] = "70";
    followPlates(port, armour);
    EXPECT_EQ(port.texts[IDC_PLATES + 2], "?");
    EXPECT_EQ(port.texts[IDC_PLATES + 5], "70 mm");
}

TEST(DriveForm, EnginesBringTheirHorsepower) {
    SquadRecord record = vehicleUnit();
    FakeFormPort port;
    fillDriveForm(port, *record.vehicle);
    takeEngine(port, "Buick Series 60");
    EXPECT_EQ(port.texts[IDC_HORSEPOWER], "330");
    port.texts[IDC_ENGINE_MOUNT] = "Front";
    ASSERT_FALSE(readDriveForm(port, *record.vehicle));
    EXPECT_EQ(record.vehicle->engineMount, EngineMount::Front);
    port.texts[IDC_RPM_LIMIT] = "100";
    EXPECT_TRUE(readDriveForm(port, *record.vehicle));
}

TEST(ListModel, CopiesMirrorsAndRefusesBadNumbers) {
    std::vector<ExhaustPipeRecord> pipes = {{.offsetX = 50, .offsetY = -200, .angle = 135}};
    VectorListModel<ExhaustPipeRecord> model(pipes, exhaustPipeShape());
    model.mirror(0);
    ASSERT_EQ(pipes.size(), 2U);
    EXPECT_EQ(pipes[1].offsetX, -50);
    EXPECT_EQ(pipes[1].angle, 225);
    FakeFormPort port;
    model.show(1, port);
    port.texts[IDC_OFFSET_Y] = "far";
    ASSERT_TRUE(model.read(1, port));
    EXPECT_EQ(pipes[1].offsetY, -200);

    std::vector<CrewManRecord> crew(MaxSquadMembers);
    EXPECT_FALSE(VectorListModel<CrewManRecord>(crew, crewShape()).hasRoom());
}

TEST(ComponentList, NewComponentsAreAllZero) {
    VehicleRecord vehicle;
    addComponent(vehicle, ComponentKind::Turret);
    const ComponentRecord& component = vehicle.components.front();
    EXPECT_EQ(component.armour.bottom, 0);
    EXPECT_EQ(component.rotateTime, 0);
    EXPECT_FALSE(canMoveUp(vehicle, 0));
    EXPECT_FALSE(canMoveDown(vehicle, 0));
}

TEST(WeaponChoices, FollowTheUnitsNationAndTime) {
    SquadRecord record = vehicleUnit();
    record.nationality = "NATIONALITY_GERMAN";
    record.availability = {{1, 1943, 10}};
    EXPECT_EQ(periodOf(record), "WW2");
    WeaponCatalogue catalogue;
    catalogue.load("sample\\");
    const auto has = [](const std::vector<std::string>& names, const char* name) {
        return std::find(names.begin(), names.end(), name) != names.end();
    };
    const auto offered = weaponChoices(catalogue, record, WeaponBearer::Vehicle, false);
    EXPECT_TRUE(has(offered, "WEAPON_CANNON_75_KWK42_L70"));
    EXPECT_FALSE(has(offered, "WEAPON_CANNON_75_M3_L38"));
    EXPECT_FALSE(has(offered, "WEAPON_PISTOL_P38")) << "a man's";
    const auto ofMan = weaponChoices(catalogue, record, WeaponBearer::Man, false);
    EXPECT_TRUE(has(ofMan, "WEAPON_PISTOL_P38"));
    EXPECT_FALSE(has(ofMan, "WEAPON_CANNON_75_KWK42_L70"));
    EXPECT_TRUE(has(weaponChoices(catalogue, record, WeaponBearer::Man, true), "WEAPON_CANNON_75_M3_L38"));
    const AmmoLoadRecord smoke{"WEAPON_CANNON_75_KWK42_L70", "FLAVOUR_HESH", 1};
    const std::vector<std::string> weapons = {"WEAPON_CANNON_75_KWK42_L70"};
    EXPECT_EQ(ammunitionWarning(smoke, weapons, catalogue), "The weapon has no ammunition of this flavour.");
    EXPECT_EQ(ammunitionWarning(smoke, {}, catalogue), "This ammunition is for a weapon that is not there.");
}

TEST(PenetrationForm, ShowsAndCopiesTheSameRows) {
    WeaponRecord weapon{.name = "GUN", .calibre = 75};
    weapon.ammoTypes.push_back({.flavour = AmmoFlavour::Apcbc, .speed = 935, .mass = 6.8F, .name = "39/42"});
    FakeFormPort port;
    fillPenetrationDefaults(port);
    port.texts[IDC_PEN_ANGLE] = "60";
    port.texts[IDC_DRAG_APCBC] = "12";
    showPenetration(port, &weapon, 0);
    const auto rows = penetrationRows(projectileOf(weapon, weapon.ammoTypes[0]), 12, 60);
    std::string copied = "GUN\tAPCBC - 39/42\t60 degrees\r\nRange\tPenetration\tVelocity\r\n";
    for (std::size_t row = 0; row < rows.size(); ++row) {
        EXPECT_EQ(port.texts[IDC_PENETRATION_ROWS + static_cast<int>(row)], rows[row].penetration);
        EXPECT_EQ(port.texts[IDC_VELOCITY_ROWS + static_cast<int>(row)], rows[row].velocity);
        copied += (row == 6 ? "1,000" : std::to_string(PenetrationRanges[row])) + " m\t" +
                  rows[row].penetration + "\t" + rows[row].velocity + "\r\n";
    }
    EXPECT_EQ(penetrationTable(port, weapon, 0), copied);
    EXPECT_EQ(rows[5].velocity, "881 m/s");
    showPenetration(port, &weapon, 1);
    EXPECT_EQ(port.texts[IDC_PENETRATION_ROWS], "-") << "there is no such ammunition";
}

TEST(PenetrationForm, StepsOfAnAxisAreRoundAndFew) {
    for (const auto& [greatest, expected] : std::map<double, std::pair<double, int>>{{0.5, {0.1, 5}},
                                                                                     {6, {1, 6}},
                                                                                     {6.1, {2, 4}},
                                                                                     {152, {50, 4}},
                                                                                     {301, {100, 4}},
                                                                                     {1.7e308, {2e5, 5}}}) {
        const ChartAxis axis = chartAxis(greatest, 6);
        EXPECT_DOUBLE_EQ(axis.step, expected.first) << greatest;
        EXPECT_EQ(axis.steps, expected.second) << greatest;
    }
}

} // namespace
} // namespace varrocade::tests
