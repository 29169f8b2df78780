#include "app/workspace/record/undo_history.h"

namespace varrocade {

void UndoHistory::start(const RecordState& state) {
    states_.assign(1, {"", state});
    present_ = 0;
}

void UndoHistory::note(std::string_view change, const RecordState& state) {
    if (states_.empty() || states_[present_].state.record == state.record) {
        return;
    }
    states_.resize(present_ + 1);
    states_.push_back({std::string(change), state});
    if (states_.size() > MostStates) {
        states_.erase(states_.begin());
    }
    present_ = states_.size() - 1;
}

void UndoHistory::amend(const RecordState& state) {
    if (canUndo()) {
        states_.resize(present_ + 1);
        states_[present_].state = state;
    }
}

void UndoHistory::rename(std::string_view fileName) {
    for (Step& step : states_) {
        setFileName(step.state.record, fileName);
    }
}

std::string_view UndoHistory::undoName() const {
    return canUndo() ? std::string_view(states_[present_].change) : std::string_view();
}

std::string_view UndoHistory::redoName() const {
    return canRedo() ? std::string_view(states_[present_ + 1].change) : std::string_view();
}

const RecordState& UndoHistory::undo() {
    return states_[--present_].state;
}

const RecordState& UndoHistory::redo() {
    return states_[++present_].state;
}

} // namespace varrocade
