#pragma once
// Which part of a unit lies at a point of its drawing, and what of the drawing shows a part.

#include "view/drawing/draw_list.h"
#include "view/drawing/unit_part.h"

#include <vector>

namespace varrocade {

/// The part at a point: marks within `reach` centimetres first, the nearest of them, then what lies on top.
UnitPart partAt(const DrawList& list, Point point, double reach, PictureSizes& sizes);

/// The items that belong to a part, from bottom to top.
std::vector<const DrawItem*> itemsOf(const DrawList& list, const UnitPart& part);

} // namespace varrocade
