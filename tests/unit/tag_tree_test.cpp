#include "data/format/source_map.h"
#include "data/format/tag_tree.h"

#include "tag_tree_model.h"
#include "test_support.h"

#include <array>
#include <random>

#include <gtest/gtest.h>

namespace varrocade::tests {

namespace {

std::string described(std::string_view content) {
    TagTree tree;
    tree.parse(content);
    return describe(tree);
}

} // namespace

TEST(TagTree, ParsesAsTheGameDoes) {
    for (const TextCase& c : textCases("trees.txt")) {
        EXPECT_EQ(described(c.text), c.expected) << c.heading;
    }
}

TEST(TagTree, ReadsLongLinesInPieces) {
    constexpr std::size_t pieceLength = 510;
    for (std::size_t length = pieceLength - 4; length <= pieceLength + 4; ++length) {
        // What stands about the border of the first piece: blanks there vanish, slashes parted by it stay.
        for (const char* border : {"  ", "//", "x ", " x", "/ /", "\t//"}) {
            const std::string content = std::string(length - 2, 'x') + border + "tail\n";
            ASSERT_EQ(differenceFromModel("<a>" + content + "</a>"), "") << length << border;
            ASSERT_EQ(differenceFromModel("<a>1</a>" + content), "") << length << border;
        }
    }
    // Comments reach to the end of their piece only: the game sees the rest of a long line again.
    EXPECT_EQ(described("<a>1</a>//" + std::string(500, '-') + "<b>2</b>\n"), "{a=1 b=2}");
}

TEST(TagTree, TellsTheLineOfAnElement) {
    const std::string content =
        "// one\r\n\r\n<a>\r<b>4</b>\n\t<c>5</c>// c\r\n<d\r\n>" + std::string(600, ' ') + "7</d>\r\n</a>";
    TagTree tree;
    tree.parse(content);
    ASSERT_EQ(describe(tree), "{a{b=4 c=5 d=7}}");
    for (std::size_t i = 1; i < tree.nodes().size(); ++i) {
        EXPECT_EQ(SourceMap(tree, content).placeOf(tree.nodes()[i]).line, i + 2);
    }
}

TEST(TagTree, ParsesAfreshEachTime) {
    TagTree tree;
    tree.parse("<a><b>1</b></a>");
    tree.parse("text");
    EXPECT_EQ(describe(tree), "=text");
    tree.parse("<c>2</c>");
    EXPECT_EQ(describe(tree), "{c=2}");
    tree.parse("");
    EXPECT_EQ(describe(tree), "");
}

namespace {

/// A small document: random tokens, or elements put beside and around each other with a few things amiss.
std::string smallDocument(std::mt19937& random) {
    static constexpr auto tokens = std::to_array<const char*>(
        {"<a>", "</a>", "<b>", "</b>", "<ab>", "</ab>", "<c>", "</c>", "<>", "</>", "x",  "yz",       " ",
         "\t",  "//",   "\n",  "\r",   "\r\n", "<",     ">",   "</",   "/",  "<a",  "a>", "<\n/\n/a>"});
    static constexpr auto names = std::to_array<const char*>({"a", "b", "ab", "c", "d", "e", "a b", ""});
    const auto below = [&](std::size_t bound) {
        return std::uniform_int_distribution<std::size_t>(0, bound - 1)(random);
    };
    std::string document;
    if (below(2) == 0) {
        for (std::size_t count = below(28); count > 0; --count) {
            document += tokens[below(tokens.size())];
        }
        return document;
    }
    for (std::size_t count = 1 + below(12); count > 0; --count) {
        const std::string name = names[below(names.size())];
        const bool isAround = below(2) == 0;
        const std::string inside = isAround ? "\r\n" + document : std::string(below(3), 'x');
        document = (isAround ? "" : document) + std::string(below(3), ' ') + "<" + name + ">" + inside +
                   "</" + name + ">" + (below(3) == 0 ? "// comment\n" : "");
    }
    for (std::size_t changes = below(4); changes > 0; --changes) {
        const std::size_t at = below(document.size());
        const bool isMore = below(2) == 0;
        document.replace(at, isMore ? 0 : 1 + below(6), isMore ? tokens[below(tokens.size())] : "<");
    }
    return document;
}

} // namespace

TEST(TagTree, AgreesWithThePlainAlgorithm) {
    std::mt19937 random(20240229);
    for (int i = 0; i < 40000; ++i) {
        const std::string document = smallDocument(random);
        ASSERT_EQ(differenceFromModel(document), "") << document;
    }
}

TEST(TagTree, AgreesWithThePlainAlgorithmOnTheSample) {
    for (const SampleFile& file : sampleFiles()) {
        EXPECT_EQ(differenceFromModel(file.content), "") << file.name;
    }
}

} // namespace varrocade::tests
