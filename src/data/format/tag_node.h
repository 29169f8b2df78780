#pragma once
// What a tree of tags is made of, for those who put one together and those who read it.

#include <cstdint>
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

} // namespace varrocade
