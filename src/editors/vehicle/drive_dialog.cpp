#include "editors/vehicle/drive_dialog.h"

#include "analysis/performance/vehicle_performance.h"
#include "editors/form/form_dialog_win32.h"
#include "editors/unit/list_dialogs.h"
#include "editors/vehicle/drive_form.h"
#include "resources/resource.h"

namespace varrocade {

namespace {

class DriveDialog final : public FormDialog {
public:
    explicit DriveDialog(EditContext& edit)
        : FormDialog({.dialogTemplate = IDD_DRIVE,
                      .caption = "Drive",
                      .changed = edit.changed,
                      .undoName = "Drive",
                      .focus = edit.focus.field},
                     form_),
          edit_(edit), form_(*edit.record.vehicle, driveShape()) {
        onButton(IDC_EXHAUSTS_BUTTON, [this] {
            if (editExhaustPipes(handle(), edit_)) {
                edit_.changed("Exhaust pipes");
            }
        });
        onButton(IDC_PERFORMANCE, [this] {
            if (edit_.openPerformance != nullptr) {
                preview();
                edit_.openPerformance();
            }
        });
    }

    DriveDialog(const DriveDialog&) = delete;
    DriveDialog& operator=(const DriveDialog&) = delete;
    ~DriveDialog() override {
        if (edit_.preview != nullptr) {
            edit_.preview(edit_.record, {});
        }
    }

private:
    void preview() override {
        if (edit_.preview != nullptr) {
            edit_.preview(typed(), [this](std::int32_t weight) {
                edit_.record.vehicle->weight = weight;
                edit_.changed("Take the estimated weight");
                follow();
                preview();
            });
        }
    }
    void prepare() override { port().setChoices(IDC_ENGINE, engineNames()); }
    void follow() override {
        const SquadRecord unit = typed();
        port().setText(IDC_DRIVE_FIGURES, performanceLine(vehiclePerformance(
                                              unit, WeaponMasses(edit_.catalogue, *unit.vehicle))));
    }
    /// The unit with what the form holds, as far as that can be taken.
    [[nodiscard]] SquadRecord typed() {
        SquadRecord unit = edit_.record;
        readPossible(port(), driveShape(), *unit.vehicle);
        return unit;
    }
    bool notice(int control, int notification) override {
        const bool isFollowed = FormDialog::notice(control, notification);
        if (control == IDC_ENGINE && notification == CBN_SELCHANGE) {
            // An engine picked from the list brings its horsepower with it.
            takeEngine(port(), port().text(IDC_ENGINE));
            preview();
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
