#pragma once
// Shows what a spreadsheet would change before it does.

#include "tools/sheets/sheet_import.h"

#include <windows.h>

namespace varrocade {

/// True where the user wants it written.
bool confirmImport(HWND owner, const SheetImport& import);

} // namespace varrocade
