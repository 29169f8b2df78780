// Infantry and heavy-weapon squads, and aircraft.

#include "data/unit_writers.h"
#include "test_support.h"

#include <gtest/gtest.h>

namespace varrocade::tests {

namespace {

using Lines = std::vector<std::string>;

/// Every element that the squads' writer knows.
SquadRecord fullSquad() {
    SquadRecord record;
    record.fileName = "unit";
    record.type = "TYPE_INFANTRY_SECTION";
    record.nationality = "NATIONALITY_FINNISH";
    record.language = "fi";
    record.quality = "QUALITY_ELITE";
    record.longName = "A long name";
    record.shortName = "Short";
    record.comment = "A comment.";
    record.uniformGame = "game";
    record.uniformProfile = "profile";
    record.uniformRanks = "uniform_ranks_finnish";
    record.availability = {{11, 1939, 300}};
    CrewManRecord leader;
    leader.job = "JOB_SQUAD_LEADER";
    leader.language = "se";
    leader.bodyArmour = true;
    leader.nightVision = true;
    leader.weapons = {"WEAPON_SMG_SUOMI", "WEAPON_GRENADE_X"};
    leader.ammo = {{.weaponType = "WEAPON_SMG_SUOMI", .rounds = 140},
                   {.weaponType = "WEAPON_GRENADE_X", .flavour = "FLAVOUR_GRENADE_SMOKE", .rounds = 2}};
    record.infantrymen = {leader, CrewManRecord()};
    HeavyWeaponRecord& gun = record.heavyWeapon.emplace();
    gun.kind = HeavyWeaponKind::AtGun;
    gun.baseImage = "base";
    gun.gunImage = "gun";
    gun.profileImage = "gun profile";
    gun.nightVision = true;
    gun.antiAircraft = true;
    gun.weapons = {{.type = "WEAPON_CANNON_37_PSTK36"}};
    gun.ammo = {{.weaponType = "WEAPON_CANNON_37_PSTK36", .flavour = "FLAVOUR_AP", .rounds = 40},
                {.weaponType = "WEAPON_CANNON_37_PSTK36", .rounds = 7}};
    gun.limitedTraverse = true;
    gun.rotateLeft = 25;
    gun.rotateRight = 26;
    gun.mass = 370;
    gun.trailLength = 2.5;
    gun.moveable = false;
    record.heavyWeaponPlace = 1;
    return record;
}

SquadRecord fullAircraft() {
    SquadRecord record;
    record.fileName = "unit";
    record.type = "TYPE_HELICOPTER";
    record.nationality = "NATIONALITY_FRENCH";
    record.language = "fr";
    record.longName = "A long name";
    record.shortName = "Short";
    record.comment = "A comment.";
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

Lines heavyWeaponLines(const HeavyWeaponRecord& weapon, std::string_view element) {
    SquadRecord record;
    record.heavyWeapon = weapon;
    const std::string name(element);
    return linesBetween(squadFileText(record), "<" + name + ">", "</" + name + ">");
}

Lines manLines(const CrewManRecord& man) {
    SquadRecord record;
    record.infantrymen = {man};
    return linesBetween(squadFileText(record), "<man>", "</man>");
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

TEST(AircraftWriter, WritesLittleForAPlainOne) {
    SquadRecord record;
    record.aircraft.emplace();
    const std::string text = aircraftFileText(record).value_or("");
    EXPECT_EQ(
        linesBetween(text, "<comment>", "</aircraft>"),
        Lines({"\t\t<comment></comment>", "\t\t<speed>0</speed>", "\t</description>", "\t<availability>",
               "\t</availability>", "", "\t<armament>", "\t</armament>", "</aircraft>"}));
    EXPECT_EQ(aircraftFileText(SquadRecord()), std::nullopt);
    // What the files have no place for.
    record.aircraft->weapons = {{.type = "X", .mount = "left wing", .offsetAngle = 3}};
    EXPECT_TRUE(hasLine(aircraftFileText(record).value_or(""), "\t\t<weapon><type>X</type></weapon>"));
}

TEST(SquadWriter, NamesOnlyTheJobsOfSquads) {
    for (const char* job : {"JOB_SQUAD_LEADER", "JOB_SQUAD_ASSISTANT_LEADER", "JOB_SQUAD_MG_ASSISTANT"}) {
        CrewManRecord man;
        man.job = job;
        EXPECT_EQ(manLines(man), Lines({"\t<man>", "\t\t<job>" + std::string(job) + "</job>", "\t</man>"}));
    }
    for (const char* job : {"JOB_LOADER", "JOB_NONE", "", "JOB_SQUAD_LEADER2"}) {
        CrewManRecord man;
        man.job = job;
        EXPECT_EQ(manLines(man), Lines({"\t<man>", "\t</man>"})) << job;
    }
}

TEST(SquadWriter, LeavesOutDefaultFlavours) {
    struct Case {
        AmmoLoadRecord ammo;
        const char* line;
    };
    const std::vector<Case> cases = {
        {{"WEAPON_RIFLE_X", "FLAVOUR_BALL", 5},
         "\t\t<ammo><for>WEAPON_RIFLE_X</for><rounds>5</rounds></ammo>"},
        {{"WEAPON_RIFLE_X", "FLAVOUR_AP", 5},
         "\t\t<ammo><for>WEAPON_RIFLE_X</for><flavour>FLAVOUR_AP</flavour><rounds>5</rounds></ammo>"},
        {{"WEAPON_GRENADE_SMOKE_X", "FLAVOUR_GRENADE_SMOKE", 1},
         "\t\t<ammo><for>WEAPON_GRENADE_SMOKE_X</for><flavour>FLAVOUR_GRENADE_SMOKE</flavour><rounds>1</"
         "rounds></ammo>"},
        {{"WEAPON_MORTAR_X", "", 9}, "\t\t<ammo><for>WEAPON_MORTAR_X</for><rounds>9</rounds></ammo>"},
    };
    for (const Case& c : cases) {
        CrewManRecord man;
        man.ammo = {c.ammo};
        EXPECT_EQ(manLines(man), Lines({"\t<man>", c.line, "\t</man>"}));
    }
    // A heavy weapon's flavour is always named, behind the rounds.
    HeavyWeaponRecord hmg;
    hmg.kind = HeavyWeaponKind::Hmg;
    hmg.ammo = {{.weaponType = "WEAPON_HMG_X", .flavour = "FLAVOUR_BALL", .rounds = 5}};
    EXPECT_EQ(heavyWeaponLines(hmg, "hmg").at(1),
              "\t\t<ammo><for>WEAPON_HMG_X</for><rounds>5</rounds><flavour>FLAVOUR_BALL</flavour></ammo>");
}

TEST(SquadWriter, WritesCarriagesOfAntiTankGunsOnly) {
    struct Case {
        HeavyWeaponKind kind;
        const char* element;
        bool hasCarriage;
    };
    for (const Case& c :
         {Case{HeavyWeaponKind::Mortar, "mortar", false}, Case{HeavyWeaponKind::Hmg, "hmg", false},
          Case{HeavyWeaponKind::AtGun, "atgun", true},
          Case{HeavyWeaponKind::RecoillessRifle, "recoilless_rifle", false}}) {
        HeavyWeaponRecord weapon;
        weapon.kind = c.kind;
        weapon.antiAircraft = true;
        weapon.mass = 800;
        weapon.trailLength = 3.125;
        Lines lines = {"\t<" + std::string(c.element) + ">", "\t</" + std::string(c.element) + ">"};
        if (c.hasCarriage) {
            lines.insert(lines.begin() + 1, {"\t\t<AA>yes</AA>", "\t\t<mass>800</mass>",
                                             "\t\t<trail_length>3.12</trail_length>"});
        }
        EXPECT_EQ(heavyWeaponLines(weapon, c.element), lines);
    }
}

TEST(SquadWriter, WritesLimitsAndMoveabilityOnlyWhereTheyMatter) {
    HeavyWeaponRecord gun;
    gun.kind = HeavyWeaponKind::AtGun;
    gun.rotateLeft = 30;
    EXPECT_EQ(heavyWeaponLines(gun, "atgun"), Lines({"\t<atgun>", "\t\t<mass>0</mass>", "\t</atgun>"}));
    gun.limitedTraverse = true;
    gun.moveable = false;
    EXPECT_EQ(heavyWeaponLines(gun, "atgun"),
              Lines({"\t<atgun>", "\t\t<rotate_left>30</rotate_left>", "\t\t<rotate_right>0</rotate_right>",
                     "\t\t<mass>0</mass>", "\t\t<moveable>no</moveable>", "\t</atgun>"}));
}

TEST(SquadWriter, WritesUniformsWithoutComparingThem) {
    SquadRecord record;
    record.nationality = "NATIONALITY_GERMAN";
    record.uniformProfile = "uniform_german_vehicle_crew";
    record.uniformGame = "Default";
    const Lines images = {"\t\t<comment></comment>", "\t\t<uniform_game>Default.png</uniform_game>",
                          "\t\t<uniform_profile>uniform_german_vehicle_crew.png</uniform_profile>",
                          "\t</description>"};
    EXPECT_EQ(linesBetween(squadFileText(record), "<comment>", "</description>"), images);
    record.namedUniform = true;
    record.uniformName = "Winter";
    record.uniformRanks = "uniform_ranks_german";
    const Lines named = {"\t\t<comment></comment>", "\t\t<uniform>Winter</uniform>",
                         "\t\t<uniform_ranks>uniform_ranks_german.png</uniform_ranks>", "\t</description>"};
    EXPECT_EQ(linesBetween(squadFileText(record), "<comment>", "</description>"), named);
}

TEST(SquadWriter, KeepsTheMembersInOrder) {
    for (std::size_t place = 0; place <= 3; ++place) {
        SquadRecord record;
        record.infantrymen.resize(2);
        record.heavyWeapon.emplace();
        record.heavyWeaponPlace = place;
        // A place beyond the men is behind the last of them.
        Lines expected = {"\t<man>", "\t</man>", "", "\t<man>", "\t</man>"};
        const Lines mortar = {"\t<mortar>", "\t</mortar>"};
        const auto at = static_cast<std::ptrdiff_t>(std::min<std::size_t>(place, 2) * 3);
        if (place < 2) {
            expected.insert(expected.begin() + at, "");
            expected.insert(expected.begin() + at, mortar.begin(), mortar.end());
        } else {
            expected.emplace_back();
            expected.insert(expected.end(), mortar.begin(), mortar.end());
        }
        Lines lines = linesBetween(squadFileText(record), "</availability>", "</squad>");
        EXPECT_EQ(Lines(lines.begin() + 2, lines.end() - 1), expected) << place;
    }
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
