#pragma once
// Decodes and places the pictures of the units beside the selected one while the window has nothing else to
// do: going through the list with the arrow keys then paints at once.

#include "view/drawing/draw_list.h"
#include "view/drawing/view_place.h"

#include <string>
#include <vector>

namespace varrocade {

struct PicturePrefetch {
    std::vector<std::string> units;    ///< whose files are still to be looked at
    std::vector<PictureItem> pictures; ///< of one of them, still to be decoded
    Fit fit;                           ///< how it will be shown
};

/// Takes the neighbours of the selected entry for the next ones to be shown.
void startPrefetch();

/// One small step, at most the decoding of one picture; false when nothing is left to do.
bool prefetchStep();

} // namespace varrocade
