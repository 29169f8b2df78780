#include "editors/form/form_dialog_win32.h"

#include "editors/form/list_keys_win32.h"

#include <utility>

namespace varrocade {

FormDialog::FormDialog(FormDialogTerms terms, FormModel& form)
    : DialogFrame(terms.dialogTemplate, terms.caption, terms.title), terms_(std::move(terms)), form_(form) {}

void FormDialog::init() {
    isFilling_ = true;
    form_.offer(port(), terms_.imageBases);
    prepare();
    show();
}

void FormDialog::show() {
    isFilling_ = true;
    form_.show(port());
    followForm();
}

void FormDialog::followForm() {
    isFilling_ = true;
    showUnknown(handle(), form_.unknown(port()));
    follow();
    isFilling_ = false;
}

bool FormDialog::take() {
    if (const auto error = form_.read(port())) {
        refuse(*error);
        return false;
    }
    return true;
}

bool FormDialog::accept() {
    if (!take()) {
        return false;
    }
    if (terms_.changed != nullptr) {
        terms_.changed(terms_.undoName);
    }
    return true;
}

bool FormDialog::notice(int control, int notification) {
    if (!isUserChange(notification) || isFilling_) {
        return false;
    }
    if (notification == CBN_SELCHANGE) {
        completeChoice(handle(), control);
    }
    HWND former = GetFocus();
    form_.update(port());
    keepKeyboard(handle(), former, IDOK);
    form_.mark(port(), control);
    followForm();
    preview();
    return true;
}

} // namespace varrocade
