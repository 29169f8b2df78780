#include "editors/vehicle/part_editor_win32.h"

#include "data/unit/component_words.h"
#include "editors/unit/availability_dialog.h"
#include "editors/unit/list_dialogs.h"
#include "editors/vehicle/armour_dialog.h"
#include "editors/vehicle/component_dialogs.h"
#include "editors/vehicle/details_dialog.h"
#include "editors/vehicle/drive_dialog.h"

#include <algorithm>
#include <array>
#include <string>

namespace varrocade {

namespace {

/// A dialog that edits something of a component.
struct SubEditor {
    PartKind kind;
    bool (*edit)(HWND, EditContext&, ComponentRecord&);
    const char* change;
};

constexpr auto SubEditors = std::to_array<SubEditor>({
    {PartKind::Weapon, editWeapons, "Weapons"},
    {PartKind::Ammunition, editComponentAmmunition, "Ammunition"},
    {PartKind::Discharger, editSmokeDischargers, "Smoke dischargers"},
    {PartKind::CrewMan, editCrew, "Crew"},
    {PartKind::Armour, editArmour, "Armour"},
});

} // namespace

bool hasEditor(const SquadRecord& unit, const UnitPart& part) {
    return unit.vehicle.has_value() && hasPart(unit, part);
}

bool editPart(HWND owner, EditContext& edit, const DrawingObjects& drawing, const UnitPart& part) {
    if (!hasEditor(edit.record, part)) {
        return false;
    }
    edit.firstShown = part.index;
    const auto sub = std::find_if(SubEditors.begin(), SubEditors.end(),
                                  [&](const SubEditor& row) { return row.kind == part.kind; });
    if (sub != SubEditors.end()) {
        ComponentRecord& component = edit.record.vehicle->components[part.component];
        edit.subject = componentName(part.component + 1, component.kind);
        if (sub->edit(owner, edit, component)) {
            edit.changed(sub->change);
        }
        return false;
    }
    switch (part.kind) {
    case PartKind::Component:
        editComponent(owner, edit, part.component);
        return false;
    case PartKind::Exhaust:
        if (editExhaustPipes(owner, edit)) {
            edit.changed("Exhaust pipes");
        }
        return false;
    case PartKind::Drive:
        editDrive(owner, edit);
        return false;
    case PartKind::Availability:
        if (editAvailability(owner, edit, drawing)) {
            edit.changed("Availability");
        }
        return false;
    default:
        return editVehicle(owner, edit, drawing);
    }
}

} // namespace varrocade
