// The lists inside a unit and what their drop-down lists offer, driven without windows.

#include "editors/unit/unit_lists.h"
#include "editors/unit/weapon_choices.h"
#include "fake_form_port.h"
#include "resources/resource.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace varrocade::tests {
namespace {

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

TEST(WeaponChoices, FollowTheUnitsNationAndTime) {
    SquadRecord record;
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

} // namespace
} // namespace varrocade::tests
