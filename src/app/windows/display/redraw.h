#pragma once
// Having the windows that show the open record painted anew.

#include <windows.h>

namespace varrocade {

HWND drawingWindow();
HWND sheetWindow();

/// The open record changed: drawing and sheet are made anew with the next painting.
void displayChanged();

/// Paints the display at once, without erasing it first.
void redrawNow();

/// Paints the drawing, or the sheet, at once.
void redrawDrawing();
void redrawSheet();

} // namespace varrocade
