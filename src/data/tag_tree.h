#pragma once
// The tagged text of every data file: elements `<name>...</name>` that hold either text or other elements, no
// attributes, no escapes, "//" comments. The tree knows no element names; what they mean is the readers'
// business.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// One element. Names and texts are parts of the tree's cleaned content; nodes name each other by their
/// index.
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

    [[nodiscard]] const std::vector<TagNode>& nodes() const { return nodes_; }
    [[nodiscard]] const TagNode& root() const { return nodes_.front(); }
    /// The content without comments, indentation and line ends, which the nodes' names and texts are parts
    /// of.
    [[nodiscard]] std::string_view cleaned() const { return cleaned_; }
    /// Where a part of the cleaned content begins, such as a node's name.
    [[nodiscard]] std::size_t offsetOf(std::string_view part) const {
        return static_cast<std::size_t>(part.data() - cleaned_.data());
    }

private:
    std::string cleaned_;
    std::vector<TagNode> nodes_;
};

/// Strips comments, line ends and each line's leading and trailing blanks. CR LF, LF and a lone CR end a
/// line; a line of more than 510 characters is cleaned in pieces of that length, as the game's own reader
/// does.
void cleanTaggedText(std::string_view fileContent, std::string& cleaned);

/// What cleaning keeps of a line, or of a piece of a long line.
struct KeptPiece {
    std::string_view text;     ///< a part of the file's content, never empty
    std::size_t line;          ///< from 1
    std::size_t cleanedOffset; ///< where it begins in the cleaned content
};
std::vector<KeptPiece> keptPieces(std::string_view fileContent);

/// The line (from 1) of the file on which the character at `cleanedOffset` of the cleaned content stands.
/// Cleans again, so it costs as much as reading: for messages only.
std::size_t lineOfOffset(std::string_view fileContent, std::size_t cleanedOffset);

} // namespace varrocade
