#pragma once
// The picture and the data sheet of the open record in the main window.

#include "view/drawing/component_places.h"
#include "view/drawing/draw_list.h"
#include "view/drawing/view_place.h"
#include "view/painting/sheet_painter.h"

#include <windows.h>

#include <vector>

namespace varrocade {

/// The drawing of a unit as the present options show it; `turns` as in `UnitDisplay`.
DrawList drawingOf(const SquadRecord& unit, const std::vector<double>& turns);

/// How a drawing that the user has not zoomed is shown in a window of this size.
Fit wholeFit(const DrawList& drawing, SIZE size);

/// Paints the drawing into the whole of its window.
void paintUnit(HDC device, const RECT& client);

/// Paints the data sheet into the whole of its window.
void paintSheetArea(HDC device, const RECT& client);

/// Puts the units that carry the open weapon on its sheet, now that all are known; false when they are there.
bool updateWeaponUsers();

/// Scrolls the sheet by pixels, as far as there is something to see.
void scrollSheet(int pixels);

/// Scrolls the sheet so far that it shows the selected part, where it has a row for it, and paints it.
void showSelectedRow();

/// The line of the sheet's bar at a pixel of its window, or null.
const SheetWarningPlace* sheetWarningAt(POINT pixel);

/// The link of the sheet at a pixel of its window, or null.
const SheetLinkPlace* sheetLinkAt(POINT pixel);

/// Scrolls the sheet to the section of problems.
void showProblems();

/// How much of the sheet is in sight, in pixels.
int visibleSheetHeight();

/// What is kept of each component goes with it.
void carryComponents(const FormerPlaces& places);

/// The part at a pixel of the sheet's window.
UnitPart sheetPartAt(POINT pixel);

} // namespace varrocade
