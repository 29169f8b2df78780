#include "app/windows/main_window.h"

#include "app/commands/commands.h"
#include "app/commands/edit_record.h"
#include "app/commands/vehicle_performance_commands.h"
#include "app/windows/application.h"
#include "app/windows/display/redraw.h"
#include "app/windows/drawing_window.h"
#include "app/windows/file_list.h"
#include "app/windows/menus/list_menu.h"
#include "app/windows/mod_band_win32.h"
#include "app/windows/problems/problem_search.h"
#include "app/windows/problems/problems_window.h"
#include "app/windows/sheet_window.h"
#include "app/workspace/category_list.h"
#include "app/workspace/journal.h"
#include "app/workspace/options.h"
#include "app/workspace/record_files.h"
#include "app/workspace/window_layout.h"
#include "editors/form/dialog_frame_win32.h"
#include "resources/resource.h"

#include <windowsx.h>

#include <algorithm>
#include <array>

namespace varrocade {

namespace {

struct ButtonRow {
    int id;
    const char* text;
};

constexpr std::array<ButtonRow, CategoryButtonCount> CategoryButtons = {{
    {IDC_VEHICLES, "Vehicles"},
    {IDC_AT_GUNS, "AT Guns"},
    {IDC_INFANTRY, "Infantry"},
    {IDC_AIRCRAFT, "Aircraft"},
    {IDC_WEAPONS, "Weapons"},
}};

constexpr std::array<ButtonRow, FileButtonCount> FileButtons = {{
    {IDC_NEW, "New..."},
    {IDC_DUPLICATE, "Duplicate..."},
    {IDC_RENAME, "Rename..."},
    {IDC_DELETE, "Delete..."},
}};

constexpr WindowPlace DetailsButton = {0, 12, 84, 26};
constexpr int DetailsButtonMargin = 14;
/// The timer of the journal of unsaved changes.
constexpr UINT_PTR JournalTimer = 1;
/// Comes after the program was gone to from another one, when that is done with.
constexpr UINT ReturnMessage = WM_APP + 1;
constexpr int MostNameLength = 256;
constexpr int MostClassLength = 100;

std::string stringResource(UINT id, int capacity) {
    std::string text(static_cast<std::size_t>(capacity), '\0');
    const int length = LoadStringA(application().instance, id, text.data(), capacity);
    text.resize(static_cast<std::size_t>(length));
    return text;
}

void createButton(HWND parent, const ButtonRow& row, DWORD style = BS_PUSHBUTTON) {
    CreateWindowExA(0, "BUTTON", row.text, WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_TABSTOP | style, 0, 0,
                    0, 0, parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(row.id)),
                    application().instance, nullptr);
}

void move(HWND window, int id, const WindowPlace& place) {
    const DrawingObjects& objects = application().drawing;
    SetWindowPos(GetDlgItem(window, id), nullptr, objects.scaled(place.x), objects.scaled(place.y),
                 objects.scaled(place.width), objects.scaled(place.height), SWP_NOZORDER | SWP_NOACTIVATE);
}

void setFonts(HWND window) {
    const auto font = reinterpret_cast<WPARAM>(application().drawing.normalFont.get());
    for (HWND child = GetWindow(window, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
        SendMessageA(child, WM_SETFONT, font, TRUE);
    }
    SendDlgItemMessageA(window, IDC_FILE_LIST, LB_SETITEMHEIGHT, 0, listEntryHeight());
}

/// Lays the controls out; the pixels of the layout are those of 96 dpi.
void layOut(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    const int dpi = application().drawing.dpi;
    const int height = MulDiv(client.bottom, USER_DEFAULT_SCREEN_DPI, dpi);
    for (std::size_t i = 0; i < CategoryButtons.size(); ++i) {
        move(window, CategoryButtons[i].id, CategoryButtonPlaces[i]);
    }
    const auto filePlaces = fileButtonPlaces(height);
    for (std::size_t i = 0; i < FileButtons.size(); ++i) {
        move(window, FileButtons[i].id, filePlaces[i]);
    }
    move(window, IDC_FILTER, theWorkspace().modMode ? filterBesideBoxPlace() : filterPlace());
    move(window, IDC_MOD_GAME_UNITS, gameUnitsBoxPlace());
    move(window, IDC_FILE_LIST, fileListPlace(height));
    move(window, IDC_LIST_NOTICE, listNoticePlace());
    move(window, IDC_LIST_REMEDY, listRemedyPlace());
    const int right = MulDiv(client.right, USER_DEFAULT_SCREEN_DPI, dpi);
    WindowPlace details = DetailsButton;
    const int barWidth = GetSystemMetrics(SM_CXVSCROLL);
    details.x = right - details.width - DetailsButtonMargin - MulDiv(barWidth, USER_DEFAULT_SCREEN_DPI, dpi);
    move(window, IDC_EDIT_DETAILS, details);
    const WindowPlace drawing = picturePlace(client.right, client.bottom, dpi);
    SetWindowPos(GetDlgItem(window, IDC_DRAWING), nullptr, drawing.x, drawing.y, drawing.width,
                 drawing.height, SWP_NOZORDER | SWP_NOACTIVATE);
    const WindowPlace sheet = sheetPlace(client.right, client.bottom, dpi);
    SetWindowPos(GetDlgItem(window, IDC_SHEET), HWND_BOTTOM, sheet.x, sheet.y, sheet.width, sheet.height,
                 SWP_NOACTIVATE);
}

LRESULT create(HWND window) {
    application().window = window;
    for (const ButtonRow& row : CategoryButtons) {
        // The chosen one stays pressed.
        createButton(window, row, BS_CHECKBOX | BS_PUSHLIKE);
    }
    createFileList(window);
    createButton(window, {IDC_MOD_GAME_UNITS, "Game's units too"}, BS_CHECKBOX);
    createModBand(window);
    for (const ButtonRow& row : FileButtons) {
        createButton(window, row);
    }
    createDrawingWindow(window);
    createButton(window, {IDC_EDIT_DETAILS, "Details..."});
    createSheetWindow(window);
    setFonts(window);
    updateButtons();
    SetTimer(window, JournalTimer, JournalInterval, nullptr);
    return 0;
}

void paintMainWindow(HWND window) {
    PAINTSTRUCT paintStruct{};
    HDC device = BeginPaint(window, &paintStruct);
    // Only the band of the list is not covered by controls.
    FillRect(device, &paintStruct.rcPaint, GetSysColorBrush(COLOR_WINDOW));
    EndPaint(window, &paintStruct);
}

/// The wheel zooms the drawing about the mouse, and scrolls the sheet everywhere else.
void wheel(WPARAM parameter, LPARAM detail) {
    const POINT pixel{GET_X_LPARAM(detail), GET_Y_LPARAM(detail)};
    const int delta = GET_WHEEL_DELTA_WPARAM(parameter);
    if (isOverDrawing(pixel)) {
        zoomDrawing(pixel, delta > 0 ? 1 : -1);
    } else {
        scrollSheetByWheel(delta);
    }
}

void moveToOtherScreen(HWND window, int dpi, const RECT& suggested) {
    createFonts(application().drawing, dpi);
    setFonts(window);
    SetWindowPos(window, nullptr, suggested.left, suggested.top, suggested.right - suggested.left,
                 suggested.bottom - suggested.top, SWP_NOZORDER | SWP_NOACTIVATE);
    layOut(window);
    displayChanged();
    redrawNow();
}

/// The window never gets smaller than what all of it needs, unless the screen is.
void limitSize(HWND window, MINMAXINFO& limits) {
    const int dpi = application().drawing.dpi;
    RECT least{0, 0, MulDiv(LeastClientWidth, dpi, USER_DEFAULT_SCREEN_DPI),
               MulDiv(LeastClientHeight, dpi, USER_DEFAULT_SCREEN_DPI)};
    AdjustWindowRectEx(&least, WS_OVERLAPPEDWINDOW, TRUE, 0);
    least.bottom += modBandHeight();
    MONITORINFO monitor{};
    monitor.cbSize = sizeof(monitor);
    GetMonitorInfoA(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &monitor);
    const RECT& work = monitor.rcWork;
    limits.ptMinTrackSize = {std::min(least.right - least.left, work.right - work.left),
                             std::min(least.bottom - least.top, work.bottom - work.top)};
}

void handleEnter() {
    const HWND focus = GetFocus();
    HWND list = GetDlgItem(application().window, IDC_FILE_LIST);
    if (focus == GetDlgItem(application().window, IDC_FILTER)) {
        if (openFirstShown(theWorkspace())) {
            SetFocus(list);
        }
    } else if (focus == list) {
        editOpenRecord();
    } else if (focus != nullptr && GetParent(focus) == application().window) {
        runCommand(GetDlgCtrlID(focus));
    }
}

LRESULT command(HWND window, WPARAM parameter) {
    const int id = LOWORD(parameter);
    const int notification = HIWORD(parameter);
    switch (id) {
    case IDOK:
        handleEnter();
        return 0;
    case IDCANCEL:
        leaveFilter();
        return 0;
    case IDC_FILTER:
        if (notification == EN_CHANGE) {
            applyFilter();
        }
        return 0;
    case IDC_FILE_LIST:
        if (notification == LBN_SELCHANGE) {
            openEntry(theWorkspace(), selectedEntry());
        } else if (notification == LBN_DBLCLK) {
            editOpenRecord();
        }
        return 0;
    default:
        // A button that is clicked takes the keyboard with it; the list is where it is wanted.
        if (runCommand(id) && notification == BN_CLICKED && IsChild(window, GetFocus()) &&
            ((id <= IDC_WEAPONS && id >= IDC_VEHICLES) || id == IDC_LIST_REMEDY ||
             id == IDC_MOD_GAME_UNITS)) {
            SetFocus(GetDlgItem(window, IDC_FILE_LIST));
        }
        return 0;
    }
}

/// The system hands the mouse to the drawing and the sheet itself; programs that drive this one may send all
/// to the window.
void passToPart(HWND window, UINT message, WPARAM parameter, LPARAM detail) {
    POINT point{GET_X_LPARAM(detail), GET_Y_LPARAM(detail)};
    HWND part = ChildWindowFromPoint(window, point);
    if (part == GetDlgItem(window, IDC_DRAWING) || part == GetDlgItem(window, IDC_SHEET)) {
        MapWindowPoints(window, part, &point, 1);
        SendMessageA(part, message, parameter, MAKELPARAM(point.x, point.y));
    }
}

/// Looks for what other programs have changed. A dialog may be at work on the open record, or the mouse: then
/// it is done later, and so again where a file is still being written.
void lookOutside(HWND window) {
    bool& isDue = application().isLookDue;
    if (isDue && IsWindowEnabled(window) != FALSE && GetCapture() == nullptr) {
        isDue = !noticeOutsideChanges(theWorkspace());
    }
}

LRESULT CALLBACK mainWindowProcedure(HWND window, UINT message, WPARAM parameter, LPARAM detail) {
    switch (message) {
    case WM_CREATE:
        return create(window);
    case WM_SIZE:
        layOut(window);
        return 0;
    case WM_NCCALCSIZE:
    case WM_NCPAINT:
    case WM_NCACTIVATE:
        return withModBand(window, message, parameter, detail);
    case LayOutMessage:
        layOut(window);
        return 0;
    case WM_GETMINMAXINFO:
        limitSize(window, *reinterpret_cast<MINMAXINFO*>(detail));
        return 0;
    case WM_CTLCOLORSTATIC:
        return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_WINDOW));
    case WM_ENABLE:
        if (parameter != 0) {
            // The dialog that worked on the vehicle has gone.
            followPerformance();
        }
        return 0;
    case WM_SETFOCUS:
        SetFocus(GetDlgItem(window, IDC_FILE_LIST));
        return 0;
    case WM_COMMAND:
        return command(window, parameter);
    case WM_INITMENU:
        updateMenu(application().menu);
        return 0;
    case RefreshListMessage:
        refillNames(theWorkspace());
        return 0;
    case WM_MEASUREITEM:
        reinterpret_cast<MEASUREITEMSTRUCT*>(detail)->itemHeight = static_cast<UINT>(listEntryHeight());
        return TRUE;
    case WM_DRAWITEM:
        drawListEntry(*reinterpret_cast<const DRAWITEMSTRUCT*>(detail));
        return TRUE;
    case WM_CONTEXTMENU:
        if (HWND list = GetDlgItem(window, IDC_FILE_LIST); reinterpret_cast<HWND>(parameter) == list) {
            showListMenu(list, detail);
            return 0;
        }
        return DefWindowProcA(window, message, parameter, detail);
    case WM_MOUSEWHEEL:
        wheel(parameter, detail);
        return 0;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONUP:
    case WM_MOUSEMOVE:
        passToPart(window, message, parameter, detail);
        return 0;
    case WM_DPICHANGED:
        moveToOtherScreen(window, HIWORD(parameter), *reinterpret_cast<const RECT*>(detail));
        return 0;
    case WM_ERASEBKGND:
        return 1;
    case WM_PAINT:
        paintMainWindow(window);
        return 0;
    case WM_TIMER:
        if (parameter == ProblemsTimer) {
            checkOpenRecord();
            return 0;
        }
        keepJournal(theWorkspace());
        takeSearch();
        application().isLookDue |= application().watch.hasChanged(baseFolder(theWorkspace()));
        lookOutside(window);
        return 0;
    case WM_ACTIVATEAPP:
        if (parameter != 0) {
            PostMessageA(window, ReturnMessage, 0, 0);
        }
        return 0;
    case ReturnMessage:
        application().isLookDue = true;
        lookOutside(window);
        return 0;
    case WM_CLOSE:
        if (mayExit(theWorkspace())) {
            DestroyWindow(window);
        }
        return 0;
    case WM_QUERYENDSESSION:
        return mayExit(theWorkspace()) ? TRUE : FALSE;
    case WM_ENDSESSION:
        if (parameter != 0) {
            // The process may end without coming back here.
            writeOptions(theWorkspace());
        }
        return 0;
    case WM_DESTROY:
        application().problems.search.cancel();
        application().window = nullptr;
        PostQuitMessage(0);
        return 0;
    default:
        return DefWindowProcA(window, message, parameter, detail);
    }
}

