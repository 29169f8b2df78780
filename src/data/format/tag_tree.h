#pragma once
// The tagged text of every data file: elements `<name>...</name>` that hold either text or other elements, no
// attributes, no escapes, "//" comments. The tree knows no element names; what they mean is the readers'
// business.

#include "data/format/tag_node.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

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

} // namespace varrocade
