#include "app/windows/file_list.h"

#include "app/windows/application.h"
#include "app/windows/problems/problem_marks.h"
#include "app/workspace/category_list.h"
#include "app/workspace/names/list_notice.h"
#include "app/workspace/names/name_filter.h"
#include "app/workspace/record/unsaved_records.h"
#include "resources/resource.h"
#include "view/painting/flag_painter.h"
#include "view/painting/gdi_device_win32.h"

#include <commctrl.h>

namespace varrocade {

namespace {

/// Characters typed within this time of one another search together.
constexpr DWORD TypeAheadMilliseconds = 1000;

HWND listWindow() {
    return GetDlgItem(application().window, IDC_FILE_LIST);
}

HWND filterWindow() {
    return GetDlgItem(application().window, IDC_FILTER);
}

std::string windowText(HWND window) {
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(window)) + 1, '\0');
    text.resize(static_cast<std::size_t>(GetWindowTextA(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

std::string entryText(HWND list, LRESULT index) {
    const LRESULT length = SendMessageA(list, LB_GETTEXTLEN, static_cast<WPARAM>(index), 0);
    if (index < 0 || length < 0) {
        return {};
    }
    std::string text(static_cast<std::size_t>(length) + 1, '\0');
    SendMessageA(list, LB_GETTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

/// The row of a name; LB_ERR where it is not shown.
LRESULT rowOf(HWND list, const std::string& name) {
    return name.empty() ? LB_ERR
                        : SendMessageA(list, LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                       reinterpret_cast<LPARAM>(name.c_str()));
}

std::string_view markText(EntryMark mark) {
    switch (mark) {
    case EntryMark::None:
        break;
    case EntryMark::Unsaved:
        return " *";
    case EntryMark::ChangedOutside:
        return " * (changed outside)";
    }
    return {};
}

void selectIndex(HWND list, LRESULT index) {
    SendMessageA(list, LB_SETCURSEL, static_cast<WPARAM>(index), 0);
    SendMessageA(application().window, WM_COMMAND, MAKEWPARAM(IDC_FILE_LIST, LBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(list));
}

/// Letters typed one after the other select the next entry that begins with them.
void typeAhead(HWND list, char typed, DWORD time) {
    std::string& buffer = application().typedAhead;
    DWORD& lastTime = application().typedAheadTime;
    const bool continues = time - lastTime < TypeAheadMilliseconds;
    lastTime = time;
    if (!continues) {
        buffer.clear();
    }
    buffer += typed;
    // One and the same letter again goes on to the next entry with it.
    const bool isRepeat = buffer.size() > 1 && buffer.find_first_not_of(buffer[0]) == std::string::npos;
    const std::string wanted = isRepeat ? buffer.substr(0, 1) : buffer;
    const LRESULT current = SendMessageA(list, LB_GETCURSEL, 0, 0);
    const LRESULT start = wanted.size() > 1 && current > 0 ? current - 1 : current;
    const LRESULT found =
        SendMessageA(list, LB_FINDSTRING, static_cast<WPARAM>(wanted.size() > 1 && current <= 0 ? -1 : start),
                     reinterpret_cast<LPARAM>(wanted.c_str()));
    if (found >= 0 && found != current) {
        selectIndex(list, found);
    }
}

// The controls' procedures are replaced in the plain way: the common controls' subclassing looks up a
// property of the window for each message, which makes filling the list several times as slow under Wine.
void replaceProcedure(HWND control, WNDPROC procedure) {
    SetWindowLongPtrA(control, GWLP_USERDATA, GetWindowLongPtrA(control, GWLP_WNDPROC));
    SetWindowLongPtrA(control, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
}

LRESULT formerProcedure(HWND control, UINT message, WPARAM parameter, LPARAM detail) {
    const auto former = reinterpret_cast<WNDPROC>(GetWindowLongPtrA(control, GWLP_USERDATA));
    return CallWindowProcA(former, control, message, parameter, detail);
}

LRESULT CALLBACK listProcedure(HWND list, UINT message, WPARAM parameter, LPARAM detail) {
    constexpr WPARAM firstPrintable = ' ';
    if (message == WM_CHAR && parameter >= firstPrintable) {
        typeAhead(list, static_cast<char>(parameter), static_cast<DWORD>(GetMessageTime()));
        return 0;
    }
    // Going elsewhere ends what was typed.
    if (message == WM_LBUTTONDOWN ||
        (message == WM_KEYDOWN && parameter >= VK_PRIOR && parameter <= VK_DOWN)) {
        application().typedAhead.clear();
    }
    if (message == WM_KEYDOWN && parameter == VK_DELETE) {
        SendMessageA(application().window, WM_COMMAND, MAKEWPARAM(IDC_DELETE, 0), 0);
        return 0;
    }
    if (message == WM_RBUTTONDOWN) {
        // As elsewhere, the menu is that of what lies under the mouse.
        const LRESULT item = SendMessageA(list, LB_ITEMFROMPOINT, 0, detail);
        if (HIWORD(item) == 0 && LOWORD(item) != SendMessageA(list, LB_GETCURSEL, 0, 0)) {
            selectIndex(list, LOWORD(item));
        }
        SetFocus(list);
        return 0;
    }
    return formerProcedure(list, message, parameter, detail);
}

/// Arrow keys in the filter move through the list.
LRESULT CALLBACK filterProcedure(HWND filter, UINT message, WPARAM parameter, LPARAM detail) {
    const bool isListKey = message == WM_KEYDOWN && (parameter == VK_UP || parameter == VK_DOWN ||
                                                     parameter == VK_PRIOR || parameter == VK_NEXT);
    if (isListKey) {
        return SendMessageA(listWindow(), message, parameter, detail);
    }
    return formerProcedure(filter, message, parameter, detail);
}

/// The words and the button that lie over the list while it is empty.
void createNotice(HWND parent, HWND list) {
    const auto child = [&](const char* className, DWORD style, int id) {
        HWND control = CreateWindowExA(0, className, "", WS_CHILD | WS_CLIPSIBLINGS | style, 0, 0, 0, 0,
                                       parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                                       application().instance, nullptr);
        SetWindowPos(list, control, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    };
    child("STATIC", SS_CENTER | SS_NOPREFIX, IDC_LIST_NOTICE);
    child("BUTTON", WS_TABSTOP | BS_PUSHBUTTON, IDC_LIST_REMEDY);
}

void showNotice() {
    HWND parent = application().window;
    const ListNotice notice = listNotice(theWorkspace());
    HWND words = GetDlgItem(parent, IDC_LIST_NOTICE);
    HWND remedy = GetDlgItem(parent, IDC_LIST_REMEDY);
    SetWindowTextA(words, notice.text.c_str());
    SetWindowTextA(remedy, std::string(remedyText(notice.remedy)).c_str());
    ShowWindow(words, notice.text.empty() ? SW_HIDE : SW_SHOWNA);
    ShowWindow(remedy, notice.remedy == ListRemedy::None ? SW_HIDE : SW_SHOWNA);
}

} // namespace

void createFileList(HWND parent) {
    const HINSTANCE instance = application().instance;
    const auto child = [&](DWORD exStyle, const char* className, DWORD style, int id) {
        return CreateWindowExA(exStyle, className, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP | style, 0, 0, 0, 0,
                               parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), instance, nullptr);
    };
    HWND filter = child(WS_EX_CLIENTEDGE, "EDIT", ES_AUTOHSCROLL, IDC_FILTER);
    HWND list = child(WS_EX_CLIENTEDGE, "LISTBOX",
                      WS_CLIPSIBLINGS | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_NOTIFY |
                          LBS_DISABLENOSCROLL | LBS_NOINTEGRALHEIGHT | WS_VSCROLL,
                      IDC_FILE_LIST);
    replaceProcedure(list, listProcedure);
    replaceProcedure(filter, filterProcedure);
    createNotice(parent, list);
    SendMessageW(filter, EM_SETCUEBANNER, TRUE, reinterpret_cast<LPARAM>(L"Filter (Ctrl+F)"));
}

void showNames() {
    constexpr WPARAM reservedItems = 800;
    constexpr LPARAM reservedBytes = 65536;
    HWND list = listWindow();
    SendMessageA(list, WM_SETREDRAW, FALSE, 0);
    SendMessageA(list, LB_RESETCONTENT, 0, 0);
    SendMessageA(list, LB_INITSTORAGE, reservedItems, reservedBytes);
    for (const std::string& name : theWorkspace().list.shown) {
        SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name.c_str()));
    }
    showSelectedName();
    SendMessageA(list, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(list, nullptr, TRUE);
    showNotice();
}

void showSelectedName() {
    HWND list = listWindow();
    SendMessageA(list, LB_SETCURSEL, static_cast<WPARAM>(rowOf(list, theWorkspace().list.selected)), 0);
}

std::string selectedEntry() {
    HWND list = listWindow();
    return entryText(list, SendMessageA(list, LB_GETCURSEL, 0, 0));
}

void applyFilter() {
    setFilter(theWorkspace(), windowText(filterWindow()));
}

int listEntryHeight() {
    constexpr int height = 20;
    return application().drawing.scaled(height);
}

void drawListEntry(const DRAWITEMSTRUCT& item) {
    if (item.itemID == static_cast<UINT>(-1)) {
        return;
    }
    Application& app = application();
    const DrawingObjects& objects = app.drawing;
    const bool isSelected = (item.itemState & ODS_SELECTED) != 0;
    FillRect(item.hDC, &item.rcItem, isSelected ? objects.highlightBrush.get() : objects.whiteBrush.get());
    const std::string name = entryText(item.hwndItem, item.itemID);
    constexpr int flagWidth = 21;
    constexpr int flagHeight = 14;
    constexpr int gap = 4;
    const int height = item.rcItem.bottom - item.rcItem.top;
    RECT place = item.rcItem;
    place.right -= objects.scaled(2 * ProblemSignSize);
    place.left += objects.scaled(gap);
    if (app.workspace.category != Category::Weapons) {
        const LONG top = place.top + (height - objects.scaled(flagHeight)) / 2;
        const RECT flag{place.left, top, place.left + objects.scaled(flagWidth),
                        top + objects.scaled(flagHeight)};
        GdiDevice device(item.hDC, app.drawing, &app.pictures);
        paintFlag(device, pixelRect(flag), nationalityOfName(name), imageBases(app.workspace));
        place.left += objects.scaled(flagWidth + gap + 2);
    }
    const Selection font(item.hDC, objects.normalFont.get());
    SetBkMode(item.hDC, TRANSPARENT);
    const int ordinary = isOfGame(app.workspace.list, name) ? COLOR_GRAYTEXT : COLOR_WINDOWTEXT;
    SetTextColor(item.hDC, GetSysColor(isSelected ? COLOR_HIGHLIGHTTEXT : ordinary));
    const std::string text = name + std::string(markText(markOf(app.workspace, name)));
    constexpr UINT format = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS;
    DrawTextA(item.hDC, text.c_str(), static_cast<int>(text.size()), &place, format);
    if (!isOfGame(app.workspace.list, name)) {
        if (const auto severity = severityToMark(app.problems.book, app.workspace.category, name)) {
            const int size = objects.scaled(ProblemSignSize);
            paintProblemSign(item.hDC, objects,
                             {item.rcItem.right - size, (item.rcItem.top + item.rcItem.bottom) / 2},
                             *severity);
        }
    }
    if ((item.itemState & ODS_FOCUS) != 0) {
        DrawFocusRect(item.hDC, &item.rcItem);
    }
}

void redrawOpenEntry() {
    HWND list = listWindow();
    RECT place{};
    const LRESULT row = rowOf(list, listedOpenName(theWorkspace()));
    if (row >= 0 && SendMessageA(list, LB_GETITEMRECT, static_cast<WPARAM>(row),
                                 reinterpret_cast<LPARAM>(&place)) != LB_ERR) {
        InvalidateRect(list, &place, FALSE);
    }
}

void redrawEntries() {
    InvalidateRect(listWindow(), nullptr, FALSE);
}

void leaveFilter() {
    application().typedAhead.clear();
    SetWindowTextA(filterWindow(), "");
    SetFocus(listWindow());
}

} // namespace varrocade
