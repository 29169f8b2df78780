// The lists inside a unit and what their drop-down lists offer, driven without windows.

#include "editors/unit/carried_ammo.h"
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

TEST(CarriedAmmo, NewOnesAreForWhatHasNone) {
    WeaponCatalogue catalogue;
    catalogue.load("sample\\");
    const std::vector<std::string> weapons = {"", "WEAPON_CANNON_75_KWK42_L70", "WEAPON_LMG_MG34"};
    std::vector<AmmoLoadRecord> loads;
    const auto add = [&] {
        loads.push_back(nextAmmunition(weapons, loads, true, catalogue));
        return loads.back();
    };
    const AmmoLoadRecord first = add();
    EXPECT_EQ(first.weaponType, weapons[1].c_str());
    EXPECT_EQ(first.flavour, flavourChoices(catalogue, weapons[1]).front().c_str());
    EXPECT_EQ(add().weaponType, weapons[2].c_str());
    const AmmoLoadRecord third = add();
    EXPECT_EQ(third.weaponType, weapons[1].c_str());
    EXPECT_EQ(third.flavour, flavourChoices(catalogue, weapons[1]).at(1).c_str());
    EXPECT_TRUE(nextAmmunition({}, loads, true, catalogue).weaponType.empty());
    EXPECT_TRUE(nextAmmunition(weapons, {}, false, catalogue).flavour.empty())
        << "files have none of a man's";
}

TEST(CarriedAmmo, GoesWithItsWeaponOrToTheNextOne) {
    const auto armed = [](std::initializer_list<const char*> types) {
        std::vector<WeaponMountRecord> weapons(types.size());
        std::transform(types.begin(), types.end(), weapons.begin(), [](const char* type) {
            WeaponMountRecord weapon;
            weapon.type = type;
            return weapon;
        });
        return weapons;
    };
    const std::vector<WeaponMountRecord> former = armed({"GUN", "MG", "MG"});
    const std::vector<AmmoLoadRecord> loads = {{"GUN", "HE", 57}, {"GUN", "AP", 40}, {"MG", "", 900}};
    struct Case {
        const char* what;
        std::vector<WeaponMountRecord> present;
        std::string orphans;
        std::size_t kept; ///< loads when they go with their weapon
        std::string left; ///< whom the first load is for otherwise
    };
    const std::vector<Case> cases = {{"nothing", former, "", 3, "GUN"},
                                     {"one of two", armed({"MG", "GUN"}), "", 3, "GUN"},
                                     {"exchanged", armed({"NEW", "MG"}), "GUN>NEW 97;", 1, "NEW"},
                                     {"deleted", armed({"MG"}), "GUN> 97;", 1, "GUN"},
                                     {"all", {}, "GUN> 97;MG> 900;", 0, "GUN"}};
    for (const Case& row : cases) {
        std::string found;
        auto gone = loads;
        auto left = loads;
        for (const OrphanedAmmo& orphan : orphanedAmmo(former, row.present, loads)) {
            found += orphan.weaponType + ">" + orphan.successor + " " + std::to_string(orphan.rounds) + ";";
            settleOrphan(orphan, true, gone);
            settleOrphan(orphan, false, left);
        }
        EXPECT_EQ(found, row.orphans) << row.what;
        EXPECT_EQ(gone.size(), row.kept) << row.what;
        EXPECT_EQ(left.front().weaponType, row.left.c_str()) << row.what;
    }
}

TEST(ListModel, RefusesEmptyEntriesThatItMadeAndKeepsThoseOfTheFile) {
    std::vector<AmmoLoadRecord> loads = {{"", "", 5}, {"GUN", "", 5}};
    VectorListModel<AmmoLoadRecord> model(loads, ammunitionShape(),
                                          {.next = {}, .warn = [](const auto& load) {
                                               return std::string(load.weaponType.empty() ? "nobody's" : "");
                                           }});
    FakeFormPort port;
    EXPECT_EQ(model.line(0), "1. 5 for (no weapon)  (!)");
    model.show(0, port);
    port.texts[IDC_ROUNDS] = "6";
    EXPECT_FALSE(model.read(0, port));
    EXPECT_EQ(loads[0].rounds, 6);
    model.show(1, port);
    port.texts[IDC_WEAPON_TYPE].clear();
    ASSERT_TRUE(model.read(1, port));
    EXPECT_EQ(loads[1].weaponType, "GUN");
    model.add();
    model.swap(0, 2);
    model.erase(1);
    model.show(0, port);
    const auto error = model.read(0, port);
    ASSERT_TRUE(error) << "it is new wherever it stands";
    EXPECT_EQ(error->control, IDC_WEAPON_TYPE);
}

} // namespace
} // namespace varrocade::tests
