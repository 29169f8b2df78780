#pragma once

#include "editors/form/dialog_frame_win32.h"
#include "editors/form/form.h"

#include <span>
#include <string>
#include <string_view>

namespace varrocade {

/// What a form's dialog is.
struct FormDialogTerms {
    int dialogTemplate = 0;
    std::string_view caption = {};                ///< of the boxes with refusals
    std::span<const std::string> imageBases = {}; ///< the folders that pictures are offered from
    /// Tells the undo history of what OK took over, and under which name; none where the caller does.
    void (*changed)(std::string_view what) = nullptr;
    std::string undoName = {};
    std::string title = {};  ///< of the window, where it is not the template's
    FieldId focus = nullptr; ///< the field that has the keyboard first, where the form has it
};

/// A dialog that shows one record in a form: a template, a table of rows, and the dialog's own rules. OK
/// takes the form over into the record. IDC_UNKNOWN, where there is one, names what its drop-down lists do
/// not offer.
class FormDialog : public DialogFrame {
public:
    /// `form` lives as long as the dialog.
    FormDialog(FormDialogTerms terms, FormModel& form);

protected:
    /// Fills what rows know nothing of, before the record is shown.
    virtual void prepare() {}
    /// Follows the form after it was filled or changed by the user.
    virtual void follow() {}
    /// Shows the present state elsewhere, after every change of the user's.
    virtual void preview() {}

    /// Shows the record anew.
    void show();
    /// Takes the form over into the record; false after telling what is wrong with it.
    bool take();

    int firstFocus() override { return form_.controlOf(terms_.focus); }
    bool accept() override;
    bool notice(int control, int notification) override;

private:
    void init() override;
    void followForm();

    FormDialogTerms terms_;
    FormModel& form_;
    bool isFilling_ = false; ///< what the controls report is no change of the user's
};

} // namespace varrocade
