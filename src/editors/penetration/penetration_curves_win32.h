#pragma once
// The curves beside the rows of the "Penetration Calculation" dialog.

#include "analysis/penetration.h"
#include "view/painting/drawing_objects_win32.h"

#include <windows.h>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace varrocade {

/// A curve each ammunition type of a weapon, with a legend that tells the values at the range under the
/// mouse.
struct PenetrationChart {
    std::vector<PenetrationCurve> curves; ///< for the plate's angle
    std::vector<std::string> names;       ///< of the ammunition types, a name each curve
    std::size_t chosen = 0;               ///< the curve that stands out
    std::optional<int> pointedRange;      ///< metres
};

/// Paints the chart without flicker.
void paintChart(const DRAWITEMSTRUCT& item, const PenetrationChart& chart, const DrawingObjects& drawing);

/// Has the chart tell the values of the range that the mouse points to; true for the messages that it needs
/// for this, `detail` being their second parameter.
bool pointAtChart(HWND chartControl, UINT message, LPARAM detail, PenetrationChart& chart,
                  const DrawingObjects& drawing);

/// The range below a point of the chart's control; nothing beside the curves.
std::optional<int> chartRangeAt(const RECT& area, POINT point, const PenetrationChart& chart,
                                const DrawingObjects& drawing);

/// The ammunition type whose curve or line of the legend a point is on.
std::optional<std::size_t> chartCurveAt(const RECT& area, POINT point, const PenetrationChart& chart,
                                        const DrawingObjects& drawing);

} // namespace varrocade
