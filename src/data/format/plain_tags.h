#pragma once

#include "data/format/tag_node.h"

#include <string_view>
#include <vector>

namespace varrocade {

/// Parses a file in one pass over it as it stands, in place of cleaning it first; the nodes' names and texts
/// are parts of `content`. Takes the files that nearly all are: properly nested, no tag or text broken by a
/// line end or a comment, no line longer than the game's buffer, no element within one of its own name. False
/// for all others, with `nodes` to be thrown away.
bool parsePlainly(std::string_view content, std::vector<TagNode>& nodes);

} // namespace varrocade
