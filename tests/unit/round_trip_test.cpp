// Every file of the sample, read and written and read again.

#include "data/writing/unit_writers.h"
#include "test_support.h"
#include "weapons/weapon_files.h"

#include <algorithm>
#include <map>

#include <gtest/gtest.h>

namespace varrocade::tests {

namespace {

/// The lines of a text that the writers made; fails the test when one does not end with CR LF.
std::vector<std::string> linesOf(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        EXPECT_NE(text.find("\r\n"), std::string_view::npos) << "the last line has no end: " << text;
        lines.emplace_back(takePart(text, "\r\n"));
        EXPECT_EQ(lines.back().find_first_of("\r\n"), std::string::npos) << "a stray line end";
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

TEST(RoundTrip, WritesTheGamesOwnFilesByteForByteAndWhatItWroteOnceMore) {
    // How many at least; the rest are files kept by hand and files in the older forms.
    std::map<Category, int> identical = {{Category::Vehicles, 12},
                                         {Category::AtGuns, 6},
                                         {Category::Infantry, 7},
                                         {Category::Aircraft, 5},
                                         {Category::Weapons, 70}};
    std::string others;
    for (const SampleFile& file : sampleFiles()) {
        const std::string written = rewritten(file.category, file.content);
        ASSERT_FALSE(written.empty()) << file.name;
        EXPECT_EQ(rewritten(file.category, written), written) << file.name;
        identical[file.category] -= written == file.content ? 1 : 0;
        others += written == file.content ? "" : "\n" + file.name;
    }
    for (const auto& [category, missing] : identical) {
        EXPECT_LE(missing, 0) << categoryName(category) << ", of these files:" << others;
    }
}

TEST(RoundTrip, WritesOverlongValuesThatItReadsAgain) {
    // Longer lines than the game's own buffers hold.
    const std::string longest(255, 'x');
    WeaponRecord weapon;
    weapon.fileName = "weapon";
    weapon.name = longest;
    weapon.comments = std::string(2000, 'c');
    weapon.ammoTypes = {{.tracerImage = longest, .explodeSound = longest, .name = longest}, {}};
    EXPECT_TRUE(readWeaponText(weaponFileText(weapon)) == weapon);
    SquadRecord unit;
    unit.fileName = "unit";
    unit.comment = longest;
    ComponentRecord& turret = unit.vehicle.emplace().components.emplace_back();
    turret.kind = ComponentKind::Turret;
    turret.weapons = {{.type = std::string_view(longest), .mount = std::string_view(longest)}};
    EXPECT_TRUE(readUnitText(vehicleFileText(unit).value_or("")) == unit);
}

} // namespace varrocade::tests
