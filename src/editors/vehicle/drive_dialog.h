#pragma once

#include "editors/unit/edit_context.h"

#include <windows.h>

namespace varrocade {

/// Opens the "Drive" dialog on the vehicle; true when OK took its fields over.
bool editDrive(HWND owner, EditContext& edit);

} // namespace varrocade
