#pragma once
// Decodes and places the pictures of the units beside the selected one while the window has nothing else to
// do: going through the list with the arrow keys then paints at once.

namespace varrocade {

/// Takes the neighbours of the selected entry for the next ones to be shown.
void startPrefetch();

/// One small step, at most the decoding of one picture; false when nothing is left to do.
bool prefetchStep();

} // namespace varrocade
