// The editors of squads on foot, heavy weapons and aircraft, driven without windows.

#include "data/writing/unit_writers.h"
#include "editors/squad/heavy_weapon_form.h"
#include "editors/squad/man_form.h"
#include "editors/squad/members.h"
#include "editors/squad/rotor_list.h"
#include "editors/squad/squad_form.h"
#include "editors/squad/squad_notes.h"
#include "editors/unit/uniform_form.h"
#include "editors/unit/unit_lists.h"
#include "fake_form_port.h"
#include "resources/resource.h"
#include "test_support.h"
#include "view/drawing/part_positions.h"
#include "view_support.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace varrocade::tests {
namespace {

/// Opens a form on a record and takes it over as it stands.
template <typename Record>
void openAndTake(const FormShape<Record>& shape, Record& record) {
    FakeFormPort port;
    fillForm(port, shape, record);
    const auto error = readForm(port, shape, record);
    EXPECT_FALSE(error) << error->message;
}

template <typename Entry>
void openAndTake(const ListShape<Entry>& shape, std::vector<Entry>& entries) {
    for (Entry& entry : entries) {
        openAndTake(shape.form, entry);
    }
}

TEST(SquadForms, LeaveEveryFileOfTheSampleAsARewriteDoes) {
    for (const SampleFile& file : sampleFiles()) {
        if (file.category == Category::Vehicles || file.category == Category::Weapons) {
            continue;
        }
        SCOPED_TRACE(file.name);
        const SquadRecord read = readUnitText(file.content);
        SquadRecord record = read;
        openAndTake(record.aircraft ? aircraftShape() : squadShape(), record);
        openAndTake(uniformShape(), record);
        openAndTake(availabilityShape(), record.availability);
        for (CrewManRecord& man : record.infantrymen) {
            openAndTake(manShape(), man);
            openAndTake(ammunitionShape(), man.ammo);
        }
        if (record.heavyWeapon) {
            openAndTake(heavyWeaponShape(), *record.heavyWeapon);
            openAndTake(weaponShape(), record.heavyWeapon->weapons);
        }
        if (record.aircraft) {
            openAndTake(weaponShape(), record.aircraft->weapons);
            openAndTake(rotorShape(), record.aircraft->rotorBlades);
        }
        EXPECT_EQ(record, read);
        EXPECT_EQ(unitFileText(file.category, record), rewritten(file.category, file.content));
    }
}

SquadRecord fiveMembers() {
    SquadRecord squad;
    for (const char* weapon : {"A", "B", "C", "D"}) {
        squad.infantrymen.emplace_back().weapons = {weapon};
    }
    squad.heavyWeapon.emplace();
    squad.heavyWeaponPlace = 2;
    return squad;
}

/// The members as letters, the heavy weapon as "#".
std::string letters(const SquadRecord& squad) {
    std::string text;
    for (std::size_t place = 0; place < memberCount(squad); ++place) {
        const auto man = manAt(squad, place);
        text += man ? squad.infantrymen[*man].weapons.at(0).str() : "#";
    }
    return text;
}

TEST(Members, StandAmongEachOtherWithTheHeavyWeapon) {
    SquadRecord squad = fiveMembers();
    EXPECT_EQ(letters(squad), "AB#CD");
    EXPECT_EQ(memberLine(squad, 2), "3. Mortar: no weapon");
    EXPECT_EQ(memberLine(squad, 3), "4. Soldier: C");
    MemberPlaces places = {2, 3};
    EXPECT_TRUE(moveMembers(squad, places, true));
    EXPECT_EQ(letters(squad), "A#CBD");
    EXPECT_EQ(places, (MemberPlaces{1, 2}));
    EXPECT_TRUE(moveMembers(squad, places, true));
    EXPECT_FALSE(moveMembers(squad, places, true));
    EXPECT_EQ(letters(squad), "#CABD");
    places = {3, 4};
    EXPECT_FALSE(moveMembers(squad, places, false));
    places = {0, 2};
    EXPECT_TRUE(moveMembers(squad, places, false));
    EXPECT_EQ(letters(squad), "C#BAD");
    deleteMembers(squad, MemberPlaces{1, 4});
    EXPECT_EQ(letters(squad), "CBA");
    EXPECT_FALSE(squad.heavyWeapon);
    addHeavyWeapon(squad);
    EXPECT_EQ(letters(squad), "CBA#");
}

TEST(Members, AreAddedUntilTheSquadIsFull) {
    SquadRecord squad = fiveMembers();
    const CrewManRecord man = squad.infantrymen[0];
    EXPECT_EQ(addMen(squad, man, 5, 2), (MemberPlaces{3, 4, 5, 6, 7}));
    EXPECT_EQ(letters(squad), "AB#AAAAACD");
    EXPECT_EQ(addMen(squad, man, 9, std::nullopt).size(), 4U);
    EXPECT_EQ(squad.infantrymen.size(), MaxSquadMembers);
    EXPECT_EQ(roomForMen(squad), 0U);
    EXPECT_TRUE(addMen(squad, man, 1, 0).empty());
}

TEST(ManForm, OrdinarySoldiersHaveNoJobInTheFile) {
    CrewManRecord man;
    FakeFormPort port;
    fillForm(port, manShape(), man);
    EXPECT_EQ(port.texts[IDC_JOB], "(ordinary soldier)");
    port.texts[IDC_JOB] = "JOB_SQUAD_LEADER";
    ASSERT_FALSE(readForm(port, manShape(), man));
    EXPECT_EQ(man.job, "JOB_SQUAD_LEADER");
    port.texts[IDC_JOB].clear();
    ASSERT_FALSE(readForm(port, manShape(), man));
    EXPECT_EQ(man, CrewManRecord());
}

TEST(MenChange, IsOnlyWhatItSays) {
    CrewManRecord man;
    man.bodyArmour = true;
    man.weapons = {"RIFLE", "PISTOL"};
    man.ammo = {{"RIFLE", "", 60}, {"GRENADE", "", 2}};
    struct Case {
        const char* what;
        MenChange change;
        std::string expected;
    };
    const auto textOf = [](const CrewManRecord& changed) {
        std::string text = changed.bodyArmour ? "a" : "";
        text += changed.nightVision ? "n" : "";
        for (const Text& weapon : changed.weapons) {
            text += " " + weapon.str();
        }
        for (const AmmoLoadRecord& load : changed.ammo) {
            text += " " + std::to_string(load.rounds) + load.weaponType.str();
        }
        return text;
    };
    const std::vector<Case> cases = {
        {"nothing", {}, "a RIFLE PISTOL 60RIFLE 2GRENADE"},
        {"flags",
         {.bodyArmour = FlagChange::Clear, .nightVision = FlagChange::Set},
         "n RIFLE PISTOL 60RIFLE 2GRENADE"},
        {"another weapon",
         {.arms = ArmsChange::Give, .weapon = "RPG"},
         "a RIFLE PISTOL RPG 60RIFLE 2GRENADE"},
        {"one that he has", {.arms = ArmsChange::Give, .weapon = "RIFLE"}, "a RIFLE PISTOL 60RIFLE 2GRENADE"},
        {"exchange",
         {.arms = ArmsChange::Exchange, .weapon = "SMG", .formerArms = "RIFLE"},
         "a SMG PISTOL 60SMG 2GRENADE"},
        {"of what he has not",
         {.arms = ArmsChange::Exchange, .weapon = "SMG", .formerArms = "LMG"},
         "a RIFLE PISTOL 60RIFLE 2GRENADE"},
        {"less", {.arms = ArmsChange::Take, .weapon = "RIFLE"}, "a PISTOL 2GRENADE"},
        {"more grenades",
         {.ammunition = AmmoChange::Give, .load = {"GRENADE", "", 5}},
         "a RIFLE PISTOL 60RIFLE 5GRENADE"},
        {"no grenades",
         {.ammunition = AmmoChange::Take, .load = {"GRENADE", "", 0}},
         "a RIFLE PISTOL 60RIFLE"},
    };
    for (const Case& row : cases) {
        CrewManRecord changed = man;
        changeMan(changed, row.change);
        EXPECT_EQ(textOf(changed), row.expected) << row.what;
    }
    MenChange change;
    FakeFormPort port;
    fillForm(port, menChangeShape(), change);
    EXPECT_TRUE(port.disabled.contains(IDC_WEAPON_TYPE) && port.disabled.contains(IDC_ROUNDS));
    port.texts[IDC_ARMS_CHANGE] = "carry instead";
    updateEnabling(port, menChangeShape(), change);
    EXPECT_FALSE(port.disabled.contains(IDC_FORMER_ARMS));
    port.texts[IDC_WEAPON_TYPE] = "SMG";
    const auto error = readForm(port, menChangeShape(), change);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->control, IDC_FORMER_ARMS);
}

