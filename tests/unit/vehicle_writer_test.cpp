#include "data/unit_writers.h"
#include "test_support.h"

#include <tuple>

#include <gtest/gtest.h>

namespace varrocade::tests {

namespace {

ComponentRecord component(ComponentKind kind) {
    ComponentRecord record;
    record.kind = kind;
    return record;
}

ComponentRecord fullHull() {
    ComponentRecord hull = component(ComponentKind::Hull);
    std::tie(hull.viewImage, hull.destroyedImage) = std::tuple("hull", "hull destroyed");
    std::tie(hull.width, hull.length, hull.height) = std::tuple(301, 602, 103);
    ArmourRecord& armour = hull.armour;
    std::tie(armour.upperFront, armour.lowerFront) = std::tuple(ArmourPlate{80, 55}, ArmourPlate{60, 55});
    std::tie(armour.upperLeft, armour.upperRight) = std::tuple(ArmourPlate{40, 40}, ArmourPlate{41, 40});
    std::tie(armour.lowerLeft, armour.lowerRight) = std::tuple(ArmourPlate{42, 0}, ArmourPlate{43, 5});
    std::tie(armour.upperRear, armour.lowerRear) = std::tuple(ArmourPlate{30, 0}, ArmourPlate{30, 10});
    std::tie(armour.frontSpaced, armour.sideSpaced, armour.rearSpaced) = std::tuple(5, 6, 7);
    std::tie(armour.top, armour.bottom) = std::tuple(16, 0);
    hull.smokeDischargers = {{.offsetX = -1, .offsetY = 2, .reload = 30, .ammo = 3},
                             {.directional = true,
                              .angleGiven = true,
                              .elevationGiven = true,
                              .angle = 0,
                              .elevation = 45,
                              .offsetX = 4,
                              .offsetY = 5,
                              .speed = 6,
                              .reload = 7,
                              .ammo = 8}};
    CrewManRecord driver;
    driver.job = "JOB_DRIVER";
    driver.language = "de";
    driver.bodyArmour = true;
    driver.nightVision = true;
    driver.weapons = {"WEAPON_SMG_MP40", "WEAPON_PISTOL_P38"};
    driver.ammo = {{.weaponType = "WEAPON_SMG_MP40", .rounds = 192}};
    hull.crew = {driver, CrewManRecord()};
    return hull;
}

ComponentRecord fullTurret() {
    ComponentRecord turret = component(ComponentKind::Turret);
    std::tie(turret.viewImage, turret.destroyedImage) = std::tuple("turret", "turret destroyed");
    std::tie(turret.diameter, turret.height, turret.offsetX, turret.offsetY, turret.rotateTime) =
        std::tuple(165, 71, -3, 20, 15);
    turret.limitedTraverse = turret.antiAircraft = turret.nightVision = true;
    std::tie(turret.rotateLeft, turret.rotateRight, turret.offsetAngle) = std::tuple(90, 80, -20);
    turret.armour.upperFront = turret.armour.lowerFront = {110, 12};
    turret.armour.top = 16;
    turret.armour.bottom = 2;
    turret.armour.mantlet = 100;
    turret.smokeDischargers = {{.directional = true, .elevationGiven = true, .elevation = 1, .speed = 2}};
    turret.weapons = {
        {.type = "WEAPON_RPG_X", .offsetX = 7},
        {.type = "WEAPON_HMG_MG34", .mount = "coaxial", .offsetX = 1, .offsetY = 2, .offsetAngle = 3},
        {.type = "WEAPON_FLAMETHROWER_X", .offsetY = -4},
        {.type = "WEAPON_CANNON_75_KWK42_L70"}};
    turret.ammo = {{.weaponType = "WEAPON_HMG_MG34", .rounds = 4200},
                   {.weaponType = "WEAPON_CANNON_75_KWK42_L70", .flavour = "FLAVOUR_APCBC", .rounds = 40},
                   {.weaponType = "WEAPON_CANNON_75_KWK42_L70", .flavour = "FLAVOUR_HE", .rounds = 39}};
    return turret;
}

ComponentRecord fullFixedWeapon() {
    ComponentRecord weapon = component(ComponentKind::FixedWeapon);
    std::tie(weapon.viewImage, weapon.destroyedImage) = std::tuple("mount", "mount destroyed");
    std::tie(weapon.offsetX, weapon.offsetY, weapon.offsetZ, weapon.rotateTime, weapon.rotateLeft,
             weapon.rotateRight, weapon.offsetAngle) = std::tuple(60, 180, 110, 20, 10, 0, 4);
    weapon.antiAircraft = weapon.nightVision = true;
    weapon.weapons = {{.type = "WEAPON_HMG_MG34", .mount = "ball"}};
    weapon.ammo = {{.weaponType = "WEAPON_HMG_MG34", .flavour = "FLAVOUR_BALL", .rounds = 900}};
    weapon.crew.emplace_back();
    return weapon;
}

ComponentRecord fullSuperstructure() {
    ComponentRecord superstructure = component(ComponentKind::Superstructure);
    std::tie(superstructure.width, superstructure.length, superstructure.height, superstructure.offsetX,
             superstructure.offsetY) = std::tuple(201, 202, 53, 4, -5);
    superstructure.armour.top = 10;
    superstructure.smokeDischargers = {{.offsetX = 1}};
    return superstructure;
}

/// Every element that the writer knows, each with a value of its own, the components in the writer's order.
SquadRecord fullVehicle() {
    SquadRecord record;
    std::tie(record.fileName, record.type, record.nationality, record.language) =
        std::tuple("unit", "TYPE_ASSAULT_GUN", "NATIONALITY_GERMAN", "de");
    std::tie(record.longName, record.shortName, record.comment) =
        std::tuple("A long name", "Short", "A comment.");
    std::tie(record.uniformProfile, record.uniformGame, record.uniformRanks) =
        std::tuple("profile", "game", "ranks");
    record.availability = {{1, 1943, 20}, {5, 1945, 65535}};
    VehicleRecord& vehicle = record.vehicle.emplace();
    vehicle.profileImage = "Profile";
    std::tie(vehicle.weight, vehicle.horsepower) = std::tuple(44800, 700);
    vehicle.canMountInfantry = vehicle.amphibious = vehicle.smokeScreen = true;
    vehicle.engineName = "Maybach HL230 P30";
    vehicle.reliability = "RELIABILITY_POOR";
    std::tie(vehicle.idleRevolutions, vehicle.revolutionLimit, vehicle.forwardGears, vehicle.reverseGears) =
        std::tuple(600, 3000, 7, 2);
    vehicle.steering = "STEERING_DOUBLE_DIFFERENTIAL";
    vehicle.engineMount = EngineMount::Front;
    vehicle.exhaustPipes = {{-30, -300, 180, 0}, {30, -300, 90, 45}};
    vehicle.components = {fullHull(), fullSuperstructure(), fullTurret(), fullFixedWeapon(),
                          component(ComponentKind::Turret)};
    return record;
}

std::string textOf(const SquadRecord& record) {
    return vehicleFileText(record).value_or("");
}

} // namespace

TEST(VehicleWriter, WritesEveryElement) {
    EXPECT_EQ(textOf(fullVehicle()), goldenText("vehicle.txt"));
}

TEST(VehicleWriter, WritesWhatTheReaderReads) {
    SquadRecord expected = fullVehicle();
    // In the files the weapons stand gun first, and the ammunition too.
    ComponentRecord& turret = expected.vehicle->components[2];
    std::swap(turret.weapons[0], turret.weapons[3]);
    std::swap(turret.weapons[1], turret.weapons[2]);
    std::rotate(turret.ammo.begin(), turret.ammo.begin() + 1, turret.ammo.end());
    EXPECT_TRUE(readUnitText(goldenText("vehicle.txt")) == expected);
}

TEST(VehicleWriter, WritesAVehicleWithoutComponents) {
    SquadRecord record;
    record.vehicle.emplace();
    EXPECT_EQ(textOf(record), goldenText("vehicle_without_components.txt"));
    EXPECT_EQ(vehicleFileText(SquadRecord()), std::nullopt);
}

TEST(VehicleWriter, PassesOverWhatDoesNotCount) {
    SquadRecord record;
    record.uniformProfile = "p";
    record.vehicle.emplace().components = {component(ComponentKind::Turret)};
    SquadRecord more = record;
    more.uniformName = "Winter";
    more.vehicle->components[0].rotateLeft = 30;
    // A uniform's name that does not count leaves a blank line all the same.
    std::string expected = textOf(record);
    expected.insert(expected.find("\t\t<uniform_profile>"), "\r\n");
    EXPECT_EQ(textOf(more), expected);
}

} // namespace varrocade::tests
