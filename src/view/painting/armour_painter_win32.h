#pragma once
// Paints the small drawings of armour on the data sheet.

#include "view/painting/drawing_objects_win32.h"
#include "view/sheet/data_sheet.h"

namespace varrocade {

/// The pixels that one component takes.
int armourHeight(const DrawingObjects& objects);

/// A component's armour from the side and across, side by side.
void paintArmour(HDC device, const RECT& area, const SheetArmour& armour, const DrawingObjects& objects);

} // namespace varrocade
