#pragma once
// What a dialog's data was before each of its changes, while the dialog is open.

#include <cstddef>
#include <utility>
#include <vector>

namespace varrocade {

/// The states that can be gone back and forth between. What is typed counts as a step once the state is
/// noted, which is left to the dialog: a letter is none.
template <typename State>
class EditHistory {
public:
    explicit EditHistory(State first) { states_.push_back(std::move(first)); }

    /// Makes a step of what is another state than the last one; what was undone is forgotten then.
    void note(const State& present) {
        if (present == states_[place_]) {
            return;
        }
        states_.resize(place_ + 1, present);
        states_.push_back(present);
        if (states_.size() > MostStates) {
            states_.erase(states_.begin());
        }
        place_ = states_.size() - 1;
    }

    [[nodiscard]] bool canUndo(const State& present) const {
        return place_ > 0 || !(present == states_[place_]);
    }
    [[nodiscard]] bool canRedo(const State& present) const {
        return place_ + 1 < states_.size() && present == states_[place_];
    }

    /// The state before the last step, or after the step that was undone; null where there is none. `present`
    /// is noted first.
    const State* undo(const State& present) {
        note(present);
        return place_ == 0 ? nullptr : &states_[--place_];
    }
    const State* redo(const State& present) {
        note(present);
        return place_ + 1 == states_.size() ? nullptr : &states_[++place_];
    }

private:
    static constexpr std::size_t MostStates = 100;

    std::vector<State> states_;
    std::size_t place_ = 0; ///< of the present one
};

} // namespace varrocade
