#pragma once

#include "editors/unit/edit_context.h"

#include <windows.h>

namespace varrocade {

/// Opens the "Armour" dialog on a component; true when OK took its fields over.
bool editArmour(HWND owner, EditContext& edit, ComponentRecord& component);

} // namespace varrocade
