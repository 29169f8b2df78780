#include "editors/form/dialog_frame_win32.h"

#include "editors/form/combo_list_win32.h"
#include "editors/form/list_keys_win32.h"
#include "platform/messages.h"

#include <algorithm>

namespace varrocade {

namespace {

/// A drop-down list has opened, whose control is the first parameter. Dialogs' own messages lie below.
constexpr UINT ComboOpened = WM_APP + 0x100;
/// The window property of dialogs that stand beside the main window.
constexpr const char* ModelessProperty = "Varrocade.Modeless";
/// The dialog has been shown.
constexpr UINT DialogOpened = WM_APP + 0x101;

} // namespace

bool DialogFrame::run(HWND owner) {
    return runDialog(owner, template_, frameProcedure, this) != 0;
}

void DialogFrame::open(HWND owner) {
    if (!isOpen()) {
        isModeless_ = true;
        CreateDialogParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(template_), owner, frameProcedure,
                           reinterpret_cast<LPARAM>(this));
    }
    if (isOpen()) {
        ShowWindow(dialog_, SW_SHOWNORMAL);
        SetForegroundWindow(dialog_);
    }
}

bool DialogFrame::isNavigation(MSG& message) {
    HWND dialog = message.hwnd == nullptr ? nullptr : GetAncestor(message.hwnd, GA_ROOT);
    return dialog != nullptr && GetPropA(dialog, ModelessProperty) != nullptr &&
           IsDialogMessageA(dialog, &message) != 0;
}

void DialogFrame::finish(INT_PTR result) {
    if (isModeless_) {
        DestroyWindow(dialog_);
    } else {
        EndDialog(dialog_, result);
    }
}

void DialogFrame::place() {
    if (isModeless_) {
        SetPropA(dialog_, ModelessProperty, dialog_);
    }
    if (!lastPlace_) {
        placeBesideDrawing(dialog_);
        return;
    }
    SetWindowPos(dialog_, nullptr, lastPlace_->x, lastPlace_->y, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    SendMessageA(dialog_, DM_REPOSITION, 0, 0);
}

/// What is left of a dialog that goes. One that opens again finds its place.
void DialogFrame::leave() {
    port().unmarkAll();
    if (isModeless_) {
        RECT last{};
        GetWindowRect(dialog_, &last);
        lastPlace_ = {last.left, last.top};
        RemovePropA(dialog_, ModelessProperty);
        dialog_ = nullptr;
    }
}

void DialogFrame::onButton(int control, std::function<void()> press) {
    buttons_.push_back({control, std::move(press)});
}

void DialogFrame::refuse(const FormError& error) {
    port().mark(error.control, error.message);
    showMessage({.text = error.message,
                 .caption = error.caption.empty() ? caption_ : error.caption,
                 .icon = MessageIcon::Information});
    port().focus(error.control);
}

INT_PTR CALLBACK DialogFrame::frameProcedure(HWND dialog, UINT message, WPARAM parameter, LPARAM pointer) {
    auto* frame = dialogContext<DialogFrame>(dialog, message, pointer);
    if (frame == nullptr) {
        return FALSE;
    }
    if (message == WM_INITDIALOG) {
        frame->dialog_ = dialog;
        frame->port_.emplace(dialog);
    }
    return frame->handleMessage(message, parameter, pointer);
}

INT_PTR DialogFrame::handleMessage(UINT message, WPARAM parameter, LPARAM pointer) {
    switch (message) {
    case WM_INITDIALOG:
        if (!title_.empty()) {
            SetWindowTextA(dialog_, title_.c_str());
        }
        place();
        init();
        bindUndoKeys(dialog_);
        PostMessageA(dialog_, DialogOpened, 0, 0);
        return giveFocus() ? FALSE : TRUE;
    case WM_COMMAND:
        return handleCommand(LOWORD(parameter), HIWORD(parameter)) ? TRUE : FALSE;
    case WM_DRAWITEM:
        paint(*reinterpret_cast<const DRAWITEMSTRUCT*>(pointer));
        return TRUE;
    case WM_CTLCOLOREDIT:
        return colourEdit(reinterpret_cast<HDC>(parameter), reinterpret_cast<HWND>(pointer));
    case DialogOpened:
        opened();
        return TRUE;
    case ComboOpened:
        keepOpenedText(static_cast<int>(parameter));
        return TRUE;
    case WM_DESTROY:
        leave();
        return FALSE;
    default:
        return receive(message, parameter, pointer) ? TRUE : FALSE;
    }
}

/// False leaves the keyboard to the control that the template begins with.
bool DialogFrame::giveFocus() {
    const int control = firstFocus();
    HWND window = control == 0 ? nullptr : GetDlgItem(dialog_, control);
    if (window == nullptr || IsWindowEnabled(window) == FALSE) {
        return false;
    }
    port().focus(control);
    return true;
}

bool DialogFrame::handleCommand(int control, int notification) {
    if (control == IDOK) {
        if (accept()) {
            end();
        }
        return true;
    }
    if (control == IDCANCEL) {
        finish(0);
        return true;
    }
    const auto button = std::find_if(buttons_.begin(), buttons_.end(),
                                     [control](const Button& row) { return row.control == control; });
    if (button != buttons_.end() && notification == BN_CLICKED) {
        button->press();
        return true;
    }
    if (port().isFilling()) {
        return true;
    }
    if (isTypedInto(GetDlgItem(dialog_, control))) {
        followCombo(control, notification);
    }
    return notice(control, notification);
}

/// What is typed narrows the list; opening it takes nothing for the user, who may only want to look.
void DialogFrame::followCombo(int control, int notification) {
    if (notification == CBN_EDITCHANGE) {
        port().filterChoices(control);
    } else if (notification == CBN_KILLFOCUS) {
        port().showAllChoices(control);
    } else if (notification == CBN_DROPDOWN) {
        openedWith_ = port().text(control);
        PostMessageA(dialog_, ComboOpened, static_cast<WPARAM>(control), 0);
    }
}

std::optional<std::size_t> DialogFrame::followNames(int control, int notification, std::size_t present) {
    if (notification == CBN_SELCHANGE) {
        completeChoice(dialog_, control);
    }
    const auto chosen = port().chosen(control);
    if (notification == CBN_KILLFOCUS && !chosen) {
        port().choose(control, present);
    }
    return isUserChange(notification) && chosen && chosen != present ? chosen : std::nullopt;
}

/// The system completes the text from the list's entries as it opens.
void DialogFrame::keepOpenedText(int control) {
    if (port().text(control) != openedWith_) {
        port().setText(control, openedWith_);
        SendDlgItemMessageA(dialog_, control, CB_SETEDITSEL, 0, MAKELPARAM(-1, -1));
    }
}

INT_PTR DialogFrame::colourEdit(HDC device, HWND edit) {
    if (!isMarked(edit)) {
        return FALSE;
    }
    if (refusedBrush_.get() == nullptr) {
        refusedBrush_ = GdiObject<HBRUSH>(CreateSolidBrush(RefusedColour));
    }
    SetBkColor(device, RefusedColour);
    SetTextColor(device, RGB(0, 0, 0));
    return reinterpret_cast<INT_PTR>(refusedBrush_.get());
}

} // namespace varrocade
