#pragma once
// Lays charts out and paints them.

#include "view/chart/chart.h"
#include "view/painting/paint_device.h"

#include <optional>

namespace varrocade {

/// Bars below one another between their labels and figures, all to one scale.
void paintBars(PaintDevice& device, const PixelRect& area, const BarChart& chart);

void paintCurves(PaintDevice& device, const PixelRect& area, const CurveChart& chart);

/// Outliers are hollow and named as far as there is room, the open one is ringed and named. The point of
/// `pointed` is named too.
void paintPoints(PaintDevice& device, const PixelRect& area, const PointChart& chart,
                 std::optional<std::size_t> pointed);

/// The point that is nearest to a pixel and not far from it.
std::optional<std::size_t> pointAt(PaintDevice& device, const PixelRect& area, const PointChart& chart,
                                   PixelPoint pixel);

} // namespace varrocade
