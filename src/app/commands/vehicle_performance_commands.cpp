#include "app/commands/vehicle_performance_commands.h"

#include "app/commands/edit_record.h"
#include "app/windows/application.h"
#include "app/workspace/category_list.h"
#include "editors/performance/comparison_dialog.h"
#include "editors/performance/performance_dialog.h"

#include <string>

namespace varrocade {

namespace {

void showChosen(const std::string& vehicle) {
    if (!vehicle.empty()) {
        showFile(theWorkspace(), Category::Vehicles, vehicle);
    }
}

} // namespace

bool canShowPerformance() {
    const SquadRecord* unit = openUnit(theWorkspace());
    return unit != nullptr && unit->vehicle && canEditOpenRecord();
}

void showOpenPerformance() {
    std::string chosen;
    const GameFolders folders = gameFolders(theWorkspace());
    withEditContext([&](EditContext& edit) {
        chosen =
            showPerformance(application().window, {.edit = edit, .shown = edit.record, .folders = &folders});
        return false;
    });
    showChosen(chosen);
}

void compareAllVehicles() {
    const Workspace& workspace = theWorkspace();
    showChosen(compareVehicles(application().window,
                               {.catalogue = workspace.catalogue,
                                .drawing = application().drawing,
                                .folders = gameFolders(workspace),
                                .openUnit = canShowPerformance() ? openUnit(workspace) : nullptr}));
}

} // namespace varrocade
