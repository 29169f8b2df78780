#include "app/commands/edit_record.h"

#include "app/commands/edit_weapon.h"
#include "app/windows/application.h"
#include "app/workspace/edits.h"
#include "app/workspace/record_files.h"
#include "editors/vehicle/details_dialog.h"

namespace varrocade {

bool canEditOpenRecord() {
    if (isWeaponOpen()) {
        return true;
    }
    const SquadRecord* unit = openUnit(theWorkspace());
    return unit != nullptr && unit->vehicle && theWorkspace().category == Category::Vehicles;
}

void withEditContext(const std::function<bool(EditContext&)>& work) {
    Workspace& workspace = theWorkspace();
    EditContext edit{
        .record = *openUnit(workspace),
        .catalogue = workspace.catalogue,
        .drawing = application().drawing,
        .imageBases = imageBases(workspace),
        .rearranged =
            [](const FormerPlaces& places) { theWorkspace().listener->componentsRearranged(places); },
        .redraw = [] { theWorkspace().listener->recordChanged(); },
        .changed = [](std::string_view change) { recordChanged(theWorkspace(), change); }};
    if (work(edit)) {
        saveOpenRecord(workspace);
    }
    workspace.listener->recordChanged();
}

void editOpenRecord() {
    if (isWeaponOpen()) {
        editOpenWeapon();
    } else if (canEditOpenRecord()) {
        withEditContext(
            [](EditContext& edit) { return editVehicle(application().window, edit, application().drawing); });
    }
}

} // namespace varrocade
