#include "editors/vehicle/drive_dialog.h"

#include "editors/form/form_dialog_win32.h"
#include "editors/unit/list_dialogs.h"
#include "editors/vehicle/drive_form.h"
#include "resources/resource.h"

namespace varrocade {

namespace {

class DriveDialog final : public FormDialog {
public:
    explicit DriveDialog(EditContext& edit)
        : FormDialog(
              {.dialogTemplate = IDD_DRIVE, .caption = "Drive", .changed = edit.changed, .undoName = "Drive"},
              form_),
          edit_(edit), form_(*edit.record.vehicle, driveShape()) {
        onButton(IDC_EXHAUSTS_BUTTON, [this] {
            if (editExhaustPipes(handle(), edit_)) {
                edit_.changed("Exhaust pipes");
            }
        });
    }

private:
    void prepare() override { port().setChoices(IDC_ENGINE, engineNames()); }
    bool notice(int control, int notification) override {
        const bool isFollowed = FormDialog::notice(control, notification);
        if (control == IDC_ENGINE && notification == CBN_SELCHANGE) {
            // An engine picked from the list brings its horsepower with it.
            takeEngine(port(), port().text(IDC_ENGINE));
        }
        return isFollowed;
    }

    EditContext& edit_;
    RecordForm<VehicleRecord> form_;
};

} // namespace

bool editDrive(HWND owner, EditContext& edit) {
    return DriveDialog(edit).run(owner);
}

} // namespace varrocade
