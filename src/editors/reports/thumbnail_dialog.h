#pragma once

#include "tools/pictures/thumbnails.h"

#include <windows.h>

#include <optional>

namespace varrocade {

/// Asks for one scale for all vehicles, or a size that each is fitted into. Nothing where the user cancels.
std::optional<ThumbnailOptions> askThumbnailOptions(HWND owner);

} // namespace varrocade
