#include "app/windows/drawing_window.h"

#include "app/windows/application.h"
#include "app/windows/child_window.h"
#include "app/windows/display/picture_prefetch.h"
#include "app/windows/display/redraw.h"
#include "app/windows/display/unit_display.h"
#include "app/windows/part_selection.h"
#include "app/workspace/positions.h"
#include "resources/resource.h"
#include "view/drawing/drawing_angles.h"
#include "view/drawing/part_at.h"
#include "view/drawing/part_positions.h"
#include "view/drawing/traverse.h"

#include <windowsx.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace varrocade {

namespace {

constexpr char DrawingClass[] = "VARROCADEDRAWING";
constexpr UINT_PTR PrefetchTimer = 1;
constexpr int PartReach = 9; ///< pixels of 96 dpi that a click may miss a mark by

UnitDisplay& shown() {
    return application().display;
}

POINT pixelOf(LPARAM detail) {
    return {GET_X_LPARAM(detail), GET_Y_LPARAM(detail)};
}

Point pointOf(POINT pixel) {
    return shown().shownFit.pointAt(pixel.x, pixel.y);
}

UnitPart partUnder(POINT pixel) {
    Application& app = application();
    if (!app.display.hasDrawing) {
        return {};
    }
    const double reach = app.display.shownFit.centimetres(app.drawing.scaled(PartReach));
    return partAt(app.display.drawing, pointOf(pixel), reach, app.pictures);
}

/// A view of the user's own no longer follows what the drawing covers.
void keepView() {
    shown().ownFit = shown().shownFit;
}

void scrollView(int pixelsX, int pixelsY) {
    keepView();
    shown().ownFit = movedBy(*shown().ownFit, pixelsX, pixelsY);
    redrawDrawing();
}

// ---- dragging

std::optional<Traverse> traverseOfPart(const UnitPart& part) {
    const SquadRecord* unit = openUnit(theWorkspace());
    return unit != nullptr ? traverseOf(*unit, part) : std::nullopt;
}

double directionFrom(Point pivot, Point to) {
    return std::atan2(to.x - pivot.x, to.y - pivot.y) * 180 / std::numbers::pi;
}

void beginDrag(HWND window, POINT pixel) {
    const Workspace& workspace = theWorkspace();
    Drag drag;
    drag.start = pixel;
    drag.lastPixel = pixel;
    const UnitPart part = partUnder(pixel);
    selectPart(part);
    const Point point = pointOf(pixel);
    const SquadRecord* unit = openUnit(workspace);
    if (unit != nullptr && isMovable(*unit, part)) {
        drag.kind = DragKind::Move;
        drag.before = workspace.open.present;
        drag.grab = point - positionOf(*unit, part, shown().turns).value_or(point);
    } else if (const auto traverse = traverseOfPart(part)) {
        drag.kind = DragKind::Turn;
        drag.startTurn = turnOf(shown().turns, part.component);
        drag.startDirection = directionFrom(traverse->pivot, point);
    } else {
        drag.kind = DragKind::Pan;
    }
    shown().drag = drag;
    SetCapture(window);
}

void turnTo(const UnitPart& part, Point point) {
    UnitDisplay& display = shown();
    const auto traverse = traverseOfPart(part);
    if (!traverse) {
        return;
    }
    constexpr double fullCircle = 360;
    const double turn =
        std::remainder(directionFrom(traverse->pivot, point) - display.drag->startDirection, fullCircle);
    display.turns.resize(std::max(display.turns.size(), part.component + 1));
    display.turns[part.component] = allowedTurn(*traverse, display.drag->startTurn + turn);
    const double angle = display.turns[part.component];
    display.caption = std::to_string(std::lround(std::abs(angle))) + "\xB0 " + (angle < 0 ? "left" : "right");
}

void continueDrag(POINT pixel) {
    UnitDisplay& display = shown();
    Drag& drag = *display.drag;
    // A hand that only clicks moves nothing.
    if (!drag.hasBegun && std::abs(pixel.x - drag.start.x) < GetSystemMetrics(SM_CXDRAG) &&
        std::abs(pixel.y - drag.start.y) < GetSystemMetrics(SM_CYDRAG)) {
        return;
    }
    drag.hasBegun = true;
    keepView();
    switch (drag.kind) {
    case DragKind::Move:
        moveOpenPart(theWorkspace(), display.selected, pointOf(pixel) - drag.grab, display.turns);
        break;
    case DragKind::Turn:
        turnTo(display.selected, pointOf(pixel));
        break;
    case DragKind::Pan:
        display.ownFit = movedBy(*display.ownFit, pixel.x - drag.lastPixel.x, pixel.y - drag.lastPixel.y);
        break;
    }
    drag.lastPixel = pixel;
    redrawDrawing();
}

/// Ends dragging; what was moved stays, or goes back to where it was.
void endDrag(bool keeps) {
    UnitDisplay& display = shown();
    if (!display.drag) {
        return;
    }
    const Drag drag = *std::exchange(display.drag, std::nullopt);
    display.caption.clear();
    ReleaseCapture();
    if (drag.kind == DragKind::Move && drag.hasBegun) {
        if (keeps) {
            finishPartMove(*drag.before);
        } else {
            theWorkspace().open.present = *drag.before;
        }
    } else if (drag.kind == DragKind::Turn && !keeps) {
        display.turns[display.selected.component] = drag.startTurn;
    }
    redrawDrawing();
}

// ---- the keyboard

/// The part before or after the selected one, in the order in which they are drawn.
void selectNeighbour(int step) {
    std::vector<UnitPart> parts;
    for (const DrawItem& item : shown().drawing.items) {
        const UnitPart part = std::visit([](const auto& one) { return one.part; }, item);
        if (part && std::find(parts.begin(), parts.end(), part) == parts.end()) {
            parts.push_back(part);
        }
    }
    if (parts.empty()) {
        return;
    }
    const auto count = static_cast<std::ptrdiff_t>(parts.size());
    const auto found = std::find(parts.begin(), parts.end(), shown().selected);
    const std::ptrdiff_t place =
        found == parts.end() ? (step > 0 ? 0 : count - 1) : (found - parts.begin() + step + count) % count;
    selectPart(parts[static_cast<std::size_t>(place)]);
}

void arrowKey(int right, int up) {
    constexpr int largeStep = 10;
    constexpr int scrollStep = 40;
    const int step = GetKeyState(VK_SHIFT) < 0 ? largeStep : 1;
    if (!nudgeSelectedPart(right * step, up * step)) {
        const int pixels = application().drawing.scaled(scrollStep);
        scrollView(-right * pixels, up * pixels);
    }
}

void escape() {
    if (shown().drag) {
        endDrag(false);
    } else if (putPartBack()) {
        return;
    } else if (shown().selected) {
        selectPart({});
    } else {
        SetFocus(GetDlgItem(application().window, IDC_FILE_LIST));
    }
}

void zoomAboutMiddle(int steps) {
    RECT area{};
    GetWindowRect(drawingWindow(), &area);
    zoomDrawing({(area.left + area.right) / 2, (area.top + area.bottom) / 2}, steps);
}

bool keyDown(WPARAM key) {
    switch (key) {
    case VK_LEFT:
        arrowKey(-1, 0);
        return true;
    case VK_RIGHT:
        arrowKey(1, 0);
        return true;
    case VK_UP:
        arrowKey(0, 1);
        return true;
    case VK_DOWN:
        arrowKey(0, -1);
        return true;
    case VK_NEXT:
        selectNeighbour(1);
        return true;
    case VK_PRIOR:
        selectNeighbour(-1);
        return true;
    case VK_ADD:
    case VK_OEM_PLUS:
        zoomAboutMiddle(1);
        return true;
    case VK_SUBTRACT:
    case VK_OEM_MINUS:
        zoomAboutMiddle(-1);
        return true;
    case VK_HOME:
        resetView();
        return true;
    case VK_RETURN:
        editSelectedPart();
        return true;
    case VK_ESCAPE:
        escape();
        return true;
    default:
        return false;
    }
}

LRESULT wantedKeys(LPARAM detail) {
    const auto* message = reinterpret_cast<const MSG*>(detail);
    const bool isOwn = message != nullptr && message->message == WM_KEYDOWN &&
                       (message->wParam == VK_RETURN || message->wParam == VK_ESCAPE);
    return isOwn ? DLGC_WANTMESSAGE : DLGC_WANTARROWS;
}

// ---- what the window shows of itself

/// The window's name tells the selected part, for those who have the screen read to them; the caret, which is
/// never shown, tells magnifiers where it is.
void tellSelection(HWND window) {
    UnitDisplay& display = shown();
    const SquadRecord* unit = openUnit(theWorkspace());
    std::string name = "Drawing";
    if (unit != nullptr && hasPart(*unit, display.selected)) {
        name += ": " + partName(*unit, display.selected);
        if (isMovable(*unit, display.selected)) {
            name += ", " + positionText(*unit, display.selected);
        }
    }
    if (name != display.toldName) {
        display.toldName = name;
        SetWindowTextA(window, name.c_str());
    }
    const auto place =
        unit != nullptr ? positionOf(*unit, display.selected, display.turns) : std::optional<Point>();
    if (place && GetFocus() == window) {
        SetCaretPos(static_cast<int>(std::lround(display.shownFit.screenX(place->x))),
                    static_cast<int>(std::lround(display.shownFit.screenY(place->y))));
    }
}

void paintDrawingWindow(HWND window) {
    PAINTSTRUCT paintStruct{};
    HDC device = BeginPaint(window, &paintStruct);
    RECT client{};
    GetClientRect(window, &client);
    paintUnit(device, client);
    EndPaint(window, &paintStruct);
    tellSelection(window);
}

bool setCursor(LPARAM detail) {
    if (LOWORD(detail) != HTCLIENT) {
        return false;
    }
    const SquadRecord* unit = openUnit(theWorkspace());
    POINT pixel{};
    GetCursorPos(&pixel);
    ScreenToClient(drawingWindow(), &pixel);
    const UnitPart part = partUnder(pixel);
    const bool isMove = unit != nullptr && isMovable(*unit, part);
    SetCursor(LoadCursorA(nullptr, isMove ? IDC_SIZEALL : traverseOfPart(part) ? IDC_HAND : IDC_ARROW));
    return true;
}

void contextMenu(HWND window, LPARAM detail) {
    POINT pixel = pixelOf(detail);
    if (pixel.x == -1 && pixel.y == -1) {
        GetCaretPos(&pixel);
        ClientToScreen(window, &pixel);
    } else {
        POINT inside = pixel;
        ScreenToClient(window, &inside);
        selectPart(partUnder(inside));
    }
    showPartMenu(pixel);
}

void doubleClick(POINT pixel) {
    endDrag(true);
    if (partUnder(pixel)) {
        editSelectedPart();
    } else {
        resetView();
    }
}

/// The timer's messages come only while there are no others.
void prefetch(HWND window) {
    if (prefetchStep()) {
        SetTimer(window, PrefetchTimer, USER_TIMER_MINIMUM, nullptr);
    } else {
        KillTimer(window, PrefetchTimer);
    }
}

LRESULT CALLBACK drawingProcedure(HWND window, UINT message, WPARAM parameter, LPARAM detail) {
    switch (message) {
    case WM_LBUTTONDOWN:
        SetFocus(window);
        beginDrag(window, pixelOf(detail));
        return 0;
    case WM_RBUTTONDOWN:
        SetFocus(window);
        return 0;
    case WM_MOUSEMOVE:
        if (shown().drag) {
            continueDrag(pixelOf(detail));
        }
        return 0;
    case WM_LBUTTONUP:
        endDrag(true);
        return 0;
    case WM_LBUTTONDBLCLK:
        doubleClick(pixelOf(detail));
        return 0;
    case WM_CAPTURECHANGED:
        endDrag(false);
        return 0;
    case WM_CONTEXTMENU:
        contextMenu(window, detail);
        return 0;
    case WM_SETCURSOR:
        return setCursor(detail) ? TRUE : DefWindowProcA(window, message, parameter, detail);
    case WM_GETDLGCODE:
        return wantedKeys(detail);
    case WM_KEYDOWN:
        return keyDown(parameter) ? 0 : DefWindowProcA(window, message, parameter, detail);
    case WM_SETFOCUS:
        CreateCaret(window, nullptr, 1, 1);
        shown().toldName.clear();
        tellSelection(window);
        return 0;
    case WM_KILLFOCUS:
        DestroyCaret();
        return 0;
    case WM_TIMER:
        prefetch(window);
        return 0;
    case WM_ERASEBKGND:
        return 1;
    case WM_PAINT:
        paintDrawingWindow(window);
        return 0;
    default:
        return DefWindowProcA(window, message, parameter, detail);
    }
}

} // namespace

bool registerDrawingWindow() {
    return registerChildWindow(DrawingClass, drawingProcedure);
}

HWND createDrawingWindow(HWND parent) {
    return createChildWindow(DrawingClass, "Drawing", parent, IDC_DRAWING);
}

void prefetchNeighbours() {
    // Whoever holds an arrow key down is not kept waiting.
    constexpr UINT rest = 150;
    startPrefetch();
    SetTimer(drawingWindow(), PrefetchTimer, rest, nullptr);
}

void resetView() {
    shown().ownFit.reset();
    shown().turns.clear();
    redrawDrawing();
}

void zoomDrawing(POINT screenPixel, int steps) {
    if (!shown().hasDrawing) {
        return;
    }
    ScreenToClient(drawingWindow(), &screenPixel);
    keepView();
    shown().ownFit = zoomedAbout(*shown().ownFit, screenPixel.x, screenPixel.y, steps);
    redrawDrawing();
}

bool isOverDrawing(POINT screenPixel) {
    RECT area{};
    GetWindowRect(drawingWindow(), &area);
    return PtInRect(&area, screenPixel) != FALSE;
}

} // namespace varrocade
