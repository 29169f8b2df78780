#include "editors/form/form_port_win32.h"

#include "data/format/texts.h"
#include "editors/form/combo_list_win32.h"
#include "editors/form/form.h"
#include "resources/resource.h"

#include <commctrl.h>

#include <algorithm>
#include <utility>

namespace varrocade {

namespace {

/// The window property of a dialog with the window that shows why its controls are marked.
constexpr const char* RefusalTipsProperty = "Varrocade.RefusalTips";

/// The part of a control that the mouse meets.
HWND innerWindow(HWND control) {
    HWND inner = isComboBox(control) ? GetWindow(control, GW_CHILD) : nullptr;
    return inner != nullptr ? inner : control;
}

HWND refusalTips(HWND dialog) {
    auto* tips = static_cast<HWND>(GetPropA(dialog, RefusalTipsProperty));
    if (tips == nullptr) {
        // The dialog owns it and takes it along.
        tips = CreateWindowExA(0, TOOLTIPS_CLASSA, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0, 0,
                               0, dialog, nullptr, GetModuleHandleA(nullptr), nullptr);
        SetPropA(dialog, RefusalTipsProperty, tips);
    }
    return tips;
}

void setRefusalTip(HWND dialog, HWND control, std::string_view refusal) {
    std::string text(refusal);
    TOOLINFOA tool{};
    tool.cbSize = sizeof tool;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = dialog;
    tool.uId = reinterpret_cast<UINT_PTR>(innerWindow(control));
    tool.lpszText = text.data();
    HWND tips = refusalTips(dialog);
    SendMessageA(tips, TTM_DELTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
    if (!text.empty()) {
        SendMessageA(tips, TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
    }
}

} // namespace

std::string DialogPort::text(int control) {
    HWND window = GetDlgItem(dialog_, control);
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(window)) + 1, '\0');
    text.resize(static_cast<std::size_t>(GetWindowTextA(window, text.data(), static_cast<int>(text.size()))));
    return onOneLine(text);
}

void DialogPort::setText(int control, std::string_view text) {
    HWND window = GetDlgItem(dialog_, control);
    const std::string words(text);
    const bool isPureList =
        isComboBox(window) && (GetWindowLongA(window, GWL_STYLE) & CBS_DROPDOWNLIST) == CBS_DROPDOWNLIST;
    if (isPureList) {
        const LRESULT index = SendMessageA(window, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                           reinterpret_cast<LPARAM>(words.c_str()));
        SendMessageA(window, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
        return;
    }
    SetWindowTextA(window, words.c_str());
}

bool DialogPort::isChecked(int control) {
    return IsDlgButtonChecked(dialog_, control) == BST_CHECKED;
}

void DialogPort::setChecked(int control, bool checked) {
    CheckDlgButton(dialog_, control, checked ? BST_CHECKED : BST_UNCHECKED);
}

void DialogPort::setEnabled(int control, bool enabled) {
    EnableWindow(GetDlgItem(dialog_, control), enabled ? TRUE : FALSE);
}

void DialogPort::setChoices(int control, std::span<const std::string> choices) {
    HWND window = GetDlgItem(dialog_, control);
    const std::string kept = text(control);
    if (isTypedInto(window)) {
        std::vector<std::string> all(choices.begin(), choices.end());
        const auto [known, isNew] = choices_.try_emplace(control);
        if (!isNew && known->second == all) {
            return;
        }
        known->second = std::move(all);
        filtered_.erase(control);
        showChoices(window, known->second);
        if (isNew) {
            guardText(window);
        }
        return;
    }
    SendMessageA(window, CB_RESETCONTENT, 0, 0);
    for (const std::string& choice : choices) {
        SendMessageA(window, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(choice.c_str()));
    }
    setText(control, kept);
}

void DialogPort::showChoices(HWND window, std::span<const std::string> choices) {
    const bool wasFilling = std::exchange(isFilling_, true);
    replaceEntries(window, choices);
    isFilling_ = wasFilling;
}

std::optional<std::size_t> DialogPort::chosen(int control) {
    const auto known = choices_.find(control);
    if (known == choices_.end()) {
        const LRESULT place = SendDlgItemMessageA(dialog_, control, CB_GETCURSEL, 0, 0);
        return place >= 0 ? std::optional(static_cast<std::size_t>(place)) : std::nullopt;
    }
    const std::string name = text(control);
    const auto found =
        std::find_if(known->second.begin(), known->second.end(),
                     [&](const std::string& choice) { return equalsIgnoringCase(choice, name); });
    return found != known->second.end()
               ? std::optional(static_cast<std::size_t>(found - known->second.begin()))
               : std::nullopt;
}

void DialogPort::choose(int control, std::size_t choice) {
    const auto known = choices_.find(control);
    if (known == choices_.end()) {
        SendDlgItemMessageA(dialog_, control, CB_SETCURSEL, choice, 0);
    } else if (choice < known->second.size()) {
        setText(control, known->second[choice]);
    }
}

void DialogPort::filterChoices(int control) {
    const auto known = choices_.find(control);
    if (known != choices_.end()) {
        filtered_.insert(control);
        showChoices(GetDlgItem(dialog_, control), fittingChoices(known->second, text(control)));
    }
}

void DialogPort::showAllChoices(int control) {
    if (filtered_.erase(control) > 0) {
        showChoices(GetDlgItem(dialog_, control), choices_[control]);
    }
}

bool DialogPort::offers(int control, std::string_view text) {
    const auto known = choices_.find(control);
    if (known != choices_.end()) {
        return std::any_of(known->second.begin(), known->second.end(),
                           [text](const std::string& choice) { return equalsIgnoringCase(choice, text); });
    }
    return SendDlgItemMessageA(dialog_, control, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                               reinterpret_cast<LPARAM>(std::string(text).c_str())) != CB_ERR;
}

void DialogPort::setLimit(int control, std::size_t characters) {
    HWND window = GetDlgItem(dialog_, control);
    SendMessageA(window, isComboBox(window) ? CB_LIMITTEXT : EM_LIMITTEXT, characters, 0);
}

void DialogPort::focus(int control) {
    // As the dialog manager does it: the default button follows, and an edit's text is selected.
    SendMessageA(dialog_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(GetDlgItem(dialog_, control)), TRUE);
}

void DialogPort::mark(int control, std::string_view refusal) {
    HWND window = GetDlgItem(dialog_, control);
    if (window == nullptr || (refusal.empty() && !isMarked(window))) {
        return;
    }
    setRefusalTip(dialog_, window, refusal);
    if (refusal.empty()) {
        RemovePropA(window, RefusedProperty);
    } else {
        SetPropA(window, RefusedProperty, window);
    }
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void DialogPort::unmarkAll() {
    for (HWND window = GetWindow(dialog_, GW_CHILD); window != nullptr;
         window = GetWindow(window, GW_HWNDNEXT)) {
        RemovePropA(window, RefusedProperty);
    }
    RemovePropA(dialog_, RefusalTipsProperty);
}

bool isMarked(HWND edit) {
    HWND parent = GetParent(edit);
    return GetPropA(edit, RefusedProperty) != nullptr ||
           (isComboBox(parent) && GetPropA(parent, RefusedProperty) != nullptr);
}

void completeChoice(HWND dialog, int control) {
    HWND box = GetDlgItem(dialog, control);
    if (!isComboBox(box)) {
        return;
    }
    const LRESULT chosen = SendMessageA(box, CB_GETCURSEL, 0, 0);
    const LRESULT length =
        chosen < 0 ? -1 : SendMessageA(box, CB_GETLBTEXTLEN, static_cast<WPARAM>(chosen), 0);
    if (length >= 0) {
        std::string text(static_cast<std::size_t>(length) + 1, '\0');
        SendMessageA(box, CB_GETLBTEXT, static_cast<WPARAM>(chosen), reinterpret_cast<LPARAM>(text.data()));
        SetWindowTextA(box, text.c_str());
    }
}

bool isUserChange(int notification) {
    return notification == CBN_SELCHANGE || notification == CBN_EDITCHANGE || notification == EN_CHANGE ||
           notification == BN_CLICKED;
}

void showUnknown(HWND dialog, std::string_view text) {
    DialogPort port(dialog);
    if (port.text(IDC_UNKNOWN) != text) {
        port.setText(IDC_UNKNOWN, text);
    }
    ShowWindow(GetDlgItem(dialog, IDC_UNKNOWN), text.empty() ? SW_HIDE : SW_SHOWNA);
}

void placeBesideDrawing(HWND dialog) {
    HWND mainWindow = GetAncestor(dialog, GA_ROOTOWNER);
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    RECT main{};
    RECT place{};
    if (mainWindow == dialog || GetWindowRect(mainWindow, &main) == 0 || GetWindowRect(dialog, &place) == 0 ||
        GetMonitorInfoA(MonitorFromWindow(mainWindow, MONITOR_DEFAULTTONEAREST), &monitor) == 0) {
        return;
    }
    const RECT& screen = monitor.rcWork;
    const LONG width = place.right - place.left;
    const LONG height = place.bottom - place.top;
    const LONG left = std::min(main.right, screen.right) - width;
    const LONG top = (main.top + main.bottom - height) / 2;
    SetWindowPos(dialog, nullptr, std::max(left, screen.left),
                 std::max(std::min(top, screen.bottom - height), screen.top), 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

INT_PTR runDialog(HWND owner, int dialogTemplate, DLGPROC procedure, void* context) {
    const INT_PTR result = DialogBoxParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(dialogTemplate), owner,
                                           procedure, reinterpret_cast<LPARAM>(context));
    return result > 0 ? result : 0;
}

} // namespace varrocade
