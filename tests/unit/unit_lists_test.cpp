// The lists inside a unit and what their drop-down lists offer, driven without windows.

#include "editors/unit/availability_edit.h"
#include "editors/unit/carried_ammo.h"
#include "editors/unit/unit_lists.h"
#include "editors/unit/weapon_choices.h"
#include "fake_form_port.h"
#include "resources/resource.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

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

TEST(WeaponChoices, TakeTheErasOfTheWholeAvailability) {
    using Points = std::vector<AvailabilityPoint>;
    struct Case {
        Points points;
        std::string periods;
    };
    for (const Case& row :
         {Case{{}, ""}, Case{{{1, 1943, 10}}, "WW2;"}, Case{{{1, 1950, 10}, {6, 1944, 5}}, "WW2;Cold War;"},
          Case{{{1, 1916, 3}, {1, 1946, 0}}, "WW1;WW2;"}, // none are left when it begins
          Case{{{1, 1916, 3}, {2, 1946, 0}}, "WW1;WW2;Cold War;"},
          Case{{{1, 1916, 3}, {1, 1920, 0}, {1, 2000, 1}}, "WW1;Modern;"}, Case{{{1, 1943, 0}}, "WW2;"}}) {
        std::string periods;
        for (const std::string_view period : periodsOf({.availability = row.points})) {
            periods += std::string(period) + ";";
        }
        EXPECT_EQ(periods, row.periods);
    }
    WeaponCatalogue catalogue;
    catalogue.load("sample\\");
    SquadRecord record{.nationality = "NATIONALITY_GERMAN", .availability = {{1, 1950, 5}}};
    const auto offersGun = [&] {
        const auto offered = weaponChoices(catalogue, record, WeaponBearer::Vehicle, false);
        return std::find(offered.begin(), offered.end(), "WEAPON_CANNON_75_KWK42_L70") != offered.end();
    };
    EXPECT_FALSE(offersGun());
    record.availability.push_back({1, 1943, 5});
    EXPECT_TRUE(offersGun()) << "it began in another era than the first line says";
}

TEST(Availability, NewDatesFollowTheLastOneWithinItsEra) {
    using Points = std::vector<AvailabilityPoint>;
    struct Case {
        Points points;
        AvailabilityPoint next;
        std::size_t place;
    };
    for (const Case& row : {Case{{}, {1, 1940, 100}, 0}, Case{{{4, 1943, 7}}, {5, 1943, 7}, 1},
                            Case{{{12, 1944, 7}, {4, 1943, 9}}, {1, 1945, 7}, 2},
                            Case{{{3, 1943, 5}, {11, 1945, 9}, {12, 1945, 7}}, {10, 1945, 5}, 1},
                            Case{{{12, 2030, 3}}, {1, 2031, 3}, 1}, Case{{{0, 1919, 1}}, {2, 1919, 1}, 1}}) {
        const AvailabilityPoint next = nextDate(row.points);
        EXPECT_EQ(next, row.next) << int{next.month} << "/" << next.year << ": " << next.number;
        EXPECT_EQ(placeOfDate(row.points, next), row.place) << next.year;
    }
}

TEST(Availability, TheMouseFindsRoundNumbers) {
    constexpr std::tuple<int, int, int> cases[] = {
        {37, 1, 37},  {37, 50, 37},    {37, 100, 38},         {1331, 1346, 1350},
        {7, 1346, 0}, {499, 500, 500}, {65535, 65535, 65535}, {61000, 65535, 62000}};
    for (const auto& [number, greatest, rounded] : cases) {
        EXPECT_EQ(roundNumber(static_cast<std::uint16_t>(number), static_cast<std::uint16_t>(greatest)),
                  rounded)
            << number << " of " << greatest;
    }
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
    EXPECT_EQ(usualRounds(catalogue, "WEAPON_LMG_BREN_MK2", WeaponBearer::Man), 240);
    EXPECT_EQ(usualRounds(catalogue, "WEAPON_LMG_BREN_MK2", WeaponBearer::Aircraft), 1000);
    EXPECT_EQ(usualRounds(catalogue, "WEAPON_LMG_BREN_MK2", WeaponBearer::Vehicle), 0);
    EXPECT_EQ(usualRounds(catalogue, "WEAPON_NONE", WeaponBearer::Man), 0);
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

TEST(ListModel, PutsNewEntriesWhereTheyBelong) {
    std::vector<AvailabilityPoint> points = {{1, 1940, 1}, {1, 1945, 2}};
    VectorListModel<AvailabilityPoint> model(
        points, availabilityShape(),
        {.next =
             [] {
                 return AvailabilityPoint{1, 1942, 3};
             },
         .place = [&](const auto& added) { return placeOfDate(points, added); }});
    model.add();
    EXPECT_EQ(model.newest(), 1U);
    EXPECT_EQ(points[1].year, 1942);
    model.copy(0);
    EXPECT_EQ(model.newest(), 1U);
    model.erase(3);
    EXPECT_EQ(points.back().year, 1942);
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
