#pragma once
// The tagged text of every data file: elements `<name>...</name>` that hold either text or other elements, no
// attributes, no escapes, "//" comments. The tree knows no element names; what they mean is the readers'
// business.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// One element. Names and texts are parts of the tree's content; nodes name each other by their index.
struct TagNode {
    static constexpr std::uint32_t None = UINT32_MAX;

    /// The characters between `<` and `>`, verbatim; empty for the root.
    std::string_view name;
    /// The content when it does not begin with `<`, otherwise empty.
    std::string_view text;
    std::uint32_t parent = None;
    std::uint32_t firstChild = None;
    std::uint32_t lastChild = None;
    std::uint32_t nextSibling = None;
    std::uint32_t childCount = 0;
};

/// A parsed file. `nodes[0]` is the root; every element stands behind its parent and before its next sibling,
/// so walking the vector from front to back is the walk depth first in file order, without recursion however
/// deep the file nests.
class TagTree {
public:
    TagTree() : nodes_(1) {}
    TagTree(const TagTree&) = delete;
    TagTree& operator=(const TagTree&) = delete;

    /// Parses the content of a file; what the tree held before is dropped. Malformed nesting ends the level
    /// concerned without a message: a missing closing tag drops that element and its later siblings.
    void parse(std::string_view fileContent);

    /// The same tree, with all its parts in `content()` without comments, indentation and line ends: for
    /// those who look at what lies between the elements. Slower.
    void parseCleaned(std::string_view fileContent);

    [[nodiscard]] const std::vector<TagNode>& nodes() const { return nodes_; }
    [[nodiscard]] const TagNode& root() const { return nodes_.front(); }
    /// What the nodes' names and texts are parts of: the file as it stands, or what cleaning leaves of it.
    [[nodiscard]] std::string_view content() const { return content_; }
    /// Where a part of the content begins, such as a node's name.
    [[nodiscard]] std::size_t offsetOf(std::string_view part) const {
        return static_cast<std::size_t>(part.data() - content_.data());
    }
    /// Whether the content is the file as it stands. `SourceMap` finds the places of either in the file.
    [[nodiscard]] bool isVerbatim() const { return isVerbatim_; }

private:
    std::string content_;
    std::vector<TagNode> nodes_;
    bool isVerbatim_ = false;
};

/// Whether a text can be an element's value: read again it is the same, and nothing behind it is lost. "//"
/// begins a comment even within a value, "</" may close an element further out, and a value that begins with
/// "<" is taken for elements.
bool canBeValue(std::string_view text);

/// Appends an element to its parent's children and returns its index.
inline std::uint32_t addNode(std::vector<TagNode>& nodes, std::uint32_t parent, std::string_view name) {
    const auto index = static_cast<std::uint32_t>(nodes.size());
    TagNode& node = nodes.emplace_back();
    node.name = name;
    node.parent = parent;
    TagNode& above = nodes[parent];
    if (above.lastChild == TagNode::None) {
        above.firstChild = index;
    } else {
        nodes[above.lastChild].nextSibling = index;
    }
    above.lastChild = index;
    ++above.childCount;
    return index;
}

/// Strips comments, line ends and each line's leading and trailing blanks. CR LF, LF and a lone CR end a
/// line; a line of more than `LinePieceLength` characters is cleaned in pieces, as the game's own reader
/// does.
void cleanTaggedText(std::string_view fileContent, std::string& cleaned);

/// What cleaning keeps of a line, or of a piece of a long line.
struct KeptPiece {
    std::string_view text;     ///< a part of the file's content, never empty
    std::size_t line;          ///< from 1
    std::size_t cleanedOffset; ///< where it begins in the cleaned content
};
std::vector<KeptPiece> keptPieces(std::string_view fileContent);

/// The game's buffer for a line: a longer one is cleaned in pieces of this many characters.
inline constexpr std::size_t LinePieceLength = 510;

} // namespace varrocade
