#pragma once
// The window that shows what a check of a mod has found.

#include "tools/reports/mod_check.h"

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

namespace varrocade {

struct ModCheckTools {
    FileOperations& files;
    std::string modFolder;
};

/// What came of it.
struct ModCheckOutcome {
    std::optional<GameFile> shown; ///< the unit or weapon to open when the window has closed
    bool hasMoved = false;         ///< files of the mod are gone
};

/// Shows the rows; those of files can be moved to the recycle bin, several at once.
ModCheckOutcome showModCheck(HWND owner, int dialogTemplate, const ModCheckTools& tools,
                             std::vector<ModCheckRow> rows);

} // namespace varrocade
