#pragma once
// The tagged text as plainly as it can be parsed, to compare the real parser with: one line after the other,
// one recursive call an element.

#include "data/format/tag_tree.h"

#include <string>
#include <string_view>
#include <vector>

namespace varrocade::tests {

struct ModelNode {
    std::string name;
    std::string text;
    std::vector<ModelNode> children;
};

/// The content without comments, blanks at line borders and line ends.
std::string modelCleaned(std::string_view content);

/// Parses cleaned text; false when there are more than `mostNodes` elements, for ranges may overlap.
bool parseModel(std::string_view cleaned, std::size_t mostNodes, ModelNode& root);

/// Whether the parser's tree is the model's, down to the links between the nodes.
bool isSameTree(const TagTree& tree, const ModelNode& model);

/// Parses a document, as it stands and cleaned first, and compares both trees with the model's. Says what
/// differs, or nothing. Documents whose ranges overlap into too large a tree are only parsed.
std::string differenceFromModel(std::string_view document);

/// A tree in one line, such as "squad{hull{width=5 length=7}}".
std::string describe(const TagTree& tree);

} // namespace varrocade::tests
