// The checks: a planted fault a rule, the sample without a finding, suppressions and reports.

#include "data/unit/enumerations.h"
#include "pictures/png_codec.h"
#include "platform/file_operations.h"
#include "test_support.h"
#include "tools/checks/engine/check_file.h"
#include "tools/checks/engine/check_rules.h"
#include "tools/checks/engine/folder_check.h"
#include "tools/checks/engine/nearest_name.h"
#include "tools/checks/output/check_reports.h"
#include "tools/checks/output/json_text.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace varrocade::tests {
namespace {

const std::string Tank =
    "<squad>\n\t<description>\n\t\t<type>TYPE_TANK</type>\n"
    "\t\t<nationality>NATIONALITY_GERMAN</nationality>\n\t\t<long_name>T</long_name>\n"
    "\t\t<short_name>T</short_name>\n\t</description>\n\t<availability>\n"
    "\t\t<data><month>5</month><year>1940</year><number>5</number></data>\n"
    "\t\t<data><month>6</month><year>1941</year><number>5</number></data>\n"
    "\t</availability>\n\t<vehicle>\n\t\t<attributes><image_profile>P.png</image_profile>\n"
    "\t\t\t<weight>30000</weight>\n\t\t</attributes>\n\t\t<drive><engine><name>E</name>\n"
    "\t\t\t\t<horsepower>400</horsepower><rpm_idle>600</rpm_idle>\n"
    "\t\t\t\t<rpm_limit>2500</rpm_limit>\n\t\t\t</engine><gears></gears>\n"
    "\t\t\t<exhaust_pipe><offsetX>9</offsetX></exhaust_pipe>\n"
    "\t\t\t<steering>STEERING_CLUTCH_AND_BRAKE</steering></drive>\n\t\t<hull>\n"
    "\t\t\t<image_view>Hull.png</image_view>\n"
    "\t\t\t<image_destroyed>Wreck.png</image_destroyed>\n\t\t\t<width>300</width>\n"
    "\t\t\t<length>600</length>\n\t\t\t<height>150</height>\n"
    "\t\t\t<armour><front>60</front><side>40</side><rear>40</rear><top>20</top></armour>\n"
    "\t\t\t<man><job>JOB_DRIVER</job></man>\n\t\t</hull>\n\t\t<turret>\n"
    "\t\t\t<image_view>Gun.png</image_view>\n"
    "\t\t\t<armour><front>60</front><side>40</side><rear>40</rear><top>20</top></armour>\n"
    "\t\t\t<rotate_time>20</rotate_time>\n\t\t\t<diameter>180</diameter>\n"
    "\t\t\t<height>80</height>\n\t\t\t<weapon><type>WEAPON_CANNON_10</type></weapon>\n"
    "\t\t\t<ammo><for>WEAPON_CANNON_10</for><flavour>FLAVOUR_AP</flavour><rounds>9</rounds></ammo>\n"
    "\t\t\t<man><job>JOB_COMMANDER</job></man>\n\t\t</turret>\n\t</vehicle>\n</squad>\n";

const std::string Cannon = "<weapon><name>WEAPON_CANNON_10</name><type>WEAPON_CANNON</type>"
                           "<dimensions><calibre>10</calibre></dimensions><ammo>"
                           "<type><flavour>FLAVOUR_AP</flavour><mass>1</mass></type></ammo></weapon>";

/// The beginning of a PNG file, which is all that tells its size.
std::string png(unsigned width, unsigned height) {
    std::string bytes = "\x89PNG\r\n\x1A\n" + std::string("\0\0\0\rIHDR", 8);
    for (const unsigned side : {width, height}) {
        for (const unsigned shift : {24U, 16U, 8U, 0U}) {
            bytes += static_cast<char>(side >> shift & 0xFFU);
        }
    }
    return bytes;
}

/// A game folder with all that the tank names.
void writeGame(const TemporaryFolder& folder) {
    folder.write("Data\\Vehicles\\German T.txt", Tank);
    folder.write("Data\\Weapons\\WEAPON_CANNON_10.txt", Cannon);
    const std::string pictures = "Images\\Units\\Vehicles\\";
    folder.write(pictures + "Hulls\\Hull.png", png(300, 600));
    folder.write(pictures + "Turrets\\Gun.png", png(90, 300));
    folder.write(pictures + "Destroyed\\Wreck.png", png(300, 600));
    folder.write(pictures + "Destroyed\\Small.png", png(30, 60));
    folder.write(pictures + "Profiles\\P.png", png(9, 9));
}

/// Puts a line in the place of the one that holds a text.
std::string withLine(const std::string& content, std::string_view held, std::string_view line) {
    const std::size_t at = content.find(held);
    EXPECT_NE(at, std::string::npos) << held;
    const std::size_t begin = content.rfind('\n', at) + 1;
    return content.substr(0, begin) + std::string(line) + content.substr(content.find('\n', at));
}

std::string linesOf(const std::vector<Finding>& findings) {
    std::string text;
    for (const Finding& finding : findings) {
        text += (text.empty() ? "" : "\n") + std::to_string(finding.line) + ":" +
                std::to_string(finding.column) + " " + std::string(finding.key);
    }
    return text;
}

/// In any order: findings of a line may come in another.
std::string sortedLines(std::string text) {
    std::vector<std::string> lines;
    for (std::string_view rest = text; !rest.empty();) {
        lines.emplace_back(takePart(rest, "\n"));
    }
    std::sort(lines.begin(), lines.end());
    text.clear();
    for (const std::string& line : lines) {
        text += line + "\n";
    }
    return text;
}

std::vector<Finding> checked(const TemporaryFolder& folder, bool looksIntoPictures = false) {
    FolderCheck check({.program = folder.path()}, looksIntoPictures);
    EXPECT_FALSE(check.failure());
    check.run(2);
    return check.findings();
}

TEST(Checks, FindWhatIsPlanted) {
    const TemporaryFolder folder;
    writeGame(folder);
    ASSERT_EQ(linesOf(checked(folder)), "");
    for (const TextCase& row : textCases("checks.txt")) {
        std::string_view held = row.heading;
        const std::string_view category = takePart(held, ": ");
        if (category == "tank") {
            folder.write("Data\\Vehicles\\German T.txt", withLine(Tank, held, row.text));
            EXPECT_EQ(sortedLines(linesOf(checked(folder))), sortedLines(row.expected))
                << row.heading << row.text;
            continue;
        }
        const auto found = checkFile({}, {.category = *categoryOfWord(category),
                                          .name = "WEAPON_RIFLE_X",
                                          .shown = "X",
                                          .content = row.text});
        EXPECT_EQ(sortedLines(linesOf(found)), sortedLines(row.expected)) << row.heading;
    }
}

/// A hull as seen from above: solid within a frame, in a picture that goes with the tank.
std::string hullPicture(int left, int top, int right, int bottom) {
    Picture picture = emptyPicture({300, 600});
    for (int y = top; y < bottom; ++y) {
        for (int x = left; x < right; ++x) {
            picture.samples[static_cast<std::size_t>(y * 300 + x) * 4 + 3] = 255;
        }
    }
    return writePng(picture);
}

TEST(Checks, TellOfAWreckThatLiesBesideItsWhole) {
    const TemporaryFolder folder;
    writeGame(folder);
    const std::string pictures = "Images\\Units\\Vehicles\\";
    folder.write(pictures + "Hulls\\Hull.png", hullPicture(60, 40, 240, 560));
    struct Case {
        std::string wreck;
        std::string_view hint;
    };
    for (const Case& row : std::to_array<Case>({
             {hullPicture(60, 40, 240, 560), ""},
             {hullPicture(60, 300, 240, 560), ""}, // without its front
             {hullPicture(20, 10, 290, 590), ""},  // with what was torn off around it
             {hullPicture(120, 40, 300, 560), "move it by about 60 pixels to the left"},
             {hullPicture(60, 140, 240, 600), "move it by about 40 pixels up"},
         })) {
        folder.write(pictures + "Destroyed\\Wreck.png", row.wreck);
        const std::vector<Finding> found = checked(folder, true);
        ASSERT_EQ(found.size(), row.hint.empty() ? 0U : 1U) << row.hint;
        if (!found.empty()) {
            EXPECT_EQ(found.front().key, check_key::WreckPivot);
            EXPECT_EQ(found.front().hint, row.hint);
        }
        EXPECT_TRUE(checked(folder).empty()) << "pictures are taken apart only when asked for";
    }
}

TEST(Checks, LookAtWhatAModsSettingsName) {
    const TemporaryFolder folder;
    writeGame(folder);
    folder.write("Images\\Flags\\Static\\Ours.png", png(9, 9));
    folder.write("Images\\Flags\\Static\\german.png", png(9, 9));
    folder.write(
        "Mod.txt",
        "<mod><years><first>1945</first><last>1940</last></years>\n<nationality><id>NATIONALITY_GERMAN"
        "</id>\n<flag>ours.png</flag>\n<animated_flag>Our.png</animated_flag>\n<equipment><unit><file>"
        "German T</file></unit>\n<unit><file>German Z</file></unit>\n<unit><file>German X</file></unit>"
        " // ok: missing-unit comes later\n</equipment></nationality></mod>");
    EXPECT_EQ(linesOf(checked(folder)), "1:38 mod-years\n4:16 missing-picture\n6:13 missing-unit\n"
                                        "10:31 availability-years");
}

TEST(Checks, FindNothingInTheSample) {
    FolderCheck check({.program = SampleBase});
    while (check.step()) {
        EXPECT_LE(check.progress().done, check.progress().total);
    }
    EXPECT_EQ(checkReportText(check.findings(), [&](std::string_view file) { return check.contentOf(file); }),
              "0 errors, 0 warnings, 0 notes\n");
}

/// What is usual is learnt by all threads together: who read what must not show.
TEST(Checks, FindTheSameInAnyNumberOfThreads) {
    const TemporaryFolder folder;
    writeGame(folder);
    for (int i = 0; i < 120; ++i) {
        const std::string name = "German T" + std::to_string(i);
        const std::string weight = i == 70 ? "900000" : std::to_string(20000 + 50 * i);
        folder.write("Data\\Vehicles\\" + name + ".txt",
                     withLine(Tank, "<weight>", "\t\t\t<weight>" + weight + "</weight>"));
    }
    std::vector<std::string> reports;
    for (const unsigned threads : {1U, 2U, 3U}) {
        FolderCheck check({.program = folder.path()});
        check.run(threads);
        reports.push_back(checkReportJson(check.findings()));
    }
    EXPECT_NE(reports[0].find("vehicle-weight"), std::string::npos);
    EXPECT_NE(reports[0].find("is also the name of Data/Vehicles/German T.txt"), std::string::npos);
    EXPECT_EQ(reports[0], reports[1]);
    EXPECT_EQ(reports[0], reports[2]);
    FolderCheck inSteps({.program = folder.path()});
    while (inSteps.step()) {
    }
    EXPECT_EQ(reports[0], checkReportJson(inSteps.findings()));
}

TEST(Checks, FindNothingInAFileOfUtf16ButThat) {
    const std::vector<Finding> found =
        checkFileText({.category = Category::Weapons, .content = std::string("\xFF\xFE<\0w\0>\0", 8)});
    EXPECT_EQ(linesOf(found), "1:1 empty-file");
}

TEST(Checks, TellOfACalibreThatNoMassGoesWith) {
    FolderCheck check({.program = SampleBase});
    check.run();
    std::string content;
    ASSERT_TRUE(
        readWholeFile(std::string(SampleBase) + "Data\\Weapons\\WEAPON_CANNON_75_KWK42_L70.txt", content));
    const auto found = [&](std::string_view line) {
        return linesOf(check.checkAgain(Category::Weapons, "WEAPON_CANNON_75_KWK42_L70",
                                        withLine(content, "<calibre>", line)));
    };
    EXPECT_EQ(found("\t\t<calibre>75</calibre>"), "");
    EXPECT_EQ(found("\t\t<calibre>750</calibre>"),
              "7:12 unusual-value\n25:65 unusual-value\n26:65 unusual-value\n27:62 unusual-value");
}

TEST(Checks, AreAllOnTheirPage) {
    std::string page;
    ASSERT_TRUE(readWholeFile("docs\\checks.md", page));
    std::size_t entries = 0;
    for (std::size_t at = 0; (at = page.find("\n### ", at)) != std::string::npos; ++at) {
        ++entries;
    }
    EXPECT_EQ(entries, checkRules().size());
    for (const CheckRule& rule : checkRules()) {
        const std::string word = rule.severity == Severity::Error     ? "error"
                                 : rule.severity == Severity::Warning ? "warning"
                                                                      : "note";
        const std::size_t at = page.find("\n### " + std::string(rule.key) + " (" + word + ")\n");
        ASSERT_NE(at, std::string::npos) << rule.key;
        const std::string entry = page.substr(at, page.find("\n### ", at + 1) - at);
        EXPECT_NE(entry.find(rule.sentence), std::string::npos) << rule.key;
        EXPECT_NE(entry.find("*Mend:* " + std::string(rule.help)), std::string::npos) << rule.key;
    }
}

TEST(Checks, AreSuppressedWithAReason) {
    const auto found = [](const std::string& content) {
        return linesOf(checkFileText({.category = Category::Weapons, .shown = "X", .content = content}));
    };
    const std::string weapon =
        "<weapon>\n<name>W</name>\n<type>WEAPON_RIFLE</type>\n<ammo></ammo>\n<new>1</new>";
    EXPECT_EQ(found(weapon + "\n</weapon>"), "5:1 unknown-element");
    EXPECT_EQ(found(weapon + " // ok: unknown-element a note\n</weapon>"), "");
    EXPECT_EQ(found("// ok: unknown-element, older-spelling notes\n" + weapon + "\n</weapon>"),
              "1:1 bad-suppression");
    EXPECT_EQ(found(weapon + " // ok: unknown-elemen a note\n</weapon>"),
              "5:1 unknown-element\n5:1 bad-suppression");
    std::vector<Finding> problems;
    const SuppressionList list("// heading\nunknown-element Data/*/A b.txt: a note\nnonsense X: y\n",
                               problems);
    EXPECT_EQ(problems.size(), 1U);
    EXPECT_TRUE(list.covers({.key = finding_key::UnknownElement, .file = "Data/Weapons/A b.txt"}));
    EXPECT_FALSE(list.covers({.key = finding_key::UnknownElement, .file = "Data/Weapons/B.txt"}));
}

TEST(Checks, AreLeftOutWhereABaselineHasThem) {
    std::vector<Finding> found = {{.key = "a", .file = "F", .line = 3, .value = "x\ty"},
                                  {.key = "a", .file = "F"}};
    const Baseline baseline(Baseline::text({found.front()}));
    found.front().line = 9;
    found.push_back(found.front());
    baseline.apply(found);
    EXPECT_EQ(found.size(), 2U);
}

TEST(Checks, AreReportedWhateverBytesAFileHolds) {
    const std::vector<Finding> found = {{.key = finding_key::UnknownWord,
                                         .severity = Severity::Error,
                                         .file = "Data/Weapons/A b.txt",
                                         .line = 2,
                                         .column = 3,
                                         .field = "type",
                                         .message = "\"\xFC\x01\" 5%\n"}};
    EXPECT_EQ(checkReportJson(found), "[\n  {\"file\": \"Data/Weapons/A b.txt\", \"line\": 2, \"column\": 3, "
                                      "\"severity\": \"error\", \"key\": "
                                      "\"unknown-word\", \"field\": \"type\", \"message\": "
                                      "\"\\\"\xC3\xBC\\u0001\\\" 5%\\u000a\", \"hint\": "
                                      "\"\", \"value\": \"\", \"expected\": \"\"}\n]\n");
    EXPECT_EQ(checkReportGitHub(found),
              "::error file=Data/Weapons/A b.txt,line=2,col=3,title=unknown-word::\"\xC3\xBC"
              "\x01\" 5%25%0A\n");
    EXPECT_NE(checkReportSarif(found).find("\"uri\": \"Data/Weapons/A%20b.txt\""), std::string::npos);
    EXPECT_EQ(checkReportJson({}), "[]\n");
    EXPECT_EQ(asUtf8("\xC3\xBC"), "\xC3\xBC");
}

TEST(NearestName, IsWhatWasMeant) {
    EXPECT_EQ(NearestName("TYPE_TNAK").offerAll(unitTypeNames()).name(), "TYPE_TANK");
    EXPECT_EQ(NearestName("QUALITY_AVERAGE").offerAll(qualityNames()).name(), "");
    EXPECT_EQ(editDistance("ab", "ba", 3), 1U);
    EXPECT_EQ(editDistance("kitten", "sitting", 9), 3U);
    EXPECT_EQ(editDistance("kitten", "sitting", 2), 3U);
}

} // namespace
} // namespace varrocade::tests
