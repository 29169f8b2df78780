#include "data/finding_text.h"
#include "test_support.h"
#include "weapons/weapon_catalogue.h"

#include <algorithm>
#include <filesystem>

#include <gtest/gtest.h>

namespace varrocade::tests {

namespace {

/// A weapon file, of a cannon of 75 mm where nothing else is said.
struct WeaponText {
    std::string_view name;
    std::string_view type = "WEAPON_CANNON";
    std::string_view calibre = "75";
    std::string_view barrelLength = "3000";
    std::string_view countries = {};
    std::string_view period = {};
};

std::string textOf(const WeaponText& weapon) {
    const auto element = [](const std::string& name, std::string_view value) {
        return "<" + name + ">" + std::string(value) + "</" + name + ">";
    };
    return "<weapon>" + element("name", weapon.name) + element("type", weapon.type) + "<dimensions>" +
           element("calibre", weapon.calibre) + element("barrel_length", weapon.barrelLength) +
           "</dimensions><usage>" + element("period", weapon.period) +
           element("countries", weapon.countries) + "</usage></weapon>";
}

/// A program folder and a mod folder, and the catalogue over both.
class WeaponCatalogueTest : public ::testing::Test {
protected:
    static std::string below(std::string_view fileName) {
        return "Data\\Weapons\\" + std::string(fileName) + ".txt";
    }
    void inProgram(std::string_view fileName, const WeaponText& weapon) {
        program.write(below(fileName), textOf(weapon));
    }
    void inMod(std::string_view fileName, const WeaponText& weapon) {
        mod.write(below(fileName), textOf(weapon));
    }
    void load() { catalogue.load(program.path(), mod.path()); }

    std::vector<std::string> names() const {
        std::vector<std::string> found;
        for (const CatalogueEntry& entry : catalogue.entries()) {
            found.push_back(entry.holdsWeapon ? entry.weapon.name : "no weapon: " + entry.weapon.fileName);
        }
        return found;
    }
    std::vector<std::string> select(const WeaponFilter& filter) const {
        std::vector<std::string> found;
        for (const WeaponRecord* weapon : catalogue.select(filter)) {
            found.push_back(weapon->name);
        }
        return found;
    }
    std::vector<std::string> problemPaths() const {
        std::vector<std::string> paths;
        for (const Finding& problem : catalogue.problems()) {
            EXPECT_FALSE(problem.message.empty()) << problem.file;
            paths.push_back(problem.file);
        }
        return paths;
    }

