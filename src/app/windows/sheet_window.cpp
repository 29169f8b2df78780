#include "app/windows/sheet_window.h"

#include "app/commands/edit_weapon.h"
#include "app/windows/application.h"
#include "app/windows/child_window.h"
#include "app/windows/display/redraw.h"
#include "app/windows/display/unit_display.h"
#include "app/windows/part_selection.h"
#include "resources/resource.h"

#include <windowsx.h>

#include <algorithm>
#include <chrono>
#include <utility>

namespace varrocade {

namespace {

constexpr char SheetClass[] = "VARROCADESHEET";
constexpr UINT_PTR UsersTimer = 1;
constexpr int LineHeight = 20; ///< pixels of 96 dpi that an arrow scrolls by

/// The bar keeps its place when there is nothing to scroll, so that the text does not jump.
void updateBar(HWND window) {
    const UnitDisplay& display = application().display;
    SCROLLINFO former{};
    former.cbSize = sizeof(former);
    former.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    GetScrollInfo(window, SB_VERT, &former);
    SCROLLINFO info = former;
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS | SIF_DISABLENOSCROLL;
    info.nMax = std::max(0, display.sheetLayout.height - 1);
    info.nPage = static_cast<UINT>(visibleSheetHeight());
    info.nPos = display.scroll;
    // It would be painted anew, which takes as long as painting the sheet does.
    if (info.nMax != former.nMax || info.nPage != former.nPage || info.nPos != former.nPos) {
        SetScrollInfo(window, SB_VERT, &info, TRUE);
    }
}

void scrollBy(int pixels) {
    scrollSheet(pixels);
    redrawSheet();
}

void scrollByBar(HWND window, int request) {
    const int line = application().drawing.scaled(LineHeight);
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = SIF_TRACKPOS | SIF_RANGE;
    GetScrollInfo(window, SB_VERT, &info);
    switch (request) {
    case SB_LINEUP:
        return scrollBy(-line);
    case SB_LINEDOWN:
        return scrollBy(line);
    case SB_PAGEUP:
        return scrollBy(-visibleSheetHeight());
    case SB_PAGEDOWN:
        return scrollBy(visibleSheetHeight());
    case SB_TOP:
        return scrollBy(-info.nMax);
    case SB_BOTTOM:
        return scrollBy(info.nMax);
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
        return scrollBy(info.nTrackPos - application().display.scroll);
    default:
        return;
    }
}

/// The request of the scroll bar that a key stands for, or -1.
int requestOfKey(WPARAM key) {
    switch (key) {
    case VK_UP:
        return SB_LINEUP;
    case VK_DOWN:
        return SB_LINEDOWN;
    case VK_PRIOR:
        return SB_PAGEUP;
    case VK_NEXT:
        return SB_PAGEDOWN;
    case VK_HOME:
        return SB_TOP;
    case VK_END:
        return SB_BOTTOM;
    default:
        return -1;
    }
}

/// Looks for the units that carry the open weapon, whenever the window has nothing else to do.
void startLookingForUsers() {
    application().weaponUsers.start(gameFolders(theWorkspace()));
    SetTimer(sheetWindow(), UsersTimer, USER_TIMER_MINIMUM, nullptr);
}

void paintSheetWindow(HWND window) {
    PAINTSTRUCT paintStruct{};
    HDC device = BeginPaint(window, &paintStruct);
    RECT client{};
    GetClientRect(window, &client);
    paintSheetArea(device, client);
    EndPaint(window, &paintStruct);
    updateBar(window);
    if (std::exchange(application().display.wantsWeaponUsers, false)) {
        startLookingForUsers();
    }
}

bool keyDown(HWND window, WPARAM key) {
    if (key == VK_RETURN) {
        editSelectedPart();
        return true;
    }
    const int request = requestOfKey(key);
    if (request >= 0) {
        scrollByBar(window, request);
    }
    return request >= 0;
}

void contextMenu(HWND window, LPARAM detail) {
    POINT pixel{GET_X_LPARAM(detail), GET_Y_LPARAM(detail)};
    if (pixel.x == -1 && pixel.y == -1) {
        pixel = {};
        ClientToScreen(window, &pixel);
    } else {
        POINT inside = pixel;
        ScreenToClient(window, &inside);
        selectPart(sheetPartAt(inside));
    }
    showPartMenu(pixel);
}

/// A part of the search that nobody feels.
void lookForUsers(HWND window) {
    constexpr std::chrono::milliseconds slice{10};
    const auto end = std::chrono::steady_clock::now() + slice;
    WeaponUsers& users = application().weaponUsers;
    while (users.step()) {
        if (std::chrono::steady_clock::now() >= end) {
            return;
        }
    }
    KillTimer(window, UsersTimer);
    if (updateWeaponUsers()) {
        redrawSheet();
    }
}

/// A line of the bar leads to what it is about.
void click(POINT pixel) {
    const SheetWarningPlace* warning = sheetWarningAt(pixel);
    if (const SheetLinkPlace* link = sheetLinkAt(pixel)) {
        const std::string unit = link->text;
        openUser(unit);
    } else if (warning == nullptr) {
        selectPart(sheetPartAt(pixel));
    } else if (warning->part) {
        const UnitPart part = warning->part;
        selectPart(part);
        showSelectedRow();
    } else {
        showProblems();
    }
}

/// The mouse tells what a click would open.
bool showHandOverLink(HWND window, LPARAM detail) {
    POINT pixel{};
    if (LOWORD(detail) != HTCLIENT || GetCursorPos(&pixel) == 0 || ScreenToClient(window, &pixel) == 0 ||
        sheetLinkAt(pixel) == nullptr) {
        return false;
    }
    SetCursor(LoadCursorA(nullptr, IDC_HAND));
    return true;
}

/// On a line of the bar the editor of what it is about opens, at the field.
void doubleClick(POINT pixel) {
    const SheetWarningPlace* warning = sheetWarningAt(pixel);
    const SquadRecord* unit = openUnit(theWorkspace());
    const WeaponRecord* weapon = openWeapon(theWorkspace());
    if (warning != nullptr && weapon != nullptr) {
        editOpenWeapon(targetOfField(*weapon, warning->field));
    } else if (warning != nullptr && unit != nullptr && warning->part) {
        if (canEditSelectedPart()) {
            editPartAt(targetOfField(*unit, warning->field));
        }
    } else {
        editSelectedPart();
    }
}

LRESULT CALLBACK sheetProcedure(HWND window, UINT message, WPARAM parameter, LPARAM detail) {
    switch (message) {
    case WM_LBUTTONDOWN:
        SetFocus(window);
        click({GET_X_LPARAM(detail), GET_Y_LPARAM(detail)});
        return 0;
    case WM_RBUTTONDOWN:
        SetFocus(window);
        return 0;
    case WM_LBUTTONDBLCLK:
        doubleClick({GET_X_LPARAM(detail), GET_Y_LPARAM(detail)});
        return 0;
    case WM_SETCURSOR:
        return showHandOverLink(window, detail) ? TRUE : DefWindowProcA(window, message, parameter, detail);
    case WM_CONTEXTMENU:
        contextMenu(window, detail);
        return 0;
    case WM_GETDLGCODE: {
        const auto* asked = reinterpret_cast<const MSG*>(detail);
        const bool isReturn = asked != nullptr && asked->message == WM_KEYDOWN && asked->wParam == VK_RETURN;
        return isReturn ? DLGC_WANTMESSAGE : DLGC_WANTARROWS;
    }
    case WM_KEYDOWN:
        return keyDown(window, parameter) ? 0 : DefWindowProcA(window, message, parameter, detail);
    case WM_TIMER:
        lookForUsers(window);
        return 0;
    case WM_VSCROLL:
        scrollByBar(window, LOWORD(parameter));
        return 0;
    case WM_ERASEBKGND:
        return 1;
    case WM_PAINT:
        paintSheetWindow(window);
        return 0;
    default:
        return DefWindowProcA(window, message, parameter, detail);
    }
}

} // namespace

bool registerSheetWindow() {
    return registerChildWindow(SheetClass, sheetProcedure);
}

HWND createSheetWindow(HWND parent) {
    // The button "Details..." lies over it.
    return createChildWindow(SheetClass, "Data sheet", parent, IDC_SHEET, WS_CLIPSIBLINGS | WS_VSCROLL);
}

void scrollSheetByWheel(int delta) {
    constexpr int step = 3 * LineHeight;
    scrollBy(-MulDiv(delta, application().drawing.scaled(step), WHEEL_DELTA));
}

} // namespace varrocade
