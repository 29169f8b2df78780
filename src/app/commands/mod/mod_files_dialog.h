#pragma once

#include "app/workspace/mod/mod_work.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// A choice of files of one category, for "Copy into mod" and "Remove from mod".
struct ModFiles {
    std::string_view caption;
    /// Those that there are to choose from.
    std::vector<std::string> (*names)(const Workspace& workspace, Category category);
    std::string chosen = {};             ///< to begin with
    std::optional<CopyNeeds> needs = {}; ///< whether what the files need comes along, where that can be asked
    Category category = Category::Vehicles;
    std::vector<std::string> picked = {};
};

/// Asks for the files; false when the user would rather not.
bool chooseModFiles(ModFiles& files);

/// Asks whether files are to go from the mod, in a box with that caption.
bool mayRemoveFromMod(const std::vector<std::string>& names, const std::string& caption);

} // namespace varrocade
