#pragma once

#include "data/unit_record.h"

#include <windows.h>

#include <string>
#include <vector>

namespace varrocade {

/// What the vehicle editor works on, and what it needs from the window that opened it.
struct VehicleEditorContext {
    HWND owner;
    SquadRecord& record;
    /// The folders that images are offered from, each ending in a backslash.
    std::vector<std::string> imageBases;
    /// Shows the record's present state in the main window.
    void (*redraw)();
};

/// Opens the "Details" dialog. Changes of the component list take effect at once; the dialog's own fields are
/// taken over on "Save any changes", which returns true.
bool editVehicle(VehicleEditorContext context);

} // namespace varrocade
