#include "editors/form/list_dialog_win32.h"

#include "editors/form/list_keys_win32.h"
#include "platform/messages.h"
#include "resources/resource.h"

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

} // namespace

ListDialog::ListDialog(const ListDialogTerms& terms, ListModel& model)
    : DialogFrame(terms.dialogTemplate, terms.caption, terms.title), terms_(terms), model_(model) {
    onButton(IDC_ENTRY_ADD, [this] {
        if (addEntry(nullptr)) {
            focusFirstField();
        }
    });
    onButton(IDC_ENTRY_COPY, [this] { addEntry(&ListModel::copy); });
    onButton(IDC_ENTRY_MIRROR, [this] { addEntry(&ListModel::mirror); });
    onButton(IDC_ENTRY_DELETE, [this] { deleteEntry(); });
    onButton(IDC_ENTRY_UP, [this] { moveEntry(-1); });
    onButton(IDC_ENTRY_DOWN, [this] { moveEntry(1); });
    onButton(IDC_ENTRY_UNDO, [this] { goBack(&ListModel::undo); });
    onButton(IDC_ENTRY_REDO, [this] { goBack(&ListModel::redo); });
}

void ListDialog::init() {
    model_.offer(port(), terms_.imageBases);
    prepare();
    bindListKeys(handle(), IDC_ENTRY_LIST, EntryKeys);
    refresh(std::min(static_cast<int>(terms_.first), lastIndex()));
}

void ListDialog::updateButtons() {
    HWND former = GetFocus();
    port().setEnabled(IDC_ENTRY_COPY, isShown());
    port().setEnabled(IDC_ENTRY_MIRROR, isShown() && model_.canMirror());
    port().setEnabled(IDC_ENTRY_DELETE, isShown());
    port().setEnabled(IDC_ENTRY_UP, shown_ > 0);
    port().setEnabled(IDC_ENTRY_DOWN, isShown() && shown_ < lastIndex());
    keepKeyboard(handle(), former, IDC_ENTRY_LIST);
    updateUndo();
}

void ListDialog::settle() {
    if (GetDlgItem(handle(), IDC_ENTRY_UNDO) != nullptr) {
        model_.note();
        updateUndo();
    }
}

void ListDialog::updateUndo() {
    HWND former = GetFocus();
    port().setEnabled(IDC_ENTRY_UNDO, model_.canUndo());
    port().setEnabled(IDC_ENTRY_REDO, model_.canRedo());
    keepKeyboard(handle(), former, IDC_ENTRY_LIST);
}

/// Text that cannot be taken is the first thing to go. An entry that was just added and says nothing yet goes
/// itself.
void ListDialog::goBack(std::optional<std::size_t> (ListModel::*step)()) {
    if (isShown() && model_.read(shownIndex(), port())) {
        refreshShown();
        if (!model_.read(shownIndex(), port())) {
            return;
        }
    }
    if (const auto place = (model_.*step)()) {
        refresh(std::min(static_cast<int>(*place), lastIndex()));
        preview();
    }
}

void ListDialog::followForm() {
    isFilling_ = true;
    follow();
    showUnknown(handle(), isShown() ? unknownText() : std::string());
    isFilling_ = false;
}

void ListDialog::showEntry(int index) {
    HWND former = GetFocus();
    shown_ = index >= 0 && index <= lastIndex() ? index : -1;
    isFilling_ = true;
    if (isShown()) {
        model_.show(shownIndex(), port());
    } else {
        model_.disable(port());
    }
    followForm();
    keepKeyboard(handle(), former, IDC_ENTRY_LIST);
    updateButtons();
}

