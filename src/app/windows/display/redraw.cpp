#include "app/windows/display/redraw.h"

#include "app/windows/application.h"
#include "resources/resource.h"

namespace varrocade {

HWND drawingWindow() {
    return GetDlgItem(application().window, IDC_DRAWING);
}

HWND sheetWindow() {
    return GetDlgItem(application().window, IDC_SHEET);
}

void displayChanged() {
    application().display.isStale = true;
}

void redrawNow() {
    redrawDrawing();
    redrawSheet();
}

void redrawDrawing() {
    application().display.isDrawingStale = true;
    InvalidateRect(drawingWindow(), nullptr, FALSE);
    UpdateWindow(drawingWindow());
}

void redrawSheet() {
    application().display.sheetCanvas.isPainted = false;
    InvalidateRect(sheetWindow(), nullptr, FALSE);
    UpdateWindow(sheetWindow());
}

} // namespace varrocade
