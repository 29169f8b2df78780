#include "data/enumerations.h"
#include "data/unit_writers.h"
#include "test_support.h"

#include <gtest/gtest.h>

namespace varrocade::tests {

namespace {

using Lines = std::vector<std::string>;

ComponentRecord component(ComponentKind kind) {
    ComponentRecord record;
    record.kind = kind;
    return record;
}

ComponentRecord fullHull() {
    ComponentRecord hull = component(ComponentKind::Hull);
    hull.viewImage = "hull";
    hull.destroyedImage = "hull destroyed";
    hull.width = 301;
    hull.length = 602;
    hull.height = 103;
    hull.armour = {.upperFront = {80, 55},
                   .lowerFront = {60, 55},
                   .upperLeft = {40, 40},
                   .upperRight = {41, 40},
                   .lowerLeft = {42, 0},
                   .lowerRight = {43, 5},
                   .upperRear = {30, 0},
                   .lowerRear = {30, 10},
                   .frontSpaced = 5,
                   .sideSpaced = 6,
                   .rearSpaced = 7,
                   .top = 16,
                   .bottom = 0};
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
    turret.viewImage = "turret";
    turret.destroyedImage = "turret destroyed";
    turret.diameter = 165;
    turret.height = 71;
    turret.offsetX = -3;
    turret.offsetY = 20;
    turret.rotateTime = 15;
    turret.limitedTraverse = true;
    turret.rotateLeft = 90;
    turret.rotateRight = 80;
    turret.offsetAngle = -20;
    turret.antiAircraft = true;
    turret.nightVision = true;
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
    weapon.viewImage = "mount";
    weapon.destroyedImage = "mount destroyed";
    weapon.offsetX = 60;
    weapon.offsetY = 180;
    weapon.offsetZ = 110;
    weapon.rotateTime = 20;
    weapon.rotateLeft = 10;
    weapon.rotateRight = 0;
    weapon.offsetAngle = 4;
    weapon.antiAircraft = true;
    weapon.nightVision = true;
    weapon.weapons = {{.type = "WEAPON_HMG_MG34", .mount = "ball"}};
    weapon.ammo = {{.weaponType = "WEAPON_HMG_MG34", .flavour = "FLAVOUR_BALL", .rounds = 900}};
    weapon.crew.emplace_back();
    return weapon;
}

ComponentRecord fullSuperstructure() {
    ComponentRecord superstructure = component(ComponentKind::Superstructure);
    superstructure.width = 201;
    superstructure.length = 202;
    superstructure.height = 53;
    superstructure.offsetX = 4;
    superstructure.offsetY = -5;
    superstructure.armour.top = 10;
    superstructure.smokeDischargers = {{.offsetX = 1}};
    return superstructure;
}

/// Every element that the writer knows, each with a value of its own, the components in the writer's order.
SquadRecord fullVehicle() {
    SquadRecord record;
    record.fileName = "unit";
    record.type = "TYPE_ASSAULT_GUN";
    record.nationality = "NATIONALITY_GERMAN";
    record.language = "de";
    record.longName = "A long name";
    record.shortName = "Short";
    record.comment = "A comment.";
    record.uniformProfile = "profile";
    record.uniformGame = "game";
    record.uniformRanks = "ranks";
    record.availability = {{1, 1943, 20}, {5, 1945, 65535}};
    VehicleRecord& vehicle = record.vehicle.emplace();
    vehicle.profileImage = "Profile";
    vehicle.weight = 44800;
    vehicle.canMountInfantry = true;
    vehicle.amphibious = true;
    vehicle.engineName = "Maybach HL230 P30";
    vehicle.horsepower = 700;
    vehicle.reliability = "RELIABILITY_POOR";
    vehicle.idleRevolutions = 600;
    vehicle.revolutionLimit = 3000;
    vehicle.forwardGears = 7;
    vehicle.reverseGears = 2;
    vehicle.steering = "STEERING_DOUBLE_DIFFERENTIAL";
    vehicle.engineMount = EngineMount::Front;
    vehicle.smokeScreen = true;
    vehicle.exhaustPipes = {{-30, -300, 180, 0}, {30, -300, 90, 45}};
    vehicle.components = {fullHull(), fullSuperstructure(), fullTurret(), fullFixedWeapon(),
                          component(ComponentKind::Turret)};
    return record;
}

std::string textOf(const SquadRecord& record) {
    return vehicleFileText(record).value_or("");
}

std::string textOf(std::vector<ComponentRecord> components) {
    SquadRecord record;
    record.vehicle.emplace().components = std::move(components);
    return textOf(record);
}

Lines armourLines(const ArmourRecord& armour, ComponentKind kind = ComponentKind::Hull) {
    ComponentRecord record = component(kind);
    record.armour = armour;
    Lines lines = linesBetween(textOf(std::vector{record}), "<armour>", "</armour>");
    EXPECT_EQ(lines.front(), "\t\t\t<armour>\t\t\t\t// @0 means vertically upright, @90 is horizontal");
    // What is left are the values.
    return lines.size() < 2 ? Lines() : Lines(lines.begin() + 1, lines.end() - 1);
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

TEST(VehicleWriter, OrdersComponentsInThreePasses) {
    using K = ComponentKind;
    Lines order;
    for (const std::string& line :
         linesOf(textOf({component(K::Turret), component(K::Hull), component(K::FixedWeapon),
                         component(K::Superstructure), component(K::Turret), component(K::Hull)}))) {
        if (line.empty() || (line.starts_with("\t\t<") && !line.starts_with("\t\t</")) ||
            line == "\t</vehicle>") {
            order.push_back(line);
        }
    }
    // Blank lines between the components, none after the last.
    const Lines tail(std::find(order.begin(), order.end(), "\t\t<hull>"), order.end());
    EXPECT_EQ(tail, Lines({"\t\t<hull>", "", "\t\t<hull>", "", "\t\t<superstructure>", "", "\t\t<turret>", "",
                           "\t\t<fixed_weapon>", "", "\t\t<turret>", "\t</vehicle>"}));
}

TEST(VehicleWriter, WritesPlatesInAsFewLinesAsPossible) {
    struct Case {
        ArmourRecord armour;
        Lines lines;
    };
    constexpr ArmourPlate a{45, 0};
    constexpr ArmourPlate b{45, 30};
    const std::string none = "\t\t\t\t<top>0</top>";
    const Lines noFront = {"\t\t\t\t<front>0</front>"};
    const Lines noSide = {"\t\t\t\t<side>0</side>"};
    const Lines noRear = {"\t\t\t\t<rear>0</rear>", none};
    const auto joined = [](std::initializer_list<Lines> parts) {
        Lines all;
        for (const Lines& part : parts) {
            all.insert(all.end(), part.begin(), part.end());
        }
        return all;
    };
    const std::vector<Case> cases = {
        {{}, joined({noFront, noSide, noRear})},
        {{.upperFront = a, .lowerFront = a}, joined({{"\t\t\t\t<front>45</front>"}, noSide, noRear})},
        {{.upperFront = b, .lowerFront = b}, joined({{"\t\t\t\t<front>45@30</front>"}, noSide, noRear})},
        {{.upperFront = a, .lowerFront = b},
         joined({{"\t\t\t\t<upper_front>45</upper_front>", "\t\t\t\t<lower_front>45@30</lower_front>"},
                 noSide,
                 noRear})},
        {{.upperFront = {45, -5}, .lowerFront = {45, -5}, .frontSpaced = 1},
         joined(
             {{"\t\t\t\t<front>45@-5</front>", "\t\t\t\t<front_spaced>1</front_spaced>"}, noSide, noRear})},
        {{.upperLeft = b, .upperRight = b, .lowerLeft = b, .lowerRight = b, .sideSpaced = 2},
         joined({noFront, {"\t\t\t\t<side>45@30</side>", "\t\t\t\t<side_spaced>2</side_spaced>"}, noRear})},
        {{.upperLeft = b, .upperRight = b, .lowerLeft = a, .lowerRight = a},
         joined({noFront,
                 {"\t\t\t\t<upper_side>45@30</upper_side>", "\t\t\t\t<lower_side>45</lower_side>"},
                 noRear})},
        {{.upperLeft = b, .upperRight = a, .lowerLeft = b, .lowerRight = a},
         joined({noFront,
                 {"\t\t\t\t<upper_left>45@30</upper_left>", "\t\t\t\t<upper_right>45</upper_right>",
                  "\t\t\t\t<lower_left>45@30</lower_left>", "\t\t\t\t<lower_right>45</lower_right>"},
                 noRear})},
        {{.upperRear = a, .lowerRear = b, .rearSpaced = 3, .bottom = 0, .mantlet = 9},
         joined({noFront,
                 noSide,
                 {"\t\t\t\t<upper_rear>45</upper_rear>", "\t\t\t\t<lower_rear>45@30</lower_rear>",
                  "\t\t\t\t<rear_spaced>3</rear_spaced>", none, "\t\t\t\t<bottom>0</bottom>"}})},
        {{.frontSpaced = -1, .sideSpaced = 0, .rearSpaced = -9, .bottom = -7},
         joined({noFront, noSide, noRear})},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(armourLines(c.armour), c.lines);
    }
    // Only a turret has a mantlet, and only where one was given.
    EXPECT_EQ(armourLines({.mantlet = 0}, ComponentKind::Turret).back(), "\t\t\t\t<mantlet>0</mantlet>");
    EXPECT_EQ(armourLines({.mantlet = -2}, ComponentKind::Turret).back(), none);
    EXPECT_EQ(armourLines({.mantlet = 5}, ComponentKind::Superstructure).back(), none);
}

TEST(VehicleWriter, KeepsTheAsymmetriesOfTurningParts) {
    ComponentRecord turret = component(ComponentKind::Turret);
    turret.rotateLeft = 30;
    turret.offsetAngle = 20;
    const std::string free = textOf(std::vector{turret});
    EXPECT_TRUE(hasLine(free, "\t\t\t<rotate_time>0</rotate_time>"));
    EXPECT_EQ(free.find("rotate_left"), std::string::npos) << "full traverse has no limits";
    EXPECT_EQ(free.find("offset_angle"), std::string::npos) << "full traverse has no offset angle";

    ComponentRecord fixed = component(ComponentKind::FixedWeapon);
    fixed.armour.top = 20;
    fixed.smokeDischargers.emplace_back();
    fixed.weapons = {{.type = "WEAPON_HMG_MG34", .offsetX = 5, .offsetY = 6, .offsetAngle = 7}};
    EXPECT_EQ(linesBetween(textOf(std::vector{fixed}), "<fixed_weapon>", "</fixed_weapon>"),
              Lines({"\t\t<fixed_weapon>", "\t\t\t<offsetX>0</offsetX>", "\t\t\t<offsetY>0</offsetY>",
                     "\t\t\t<offsetZ>0</offsetZ>", "\t\t\t<rotate_time>0</rotate_time>",
                     "\t\t\t<rotate_left>0</rotate_left>", "\t\t\t<rotate_right>0</rotate_right>",
                     "\t\t\t<weapon><type>WEAPON_HMG_MG34</type></weapon>", "\t\t</fixed_weapon>"}));
}

TEST(VehicleWriter, WritesAWeaponThatFitsTwoPassesOnce) {
    ComponentRecord turret = component(ComponentKind::Turret);
    for (const char* type :
         {"OTHER", "WEAPON_HMG_X", "X_WEAPON_FLAMETHROWER", "WEAPON_HMG_AND_WEAPON_CANNON_X"}) {
        turret.weapons.push_back({.type = type});
        turret.ammo.push_back({.weaponType = type});
    }
    Lines order;
    for (const std::string& line : linesOf(textOf(std::vector{turret}))) {
        for (const std::string_view start : {"\t\t\t<weapon><type>", "\t\t\t<ammo><for>"}) {
            if (line.starts_with(start)) {
                order.push_back(line.substr(start.size(), line.find("</") - start.size()));
            }
        }
    }
    const Lines once = {"WEAPON_HMG_AND_WEAPON_CANNON_X", "X_WEAPON_FLAMETHROWER", "WEAPON_HMG_X", "OTHER"};
    Lines twice = once;
    twice.insert(twice.end(), once.begin(), once.end());
    EXPECT_EQ(order, twice);
}

TEST(VehicleWriter, LeavesOutNationalUniforms) {
    struct Case {
        const char* what;
        SquadRecord record;
        Lines lines;
    };
    const auto uniform = [](const char* nationality, const char* profile, const char* game,
                            const char* ranks) {
        SquadRecord record;
        record.nationality = nationality;
        record.uniformProfile = profile;
        record.uniformGame = game;
        record.uniformRanks = ranks;
        return record;
    };
    const auto named = [](SquadRecord record, const char* name, bool isNamed) {
        record.uniformName = name;
        record.namedUniform = isNamed;
        return record;
    };
    const char* german = "NATIONALITY_GERMAN";
    const char* profile = "uniform_german_vehicle_crew";
    const char* game = "uniform_game_german_tank_crew";
    const char* ranks = "uniform_ranks_german";
    const Lines foreign = {"", "\t\t<uniform_profile>uniform_german_vehicle_crew.png</uniform_profile>",
                           "\t\t<uniform_game>uniform_game_german_tank_crew.png</uniform_game>",
                           "\t\t<uniform_ranks>uniform_ranks_german.png</uniform_ranks>"};
    const std::vector<Case> cases = {
        {"the nation's own, but for the blank line of its ranks",
         uniform(german, profile, game, ranks),
         {""}},
        {"without ranks", uniform(german, profile, game, ""), {}},
        {"another nation's", uniform("NATIONALITY_RUSSIAN", profile, game, ranks), foreign},
        {"of a nation without uniforms", uniform("NATIONALITY_DUTCH", profile, game, ranks), foreign},
        {"another case of letters",
         uniform(german, "Uniform_german_vehicle_crew", "", ""),
         {"\t\t<uniform_profile>Uniform_german_vehicle_crew.png</uniform_profile>"}},
        {"only the profile may be called default",
         uniform(german, "Default", "Default", "Default"),
         {"", "\t\t<uniform_game>Default.png</uniform_game>",
          "\t\t<uniform_ranks>Default.png</uniform_ranks>"}},
        {"a default profile in a nation without uniforms",
         uniform("NATIONALITY_DUTCH", "Default", "", ""),
         {}},
        {"a named one",
         named(uniform(german, "p", "g", "r"), "Winter", true),
         {"", "\t\t<uniform>Winter</uniform>", "\t\t<uniform_ranks>r.png</uniform_ranks>"}},
        {"a named one of no name",
         named(uniform(german, "", "", ranks), "", true),
         {"", "\t\t<uniform></uniform>"}},
        {"a name that does not count",
         named(uniform(german, "p", "", ""), "Winter", false),
         {"", "\t\t<uniform_profile>p.png</uniform_profile>"}},
    };
    for (const Case& c : cases) {
        SquadRecord record = c.record;
        record.vehicle.emplace();
        Lines lines = linesBetween(textOf(record), "<comment>", "</description>");
        ASSERT_GE(lines.size(), 2U);
        EXPECT_EQ(Lines(lines.begin() + 1, lines.end() - 1), c.lines) << c.what;
    }
}

TEST(VehicleWriter, NeverCutsAValue) {
    const std::string longest(255, 'x');
    SquadRecord record;
    record.comment = longest;
    ComponentRecord turret = component(ComponentKind::Turret);
    turret.weapons = {{.type = std::string_view(longest), .mount = std::string_view(longest)}};
    record.vehicle.emplace().components = {turret};
    const std::string text = textOf(record);
    EXPECT_TRUE(hasLine(text, "\t\t<comment>" + longest + "</comment>"));
    const std::string weapon = "<type>" + longest + "</type><mount>" + longest + "</mount>";
    EXPECT_TRUE(hasLine(text, "\t\t\t<weapon>" + weapon + "</weapon>"));
    EXPECT_TRUE(readUnitText(text).vehicle.value().components == record.vehicle.value().components);
}

} // namespace varrocade::tests
