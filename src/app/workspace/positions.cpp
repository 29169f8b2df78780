#include "app/workspace/positions.h"

#include "app/workspace/edits.h"
#include "app/workspace/record_files.h"
#include "platform/messages.h"

namespace varrocade {

namespace {

std::string_view moveName(const UnitPart& part) {
    if (part.kind == PartKind::Rotor) {
        return "Move rotor blades";
    }
    return part.kind == PartKind::Exhaust ? "Move exhaust pipe" : "Move weapon";
}

/// What the user is asked for before it is lost. Rotors are kept like any other change.
void markMoved(OpenRecord& open, const UnitPart& part) {
    if (part.kind == PartKind::Rotor) {
        return;
    }
    RecordState& state = open.present;
    (part.kind == PartKind::Exhaust ? state.exhaustMove : state.weaponMove) = ++open.lastMove;
}

} // namespace

std::string_view unsavedPositionsQuestion(bool isUnitOpen, Category category, bool weaponPosChanged,
                                          bool exhaustPosChanged) {
    constexpr std::string_view weaponQuestion = "Save your changes to weapon positions?";
    if (!isUnitOpen) {
        return {};
    }
    if (category == Category::Aircraft) {
        return weaponPosChanged ? weaponQuestion : std::string_view();
    }
    if (category != Category::Vehicles) {
        return {};
    }
    if (weaponPosChanged && exhaustPosChanged) {
        return "Save your changes to weapon and exhaust positions?";
    }
    if (weaponPosChanged) {
        return weaponQuestion;
    }
    return exhaustPosChanged ? "Save your changes to exhaust positions?" : std::string_view();
}

bool mayLeavePositions(Workspace& workspace) {
    OpenRecord& open = workspace.open;
    const std::string_view question = unsavedPositionsQuestion(
        openUnit(workspace) != nullptr, open.category, open.weaponPosChanged(), open.exhaustPosChanged());
    if (question.empty()) {
        return true;
    }
    const Answer answer = showMessage({.text = std::string(question),
                                       .caption = "Save changes",
                                       .buttons = MessageButtons::YesNoCancel,
                                       .icon = MessageIcon::Question});
    if (answer == Answer::Cancel) {
        return false;
    }
    // After No both stay marked: the unit may yet stay open, and is asked for again then.
    if (answer == Answer::Yes) {
        if (saveOpenRecord(workspace) == SaveResult::Failed) {
            return false;
        }
        open.saved.weaponMove = open.present.weaponMove;
        open.saved.exhaustMove = open.present.exhaustMove;
    }
    return true;
}

bool moveOpenPart(Workspace& workspace, const UnitPart& part, Point to, std::span<const double> turns) {
    SquadRecord* unit = openUnit(workspace);
    if (unit == nullptr || !movePart(*unit, part, to, turns)) {
        return false;
    }
    markMoved(workspace.open, part);
    return true;
}

bool finishMove(Workspace& workspace, const UnitPart& part, const RecordState& before) {
    if (workspace.open.present.record == before.record) {
        workspace.open.present = before;
        return false;
    }
    recordChanged(workspace, moveName(part));
    return true;
}

bool nudgeOpenPart(Workspace& workspace, const UnitPart& part, int right, int up,
                   std::span<const double> turns, bool continues) {
    SquadRecord* unit = openUnit(workspace);
    if (unit == nullptr || !nudgePart(*unit, part, right, up, turns)) {
        return false;
    }
    OpenRecord& open = workspace.open;
    markMoved(open, part);
    if (continues) {
        open.history.amend(open.present);
    }
    recordChanged(workspace, moveName(part));
    return true;
}

bool isMoveLast(const Workspace& workspace, const UnitPart& part) {
    return part && workspace.open.history.undoName() == moveName(part);
}

} // namespace varrocade
