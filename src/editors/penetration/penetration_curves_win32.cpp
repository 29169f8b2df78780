#include "editors/penetration/penetration_curves_win32.h"

#include "data/format/numbers.h"
#include "data/format/words.h"
#include "view/chart/chart.h"
#include "view/painting/painter_win32.h"

#include <windowsx.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace varrocade {

namespace {

// Pixels of 96 dpi.
constexpr int LeftMargin = 34;
constexpr int OtherMargin = 12;
constexpr int AxisText = 16;
constexpr int LegendRowHeight = 16;
constexpr int SwatchWidth = 18;
constexpr int LegendGap = 6;
constexpr int CurveReach = 6;

constexpr int RangeStep = 500;
constexpr int MostSteps = 6;
constexpr int OneColumn = 4; ///< more lines of the legend stand in two columns
constexpr COLORREF AxisColour = RGB(190, 180, 150);
/// Where the parts of the chart are.
struct ChartPlaces {
    RECT plot{};
    RECT legend{};
    int rows = 1; ///< of the legend, below its head
    int columns = 1;
    ChartAxis axis;

    [[nodiscard]] int x(int range) const {
        return plot.left + MulDiv(range, plot.right - plot.left, CurveEnd);
    }
    [[nodiscard]] int range(int pixel) const {
        return std::clamp(MulDiv(pixel - plot.left, CurveEnd, std::max<int>(1, plot.right - plot.left)), 0,
                          CurveEnd);
    }
    [[nodiscard]] int y(double value) const {
        const double share =
            std::isfinite(value) ? std::clamp(value / axis.top(), 0.0, 1.0) : (value > 0 ? 1.0 : 0.0);
        return plot.bottom - static_cast<int>(std::lround(share * (plot.bottom - plot.top)));
    }
};

double greatestValue(const PenetrationChart& chart) {
    double greatest = 1;
    for (const PenetrationCurve& curve : chart.curves) {
        for (const double value : curve) {
            // A negative wind resistance has no bounds.
            greatest = std::isfinite(value) ? std::max(greatest, value) : greatest;
        }
    }
    return greatest;
}

ChartPlaces placesOf(const RECT& area, const PenetrationChart& chart, const DrawingObjects& drawing) {
    ChartPlaces places;
    const auto count = static_cast<int>(chart.curves.size());
    places.columns = count > OneColumn ? 2 : 1;
    places.rows = std::max(1, (count + places.columns - 1) / places.columns);
    const int margin = drawing.scaled(OtherMargin);
    const int legendHeight = (places.rows + 1) * drawing.scaled(LegendRowHeight);
    places.legend = {area.left + margin, area.bottom - legendHeight - margin / 2, area.right - margin,
                     area.bottom - margin / 2};
    // The axis has its unit above it.
    const int unitHeight = drawing.scaled(AxisText) * 3 / 2;
    places.plot = {area.left + drawing.scaled(LeftMargin), area.top + unitHeight + 2, area.right - 2 * margin,
                   places.legend.top - drawing.scaled(AxisText) - margin / 2};
    places.axis = chartAxis(greatestValue(chart), MostSteps);
    return places;
}

/// The lines go down the first column, then the second; the head is above them.
RECT legendLine(const ChartPlaces& places, std::size_t index, const DrawingObjects& drawing) {
    const int height = drawing.scaled(LegendRowHeight);
    const int width = (places.legend.right - places.legend.left) / places.columns;
    const auto place = static_cast<int>(index);
    RECT line{};
    line.left = places.legend.left + place / places.rows * width;
    line.right = line.left + width - drawing.scaled(LegendGap);
    line.top = places.legend.top + (1 + place % places.rows) * height;
    line.bottom = line.top + height;
    return line;
}

void writeLine(HDC device, RECT place, const std::string& words, UINT alignment) {
    DrawTextA(device, words.c_str(), static_cast<int>(words.size()), &place,
              alignment | DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
}

void paintAxes(HDC device, const ChartPlaces& places, const DrawingObjects& drawing) {
    const GdiObject<HPEN> pen(CreatePen(PS_SOLID, 1, AxisColour));
    const Selection selected(device, pen.get());
    const int half = drawing.scaled(AxisText) / 2;
    for (int range = 0; range <= CurveEnd; range += RangeStep) {
        const int x = places.x(range);
        MoveToEx(device, x, places.plot.top, nullptr);
        LineTo(device, x, places.plot.bottom);
        writeLine(device,
                  {x - 3 * half, places.plot.bottom + 2, x + 3 * half, places.plot.bottom + 2 + 2 * half},
                  grouped(range) + (range == CurveEnd ? " m" : ""), DT_CENTER);
    }
    for (int line = 0; line <= places.axis.steps; ++line) {
        const double value = line * places.axis.step;
        const int y = places.y(value);
        MoveToEx(device, places.plot.left, y, nullptr);
        LineTo(device, places.plot.right, y);
        std::string words;
        appendShortest(words, static_cast<float>(value));
        writeLine(device, {0, y - half, places.plot.left - 3, y + half}, words, DT_RIGHT);
    }
    writeLine(device, {0, places.plot.top - 3 * half, places.plot.left - 3, places.plot.top - half}, "mm",
              DT_RIGHT);
}

void paintCurve(HDC device, const ChartPlaces& places, const PenetrationCurve& curve) {
    std::vector<POINT> points;
    for (int x = places.plot.left; x <= places.plot.right; ++x) {
        points.push_back({x, places.y(curve[static_cast<std::size_t>(places.range(x))])});
    }
    Polyline(device, points.data(), static_cast<int>(points.size()));
}

GdiObject<HPEN> curvePen(std::size_t index, const PenetrationChart& chart, const DrawingObjects& drawing) {
    const bool isAgain = index >= ChartColours.size();
    const int width = index == chart.chosen ? drawing.scaled(3) : 1;
    return GdiObject<HPEN>(CreatePen(isAgain && width == 1 ? PS_DASH : PS_SOLID, width,
                                     colourRef(ChartColours[index % ChartColours.size()])));
}

void paintLegendLine(HDC device, const ChartPlaces& places, const PenetrationChart& chart, std::size_t index,
                     const DrawingObjects& drawing) {
    RECT line = legendLine(places, index, drawing);
    const GdiObject<HPEN> pen = curvePen(index, chart, drawing);
    const Selection selectedPen(device, pen.get());
    const Selection font(device, index == chart.chosen ? drawing.boldFont.get() : drawing.smallFont.get());
    const int middle = (line.top + line.bottom) / 2;
    MoveToEx(device, line.left, middle, nullptr);
    LineTo(device, line.left + drawing.scaled(SwatchWidth), middle);
    line.left += drawing.scaled(SwatchWidth + LegendGap);
    if (chart.pointedRange) {
        const std::string value =
            penetrationText(chart.curves[index][static_cast<std::size_t>(*chart.pointedRange)]);
        SIZE extent{};
        GetTextExtentPoint32A(device, value.c_str(), static_cast<int>(value.size()), &extent);
        writeLine(device, line, value, DT_RIGHT);
        line.right -= extent.cx + drawing.scaled(LegendGap);
    }
    writeLine(device, line, chart.names[index], DT_LEFT);
}

void paintContent(HDC device, const RECT& area, const PenetrationChart& chart,
                  const DrawingObjects& drawing) {
    const ChartPlaces places = placesOf(area, chart, drawing);
    const Selection font(device, drawing.smallFont.get());
    SetBkMode(device, TRANSPARENT);
    paintAxes(device, places, drawing);
    for (std::size_t i = 0; i < chart.curves.size(); ++i) {
        const GdiObject<HPEN> pen = curvePen(i, chart, drawing);
        const Selection selected(device, pen.get());
        paintCurve(device, places, chart.curves[i]);
        paintLegendLine(device, places, chart, i, drawing);
    }
    RECT head = places.legend;
    head.bottom = head.top + drawing.scaled(LegendRowHeight);
    if (chart.curves.empty()) {
        writeLine(device, head, "The weapon has no ammunition types.", DT_LEFT);
    } else if (!chart.pointedRange) {
        writeLine(device, head, "Point at a range to read the curves.", DT_LEFT);
    } else {
        const Selection pen(device, drawing.redPen.get());
        MoveToEx(device, places.x(*chart.pointedRange), places.plot.top, nullptr);
        LineTo(device, places.x(*chart.pointedRange), places.plot.bottom);
        writeLine(device, head, "At " + grouped(*chart.pointedRange) + " m:", DT_LEFT);
    }
}

} // namespace

void paintChart(const DRAWITEMSTRUCT& item, const PenetrationChart& chart, const DrawingObjects& drawing) {
    paintBuffered(item.hDC, item.rcItem, drawing,
                  [&](HDC device) { paintContent(device, item.rcItem, chart, drawing); });
}

bool pointAtChart(HWND chartControl, UINT message, LPARAM detail, PenetrationChart& chart,
                  const DrawingObjects& drawing) {
    if (message != WM_MOUSEMOVE && message != WM_MOUSELEAVE) {
        return false;
    }
    RECT area{};
    GetClientRect(chartControl, &area);
    const POINT point{GET_X_LPARAM(detail), GET_Y_LPARAM(detail)};
    const auto range = message == WM_MOUSEMOVE ? chartRangeAt(area, point, chart, drawing) : std::nullopt;
    if (range != chart.pointedRange) {
        chart.pointedRange = range;
        InvalidateRect(chartControl, nullptr, FALSE);
    }
    TRACKMOUSEEVENT leave{
        .cbSize = sizeof(leave), .dwFlags = TME_LEAVE, .hwndTrack = chartControl, .dwHoverTime = 0};
    TrackMouseEvent(&leave);
    return true;
}

std::optional<int> chartRangeAt(const RECT& area, POINT point, const PenetrationChart& chart,
                                const DrawingObjects& drawing) {
    const ChartPlaces places = placesOf(area, chart, drawing);
    const bool isInside =
        point.x >= places.plot.left && point.x <= places.plot.right && point.y < places.legend.top;
    return isInside && !chart.curves.empty() ? std::optional(places.range(point.x)) : std::nullopt;
}

std::optional<std::size_t> chartCurveAt(const RECT& area, POINT point, const PenetrationChart& chart,
                                        const DrawingObjects& drawing) {
    const ChartPlaces places = placesOf(area, chart, drawing);
    const auto range = chartRangeAt(area, point, chart, drawing);
    std::optional<std::size_t> nearest;
    int least = drawing.scaled(CurveReach) + 1;
    for (std::size_t i = 0; i < chart.curves.size(); ++i) {
        const RECT line = legendLine(places, i, drawing);
        if (PtInRect(&line, point) != FALSE) {
            return i;
        }
        const int distance =
            range ? std::abs(places.y(chart.curves[i][static_cast<std::size_t>(*range)]) - point.y) : least;
        if (distance < least) {
            least = distance;
            nearest = i;
        }
    }
    return nearest;
}

} // namespace varrocade
