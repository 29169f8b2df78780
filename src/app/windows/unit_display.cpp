#include "app/windows/unit_display.h"

#include "app/windows/application.h"
#include "app/windows/sheet_window.h"
#include "view/drawing/part_positions.h"
#include "view/painting/gdi_device_win32.h"

#include <algorithm>
#include <array>
#include <utility>

namespace varrocade {

namespace {

DrawOptions drawOptions(std::vector<double> turns) {
    const Application& app = application();
    return {.bases = imageBases(),
            .showDestroyed = app.showDestroyed,
            .showMarks = app.showMarks,
            .turns = std::move(turns)};
}

} // namespace

DrawList drawingOf(const SquadRecord& unit, const std::vector<double>& turns) {
    Application& app = application();
    const DrawOptions options = drawOptions(turns);
    DrawList drawing;
    if (unit.vehicle) {
        drawing = drawVehicle(*unit.vehicle, options, app.pictures);
    } else if (unit.heavyWeapon) {
        drawing = drawHeavyWeapon(*unit.heavyWeapon, options, app.pictures);
    } else if (unit.aircraft) {
        drawing = drawAircraft(*unit.aircraft, options, app.pictures);
    }
    if (!unit.infantrymen.empty()) {
        addMen(drawing, unit, app.catalogue, options, app.pictures);
    }
    return drawing;
}

Fit wholeFit(const DrawList& drawing, SIZE size) {
    const Application& app = application();
    return fitInto(drawing, size.cx, size.cy - app.drawing.scaled(ScaleHeight),
                   app.drawing.scaled(DrawingMargin), app.openWeapon ? GreatestScale : GreatestFittedScale);
}

namespace {

void composeDrawing(UnitDisplay& display) {
    Application& app = application();
    display.isDrawingStale = false;
    display.drawingCanvas.isPainted = false;
    display.drawing = {};
    display.hasDrawing = false;
    if (app.openWeapon) {
        display.hasDrawing = true;
        display.drawing = drawWeapon(*app.openWeapon, drawOptions({}), app.pictures);
    }
    if (app.openUnit) {
        const SquadRecord& unit = *app.openUnit;
        display.hasDrawing = unit.vehicle || unit.heavyWeapon || unit.aircraft || !unit.infantrymen.empty();
        display.drawing = drawingOf(unit, display.turns);
    }
}

std::optional<std::vector<std::string>> usersOfOpenWeapon() {
    const Application& app = application();
    const std::array<std::string_view, 2> names = {app.openWeapon->name, app.openWeapon->fileName};
    return app.weaponUsers.usersOf(names);
}

std::vector<std::string> problemsOfOpenWeapon() {
    const Application& app = application();
    return app.catalogue.problemsOf(dataFilePath(baseFolder(), Category::Weapons, app.openWeapon->fileName));
}

void composeWeaponSheet(UnitDisplay& display) {
    display.weaponUsers = usersOfOpenWeapon();
    display.sheet = weaponSheet(*application().openWeapon, problemsOfOpenWeapon(), display.weaponUsers);
}

/// Makes anew what the record or the view has changed.
void composeDisplay(UnitDisplay& display) {
    const Application& app = application();
    if (display.isStale || display.isDrawingStale) {
        composeDrawing(display);
    }
    if (display.isStale) {
        display.isStale = false;
        display.sheetCanvas.isPainted = false;
        if (app.openWeapon) {
            composeWeaponSheet(display);
            startLookingForUsers();
        } else {
            display.sheet = app.openUnit
                                ? unitSheet(*app.openUnit, display.drawing.missingPictures, app.catalogue)
                                : DataSheet{};
        }
    }
}

void paintHint(HDC device, const RECT& area, const DrawingObjects& objects) {
    constexpr char hint[] = "Choose a file in the list.";
    const Selection font(device, objects.normalFont.get());
    SetBkMode(device, TRANSPARENT);
    RECT place = area;
    DrawTextA(device, hint, -1, &place, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

/// Shows a canvas in its window. It is painted once for each state and size; painting again only copies it.
template <typename Paint>
void show(Canvas& canvas, HDC device, const RECT& client, Paint paint) {
    const SIZE size{client.right, client.bottom};
    if (size.cx <= 0 || size.cy <= 0) {
        return;
    }
    composeDisplay(application().display);
    HDC memory = deviceOf(canvas, device, size);
    if (!canvas.isPainted) {
        canvas.isPainted = true;
        FillRect(memory, &client, application().drawing.beigeBrush.get());
        paint(memory);
    }
    BitBlt(device, 0, 0, size.cx, size.cy, memory, 0, 0, SRCCOPY);
}

} // namespace

void paintUnit(HDC device, const RECT& client) {
    Application& app = application();
    UnitDisplay& display = app.display;
    show(display.drawingCanvas, device, client, [&](HDC memory) {
        display.shownFit = display.ownFit.value_or(wholeFit(display.drawing, {client.right, client.bottom}));
        if (!display.hasDrawing) {
            return;
        }
        const DrawingView view{.fit = display.shownFit,
                               .selected = display.selected,
                               .caption = display.caption.empty() && app.openUnit
                                              ? positionText(*app.openUnit, display.selected)
                                              : display.caption};
        paintDrawing(memory, client, display.drawing, view, app.drawing, app.pictures);
    });
}

void paintSheetArea(HDC device, const RECT& client) {
    Application& app = application();
    UnitDisplay& display = app.display;
    show(display.sheetCanvas, device, client, [&](HDC memory) {
        display.sheetLayout = {};
        if (!isRecordOpen()) {
            paintHint(memory, client, app.drawing);
            return;
        }
        GdiDevice canvas(memory, app.drawing, &app.pictures);
        display.sheetLayout =
            paintSheet(canvas, pixelRect(client), display.sheet,
                       {.bases = imageBases(), .scroll = display.scroll, .selected = display.selected});
    });
}

bool updateWeaponUsers() {
    UnitDisplay& display = application().display;
    if (!application().openWeapon || usersOfOpenWeapon() == display.weaponUsers) {
        return false;
    }
    composeWeaponSheet(display);
    return true;
}

void scrollSheet(int pixels, int visibleHeight) {
    UnitDisplay& display = application().display;
    const int furthest = std::max(0, display.sheetLayout.height - visibleHeight);
    display.scroll = std::clamp(display.scroll + pixels, 0, furthest);
}

void showSelectedOnSheet(int visibleHeight) {
    const UnitDisplay& display = application().display;
    const auto& places = display.sheetLayout.places;
    const auto found = std::find_if(places.begin(), places.end(), [&](const SheetPlace& place) {
        return display.selected && isSameShown(place.part, display.selected);
    });
    if (found == places.end()) {
        return;
    }
    const int shownFrom = display.scroll + display.sheetLayout.headHeight;
    if (found->place.top < shownFrom) {
        scrollSheet(found->place.top - shownFrom, visibleHeight);
    } else if (found->place.bottom > display.scroll + visibleHeight) {
        scrollSheet(found->place.bottom - display.scroll - visibleHeight, visibleHeight);
    }
}

UnitPart sheetPartAt(POINT pixel) {
    const UnitDisplay& display = application().display;
    return sheetPartAt(display.sheetLayout, display.scroll, {pixel.x, pixel.y});
}

} // namespace varrocade
