#pragma once

#include "view/painting/picture_cache_win32.h"

#include <span>
#include <string>
#include <string_view>

namespace varrocade {

/// Paints the flag of a nationality, given by its word such as "GERMAN"; false when there is no picture of
/// it.
bool paintFlag(HDC device, const RECT& area, std::string_view nationalityWord,
               std::span<const std::string> bases, PictureCache& pictures);

} // namespace varrocade
