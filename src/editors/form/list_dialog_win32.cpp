#include "editors/form/list_dialog_win32.h"

#include "editors/form/list_keys_win32.h"
#include "platform/messages.h"
#include "resources/resource.h"
#include "view/painting/gdi_object_win32.h"

#include <algorithm>
#include <array>

namespace varrocade {

namespace {

constexpr auto EntryKeys = std::to_array<ListKey>({
    {VK_INSERT, false, IDC_ENTRY_ADD, "In the list: Insert"},
    {VK_DELETE, false, IDC_ENTRY_DELETE, "In the list: Delete"},
    {VK_UP, true, IDC_ENTRY_UP, "In the list: Alt+Up"},
    {VK_DOWN, true, IDC_ENTRY_DOWN, "In the list: Alt+Down"},
});
constexpr std::span<const ListKey> EntryKeyTable = EntryKeys;

int lastIndex(const ListDialog& list) {
    return static_cast<int>(list.model.count()) - 1;
}

std::size_t shownIndex(const ListDialog& list) {
    return static_cast<std::size_t>(list.shown);
}

void updateButtons(HWND dialog, const ListDialog& list) {
    DialogPort port(dialog);
    HWND former = GetFocus();
    const bool isShown = list.shown >= 0;
    port.setEnabled(IDC_ENTRY_COPY, isShown);
    port.setEnabled(IDC_ENTRY_MIRROR, isShown && list.model.canMirror());
    port.setEnabled(IDC_ENTRY_DELETE, isShown);
    port.setEnabled(IDC_ENTRY_UP, list.shown > 0);
    port.setEnabled(IDC_ENTRY_DOWN, isShown && list.shown < lastIndex(list));
    keepKeyboard(dialog, former, IDC_ENTRY_LIST);
}

void showEntry(HWND dialog, ListDialog& list, int index) {
    HWND former = GetFocus();
    list.shown = index >= 0 && index <= lastIndex(list) ? index : -1;
    list.isFilling = true;
    DialogPort port(dialog);
    list.model.enable(port, list.shown >= 0);
    if (list.shown >= 0) {
        list.model.show(shownIndex(list), port);
    }
    if (list.follow != nullptr) {
        list.follow(dialog, list);
    }
    list.isFilling = false;
    keepKeyboard(dialog, former, IDC_ENTRY_LIST);
    updateButtons(dialog, list);
}

/// A list that is wider than its box can be scrolled.
void measureLines(HWND box, const ListModel& model) {
    const MemoryDevice device(nullptr);
    const Selection font(device.get(), reinterpret_cast<HFONT>(SendMessageA(box, WM_GETFONT, 0, 0)));
    WPARAM widest = 0;
    for (std::size_t i = 0; i < model.count(); ++i) {
        const std::string line = model.line(i);
        SIZE size{};
        GetTextExtentPoint32A(device.get(), line.c_str(), static_cast<int>(line.size()), &size);
        widest = std::max(widest, static_cast<WPARAM>(size.cx));
    }
    constexpr WPARAM margin = 6;
    SendMessageA(box, LB_SETHORIZONTALEXTENT, widest + margin, 0);
}

void previewChange(const ListDialog& list) {
    if (list.preview != nullptr) {
        list.preview(list.context);
    }
}

/// The line of the shown entry follows what is typed, as far as it can be taken already.
void followTyping(HWND dialog, ListDialog& list) {
    if (list.isFilling || list.shown < 0) {
        return;
    }
    DialogPort port(dialog);
    if (list.model.read(shownIndex(list), port)) {
        return;
    }
    HWND box = GetDlgItem(dialog, IDC_ENTRY_LIST);
    SendMessageA(box, WM_SETREDRAW, FALSE, 0);
    SendMessageA(box, LB_DELETESTRING, shownIndex(list), 0);
    SendMessageA(box, LB_INSERTSTRING, shownIndex(list),
                 reinterpret_cast<LPARAM>(list.model.line(shownIndex(list)).c_str()));
    SendMessageA(box, LB_SETCURSEL, shownIndex(list), 0);
    measureLines(box, list.model);
    SendMessageA(box, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(box, nullptr, TRUE);
    if (list.follow != nullptr) {
        list.isFilling = true;
        list.follow(dialog, list);
        list.isFilling = false;
    }
    previewChange(list);
}

void addEntry(HWND dialog, ListDialog& list, void (ListModel::*how)(std::size_t)) {
    if (!takeShownEntry(dialog, list) || !hasRoomForEntry(list)) {
        return;
    }
    if (how == nullptr) {
        list.model.add();
    } else {
        (list.model.*how)(shownIndex(list));
    }
    refreshEntries(dialog, list, lastIndex(list));
    previewChange(list);
}

void deleteEntry(HWND dialog, ListDialog& list) {
    list.model.erase(shownIndex(list));
    refreshEntries(dialog, list, std::min(list.shown, lastIndex(list)));
    previewChange(list);
}

void moveEntry(HWND dialog, ListDialog& list, int step) {
    const int other = list.shown + step;
    if (list.shown < 0 || other < 0 || other > lastIndex(list) || !takeShownEntry(dialog, list)) {
        return;
    }
    list.model.swap(shownIndex(list), static_cast<std::size_t>(other));
    refreshEntries(dialog, list, other);
    previewChange(list);
}

void chooseEntry(HWND dialog, ListDialog& list) {
    const auto chosen = static_cast<int>(SendDlgItemMessageA(dialog, IDC_ENTRY_LIST, LB_GETCURSEL, 0, 0));
    if (chosen == list.shown) {
        return;
    }
    if (takeShownEntry(dialog, list)) {
        showEntry(dialog, list, chosen);
    } else {
        SendDlgItemMessageA(dialog, IDC_ENTRY_LIST, LB_SETCURSEL, shownIndex(list), 0);
    }
}

INT_PTR handleCommand(HWND dialog, ListDialog& list, WPARAM parameter) {
    const int control = LOWORD(parameter);
    switch (control) {
    case IDOK:
        if (takeShownEntry(dialog, list)) {
            EndDialog(dialog, 1);
        }
        return TRUE;
    case IDCANCEL:
        EndDialog(dialog, 0);
        return TRUE;
    case IDC_ENTRY_LIST:
        if (HIWORD(parameter) == LBN_SELCHANGE) {
            chooseEntry(dialog, list);
        }
        return TRUE;
    case IDC_ENTRY_ADD:
        addEntry(dialog, list, nullptr);
        return TRUE;
    case IDC_ENTRY_COPY:
        addEntry(dialog, list, &ListModel::copy);
        return TRUE;
    case IDC_ENTRY_MIRROR:
        addEntry(dialog, list, &ListModel::mirror);
        return TRUE;
    case IDC_ENTRY_DELETE:
        deleteEntry(dialog, list);
        return TRUE;
    case IDC_ENTRY_UP:
    case IDC_ENTRY_DOWN:
        moveEntry(dialog, list, control == IDC_ENTRY_UP ? -1 : 1);
        return TRUE;
    default:
        break;
    }
    if (list.command != nullptr && HIWORD(parameter) == BN_CLICKED && list.command(dialog, list, control)) {
        return TRUE;
    }
    switch (HIWORD(parameter)) {
    case CBN_SELCHANGE:
        completeChoice(dialog, control);
        [[fallthrough]];
    case BN_CLICKED:
    case CBN_EDITCHANGE:
    case EN_CHANGE:
        followTyping(dialog, list);
        return TRUE;
    default:
        break;
    }
    return FALSE;
}

} // namespace

bool takeShownEntry(HWND dialog, ListDialog& list) {
    if (list.shown < 0) {
        return true;
    }
    DialogPort port(dialog);
    if (const auto error = list.model.read(shownIndex(list), port)) {
        port.focus(error->control);
        showMessage(
            {.text = error->message, .caption = std::string(list.caption), .icon = MessageIcon::Information});
        return false;
    }
    return true;
}

bool hasRoomForEntry(const ListDialog& list) {
    if (list.model.hasRoom()) {
        return true;
    }
    showMessage({.text = std::string(list.fullText),
                 .caption = std::string(list.fullCaption),
                 .icon = MessageIcon::Error});
    return false;
}

void refreshEntries(HWND dialog, ListDialog& list, int chosen) {
    HWND box = GetDlgItem(dialog, IDC_ENTRY_LIST);
    SendMessageA(box, WM_SETREDRAW, FALSE, 0);
    SendMessageA(box, LB_RESETCONTENT, 0, 0);
    for (std::size_t i = 0; i < list.model.count(); ++i) {
        SendMessageA(box, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(list.model.line(i).c_str()));
    }
    SendMessageA(box, LB_SETCURSEL, static_cast<WPARAM>(chosen), 0);
    measureLines(box, list.model);
    SendMessageA(box, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(box, nullptr, TRUE);
    showEntry(dialog, list, chosen);
}

INT_PTR handleListDialog(HWND dialog, UINT message, WPARAM parameter, LPARAM pointer) {
    auto* list = dialogContext<ListDialog>(dialog, message, pointer);
    if (message == WM_INITDIALOG) {
        placeBesideDrawing(dialog);
        if (list->prepare != nullptr) {
            list->prepare(dialog, *list);
        }
        bindListKeys(dialog, IDC_ENTRY_LIST, EntryKeyTable);
        refreshEntries(dialog, *list, std::min(static_cast<int>(list->first), lastIndex(*list)));
        return TRUE;
    }
    if (message == WM_COMMAND && list != nullptr) {
        return handleCommand(dialog, *list, parameter);
    }
    return FALSE;
}

} // namespace varrocade
