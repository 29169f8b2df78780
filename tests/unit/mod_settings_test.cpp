// Mod.txt: reading and writing it, and changing one that people wrote.

#include "mod/mod_settings.h"

#include "mod/mod_text_edit.h"
#include "test_support.h"

#include <gtest/gtest.h>

#include <functional>

namespace varrocade::tests {
namespace {

ModSettings fullSettings() {
    ModSettings settings{.name = "Desert",
                         .author = "Someone",
                         .version = "1.2",
                         .comment = "Sand",
                         .firstYear = 1940,
                         .firstMonth = 6,
                         .lastYear = 1943,
                         .lastMonth = 5,
                         .credits = {"One", "", "Two"}};
    settings.colours.enemy = {1, 2, 255};
    ModNationality& nation = settings.nationalities.emplace_back();
    nation = {.id = "NATIONALITY_ITALIAN",
              .name = "Italy",
              .adjective = "Italian",
              .flag = "italian",
              .animatedFlag = "waving",
              .allegiances = {{"SIDE_FIRST", {1940, 6, 1943, 9}}, {"SIDE_SECOND", {1943, 10, 0, 12}}},
              .surnames = {{"Rossi", 10}, {"Bianchi", 1}},
              .uniforms = {{"p", "g", "r", {1941, 2, 0, 12}}},
              .ranks = {{"Soldato", "ranks"}, {"Generale", ""}}};
    nation.equipment = {{"Ariete", {1942, 1, 1942, 11}, {{"Italian Carro M13-40", "vehicles", 3, 120}}}};
    settings.nationalities.push_back({.id = "NATIONALITY_GERMAN"});
    return settings;
}

TEST(ModSettings, ReadsWhatItWrote) {
    EXPECT_EQ(readModSettings(modSettingsText(fullSettings())), fullSettings());
    EXPECT_EQ(readModSettings(modSettingsText({})), ModSettings());
    EXPECT_EQ(readModSettings(""), ModSettings());
    const ModSettings old =
        readModSettings("<mod><name>N</name><comment>C</comment><years><first>1914</first>"
                        "<last>1918</last></years></mod>");
    EXPECT_EQ(old, (ModSettings{.name = "N", .comment = "C", .firstYear = 1914, .lastYear = 1918}));
}

TEST(ModSettings, IsReadLeniently) {
    const ModSettings settings = readModSettings(
        "<mod><mine><years><first>1</first></years><name>inner</name></mine>"
        "<colours><enemy>300,-7;x</enemy></colours>"
        "<nationality><unit><file>lost</file></unit><surname><name>lost</name></surname></nationality>"
        "<surnames><surname><name>lost</name></surname></surnames></mod>"
        "<years><last>2</last></years>");
    EXPECT_EQ(settings.firstYear, 1939);
    EXPECT_EQ(settings.lastYear, 1945);
    EXPECT_EQ(settings.name, "New Mod");
    EXPECT_EQ(settings.colours.enemy, (Rgb{255, 7, 0}));
    ASSERT_EQ(settings.nationalities.size(), 1U);
    EXPECT_EQ(settings.nationalities[0], ModNationality());
}

// What people write: comments at every place, elements of their own, two values on a line, other line ends.
constexpr std::string_view HandWritten = "// My mod\n"
                                         "<mod> // begins\n"
                                         "  <name>Old // not new\n"
                                         "    name</name>\n"
                                         "  <homepage>www</homepage><author>Me</author>\n"
                                         "  <years><first>1939</first></years>\n"
                                         "  <nationality>\n"
                                         "    <id>NATIONALITY_GERMAN</id>\n"
                                         "    <surnames> // theirs\n"
                                         "      <surname><name>A</name></surname> // first\n"
                                         "      <surname><name>B</name><mine>x</mine></surname>\n"
                                         "      // before the third\n"
                                         "      <surname><name>C</name></surname>\n"
                                         "    </surnames>\n"
                                         "  </nationality>\n"
                                         "  // ---- the other\n"
                                         "  <nationality><id>NATIONALITY_POLISH</id></nationality> // !\n"
                                         "</mod>\n"
                                         "// ends";

struct EditCase {
    const char* what;
    std::function<void(ModSettings&)> change;
    std::string_view from;
    std::string_view to;
};

TEST(ModSettings, AChangeTouchesItsOwnElementAlone) {
    const EditCase cases[] = {
        {"nothing", [](ModSettings&) {}, "", ""},
        {"a text with a comment in it", [](ModSettings& mod) { mod.name = "New"; },
         "Old // not new\n    name</name>", "New // not new\n    </name>"},
        {"a default that is written", [](ModSettings& mod) { mod.firstYear = 1940; }, "1939", "1940"},
        {"a value beside another element", [](ModSettings& mod) { mod.author.clear(); },
         "<author>Me</author>", ""},
        {"a value that was not there", [](ModSettings& mod) { mod.version = "2"; }, "<author>Me</author>",
         "<author>Me</author>\n  <version>2</version>"},
        {"a group that was not there", [](ModSettings& mod) { mod.credits = {"x"}; }, "</first></years>",
         "</first></years>\n  <credits>\n  \t<line>x</line>\n  </credits>"},
        {"one line", [](ModSettings& mod) { mod.lastYear = 1944; }, "</first>", "</first><last>1944</last>"},
        {"a value of an entry", [](ModSettings& mod) { mod.nationalities[0].surnames[1].commonness = 5; },
         "<name>B</name>", "<name>B</name><commonness>5</commonness>"},
        {"an entry's name", [](ModSettings& mod) { mod.nationalities[0].surnames[1].name = "X"; },
         "<name>B</name>", "<name>X</name>"},
        {"an entry that goes", [](ModSettings& mod) { mod.nationalities[0].surnames.pop_back(); },
         "      <surname><name>C</name></surname>\n", ""},
        {"an entry that goes from its comment",
         [](ModSettings& mod) { mod.nationalities[0].surnames.erase(mod.nationalities[0].surnames.begin()); },
         "<surname><name>A</name></surname> // first", " // first"},
        {"an entry that comes",
         [](ModSettings& mod) {
             mod.nationalities[0].surnames.insert(mod.nationalities[0].surnames.begin() + 1, {"N", 2});
         },
         "// first\n", "// first\n      <surname><name>N</name><commonness>2</commonness></surname>\n"},
    };
    for (const EditCase& one : cases) {
        ModSettings settings = readModSettings(HandWritten);
        one.change(settings);
        std::string expected(HandWritten);
        expected.replace(expected.find(one.from), one.from.size(), one.to);
        EXPECT_EQ(editedModText(HandWritten, settings), expected) << one.what;
        EXPECT_EQ(readModSettings(expected), settings) << one.what;
    }
}

TEST(ModSettings, WhatMovesTakesItsTextAlong) {
    ModSettings settings = readModSettings(HandWritten);
    std::swap(settings.nationalities[0], settings.nationalities[1]);
    settings.nationalities[0].name = "Poland";
    settings.nationalities[1].surnames[2].name = "D";
    const std::string text = editedModText(HandWritten, settings);
    EXPECT_EQ(readModSettings(text), settings);
    for (const char* kept : {"  // ---- the other\n  <nationality><id>NATIONALITY_POLISH</id>",
                             "</nationality> // !", "<mine>x</mine>", "// before the third", "// theirs"}) {
        EXPECT_NE(text.find(kept), std::string::npos) << kept << "\n" << text;
    }
}

TEST(ModSettings, EveryChangeOfEveryFileIsRead) {
    const std::string hostile[] = {
        "",
        "free text\nof somebody\r\nwho knows no tags",
        "// only a comment",
        "<other>1</other>",
        "<mod></mod>",
        "<mod><name>a</name>",
        "<mod><credits></credits><years>12</years></mod>",
        "<mod><nationality></nationality><nationality><id></nationality></mod>",
        "<mod><nationality><surnames><surname></surnames></surname><surname></nationality></surname></mod>",
        "<mod><name>1</name><name>2</name></mod><mod><name>3</name><years></years></mod>",
        std::string(HandWritten),
        std::string(600, ' ') + "<mod><name>" + std::string(600, 'x') + "  y</name></mod>",
        modSettingsText(fullSettings()),
        nestedInEachOther(20000),
        repeated("<mod><nationality>", 3000),
        std::string("<mod>\0<name>\xff</name></mod>", 25)};
    for (const std::string& source : hostile) {
        EXPECT_EQ(editedModText(source, readModSettings(source)), source);
        for (const ModSettings& wanted :
             {fullSettings(), ModSettings(), ModSettings{.credits = {"a", "a"}}}) {
            const std::string text = editedModText(source, wanted);
            EXPECT_EQ(readModSettings(text), wanted) << source.substr(0, 80);
            EXPECT_EQ(editedModText(text, wanted), text);
        }
    }
    const std::string text = editedModText(hostile[1], fullSettings());
    EXPECT_NE(text.find("// free text\r\n// of somebody\r\n// who knows"), std::string::npos) << text;
}

TEST(ModSettings, SavingKeepsWhatWasThere) {
    const TemporaryFolder folder;
    BackupKeeper backups;
    folder.write("Mod.txt", HandWritten);
    ModSettings settings = loadModSettings(folder.path()).value_or(ModSettings());
    EXPECT_FALSE(saveModSettings(systemFiles(), backups, folder.path(), settings));
    EXPECT_EQ(folder.files().size(), 1U) << "nothing changed, so nothing is written";
    settings.author = "You";
    EXPECT_FALSE(saveModSettings(systemFiles(), backups, folder.path(), settings));
    EXPECT_EQ(loadModSettings(folder.path()), settings);
    EXPECT_EQ(folder.files().size(), 2U) << "with a backup";
    EXPECT_FALSE(loadModSettings(folder.path() + "None\\"));
    const std::string opened = folder.read("Mod.txt");
    EXPECT_TRUE(systemFiles().remove(folder.path() + "Mod.txt"));
    EXPECT_FALSE(saveModSettings(systemFiles(), backups, folder.path(), settings, opened));
    EXPECT_EQ(folder.read("Mod.txt"), opened) << "gone meanwhile, and back with its comments";
}

TEST(ModSettings, ChangesOfTwoPlacesAreJoined) {
    const ModSettings opened = fullSettings();
    ModSettings theirs = opened;
    ModSettings ours = opened;
    theirs.author = "Them";
    theirs.nationalities.pop_back();
    theirs.lastYear = 1944;
    ours.credits = {"Us"};
    ours.lastYear = 1944;
    ModSettings joined = ours;
    joined.author = theirs.author;
    joined.nationalities = theirs.nationalities;
    std::vector<std::string> conflicts;
    EXPECT_EQ(joinedSettings(opened, theirs, ours, conflicts), joined);
    EXPECT_TRUE(conflicts.empty()) << "the same on both sides is none";
    theirs.name = "Theirs";
    ours.name = joined.name = "Ours";
    EXPECT_EQ(joinedSettings(opened, theirs, ours, conflicts), joined);
    EXPECT_EQ(conflicts, std::vector<std::string>{"Name"});
}

} // namespace
} // namespace varrocade::tests
