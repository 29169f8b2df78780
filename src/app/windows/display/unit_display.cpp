#include "app/windows/display/unit_display.h"

#include "app/windows/application.h"
#include "app/windows/display/redraw.h"
#include "app/windows/problems/open_problems.h"
#include "tools/checks/engine/folder_check.h"
#include "tools/checks/sheet_problems.h"
#include "view/drawing/part_positions.h"
#include "view/painting/gdi_device_win32.h"
#include "view/sheet/missing_files.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace varrocade {

namespace {

DrawOptions drawOptions(std::vector<double> turns) {
    const Application& app = application();
    return {.bases = imageBases(app.workspace),
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
        addMen(drawing, unit, app.workspace.catalogue, options, app.pictures);
    }
    return drawing;
}

Fit wholeFit(const DrawList& drawing, SIZE size) {
    const Application& app = application();
    return fitInto(drawing, size.cx, size.cy - app.drawing.scaled(ScaleHeight),
                   app.drawing.scaled(DrawingMargin),
                   openWeapon(app.workspace) != nullptr ? GreatestScale : GreatestFittedScale);
}

namespace {

void composeDrawing(UnitDisplay& display) {
    Application& app = application();
    display.isDrawingStale = false;
    display.drawingCanvas.isPainted = false;
    display.drawing = {};
    display.hasDrawing = false;
    if (const WeaponRecord* weapon = openWeapon(app.workspace)) {
        display.hasDrawing = true;
        display.drawing = drawWeapon(*weapon, drawOptions({}), app.pictures);
    }
    if (const SquadRecord* unit = openUnit(app.workspace)) {
        display.hasDrawing =
            unit->vehicle || unit->heavyWeapon || unit->aircraft || !unit->infantrymen.empty();
        display.drawing = drawingOf(*unit, display.turns);
    }
}

std::optional<std::vector<std::string>> usersOf(const WeaponRecord& weapon) {
    const std::array<std::string_view, 2> names = {weapon.name, weapon.fileName};
    return application().weaponUsers.usersOf(names);
}

/// The file is looked through once; the values with every change.
const std::vector<SheetProblem>& problemsOfFile(UnitDisplay& display) {
    const OpenRecord& open = theWorkspace().open;
    if (display.checkedContent != open.content) {
        display.checkedContent = open.content;
        display.fileProblems = fileProblems(open.category, open.content);
    }
    return display.fileProblems;
}

void append(std::vector<SheetProblem>& problems, std::vector<SheetProblem> others) {
    std::move(others.begin(), others.end(), std::back_inserter(problems));
}

/// Drops what the folder's list excuses: that is to be seen nowhere.
void dropExcused(std::vector<SheetProblem>& problems, std::string_view name) {
    const OpenRecord& open = theWorkspace().open;
    std::string content;
    if (problems.empty() || !readWholeFile(open.base + std::string(SuppressionListName), content)) {
        return;
    }
    std::vector<Finding> ofList;
    dropSuppressed(problems, SuppressionList(content, ofList), shownPath(open.category, name));
}

std::vector<SheetProblem> problemsOf(UnitDisplay& display, const WeaponRecord& weapon) {
    const Workspace& workspace = theWorkspace();
    std::vector<SheetProblem> problems;
    for (Finding& problem : workspace.catalogue.problemsOf(
             dataFilePath(baseFolder(workspace), Category::Weapons, weapon.fileName))) {
        problems.push_back({std::move(problem)});
    }
    append(problems, problemsOfFile(display));
    append(problems, valueProblems(weapon, workspace.open.content));
    for (Finding& missing : missingFiles(weapon, imageBases(workspace))) {
        const UnitPart part = partOfField(weapon, missing.field);
        problems.push_back({std::move(missing), part});
    }
    dropExcused(problems, weapon.fileName);
    return problems;
}

/// The box that a failed save shows has no room for the reason.
void addSaveFailure(DataSheet& sheet) {
    const std::string& reason = theWorkspace().open.saveFailure;
    if (!reason.empty()) {
        sheet.warnings.insert(sheet.warnings.begin(), {"The file could not be saved: " + reason});
    }
}

void composeWeaponSheet(UnitDisplay& display, const WeaponRecord& weapon) {
    display.weaponUsers = usersOf(weapon);
    const std::vector<SheetProblem> problems = problemsOf(display, weapon);
    noteOpenProblems(problems);
    display.sheet = weaponSheet(weapon, problems, display.weaponUsers);
    addSaveFailure(display.sheet);
}

void composeUnitSheet(UnitDisplay& display, const SquadRecord& unit) {
    const Workspace& workspace = theWorkspace();
    const std::string& content = workspace.open.content;
    std::vector<SheetProblem> problems = problemsOfFile(display);
    append(problems, valueProblems(unit, content, display.drawing.missingPictures, workspace.catalogue,
                                   imageBases(workspace)));
    dropExcused(problems, unit.fileName);
    noteOpenProblems(problems);
    display.sheet = unitSheet(unit, display.drawing.missingPictures, workspace.catalogue);
    addProblems(display.sheet, problems);
    addSaveFailure(display.sheet);
}

/// Makes anew what the record or the view has changed.
void composeDisplay(UnitDisplay& display) {
    const Workspace& workspace = theWorkspace();
    if (display.isStale || display.isDrawingStale) {
        composeDrawing(display);
    }
    if (display.isStale) {
        display.isStale = false;
        display.sheetCanvas.isPainted = false;
        display.marks.clear();
        if (const WeaponRecord* weapon = openWeapon(workspace)) {
            composeWeaponSheet(display, *weapon);
            display.wantsWeaponUsers = true;
        } else if (const SquadRecord* unit = openUnit(workspace)) {
            composeUnitSheet(display, *unit);
        } else {
            display.sheet = {};
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
        const SquadRecord* unit = openUnit(app.workspace);
        const DrawingView view{.fit = display.shownFit,
                               .selected = display.selected,
                               .caption = display.caption.empty() && unit != nullptr
                                              ? positionText(*unit, display.selected)
                                              : display.caption};
        paintDrawing(memory, client, display.drawing, view, app.drawing, app.pictures);
        if (app.showMarks) {
            paintDrawingMarks(memory, app.drawing, display.drawing, display.shownFit, display.marks);
        }
    });
}

void paintSheetArea(HDC device, const RECT& client) {
    Application& app = application();
    UnitDisplay& display = app.display;
    show(display.sheetCanvas, device, client, [&](HDC memory) {
        display.sheetLayout = {};
        if (!isRecordOpen(app.workspace)) {
            paintHint(memory, client, app.drawing);
            return;
        }
        GdiDevice canvas(memory, app.drawing, &app.pictures);
        display.sheetLayout = paintSheet(
            canvas, pixelRect(client), display.sheet,
            {.bases = imageBases(app.workspace), .scroll = display.scroll, .selected = display.selected});
        paintSheetMarks(memory, app.drawing, display.sheetLayout, display.scroll, display.marks);
    });
}

bool updateWeaponUsers() {
    UnitDisplay& display = application().display;
    const WeaponRecord* weapon = openWeapon(theWorkspace());
    if (weapon == nullptr || usersOf(*weapon) == display.weaponUsers) {
        return false;
    }
    composeWeaponSheet(display, *weapon);
    return true;
}

void scrollSheet(int pixels) {
    UnitDisplay& display = application().display;
    const int furthest = std::max(0, display.sheetLayout.height - visibleSheetHeight());
    display.scroll = std::clamp(display.scroll + pixels, 0, furthest);
}

namespace {

void scrollTo(const PixelRect& place) {
    const UnitDisplay& display = application().display;
    const int shownFrom = display.scroll + display.sheetLayout.headHeight;
    if (place.top < shownFrom) {
        scrollSheet(place.top - shownFrom);
    } else if (place.bottom > display.scroll + visibleSheetHeight()) {
        scrollSheet(place.bottom - display.scroll - visibleSheetHeight());
    }
}

void scrollToSelected() {
    const UnitDisplay& display = application().display;
    const auto& places = display.sheetLayout.places;
    const auto find = [&places](auto isMeant) { return std::find_if(places.begin(), places.end(), isMeant); };
    auto found = find([&](const SheetPlace& place) {
        return display.selected && isSameShown(place.part, display.selected);
    });
    if (found == places.end()) {
        // What has no row of its own, as ammunition, stands in those of its kind of component.
        found = find([&](const SheetPlace& place) {
            return display.selected.kind == PartKind::Ammunition && place.part.kind == PartKind::Weapon &&
                   place.part.component == display.selected.component;
        });
    }
    if (found != places.end()) {
        scrollTo(found->place);
    }
}

} // namespace

void showSelectedRow() {
    scrollToSelected();
    redrawSheet();
}

const SheetWarningPlace* sheetWarningAt(POINT pixel) {
    return sheetWarningAt(application().display.sheetLayout, {pixel.x, pixel.y});
}

const SheetLinkPlace* sheetLinkAt(POINT pixel) {
    const UnitDisplay& display = application().display;
    return sheetLinkAt(display.sheetLayout, display.scroll, {pixel.x, pixel.y});
}

void showProblems() {
    scrollTo(application().display.sheetLayout.problems);
    redrawSheet();
}

int visibleSheetHeight() {
    RECT client{};
    GetClientRect(sheetWindow(), &client);
    return client.bottom;
}

void carryComponents(const FormerPlaces& places) {
    UnitDisplay& display = application().display;
    carryTurns(display.turns, places);
    display.selected = carriedPart(display.selected, places);
    display.movedPart = carriedPart(display.movedPart, places);
}

UnitPart sheetPartAt(POINT pixel) {
    const UnitDisplay& display = application().display;
    return sheetPartAt(display.sheetLayout, display.scroll, {pixel.x, pixel.y});
}

} // namespace varrocade