    TemporaryFolder program;
    TemporaryFolder mod;
    WeaponCatalogue catalogue;
};

using WeaponNames = std::vector<std::string>;

} // namespace

TEST_F(WeaponCatalogueTest, SortsForPeople) {
    inProgram("a", {.name = "WEAPON_120", .calibre = "120"});
    inProgram("b", {.name = "WEAPON_75_LONG", .barrelLength = "5250"});
    inProgram("c", {.name = "WEAPON_75_B"});
    inProgram("d", {.name = "weapon_75_a"});
    inProgram("e", {.name = "WEAPON_75_A_2"});
    inProgram("f", {.name = "WEAPON_792", .calibre = "7.92"});
    inMod("g", {.name = "WEAPON_75_SHORT", .barrelLength = "1000"});
    load();
    EXPECT_EQ(names(), (WeaponNames{"WEAPON_792", "WEAPON_75_SHORT", "weapon_75_a", "WEAPON_75_A_2",
                                    "WEAPON_75_B", "WEAPON_75_LONG", "WEAPON_120"}));
    EXPECT_TRUE(catalogue.problems().empty());
}

TEST_F(WeaponCatalogueTest, PrefersTheModsFiles) {
    inProgram("WEAPON_A", {.name = "program's A"});
    inProgram("WEAPON_B", {.name = "program's B"});
    inProgram("WEAPON B", {.name = "program's other B"});
    inMod("weapon_a", {.name = "mod's A"});
    inMod("WEAPON_C", {.name = "mod's C"});
    load();
    EXPECT_EQ(names(), (WeaponNames{"mod's A", "mod's C", "program's B", "program's other B"}));
    EXPECT_EQ(catalogue.entries().front().path, mod.path() + below("weapon_a"));
    catalogue.load(program.path());
    EXPECT_EQ(names(), (WeaponNames{"program's A", "program's B", "program's other B"}))
        << "out of the mod again";
}

TEST_F(WeaponCatalogueTest, FindsByFileNameBeforeName) {
    inProgram("WEAPON_X", {.name = "WEAPON_Y"});
    inProgram("WEAPON_Y", {.name = "WEAPON_Y", .calibre = "88"});
    inProgram("copy", {.name = "WEAPON_Z"});
    load();
    for (const auto& [name, file] : {std::pair("WEAPON_Y", "WEAPON_Y"),
                                     {"weapon_x", "WEAPON_X"},
                                     {"Weapon_Z", "copy"},
                                     {"WEAPON", "none"},
                                     {"", "none"}}) {
        const WeaponRecord* weapon = catalogue.find(name);
        EXPECT_EQ(weapon == nullptr ? "none" : weapon->fileName, file) << name;
    }
}

TEST_F(WeaponCatalogueTest, ListsByTypeNationalityAndPeriod) {
    inProgram("1", {.name = "all", .calibre = "1"});
    inProgram("2", {"german", "WEAPON_HMG", "2", "", "German", "WW2"});
    inProgram("3", {"korean", "", "3", "", "Chinese, North Korean", "Cold War,Modern"});
    inProgram("4", {"finnish", "", "4", "", "NATIONALITY_FINNISH\t,Swedish", "ww2, Cold War"});
    inProgram("5", {"blanks", "", "5", "", " , ,", ","});
    load();
    struct Case {
        std::string_view nationality;
        std::string_view period;
        WeaponNames others; ///< between the two that are everybody's
    };
    const std::vector<Case> cases = {{"", "", {"german", "korean", "finnish"}},
                                     {"NATIONALITY_GERMAN", "", {"german"}},
                                     {"NATIONALITY_NORTH_KOREAN", "", {"korean"}},
                                     {"north korean", "", {"korean"}},
                                     {"NATIONALITY_FINNISH", "", {"finnish"}},
                                     {"NATIONALITY_FINLAND", "", {"finnish"}},
                                     {"NATIONALITY_SOUTH_KOREAN", "", {}},
                                     {"KOREAN", "", {}},
                                     {"", "WW2", {"german", "finnish"}},
                                     {"", "Cold War", {"korean", "finnish"}},
                                     {"", "War", {}},
                                     {"NATIONALITY_GERMAN", "Modern", {}},
                                     {"NATIONALITY_GERMAN", "WW2", {"german"}}};
    for (const Case& c : cases) {
        WeaponNames expected = c.others;
        expected.insert(expected.begin(), "all");
        expected.emplace_back("blanks");
        EXPECT_EQ(select({.nationality = c.nationality, .period = c.period}), expected)
            << c.nationality << ", " << c.period;
    }
    const std::vector<WeaponType> machineGuns = {WeaponType::Lmg, WeaponType::Hmg};
    EXPECT_EQ(select({.types = machineGuns}), WeaponNames{"german"});
    EXPECT_EQ(select({.types = machineGuns, .nationality = "NATIONALITY_FRENCH"}), WeaponNames{});
}

TEST_F(WeaponCatalogueTest, GoesOnPastBadFiles) {
    inProgram("good", {.name = "good"});
    inProgram("shadowed", {.name = "program's"});
    program.write(below("empty"), "");
    program.write(below("picture"), std::string_view("\x89PNG\r\n\x1A\n\0\0\0\rIHDR", 16));
    program.write(below("strange"), textOf({.name = "strange", .type = "WEAPON_SLINGSHOT"}));
    program.write("Data\\Weapons\\folder.txt\\inner.txt", "");
    mod.write(below("shadowed"), "<weapon><name>cut off");
    mod.write(below("Picture"), "also none");
    load();
    EXPECT_EQ(names(),
              (WeaponNames{"good", "program's", "strange", "no weapon: empty", "no weapon: Picture"}));
    EXPECT_EQ(select({}), (WeaponNames{"good", "program's", "strange"})) << "a unit cannot have them";
    EXPECT_EQ(catalogue.find("empty"), nullptr);
    EXPECT_EQ(problemPaths(), (WeaponNames{program.path() + below("empty"), mod.path() + below("Picture"),
                                           mod.path() + below("shadowed"), program.path() + below("strange"),
                                           program.path() + below("picture")}));
    EXPECT_EQ(sentence(catalogue.problemsOf(program.path() + below("strange")).front()),
              "Line 1: \"WEAPON_SLINGSHOT\" is not a weapon type.");
    EXPECT_EQ(catalogue.problemsOf(program.path() + below("empty")).at(0).message, "holds no weapon");
}

TEST_F(WeaponCatalogueTest, ListsFilesThatCannotBeOpened) {
    inProgram("good", {.name = "good"});
    std::error_code error;
    std::filesystem::create_symlink("missing", program.nativePath(below("dangling")), error);
    if (error) {
        GTEST_SKIP() << "no symbolic links here";
    }
    load();
    EXPECT_EQ(names(), (WeaponNames{"good", "no weapon: dangling"}));
    EXPECT_EQ(problemPaths(), WeaponNames{program.path() + below("dangling")});
}

TEST_F(WeaponCatalogueTest, NeedsTheProgramsFolderOnly) {
    load();
    EXPECT_EQ(problemPaths(), WeaponNames{program.path() + "Data\\Weapons\\"});
    inProgram("a", {.name = "a"});
    load();
    EXPECT_EQ(names(), WeaponNames{"a"});
    EXPECT_TRUE(catalogue.problems().empty()) << "a mod may have no weapons";
    EXPECT_EQ(catalogue.find("b"), nullptr);
}

TEST_F(WeaponCatalogueTest, FollowsWhatIsSavedCreatedAndDeleted) {
    inProgram("a", {.name = "program's a", .calibre = "50"});
    inProgram("b", {.name = "b", .calibre = "75"});
    load();
    inProgram("b", {.name = "b", .calibre = "37"});
    catalogue.refresh("b");
    EXPECT_EQ(names(), (WeaponNames{"b", "program's a"})) << "saved with another calibre";
    inMod("A", {.name = "mod's a", .calibre = "20"});
    catalogue.refresh("A");
    EXPECT_EQ(names(), (WeaponNames{"mod's a", "b"})) << "created in the mod";
    mod.write(below("A"), "");
    catalogue.refresh("a");
    EXPECT_EQ(names(), (WeaponNames{"b", "program's a"}));
    EXPECT_EQ(problemPaths(), WeaponNames{mod.path() + below("A")}) << "spoilt in the mod";
    std::filesystem::remove(mod.nativePath(below("A")));
    catalogue.refresh("A");
    EXPECT_EQ(names(), (WeaponNames{"b", "program's a"}));
    EXPECT_TRUE(catalogue.problems().empty()) << "deleted in the mod";
    std::filesystem::remove(program.nativePath(below("a")));
    catalogue.refresh("a");
    EXPECT_EQ(names(), WeaponNames{"b"}) << "deleted in the program";
    std::filesystem::rename(program.nativePath(below("b")), program.nativePath(below("c")));
    catalogue.refresh("b");
    catalogue.refresh("c");
    ASSERT_EQ(names(), WeaponNames{"b"}) << "the name inside stays";
    EXPECT_EQ(catalogue.entries().front().weapon.fileName, "c");
    EXPECT_EQ(catalogue.entries().front().path, program.path() + below("c"));
}

} // namespace varrocade::tests
