// Problems in the workspace: quick fixes, the list, keeping it up to date, and where a finding is mended.

#include "app/workspace/problems/fix_problems.h"
#include "data/unit_fields.h"
#include "data/writing/unit_writers.h"
#include "tools/checks/engine/background_check.h"
#include "tools/checks/engine/check_rules.h"
#include "tools/checks/engine/file_findings.h"
#include "tools/checks/fixes/quick_fixes.h"
#include "view/sheet/unit_problems.h"
#include "workspace_fixture.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

namespace varrocade::tests {
namespace {

namespace ck = check_key;

const std::string SquadFile = "Game\\Data\\Infantry\\German Squad.txt";

/// A rifle squad in the lines of the game's own files.
std::string squadOf(std::string_view weaponLines) {
    return "<squad>\r\n\t<description>\r\n\t\t<type>TYPE_INFANTRY_SECTION</type>\r\n"
           "\t\t<nationality>NATIONALITY_GERMAN</nationality>\r\n\t\t<long_name>S</long_name>\r\n"
           "\t\t<short_name>S</short_name> // of the platoon\r\n"
           "\t\t<quality>QUALITY_REGULAR</quality>\r\n\t</description>\r\n\t<availability>\r\n"
           "\t\t<data><month>1</month><year>1940</year><number>9</number></data>\r\n\t</availability>\r\n"
           "\t<man>\r\n\t\t<body_armour>yes</body_armour>\r\n" +
           std::string(weaponLines) + "\t</man>\r\n</squad>\r\n";
}

const std::string RifleLine = "\t\t<weapon><type>WEAPON_RIFLE_K98K</type></weapon>\r\n";
const std::string RoundsLine = "\t\t<ammo><for>WEAPON_RIFLE_K98K</for><rounds>60</rounds></ammo>\r\n";

class ProblemsTest : public WorkspaceTest {
protected:
    ProblemsTest() {
        WeaponRecord rifle = newWeapon("WEAPON_RIFLE_K98K");
        folder.write("Game\\Data\\Weapons\\WEAPON_RIFLE_K98K.txt", weaponFileText(rifle));
        folder.write("Game\\Data\\Infantry\\German Others.txt", squadOf(RifleLine + RoundsLine));
        folder.write(SquadFile, squadOf(RifleLine + RoundsLine));
    }

    void look() {
        auto check = std::make_unique<FolderCheck>(gameFolders(workspace));
        check->run(1);
        book.take(std::move(check));
    }

    /// The problems of the squad's file of one kind.
    [[nodiscard]] std::vector<Problem> squadProblems(std::string_view key) const {
        std::vector<Problem> problems = problemsIn(book, workspace, {});
        std::erase_if(problems, [key](const Problem& problem) {
            return problem.finding.key != key || problem.name != "German Squad";
        });
        return problems;
    }

    [[nodiscard]] std::string fileText(const std::string& path) const {
        std::string content;
        EXPECT_TRUE(readWholeFile(folder.path() + path, content));
        return content;
    }

