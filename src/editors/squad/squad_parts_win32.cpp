#include "editors/squad/squad_parts_win32.h"

#include "editors/squad/members.h"
#include "editors/squad/squad_dialogs.h"
#include "editors/unit/availability_dialog.h"
#include "editors/unit/uniform_dialog.h"

#include <string_view>

namespace varrocade {

namespace {

bool note(EditContext& edit, bool isChanged, std::string_view what) {
    if (isChanged) {
        edit.changed(what);
    }
    return false;
}

} // namespace

bool hasSquadEditor(const SquadRecord& unit, const UnitPart& part) {
    return !unit.vehicle && hasPart(unit, part);
}

bool editSquadPart(HWND owner, EditContext& edit, const UnitPart& part) {
    if (!hasSquadEditor(edit.record, part)) {
        return false;
    }
    edit.firstShown = part.index;
    switch (part.kind) {
    case PartKind::Man:
        return note(edit, editMan(owner, edit, edit.record.infantrymen[part.index]),
                    partName(edit.record, part));
    case PartKind::HeavyWeapon:
        return note(edit, editHeavyWeapon(owner, edit), "Heavy weapon");
    case PartKind::Weapon:
        return note(edit, editArmament(owner, edit, armamentOf(edit.record)), "Weapons");
    case PartKind::Ammunition:
        return note(edit, editArmamentAmmunition(owner, edit, armamentOf(edit.record)), "Ammunition");
    case PartKind::Rotor:
        return note(edit, editRotors(owner, edit), "Rotor blades");
    case PartKind::Availability:
        return note(edit, editAvailability(owner, edit, edit.drawing), "Availability");
    case PartKind::Details:
        if (edit.focus.field != nullptr && edit.focus.field->kind == FieldKind::Uniform &&
            !edit.record.aircraft) {
            return note(edit, editUniform(owner, edit), "Uniform");
        }
        [[fallthrough]];
    default:
        edit.firstShown = 0;
        return edit.record.aircraft ? editAircraft(owner, edit) : editSquad(owner, edit);
    }
}

} // namespace varrocade
