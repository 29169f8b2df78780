#pragma once
// What saving a file anew would drop or change of the file as it stands: the warning before a lossy save.

#include "data/category.h"
#include "data/finding.h"
#include "data/losses/loss_list.h"

#include <optional>
#include <string_view>
#include <vector>

namespace varrocade {

/// What reading a unit file with this content and writing it with the category's writer would lose, in the
/// order of the file's lines; empty when nothing. No list at all when the writer has nothing to write.
/// Layout, the order of elements and values left out because their absence means the same are no losses.
std::optional<std::vector<Finding>> unitSaveLosses(Category category, std::string_view fileContent);

} // namespace varrocade
