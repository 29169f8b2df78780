#pragma once
// The rules over what "Mod.txt" names: pictures of flags, uniforms and ranks, and the units of its lists.

#include "data/format/tag_tree.h"
#include "tools/checks/engine/file_findings.h"
#include "tools/checks/engine/knowledge.h"

#include <string_view>

namespace varrocade {

/// The years of a mod, and what its settings name that is not there.
void checkModNames(const CheckKnowledge& knowledge, const TagTree& tree, std::string_view content,
                   FileFindings& out);

} // namespace varrocade
