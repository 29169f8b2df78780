// The files in tests/golden that hold every element their writers know, each with a value of its own.

#include "data/writing/unit_writers.h"
#include "test_support.h"

#include <tuple>

#include <gtest/gtest.h>

namespace varrocade::tests {

TEST(Writers, WriteEveryElementThatTheReadersRead) {
    for (const auto& [category, name] : {std::pair(Category::Vehicles, "vehicle.txt"),
                                         {Category::Infantry, "squad.txt"},
                                         {Category::AtGuns, "squad.txt"},
                                         {Category::Aircraft, "aircraft.txt"},
                                         {Category::Weapons, "weapon.txt"}}) {
        EXPECT_EQ(rewritten(category, goldenText(name)), goldenText(name));
    }
}

TEST(UnitReader, PutsEveryValueOfAVehicleIntoItsMember) {
    const SquadRecord unit = readUnitText(goldenText("vehicle.txt"));
    EXPECT_EQ(std::tie(unit.type, unit.nationality, unit.language, unit.longName, unit.shortName,
                       unit.comment, unit.uniformProfile, unit.uniformGame, unit.uniformRanks),
              std::tuple("TYPE_ASSAULT_GUN", "NATIONALITY_GERMAN", "de", "A long name", "Short", "A comment.",
                         "profile", "game", "ranks"));
    EXPECT_EQ(unit.availability, std::vector<AvailabilityPoint>({{1, 1943, 20}, {5, 1945, 65535}}));
    const VehicleRecord& vehicle = unit.vehicle.value();
    EXPECT_TRUE(vehicle.canMountInfantry && vehicle.amphibious && vehicle.smokeScreen);
    EXPECT_EQ(std::tie(vehicle.profileImage, vehicle.engineName, vehicle.reliability, vehicle.steering),
              std::tuple("Profile", "Maybach HL230 P30", "RELIABILITY_POOR", "STEERING_DOUBLE_DIFFERENTIAL"));
    EXPECT_EQ(std::tie(vehicle.weight, vehicle.horsepower, vehicle.idleRevolutions, vehicle.revolutionLimit,
                       vehicle.forwardGears, vehicle.reverseGears, vehicle.engineMount),
              std::tuple(44800, 700, 600, 3000, 7, 2, EngineMount::Front));
    EXPECT_EQ(vehicle.exhaustPipes,
              std::vector<ExhaustPipeRecord>({{-30, -300, ExhaustPointingBack, 0}, {30, -300, 90, 45}}));
    ASSERT_EQ(vehicle.components.size(), 5U);

    const ComponentRecord& hull = vehicle.components[0];
    EXPECT_EQ(std::tie(hull.viewImage, hull.destroyedImage, hull.width, hull.length, hull.height),
              std::tuple("hull", "hull destroyed", 301, 602, 103));
    EXPECT_EQ(hull.armour, (ArmourRecord{{80, 55},
                                         {60, 55},
                                         {40, 40},
                                         {41, 40},
                                         {42, 0},
                                         {43, 5},
                                         {30, 0},
                                         {30, 10},
                                         5,
                                         6,
                                         7,
                                         16,
                                         0,
                                         ArmourNotGiven}));
    EXPECT_EQ(hull.smokeDischargers[0],
              (SmokeDischargerRecord{.offsetX = -1, .offsetY = 2, .reload = 30, .ammo = 3}));
    EXPECT_EQ(hull.smokeDischargers[1], (SmokeDischargerRecord{true, true, true, 0, 45, 4, 5, 6, 7, 8}));
    EXPECT_EQ(hull.crew[0], (CrewManRecord{"JOB_DRIVER",
                                           "de",
                                           true,
                                           true,
                                           {"WEAPON_SMG_MP40", "WEAPON_PISTOL_P38"},
                                           {{"WEAPON_SMG_MP40", "", 192}}}));
    EXPECT_EQ(hull.crew[1], CrewManRecord());

    const ComponentRecord& turret = vehicle.components[2];
    EXPECT_EQ(std::tie(turret.diameter, turret.height, turret.offsetX, turret.offsetY, turret.rotateTime,
                       turret.rotateLeft, turret.rotateRight, turret.offsetAngle, turret.armour.mantlet),
              std::tuple(165, 71, -3, 20, 15, 90, 80, -20, 100));
    EXPECT_TRUE(turret.limitedTraverse && turret.antiAircraft && turret.nightVision);
    EXPECT_EQ(turret.weapons[2], (WeaponMountRecord{"WEAPON_HMG_MG34", "coaxial", 1, 2, 3}));
    EXPECT_EQ(turret.ammo[0], (AmmoLoadRecord{"WEAPON_CANNON_75_KWK42_L70", "FLAVOUR_APCBC", 40}));
    EXPECT_EQ(vehicle.components[3].offsetZ, 110);
}

TEST(UnitReader, PutsEveryValueOfOthersIntoItsMember) {
    const SquadRecord squad = readUnitText(goldenText("squad.txt"));
    EXPECT_EQ(std::tie(squad.quality, squad.heavyWeaponPlace), std::tuple("QUALITY_ELITE", 1U));
    EXPECT_EQ(squad.infantrymen.at(0).job, "JOB_SQUAD_LEADER");
    const HeavyWeaponRecord& gun = squad.heavyWeapon.value();
    EXPECT_EQ(std::tie(gun.kind, gun.baseImage, gun.gunImage, gun.profileImage, gun.nightVision,
                       gun.antiAircraft, gun.limitedTraverse, gun.rotateLeft, gun.rotateRight, gun.mass,
                       gun.trailLength, gun.moveable),
              std::tuple(HeavyWeaponKind::AtGun, "base", "gun", "gun profile", true, true, true, 25, 26, 370,
                         2.5, false));
    const AircraftRecord aircraft = readUnitText(goldenText("aircraft.txt")).aircraft.value();
    EXPECT_EQ(std::tie(aircraft.image, aircraft.ejectsFlares, aircraft.sound, aircraft.speed),
              std::tuple("image", true, "helicopter", 280));
    EXPECT_EQ(aircraft.rotorBlades.at(0), (RotorBladesRecord{"main rotor", 1, -2, 1050, false}));
    EXPECT_EQ(aircraft.weapons.at(0),
              (WeaponMountRecord{.type = "WEAPON_HMG_X", .offsetX = -5, .offsetY = 6}));
    EXPECT_EQ(aircraft.ammo.at(0).flavour, "");
}

TEST(Writers, PassOverWhatDoesNotCount) {
    SquadRecord record;
    record.uniformProfile = "p";
    record.vehicle.emplace().components.emplace_back().kind = ComponentKind::Turret;
    SquadRecord more = record;
    more.uniformName = "Winter";
    more.vehicle->components[0].rotateLeft = 30;
    // A uniform's name that does not count leaves a blank line all the same.
    std::string expected = unitFileText(Category::Vehicles, record).value_or("");
    expected.insert(expected.find("\t\t<uniform_profile>"), "\r\n");
    EXPECT_EQ(unitFileText(Category::Vehicles, more), expected);

    SquadRecord squad;
    squad.infantrymen.resize(1);
    squad.heavyWeapon.emplace().kind = HeavyWeaponKind::AtGun;
    squad.heavyWeaponPlace = 1;
    more = squad;
    more.heavyWeapon->rotateLeft = 30;
    more.heavyWeaponPlace = 5;
    EXPECT_EQ(squadFileText(more), squadFileText(squad));
}

TEST(Writers, WriteTheirOwnCategoryOnly) {
    SquadRecord record;
    for (const Category category : {Category::Vehicles, Category::Aircraft, Category::Weapons}) {
        EXPECT_EQ(unitFileText(category, record), std::nullopt);
    }
    record.vehicle.emplace();
    EXPECT_EQ(unitFileText(Category::Vehicles, record), goldenText("vehicle_without_components.txt"));
}

} // namespace varrocade::tests
