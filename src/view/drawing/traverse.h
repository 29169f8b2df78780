#pragma once
// How far the parts of a unit can be turned.

#include "data/unit/unit_record.h"
#include "view/drawing/draw_list.h"
#include "view/drawing/unit_part.h"

#include <optional>

namespace varrocade {

/// What can be turned, and how far from its rest.
struct Traverse {
    Point pivot;
    bool isLimited = false;
    double left = 0;
    double right = 0;
};

/// The traverse of a turret, a fixed weapon or a heavy weapon; nothing for other parts.
std::optional<Traverse> traverseOf(const SquadRecord& unit, const UnitPart& part);

/// A turn cut to what the traverse allows.
double allowedTurn(const Traverse& traverse, double turn);

} // namespace varrocade
