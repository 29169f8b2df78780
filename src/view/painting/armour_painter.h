#pragma once
// Armour as the data sheet and the armour dialog show it.

#include "view/painting/paint_device.h"
#include "view/sheet/data_sheet.h"

#include <string_view>

namespace varrocade {

/// A component's armour from the side and across: side by side, or one below the other where that is too
/// wide for the labels. Returns the height that it takes.
int paintArmour(PaintDevice& device, int left, int right, int top, const SheetArmour& armour);

/// One sketch in the middle of its area, below a caption, without figures. A plate of `thickest` millimetres
/// is drawn as thick as plates get.
void paintPlates(PaintDevice& device, const PixelRect& area, const ArmourSketch& sketch,
                 std::string_view caption, int thickest);

} // namespace varrocade
