#include "data/unit_reader.h"

#include "data/enumerations.h"
#include "test_support.h"

#include <array>

#include <gtest/gtest.h>

namespace varrocade::tests {

namespace {

std::string inSquad(std::string_view content) {
    return "<squad>" + std::string(content) + "</squad>";
}

std::string inVehicle(std::string_view content) {
    return inSquad("<vehicle>" + std::string(content) + "</vehicle>");
}

std::string inDescription(std::string_view content) {
    return inSquad("<description>" + std::string(content) + "</description>");
}

std::string inAircraft(std::string_view content) {
    return "<aircraft>" + std::string(content) + "</aircraft>";
}

ComponentRecord onlyComponent(std::string_view content) {
    const SquadRecord record = readUnitText(inVehicle(content));
    EXPECT_EQ(record.vehicle->components.size(), 1U) << content;
    return record.vehicle->components.empty() ? ComponentRecord() : record.vehicle->components.front();
}

std::vector<AvailabilityPoint> pointsOf(std::string_view content) {
    return readUnitText(inSquad(content)).availability;
}

struct OlderForm {
    std::string older;
    std::string today;
};

void expectSameRecords(const std::vector<OlderForm>& forms, std::string_view before, std::string_view after) {
    const std::string nothing = std::string(before) + std::string(after);
    for (const OlderForm& form : forms) {
        const SquadRecord today = readUnitText(std::string(before) + form.today + std::string(after));
        EXPECT_FALSE(today == readUnitText(nothing)) << form.today << " does nothing";
        EXPECT_TRUE(today == readUnitText(std::string(before) + form.older + std::string(after)))
            << form.older;
    }
}

} // namespace

TEST(UnitReader, StartsFromTheDefaults) {
    for (const char* content :
         {"", "// nothing\r\n", "text", "<squad></squad>", "<unit><type>TYPE_LORRY</type></unit>"}) {
        const SquadRecord record = readUnitText(content);
        EXPECT_EQ(record.fileName, "unit");
        EXPECT_EQ(record.type, "TYPE_TANK");
        EXPECT_EQ(record.nationality, "NATIONALITY_AMERICAN");
        EXPECT_EQ(record.quality, "QUALITY_REGULAR");
        EXPECT_TRUE(record.longName.empty() && record.language.empty() && !record.namedUniform);
        EXPECT_TRUE(record.availability.empty() && record.infantrymen.empty());
        EXPECT_FALSE(record.vehicle || record.heavyWeapon || record.aircraft);
    }
    const SquadRecord vehicleRecord =
        readUnitText(inVehicle("<drive><exhaust_pipe></exhaust_pipe></drive>"
                               "<turret><man></man><armour></armour></turret>"));
    const VehicleRecord& vehicle = vehicleRecord.vehicle.value();
    EXPECT_EQ(vehicle.reliability, "RELIABILITY_AVERAGE");
    EXPECT_EQ(vehicle.steering, "STEERING_CLUTCH_AND_BRAKE");
    EXPECT_EQ(vehicle.idleRevolutions, 500);
    EXPECT_EQ(vehicle.revolutionLimit, 2800);
    EXPECT_EQ(vehicle.forwardGears, 5);
    EXPECT_EQ(vehicle.reverseGears, 1);
    EXPECT_EQ(vehicle.engineMount, EngineMount::Rear);
    EXPECT_EQ(vehicle.exhaustPipes.at(0).angle, 180);
    EXPECT_EQ(vehicle.components.at(0).crew.at(0).job, "JOB_LOADER");
    EXPECT_LT(vehicle.components.at(0).armour.bottom, 0);
    EXPECT_LT(vehicle.components.at(0).armour.mantlet, 0);
    EXPECT_TRUE(readUnitText(inSquad("<hmg></hmg>")).heavyWeapon.value().moveable);
    EXPECT_TRUE(readUnitText(inAircraft("<rotor_blades></rotor_blades>"))
                    .aircraft.value()
                    .rotorBlades.at(0)
                    .clockwise);
}

TEST(UnitReader, TakesOlderNamesInVehicles) {
    const std::vector<OlderForm> turning = {
        {"<angle_left>30</angle_left>", "<rotate_left>30</rotate_left>"},
        {"<angle_right>40</angle_right>", "<rotate_right>40</rotate_right>"},
        {"<minAngle>-30</minAngle>", "<rotate_left>30</rotate_left>"},
        {"<min_angle>-30</min_angle>", "<rotate_left>30</rotate_left>"},
        {"<maxAngle>40</maxAngle>", "<rotate_right>40</rotate_right>"},
        {"<max_angle>40</max_angle>", "<rotate_right>40</rotate_right>"},
        {"<minAngle>-30</minAngle><angle_right>40</angle_right>",
         "<rotate_left>30</rotate_left><rotate_right>40</rotate_right>"},
        {"<minAngle>-2147483648</minAngle>", "<rotate_left>2147483647</rotate_left>"},
        {"<rotate_right>9</rotate_right><min_angle>30</min_angle>",
         "<rotate_right>9</rotate_right><rotate_left>0</rotate_left>"},
        {"<rotate_left>9</rotate_left><max_angle>-40</max_angle>",
         "<rotate_left>9</rotate_left><rotate_right>0</rotate_right>"},
    };
    expectSameRecords(turning, "<squad><vehicle><turret>", "</turret></vehicle></squad>");
    expectSameRecords(turning, "<squad><vehicle><fixed_weapon>", "</fixed_weapon></vehicle></squad>");
    for (const std::string weapon : {"mortar", "hmg", "atgun", "recoilless_rifle"}) {
        expectSameRecords(turning, "<squad><" + weapon + ">", "</" + weapon + "></squad>");
    }
    const std::vector<OlderForm> offsetAngle = {
        {"<angle_offset>12</angle_offset>", "<offset_angle>12</offset_angle>"},
        {"<offsetAngle>12</offsetAngle>", "<offset_angle>12</offset_angle>"},
    };
    expectSameRecords(offsetAngle, "<squad><vehicle><turret>", "</turret></vehicle></squad>");
    expectSameRecords(offsetAngle, "<squad><vehicle><fixed_weapon>", "</fixed_weapon></vehicle></squad>");
    expectSameRecords({{"<horizontal_angle>90</horizontal_angle>", "<angle>90</angle>"}},
                      "<squad><vehicle><drive><exhaust_pipe>", "</exhaust_pipe></drive></vehicle></squad>");
    const std::vector<OlderForm> flatDrive = {
        {"<engine>Maybach</engine>", "<engine><name>Maybach</name></engine>"},
        {"<engine>ENGINE_BUICK_SERIES_60</engine>",
         "<engine><name>Buick Series 60</name><horsepower>330</horsepower></engine>"},
        {"<reliability>RELIABILITY_GOOD</reliability>",
         "<engine><reliability>RELIABILITY_GOOD</reliability></engine>"},
        {"<mount>MOUNT_FRONT</mount>", "<engine><mount>MOUNT_FRONT</mount></engine>"},
        {"<mount>MOUNT_MIDDLE</mount>", "<engine><mount>MOUNT_MIDDLE</mount></engine>"},
        {"<rpm_idle>400</rpm_idle>", "<engine><rpm_idle>400</rpm_idle></engine>"},
        {"<rpm_limit>3000</rpm_limit>", "<engine><rpm_limit>3000</rpm_limit></engine>"},
    };
    expectSameRecords(flatDrive, "<squad><vehicle><drive>", "</drive></vehicle></squad>");
}

TEST(UnitReader, TakesOlderNamesOfPlates) {
    std::vector<OlderForm> plates;
    for (const char* pair :
         {"front_upper upper_front", "front_lower lower_front", "rear_upper upper_rear",
          "rear_lower lower_rear", "side_upper upper_side", "side_lower lower_side", "left_upper upper_left",
          "left_lower lower_left", "right_upper upper_right", "right_lower lower_right"}) {
        const std::string names = pair;
        const std::string older = names.substr(0, names.find(' '));
        const std::string today = names.substr(names.find(' ') + 1);
        plates.push_back({"<" + older + ">45@30</" + older + ">", "<" + today + ">45@30</" + today + ">"});
    }
    for (const std::string component : {"hull", "superstructure", "turret", "fixed_weapon"}) {
        expectSameRecords(plates, "<squad><vehicle><" + component + "><armour>",
                          "</armour></" + component + "></vehicle></squad>");
    }
}

TEST(UnitReader, SetsTheRightPlates) {
    struct Case {
        const char* armour;
        // In the order of the record: front, left and right, rear, the upper one first.
        std::array<ArmourPlate, 8> plates;
    };
    constexpr ArmourPlate p{45, 30};
    constexpr ArmourPlate no{};
    const std::vector<Case> cases = {
        {"<front>45@30</front>", {p, p, no, no, no, no, no, no}},
        {"<upper_front>45@30</upper_front>", {p, no, no, no, no, no, no, no}},
        {"<lower_front>45@30</lower_front>", {no, p, no, no, no, no, no, no}},
        {"<side>45@30</side>", {no, no, p, p, p, p, no, no}},
        {"<upper_side>45@30</upper_side>", {no, no, p, p, no, no, no, no}},
        {"<lower_side>45@30</lower_side>", {no, no, no, no, p, p, no, no}},
        {"<upper_left>45@30</upper_left>", {no, no, p, no, no, no, no, no}},
        {"<upper_right>45@30</upper_right>", {no, no, no, p, no, no, no, no}},
        {"<lower_left>45@30</lower_left>", {no, no, no, no, p, no, no, no}},
        {"<lower_right>45@30</lower_right>", {no, no, no, no, no, p, no, no}},
        {"<rear>45@30</rear>", {no, no, no, no, no, no, p, p}},
        {"<upper_rear>45@30</upper_rear>", {no, no, no, no, no, no, p, no}},
        {"<lower_rear>45@30</lower_rear>", {no, no, no, no, no, no, no, p}},
        {"<front>50@30</front><lower_front>20</lower_front>", {{{50, 30}, {20, 0}, no, no, no, no, no, no}}},
        {"<lower_front>20</lower_front><front>45@30</front>", {p, p, no, no, no, no, no, no}},
        {"<front>45 @ 30 deg</front>", {p, p, no, no, no, no, no, no}},
        {"<front>@30</front>", {{{0, 30}, {0, 30}, no, no, no, no, no, no}}},
        {"<front>45@</front>", {{{45, 0}, {45, 0}, no, no, no, no, no, no}}},
    };
    for (const Case& c : cases) {
        const ArmourRecord armour =
            onlyComponent("<hull><armour>" + std::string(c.armour) + "</armour></hull>").armour;
        const std::array<ArmourPlate, 8> plates = {armour.upperFront, armour.lowerFront, armour.upperLeft,
                                                   armour.upperRight, armour.lowerLeft,  armour.lowerRight,
                                                   armour.upperRear,  armour.lowerRear};
        EXPECT_TRUE(plates == c.plates) << c.armour;
    }
}

TEST(UnitReader, LimitsTheTraverse) {
    EXPECT_FALSE(onlyComponent("<turret><offset_angle>9</offset_angle></turret>").limitedTraverse);
    for (const char* name : {"rotate_left", "rotate_right", "angle_left", "angle_right", "minAngle",
                             "min_angle", "maxAngle", "max_angle"}) {
        const std::string limit = "<" + std::string(name) + ">0</" + name + ">";
        EXPECT_TRUE(onlyComponent("<turret>" + limit + "</turret>").limitedTraverse) << name;
        EXPECT_FALSE(onlyComponent("<fixed_weapon>" + limit + "</fixed_weapon>").limitedTraverse) << name;
        EXPECT_TRUE(
            readUnitText(inSquad("<mortar>" + limit + "</mortar>")).heavyWeapon.value().limitedTraverse);
    }
    // Limits as they stand are taken as they stand.
    EXPECT_EQ(onlyComponent("<turret><rotate_left>-5</rotate_left></turret>").rotateLeft, -5);
}

TEST(UnitReader, MarksWhatADischargerWasGiven) {
    struct Case {
        const char* content;
        bool directional;
        bool angleGiven;
        bool elevationGiven;
    };
    const std::vector<Case> cases = {
        {"<offsetX>1</offsetX><ammo>3</ammo><reload>9</reload>", false, false, false},
        {"<angle>0</angle>", true, true, false},
        {"<elevation>0</elevation>", true, false, true},
        {"<speed>0</speed>", true, false, false},
    };
    for (const Case& c : cases) {
        const ComponentRecord hull =
            onlyComponent("<hull><smoke_discharger>" + std::string(c.content) + "</smoke_discharger></hull>");
        const SmokeDischargerRecord discharger = hull.smokeDischargers.at(0);
        EXPECT_EQ(discharger.directional, c.directional) << c.content;
        EXPECT_EQ(discharger.angleGiven, c.angleGiven) << c.content;
        EXPECT_EQ(discharger.elevationGiven, c.elevationGiven) << c.content;
    }
}

TEST(UnitReader, TakesOnlyYesForAFlag) {
    for (const char* text : {"no", "", "Yes", "YES", "1", "true", " yes", "yes "}) {
        const std::string amphibious = "<is_amphibious>" + std::string(text) + "</is_amphibious>";
        EXPECT_FALSE(readUnitText(inVehicle("<attributes><is_amphibious>yes</is_amphibious>" + amphibious +
                                            "</attributes>"))
                         .vehicle.value()
                         .amphibious)
            << text;
        const std::string moveable = "<moveable>" + std::string(text) + "</moveable>";
        EXPECT_FALSE(readUnitText(inSquad("<atgun>" + moveable + "</atgun>")).heavyWeapon.value().moveable)
            << text;
        const std::string clockwise = "<clockwise>" + std::string(text) + "</clockwise>";
        const SquadRecord aircraft =
            readUnitText(inAircraft("<rotor_blades>" + clockwise + "</rotor_blades>"));
        EXPECT_FALSE(aircraft.aircraft.value().rotorBlades.at(0).clockwise) << text;
    }
}

TEST(UnitReader, TakesKnownQualitiesAndMountsOnly) {
    for (const std::string_view name : qualityNames()) {
        const SquadRecord record =
            readUnitText(inDescription("<quality>" + std::string(name) + "</quality>"));
        EXPECT_EQ(record.quality, name == "QUALITY_RAW" ? "QUALITY_UNTRAINED" : name);
    }
    EXPECT_EQ(readUnitText(inDescription("<quality>QUALITY_ELITE</quality><quality>GREAT</quality>")).quality,
              "QUALITY_REGULAR");
    const std::string mounts = "<mount>MOUNT_FRONT</mount><mount>MOUNT_REAR</mount>";
    EXPECT_EQ(
        readUnitText(inVehicle("<drive><engine>" + mounts + "</engine></drive>")).vehicle.value().engineMount,
        EngineMount::Rear);
    // Other names are kept as they are, known or not.
    EXPECT_EQ(readUnitText(inDescription("<nationality>NATIONALITY_ATLANTIC</nationality>")).nationality,
              "NATIONALITY_ATLANTIC");
}

TEST(UnitReader, LooksUpFlatEngines) {
    struct Case {
        const char* text;
        const char* name;
        int horsepower;
    };
    const std::vector<Case> cases = {
        {"ENGINE_AMERICAN_LAFRANCE_312A_V_12", "Lafrance 312A V12", 244},
        {"ENGINE_OF_NOBODY", "", 7},
        {"engine_buick_series_60", "engine_buick_series_60", 7},
        {"Buick", "Buick", 7},
        {"", "before", 7},
    };
    for (const Case& c : cases) {
        const SquadRecord record = readUnitText(
            inVehicle("<drive><engine><name>before</name><horsepower>7</horsepower></engine><engine>" +
                      std::string(c.text) + "</engine></drive>"));
        EXPECT_EQ(record.vehicle.value().engineName, c.name) << c.text;
        EXPECT_EQ(record.vehicle.value().horsepower, c.horsepower) << c.text;
    }
}

TEST(UnitReader, KnowsDefaultUniforms) {
    const std::string images =
        "<uniform_profile>DEFAULT.PNG</uniform_profile><uniform_game>Crew.PNG</uniform_game>"
        "<uniform_ranks>default</uniform_ranks>";
    const SquadRecord record = readUnitText(inDescription(images));
    EXPECT_EQ(record.uniformProfile, "Default");
    EXPECT_EQ(record.uniformGame, "Crew");
    EXPECT_EQ(record.uniformRanks, "Default");
    EXPECT_FALSE(record.namedUniform);
    struct Case {
        const char* text;
        const char* name;
    };
    for (const Case& c : {Case{"DEFAULT.png", ""}, Case{"default", ""}, Case{"Winter", "Winter"},
                          Case{"Winter.png", "Winter.png"}, Case{"", ""}}) {
        const SquadRecord named =
            readUnitText(inDescription("<uniform>" + std::string(c.text) + "</uniform>"));
        EXPECT_TRUE(named.namedUniform) << c.text;
        EXPECT_EQ(named.uniformName, c.name) << c.text;
    }
    // "Default" is a name like others elsewhere.
    EXPECT_EQ(onlyComponent("<hull><image_view>default.png</image_view></hull>").viewImage, "default");
}

TEST(UnitReader, ConvertsQuarterlyAvailability) {
    struct Case {
        const char* what;
        const char* content;
        std::vector<AvailabilityPoint> points;
    };
    const std::vector<Case> cases = {
        {"equal numbers collapse to the first and last date",
         "<1942Q1>5</1942Q1><1942Q2>5</1942Q2><1942Q3>5</1942Q3><1942Q4>5</1942Q4>",
         {{3, 1942, 5}, {12, 1942, 5}}},
        {"the second point stands at its quarter's first month",
         "<1942Q1>5</1942Q1><1942Q2>6</1942Q2><1942Q3>7</1942Q3>",
         {{3, 1942, 5}, {4, 1942, 6}, {9, 1942, 7}}},
        {"none and fewer add nothing", "<1942Q1>0</1942Q1><1942Q2>-4</1942Q2><1942Q3>x</1942Q3>", {}},
        {"none between does not part a run",
         "<1942Q1>5</1942Q1><1942Q2>5</1942Q2><1942Q3>0</1942Q3><1942Q4>5</1942Q4>",
         {{3, 1942, 5}, {12, 1942, 5}}},
        {"a run of two that a third ends",
         "<1942Q1>5</1942Q1><1942Q2>5</1942Q2><1942Q3>6</1942Q3>",
         {{3, 1942, 5}, {4, 1942, 5}, {9, 1942, 6}}},
        {"quarters and years are brought into range",
         "<1942Q0>1</1942Q0><1942Q9>2</1942Q9><1Q2>3</1Q2><99999Q2>4</99999Q2>",
         {{3, 1942, 1}, {10, 1942, 2}, {6, 1000, 3}, {6, 5000, 4}}},
        {"other names are no quarters",
         "<Q1>1</Q1><1942>1</1942><1942q1>1</1942q1><1942Q12>1</1942Q12><194xQ1>1</194xQ1>",
         {}},
        {"numbers are brought into range", "<1942Q1>70000</1942Q1>", {{3, 1942, 65535}}},
    };
    for (const Case& c : cases) {
        EXPECT_TRUE(pointsOf("<commonness>" + std::string(c.content) + "</commonness>") == c.points)
            << c.what;
    }
    EXPECT_TRUE(readUnitText(inSquad("<commonness><1942Q1>0</1942Q1></commonness>")).convertedAvailability);
    EXPECT_FALSE(readUnitText(inSquad("<commonness><old>5</old></commonness>")).convertedAvailability);
    EXPECT_TRUE(readUnitText(inAircraft("<commonness><1942Q1>4</1942Q1></commonness>")).availability.size() ==
                1);
}

TEST(UnitReader, JoinsBothAvailabilities) {
    const std::string dated =
        "<availability><data><month>1</month><year>1940</year><number>2</number></data></availability>";
    const std::string quarterly = "<commonness><1942Q2>3</1942Q2></commonness>";
    const AvailabilityPoint january{1, 1940, 2};
    EXPECT_TRUE((pointsOf(dated + quarterly) == std::vector<AvailabilityPoint>{january, {4, 1942, 3}}));
    EXPECT_TRUE((pointsOf(quarterly + dated) == std::vector<AvailabilityPoint>{{6, 1942, 3}, january}));
    const std::string outOfRange =
        "<availability><data><month>300</month><year>-3</year><number>70000</number></data></availability>";
    EXPECT_TRUE((pointsOf(outOfRange) == std::vector<AvailabilityPoint>{{255, 0, 65535}}));
}

TEST(UnitReader, NormalisesAnglesOfAircraftWeapons) {
    struct Case {
        const char* text;
        int angle;
    };
    for (const Case& c :
         {Case{"0", 0}, Case{"180", 180}, Case{"-180", -180}, Case{"181", -179}, Case{"-181", 179},
          Case{"359", -1}, Case{"360", 0}, Case{"540", 180}, Case{"-540", -180}, Case{"-900", -180},
          Case{"2147483647", 127}, Case{"-2147483648", -128}}) {
        for (const std::string name : {"offset_angle", "offsetAngle"}) {
            const SquadRecord record = readUnitText(inAircraft("<armament><weapon><" + name + ">" + c.text +
                                                               "</" + name + "></weapon></armament>"));
            EXPECT_EQ(record.aircraft.value().weapons.at(0).offsetAngle, c.angle) << c.text;
        }
    }
    const std::string turret = "<turret><weapon><offset_angle>540</offset_angle></weapon></turret>";
    EXPECT_EQ(onlyComponent(turret).weapons.at(0).offsetAngle, 540) << "only aircraft";
}

TEST(UnitReader, GivesBombsTheirFlavour) {
    struct Case {
        const char* ammo;
        const char* flavour;
    };
    for (const Case& c :
         {Case{"<for>WEAPON_BOMB_SC50</for>", "FLAVOUR_BOMB_HE"},
          Case{"<flavour></flavour><for>WEAPON_BOMB_SC50</for>", "FLAVOUR_BOMB_HE"},
          Case{"<flavour>FLAVOUR_SMOKE</flavour><for>WEAPON_BOMB_SC50</for>", "FLAVOUR_SMOKE"},
          Case{"<for>WEAPON_HMG_MG17</for>", ""}, Case{"<rounds>4</rounds>", ""}}) {
        const std::string ammo = "<ammo>" + std::string(c.ammo) + "</ammo>";
        const SquadRecord record = readUnitText(inAircraft("<armament>" + ammo + "</armament>"));
        EXPECT_EQ(record.aircraft.value().ammo.at(0).flavour, c.flavour) << c.ammo;
    }
}

TEST(UnitReader, MatchesTheEndOfTheChainOfNames) {
    EXPECT_TRUE(
        readUnitText("<game><squad><description><type>TYPE_LORRY</type></description></squad></game>").type ==
        "TYPE_LORRY");
    // The same names in other places mean nothing.
    const SquadRecord empty = readUnitText("<squad></squad>");
    for (const char* content :
         {"<description><type>TYPE_LORRY</type></description>", "<squad><type>TYPE_LORRY</type></squad>",
          "<squad><x><description><type>TYPE_LORRY</type></description></x></squad>",
          "<vehicle><hull></hull></vehicle>", "<squad><hull><width>5</width></hull></squad>",
          "<squad><data><year>5</year></data></squad>", "<squad><armament></armament></squad>",
          "<Squad><description><type>TYPE_LORRY</type></description></Squad>",
          "<squad><man2></man2><MAN></MAN></squad>"}) {
        EXPECT_TRUE(readUnitText(content) == empty) << content;
    }
    const SquadRecord crew =
        readUnitText(inVehicle("<superstructure><man></man><weapon></weapon></superstructure>"));
    EXPECT_TRUE(crew.vehicle.value().components.at(0).crew.empty());
    EXPECT_TRUE(crew.infantrymen.empty());
    EXPECT_TRUE(readUnitText(inAircraft("<weapon><type>X</type></weapon>")).aircraft.value().weapons.empty());
    EXPECT_TRUE(onlyComponent("<turret><man><ammo><flavour>X</flavour></ammo></man></turret>")
                    .crew.at(0)
                    .ammo.at(0)
                    .flavour.empty())
        << "a crew man's ammunition has no flavour";
    EXPECT_EQ(readUnitText(inSquad("<man><ammo><flavour>X</flavour></ammo></man>"))
                  .infantrymen.at(0)
                  .ammo.at(0)
                  .flavour,
              "X");
}

TEST(UnitReader, KeepsTheHeavyWeaponsPlace) {
    const std::string man = "<man></man>";
    for (std::size_t before = 0; before < 3; ++before) {
        std::string content;
        for (std::size_t i = 0; i < 3; ++i) {
            content += (i == before ? "<hmg></hmg>" : "") + man;
        }
        const SquadRecord record = readUnitText(inSquad(content));
        EXPECT_EQ(record.heavyWeaponPlace, before);
        EXPECT_EQ(record.infantrymen.size(), 3U);
        EXPECT_EQ(record.heavyWeapon.value().kind, HeavyWeaponKind::Hmg);
    }
}

TEST(UnitReader, BeginsASecondVehicleOrAircraftAfresh) {
    const SquadRecord vehicle =
        readUnitText(inSquad("<vehicle><attributes><weight>5</weight></attributes><hull></hull>"
                             "</vehicle><vehicle><turret></turret></vehicle>"));
    EXPECT_EQ(vehicle.vehicle.value().weight, 0);
    ASSERT_EQ(vehicle.vehicle.value().components.size(), 1U);
    EXPECT_EQ(vehicle.vehicle.value().components[0].kind, ComponentKind::Turret);
    const SquadRecord aircraft =
        readUnitText("<aircraft><description><speed>5</speed></description></aircraft>"
                     "<aircraft><rotor_blades></rotor_blades></aircraft>");
    EXPECT_EQ(aircraft.aircraft.value().speed, 0);
    EXPECT_EQ(aircraft.aircraft.value().rotorBlades.size(), 1U);
}

} // namespace varrocade::tests
