// Every file of the sample, read and written and read again.

#include "data/unit_writers.h"
#include "test_support.h"
#include "weapons/weapon_files.h"

#include <algorithm>
#include <array>

#include <gtest/gtest.h>

namespace varrocade::tests {

namespace {

/// The lines of a text that the writers made; fails the test when one does not end with CR LF.
std::vector<std::string> linesOf(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = text.find("\r\n");
        if (end == std::string_view::npos) {
            ADD_FAILURE() << "the last line has no end: " << text;
            break;
        }
        lines.emplace_back(text.substr(0, end));
        EXPECT_EQ(lines.back().find_first_of("\r\n"), std::string::npos) << "a stray line end";
        text.remove_prefix(end + 2);
    }
    return lines;
}

/// The lines of a file that another one of its kind does not have, from the first to the last.
std::string addedLines(const std::string& plain, const std::string& written) {
    const std::vector<std::string> former = linesOf(plain);
    const std::vector<std::string> lines = linesOf(written);
    const auto begin = std::mismatch(lines.begin(), lines.end(), former.begin(), former.end());
    const auto end = std::mismatch(lines.rbegin(), std::make_reverse_iterator(begin.first), former.rbegin(),
                                   std::make_reverse_iterator(begin.second));
    std::string added;
    for (auto line = begin.first; line != end.first.base(); ++line) {
        added += (added.empty() ? "" : "\n") + *line;
    }
    return added;
}

} // namespace

TEST(RoundTrip, RewritesByExample) {
    for (const TextCase& c : textCases("rewrites.txt")) {
        std::string_view what = c.heading;
        const Category category = categoryOfWord(takePart(what, ": ")).value();
        EXPECT_EQ(addedLines(rewritten(category, wholeFile(category, "")),
                             rewritten(category, wholeFile(category, c.text))),
                  c.expected)
            << what;
    }
}

TEST(RoundTrip, WritesWhatItWroteOnceMore) {
    for (const SampleFile& file : sampleFiles()) {
        const std::string written = rewritten(file.category, file.content);
        ASSERT_FALSE(written.empty()) << file.name;
        EXPECT_EQ(rewritten(file.category, written), written) << file.name;
    }
}

TEST(RoundTrip, WritesTheGamesOwnFilesByteForByte) {
    struct Expectation {
        std::size_t files;
        std::size_t identical;
    };
    // The rest are files kept by hand and files in the older forms.
    constexpr std::array<Expectation, CategoryCount> least = {{{16, 12}, {7, 6}, {8, 7}, {6, 5}, {75, 70}}};
    std::array<Expectation, CategoryCount> found{};
    std::array<std::string, CategoryCount> others;
    for (const SampleFile& file : sampleFiles()) {
        const auto category = static_cast<std::size_t>(file.category);
        const bool isIdentical = rewritten(file.category, file.content) == file.content;
        ++found[category].files;
        found[category].identical += isIdentical ? 1 : 0;
        others[category] += isIdentical ? "" : "\n" + file.name;
    }
    for (std::size_t category = 0; category < CategoryCount; ++category) {
        EXPECT_GE(found[category].files, least[category].files) << categoryName(AllCategories[category]);
        EXPECT_GE(found[category].identical, least[category].identical) << "changed:" << others[category];
    }
}

TEST(RoundTrip, WritesOverlongValuesThatItReadsAgain) {
    // Longer lines than the game's own buffers hold.
    const std::string longest(255, 'x');
    WeaponRecord weapon;
    weapon.fileName = "weapon";
    weapon.name = longest;
    weapon.comments = std::string(2000, 'c');
    for (int i = 0; i < 3; ++i) {
        AmmoTypeRecord& ammo = weapon.ammoTypes.emplace_back();
        ammo.name = ammo.tracerImage = ammo.explodeSound = longest;
    }
    WeaponReadReport report;
    EXPECT_TRUE(readWeapon(weaponFileText(weapon), "weapon", report) == weapon);
    SquadRecord unit;
    unit.fileName = "unit";
    unit.comment = longest;
    ComponentRecord& turret = unit.vehicle.emplace().components.emplace_back();
    turret.kind = ComponentKind::Turret;
    turret.weapons = {{.type = std::string_view(longest), .mount = std::string_view(longest)}};
    EXPECT_TRUE(readUnitText(vehicleFileText(unit).value_or("")) == unit);
}

} // namespace varrocade::tests
