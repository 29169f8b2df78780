#pragma once
// Positions of weapons and exhaust pipes that are moved in the drawing, and the question before they are
// lost.

#include "app/workspace/workspace.h"
#include "view/drawing/part_positions.h"

#include <span>
#include <string>
#include <string_view>

namespace varrocade {

/// The question to ask before such positions are lost; empty when nothing would be.
std::string_view unsavedPositionsQuestion(bool isUnitOpen, Category category, bool weaponPosChanged,
                                          bool exhaustPosChanged);

/// Asks it where there is something to ask, and saves on Yes. Returns whether the open unit may be replaced.
bool mayLeavePositions(Workspace& workspace);

/// Moves a part of the open unit to a point of the drawing, as `movePart` does; false when it stays where it
/// is. It is no step of the history before `finishMove`.
bool moveOpenPart(Workspace& workspace, const UnitPart& part, Point to, std::span<const double> turns);

/// Ends a move of a part that began with a state: one step of the history. False when the unit is as it was
/// then, which forgets the move.
bool finishMove(Workspace& workspace, const UnitPart& part, const RecordState& before);

/// Moves a part by whole centimetres, as `nudgePart` does; false when it stays where it is. A move that
/// `continues` the last one is one step with it.
bool nudgeOpenPart(Workspace& workspace, const UnitPart& part, int right, int up,
                   std::span<const double> turns, bool continues);

/// Whether the last step of the history is a move of such a part.
bool isMoveLast(const Workspace& workspace, const UnitPart& part);

} // namespace varrocade
