#pragma once
// The picture and the data sheet of the open record in the main window.

#include "view/data_sheet.h"
#include "view/painter_win32.h"

#include <windows.h>

#include <memory>

namespace varrocade {

struct UnitDisplay {
    DrawList drawing;
    DataSheet sheet;
    bool hasDrawing = false;
    bool isStale = true; ///< the record changed since drawing and sheet were made
    int scroll = 0;      ///< pixels that the sheet is scrolled down
    int sheetHeight = 0; ///< pixels of the whole sheet
    std::unique_ptr<MemoryBitmap> picture;
    SIZE pictureSize{};
};

/// Paints the areas to the right of the list; what has not changed comes from memory.
void paintDisplay(HDC device, const RECT& client);

/// Scrolls the sheet by pixels, as far as there is something to see.
void scrollSheet(int pixels, int visibleHeight);

/// Shows the scroll bar where the sheet is higher than its area, and how far it is scrolled.
void updateSheetScrollBar(HWND bar, int visibleHeight);

/// What a message of the scroll bar asks for.
void scrollSheetByBar(HWND bar, int request, int visibleHeight);

} // namespace varrocade
