#pragma once

#include "editors/mod/mod_edit.h"
#include "mod/equipment_lists.h"

#include <windows.h>

#include <string>
#include <vector>

namespace varrocade {

/// What the units of an equipment list are chosen from.
struct UnitsOfList {
    const std::vector<EquipmentSource>& sources;
    std::string nationality; ///< of the force
    MonthRange time;         ///< of the list
    std::string title;       ///< of the dialog
};

/// Opens the dialog of an equipment list's units; true when OK changed them.
bool editListedUnits(HWND owner, const UnitsOfList& from, std::vector<ModListedUnit>& units);

} // namespace varrocade
