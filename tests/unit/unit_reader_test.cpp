#include "data/unit_reader.h"

#include "data/enumerations.h"
#include "test_support.h"

#include <array>
#include <utility>

#include <gtest/gtest.h>

namespace varrocade::tests {

namespace {

/// A content in the elements of a path such as "squad/vehicle".
std::string within(std::string_view path, std::string_view content) {
    const std::string name(takePart(path, "/"));
    return "<" + name + ">" + (path.empty() ? std::string(content) : within(path, content)) + "</" + name +
           ">";
}

SquadRecord readWithin(std::string_view path, std::string_view content) {
    return readUnitText(within(path, content));
}

ComponentRecord onlyComponent(std::string_view content) {
    const SquadRecord record = readWithin("squad/vehicle", content);
    EXPECT_EQ(record.vehicle->components.size(), 1U) << content;
    return record.vehicle->components.empty() ? ComponentRecord() : record.vehicle->components.front();
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
    const std::string parts = "<drive><exhaust_pipe></exhaust_pipe></drive>"
                              "<turret><man></man><armour></armour></turret>";
    const VehicleRecord vehicle = readWithin("squad/vehicle", parts).vehicle.value();
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
    EXPECT_TRUE(readWithin("squad/hmg", "").heavyWeapon.value().moveable);
    EXPECT_TRUE(readWithin("aircraft/rotor_blades", "").aircraft.value().rotorBlades.at(0).clockwise);
}

TEST(UnitReader, TakesOlderForms) {
    for (const TextCase& c : textCases("older_forms.txt")) {
        std::string_view paths = c.heading;
        while (!paths.empty()) {
            const std::string_view path = takePart(paths, " ");
            std::string_view olderForms = c.text;
            std::string_view forms = c.expected;
            while (!olderForms.empty() || !forms.empty()) {
                const std::string_view older = takePart(olderForms, "\n");
                const SquadRecord today = readWithin(path, takePart(forms, "\n"));
                EXPECT_TRUE(today == readWithin(path, older)) << path << ' ' << older;
                EXPECT_FALSE(today == readWithin(path, "")) << path << ' ' << older << " does nothing";
            }
        }
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
        {"<side>45@30</side>", {no, no, p, p, p, p, no, no}},
        {"<upper_side>45@30</upper_side>", {no, no, p, p, no, no, no, no}},
        {"<lower_side>45@30</lower_side>", {no, no, no, no, p, p, no, no}},
        {"<upper_left>45@30</upper_left>", {no, no, p, no, no, no, no, no}},
        {"<rear>45@30</rear>", {no, no, no, no, no, no, p, p}},
        {"<lower_rear>45@30</lower_rear>", {no, no, no, no, no, no, no, p}},
        {"<front>50@30</front><lower_front>20</lower_front>", {{{50, 30}, {20, 0}, no, no, no, no, no, no}}},
        {"<lower_front>20</lower_front><front>45@30</front>", {p, p, no, no, no, no, no, no}},
        {"<front>45 @ 30 deg</front>", {p, p, no, no, no, no, no, no}},
        {"<front>@30</front>", {{{0, 30}, {0, 30}, no, no, no, no, no, no}}},
        {"<front>45@</front>", {{{45, 0}, {45, 0}, no, no, no, no, no, no}}},
    };
    for (const Case& c : cases) {
        const ArmourRecord a = onlyComponent(within("hull/armour", c.armour)).armour;
        const std::array<ArmourPlate, 8> plates = {a.upperFront, a.lowerFront, a.upperLeft, a.upperRight,
                                                   a.lowerLeft,  a.lowerRight, a.upperRear, a.lowerRear};
        EXPECT_TRUE(plates == c.plates) << c.armour;
    }
}

TEST(UnitReader, LimitsTheTraverse) {
    EXPECT_FALSE(onlyComponent("<turret><offset_angle>9</offset_angle></turret>").limitedTraverse);
    for (const char* name : {"rotate_left", "rotate_right", "angle_left", "angle_right", "minAngle",
                             "min_angle", "maxAngle", "max_angle"}) {
        const std::string limit = within(name, "0");
        EXPECT_TRUE(onlyComponent(within("turret", limit)).limitedTraverse) << name;
        EXPECT_FALSE(onlyComponent(within("fixed_weapon", limit)).limitedTraverse) << name;
        EXPECT_TRUE(readWithin("squad/mortar", limit).heavyWeapon.value().limitedTraverse) << name;
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
    for (const Case& c :
         {Case{"<offsetX>1</offsetX><ammo>3</ammo><reload>9</reload>", false, false, false},
          Case{"<angle>0</angle>", true, true, false}, Case{"<elevation>0</elevation>", true, false, true},
          Case{"<speed>0</speed>", true, false, false}}) {
        const SmokeDischargerRecord discharger =
            onlyComponent(within("hull/smoke_discharger", c.content)).smokeDischargers.at(0);
        EXPECT_EQ(discharger.directional, c.directional) << c.content;
        EXPECT_EQ(discharger.angleGiven, c.angleGiven) << c.content;
        EXPECT_EQ(discharger.elevationGiven, c.elevationGiven) << c.content;
    }
}

TEST(UnitReader, TakesOnlyYesForAFlag) {
    for (const char* text : {"no", "", "Yes", "YES", "1", "true", " yes", "yes "}) {
        const std::string twice = "<is_amphibious>yes</is_amphibious>" + within("is_amphibious", text);
        EXPECT_FALSE(readWithin("squad/vehicle/attributes", twice).vehicle.value().amphibious) << text;
        EXPECT_FALSE(readWithin("squad/atgun/moveable", text).heavyWeapon.value().moveable) << text;
        EXPECT_FALSE(
            readWithin("aircraft/rotor_blades/clockwise", text).aircraft.value().rotorBlades.at(0).clockwise)
            << text;
    }
}

TEST(UnitReader, TakesKnownQualitiesAndMountsOnly) {
    for (const std::string_view name : qualityNames()) {
        EXPECT_EQ(readWithin("squad/description/quality", name).quality,
                  name == "QUALITY_RAW" ? "QUALITY_UNTRAINED" : name);
    }
    const std::string qualities = "<quality>QUALITY_ELITE</quality><quality>GREAT</quality>";
    EXPECT_EQ(readWithin("squad/description", qualities).quality, "QUALITY_REGULAR");
    const std::string mounts = "<mount>MOUNT_FRONT</mount><mount>MOUNT_REAR</mount>";
    EXPECT_EQ(readWithin("squad/vehicle/drive/engine", mounts).vehicle.value().engineMount,
              EngineMount::Rear);
    // Other names are kept as they are, known or not.
    EXPECT_EQ(readWithin("squad/description/nationality", "NATIONALITY_ATLANTIC").nationality,
              "NATIONALITY_ATLANTIC");
}

TEST(UnitReader, LooksUpFlatEngines) {
    struct Case {
        const char* text;
        const char* name;
        int horsepower;
    };
    for (const Case& c :
         {Case{"ENGINE_AMERICAN_LAFRANCE_312A_V_12", "Lafrance 312A V12", 244},
          Case{"ENGINE_OF_NOBODY", "", 7}, Case{"engine_buick_series_60", "engine_buick_series_60", 7},
          Case{"Buick", "Buick", 7}, Case{"", "before", 7}}) {
        const std::string before = "<engine><name>before</name><horsepower>7</horsepower></engine>";
        const VehicleRecord vehicle =
            readWithin("squad/vehicle/drive", before + within("engine", c.text)).vehicle.value();
        EXPECT_EQ(vehicle.engineName, c.name) << c.text;
        EXPECT_EQ(vehicle.horsepower, c.horsepower) << c.text;
    }
}

TEST(UnitReader, KnowsDefaultUniforms) {
    const std::string images =
        "<uniform_profile>DEFAULT.PNG</uniform_profile><uniform_game>Crew.PNG</uniform_game>"
        "<uniform_ranks>default</uniform_ranks>";
    const SquadRecord record = readWithin("squad/description", images);
    EXPECT_EQ(record.uniformProfile, "Default");
    EXPECT_EQ(record.uniformGame, "Crew");
    EXPECT_EQ(record.uniformRanks, "Default");
    EXPECT_FALSE(record.namedUniform);
    using Case = std::pair<std::string, std::string>;
    for (const auto& [text, name] : {Case{"DEFAULT.png", ""}, Case{"default", ""}, Case{"Winter", "Winter"},
                                     Case{"Winter.png", "Winter.png"}, Case{"", ""}}) {
        const SquadRecord named = readWithin("squad/description/uniform", text);
        EXPECT_TRUE(named.namedUniform) << text;
        EXPECT_EQ(named.uniformName, name.c_str()) << text;
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
        for (const char* unit : {"squad/commonness", "aircraft/commonness"}) {
            EXPECT_TRUE(readWithin(unit, c.content).availability == c.points) << unit << ": " << c.what;
        }
    }
    EXPECT_TRUE(readWithin("squad/commonness/1942Q1", "0").convertedAvailability);
    EXPECT_FALSE(readWithin("squad/commonness/old", "5").convertedAvailability);
}

TEST(UnitReader, JoinsBothAvailabilities) {
    const auto pointsOf = [](const std::string& content) {
        return readWithin("squad", content).availability;
    };
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
    using Case = std::pair<std::string, int>;
    for (const auto& [text, angle] :
         {Case{"0", 0}, Case{"180", 180}, Case{"-180", -180}, Case{"181", -179}, Case{"-181", 179},
          Case{"359", -1}, Case{"360", 0}, Case{"540", 180}, Case{"-540", -180}, Case{"-900", -180},
          Case{"2147483647", 127}, Case{"-2147483648", -128}}) {
        for (const std::string name : {"offset_angle", "offsetAngle"}) {
            const SquadRecord record = readWithin("aircraft/armament/weapon/" + name, text);
            EXPECT_EQ(record.aircraft.value().weapons.at(0).offsetAngle, angle) << text;
        }
    }
    EXPECT_EQ(onlyComponent(within("turret/weapon/offset_angle", "540")).weapons.at(0).offsetAngle, 540)
        << "only aircraft";
}

TEST(UnitReader, GivesBombsTheirFlavour) {
    using Case = std::pair<std::string, const char*>;
    for (const auto& [ammo, flavour] :
         {Case{"<for>WEAPON_BOMB_SC50</for>", "FLAVOUR_BOMB_HE"},
          Case{"<flavour></flavour><for>WEAPON_BOMB_SC50</for>", "FLAVOUR_BOMB_HE"},
          Case{"<flavour>FLAVOUR_SMOKE</flavour><for>WEAPON_BOMB_SC50</for>", "FLAVOUR_SMOKE"},
          Case{"<for>WEAPON_HMG_MG17</for>", ""}, Case{"<rounds>4</rounds>", ""}}) {
        EXPECT_EQ(readWithin("aircraft/armament/ammo", ammo).aircraft.value().ammo.at(0).flavour, flavour)
            << ammo;
    }
}

TEST(UnitReader, MatchesTheEndOfTheChainOfNames) {
    EXPECT_EQ(readWithin("game/squad/description/type", "TYPE_LORRY").type, "TYPE_LORRY");
    // The same names in other places mean nothing.
    const SquadRecord empty = readUnitText("<squad></squad>");
    for (const char* path :
         {"description/type", "squad/type", "squad/x/description/type", "vehicle/hull", "squad/hull/width",
          "squad/data/year", "squad/armament", "Squad/description/type", "squad/man2", "squad/MAN"}) {
        EXPECT_TRUE(readWithin(path, "5") == empty) << path;
    }
    const SquadRecord crew = readWithin("squad/vehicle/superstructure", "<man></man><weapon></weapon>");
    EXPECT_TRUE(crew.vehicle.value().components.at(0).crew.empty());
    EXPECT_TRUE(crew.infantrymen.empty());
    EXPECT_TRUE(readWithin("aircraft/weapon/type", "X").aircraft.value().weapons.empty());
    EXPECT_TRUE(onlyComponent(within("turret/man/ammo/flavour", "X")).crew.at(0).ammo.at(0).flavour.empty())
        << "a crew man's ammunition has no flavour";
    EXPECT_EQ(readWithin("squad/man/ammo/flavour", "X").infantrymen.at(0).ammo.at(0).flavour, "X");
}

TEST(UnitReader, BeginsASecondVehicleOrAircraftAfresh) {
    const VehicleRecord vehicle =
        readWithin("squad", "<vehicle><attributes><weight>5</weight></attributes><hull></hull></vehicle>"
                            "<vehicle><turret></turret></vehicle>")
            .vehicle.value();
    EXPECT_EQ(vehicle.weight, 0);
    ASSERT_EQ(vehicle.components.size(), 1U);
    EXPECT_EQ(vehicle.components[0].kind, ComponentKind::Turret);
    const AircraftRecord aircraft =
        readUnitText("<aircraft><description><speed>5</speed></description>"
                     "</aircraft><aircraft><rotor_blades></rotor_blades></aircraft>")
            .aircraft.value();
    EXPECT_EQ(aircraft.speed, 0);
    EXPECT_EQ(aircraft.rotorBlades.size(), 1U);
}

} // namespace varrocade::tests
