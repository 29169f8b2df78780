#pragma once
// A vehicle from above with its plates as strips along its sides, without any device.

#include "analysis/plate_ranges.h"
#include "view/drawing/draw_list.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace varrocade {

/// An area of one plate, or of a top or a side that has none.
struct OutlinePatch {
    std::vector<Point> corners;       ///< one after the other around it
    std::optional<std::size_t> plate; ///< its place among the ranges
};

struct PlateOutline {
    std::vector<OutlinePatch> patches; ///< from bottom to top
    /// What the patches cover.
    Point least;
    Point greatest;
};

/// Hull and superstructures as rectangles, turrets round: the lower plates along the rim, the upper ones
/// within, the top, which no range is told of, in the middle, the mantlet before the turret. Parts without a
/// size are not to be seen.
PlateOutline plateOutline(const VehicleRecord& vehicle, std::span<const PlateRange> ranges);

/// The plate of the topmost patch at a point, if it is one of a plate.
std::optional<std::size_t> plateAt(const PlateOutline& outline, Point point);

} // namespace varrocade
