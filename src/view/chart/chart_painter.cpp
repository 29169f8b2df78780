#include "view/chart/chart_painter.h"

#include "data/format/numbers.h"
#include "data/format/words.h"

#include <algorithm>
#include <cmath>

namespace varrocade {

namespace {

constexpr Colour AxisColour = {190, 180, 150};
constexpr Colour OutlierColour = {190, 30, 30};
constexpr Colour OpenColour = {20, 90, 30};
constexpr Colour PointColour = {0, 114, 178};
constexpr int MostSteps = 6;
// Pixels of 96 dpi.
constexpr int ChartMargin = 8;
constexpr int LabelGap = 6;
constexpr int PointRadius = 3;
constexpr int PointReach = 8;

std::string axisFigure(double value) {
    if (value >= 1000) {
        return grouped(static_cast<std::int32_t>(std::lround(value)));
    }
    std::string text;
    appendShortest(text, value);
    return text;
}

/// A value from 0 to `top` as a part of the axis; what is no number or beyond counts as its end.
double partOf(double value, double top) {
    return std::isfinite(value) && top > 0 ? std::clamp(value / top, 0.0, 1.0) : (value > 0 ? 1.0 : 0.0);
}

/// Where the plot of a chart with two axes is, and how values become pixels.
struct Plot {
    PixelRect area;
    ChartAxis across;
    ChartAxis upwards;

