#pragma once
// Where the parts that can be moved in the drawing stand, and moving them: weapons and exhaust pipes of
// vehicles, weapons and rotors of aircraft. Points are those of the drawing: centimetres from the centre of
// the hull, x to the right, y towards the front. Files keep whole centimetres.

#include "view/drawing/draw_list.h"
#include "view/drawing/unit_part.h"

#include <optional>
#include <span>
#include <string>

namespace varrocade {

/// What the files allow to be moved. A fixed weapon has one position, which moves with any of its weapons.
bool isMovable(const SquadRecord& unit, const UnitPart& part);

/// Where a movable part stands, `turns` being how far each component is turned for looking at.
std::optional<Point> positionOf(const SquadRecord& unit, const UnitPart& part,
                                std::span<const double> turns = {});

/// The position as the file has it: "X 30 cm, Y 120 cm", from the pivot of the component.
std::string positionText(const SquadRecord& unit, const UnitPart& part);

/// Moves a part to the whole centimetre nearest to a point; false when that is where it is.
bool movePart(SquadRecord& unit, const UnitPart& part, Point to, std::span<const double> turns = {});

/// Gives a part the figures that another one has in the file; nothing where one of them cannot be moved.
void takePosition(SquadRecord& unit, const UnitPart& part, const SquadRecord& from, const UnitPart& other);

/// Moves a part by whole centimetres as an arrow key says: to the right and upwards in the drawing, exactly
/// along the axis of the component that lies nearest, so that the opposite key leads back.
bool nudgePart(SquadRecord& unit, const UnitPart& part, int right, int up,
               std::span<const double> turns = {});

} // namespace varrocade
