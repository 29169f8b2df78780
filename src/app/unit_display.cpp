#include "app/unit_display.h"

#include "app/application.h"
#include "app/window_layout.h"
#include "view/part_positions.h"

#include <algorithm>

namespace varrocade {

namespace {

RECT asRect(const Place& place) {
    return {place.x, place.y, place.x + place.width, place.y + place.height};
}

void composeDrawing(UnitDisplay& display) {
    Application& app = application();
    display.isDrawingStale = false;
    display.pictureSize = {};
    display.drawing = {};
    display.hasDrawing = false;
    if (!app.openUnit) {
        return;
    }
    const DrawOptions options{.bases = imageBases(),
                              .showDestroyed = app.showDestroyed,
                              .showMarks = app.showMarks,
                              .turns = display.turns};
    const SquadRecord& unit = *app.openUnit;
    display.hasDrawing = unit.vehicle || unit.heavyWeapon || unit.aircraft;
    if (unit.vehicle) {
        display.drawing = drawVehicle(*unit.vehicle, options, app.pictures);
    } else if (unit.heavyWeapon) {
        display.drawing = drawHeavyWeapon(*unit.heavyWeapon, options, app.pictures);
    } else if (unit.aircraft) {
        display.drawing = drawAircraft(*unit.aircraft, options, app.pictures);
    }
}

/// Makes anew what the record or the view has changed.
void composeDisplay(UnitDisplay& display) {
    const Application& app = application();
    if (display.isStale || display.isDrawingStale) {
        composeDrawing(display);
    }
    if (display.isStale) {
        display.isStale = false;
        display.sheet = app.openWeapon ? weaponSheet(*app.openWeapon)
                        : app.openUnit ? unitSheet(*app.openUnit, display.drawing.missingPictures)
                                       : DataSheet{};
    }
}

void paintHint(HDC device, const RECT& area, const DrawingObjects& objects) {
    constexpr char hint[] = "Choose a file in the list.";
    FillRect(device, &area, objects.beigeBrush.get());
    const Selection font(device, objects.normalFont.get());
    SetBkMode(device, TRANSPARENT);
    RECT place = area;
    DrawTextA(device, hint, -1, &place, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

} // namespace

void paintUnit(HDC device, const RECT& client) {
    Application& app = application();
    UnitDisplay& display = app.display;
    const SIZE size{client.right, client.bottom};
    if (size.cx <= 0 || size.cy <= 0) {
        return;
    }
    composeDisplay(display);
    // Painted once for each state and size; painting again only copies it.
    if (!display.picture || display.pictureSize.cx != size.cx || display.pictureSize.cy != size.cy) {
        display.picture = std::make_unique<MemoryBitmap>(device, size.cx, size.cy);
        display.pictureSize = size;
        display.shownFit = display.ownFit.value_or(fitInto(display.drawing, size.cx,
                                                           size.cy - app.drawing.scaled(ScaleHeight),
                                                           app.drawing.scaled(DrawingMargin)));
        if (display.hasDrawing) {
            const DrawingView view{.fit = display.shownFit,
                                   .selected = display.selected,
                                   .caption = display.caption.empty()
                                                  ? positionText(*app.openUnit, display.selected)
                                                  : display.caption};
            paintDrawing(display.picture->device(), client, display.drawing, view, app.drawing, app.pictures);
        } else {
            FillRect(display.picture->device(), &client, app.drawing.beigeBrush.get());
        }
    }
    BitBlt(device, 0, 0, size.cx, size.cy, display.picture->device(), 0, 0, SRCCOPY);
}

void paintDisplay(HDC device, const RECT& client) {
    Application& app = application();
    UnitDisplay& display = app.display;
    composeDisplay(display);
    RECT sheet = asRect(sheetPlace(client.right, client.bottom, app.drawing.dpi));
    // The scroll bar's place is kept free whether it is there or not, so that the text does not jump.
    RECT barPlace = sheet;
    sheet.right -= GetSystemMetrics(SM_CXVSCROLL);
    barPlace.left = sheet.right;
    FillRect(device, &barPlace, app.drawing.beigeBrush.get());
    const int width = sheet.right - sheet.left;
    if (width <= 0 || sheet.bottom <= 0) {
        return;
    }
    const MemoryBitmap buffer(device, width, sheet.bottom);
    const RECT whole{0, 0, width, sheet.bottom};
    if (isRecordOpen()) {
        const SheetOptions options{.bases = imageBases(), .scroll = display.scroll};
        display.sheetHeight =
            paintSheet(buffer.device(), whole, display.sheet, options, app.drawing, app.pictures);
    } else {
        paintHint(buffer.device(), whole, app.drawing);
    }
    BitBlt(device, sheet.left, sheet.top, width, sheet.bottom, buffer.device(), 0, 0, SRCCOPY);
}

void scrollSheet(int pixels, int visibleHeight) {
    UnitDisplay& display = application().display;
    const int furthest = std::max(0, display.sheetHeight - visibleHeight);
    display.scroll = std::clamp(display.scroll + pixels, 0, furthest);
}

void updateSheetScrollBar(HWND bar, int visibleHeight) {
    const UnitDisplay& display = application().display;
    const bool isNeeded = isRecordOpen() && display.sheetHeight > visibleHeight;
    if (isNeeded) {
        SCROLLINFO info{};
        info.cbSize = sizeof(info);
        info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
        info.nMax = display.sheetHeight - 1;
        info.nPage = static_cast<UINT>(visibleHeight);
        info.nPos = display.scroll;
        SetScrollInfo(bar, SB_CTL, &info, TRUE);
    }
    ShowWindow(bar, isNeeded ? SW_SHOWNA : SW_HIDE);
}

void scrollSheetByBar(HWND bar, int request, int visibleHeight) {
    constexpr int lineHeight = 20;
    const int line = application().drawing.scaled(lineHeight);
    switch (request) {
    case SB_LINEUP:
        scrollSheet(-line, visibleHeight);
        break;
    case SB_LINEDOWN:
        scrollSheet(line, visibleHeight);
        break;
    case SB_PAGEUP:
        scrollSheet(-visibleHeight, visibleHeight);
        break;
    case SB_PAGEDOWN:
        scrollSheet(visibleHeight, visibleHeight);
        break;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION: {
        SCROLLINFO info{};
        info.cbSize = sizeof(info);
        info.fMask = SIF_TRACKPOS;
        GetScrollInfo(bar, SB_CTL, &info);
        scrollSheet(info.nTrackPos - application().display.scroll, visibleHeight);
        break;
    }
    default:
        break;
    }
}

} // namespace varrocade
