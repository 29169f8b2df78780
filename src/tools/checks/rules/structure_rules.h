#pragma once
// Tags that do not match: what the game's reader takes apart in its own way, and silently.

#include "data/element_table.h"
#include "tools/checks/engine/file_findings.h"

#include <string_view>
#include <vector>

namespace varrocade {

/// Looks through the cleaned content of a file that is not plainly nested. `mended` gets the elements as they
/// were probably meant, each behind its parent; their names and texts are parts of `text`.
void checkStructure(std::string_view text, const ElementTable& table, FileFindings& out,
                    std::vector<TagNode>& mended);

} // namespace varrocade
