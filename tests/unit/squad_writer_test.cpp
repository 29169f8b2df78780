// Infantry and heavy-weapon squads, and aircraft.

#include "data/unit_writers.h"
#include "test_support.h"

#include <tuple>

#include <gtest/gtest.h>

namespace varrocade::tests {

namespace {

/// Every element that the squads' writer knows.
SquadRecord fullSquad() {
    SquadRecord record;
    std::tie(record.fileName, record.type, record.nationality, record.language, record.quality) =
        std::tuple("unit", "TYPE_INFANTRY_SECTION", "NATIONALITY_FINNISH", "fi", "QUALITY_ELITE");
    std::tie(record.longName, record.shortName, record.comment) =
        std::tuple("A long name", "Short", "A comment.");
    std::tie(record.uniformGame, record.uniformProfile, record.uniformRanks) =
        std::tuple("game", "profile", "uniform_ranks_finnish");
    record.availability = {{11, 1939, 300}};
    CrewManRecord leader;
    std::tie(leader.job, leader.language) = std::tuple("JOB_SQUAD_LEADER", "se");
    leader.bodyArmour = leader.nightVision = true;
    leader.weapons = {"WEAPON_SMG_SUOMI", "WEAPON_GRENADE_X"};
    leader.ammo = {{.weaponType = "WEAPON_SMG_SUOMI", .rounds = 140},
                   {.weaponType = "WEAPON_GRENADE_X", .flavour = "FLAVOUR_GRENADE_SMOKE", .rounds = 2}};
    record.infantrymen = {leader, CrewManRecord()};
    HeavyWeaponRecord& gun = record.heavyWeapon.emplace();
    gun.kind = HeavyWeaponKind::AtGun;
    std::tie(gun.baseImage, gun.gunImage, gun.profileImage) = std::tuple("base", "gun", "gun profile");
    std::tie(gun.nightVision, gun.antiAircraft, gun.limitedTraverse, gun.moveable) =
        std::tuple(true, true, true, false);
    gun.weapons = {{.type = "WEAPON_CANNON_37_PSTK36"}};
    gun.ammo = {{.weaponType = "WEAPON_CANNON_37_PSTK36", .flavour = "FLAVOUR_AP", .rounds = 40},
                {.weaponType = "WEAPON_CANNON_37_PSTK36", .rounds = 7}};
    std::tie(gun.rotateLeft, gun.rotateRight, gun.mass) = std::tuple(25, 26, 370);
    gun.trailLength = 2.5;
    record.heavyWeaponPlace = 1;
    return record;
}

SquadRecord fullAircraft() {
    SquadRecord record;
    std::tie(record.fileName, record.type, record.nationality, record.language) =
        std::tuple("unit", "TYPE_HELICOPTER", "NATIONALITY_FRENCH", "fr");
    std::tie(record.longName, record.shortName, record.comment) =
        std::tuple("A long name", "Short", "A comment.");
    record.availability = {{2, 1975, 12}};
    AircraftRecord& aircraft = record.aircraft.emplace();
    aircraft.image = "image";
    aircraft.ejectsFlares = true;
    aircraft.sound = "helicopter";
    aircraft.speed = 280;
    aircraft.weapons = {{.type = "WEAPON_HMG_X", .offsetX = -5, .offsetY = 6}, {.type = "WEAPON_BOMB_X"}};
    aircraft.ammo = {{.weaponType = "WEAPON_HMG_X", .rounds = 700},
                     {.weaponType = "WEAPON_HMG_X", .flavour = "FLAVOUR_HE", .rounds = 70},
                     {.weaponType = "WEAPON_BOMB_X", .flavour = "FLAVOUR_BOMB_HE", .rounds = 2}};
    aircraft.rotorBlades = {
        {.image = "main rotor", .offsetX = 1, .offsetY = -2, .diameter = 1050, .clockwise = false},
        {.image = "tail rotor"}};
    return record;
}

} // namespace

TEST(SquadWriter, WritesAndReadsEveryElement) {
    EXPECT_EQ(squadFileText(fullSquad()), goldenText("squad.txt"));
    EXPECT_TRUE(readUnitText(goldenText("squad.txt")) == fullSquad());
}

TEST(AircraftWriter, WritesAndReadsEveryElement) {
    EXPECT_EQ(aircraftFileText(fullAircraft()), goldenText("aircraft.txt"));
    EXPECT_TRUE(readUnitText(goldenText("aircraft.txt")) == fullAircraft());
}

TEST(SquadWriter, PassesOverWhatDoesNotCount) {
    SquadRecord record;
    record.infantrymen.resize(1);
    record.heavyWeapon.emplace().kind = HeavyWeaponKind::AtGun;
    record.heavyWeaponPlace = 1;
    SquadRecord more = record;
    more.heavyWeapon->rotateLeft = 30;
    more.heavyWeaponPlace = 5;
    EXPECT_EQ(squadFileText(more), squadFileText(record));
}

TEST(UnitFileText, TakesTheCategorysWriter) {
    const SquadRecord squad = fullSquad();
    const SquadRecord aircraft = fullAircraft();
    EXPECT_EQ(unitFileText(Category::AtGuns, squad), squadFileText(squad));
    EXPECT_EQ(unitFileText(Category::Infantry, squad), squadFileText(squad));
    EXPECT_EQ(unitFileText(Category::Aircraft, aircraft), aircraftFileText(aircraft));
    EXPECT_EQ(unitFileText(Category::Vehicles, squad), std::nullopt);
    EXPECT_EQ(unitFileText(Category::Aircraft, squad), std::nullopt);
    EXPECT_EQ(unitFileText(Category::Weapons, squad), std::nullopt);
}

} // namespace varrocade::tests
