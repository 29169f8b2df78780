#include "editors/form/dialog_frame_win32.h"

#include "platform/messages.h"

#include <algorithm>

namespace varrocade {

bool DialogFrame::run(HWND owner) {
    return runDialog(owner, template_, frameProcedure, this) != 0;
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
        placeBesideDrawing(dialog_);
        init();
        return TRUE;
    case WM_COMMAND:
        return handleCommand(LOWORD(parameter), HIWORD(parameter)) ? TRUE : FALSE;
    case WM_DRAWITEM:
        paint(*reinterpret_cast<const DRAWITEMSTRUCT*>(pointer));
        return TRUE;
    case WM_CTLCOLOREDIT:
        return colourEdit(reinterpret_cast<HDC>(parameter), reinterpret_cast<HWND>(pointer));
    case WM_DESTROY:
        port().unmarkAll();
        return FALSE;
    default:
        return receive(message, parameter, pointer) ? TRUE : FALSE;
    }
}

bool DialogFrame::handleCommand(int control, int notification) {
    if (control == IDOK) {
        if (accept()) {
            end();
        }
        return true;
    }
    if (control == IDCANCEL) {
        EndDialog(dialog_, 0);
        return true;
    }
    const auto button = std::find_if(buttons_.begin(), buttons_.end(),
                                     [control](const Button& row) { return row.control == control; });
    if (button != buttons_.end() && notification == BN_CLICKED) {
        button->press();
        return true;
    }
    return notice(control, notification);
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
