#pragma once

#include "data/game_files.h"
#include "editors/unit/edit_context.h"

#include <windows.h>

#include <string>

namespace varrocade {

/// What the dialog "Weight and Top Speed" is opened with.
struct PerformanceTerms {
    EditContext& edit;        ///< whose vehicle takes the estimate
    const SquadRecord& shown; ///< the vehicle as an open form has it, or the same as that of `edit`
    /// Where "Compare..." reads the vehicles; null where the open vehicle cannot be left.
    const GameFolders* folders = nullptr;
};

/// Opens the dialog; returns the name of the vehicle that the user chose in the comparison, or nothing.
std::string showPerformance(HWND owner, const PerformanceTerms& terms);

} // namespace varrocade
