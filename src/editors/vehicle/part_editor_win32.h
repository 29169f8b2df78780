#pragma once

#include "editors/unit/edit_context.h"
#include "view/drawing/unit_part.h"

#include <windows.h>

namespace varrocade {

struct DrawingObjects;

/// Whether there is a dialog that edits such a part of the unit.
bool hasEditor(const SquadRecord& unit, const UnitPart& part);

/// Opens the dialog that edits a part, with the part shown where the dialog is a list. What is changed takes
/// effect at once and can be undone. Returns whether the unit is to be saved: "Save any changes" of the
/// "Details" dialog.
bool editPart(HWND owner, EditContext& edit, const DrawingObjects& drawing, const UnitPart& part);

} // namespace varrocade
