#pragma once

#include "editors/mod/mod_edit.h"

#include <windows.h>

namespace varrocade {

/// Opens the dialog of the nationalities that take part; true when OK changed them.
bool editNationalities(HWND owner, ModEdit& edit);

/// Opens the dialog of the interface's colours; true when OK changed them.
bool editColours(HWND owner, ModColours& colours);

} // namespace varrocade
