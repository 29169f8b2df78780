// What new mods begin with, and what a mod changes of its game.

#include "app/workspace/mod/change_rows.h"
#include "data/format/texts.h"
#include "data/unit/enumerations.h"
#include "mod/changes/changes_text.h"
#include "mod/changes/revert.h"
#include "mod/equipment_lists.h"
#include "mod/mod_settings.h"
#include "mod/starting_points.h"
#include "test_support.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <set>

namespace varrocade::tests {
namespace {

/// Every letter of several bytes in UTF-8 has such a byte; in 8 bits no letter of the surnames is one.
bool isOfUtf8(char byte) {
    return static_cast<unsigned char>(byte) >= 0x80 && static_cast<unsigned char>(byte) < 0xC0;
}

TEST(StartingPoints, KnowWhoFoughtAndWithWhom) {
    for (std::size_t i = 0; i < startingPointNames().size(); ++i) {
        const ModSettings settings = startingSettings(static_cast<StartingPoint>(i));
        EXPECT_EQ(readModSettings(modSettingsText(settings)), settings) << startingPointNames()[i];
        std::set<std::string> ids;
        for (const ModNationality& nation : settings.nationalities) {
            const auto names = nationalityNames();
            EXPECT_TRUE(std::find(names.begin(), names.end(), nation.id) != names.end()) << nation.id;
            EXPECT_TRUE(ids.insert(nation.id).second) << nation.id;
            EXPECT_FALSE(nation.name.empty() || nation.adjective.empty()) << nation.id;
            std::set<std::string> surnames;
            std::int32_t before = 1000; // of the first name, or more than its class
            for (const ModSurname& surname : nation.surnames) {
                EXPECT_TRUE(surnames.insert(loweredText(surname.name)).second) << nation.id << surname.name;
                EXPECT_LE(surname.commonness, before) << nation.id << ' ' << surname.name;
                EXPECT_TRUE(std::none_of(surname.name.begin(), surname.name.end(), isOfUtf8)) << surname.name;
                before = surname.commonness;
            }
            EXPECT_GE(surnames.size(), i == 0 ? 100U : 40U) << nation.id;
            EXPECT_GE(nation.ranks.size(), 14U) << nation.id;
            EXPECT_EQ(nation.uniforms.empty(), findNationalUniform(nation.id) == nullptr) << nation.id;
        }
    }
    const ModSettings war = startingSettings(StartingPoint::SecondWorldWar);
    EXPECT_EQ(war.firstYear * 100 + war.firstMonth, 193909);
    EXPECT_EQ(war.lastYear * 100 + war.lastMonth, 194509);
    EXPECT_EQ(war.nationalities.front().ranks.front().name, "Sch\xFCtze");
    EXPECT_EQ(war.nationalities.front().uniforms.front().gameImage, "uniform_game_german_tank_crew");
}

TEST(Equipment, FollowsAvailability) {
    const std::vector<AvailabilityPoint> points = {{6, 1941, 20}, {1, 1940, 5}, {1, 1943, 0}};
    const auto month = [](int year, int number) { return year * 12 + number - 1; };
    EXPECT_EQ(mostAvailable(points, month(1939, 1), month(1939, 12)), 0);
    EXPECT_EQ(mostAvailable(points, month(1940, 2), month(1941, 5)), 5) << "from before the time";
    EXPECT_EQ(mostAvailable(points, month(1940, 2), month(1941, 6)), 20);
    EXPECT_EQ(mostAvailable(points, month(1943, 1), month(1945, 1)), 0);
    ModSettings settings{.nationalities = {{.id = "NATIONALITY_FRENCH"}, {.id = "NATIONALITY_BELGIAN"}}};
    listEquipment(settings, {{Category::Infantry, "Men", "NATIONALITY_FRENCH", {{1, 1930, 7}}},
                             {Category::Vehicles, "Tank", "NATIONALITY_FRENCH", points}});
    ASSERT_EQ(settings.nationalities[0].equipment.size(), 4U) << "1939, 1940, 1941-1942, 1943-1945";
    const ModEquipment& middle = settings.nationalities[0].equipment[2];
    EXPECT_EQ(middle.name, "1941-1942");
    EXPECT_EQ(middle.units, (std::vector<ModListedUnit>{{"Men", "infantry", 7}, {"Tank", "vehicles", 20}}));
    EXPECT_TRUE(settings.nationalities[1].equipment.empty());
    settings.firstYear = -2000000000;
    settings.lastYear = 2000000000;
    listEquipment(settings, std::vector<EquipmentSource>());
}

/// A copy of some of the sample's files as a mod, changed.
class ModOfSample : public ::testing::Test {
protected:
    static std::string sampleText(const std::string& below) {
        std::string content;
        EXPECT_TRUE(readWholeFile(SampleBase + below, content)) << below;
        return content;
    }
    static std::string with(std::string text, std::string_view from, std::string_view to) {
        const std::size_t at = text.find(from);
        EXPECT_NE(at, std::string::npos) << from;
        return at == std::string::npos ? text : text.replace(at, from.size(), to);
    }

    ModOfSample() {
        const std::string text = sampleText("Data\\Vehicles\\" + tiger + ".txt");
        folder.write("Data\\Vehicles\\" + tiger + ".txt",
                     with(with(text, "<weight>56900<", "<weight>60000<"), "<front>", "// thick\r\n<front>"));
        folder.write("Data\\Vehicles\\German New.txt", text);
        folder.write("Data\\Vehicles\\Russian GAZ-MM.txt", "// none of these\r\n");
        folder.write("Data\\Infantry\\British Rifle Section 1944.txt",
                     sampleText("Data\\Infantry\\British Rifle Section 1944.txt"));
        folder.write("Data\\Weapons\\weapon_smg_mp40.txt",
                     with(sampleText("Data\\Weapons\\WEAPON_SMG_MP40.txt"), "<rof>", "<rof>1"));
    }

