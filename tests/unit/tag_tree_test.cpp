#include "data/tag_tree.h"

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

TEST(TagTree, TakesEveryLineEnd) {
    const std::string lines = "// first|<a>|\t<b>one // comment|\t two</b>|| <c>3</c> \t|</a>|";
    for (const char* lineEnd : {"\r\n", "\n", "\r", "\n\r", "\r\r\n"}) {
        std::string content;
        for (const char c : lines) {
            content += c == '|' ? std::string(lineEnd) : std::string(1, c);
        }
        EXPECT_EQ(described(content), "{a{b=onetwo c=3}}");
    }
    // What an editor appended to the last line's end does not matter either.
    EXPECT_EQ(described("<a>1</a>"), described("<a>1</a>\r"));
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
        EXPECT_EQ(tree.lineOf(tree.nodes()[i].name, content), i + 2);
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

/// Makes small documents: random tokens, and well-formed trees with a few random changes.
class DocumentMaker {
public:
    std::string randomTokens() {
        std::string document;
        for (std::size_t count = below(28); count > 0; --count) {
            document += Tokens[below(Tokens.size())];
        }
        return document;
    }

    std::string changedTree() {
        std::string document;
        appendElements(document, 0);
        for (std::size_t changes = below(4); changes > 0 && !document.empty(); --changes) {
            change(document);
        }
        return document;
    }

private:
    static constexpr auto Tokens = std::to_array<const char*>(
        {"<a>", "</a>", "<b>", "</b>", "<ab>", "</ab>", "<c>", "</c>", "<>", "</>", "x",  "yz",       " ",
         "\t",  "//",   "\n",  "\r",   "\r\n", "<",     ">",   "</",   "/",  "<a",  "a>", "<\n/\n/a>"});
    static constexpr auto Names = std::to_array<const char*>({"a", "b", "ab", "c", "d", "e", "a b", ""});

    std::size_t below(std::size_t bound) {
        return std::uniform_int_distribution<std::size_t>(0, bound - 1)(random_);
    }

    void appendElements(std::string& document, std::size_t depth) {
        for (std::size_t count = 1 + below(3); count > 0; --count) {
            const std::string name = Names[below(Names.size())];
            document += std::string(below(3), ' ') + "<" + name + ">";
            if (depth < 4 && below(2) == 0) {
                document += below(2) == 0 ? "\r\n" : "";
                appendElements(document, depth + 1);
            } else {
                document += std::string(below(3), 'x');
            }
            document += "</" + name + ">" + (below(3) == 0 ? "// comment\n" : "");
        }
    }

    void change(std::string& document) {
        const std::size_t at = below(document.size());
        const std::size_t length = 1 + below(6);
        const std::size_t kind = below(4);
        if (kind == 0) {
            document.erase(at, length);
        } else if (kind == 1) {
            document.insert(below(document.size()), document.substr(at, length));
        } else if (kind == 2) {
            document.insert(at, Tokens[below(Tokens.size())]);
        } else {
            document.resize(at);
        }
    }

    std::mt19937 random_{20240229};
};

} // namespace

TEST(TagTree, AgreesWithThePlainAlgorithm) {
    DocumentMaker maker;
    for (int i = 0; i < 20000; ++i) {
        for (const std::string& document : {maker.randomTokens(), maker.changedTree()}) {
            ASSERT_EQ(differenceFromModel(document), "") << document;
        }
    }
}

TEST(TagTree, AgreesWithThePlainAlgorithmOnTheSample) {
    for (const SampleFile& file : sampleFiles()) {
        EXPECT_EQ(differenceFromModel(file.content), "") << file.name;
    }
}

} // namespace varrocade::tests
