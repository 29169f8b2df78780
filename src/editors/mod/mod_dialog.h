#pragma once

#include "editors/mod/mod_edit.h"

#include <windows.h>

namespace varrocade {

/// Opens the "Edit Mod" dialog; true when its settings were saved.
bool editMod(HWND owner, ModEdit& edit);

} // namespace varrocade
