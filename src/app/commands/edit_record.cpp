#include "app/commands/edit_record.h"

#include "app/commands/edit_weapon.h"
#include "app/commands/vehicle_performance_commands.h"
#include "app/windows/application.h"
#include "app/workspace/edits.h"
#include "app/workspace/record_files.h"
#include "editors/squad/squad_dialogs.h"
#include "editors/vehicle/details_dialog.h"

namespace varrocade {

bool canEditOpenRecord() {
    if (isWeaponOpen()) {
        return true;
    }
    const SquadRecord* unit = openUnit(theWorkspace());
    if (unit == nullptr) {
        return false;
    }
    // A file in the wrong folder has nothing that the writer of its category could write.
    switch (theWorkspace().category) {
    case Category::Vehicles:
        return unit->vehicle.has_value();
    case Category::AtGuns:
    case Category::Infantry:
        return !unit->vehicle && !unit->aircraft;
    case Category::Aircraft:
        return unit->aircraft.has_value();
    case Category::Weapons:
        break;
    }
    return false;
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
        .changed = [](std::string_view change) { recordChanged(theWorkspace(), change); },
        .preview = previewPerformance,
        .openPerformance = openPerformance,
        .pictures = &application().pictures};
    if (work(edit)) {
        saveOpenRecord(workspace);
    }
    workspace.listener->recordChanged();
}

void editOpenRecord() {
    if (isWeaponOpen()) {
        editOpenWeapon();
    } else if (canEditOpenRecord()) {
        withEditContext([](EditContext& edit) {
            if (edit.record.vehicle) {
                return editVehicle(application().window, edit, application().drawing);
            }
            return edit.record.aircraft ? editAircraft(application().window, edit)
                                        : editSquad(application().window, edit);
        });
    }
}

} // namespace varrocade
