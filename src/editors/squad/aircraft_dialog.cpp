// The "Details" dialog of aircraft, and their rotor blades.

#include "data/unit_fields.h"
#include "editors/form/image_choices.h"
#include "editors/form/list_dialog_win32.h"
#include "editors/squad/rotor_list.h"
#include "editors/squad/squad_dialogs.h"
#include "editors/squad/squad_form.h"
#include "editors/squad/squad_notes.h"
#include "editors/unit/availability_dialog.h"
#include "editors/unit/details_terms_win32.h"
#include "editors/unit/play_sound_win32.h"
#include "editors/unit/sound_choices.h"
#include "resources/resource.h"

#include <functional>

namespace varrocade {

namespace {

class AircraftDialog final : public FormDialog {
public:
    explicit AircraftDialog(EditContext& edit)
        : FormDialog(detailsTerms(edit, IDD_AIRCRAFT), form_), edit_(edit),
          image_(edit.record.aircraft->image), form_(edit.record, aircraftShape()) {
        onButton(IDC_WEAPONS_BUTTON,
                 [this] { open([this] { return editArmament(handle(), edit_, armament()); }, "Weapons"); });
        onButton(IDC_AMMO_BUTTON, [this] {
            open([this] { return editArmamentAmmunition(handle(), edit_, armament()); }, "Ammunition");
        });
        onButton(IDC_ROTORS_BUTTON,
                 [this] { open([this] { return editRotors(handle(), edit_); }, "Rotor blades"); });
        onButton(IDC_AVAILABILITY, [this] {
            open([this] { return editAvailability(handle(), edit_, edit_.drawing); }, "Availability");
        });
        onButton(IDC_PLAY_SOUND, [this] { play(); });
    }

    /// Puts the picture back that the drawing showed before.
    void restoreImage() { edit_.record.aircraft->image = image_; }

private:
    void prepare() override {
        port().setChoices(IDC_AIRCRAFT_SOUND, soundChoices(edit_.imageBases));
        port().setChoices(IDC_AIRCRAFT_IMAGE, partChoices(edit_.imageBases, field::AircraftImage.images, {}));
    }
    /// The drawing shows the picture that the form names.
    void follow() override {
        SquadRecord shown = edit_.record;
        readPossible(port(), aircraftShape(), shown);
        port().setEnabled(IDC_PLAY_SOUND, !soundPath(edit_.imageBases, shown.aircraft->sound).empty());
        port().setText(IDC_UNIT_NOTES, noteLines(aircraftNotes(shown, edit_.catalogue, edit_.imageBases)));
        if (shown.aircraft->image != edit_.record.aircraft->image) {
            edit_.record.aircraft->image = shown.aircraft->image;
            edit_.redraw();
        }
    }
    bool accept() override {
        const Text shown = edit_.record.aircraft->image;
        restoreImage();
        if (FormDialog::accept()) {
            return true;
        }
        edit_.record.aircraft->image = shown;
        return false;
    }
    /// Opens a further dialog. It shows the picture of this form, of which its step of the history knows
    /// nothing.
    void open(const std::function<bool()>& dialog, std::string_view what) {
        if (dialog()) {
            restoreImage();
            edit_.changed(what);
        }
        follow();
    }
    void play() {
        const std::string path = soundPath(edit_.imageBases, port().text(IDC_AIRCRAFT_SOUND));
        const std::string_view silence = path.empty() ? "missing" : playSound(path);
        if (!silence.empty()) {
            port().setText(IDC_UNIT_NOTES, "Sound: " + std::string(silence));
        }
    }
    [[nodiscard]] Armament armament() { return armamentOf(edit_.record); }

    EditContext& edit_;
    Text image_; ///< that the record has
    RecordForm<SquadRecord> form_;
};

class RotorsDialog final : public ListDialog {
public:
    RotorsDialog(EditContext& edit, ListModel& model)
        : ListDialog({.dialogTemplate = IDD_ROTORS,
                      .caption = "Rotor Blades",
                      .first = edit.firstShown,
                      .imageBases = edit.imageBases,
                      .focus = edit.focus.field},
                     model),
          edit_(edit) {}

private:
    void prepare() override {
        port().setChoices(IDC_VIEW_IMAGE, partChoices(edit_.imageBases, field::RotorImage.images, " rotor"));
    }
    void preview() override { edit_.redraw(); }

    EditContext& edit_;
};

} // namespace

bool editRotors(HWND owner, EditContext& edit) {
    std::vector<RotorBladesRecord>& rotors = edit.record.aircraft->rotorBlades;
    const std::vector<RotorBladesRecord> former = rotors;
    VectorListModel<RotorBladesRecord> model(rotors, rotorShape());
    if (RotorsDialog(edit, model).run(owner)) {
        return rotors != former;
    }
    rotors = former;
    edit.redraw();
    return false;
}

bool editAircraft(HWND owner, EditContext& edit) {
    AircraftDialog dialog(edit);
    const bool isTaken = dialog.run(owner);
    stopSound();
    if (!isTaken) {
        dialog.restoreImage();
    }
    return isTaken;
}

} // namespace varrocade
