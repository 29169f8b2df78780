// What a save would lose: each kind of loss by example, then that nothing is missed and nothing invented,
// over the sample and over thousands of broken copies of it.

#include "data/format/clean_text.h"
#include "data/losses/save_losses.h"
#include "test_support.h"
#include "weapons/weapon_losses.h"
#include "weapons/weapon_record.h"

#include <algorithm>
#include <array>
#include <random>
#include <set>

#include <gtest/gtest.h>

namespace varrocade::tests {

namespace {

std::vector<Finding> lossesOf(Category category, std::string_view content) {
    if (category == Category::Weapons) {
        return weaponSaveLosses(content);
    }
    return unitSaveLosses(category, content).value_or(std::vector<Finding>());
}

/// A line each.
std::string linesAbout(Category category, std::string_view content) {
    std::string lines;
    for (const Finding& loss : lossesOf(category, content)) {
        lines += (lines.empty() ? "" : "\n") + lossText(loss);
    }
    return lines;
}

} // namespace

TEST(SaveLosses, NamesEachKind) {
    for (const TextCase& c : textCases("losses.txt")) {
        std::string_view what = c.heading;
        const Category category = categoryOfWord(takePart(what, ": ")).value();
        EXPECT_EQ(linesAbout(category, wholeFile(category, c.text)), c.expected) << what;
    }
    EXPECT_EQ(linesAbout(Category::Infantry, "\xEF\xBB\xBF<squad>"),
              "1: dropped: \"\xEF\xBB\xBF<squad>\" is no element, and nothing of the file is read");
    EXPECT_EQ(linesAbout(Category::Infantry, ""), "");
}

TEST(SaveLosses, NamesWhatARecordCannotHold) {
    EXPECT_EQ(linesAbout(Category::Infantry, "<squad>\n" + repeated("<man></man>\n", 15) + "</squad>"),
              "15: dropped: <man> is left out: more than 13 infantrymen\n"
              "16: dropped: <man> is left out: more than 13 infantrymen");
    EXPECT_EQ(linesAbout(Category::Weapons,
                         "<weapon><ammo>\n" + repeated("<type></type>\n", 256) + "</ammo></weapon>"),
              "257: dropped: <type> is left out: more than 255 ammunition types");
    // The 510th character, where the game cuts a line into pieces, is the blank.
    std::string line = "<squad>" + repeated("<description></description>", 17) + "<man><weapon><type>";
    line += std::string(509 - line.size(), 'A') + " B</type></weapon></man></squad>";
    EXPECT_EQ(linesAbout(Category::Infantry, line),
              "1: changed: <type> loses blanks in its text, in a line too long");
}

TEST(SaveLosses, SaysWhereThereIsNothingToWrite) {
    EXPECT_FALSE(unitSaveLosses(Category::Vehicles, "<squad><x>1</x></squad>").has_value());
    EXPECT_FALSE(unitSaveLosses(Category::Aircraft, "<squad></squad>").has_value());
    EXPECT_FALSE(unitSaveLosses(Category::Weapons, "<weapon></weapon>").has_value());
}

namespace {

using Leaf = std::pair<std::string, std::string>;

/// Every `<name>text</name>` of a file, wherever it stands, also where no tree has it.
std::set<Leaf> leavesOf(const std::string& content) {
    std::string cleaned;
    cleanTaggedText(content, cleaned);
    std::set<Leaf> leaves;
    for (std::size_t at = cleaned.find('<'); at != std::string::npos; at = cleaned.find('<', at + 1)) {
        const std::size_t textBegin = cleaned.find('>', at) + 1;
        const std::size_t textEnd = cleaned.find('<', at + 1);
        if (textBegin == 0 || textEnd == std::string::npos || textBegin >= textEnd) {
            continue;
        }
        const std::string name = cleaned.substr(at + 1, textBegin - at - 2);
        if (cleaned.compare(textEnd, name.size() + 3, "</" + name + ">") == 0) {
            leaves.emplace(name, cleaned.substr(textBegin, textEnd - textBegin));
        }
    }
    return leaves;
}

/// Whether a text may be missing in a file because its absence says the same.
bool goesWithoutSaying(const Leaf& leaf) {
    static constexpr auto texts = std::to_array<std::string_view>(
        {"0", "1", "180", "no", "yes", ".png", "-1", "QUALITY_REGULAR", "JOB_LOADER", "MOUNT_REAR",
         "HEAT_ERA_EARLY", "FLAVOUR_BALL", "FLAVOUR_BOMB_HE", "Default.png", "DEFAULT.PNG",
         "uniform_ranks_german.png"});
    return std::find(texts.begin(), texts.end(), leaf.second) != texts.end();
}

/// Every element with a text is in the saved file too.
void expectNothingMissing(const std::string& content, const std::string& saved, const std::string& name) {
    const std::set<Leaf> kept = leavesOf(saved);
    for (const Leaf& leaf : leavesOf(content)) {
        EXPECT_TRUE(kept.contains(leaf) || goesWithoutSaying(leaf))
            << name << ": " << leaf.first << " = " << leaf.second << " is lost without a word in\n"
            << content;
    }
}

/// Makes a small thing of a file otherwise, as a hand or an accident would.
void damage(std::string& content, std::mt19937& random) {
    static constexpr auto texts = std::to_array<std::string_view>(
        {"0",          "7",           "-30",          "007",          "5 kg",          "1e3",
         "99999",      "2.50",        "yes",          "no",           "Default",       "x.PNG",
         "MOUNT_REAR", "QUALITY_RAW", "FLAVOUR_BALL", "WEAPON_HMG_A", "WEAPON_BOMB_B", "//",
         "",           " a "});
    const auto anyOf = [&](std::size_t count) {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(random);
    };
    const auto lineAt = [&](std::size_t offset) {
        const std::size_t first = content.rfind('\n', offset) + 1;
        return std::pair(first, std::min(content.find('\n', first), content.size() - 1) + 1 - first);
    };
    if (content.empty()) {
        return;
    }
    const std::size_t offset = anyOf(content.size());
    const auto [line, length] = lineAt(offset);
    const std::size_t kind = anyOf(6);
    if (kind == 0) {
        content.erase(line, length);
    } else if (kind == 1) {
        content.insert(lineAt(anyOf(content.size())).first, content.substr(line, length));
    } else if (kind == 2) {
        content[offset] = "<>/ _@x"[anyOf(7)];
    } else {
        const std::size_t begin = content.find('>', offset) + 1;
        const std::size_t end = content.find("</", begin);
        if (begin != 0 && end < content.find('\n', begin)) {
            content.replace(begin, end - begin, texts[anyOf(texts.size())]);
        }
    }
}

} // namespace

TEST(SaveLosses, MissesAndInventsNothingInTheSampleAndDamagedCopies) {
    std::mt19937 random(1944);
    std::size_t lossless = 0;
    std::size_t lossy = 0;
    std::size_t plain = 0;
    for (const SampleFile& file : sampleFiles()) {
        for (int times = 0; times <= 4; ++times) {
            std::string content = file.content;
            for (int i = 0; i < times; ++i) {
                damage(content, random);
            }
            const std::string saved = rewritten(file.category, content);
            if (saved.empty()) {
                continue;
            }
            const auto lines =
                std::count_if(content.begin(), content.end(), [](char c) { return c == '\n' || c == '\r'; });
            const std::vector<Finding> losses = lossesOf(file.category, content);
            for (const Finding& loss : losses) {
                EXPECT_TRUE(loss.line >= 1 && loss.line <= static_cast<std::size_t>(lines) + 1)
                    << lossText(loss);
            }
            if (losses.empty()) {
                ++lossless;
                expectNothingMissing(content, saved, file.name);
            } else if (times == 0) {
                ++lossy;
            }
            // Elements that run into each other can be read anew in another way each time.
            TagTree tree;
            tree.parseCleaned(saved);
            if (std::none_of(tree.nodes().begin(), tree.nodes().end(), [](const TagNode& node) {
                    return (std::string(node.name) + std::string(node.text)).find('<') != std::string::npos;
                })) {
                ++plain;
                EXPECT_EQ(linesAbout(file.category, saved), "") << file.name << "\n" << content;
            }
        }
    }
    EXPECT_GT(lossless, 150U);
    EXPECT_GE(lossy, 10U) << "the sample has hand-made files of every kind";
    EXPECT_GT(plain, 500U);
}

TEST(SaveLosses, StaysInProportionWithHostileFiles) {
    constexpr std::size_t levels = 100000;
    EXPECT_FALSE(lossesOf(Category::Infantry, nestedInEachOther(levels)).empty());
    // The list ends, and says so.
    for (const std::string& content :
         {repeated("//\n", levels), "<squad>" + repeated("<man></man>", levels) + "</squad>"}) {
        const std::vector<Finding> losses = lossesOf(Category::Infantry, content);
        ASSERT_LT(losses.size(), levels / 2);
        EXPECT_EQ(losses.back().message, "more than can be listed is lost");
    }
}

} // namespace varrocade::tests
