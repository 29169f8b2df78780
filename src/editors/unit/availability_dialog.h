#pragma once

#include "editors/unit/edit_context.h"

#include <windows.h>

namespace varrocade {

struct DrawingObjects;

/// Opens the "Availability" dialog on the unit; true when OK took its points over.
bool editAvailability(HWND owner, EditContext& edit, const DrawingObjects& drawing);

} // namespace varrocade
