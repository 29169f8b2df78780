#pragma once
// Charts without any device: bars, curves and points over axes that carry their unit.

#include "view/drawing/draw_list.h"

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace varrocade {

/// An axis that begins at 0.
struct ChartAxis {
    double step = 1; ///< between two lines: 1, 2 or 5 times a power of ten
    int steps = 1;
    [[nodiscard]] double top() const { return step * steps; }
};

/// The axis that reaches up to `greatest`, above 0, in at most `mostSteps` steps. It ends at a million: what
/// grows without bounds is to be seen in its beginnings.
ChartAxis chartAxis(double greatest, int mostSteps);

/// Told apart by the colour-blind too.
inline constexpr std::array<Colour, 7> ChartColours = {{{0, 114, 178},
                                                        {213, 94, 0},
                                                        {0, 158, 115},
                                                        {204, 80, 150},
                                                        {150, 110, 0},
                                                        {60, 150, 220},
                                                        {90, 90, 90}}};

/// A bar from one value to another, below one another with the others.
struct ChartBar {
    std::string label;
    std::string figure; ///< right of the bars
    double from = 0.0;
    double to = 0.0;
    Colour colour = {};
};

struct BarChart {
    std::vector<ChartBar> bars;
};

struct ChartPoint {
    double x = 0.0;
    double y = 0.0;
};

struct ChartCurve {
    std::string name; ///< beside its end; empty for none
    std::vector<ChartPoint> points;
    Colour colour = {};
    int width = 1; ///< pixels of 96 dpi
};

struct CurveChart {
    std::string title;
    std::string horizontal; ///< what the axis counts, such as "km/h"
    std::string vertical;
    std::vector<ChartCurve> curves;
    std::string nothing = {}; ///< what to say where there are no curves
};

/// One of many points.
struct MarkedPoint {
    ChartPoint place;
    bool isOpen = false; ///< what the window shows
    bool isOutlier = false;
    std::string name;
};

struct PointChart {
    std::string horizontal;
    std::string vertical;
    std::vector<MarkedPoint> points;
};

} // namespace varrocade
