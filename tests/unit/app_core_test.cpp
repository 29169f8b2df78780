// What the program decides without its window.

#include "app/workspace/names/file_names.h"
#include "app/workspace/names/name_filter.h"
#include "app/workspace/names/unit_start.h"
#include "app/workspace/options_file.h"
#include "app/workspace/positions.h"
#include "app/workspace/record/undo_history.h"
#include "app/workspace/window_layout.h"
#include "data/unit/unit_gaps.h"
#include "data/writing/unit_writers.h"
#include "editors/squad/squad_notes.h"
#include "editors/unit/carried_ammo.h"
#include "test_support.h"

#include <gtest/gtest.h>

#include <array>
#include <tuple>

namespace varrocade::tests {
namespace {

TEST(OptionsFile, ReadsWhatItWroteAndOtherVersions) {
    EXPECT_EQ(encodeOptions(""), std::string("\xE8\x03\0\0\0\0", 6));
    EXPECT_EQ(decodeOptions(encodeOptions("C:\\Games\\")).gameFolder, "C:\\Games\\");
    EXPECT_EQ(decodeOptions(std::string("\x01\0\x02\0\0\0ab", 8)).gameFolder, "ab");
    EXPECT_EQ(decodeOptions(std::string("\x01\0\x09\0\0\0ab", 8)).gameFolder, "ab");
    EXPECT_EQ(decodeOptions("\xE8").gameFolder, "");
    EXPECT_FALSE(decodeOptions(std::string("\xE8\x03\x03\x01\0\0", 6)).isFatal); // 259
    EXPECT_TRUE(decodeOptions(std::string("\xE8\x03\x04\x01\0\0", 6)).isFatal);  // 260
}

TEST(WindowLayout, FirstPlaceFollowsTheWorkArea) {
    // ((1000 - 16 - 22 - 20) * 350) / 650 + 2 * (4 + 483), centred.
    const WindowPlace place = firstWindowPlace(1600, 1000, {.frame = 4, .caption = 22, .menu = 20}, 96);
    EXPECT_EQ(place, (WindowPlace{(1600 - 1481) / 2, 0, 1481, 1000}));
    // A small screen with large texts.
    EXPECT_EQ(firstWindowPlace(1500, 1000, {.frame = 4, .caption = 22, .menu = 20}, 192),
              (WindowPlace{0, 0, 1500, 1000}));
    EXPECT_EQ(fileListPlace(900), (WindowPlace{4, 68, 350, 798}));
    EXPECT_EQ(fileButtonPlaces(900)[3], (WindowPlace{266, 866, 82, 24}));
    EXPECT_EQ(picturePlace(1473, 900, 96).width, 507);
    EXPECT_EQ(sheetPlace(1473, 900, 96).width, 608);
    // In a narrow window the sheet gives way first.
    EXPECT_EQ(picturePlace(1024, 640, 96).width, LeastPictureWidth);
    EXPECT_EQ(sheetPlace(1024, 640, 96).width, 1024 - ListWidth - LeastPictureWidth);
    EXPECT_EQ(picturePlace(2 * LeastClientWidth, 1000, 192).width, 2 * LeastPictureWidth);
    EXPECT_EQ(sheetPlace(2 * LeastClientWidth, 1000, 192).width, 2 * LeastSheetWidth);
    EXPECT_EQ(sheetPlace(300, 300, 96).width, 0);
}

TEST(FileNames, RefuseWhatFilesCannotBeCalled) {
    EXPECT_EQ(refusalOfName(" "), "A name must be entered");
    for (const char c : std::string("<>:\"/\\|?*.")) {
        EXPECT_EQ(refusalOfName(std::string("a") + c), "Ilegal characters in the filename") << c;
    }
    EXPECT_FALSE(refusalOfName("German Tiger (copy)"));
    EXPECT_FALSE(refusalOfNationality("North Korean T-34", "NATIONALITY_NORTH_KOREAN"));
    EXPECT_EQ(refusalOfNationality("Tiger", "NATIONALITY_GERMAN"),
              "The filename must begin with the squad's nationality name:\n\n        German");
}

TEST(FileNames, NewUnitsCanBeWritten) {
    for (const Category category :
         {Category::Vehicles, Category::AtGuns, Category::Infantry, Category::Aircraft}) {
        EXPECT_TRUE(unitFileText(category, newUnit(category, "German X", "NATIONALITY_GERMAN")).has_value());
    }
    EXPECT_EQ(newUnit(Category::Aircraft, "German X", "NATIONALITY_GERMAN").type, "TYPE_PLANE");
}

TEST(FileNames, FollowTheNationality) {
    constexpr const char* german = "NATIONALITY_GERMAN";
    constexpr const char* korean = "NATIONALITY_NORTH_KOREAN";
    EXPECT_EQ(nameForNationality("", "", german), "German ");
    EXPECT_EQ(nameForNationality("German ", german, korean), "North Korean ");
    EXPECT_EQ(nameForNationality("North Korean T-34", korean, german), "German T-34");
    EXPECT_EQ(nameForNationality("Tiger", german, korean), "Tiger") << "the user's own";
}

/// What a new unit lacks yet, on one line.
std::string gapsOf(const SquadRecord& unit) {
    std::string text;
    for (const Finding& gap : unitGaps(unit)) {
        text += (text.empty() ? "" : ", ") + gap.message.substr(gap.message.find(": ") + 2);
    }
    return text;
}

TEST(UnitStart, BringsWhatWasChosenAndNothingElse) {
    WeaponCatalogue catalogue;
    catalogue.load(SampleBase);
    const auto begun = [&](Category category, const UnitStart& start) {
        SquadRecord unit = newUnit(category, "German X", "NATIONALITY_GERMAN");
        beginWith(unit, category, start, catalogue,
                  [](std::string_view name) { return name != "Profile-A"; });
        return unit;
    };
    for (const Category category :
         {Category::Vehicles, Category::AtGuns, Category::Infantry, Category::Aircraft}) {
        EXPECT_EQ(begun(category, {}), newUnit(category, "German X", "NATIONALITY_GERMAN"));
    }
    EXPECT_EQ(gapsOf(begun(Category::Infantry, {})), "the long name, the men, the dates of availability");
    const SquadRecord squad = begun(Category::Infantry, {.men = 3, .arms = "WEAPON_RIFLE_KAR98K"});
    ASSERT_EQ(squad.infantrymen.size(), 3U);
    EXPECT_EQ(squad.infantrymen[0].job, "JOB_SQUAD_LEADER");
    EXPECT_EQ(squad.infantrymen[2].weapons, std::vector<Text>{"WEAPON_RIFLE_KAR98K"});
    EXPECT_EQ(squad.infantrymen[2].ammo, (std::vector<AmmoLoadRecord>{{"WEAPON_RIFLE_KAR98K", "", 60}}));
    EXPECT_EQ(gapsOf(squad), "the long name, the dates of availability");
    EXPECT_EQ(gapsOf(begun(Category::Infantry, {.men = 3})),
              "the long name, the weapons of the men, the dates of availability");
    const SquadRecord gun =
        begun(Category::AtGuns,
              {.men = 1, .kind = HeavyWeaponKind::Mortar, .picture = "Image-A gun", .weapon = "WEAPON_A"});
    EXPECT_EQ(gun.type, "TYPE_MORTAR");
    EXPECT_EQ(gun.heavyWeapon->baseImage, "Image-A base");
    EXPECT_TRUE(gun.heavyWeapon->profileImage.empty()) << "there is none";
    EXPECT_EQ(gun.heavyWeapon->weapons.at(0).type, "WEAPON_A");
    EXPECT_TRUE(gun.infantrymen.at(0).weapons.empty());
    EXPECT_EQ(gapsOf(gun), "the long name, the ammunition of the gun, the dates of availability")
        << "nobody knows what WEAPON_A fires";
    EXPECT_EQ(gapsOf(begun(Category::Aircraft, {.picture = "Image-B"})),
              "the long name, the sound of the aircraft, the speed, the dates of availability");
    EXPECT_EQ(
        gapsOf(begun(Category::Vehicles, {})),
        "the long name, the picture of the hull, the size of the hull, the crew, the weight, the engine's "
        "horsepower, the dates of availability");
}

TEST(UnitStart, SuggestsWhatCanBeUsedAtOnce) {
    WeaponCatalogue catalogue;
    catalogue.load(SampleBase);
    const std::vector<std::string> pictures = {"Image-Flak36 gun", "Image-GrW34 gun", "Image-Pak40 gun"};
    EXPECT_EQ(pictureOfWeapon("WEAPON_CANNON_75_PAK40_L46", pictures), "Image-Pak40 gun");
    EXPECT_EQ(pictureOfWeapon("WEAPON_CANNON_37_M3", pictures), "");
    for (const std::string_view nationality :
         {"NATIONALITY_GERMAN", "NATIONALITY_RUSSIAN", "NATIONALITY_AMERICAN"}) {
        for (const Category category : {Category::Infantry, Category::AtGuns, Category::Aircraft}) {
            const UnitStart start =
                suggestedStart(category, nationality, HeavyWeaponKind::AtGun, catalogue, pictures);
            SquadRecord unit = newUnit(category, "X", std::string(nationality));
            beginWith(unit, category, start, catalogue, [](std::string_view) { return true; });
            const std::vector<std::string> bases = {SampleBase};
            EXPECT_EQ(noteLines(unit.aircraft ? aircraftNotes(unit, catalogue, bases)
                                              : squadNotes(unit, catalogue, bases)),
                      "")
                << nationality;
            EXPECT_EQ(unit.infantrymen.empty(), category == Category::Aircraft);
        }
    }
    struct Case {
        std::string_view nationality;
        HeavyWeaponKind kind;
        std::string_view arms, weapon, picture;
    };
    const std::vector<std::string> guns = {"Image-37mm M3 gun", "Image-3in mortar gun", "Image-6pdr gun"};
    for (const Case& each :
         {Case{"NATIONALITY_BRITISH", HeavyWeaponKind::AtGun, "WEAPON_RIFLE_LEE_ENFIELD_NO4",
               "WEAPON_CANNON_57_6PDR_MK2_L43", "Image-6pdr gun"},
          Case{"NATIONALITY_BRITISH", HeavyWeaponKind::Mortar, "WEAPON_RIFLE_LEE_ENFIELD_NO4",
               "WEAPON_MORTAR_3IN_ML_MK2", "Image-3in mortar gun"},
          Case{"NATIONALITY_AMERICAN", HeavyWeaponKind::AtGun, "WEAPON_RIFLE_M16A4",
               "WEAPON_CANNON_37_M3_L54", "Image-37mm M3 gun"}}) {
        const UnitStart start =
            suggestedStart(Category::AtGuns, each.nationality, each.kind, catalogue, guns);
        EXPECT_EQ(start.arms, each.arms);
        EXPECT_EQ(start.weapon, each.weapon) << "the nation's own, with a picture";
        EXPECT_EQ(start.picture, each.picture);
    }
    const UnitStart mortar =
        suggestedStart(Category::AtGuns, "NATIONALITY_GERMAN", HeavyWeaponKind::Mortar, catalogue, pictures);
    EXPECT_TRUE(mortar.weapon.view().starts_with("WEAPON_MORTAR_"));
    EXPECT_EQ(mortar.picture, "Image-GrW34 gun");
    const auto loads = usualLoads(catalogue, "WEAPON_CANNON_75_PAK40_L46", WeaponBearer::HeavyWeapon);
    ASSERT_EQ(loads.size(), 2U);
    EXPECT_EQ(loads[1].flavour, "FLAVOUR_HE");
}

TEST(NameFilter, WantsEveryWord) {
    EXPECT_TRUE(passesFilter("German Panzer VI Tiger", "tig  ger"));
    EXPECT_FALSE(passesFilter("German Panzer VI Tiger", "tiger russian"));
    EXPECT_TRUE(passesFilter("anything", "  "));
    EXPECT_EQ(nationalityOfName("North Korean T-34"), "NORTH_KOREAN");
    EXPECT_EQ(nationalityOfName("Germanic thing"), "");
}

TEST(Positions, QuestionNamesWhatWouldBeLost) {
    const std::string begin = "Save your changes to ";
    using Case = std::tuple<Category, bool, bool, std::string>;
    for (const auto& [category, weapon, exhaust, question] :
         {Case{Category::Vehicles, true, true, begin + "weapon and exhaust positions?"},
          Case{Category::Vehicles, true, false, begin + "weapon positions?"},
          Case{Category::Vehicles, false, true, begin + "exhaust positions?"},
          Case{Category::Vehicles, false, false, ""},
          Case{Category::Aircraft, true, true, begin + "weapon positions?"},
          Case{Category::Aircraft, false, true, ""}, Case{Category::Infantry, true, true, ""}}) {
        EXPECT_EQ(unsavedPositionsQuestion(true, category, weapon, exhaust), question);
    }
    EXPECT_EQ(unsavedPositionsQuestion(false, Category::Vehicles, true, true), "");
}

const SquadRecord& unitOf(const RecordState& state) {
    return std::get<SquadRecord>(state.record);
}

TEST(UndoHistory, GoesBackAndForthAndForgetsWhatWasUndone) {
    UndoHistory history;
    SquadRecord record;
    history.start({record});
    history.note("nothing", {record});
    EXPECT_FALSE(history.canUndo());
    record.longName = "one";
    history.note("Name", {record});
    record.longName = "two";
    history.note("Second name", {record});
    EXPECT_EQ(history.undoName(), "Second name");
    EXPECT_EQ(unitOf(history.undo()).longName, "one");
    EXPECT_EQ(history.redoName(), "Second name");
    EXPECT_EQ(unitOf(history.undo()).longName, "");
    EXPECT_FALSE(history.canUndo());
    record = unitOf(history.redo());
    EXPECT_EQ(record.longName, "one");
    record.longName = "other";
    history.note("Other", {record});
    EXPECT_FALSE(history.canRedo());
    EXPECT_EQ(unitOf(history.undo()).longName, "one") << "what had been undone is gone";
    history.redo();
    for (int i = 0; i < 300; ++i) {
        record.vehicle.emplace().weight = i + 1;
        history.note("Weight", {record});
    }
    int steps = 0;
    while (history.canUndo()) {
        history.undo();
        ++steps;
    }
    EXPECT_EQ(steps, 99);
}

TEST(UndoHistory, AChangeThatGoesOnIsOneStep) {
    UndoHistory history;
    SquadRecord record;
    history.start({record});
    for (const char* name : {"one", "two", "three"}) {
        record.longName = name;
        history.amend({record});
        history.note("Name", {record});
    }
    EXPECT_EQ(unitOf(history.undo()).longName, "");
    EXPECT_EQ(unitOf(history.redo()).longName, "three");
}

} // namespace
} // namespace varrocade::tests
