#pragma once
// The record that is open, with what its file holds and the ways back.

#include "app/workspace/record/undo_history.h"
#include "data/category.h"

#include <string>

namespace varrocade {

struct OpenRecord {
    std::string base; ///< the base folder that it was read from or written to last
    Category category = Category::Vehicles;
    RecordState present;
    RecordState saved; ///< as its file holds it
    UndoHistory history;
    std::string content; ///< the file's bytes, as they were last read or written
    /// Another program has changed or removed the file since; what is unsaved here differs from both.
    bool isChangedOutside = false;
    std::string saveFailure; ///< why the last save failed, in the system's words; empty where it did not
    unsigned lastMove = 0;   ///< how many moves in the drawing there were

    [[nodiscard]] bool isOpen() const { return !std::holds_alternative<std::monostate>(present.record); }

    /// Whether the record differs from its file.
    [[nodiscard]] bool isModified() const { return present.record != saved.record; }

    /// Whether weapons, or exhaust pipes, were moved in the drawing and that is not saved yet.
    [[nodiscard]] bool weaponPosChanged() const { return present.weaponMove != saved.weaponMove; }
    [[nodiscard]] bool exhaustPosChanged() const { return present.exhaustMove != saved.exhaustMove; }

    [[nodiscard]] bool isUnsaved() const { return weaponPosChanged() || exhaustPosChanged() || isModified(); }
};

} // namespace varrocade