/// The line of the shown entry follows what is typed, as far as it can be taken already.
void ListDialog::followTyping(int control) {
    if (isFilling_ || !isShown()) {
        return;
    }
    HWND former = GetFocus();
    model_.update(shownIndex(), port());
    keepKeyboard(handle(), former, IDC_ENTRY_LIST);
    model_.mark(shownIndex(), port(), control);
    if (model_.read(shownIndex(), port())) {
        followForm();
        return;
    }
    updateUndo();
    HWND box = GetDlgItem(handle(), IDC_ENTRY_LIST);
    SendMessageA(box, WM_SETREDRAW, FALSE, 0);
    SendMessageA(box, LB_DELETESTRING, shownIndex(), 0);
    SendMessageA(box, LB_INSERTSTRING, shownIndex(),
                 reinterpret_cast<LPARAM>(model_.line(shownIndex()).c_str()));
    SendMessageA(box, LB_SETCURSEL, shownIndex(), 0);
    measureLines(box);
    SendMessageA(box, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(box, nullptr, TRUE);
    followForm();
    preview();
}

bool ListDialog::addEntry(void (ListModel::*how)(std::size_t)) {
    if (!takeShown() || !hasRoom()) {
        return false;
    }
    settle();
    if (how == nullptr) {
        model_.add();
    } else {
        (model_.*how)(shownIndex());
    }
    refresh(static_cast<int>(model_.newest()));
    preview();
    return true;
}

/// What is added waits to be filled in.
void ListDialog::focusFirstField() {
    HWND first = GetDlgItem(handle(), model_.firstControl());
    if (first != nullptr && IsWindowEnabled(first) != FALSE) {
        port().focus(model_.firstControl());
    }
}

void ListDialog::deleteEntry() {
    settle();
    model_.erase(shownIndex());
    refresh(std::min(shown_, lastIndex()));
    preview();
}

void ListDialog::moveEntry(int step) {
    const int other = shown_ + step;
    if (!isShown() || other < 0 || other > lastIndex() || !takeShown()) {
        return;
    }
    settle();
    model_.swap(shownIndex(), static_cast<std::size_t>(other));
    refresh(other);
    preview();
}

void ListDialog::chooseEntry() {
    const auto chosen = static_cast<int>(SendDlgItemMessageA(handle(), IDC_ENTRY_LIST, LB_GETCURSEL, 0, 0));
    if (chosen == shown_) {
        return;
    }
    if (takeShown()) {
        settle();
        showEntry(chosen);
    } else {
        SendDlgItemMessageA(handle(), IDC_ENTRY_LIST, LB_SETCURSEL, shownIndex(), 0);
    }
}

bool ListDialog::notice(int control, int notification) {
    if (control == IDC_ENTRY_LIST) {
        if (notification == LBN_SELCHANGE) {
            chooseEntry();
        }
        return true;
    }
    if (!isUserChange(notification)) {
        return false;
    }
    if (notification == CBN_SELCHANGE) {
        completeChoice(handle(), control);
    }
    followTyping(control);
    return true;
}

bool ListDialog::takeShown() {
    if (!isShown()) {
        return true;
    }
    if (const auto error = model_.read(shownIndex(), port())) {
        refuse(*error);
        return false;
    }
    return true;
}

bool ListDialog::hasRoom() {
    if (model_.hasRoom()) {
        return true;
    }
    showMessage({.text = std::string(terms_.fullText),
                 .caption = std::string(terms_.fullCaption),
                 .icon = MessageIcon::Error});
    return false;
}

void ListDialog::fillList(int chosen, LRESULT top) {
    HWND box = GetDlgItem(handle(), IDC_ENTRY_LIST);
    SendMessageA(box, WM_SETREDRAW, FALSE, 0);
    SendMessageA(box, LB_RESETCONTENT, 0, 0);
    for (std::size_t i = 0; i < model_.count(); ++i) {
        SendMessageA(box, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(model_.line(i).c_str()));
    }
    SendMessageA(box, LB_SETTOPINDEX, static_cast<WPARAM>(top), 0);
    SendMessageA(box, LB_SETCURSEL, static_cast<WPARAM>(chosen), 0);
    measureLines(box);
    SendMessageA(box, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(box, nullptr, TRUE);
}

void ListDialog::showLines() {
    fillList(shown_, SendDlgItemMessageA(handle(), IDC_ENTRY_LIST, LB_GETTOPINDEX, 0, 0));
}

void ListDialog::refresh(int chosen) {
    fillList(chosen, SendDlgItemMessageA(handle(), IDC_ENTRY_LIST, LB_GETTOPINDEX, 0, 0));
    showEntry(chosen);
    settle();
}

} // namespace varrocade
