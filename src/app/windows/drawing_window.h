#pragma once
// The drawing of the open unit: a window of its own, so that it can have the keyboard.

#include <windows.h>

namespace varrocade {

bool registerDrawingWindow();
HWND createDrawingWindow(HWND parent);

/// Decodes the pictures of the selected entry's neighbours, a while later.
void prefetchNeighbours();

/// Shows the whole unit again, every turret at its rest.
void resetView();

/// Bigger by `steps` about a pixel of the screen, or smaller.
void zoomDrawing(POINT screenPixel, int steps);

/// Whether a pixel of the screen lies in the drawing.
bool isOverDrawing(POINT screenPixel);

} // namespace varrocade
