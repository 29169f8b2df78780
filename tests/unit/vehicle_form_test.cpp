// The "Details" and "Drive" dialogs of a vehicle, and its list of components, driven without windows.

#include "editors/vehicle/component_list.h"
#include "editors/vehicle/drive_form.h"
#include "editors/vehicle/vehicle_form.h"
#include "fake_form_port.h"
#include "resources/resource.h"

#include <gtest/gtest.h>

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
    fillForm(port, vehicleShape(), record);
    EXPECT_EQ(port.texts[IDC_WEIGHT], "20000");
    EXPECT_EQ(port.texts[IDC_LANGUAGE], "de");
    EXPECT_EQ(port.texts[IDC_UNIFORM_PROFILE], "Default");
    SquadRecord unchanged = record;
    ASSERT_FALSE(readForm(port, vehicleShape(), unchanged));
    EXPECT_EQ(unchanged, record);

    port.texts[IDC_WEIGHT] = "heavy";
    port.texts[IDC_UNIFORM_GAME] = "Other.PNG";
    port.setChecked(IDC_AMPHIBIOUS, true);
    ASSERT_FALSE(readForm(port, vehicleShape(), record));
    EXPECT_EQ(record.vehicle->weight, 0);
    EXPECT_EQ(record.uniformGame, "Other");
    EXPECT_TRUE(record.vehicle->amphibious);
}

TEST(VehicleForm, NamesKeepTheEndingsThatFilesGaveThem) {
    SquadRecord record = vehicleUnit();
    record.namedUniform = true;
    record.uniformName = "uniform_old.png";
    record.uniformRanks = "odd.png"; // odd.png.png
    FakeFormPort port;
    fillForm(port, vehicleShape(), record);
    SquadRecord read = record;
    ASSERT_FALSE(readForm(port, vehicleShape(), read));
    EXPECT_EQ(read, record);
    port.texts[IDC_UNIFORM_NAME] = "other.png";
    port.choices[IDC_PROFILE_IMAGE] = {"even.png"};
    port.texts[IDC_PROFILE_IMAGE] = "even.png";
    ASSERT_FALSE(readForm(port, vehicleShape(), read));
    EXPECT_EQ(read.uniformName, "other.png") << "written as it stands";
    EXPECT_EQ(read.vehicle->profileImage, "even.png") << "a picture of the list";
    port.texts[IDC_UNIFORM_NAME] = "DEFAULT.PNG";
    ASSERT_FALSE(readForm(port, vehicleShape(), read));
    EXPECT_TRUE(read.uniformName.empty());
}

TEST(VehicleForm, LanguageIsTwoCharactersOrNone) {
    for (const auto& [text, expected] : std::map<std::string, std::string>{
             {"fr", "fr"}, {"f", ""}, {"fra", ""}, {"Default", ""}, {"", ""}}) {
        SquadRecord record = vehicleUnit();
        FakeFormPort port;
        fillForm(port, vehicleShape(), record);
        port.texts[IDC_LANGUAGE] = text;
        ASSERT_FALSE(readForm(port, vehicleShape(), record));
        EXPECT_EQ(record.language, expected.c_str()) << text;
    }
}

TEST(VehicleForm, UniformMethodsEnableTheirListsAndKeepWhatTheyDoNotShow) {
    SquadRecord record = vehicleUnit();
    record.uniformProfile = "kept";
    FakeFormPort port;
    fillForm(port, vehicleShape(), record);
    EXPECT_TRUE(port.disabled.contains(IDC_UNIFORM_NAME));
    EXPECT_FALSE(port.disabled.contains(IDC_UNIFORM_PROFILE));
    port.setChecked(IDC_UNIFORM_NEW_METHOD, false);
    port.setChecked(IDC_UNIFORM_OLD_METHOD, true);
    updateEnabling(port, vehicleShape(), record);
    EXPECT_TRUE(port.disabled.contains(IDC_UNIFORM_PROFILE));
    EXPECT_TRUE(port.disabled.contains(IDC_UNIFORM_GAME));
    EXPECT_FALSE(port.disabled.contains(IDC_UNIFORM_NAME));
    port.texts[IDC_UNIFORM_NAME] = "winter";
    ASSERT_FALSE(readForm(port, vehicleShape(), record));
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
        fillForm(port, vehicleShape(), record);
        port.texts[control] = text;
        const auto error = readForm(port, vehicleShape(), record);
        ASSERT_TRUE(error) << text;
        EXPECT_EQ(error->control, control);
        EXPECT_EQ(record, before);
    }
    fillForm(port, vehicleShape(), record);
    port.texts[IDC_LONG_NAME] = "A & B <C> 1/2 /";
    EXPECT_FALSE(readForm(port, vehicleShape(), record));
}

TEST(DriveForm, EnginesBringTheirHorsepower) {
    SquadRecord record = vehicleUnit();
    FakeFormPort port;
    fillForm(port, driveShape(), *record.vehicle);
    takeEngine(port, "Buick Series 60");
    EXPECT_EQ(port.texts[IDC_HORSEPOWER], "330");
    port.texts[IDC_ENGINE_MOUNT] = "Front";
    ASSERT_FALSE(readForm(port, driveShape(), *record.vehicle));
    EXPECT_EQ(record.vehicle->engineMount, EngineMount::Front);
    port.texts[IDC_RPM_LIMIT] = "100";
    EXPECT_TRUE(readForm(port, driveShape(), *record.vehicle));
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

TEST(ComponentList, TwinsStandOnTheOtherSide) {
    VehicleRecord vehicle;
    vehicle.components.resize(2);
    ComponentRecord& turret = vehicle.components[1];
    turret.kind = ComponentKind::Turret;
    turret.offsetX = 60;
    turret.offsetY = 40;
    turret.offsetAngle = -20;
    turret.rotateLeft = 10;
    turret.rotateRight = 90;
    turret.armour.upperLeft = {30, 5};
    turret.weapons = {{.type = "GUN", .offsetX = INT32_MIN, .offsetAngle = 3}};
    turret.smokeDischargers = {{.angle = 45, .offsetX = 50}};
    turret.crew.resize(2);
    EXPECT_FALSE(canCopy(vehicle, 0)) << "a second hull";
    ASSERT_TRUE(canCopy(vehicle, 1));
    copyComponent(vehicle, 1);
    EXPECT_EQ(vehicle.components[2], vehicle.components[1]);
    mirrorComponent(vehicle, 1);
    ComponentRecord expected = vehicle.components[1];
    expected.offsetX = -60;
    expected.offsetAngle = 20;
    std::swap(expected.rotateLeft, expected.rotateRight);
    std::swap(expected.armour.upperLeft, expected.armour.upperRight);
    expected.weapons[0].offsetX = INT32_MAX;
    expected.weapons[0].offsetAngle = -3;
    expected.smokeDischargers[0].offsetX = -50;
    expected.smokeDischargers[0].angle = -45;
    EXPECT_EQ(vehicle.components[3], expected);
    EXPECT_FALSE(canCopy(vehicle, 4));
}

} // namespace
} // namespace varrocade::tests