TEST(HeavyWeaponForm, OnlyAntiTankGunsHaveMassTrailAndAntiAircraftFire) {
    HeavyWeaponRecord weapon;
    weapon.trailLength = 1.005;
    FakeFormPort port;
    fillForm(port, heavyWeaponShape(), weapon);
    EXPECT_TRUE(port.disabled.contains(IDC_HEAVY_MASS) && port.disabled.contains(IDC_ANTI_AIRCRAFT));
    EXPECT_EQ(heavyWeaponNotStored(port, weapon),
              "(Mass, Trail length and Can shoot aircraft are not stored in the file)");
    port.texts[IDC_HEAVY_KIND] = "Anti-tank gun";
    updateEnabling(port, heavyWeaponShape(), weapon);
    EXPECT_FALSE(port.disabled.contains(IDC_HEAVY_MASS) || port.disabled.contains(IDC_TRAIL_LENGTH));
    EXPECT_EQ(heavyWeaponNotStored(port, weapon), "");
    port.texts[IDC_HEAVY_MASS] = "-1";
    EXPECT_TRUE(readForm(port, heavyWeaponShape(), weapon));
    port.texts[IDC_HEAVY_MASS] = "1425";
    port.texts[IDC_TRAIL_LENGTH] = "3.10";
    port.setChecked(IDC_LIMITED_TRAVERSE, true);
    port.texts[IDC_ROTATE_LEFT] = "200";
    port.texts[IDC_ROTATE_RIGHT] = "200";
    updateEnabling(port, heavyWeaponShape(), weapon);
    const auto error = readForm(port, heavyWeaponShape(), weapon);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->control, IDC_ROTATE_LEFT);
    port.texts[IDC_ROTATE_RIGHT] = "30";
    ASSERT_FALSE(readForm(port, heavyWeaponShape(), weapon));
    EXPECT_EQ(weapon.kind, HeavyWeaponKind::AtGun);
    EXPECT_DOUBLE_EQ(weapon.trailLength, 3.1);
    EXPECT_EQ(weapon.rotateRight, 30);

    EXPECT_EQ(kindNote(HeavyWeaponKind::Hmg, "TYPE_GRENADE_LAUNCHER"), "");
    EXPECT_EQ(kindNote(HeavyWeaponKind::Mortar, "TYPE_INFANTRY_SECTION"), "") << "among the men";
    EXPECT_NE(kindNote(HeavyWeaponKind::Mortar, "TYPE_ATGUN"), "");
    EXPECT_EQ(kindNote(HeavyWeaponKind::Mortar, unitTypeOf(HeavyWeaponKind::Mortar)), "");
}

