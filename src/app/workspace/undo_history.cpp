#include "app/workspace/undo_history.h"

namespace varrocade {

void UndoHistory::start(const SquadRecord& record) {
    states_.assign(1, {"", record});
    present_ = 0;
}

void UndoHistory::clear() {
    states_.clear();
    present_ = 0;
}

void UndoHistory::note(std::string_view change, const SquadRecord& record) {
    if (states_.empty() || states_[present_].record == record) {
        return;
    }
    states_.resize(present_ + 1);
    states_.push_back({std::string(change), record});
    if (states_.size() > MostStates) {
        states_.erase(states_.begin());
    }
    present_ = states_.size() - 1;
}

void UndoHistory::amend(const SquadRecord& record) {
    if (canUndo()) {
        states_.resize(present_ + 1);
        states_[present_].record = record;
    }
}

void UndoHistory::rename(std::string_view fileName) {
    for (State& state : states_) {
        state.record.fileName = fileName;
    }
}

std::string_view UndoHistory::undoName() const {
    return canUndo() ? std::string_view(states_[present_].change) : std::string_view();
}

std::string_view UndoHistory::redoName() const {
    return canRedo() ? std::string_view(states_[present_ + 1].change) : std::string_view();
}

const SquadRecord& UndoHistory::undo() {
    return states_[--present_].record;
}

const SquadRecord& UndoHistory::redo() {
    return states_[++present_].record;
}

} // namespace varrocade
