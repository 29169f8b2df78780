#include "editors/form/combo_list_win32.h"

#include <commctrl.h>

#include <array>
#include <memory>
#include <utility>

namespace varrocade {

namespace {

constexpr UINT_PTR GuardId = 1;
constexpr UINT_PTR TypingId = 2;
/// The window property of an edit part that has both.
constexpr const char* GuardedProperty = "Varrocade.Guarded";

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

/// What an edit part held before it was typed into, and what the typing has made of it. The edit's own memory
/// is emptied with each new filling of the list.
struct Typing {
    std::string before;
    std::string after;

    [[nodiscard]] bool canUndo(HWND edit) const { return before != after && windowText(edit) == after; }
};

constexpr WPARAM ControlZ = 0x1A;

bool mayType(UINT message, WPARAM parameter) {
    return message == WM_CHAR || message == WM_PASTE || message == WM_CUT || message == WM_CLEAR ||
           message == EM_REPLACESEL || (message == WM_KEYDOWN && parameter == VK_DELETE);
}

/// Typing that follows typing is taken back with it.
void remember(Typing& typing, std::string before, std::string now) {
    if (now == before || now == typing.after) {
        return;
    }
    if (typing.after != before) {
        typing.before = std::move(before);
    }
    typing.after = std::move(now);
}

/// As an edit does it: once more brings the typing back.
void undoTyping(HWND edit, Typing& typing) {
    if (!typing.canUndo(edit)) {
        return;
    }
    std::swap(typing.before, typing.after);
    HWND combo = GetParent(edit);
    SetWindowTextA(combo, typing.after.c_str());
    SendMessageA(edit, EM_SETSEL, typing.after.size(), static_cast<LPARAM>(typing.after.size()));
    SendMessageA(GetParent(combo), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(combo), CBN_EDITCHANGE),
                 reinterpret_cast<LPARAM>(combo));
}

LRESULT CALLBACK typingProcedure(HWND edit, UINT message, WPARAM parameter, LPARAM detail, UINT_PTR id,
                                 DWORD_PTR data) {
    // The system keeps an integer for it.
    auto* typing = reinterpret_cast<Typing*>(data);
    if (message == WM_NCDESTROY) {
        const std::unique_ptr<Typing> last(typing);
        RemovePropA(edit, GuardedProperty);
        RemoveWindowSubclass(edit, typingProcedure, id);
        return DefSubclassProc(edit, message, parameter, detail);
    }
    if (message == EM_CANUNDO) {
        return typing->canUndo(edit) ? TRUE : FALSE;
    }
    if (message == EM_UNDO || message == WM_UNDO || (message == WM_CHAR && parameter == ControlZ)) {
        undoTyping(edit, *typing);
        return TRUE;
    }
    if (message == WM_SETFOCUS) {
        *typing = {};
    }
    if (!mayType(message, parameter)) {
        return DefSubclassProc(edit, message, parameter, detail);
    }
    std::string before = windowText(edit);
    const LRESULT result = DefSubclassProc(edit, message, parameter, detail);
    remember(*typing, std::move(before), windowText(edit));
    return result;
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
    HWND edit = GetWindow(combo, GW_CHILD);
    if (GetPropA(edit, GuardedProperty) == nullptr) {
        SetPropA(edit, GuardedProperty, edit);
        SetWindowSubclass(edit, guardProcedure, GuardId, 0);
        SetWindowSubclass(edit, typingProcedure, TypingId,
                          reinterpret_cast<DWORD_PTR>(std::make_unique<Typing>().release()));
    }
}

} // namespace varrocade
