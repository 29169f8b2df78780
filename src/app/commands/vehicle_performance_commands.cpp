#include "app/commands/vehicle_performance_commands.h"

#include "app/windows/application.h"
#include "app/workspace/category_list.h"
#include "app/workspace/edits.h"
#include "editors/performance/comparison_dialog.h"

#include <string>
#include <utility>

namespace varrocade {

namespace {

void showChosen(const std::string& vehicle) {
    if (!vehicle.empty()) {
        showFile(theWorkspace(), Category::Vehicles, vehicle);
    }
}

void takeWeight(std::int32_t weight) {
    SquadRecord* unit = openUnit(theWorkspace());
    if (unit != nullptr && unit->vehicle) {
        unit->vehicle->weight = weight;
        recordChanged(theWorkspace(), "Take the estimated weight");
    }
}

PerformanceWindow& performanceWindow() {
    Application& app = application();
    if (!app.performance) {
        app.performance = std::make_unique<PerformanceWindow>(PerformanceHooks{
            .catalogue = app.workspace.catalogue, .drawing = app.drawing, .compare = compareAllVehicles});
    }
    return *app.performance;
}

void showOpenVehicle() {
    const Application& app = application();
    // A dialog that is at work on the vehicle would put its own weight back.
    const bool isFree = IsWindowEnabled(app.window) != FALSE;
    const SquadRecord* unit = canShowPerformance() ? openUnit(app.workspace) : nullptr;
    performanceWindow().show(unit, isFree && unit != nullptr ? TakeWeight(takeWeight) : TakeWeight(), isFree);
}

} // namespace

bool canShowPerformance() {
    const SquadRecord* unit = openUnit(theWorkspace());
    return unit != nullptr && unit->vehicle && theWorkspace().category == Category::Vehicles;
}

void openPerformance() {
    performanceWindow().open(application().window);
}

void showOpenPerformance() {
    showOpenVehicle();
    openPerformance();
}

void previewPerformance(const SquadRecord& typed, TakeWeight take) {
    performanceWindow().show(&typed, std::move(take), false);
}

void followPerformance() {
    const Application& app = application();
    if (app.performance && app.performance->isOpen()) {
        showOpenVehicle();
    }
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
