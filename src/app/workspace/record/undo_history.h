#pragma once
// The states of an open record, to go back to.

#include "app/workspace/record/record.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// A record at one moment. The moves in the drawing are numbered, so that two states tell whether positions
/// were moved between them, whichever way leads from one to the other.
struct RecordState {
    Record record;
    unsigned weaponMove = 0;  ///< the last move of a weapon that led here, 0 for none
    unsigned exhaustMove = 0; ///< the same of an exhaust pipe
};

/// A line of states, each of which was reached by a named change. The oldest ones go when there are too many.
class UndoHistory {
public:
    /// Forgets everything and begins with a state.
    void start(const RecordState& state);

    /// Remembers the state that a change led to; a record that is the present one is no change. What had been
    /// undone can no longer be redone.
    void note(std::string_view change, const RecordState& state);

    /// The last change goes on and leads to this state.
    void amend(const RecordState& state);

    /// The file of all states has another name now.
    void rename(std::string_view fileName);

    [[nodiscard]] bool canUndo() const { return present_ > 0; }
    [[nodiscard]] bool canRedo() const { return present_ + 1 < states_.size(); }
    /// The names of the changes that undo and redo would take back and do again; empty when there is none.
    [[nodiscard]] std::string_view undoName() const;
    [[nodiscard]] std::string_view redoName() const;

    /// The state before the last change, or after the next one. Only while there is one.
    const RecordState& undo();
    const RecordState& redo();

private:
    static constexpr std::size_t MostStates = 100;

    struct Step {
        std::string change; ///< that led here
        RecordState state;
    };

    std::vector<Step> states_;
    std::size_t present_ = 0;
};

} // namespace varrocade
