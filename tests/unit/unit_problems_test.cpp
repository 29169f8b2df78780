// What the bar on top of a unit's sheet says.

#include "data/finding_text.h"
#include "platform/file_operations.h"
#include "test_support.h"
#include "tools/checks/engine/check_rules.h"
#include "tools/checks/engine/folder_check.h"
#include "tools/checks/sheet_problems.h"
#include "view/sheet/data_sheet.h"
#include "view/sheet/missing_files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

namespace varrocade::tests {
namespace {

const WeaponCatalogue& theWeapons() {
    static const WeaponCatalogue catalogue = [] {
        WeaponCatalogue loaded;
        loaded.load("sample\\");
        return loaded;
    }();
    return catalogue;
}

std::string replaced(std::string text, const std::string& what, const std::string& by) {
    const std::size_t at = text.find(what);
    EXPECT_NE(at, std::string::npos) << what;
    return at == std::string::npos ? text : text.replace(at, what.size(), by);
}

std::vector<SheetProblem> problemsOf(const std::string& content, std::vector<std::string> missing = {}) {
    auto problems = fileProblems(Category::Vehicles, content);
    for (SheetProblem& problem : valueProblems(readUnitText(content), content, missing, theWeapons())) {
        problems.push_back(std::move(problem));
    }
    return problems;
}

const std::vector<std::string> SampleBases = {"sample\\"};

TEST(UnitProblems, SampleHasNoneButThoseItsListExcuses) {
    std::string list;
    ASSERT_TRUE(readWholeFile("sample\\" + std::string(SuppressionListName), list));
    std::vector<Finding> ofList;
    const SuppressionList excused(list, ofList);
    std::size_t dropped = 0;
    for (const SampleFile& file : sampleFiles()) {
        std::vector<SheetProblem> problems = fileProblems(file.category, file.content);
        if (file.category == Category::Weapons) {
            WeaponRecord weapon = readWeaponText(file.content);
            weapon.fileName = file.name;
            EXPECT_TRUE(missingFiles(weapon, SampleBases).empty()) << file.name;
            std::ranges::move(valueProblems(weapon, file.content), std::back_inserter(problems));
        } else {
            std::ranges::move(
                valueProblems(readUnitText(file.content), file.content, {}, theWeapons(), SampleBases),
                std::back_inserter(problems));
        }
        dropped += problems.size();
        dropSuppressed(problems, excused, shownPath(file.category, file.name));
        dropped -= problems.size();
        for (const SheetProblem& problem : problems) {
            ADD_FAILURE() << file.name << ": " << sentence(problem.finding);
        }
    }
    EXPECT_GT(dropped, 2U) << "elements that the game does not know, long lines";
}

TEST(UnitProblems, NameThePlaceAndThePart) {
    const std::string tank =
        "<squad>\n<description><long_name>A</long_name>\n<type>TYPE_TANK</type>\n</description>"
        "<availability><data><year>1944</year></data></availability>\n"
        "<vehicle><attributes><weight>9</weight></attributes>"
        "<drive><engine><horsepower>9</horsepower></engine></drive>\n<hull>\n"
        "<image_view>Some.png</image_view><width>9</width><length>9</length>\n<man><job>JOB_DRIVER</job></"
        "man>\n</hull>\n"
        "<turret>\n<rotate_time>20</rotate_time>\n"
        "<weapon><type>WEAPON_HMG_BESA</type></weapon>\n"
        "<ammo><for>WEAPON_HMG_BESA</for><rounds>9</rounds></ammo>\n"
        "</turret>\n<turret>\n<rotate_time>20</rotate_time>\n</turret>\n"
        "</vehicle>\n</squad>\n";
    struct Case {
        const char* what;
        const char* by;
        const char* sentence;
        UnitPart part;
    };
    const std::vector<Case> cases = {
        {"TYPE_TANK",
         "TYPE_TNAK",
         "Line 3: Type \"TYPE_TNAK\" is not known (did you mean \"TYPE_TANK\"?).",
         {PartKind::Details}},
        {"JOB_DRIVER",
         "JOB_DRIVERR",
         "Line 8: Job \"JOB_DRIVERR\" is not known (did you mean \"JOB_DRIVER\"?).",
         {PartKind::CrewMan, 0, 0}},
        {"<type>WEAPON_HMG",
         "<type>WEAPON_X",
         "Line 12: there is no weapon file \"WEAPON_X_BESA\".",
         {PartKind::Weapon, 1, 0}},
        {"<for>WEAPON_HMG_BESA",
         "<for>WEAPON_HMG_BREDA_M38",
         "Line 13: 9 rounds for \"WEAPON_HMG_BREDA_M38\", which is not there.",
         {PartKind::Ammunition, 1, 0}},
        {"<for>WEAPON_HMG_BESA", "<for>", "Line 13: 9 rounds for no weapon.", {PartKind::Ammunition, 1, 0}},
        {"Some", "Gone", "Line 7: the picture \"Gone.png\" is missing.", {PartKind::Component, 0, 0}},
        {"20", "0", "Line 11: The rotate speed must be greater than zero.", {PartKind::Component, 1, 0}},
        {"</turret>\n<turret>",
         "<turret>",
         "Line 10: <turret> is not closed (add </turret> before line 14, column 1).",
         {}},
        {"<rotate_time>",
         "<rotate_tim>",
         "Line 11: <rotate_tim> is not closed: </rotate_time> has another name (did you mean "
         "<rotate_time>?).",
         {}},
        {"</vehicle>", "", "Line 5: <vehicle> is not closed (add </vehicle> before line 19, column 1).", {}},
    };
    for (const SheetProblem& problem : problemsOf(tank, {"Images\\Gone.png"})) {
        EXPECT_NE(problem.finding.severity, Severity::Error) << sentence(problem.finding);
    }
    for (const Case& row : cases) {
        const auto problems = problemsOf(replaced(tank, row.what, row.by), {"Images\\Gone.png"});
        ASSERT_FALSE(problems.empty()) << row.by;
        std::string all;
        bool isFound = false;
        for (const SheetProblem& problem : problems) {
            all += sentence(problem.finding) + "\n";
            isFound = isFound || (sentence(problem.finding) == row.sentence && problem.part == row.part);
        }
        EXPECT_TRUE(isFound) << row.by << ":\n" << all;
    }
}

TEST(UnitProblems, OfAWeaponPointAtItsAmmunition) {
    WeaponRecord weapon;
    weapon.ammoTypes = {{.mass = 2}, {.mass = 1, .highExplosive = 3}};
    const std::vector<SheetProblem> problems = valueProblems(weapon, {});
    ASSERT_EQ(problems.size(), 2U); // the other is that bombs are not fired by rifles
    EXPECT_EQ(problems[1].finding.key, check_key::MoreExplosiveThanMass);
    EXPECT_EQ(problems[1].part, (UnitPart{PartKind::Ammunition, 0, 1}));
    EXPECT_EQ(partOfField(weapon, "calibre"), UnitPart{PartKind::Details});
    const std::vector<SheetProblem> broken = fileProblems(Category::Weapons, "<weapon><rof>4</rof");
    ASSERT_FALSE(broken.empty());
    EXPECT_EQ(broken[0].finding.line, 1U);
}

TEST(UnitProblems, NameMissingSoundsAndUniforms) {
    SquadRecord plane;
    plane.aircraft.emplace().sound = "aircraft_radia";
    plane.uniformRanks = "not in the file of an aircraft";
    plane.uniformGame = "Default";
    SquadRecord squad;
    squad.namedUniform = true;
    squad.uniformName = "uniform_gone.png";
    std::string all;
    for (const SquadRecord& unit : {plane, squad}) {
        for (const SheetProblem& problem : valueProblems(unit, {}, {}, theWeapons(), SampleBases)) {
            const bool isGap = problem.finding.severity == Severity::Note;
            all += isGap ? "" : sentence(problem.finding) + "\n";
        }
    }
    WeaponRecord weapon;
    weapon.shootSound = "bang";
    weapon.reloadSound = "reload_bolt";
    weapon.ammoTypes.emplace_back().tracerImage = "none";
    for (const Finding& finding : missingFiles(weapon, SampleBases)) {
        all += finding.field + ": " + sentence(finding) + "\n";
    }
    EXPECT_EQ(all, "The sound \"aircraft_radia.wav\" is missing.\n"
                   "The picture \"uniform_gone.png\" is missing.\n"
                   "sound_shoot: The sound \"bang.wav\" is missing.\n"
                   "ammo[1].tracer_image: The picture \"none.png\" is missing.\n");
}

TEST(UnitProblems, StandInTheBarAndInFullAtTheEnd) {
    DataSheet sheet;
    const Finding finding{.line = 4, .message = "nothing is there"};
    addProblems(sheet, std::vector<SheetProblem>{{finding, {PartKind::Drive}, "<drive"}});
    ASSERT_EQ(sheet.warnings.size(), 1U);
    EXPECT_EQ(sheet.warnings[0].text, "Line 4: nothing is there.");
    ASSERT_EQ(sheet.sections.size(), 1U);
    EXPECT_TRUE(sheet.sections[0].holdsProblems);
    EXPECT_EQ(sheet.sections[0].tables[0].rows[1].detail, "<drive");
    const Finding worse{.severity = Severity::Error, .line = 9, .message = "it is broken"};
    DataSheet several;
    addProblems(several, std::vector<SheetProblem>{{finding}, {worse}, {finding}});
    ASSERT_EQ(several.warnings.size(), 4U);
    EXPECT_EQ(several.warnings[0].text, "1 error, 2 warnings");
    EXPECT_EQ(several.warnings[1].text, "Line 9: it is broken.");
}

TEST(UnitProblems, OfAUnitInTheMakingAreItsGapsAndErrors) {
    const auto warningsOf = [](const std::string& text) {
        return std::ranges::count_if(
            valueProblems(readUnitText(text), text, {}, theWeapons()),
            [](const SheetProblem& problem) { return problem.finding.severity == Severity::Warning; });
    };
    std::string squad = "<squad><description><long_name>A</long_name></description>"
                        "<availability><data><month>5</month><year>1944</year></data>"
                        "<data><month>5</month><year>1943</year></data></availability>"
                        "<man><weapon>WEAPON_RIFLE_MAUSER_KAR98</weapon></man></squad>";
    EXPECT_GT(warningsOf(squad), 0) << "points of availability out of order";
    EXPECT_EQ(warningsOf(replaced(squad, "<long_name>A</long_name>", "")), 0);
}

} // namespace
} // namespace varrocade::tests