TEST(SquadNotes, TellWhatIsOddAndNothingOfASquadThatIsNot) {
    WeaponCatalogue catalogue;
    catalogue.load(SampleBase);
    const std::vector<std::string> bases = {SampleBase};
    SquadRecord squad;
    squad.type = "TYPE_INFANTRY_SECTION";
    squad.nationality = "NATIONALITY_GERMAN";
    squad.infantrymen.resize(3);
    squad.infantrymen[0].weapons = {"WEAPON_LMG_MG34"};
    squad.infantrymen[1].weapons = {"WEAPON_PISTOL_P38"};
    squad.infantrymen[1].ammo = {{"WEAPON_LMG_MG34", "", 300}, {"WEAPON_CANNON_75_KWK42_L70", "", 1}};
    squad.uniformGame = "uniform_nobody";
    EXPECT_EQ(noteLines(squadNotes(squad, catalogue, bases)),
              "2. man: no ammunition for Pistol P38\r\n"
              "2. man: 1 round for Cannon 75 KWK42 L70, which nobody carries\r\n"
              "3. man: no weapon\r\n"
              "Game image \"uniform_nobody\" is not there");
    squad.namedUniform = true;
    squad.uniformName = "uniform_odd";
    squad.uniformRanks = "ranks_odd";
    EXPECT_TRUE(noteLines(squadNotes(squad, catalogue, bases))
                    .ends_with("no weapon\r\nUniform \"uniform_odd\" is not there\r\n"
                               "Rank Image \"ranks_odd\" is not there"));
    const auto ammo = ammoWeaponsOf(squad, squad.infantrymen[1], catalogue);
    EXPECT_EQ(ammo.front(), "WEAPON_PISTOL_P38");
    EXPECT_EQ(ammo.back(), "WEAPON_LMG_MG34");
    EXPECT_TRUE(std::any_of(ammo.begin(), ammo.end(),
                            [](const std::string& type) { return type.starts_with("WEAPON_GRENADE_"); }));
    squad.aircraft.emplace().sound = "no_such_sound";
    EXPECT_EQ(noteLines(aircraftNotes(squad, catalogue, bases)),
              "Sound \"no_such_sound\" is not there\r\nThe aircraft has no weapon");
}