    const std::string tiger = "German Panzer VI Tiger Ausf E";
    TemporaryFolder folder;
    BackupKeeper backups;
};

TEST_F(ModOfSample, IsComparedValueByValue) {
    const ModChanges changes = findModChanges(SampleBase, folder.path());
    EXPECT_TRUE(changes.failures.empty());
    EXPECT_EQ(changes.same.size(), 1U);
    ASSERT_EQ(changes.files.size(), 4U);
    EXPECT_EQ(changes.files[0].kind, FileChangeKind::Added);
    ASSERT_EQ(changes.files[1].values.size(), 1U);
    EXPECT_EQ(changes.files[1].values[0], (ValueChange{"vehicle.weight", "Weight", "kg", "56900", "60000"}));
    EXPECT_EQ(changes.files[2].kind, FileChangeKind::Removed);
    EXPECT_EQ(changes.files[3].values.size(), 1U);
    const std::string text = changesText(changes, ChangesFormat::Plain, "M");
    EXPECT_TRUE(text.starts_with("M: 1 added, 2 changed, 1 removed\n\nVehicles\n  added: German New\n"))
        << text;
    EXPECT_NE(text.find("    vehicle.weight: 56900 kg -> 60000 kg\n"), std::string::npos) << text;
    const std::string page = changesText(changes, ChangesFormat::Markdown, "M");
    EXPECT_NE(page.find("| Weight | `vehicle.weight` | 56900 kg | 60000 kg |\n"), std::string::npos) << page;
    EXPECT_NE(page.find("### weapon\\_smg\\_mp40 (changed)"), std::string::npos) << page;
}

TEST_F(ModOfSample, GoesBackByValueAndByFile) {
    const RevertFolders folders{SampleBase, folder.path()};
    FileOperations& files = systemFiles();
    EXPECT_FALSE(revertValueInFile(files, backups, folders, Category::Vehicles, tiger, "vehicle.weight"));
    EXPECT_TRUE(
        revertValueInFile(files, backups, folders, Category::Vehicles, tiger, "vehicle.turret[9].AA"));
    EXPECT_FALSE(revertFile(files, backups, folder.path(), Category::Vehicles, "German New"));
    EXPECT_FALSE(revertFile(files, backups, folder.path(), Category::Vehicles, "Russian GAZ-MM"));
    EXPECT_FALSE(revertValueInFile(files, backups, folders, Category::Weapons, "weapon_smg_mp40", "rof"));
    EXPECT_TRUE(findModChanges(SampleBase, folder.path()).files.empty()) << "not even in its layout";
    const std::vector<std::string> all = folder.files();
    EXPECT_EQ(
        std::count_if(all.begin(), all.end(),
                      [](const std::string& path) { return path.find("Backups") != std::string::npos; }),
        4);
}

TEST_F(ModOfSample, IsATableOfWhichRowsGoBack) {
    const ModChanges changes = findModChanges(SampleBase, folder.path());
    EXPECT_EQ(changesSummary(changes), "1 added, 2 changed, 1 removed; 1 file as the game has them");
    const std::vector<ChangeRow> rows = changeRows(changes, "");
    using Cells = std::array<std::string, 3>;
    ASSERT_EQ(rows.size(), 6U) << "four files, two of them with a value";
    EXPECT_EQ(rows[0].cells, (Cells{"Vehicles: German New", "(none)", "added"}));
    EXPECT_EQ(rows[1].cells[2], "1 value changed");
    EXPECT_EQ(rows[2].cells, (Cells{"        Weight   (vehicle.weight)", "56900 kg", "60000 kg"}));
    EXPECT_EQ(rows[3].cells, (Cells{"Vehicles: Russian GAZ-MM", "(there)", "taken out"}));
    EXPECT_EQ(changeRows(changes, "tiger").size(), 2U);
    const auto wanted = [&](const std::vector<std::size_t>& chosen, bool areFiles) {
        std::string text;
        for (const WantedRevert& one : wantedReverts(changes, rows, chosen, areFiles)) {
            text += one.file->name.substr(0, 8) + (one.value != nullptr ? "." + one.value->path : "") + " ";
        }
        return text;
    };
    EXPECT_EQ(wanted({0, 2, 5}, false), "German N German P.vehicle.weight weapon_s.rof ");
    EXPECT_EQ(wanted({1, 2}, false), "German P ") << "a value goes with its file";
    EXPECT_EQ(wanted({2, 5}, true), "German P weapon_s ");
}

TEST(ModChanges, EntriesOfOneSideAreShown) {
    SquadRecord game;
    SquadRecord mod;
    mod.availability = {{1, 1940, 5}};
    const std::vector<ValueChange> changes = changedValues(game, mod);
    ASSERT_EQ(changes.size(), 3U);
    EXPECT_EQ(changes[0].path, "availability[1].month");
    EXPECT_EQ(shownValue(changes[0].game, ""), "-");
    EXPECT_EQ(changedValues(mod, game).size(), 3U);
    EXPECT_TRUE(revertValue(mod, game, "availability[1].year"));
    EXPECT_EQ(mod, game);
}

} // namespace
} // namespace varrocade::tests
