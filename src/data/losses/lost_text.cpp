#include "data/losses/lost_text.h"

#include "data/finding_text.h"
#include "data/format/texts.h"

#include <algorithm>
#include <string>
#include <vector>

namespace varrocade {

namespace {

constexpr std::string_view CommentSign = "//";

/// The comments, with their slashes, of what cleaning leaves out between two pieces.
void addComments(std::string_view gap, std::vector<std::string_view>& comments) {
    constexpr std::string_view lineEnds = "\r\n";
    while (!gap.empty()) {
        const std::size_t end = std::min(gap.find_first_of(lineEnds), gap.size());
        const std::size_t sign = gap.substr(0, end).find(CommentSign);
        if (sign != std::string_view::npos) {
            comments.push_back(trimmed(gap.substr(sign, end - sign)));
        }
        gap.remove_prefix(std::min(end + 1, gap.size()));
    }
}

/// The comments of a file, as parts of its content.
std::vector<std::string_view> commentsOf(std::string_view content, const std::vector<KeptPiece>& pieces) {
    std::vector<std::string_view> comments;
    std::size_t begin = 0;
    for (const KeptPiece& piece : pieces) {
        const auto end = static_cast<std::size_t>(piece.text.data() - content.data());
        addComments(content.substr(begin, end - begin), comments);
        begin = end + piece.text.size();
    }
    addComments(content.substr(begin), comments);
    return comments;
}

/// Compares where each level of the tree ends with where its parsing stopped.
class NestingCheck {
public:
    NestingCheck(const SourceMap& places, const TagTree& tree, LossList& losses)
        : places_(places), tree_(tree), losses_(losses), closings_(tree.nodes().size(), NotSearched),
          budget_(WorkPerCharacter * tree.content().size() + LeastWork) {}

    void run() {
        const std::vector<TagNode>& nodes = tree_.nodes();
        for (std::uint32_t i = 0; i < nodes.size(); ++i) {
            if (budget_ == 0) {
                losses_.add(places_.placeAt(openingOf(nodes[i])), LossKind::Unread,
                            tagText(nodes[i].name) + " stands in a nesting too deep to be checked");
                return;
            }
            if (nodes[i].text.empty()) {
                checkLevel(i);
            }
        }
    }

private:
    // Files of the game nest six levels deep, so that each character is searched six times.
    static constexpr std::size_t WorkPerCharacter = 64;
    static constexpr std::size_t LeastWork = 1U << 20U;
    static constexpr std::size_t NotSearched = static_cast<std::size_t>(-1);

    [[nodiscard]] std::size_t openingOf(const TagNode& node) const { return tree_.offsetOf(node.name) - 1; }

    /// Where the closing tag of an element begins, as the parser finds it: the first of its name.
    std::size_t closingOf(std::uint32_t index) {
        std::size_t& closing = closings_[index];
        if (closing == NotSearched) {
            const TagNode& node = tree_.nodes()[index];
            const std::size_t opening = openingOf(node);
            const std::string closingTag = "</" + std::string(node.name) + ">";
            closing = tree_.content().find(closingTag, opening);
            const std::size_t work = closing - opening + closingTag.size();
            budget_ -= std::min(budget_, work);
        }
        return closing;
    }

    void checkLevel(std::uint32_t index) {
        const TagNode& node = tree_.nodes()[index];
        const bool isRoot = index == 0;
        const std::size_t end = isRoot ? tree_.content().size() : closingOf(index);
        std::size_t cursor = isRoot ? 0 : openingOf(node) + node.name.size() + 2;
        if (node.lastChild != TagNode::None) {
            cursor = closingOf(node.lastChild) + tree_.nodes()[node.lastChild].name.size() + 3;
        }
        if (cursor < end) {
            report(tree_.content().substr(cursor, end - cursor), cursor,
                   isRoot ? std::string() : " in " + tagText(node.name));
        }
    }

    void report(std::string_view rest, std::size_t offset, const std::string& where) {
        const std::size_t tagEnd = rest.find('>');
        std::string message;
        if (!rest.starts_with('<') || tagEnd == std::string_view::npos) {
            message = quoted(rest) + where + " stands between elements, and nothing from there on is read";
        } else if (rest.starts_with("</")) {
            message = quoted(rest.substr(0, tagEnd + 1)) + where +
                      " closes nothing, and nothing from there on is read";
        } else {
            message = tagText(rest.substr(1, tagEnd - 1)) + where +
                      " is not closed, and nothing from there on is read";
        }
        losses_.add(places_.placeAt(offset), LossKind::Unread, std::move(message));
    }

    const SourceMap& places_;
    const TagTree& tree_;
    LossList& losses_;
    std::vector<std::size_t> closings_;
    std::size_t budget_;
};

} // namespace

void findLostComments(const SourceMap& places, std::string_view fileContent, std::string_view savedContent,
                      LossList& losses) {
    std::vector<std::string_view> kept = commentsOf(savedContent, keptPieces(savedContent));
    std::sort(kept.begin(), kept.end());
    for (const std::string_view comment : commentsOf(fileContent, places.pieces())) {
        if (!std::binary_search(kept.begin(), kept.end(), comment)) {
            losses.add(places.placeInFile(comment), LossKind::Dropped, "comment " + quoted(comment));
        }
    }
}

void findBrokenNesting(const SourceMap& places, const TagTree& tree, LossList& losses) {
    if (!tree.root().text.empty()) {
        losses.add({}, LossKind::Unread,
                   quoted(tree.root().text) + " is no element, and nothing of the file is read");
        return;
    }
    NestingCheck(places, tree, losses).run();
}

void findJoinedLines(const SourceMap& places, const TagTree& tree, const TagNode& node, LossList& losses) {
    if (node.text.empty()) {
        return;
    }
    const std::size_t begin = tree.offsetOf(node.text);
    const std::vector<KeptPiece>& pieces = places.pieces();
    for (std::size_t i = places.firstPieceBehind(begin);
         i < pieces.size() && pieces[i].cleanedOffset < begin + node.text.size(); ++i) {
        const std::string_view former = pieces[i - 1].text;
        const bool isNextLine = pieces[i].line != pieces[i - 1].line;
        if (isNextLine || former.data() + former.size() != pieces[i].text.data()) {
            losses.add(places.placeInFile(former), LossKind::Changed,
                       tagText(node.name) + (isNextLine ? " loses the line ends in its text"
                                                        : " loses blanks in its text, in a line too long"));
            return;
        }
    }
}

} // namespace varrocade
