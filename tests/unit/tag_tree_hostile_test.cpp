// Files that no editor wrote: none may crash a reader, overflow the stack or take for ever.

#include "data/format/tag_tree.h"
#include "tag_tree_model.h"
#include "test_support.h"

#include <algorithm>
#include <chrono>

#include <gtest/gtest.h>

namespace varrocade::tests {

namespace {

/// Far above what any case takes, far below what quadratic work on it would.
constexpr std::chrono::seconds Deadline{30};

/// Every level's content stands in two elements, its sibling and one that begins in it but ends later: the
/// tree doubles with each level.
std::string doubling(std::size_t levels) {
    std::string document;
    std::string ends;
    for (std::size_t i = 0; i < levels; ++i) {
        const std::string number = std::to_string(i) + ">";
        document += "<c" + number + "<d" + number + "</c" + number;
        ends.insert(0, "</d" + number + "<\n/\n/c" + number);
    }
    return document + "<x>1</x>" + ends;
}

std::size_t depthOf(const TagTree& tree) {
    std::vector<std::size_t> depths(tree.nodes().size(), 0);
    for (std::size_t i = 1; i < depths.size(); ++i) {
        depths[i] = depths[tree.nodes()[i].parent] + 1;
    }
    return *std::max_element(depths.begin(), depths.end());
}

} // namespace

/// Fails where what is done meanwhile takes too long.
class HostileFile : public ::testing::Test {
protected:
    void TearDown() override { EXPECT_LT(std::chrono::steady_clock::now() - start_, Deadline); }

    TagTree tree;

private:
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

TEST_F(HostileFile, NestsDeep) {
    constexpr std::size_t levels = 200000;
    tree.parse(nestedInEachOther(levels));
    EXPECT_EQ(depthOf(tree), levels);
    tree.parse(repeated("<a>", levels) + "</a>");
    EXPECT_EQ(depthOf(tree), levels);
    EXPECT_EQ(tree.root().childCount, 1U);
    // Unit rules at every level: vehicles in squads in squads.
    const SquadRecord record =
        readUnitText(repeated("<squad><vehicle><hull>", levels) + "</hull></vehicle></squad>");
    EXPECT_FALSE(record.vehicle && record.vehicle->components.size() > MaxSquadMembers);
}

TEST_F(HostileFile, HasMoreTagsThanSense) {
    tree.parse(std::string(std::size_t{64} << 20U, '<'));
    EXPECT_EQ(tree.nodes().size(), 1U);
    constexpr std::size_t length = std::size_t{1} << 20U;
    for (const char* part : {"</", "</a>", "<a>", "<>", "</>", "\r", "/ ", "<a></b>"}) {
        tree.parse(repeated(part, length / std::string_view(part).size()));
        EXPECT_LE(tree.nodes().size(), length) << part;
    }
    tree.parse("<a>" + repeated("</", length / 2) + "a>");
    EXPECT_EQ(tree.nodes().size(), 2U) << "the last of the closing tags is whole";
}

TEST_F(HostileFile, OverlapsExponentially) {
    ModelNode model;
    std::size_t former = 0;
    for (std::size_t levels = 1; levels < 8; ++levels) {
        const std::string document = doubling(levels);
        tree.parse(document);
        ASSERT_TRUE(parseModel(modelCleaned(document), 100000, model));
        EXPECT_TRUE(isSameTree(tree, model)) << levels;
        EXPECT_GT(tree.nodes().size(), 2 * former) << "the document does not double";
        former = tree.nodes().size() - 1;
    }
    tree.parse(doubling(60));
    EXPECT_LT(tree.nodes().size(), 100000U);
    EXPECT_GT(tree.nodes().size(), 1000U);
}

TEST_F(HostileFile, HasManyDifferentNames) {
    constexpr std::size_t count = 200000;
    // Unfinished at their ends, so that every closing tag is looked up.
    std::string open;
    std::string closed;
    for (std::size_t i = 0; i < count; ++i) {
        const std::string name = "n" + std::to_string(i) + ">";
        open += "<" + name + "</n>";
        closed += "<" + name + "</" + name;
    }
    tree.parse(open + "<");
    EXPECT_EQ(tree.nodes().size(), 1U) << "the first element is not closed";
    tree.parse(closed + "<");
    EXPECT_EQ(tree.root().childCount, count);
}

namespace {

/// How far the cuts of a file lie apart: its bytes are many, and the sanitizers slow.
#ifdef NDEBUG
constexpr std::size_t Stride = 1;
#else
constexpr std::size_t Stride = 7;
#endif

/// How many entries the reader of the file's category finds in a content.
std::size_t entriesIn(Category category, std::string_view content) {
    if (category == Category::Weapons) {
        return readWeaponText(content).ammoTypes.size();
    }
    const SquadRecord record = readUnitText(content);
    return (record.vehicle ? record.vehicle->components.size() : 0) + record.infantrymen.size() +
           (record.heavyWeapon ? 1 : 0) + (record.aircraft ? record.aircraft->weapons.size() : 0);
}

} // namespace

TEST(TruncatedFile, LosesAllUnlessItsRootIsClosedAgain) {
    for (const SampleFile& file : sampleFiles()) {
        SCOPED_TRACE(file.name);
        const std::size_t root = file.content.rfind("</");
        const std::size_t all = entriesIn(file.category, file.content);
        std::size_t former = 0;
        // Beginning elsewhere in each file.
        for (std::size_t length = file.name.size() % Stride; length < file.content.size(); length += Stride) {
            // Copied to a block of its own, so that a look beyond its end is found out.
            const std::vector<char> cut(file.content.begin(),
                                        file.content.begin() + static_cast<std::ptrdiff_t>(length));
            ASSERT_TRUE(length >= root || entriesIn(file.category, {cut.data(), cut.size()}) == 0) << length;
            const std::string closed = file.content.substr(0, length) + "\n" + file.content.substr(root);
            const std::size_t entries = entriesIn(file.category, closed);
            // Only the file's outer part can be left open, with all that is in it.
            ASSERT_TRUE(entries == 0 || entries >= former) << length;
            ASSERT_LE(entries, all) << length;
            former = std::max(former, entries);
            ASSERT_EQ(length % 61 == 0 ? differenceFromModel(closed) : "", "") << length;
        }
        EXPECT_GT(former, 0U);
    }
}

} // namespace varrocade::tests
