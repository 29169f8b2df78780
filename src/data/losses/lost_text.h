#pragma once
// What a file loses before any rule sees it: comments, and content that its broken nesting hides.

#include "data/format/tag_tree.h"
#include "data/losses/loss_list.h"

#include <string_view>

namespace varrocade {

/// The comments of a file that the saved one does not have.
void findLostComments(const SourceMap& places, std::string_view fileContent, std::string_view savedContent,
                      LossList& losses);

/// What stands between elements or in elements that are not closed, and so is in no node of the tree.
void findBrokenNesting(const SourceMap& places, const TagTree& tree, LossList& losses);

/// Line ends, comments and blanks at the pieces of long lines that stood within the text of a node.
void findJoinedLines(const SourceMap& places, const TagTree& tree, const TagNode& node, LossList& losses);

} // namespace varrocade
