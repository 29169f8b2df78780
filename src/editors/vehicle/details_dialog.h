#pragma once

#include "editors/unit/edit_context.h"

#include <windows.h>

namespace varrocade {

struct DrawingObjects;

/// Opens the "Details" dialog. Changes of the component list take effect at once; the dialog's own fields are
/// taken over on "Save any changes", which returns true.
bool editVehicle(HWND owner, EditContext& edit, const DrawingObjects& drawing);

} // namespace varrocade