    ProblemBook book;
};

TEST_F(ProblemsTest, QuickFixesChangeWhatTheyNameAndNothingElse) {
    const struct {
        std::string broken;
        std::string mended;
        std::string_view key;
    } rows[] = {
        {squadOf("\t\t<weapon><type>WEAPON_RIFLE_K98</type></weapon>\r\n" + RoundsLine),
         squadOf(RifleLine + RoundsLine), finding_key::UnknownWeapon},
        {squadOf("\t\t<weapon><type>weapon_rifle_k98k</type></weapon>\r\n" + RoundsLine),
         squadOf(RifleLine + RoundsLine), ck::WeaponCase},
        {squadOf("\t\t<night_vision>Yes</night_vision>\r\n" + RifleLine + RoundsLine),
         squadOf("\t\t<night_vision>yes</night_vision>\r\n" + RifleLine + RoundsLine), ck::BadFlag},
        {squadOf(RifleLine + "\t\t<amo><for>WEAPON_RIFLE_K98K</for><rounds>60</rounds></amo>\r\n"),
         squadOf(RifleLine + RoundsLine), finding_key::UnknownElement},
        {squadOf(RifleLine + "\t\t<ammo><for>WEAPON_RIFLE_K98K</for><rounds>60</round></ammo>\r\n"),
         squadOf(RifleLine + RoundsLine), ck::StrayClosingTag},
        {squadOf(RifleLine), squadOf(RifleLine + RoundsLine), ck::WeaponWithoutAmmo},
    };
    for (const auto& row : rows) {
        folder.write(SquadFile, row.broken);
        look();
        const std::vector<Problem> problems = squadProblems(row.key);
        ASSERT_EQ(problems.size(), 1U) << row.key;
        EXPECT_NE(fixName(book, problems[0]), "") << row.key;
        EXPECT_EQ(fixProblems(book, workspace, problems).fixed, 1U) << row.key;
        EXPECT_EQ(fileText(SquadFile), row.mended) << row.key;
        EXPECT_TRUE(squadProblems(row.key).empty()) << row.key;
        undoLast(workspace);
        EXPECT_EQ(fileText(SquadFile), row.broken) << row.key;
        workspace.fileSteps.clear();
    }
    EXPECT_FALSE(files("Game\\Backups\\Data\\Infantry\\German Squad").empty());
}

/// The squad with these points in the place of its own.
std::string squadFrom(std::string_view points) {
    std::string text = squadOf(RifleLine + RoundsLine);
    const std::string own = "\t\t<data><month>1</month><year>1940</year><number>9</number></data>\r\n";
    return text.replace(text.find(own), own.size(), points);
}

TEST_F(ProblemsTest, PointsOfAvailabilityAreSortedWhereNoDateStandsTwice) {
    const std::string first =
        "\t\t<data><month>5</month><year>1940</year><number>1</number></data> // the first\r\n";
    const std::string second = "\t\t<data><month>1</month><year>1941</year><number>2</number></data>\r\n";
    const std::string third = "\t\t<data><year>1942</year><month>1</month><number>3</number></data>\r\n";
    const struct {
        std::string broken;
        std::size_t problems;
        std::string mended;
    } rows[] = {{third + second + first, 2, first + second + third},
                {second + first + third, 1, first + second + third},
                {second + first + second, 1, {}}};
    for (const auto& row : rows) {
        folder.write(SquadFile, squadFrom(row.broken));
        look();
        const std::vector<Problem> problems = squadProblems(ck::AvailabilityOrder);
        EXPECT_EQ(problems.size(), row.problems) << row.broken;
        EXPECT_EQ(fixProblems(book, workspace, problems).fixed, row.mended.empty() ? 0 : row.problems);
        EXPECT_EQ(fileText(SquadFile), squadFrom(row.mended.empty() ? row.broken : row.mended));
    }
}

TEST_F(ProblemsTest, WhatHasSeveralAnswersIsNotFixed) {
    folder.write("Game\\Data\\Weapons\\WEAPON_RIFLE_K98A.txt",
                 weaponFileText(newWeapon("WEAPON_RIFLE_K98A")));
    folder.write(SquadFile, squadOf("\t\t<weapon><type>WEAPON_RIFLE_K98X</type></weapon>\r\n" + RoundsLine));
    look();
    const std::vector<Problem> problems = squadProblems(finding_key::UnknownWeapon);
    ASSERT_EQ(problems.size(), 1U);
    EXPECT_EQ(fixName(book, problems[0]), "");
    EXPECT_EQ(fixProblems(book, workspace, problems).fixed, 0U);
}

TEST_F(ProblemsTest, FixesOfOneKindAreOneStepAndTheOpenRecordHasItsOwn) {
    const std::string broken = squadOf("\t\t<weapon><type>WEAPON_RIFLE_K98</type></weapon>\r\n" + RoundsLine);
    const std::string other = "Game\\Data\\Infantry\\German Others.txt";
    const std::string third = "Game\\Data\\Infantry\\German Third.txt";
    for (const std::string& path : {SquadFile, other, third}) {
        folder.write(path, broken);
    }
    showFile(workspace, Category::Infantry, "German Squad");
    look();
    const std::vector<Problem> all = problemsIn(book, workspace, {});
    const std::vector<Problem> one = squadProblems(finding_key::UnknownWeapon);
    ASSERT_EQ(one.size(), 1U);
    const FixResult result = fixProblems(book, workspace, fixableLike(book, all, one[0]));
    EXPECT_EQ(result.fixed, 3U);
    EXPECT_EQ(result.inMemory, 1U);
    EXPECT_EQ(fileText(SquadFile), broken);
    EXPECT_TRUE(workspace.open.isModified());
    EXPECT_EQ(fileText(other), squadOf(RifleLine + RoundsLine));
    EXPECT_TRUE(squadProblems(finding_key::UnknownWeapon).empty());
    EXPECT_EQ(lastStepName(workspace), "Fix 3 problems");
    undoLast(workspace);
    EXPECT_EQ(fileText(other), broken);
    EXPECT_EQ(fileText(third), broken);
    undoLast(workspace);
    EXPECT_FALSE(workspace.open.isModified());
    EXPECT_TRUE(checkRecordAgain(book, workspace, workspace.open));
    EXPECT_EQ(squadProblems(finding_key::UnknownWeapon).size(), 1U);
}

TEST_F(ProblemsTest, AFileThatWasChangedSinceStaysAsItIs) {
    folder.write(SquadFile, squadOf("\t\t<weapon><type>WEAPON_RIFLE_K98</type></weapon>\r\n" + RoundsLine));
    look();
    ASSERT_EQ(fixProblems(book, workspace, squadProblems(finding_key::UnknownWeapon)).fixed, 1U);
    const std::string newer = squadOf(RifleLine + RoundsLine + "// newer\r\n");
    folder.write(SquadFile, newer);
    undoLast(workspace);
    EXPECT_EQ(fileText(SquadFile), newer);
    EXPECT_EQ(captions().back(), "Couldn't undo: Fix unknown-weapon");
}

TEST_F(ProblemsTest, TheListShowsWhatItsViewHas) {
    folder.write(SquadFile, squadOf("\t\t<weapon><type>WEAPON_RIFLE_K98</type></weapon>\r\n"));
    look();
    showFile(workspace, Category::Infantry, "German Squad");
    const std::vector<Problem> open =
        problemsIn(book, workspace, {.scope = ProblemScope::OpenRecord, .showsNotes = false});
    ASSERT_FALSE(open.empty());
    for (const Problem& problem : open) {
        EXPECT_EQ(problem.name, "German Squad");
    }
    EXPECT_TRUE(problemCounts(open).starts_with("1 error")) << problemCounts(open);
    const std::vector<Problem> all =
        problemsIn(book, workspace, {.sortedBy = ProblemColumn::Severity, .isDescending = true});
    EXPECT_GT(all.size(), open.size());
    EXPECT_GE(problemsIn(book, workspace, {.sortedBy = ProblemColumn::Severity}).front().finding.severity,
              all.front().finding.severity);
    EXPECT_NE(problemsAsText(open).find("error\tInfantry: German Squad\t14\tman[1].weapon[1]\t"),
              std::string::npos)
        << problemsAsText(open);
    EXPECT_EQ(problemCounts({}), "No problems");
    EXPECT_EQ(severityToMark(book, Category::Infantry, "german squad"), Severity::Error);
    EXPECT_EQ(placeOf(open, open.back(), 0), open.size() - 1);
    EXPECT_EQ(placeOf({}, open.back(), 0), std::nullopt);
}

TEST_F(ProblemsTest, ASearchBesideTheWindowEndsOrIsEnded) {
    BackgroundCheck search;
    search.start(gameFolders(workspace));
    search.start(gameFolders(workspace));
    std::unique_ptr<FolderCheck> check;
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    while (check == nullptr && std::chrono::steady_clock::now() < end) {
        check = search.take();
        std::this_thread::yield();
    }
    ASSERT_NE(check, nullptr);
    EXPECT_TRUE(check->isDone());
    EXPECT_FALSE(search.isRunning());
    search.start(gameFolders(workspace));
    search.cancel();
    EXPECT_FALSE(search.isRunning());
    EXPECT_EQ(search.take(), nullptr);
}

TEST(FieldTargets, LeadFromAPathToTheEntryAndTheField) {
    SquadRecord unit = newUnit(Category::Vehicles, "T", "NATIONALITY_GERMAN");
    ComponentRecord& turret = unit.vehicle->components.emplace_back();
    turret.kind = ComponentKind::Turret;
    turret.weapons.resize(2);
    turret.ammo.resize(3);
    turret.crew.resize(2);
    turret.crew[1].weapons.resize(1);
    turret.crew[1].ammo.resize(2);
    unit.availability.resize(4);
    const std::size_t place = unit.vehicle->components.size() - 1;
    const std::string path = "vehicle.turret[1].";
    const struct {
        std::string path;
        UnitPart part;
        FieldId field;
        PartKind carried = PartKind::None;
        std::size_t carriedIndex = 0;
    } rows[] = {
        {path + "rotate_time", {PartKind::Component, place, 0}, &field::RotateTime},
        {path + "armour.mantlet", {PartKind::Armour, place, 0}, &field::Mantlet},
        {path + "armour.upper_front", {PartKind::Armour, place, 0}, &field::UpperFront},
        {path + "weapon[2].type", {PartKind::Weapon, place, 1}, &field::MountedType},
        {path + "ammo[3].rounds", {PartKind::Ammunition, place, 2}, &field::Rounds},
        {path + "man[2].job", {PartKind::CrewMan, place, 1}, &field::Job},
        {path + "man[2].weapon[1]", {PartKind::CrewMan, place, 1}, &field::PersonalWeapons, PartKind::Weapon},
        {path + "man[2].ammo[2].for",
         {PartKind::CrewMan, place, 1},
         &field::AmmoFor,
         PartKind::Ammunition,
         1},
        {"availability[3].year", {PartKind::Availability, 0, 2}, &field::Year},
        {"vehicle.weight", {PartKind::Details}, &field::Weight},
        {"long_name", {PartKind::Details}, &field::LongName},
        {"nothing", {PartKind::Details}, nullptr},
    };
    for (const auto& row : rows) {
        const FieldTarget target = targetOfField(unit, row.path);
        EXPECT_EQ(target.part, row.part) << row.path;
        EXPECT_EQ(target.focus.field, row.field) << row.path;
        EXPECT_EQ(target.focus.carried, row.carried) << row.path;
        EXPECT_EQ(target.focus.carriedIndex, row.carriedIndex) << row.path;
    }
}

TEST(FieldTargets, AnElementOfTheTextHasThePathOfItsPlace) {
    const std::string content = squadOf(RifleLine + RoundsLine);
    EXPECT_EQ(pathOfFinding(Category::Infantry, content,
                            {.key = ck::NotANumber, .line = 15, .column = 45, .field = "rounds"}),
              "man[1].ammo[1].rounds");
    EXPECT_EQ(pathOfFinding(Category::Infantry, content,
                            {.key = ck::MissingElement, .line = 12, .column = 2, .field = "job"}),
              "man[1].job");
    EXPECT_EQ(pathOfFinding(Category::Infantry, content, {.line = 1, .column = 1, .field = "type"}), "type");
    EXPECT_EQ(pathOfFinding(Category::Infantry, content, {.field = "man[1].job"}), "man[1].job");
}

} // namespace
} // namespace varrocade::tests