TEST(AircraftForm, KeepsToItsFieldsAndMirrorsToTheOtherWing) {
    EXPECT_EQ(notStoredText(weaponShape().form, Holder::AircraftFile),
              "(Mount and Angle are not stored in the file)");
    std::vector<WeaponMountRecord> weapons(1);
    weapons[0].offsetX = -210;
    weapons[0].offsetY = 40;
    VectorListModel<WeaponMountRecord>(weapons, weaponShape()).mirror(0);
    EXPECT_EQ(weapons[1].offsetX, 210);
    EXPECT_EQ(weapons[1].offsetY, 40);
    std::vector<RotorBladesRecord> rotors = {{.image = "Image-Rotor", .offsetX = 90, .diameter = 1200}};
    VectorListModel<RotorBladesRecord> model(rotors, rotorShape());
    model.mirror(0);
    EXPECT_EQ(model.line(1), "2. Image-Rotor (-90, 0), anticlockwise");
}

TEST(Rotors, AreMovedInTheDrawingAndShowWhereTheyTurn) {
    SquadRecord unit;
    RotorBladesRecord& rotor = unit.aircraft.emplace().rotorBlades.emplace_back();
    rotor = {.image = "R", .offsetX = 10, .offsetY = 20, .diameter = 1000};
    const UnitPart part{PartKind::Rotor, 0, 0};
    ASSERT_TRUE(isMovable(unit, part));
    EXPECT_TRUE(movePart(unit, part, {-30.4, 7}));
    EXPECT_TRUE(nudgePart(unit, part, 0, 1));
    EXPECT_EQ(positionText(unit, part), "X -30 cm, Y 8 cm");
    FakePictures pictures;
    const auto arrow = [&] { return allOf<LineItem>(drawAircraft(*unit.aircraft, {}, pictures)).at(0); };
    EXPECT_GT(arrow().from.y, arrow().to.y) << "to the rear";
    EXPECT_GT(arrow().to.x, -30) << "at the right";
    rotor.clockwise = false;
    EXPECT_GT(arrow().from.y, arrow().to.y);
    EXPECT_LT(arrow().to.x, -30) << "at the left";
    rotor.diameter = 0;
    EXPECT_LT(arrow().to.x, -30) << "as wide as the picture is";
}

TEST(UniformPictures, ShowWhatIsMeant) {
    FakePictures pictures;
    pictures.sizes["b\\Images\\Uniforms\\uniform_german_vehicle_crew.png"] = {50, 100};
    pictures.sizes["b\\Images\\Uniforms\\own.png"] = {100, 100};
    const std::vector<std::string> bases = {"b\\"};
    SquadRecord unit;
    unit.nationality = "NATIONALITY_GERMAN";
    unit.uniformGame = "own";
    DrawList list = uniformPictures(unit, bases, pictures);
    ASSERT_EQ(allOf<PictureItem>(list).size(), 2U);
    EXPECT_EQ(allOf<PictureItem>(list)[0].width, 50) << "the nation's own";
    ASSERT_EQ(allOf<PlaceholderItem>(list).size(), 1U);
    EXPECT_EQ(allOf<PlaceholderItem>(list)[0].label, "Missing: uniform_ranks_german.png");
    unit.namedUniform = true;
    unit.uniformName = "own.png";
    list = uniformPictures(unit, bases, pictures);
    EXPECT_EQ(allOf<LabelItem>(list).size(), 2U);
    EXPECT_EQ(allOf<PictureItem>(list).size(), 1U);
}

} // namespace
} // namespace varrocade::tests
