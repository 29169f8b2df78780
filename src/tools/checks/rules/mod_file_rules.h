#pragma once
// The rules over what "Mod.txt" names: pictures of flags, uniforms and ranks, and the units of its lists.

#include "data/finding.h"
#include "tools/checks/engine/knowledge.h"

#include <string_view>
#include <vector>

namespace varrocade {

/// What is found about the settings of a mod, by their lines; without what their comments suppress.
std::vector<Finding> checkModFile(const CheckKnowledge& knowledge, std::string_view content);

} // namespace varrocade
