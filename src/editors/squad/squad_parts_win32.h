#pragma once
// Which dialog edits a part of a squad on foot, a heavy weapon or an aircraft.

#include "editors/unit/edit_context.h"
#include "view/drawing/unit_part.h"

#include <windows.h>

namespace varrocade {

/// Whether a part of a unit that is no vehicle has an editor.
bool hasSquadEditor(const SquadRecord& unit, const UnitPart& part);

/// Opens it; true when the unit is to be saved.
bool editSquadPart(HWND owner, EditContext& edit, const UnitPart& part);

} // namespace varrocade
