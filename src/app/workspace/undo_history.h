#pragma once
// The states of the open unit, to go back to.

#include "data/unit/unit_record.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// A line of states, each of which was reached by a named change. The oldest ones go when there are too many.
class UndoHistory {
public:
    /// Forgets everything and begins with a state.
    void start(const SquadRecord& record);
    void clear();

    /// Remembers the state that a change led to; a state that is the present one is no change. What had been
    /// undone can no longer be redone.
    void note(std::string_view change, const SquadRecord& record);

    /// The last change goes on and leads to this state.
    void amend(const SquadRecord& record);

    /// The file of all states has another name now.
    void rename(std::string_view fileName);

    [[nodiscard]] bool canUndo() const { return present_ > 0; }
    [[nodiscard]] bool canRedo() const { return present_ + 1 < states_.size(); }
    /// The names of the changes that undo and redo would take back and do again; empty when there is none.
    [[nodiscard]] std::string_view undoName() const;
    [[nodiscard]] std::string_view redoName() const;

    /// The state before the last change, or after the next one. Only while there is one.
    const SquadRecord& undo();
    const SquadRecord& redo();

private:
    static constexpr std::size_t MostStates = 100;

    struct State {
        std::string change; ///< that led here
        SquadRecord record;
    };

    std::vector<State> states_;
    std::size_t present_ = 0;
};

} // namespace varrocade
