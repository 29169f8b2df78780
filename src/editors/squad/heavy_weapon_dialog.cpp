// The "Heavy Weapon" dialog.

#include "data/each_field.h"
#include "data/unit_fields.h"
#include "editors/form/form_dialog_win32.h"
#include "editors/form/image_choices.h"
#include "editors/squad/heavy_weapon_form.h"
#include "editors/squad/members.h"
#include "editors/squad/squad_dialogs.h"
#include "editors/squad/squad_notes.h"
#include "editors/unit/carried_ammo.h"
#include "resources/resource.h"

#include <utility>
#include <vector>

namespace varrocade {

namespace {

class HeavyWeaponDialog final : public FormDialog {
public:
    /// `work` is the copy that the dialog works on; the record shows what the form says meanwhile.
    HeavyWeaponDialog(EditContext& edit, HeavyWeaponRecord& work)
        : FormDialog({.dialogTemplate = IDD_HEAVY_WEAPON,
                      .caption = "Heavy Weapon",
                      .imageBases = edit.imageBases,
                      .focus = edit.focus.field},
                     form_),
          edit_(edit), work_(work), form_(work, heavyWeaponShape()) {
        onButton(IDC_WEAPONS_BUTTON, [this] {
            editArmament(handle(), edit_, armament());
            follow();
        });
        onButton(IDC_AMMO_BUTTON, [this] {
            editArmamentAmmunition(handle(), edit_, armament());
            follow();
        });
        onButton(IDC_MATCH_TYPE, [this] {
            edit_.record.type = unitTypeOf(shownKind(port(), work_));
            follow();
            port().focus(IDC_HEAVY_KIND);
        });
    }

private:
    void prepare() override {
        port().setChoices(IDC_BASE_IMAGE, partChoices(edit_.imageBases, field::BaseImage.images, " base"));
        port().setChoices(IDC_GUN_IMAGE, partChoices(edit_.imageBases, field::GunImage.images, " gun"));
    }
    void follow() override {
        const HeavyWeaponKind kind = shownKind(port(), work_);
        const std::string note = kindNote(kind, edit_.record.type);
        port().setText(IDC_KIND_NOTE, note);
        port().setEnabled(IDC_MATCH_TYPE, !note.empty());
        port().setText(IDC_NOT_STORED, heavyWeaponNotStored(port(), work_));
        HeavyWeaponRecord shown = work_;
        readPossible(port(), heavyWeaponShape(), shown);
        port().setText(IDC_CARRIED, carriedLines(weaponTypesOf(shown.weapons), shown.ammo));
        port().setText(IDC_UNIT_NOTES, notesOf(shown));
        if (shown != edit_.record.heavyWeapon) {
            edit_.record.heavyWeapon = std::move(shown);
            edit_.redraw();
        }
    }
    /// What is odd about the weapon, but for the kind, which is told where it is chosen.
    [[nodiscard]] std::string notesOf(const HeavyWeaponRecord& shown) const {
        SquadRecord unit = edit_.record;
        unit.heavyWeapon = shown;
        unit.type = unitTypeOf(shown.kind);
        std::vector<SquadNote> notes = squadNotes(unit, edit_.catalogue, edit_.imageBases);
        std::erase_if(notes, [&](const SquadNote& note) { return note.member != heavyPlace(unit); });
        return noteLines(notes);
    }
    [[nodiscard]] Armament armament() {
        return {work_.weapons, work_.ammo, holderOf(shownKind(port(), work_)), WeaponBearer::HeavyWeapon};
    }

    EditContext& edit_;
    HeavyWeaponRecord& work_;
    RecordForm<HeavyWeaponRecord> form_;
};

} // namespace

bool askForHeavyWeapon(HWND owner, EditContext& edit) {
    const SquadRecord former = edit.record;
    HeavyWeaponRecord work = *former.heavyWeapon;
    const bool isTaken = HeavyWeaponDialog(edit, work).run(owner);
    if (isTaken) {
        edit.record.heavyWeapon = std::move(work);
    } else {
        edit.record = former;
    }
    edit.redraw();
    return isTaken;
}

bool editHeavyWeapon(HWND owner, EditContext& edit) {
    const SquadRecord former = edit.record;
    return askForHeavyWeapon(owner, edit) && edit.record != former;
}

Armament armamentOf(SquadRecord& unit) {
    if (unit.heavyWeapon) {
        HeavyWeaponRecord& heavy = *unit.heavyWeapon;
        return {heavy.weapons, heavy.ammo, holderOf(heavy.kind), WeaponBearer::HeavyWeapon};
    }
    return {unit.aircraft->weapons, unit.aircraft->ammo, Holder::AircraftFile, WeaponBearer::Aircraft};
}

} // namespace varrocade
