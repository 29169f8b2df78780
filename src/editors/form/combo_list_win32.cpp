#include "editors/form/combo_list_win32.h"

#include <commctrl.h>

#include <array>

namespace varrocade {

namespace {

constexpr UINT_PTR GuardId = 1;

std::string windowText(HWND window) {
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(window)) + 1, '\0');
    text.resize(static_cast<std::size_t>(GetWindowTextA(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

/// The entry that the text is, selected, or false: the keys go on from the selected one.
bool selectOwnEntry(HWND combo) {
    const std::string text = windowText(combo);
    const LRESULT own = SendMessageA(combo, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                     reinterpret_cast<LPARAM>(text.c_str()));
    if (text.empty() || own < 0) {
        return false;
    }
    if (SendMessageA(combo, CB_GETCURSEL, 0, 0) != own) {
        SendMessageA(combo, CB_SETCURSEL, static_cast<WPARAM>(own), 0);
    }
    return true;
}

LRESULT CALLBACK guardProcedure(HWND edit, UINT message, WPARAM parameter, LPARAM detail, UINT_PTR,
                                DWORD_PTR) {
    HWND combo = GetParent(edit);
    const bool isArrow = message == WM_KEYDOWN && (parameter == VK_DOWN || parameter == VK_UP ||
                                                   parameter == VK_NEXT || parameter == VK_PRIOR);
    const bool isClosed = SendMessageA(combo, CB_GETDROPPEDSTATE, 0, 0) == 0;
    if (message == WM_MOUSEWHEEL && isClosed) {
        return 0;
    }
    if (isArrow && isClosed && !selectOwnEntry(combo)) {
        SendMessageA(combo, CB_SHOWDROPDOWN, TRUE, 0);
        return 0;
    }
    return DefSubclassProc(edit, message, parameter, detail);
}

} // namespace

bool isComboBox(HWND control) {
    std::array<char, 16> name{};
    GetClassNameA(control, name.data(), static_cast<int>(name.size()));
    return lstrcmpiA(name.data(), "ComboBox") == 0;
}

bool isTypedInto(HWND control) {
    return isComboBox(control) && (GetWindowLongA(control, GWL_STYLE) & CBS_DROPDOWNLIST) != CBS_DROPDOWNLIST;
}

void replaceEntries(HWND combo, std::span<const std::string> entries) {
    const std::string text = windowText(combo);
    DWORD begin = 0;
    DWORD end = 0;
    SendMessageA(combo, CB_GETEDITSEL, reinterpret_cast<WPARAM>(&begin), reinterpret_cast<LPARAM>(&end));
    SendMessageA(combo, WM_SETREDRAW, FALSE, 0);
    // Emptying the list empties its edit part too.
    SendMessageA(combo, CB_RESETCONTENT, 0, 0);
    for (const std::string& entry : entries) {
        SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry.c_str()));
    }
    SetWindowTextA(combo, text.c_str());
    SendMessageA(combo, CB_SETEDITSEL, 0, MAKELPARAM(begin, end));
    SendMessageA(combo, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(combo, nullptr, TRUE);
}

void guardText(HWND combo) {
    SetWindowSubclass(GetWindow(combo, GW_CHILD), guardProcedure, GuardId, 0);
}

} // namespace varrocade
