#pragma once
// Armour as the data sheet and the armour dialog show it.

#include "view/painting/paint_device.h"
#include "view/sheet/data_sheet.h"

#include <string_view>

namespace varrocade {

/// The pixels that one component takes on the sheet.
int armourHeight(const PaintDevice& device);

/// A component's armour from the side and across, side by side.
void paintArmour(PaintDevice& device, const PixelRect& area, const SheetArmour& armour);

/// One sketch in the middle of its area, below a caption, without figures. A plate of `thickest` millimetres
/// is drawn as thick as plates get.
void paintPlates(PaintDevice& device, const PixelRect& area, const ArmourSketch& sketch,
                 std::string_view caption, int thickest);

} // namespace varrocade