bool registerClass(const std::string& className) {
    const HINSTANCE instance = application().instance;
    WNDCLASSEXA windowClass{};
    windowClass.cbSize = sizeof(windowClass);
    windowClass.style = CS_HREDRAW | CS_VREDRAW;
    windowClass.lpfnWndProc = mainWindowProcedure;
    windowClass.hInstance = instance;
    windowClass.hIcon = LoadIconA(instance, MAKEINTRESOURCEA(IDI_PROGRAM));
    windowClass.hIconSm = LoadIconA(instance, MAKEINTRESOURCEA(IDI_PROGRAM_SMALL));
    windowClass.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_WINDOW + 1));
    windowClass.lpszMenuName = MAKEINTRESOURCEA(IDR_MENU);
    windowClass.lpszClassName = className.c_str();
    return RegisterClassExA(&windowClass) != 0 && registerDrawingWindow() && registerSheetWindow();
}

} // namespace

HWND createMainWindow() {
    const std::string title = stringResource(IDS_TITLE, MostNameLength);
    const std::string className = stringResource(IDS_WINDOW_CLASS, MostClassLength);
    if (!registerClass(className)) {
        return nullptr;
    }
    RECT work{};
    SystemParametersInfoA(SPI_GETWORKAREA, 0, &work, 0);
    const FrameMetrics metrics{.frame = GetSystemMetrics(SM_CXSIZEFRAME),
                               .caption = GetSystemMetrics(SM_CYCAPTION),
                               .menu = GetSystemMetrics(SM_CYMENU)};
    const WindowPlace place =
        firstWindowPlace(work.right - work.left, work.bottom - work.top, metrics, application().drawing.dpi);
    return CreateWindowExA(0, className.c_str(), title.c_str(), WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                           place.x, place.y, place.width, place.height, nullptr, nullptr,
                           application().instance, nullptr);
}

bool isWindowNavigation(MSG& message) {
    return DialogFrame::isNavigation(message) || isProblemsNavigation(message) ||
           IsDialogMessageA(application().window, &message) != 0;
}

} // namespace varrocade
