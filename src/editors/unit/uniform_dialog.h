#pragma once

#include "editors/unit/edit_context.h"

#include <windows.h>

namespace varrocade {

/// Opens the "Uniform" dialog of the unit; true when OK changed it.
bool editUniform(HWND owner, EditContext& edit);

} // namespace varrocade