    [[nodiscard]] PixelPoint pixel(const ChartPoint& point) const {
        const double x = partOf(point.x, across.top()) * (area.right - area.left);
        const double y = partOf(point.y, upwards.top()) * (area.bottom - area.top);
        return {area.left + static_cast<int>(std::lround(x)), area.bottom - static_cast<int>(std::lround(y))};
    }
};

/// The greatest values that occur, as a point.
void widen(ChartPoint& greatest, const ChartPoint& point) {
    greatest.x = std::isfinite(point.x) ? std::max(greatest.x, point.x) : greatest.x;
    greatest.y = std::isfinite(point.y) ? std::max(greatest.y, point.y) : greatest.y;
}

/// Room for the title, or the unit, above and for the figures below and on the left.
Plot plotIn(PaintDevice& device, const PixelRect& area, const ChartPoint& greatest) {
    Plot plot;
    // An axis needs an end, also where all is 0.
    plot.across = chartAxis(greatest.x > 0 ? greatest.x : 1.0, MostSteps);
    plot.upwards = chartAxis(greatest.y > 0 ? greatest.y : 1.0, MostSteps);
    int figures = 0;
    for (int i = 0; i <= plot.upwards.steps; ++i) {
        figures = std::max(figures, device.sizeOf(axisFigure(i * plot.upwards.step), TextFont::Small).width);
    }
    const int margin = device.scaled(ChartMargin);
    const int line = device.lineHeight(TextFont::Small);
    plot.area = {area.left + margin + figures + device.scaled(LabelGap), area.top + margin / 2 + 3 * line,
                 area.right - 3 * margin, area.bottom - line - margin};
    return plot;
}

void paintAxes(PaintDevice& device, const Plot& plot, const std::string& horizontal,
               const std::string& vertical) {
    const int line = device.lineHeight(TextFont::Small);
    for (int i = 0; i <= plot.across.steps; ++i) {
        const double value = i * plot.across.step;
        const int x = plot.pixel({value, 0}).x;
        device.line({x, plot.area.top}, {x, plot.area.bottom}, AxisColour, 1);
        const bool isLast = i == plot.across.steps;
        device.text(axisFigure(value) + (isLast ? " " + horizontal : ""), {x, plot.area.bottom + 2},
                    TextFont::Small, FaintInk, TextSide::Centre);
    }
    for (int i = 0; i <= plot.upwards.steps; ++i) {
        const double value = i * plot.upwards.step;
        const int y = plot.pixel({0, value}).y;
        device.line({plot.area.left, y}, {plot.area.right, y}, AxisColour, 1);
        device.text(axisFigure(value), {plot.area.left - device.scaled(LabelGap), y - line / 2},
                    TextFont::Small, FaintInk, TextSide::Right);
    }
    device.text(vertical, {plot.area.left - device.scaled(LabelGap), plot.area.top - line - line / 2},
                TextFont::Small, FaintInk, TextSide::Left);
}

Plot plotOf(PaintDevice& device, const PixelRect& area, const CurveChart& chart) {
    ChartPoint greatest;
    for (const ChartCurve& curve : chart.curves) {
        for (const ChartPoint& point : curve.points) {
            widen(greatest, point);
        }
    }
    return plotIn(device, area, greatest);
}

Plot plotOf(PaintDevice& device, const PixelRect& area, const PointChart& chart) {
    ChartPoint greatest;
    for (const MarkedPoint& point : chart.points) {
        widen(greatest, point.place);
    }
    return plotIn(device, area, greatest);
}

bool overlaps(const PixelRect& a, const PixelRect& b) {
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

/// Writes names beside points, as long as none is on another.
class PointNames {
public:
    PointNames(PaintDevice& device, const PixelRect& within) : device_(device), within_(within) {}

    /// `mustStand`: whatever is below it.
    void add(const std::string& name, PixelPoint point, Colour colour, bool mustStand) {
        const PixelSize size = device_.sizeOf(name, TextFont::Small);
        const int gap = device_.scaled(LabelGap);
        const bool isOnLeft = point.x + gap + size.width > within_.right;
        const int left = isOnLeft ? std::max(within_.left, point.x - gap - size.width) : point.x + gap;
        PixelRect place{left, point.y - size.height / 2, left + size.width,
                        point.y - size.height / 2 + size.height};
        // Beside the point, or somewhat above.
        for (int attempt = 0; !isFree(place) && attempt < 3 && !mustStand; ++attempt) {
            place.top -= size.height;
            place.bottom -= size.height;
        }
        if (mustStand || isFree(place)) {
            taken_.push_back(place);
            device_.text(name, {place.left, place.top}, TextFont::Small, colour);
        }
    }

private:
    [[nodiscard]] bool isFree(const PixelRect& place) const {
        return std::none_of(taken_.begin(), taken_.end(),
                            [&](const PixelRect& other) { return overlaps(place, other); });
    }

    PaintDevice& device_;
    PixelRect within_;
    std::vector<PixelRect> taken_;
};

void paintPoint(PaintDevice& device, PixelPoint at, const MarkedPoint& point) {
    const int radius = device.scaled(PointRadius);
    const auto square = [&](int size, Colour colour) {
        device.fill({at.x - size, at.y - size, at.x + size, at.y + size}, colour);
    };
    if (point.isOpen) {
        square(2 * radius, OpenColour);
        square(radius + radius / 2, {255, 255, 255});
    }
    square(radius, point.isOutlier ? OutlierColour : point.isOpen ? OpenColour : PointColour);
}

} // namespace

void paintBars(PaintDevice& device, const PixelRect& area, const BarChart& chart) {
    if (chart.bars.empty()) {
        return;
    }
    double greatest = 0.0;
    int labels = 0;
    int figures = 0;
    for (const ChartBar& bar : chart.bars) {
        greatest = std::max({greatest, bar.from, bar.to});
        labels = std::max(labels, device.sizeOf(bar.label, TextFont::Small).width);
        figures = std::max(figures, device.sizeOf(bar.figure, TextFont::Small).width);
    }
    const int margin = device.scaled(ChartMargin);
    const int left = area.left + margin + labels + device.scaled(LabelGap);
    const int right = area.right - margin - figures - device.scaled(LabelGap);
    const int row = (area.bottom - area.top - margin) / static_cast<int>(chart.bars.size());
    const auto pixel = [&](double value) {
        return left + static_cast<int>(std::lround(partOf(value, greatest) * std::max(0, right - left)));
    };
    int top = area.top + margin / 2;
    for (const ChartBar& bar : chart.bars) {
        const int words = top + (row - device.lineHeight(TextFont::Small)) / 2;
        device.text(bar.label, {area.left + margin, words}, TextFont::Small, TextInk);
        device.fill({pixel(bar.from), top + row / 8, std::max(pixel(bar.to), pixel(bar.from) + 1),
                     top + row - row / 8},
                    bar.colour);
        device.text(bar.figure, {area.right - margin, words}, TextFont::Small, TextInk, TextSide::Right);
        top += row;
    }
}

void paintCurves(PaintDevice& device, const PixelRect& area, const CurveChart& chart) {
    const Plot plot = plotOf(device, area, chart);
    const int margin = device.scaled(ChartMargin);
    device.text(chart.title, {area.left + margin, area.top + margin / 2}, TextFont::Small, TextInk);
    if (chart.curves.empty()) {
        device.brokenText(chart.nothing, area.left + margin, area.right - margin,
                          (area.top + area.bottom) / 2, TextFont::Small, FaintInk);
        return;
    }
    paintAxes(device, plot, chart.horizontal, chart.vertical);
    for (const ChartCurve& curve : chart.curves) {
        for (std::size_t i = 1; i < curve.points.size(); ++i) {
            device.line(plot.pixel(curve.points[i - 1]), plot.pixel(curve.points[i]), curve.colour,
                        device.scaled(curve.width));
        }
    }
    // What lies above the others is named before them.
    PointNames names(device, plot.area);
    for (std::size_t i = chart.curves.size(); i > 0; --i) {
        const ChartCurve& curve = chart.curves[i - 1];
        if (!curve.name.empty() && !curve.points.empty()) {
            const PixelPoint end = plot.pixel(curve.points.back());
            names.add(curve.name, {end.x, end.y - device.lineHeight(TextFont::Small) / 2}, curve.colour,
                      false);
        }
    }
}

void paintPoints(PaintDevice& device, const PixelRect& area, const PointChart& chart,
                 std::optional<std::size_t> pointed) {
    const Plot plot = plotOf(device, area, chart);
    paintAxes(device, plot, chart.horizontal, chart.vertical);
    // The open one and those out of line above the others.
    for (const bool isMarked : {false, true}) {
        for (const MarkedPoint& point : chart.points) {
            if ((point.isOpen || point.isOutlier) == isMarked) {
                paintPoint(device, plot.pixel(point.place), point);
            }
        }
    }
    PointNames names(device, plot.area);
    for (std::size_t i = 0; i < chart.points.size(); ++i) {
        if (chart.points[i].isOpen || i == pointed) {
            names.add(chart.points[i].name, plot.pixel(chart.points[i].place), TextInk, true);
        }
    }
    for (std::size_t i = 0; i < chart.points.size(); ++i) {
        if (chart.points[i].isOutlier && !chart.points[i].isOpen && i != pointed) {
            names.add(chart.points[i].name, plot.pixel(chart.points[i].place), OutlierColour, false);
        }
    }
}

std::optional<std::size_t> pointAt(PaintDevice& device, const PixelRect& area, const PointChart& chart,
                                   PixelPoint pixel) {
    const Plot plot = plotOf(device, area, chart);
    const int reach = device.scaled(PointReach);
    std::optional<std::size_t> nearest;
    int least = reach * reach + 1;
    for (std::size_t i = 0; i < chart.points.size(); ++i) {
        const PixelPoint at = plot.pixel(chart.points[i].place);
        const int x = std::clamp(at.x - pixel.x, -reach - 1, reach + 1);
        const int y = std::clamp(at.y - pixel.y, -reach - 1, reach + 1);
        if (x * x + y * y < least) {
            least = x * x + y * y;
            nearest = i;
        }
    }
    return nearest;
}

} // namespace varrocade
