#include "editors/form/list_keys_win32.h"

#include "resources/resource.h"
#include "view/painting/gdi_object_win32.h"

#include <commctrl.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace varrocade {

namespace {

// What Ctrl with these letters comes to.
constexpr WPARAM SelectAllKey = 'A' - 'A' + 1;
constexpr WPARAM RedoKey = 'Y' - 'A' + 1;
constexpr WPARAM UndoKey = 'Z' - 'A' + 1;

/// Selects all lines of a list that lets several be selected; false where it does not.
bool selectAll(HWND list) {
    if ((GetWindowLongA(list, GWL_STYLE) & LBS_EXTENDEDSEL) == 0) {
        return false;
    }
    SendMessageA(list, LB_SETSEL, TRUE, -1);
    SendMessageA(GetParent(list), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(list), LBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(list));
    return true;
}

/// The system keeps two integers for it: the table's length as its number, and where the table is.
LRESULT CALLBACK listKeysProcedure(HWND list, UINT message, WPARAM parameter, LPARAM detail, UINT_PTR length,
                                   DWORD_PTR rows) {
    if (message == WM_CHAR && parameter == SelectAllKey && selectAll(list)) {
        return 0;
    }
    if (message != WM_KEYDOWN && message != WM_SYSKEYDOWN) {
        return DefSubclassProc(list, message, parameter, detail);
    }
    const std::span keys(reinterpret_cast<const ListKey*>(rows), length);
    const bool withAlt = message == WM_SYSKEYDOWN;
    const auto found = std::find_if(keys.begin(), keys.end(), [&](const ListKey& row) {
        return row.key == parameter && row.withAlt == withAlt;
    });
    if (found == keys.end()) {
        return DefSubclassProc(list, message, parameter, detail);
    }
    HWND dialog = GetParent(list);
    HWND button = GetDlgItem(dialog, found->button);
    if (IsWindowEnabled(button) != FALSE) {
        SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(found->button, BN_CLICKED),
                     reinterpret_cast<LPARAM>(button));
    }
    // The system must see that Alt was held for a key, or letting it go would open the window's menu.
    return withAlt ? DefWindowProcA(list, message, parameter, detail) : 0;
}

LRESULT CALLBACK undoKeysProcedure(HWND control, UINT message, WPARAM parameter, LPARAM detail, UINT_PTR,
                                   DWORD_PTR dialog) {
    const bool isUndo = message == WM_CHAR && parameter == UndoKey;
    const bool isRedo = message == WM_CHAR && parameter == RedoKey;
    // What is no edit answers nothing.
    if ((!isUndo && !isRedo) || (isUndo && SendMessageA(control, EM_CANUNDO, 0, 0) == TRUE)) {
        return DefSubclassProc(control, message, parameter, detail);
    }
    HWND owner = reinterpret_cast<HWND>(dialog);
    const int id = isUndo ? IDC_ENTRY_UNDO : IDC_ENTRY_REDO;
    HWND button = GetDlgItem(owner, id);
    if (IsWindowEnabled(button) != FALSE) {
        SendMessageA(owner, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), reinterpret_cast<LPARAM>(button));
    }
    return 0;
}

BOOL CALLBACK bindUndoKeysOf(HWND control, LPARAM dialog) {
    SetWindowSubclass(control, undoKeysProcedure, 1, static_cast<DWORD_PTR>(dialog));
    return TRUE;
}

} // namespace

void bindUndoKeys(HWND dialog) {
    if (GetDlgItem(dialog, IDC_ENTRY_UNDO) == nullptr) {
        return;
    }
    EnumChildWindows(dialog, bindUndoKeysOf, reinterpret_cast<LPARAM>(dialog));
    addTips(dialog, std::to_array<Tip>({{IDC_ENTRY_UNDO, "Ctrl+Z"}, {IDC_ENTRY_REDO, "Ctrl+Y"}}));
}

void bindListKeys(HWND dialog, int listBox, std::span<const ListKey> keys) {
    SetWindowSubclass(GetDlgItem(dialog, listBox), listKeysProcedure, keys.size(),
                      reinterpret_cast<DWORD_PTR>(keys.data()));
    std::vector<Tip> tips;
    for (const ListKey& row : keys) {
        tips.push_back({row.button, row.tip});
    }
    addTips(dialog, tips);
}

void addTips(HWND dialog, std::span<const Tip> tips) {
    // The dialog owns it and takes it along.
    HWND window = CreateWindowExA(0, TOOLTIPS_CLASSA, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0,
                                  0, 0, dialog, nullptr, GetModuleHandleA(nullptr), nullptr);
    for (const Tip& tip : tips) {
        HWND control = GetDlgItem(dialog, tip.control);
        if (control == nullptr) {
            continue;
        }
        std::string text(tip.text);
        TOOLINFOA tool{};
        tool.cbSize = sizeof tool;
        tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
        tool.hwnd = dialog;
        tool.uId = reinterpret_cast<UINT_PTR>(control);
        tool.lpszText = text.data();
        SendMessageA(window, TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
    }
}

void measureLines(HWND box) {
    const MemoryDevice device(nullptr);
    const Selection font(device.get(), reinterpret_cast<HFONT>(SendMessageA(box, WM_GETFONT, 0, 0)));
    WPARAM widest = 0;
    const LRESULT count = SendMessageA(box, LB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
        const auto row = static_cast<WPARAM>(i);
        std::string line(static_cast<std::size_t>(SendMessageA(box, LB_GETTEXTLEN, row, 0)), '\0');
        SendMessageA(box, LB_GETTEXT, row, reinterpret_cast<LPARAM>(line.data()));
        SIZE size{};
        GetTextExtentPoint32A(device.get(), line.c_str(), static_cast<int>(line.size()), &size);
        widest = std::max(widest, static_cast<WPARAM>(size.cx));
    }
    constexpr WPARAM margin = 6;
    SendMessageA(box, LB_SETHORIZONTALEXTENT, widest + margin, 0);
}

void keepKeyboard(HWND dialog, HWND former, int control) {
    if (former != nullptr && IsChild(dialog, former) != FALSE && IsWindowEnabled(former) == FALSE) {
        SendMessageA(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(GetDlgItem(dialog, control)), TRUE);
    }
}

} // namespace varrocade
