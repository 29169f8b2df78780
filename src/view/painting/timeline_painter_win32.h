#pragma once

#include "view/painting/drawing_objects_win32.h"
#include "view/sheet/timeline.h"

namespace varrocade {

/// Paints a timeline into an area: green bands as high as the numbers, a row of years below them.
/// Returns the scale of the part above the years, whose upper left corner is that of the area.
TimelineScale paintTimeline(HDC device, const RECT& area, std::span<const AvailabilityPoint> points,
                            const DrawingObjects& objects);

/// The same scale without painting.
TimelineScale timelineScaleIn(const RECT& area, std::span<const AvailabilityPoint> points,
                              const DrawingObjects& objects);

} // namespace varrocade
