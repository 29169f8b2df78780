#pragma once
// What a mod changes, as the rows of a table.

#include "mod/changes/mod_changes.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// A file, or one of its values, as places in the changes.
struct ChangeRow {
    std::size_t file = 0;
    std::optional<std::size_t> value = {}; ///< none for the file as a whole
    std::array<std::string, 3> cells = {}; ///< what, the game's, the mod's
};

/// The files whose names hold every word of the filter, each with its values below it.
std::vector<ChangeRow> changeRows(const ModChanges& changes, std::string_view filter);

/// How many there are, which files are the game's own over again, and what could not be read.
std::string changesSummary(const ModChanges& changes);

/// A value of a mod's file that is to be the game's again, or the file as a whole.
struct WantedRevert {
    const FileChange* file = nullptr;
    const ValueChange* value = nullptr; ///< null for the file as a whole
};

/// What chosen rows come to. A value whose file is chosen itself goes with that; `areFiles` takes the files
/// of chosen values as a whole. Each file and each value stands once.
std::vector<WantedRevert> wantedReverts(const ModChanges& changes, const std::vector<ChangeRow>& rows,
                                        const std::vector<std::size_t>& chosen, bool areFiles);

} // namespace varrocade
