#pragma once

#include "view/painting/paint_device.h"

#include <span>
#include <string>
#include <string_view>

namespace varrocade {

/// Paints the flag of a nationality, given by its word such as "GERMAN"; false when there is no picture of
/// it.
bool paintFlag(PaintDevice& device, const PixelRect& area, std::string_view nationalityWord,
               std::span<const std::string> bases);

} // namespace varrocade
