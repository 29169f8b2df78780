#pragma once
// The part of the open unit that is selected in the drawing and on the data sheet, and what can be done with
// it.

#include "app/workspace/record/undo_history.h"
#include "view/drawing/unit_part.h"
#include "view/sheet/unit_problems.h"

#include <windows.h>

namespace varrocade {

/// Selects a part, or none, and shows that.
void selectPart(const UnitPart& part);

/// Whether there is an editor for the selected part.
bool canEditSelectedPart();
void editSelectedPart();
/// Opens the editor of a part at a field; of the unit as a whole where the part has none.
void editPartAt(const FieldTarget& target);

/// Moves the selected part by whole centimetres, to the right and upwards in the drawing; false when it
/// cannot be moved. Moves that follow one another are one step of the undo history.
bool nudgeSelectedPart(int right, int up);

/// Ends a move of the selected part that began with `before`: one step of the undo history.
void finishPartMove(const RecordState& before);

/// Puts the selected part back to where it was before its last move; false when it was not moved.
bool putPartBack();

/// The menu of the selected part, at a pixel of the screen.
void showPartMenu(POINT screenPixel);

} // namespace varrocade
