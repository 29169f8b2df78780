#pragma once
// How far the parts of a unit can be turned.

#include "data/unit/unit_record.h"
#include "view/drawing/draw_list.h"
#include "view/drawing/unit_part.h"

#include <cstdint>
#include <optional>
#include <vector>

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

/// The sector that a limited traverse leaves about a rest, at most a full circle; nothing where the limits
/// leave none. A limit may be below zero: then the sector does not hold the rest.
std::optional<SectorItem> sectorOf(Point pivot, double radius, double rest, std::int32_t left,
                                   std::int32_t right, UnitPart part);

/// The corners of a sector as it is drawn: from the centre along its arc and back.
std::vector<Point> outlineOf(const SectorItem& sector);

/// A turn cut to what the traverse allows.
double allowedTurn(const Traverse& traverse, double turn);

} // namespace varrocade
