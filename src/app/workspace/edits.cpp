#include "app/workspace/edits.h"

namespace varrocade {

namespace {

const VehicleRecord* vehicleOf(const RecordState& state) {
    const auto* unit = std::get_if<SquadRecord>(&state.record);
    return unit != nullptr && unit->vehicle ? &*unit->vehicle : nullptr;
}

void goTo(Workspace& workspace, const RecordState& state) {
    const VehicleRecord* present = vehicleOf(workspace.open.present);
    const VehicleRecord* next = vehicleOf(state);
    if (present != nullptr && next != nullptr) {
        workspace.listener->componentsRearranged(placesBetween(present->components, next->components));
    }
    workspace.open.present = state;
    workspace.listener->recordChanged();
}

} // namespace

void recordChanged(Workspace& workspace, std::string_view change) {
    workspace.open.history.note(change, workspace.open.present);
    workspace.isFileStepLast = false;
    workspace.listener->recordChanged();
}

void undoChange(Workspace& workspace) {
    if (workspace.open.history.canUndo()) {
        goTo(workspace, workspace.open.history.undo());
    }
}

void redoChange(Workspace& workspace) {
    if (workspace.open.history.canRedo()) {
        goTo(workspace, workspace.open.history.redo());
    }
}

} // namespace varrocade
