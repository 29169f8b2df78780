#include "view/painting/timeline_painter_win32.h"

#include "data/format/words.h"
#include "view/painting/paint_device.h"

#include <algorithm>
#include <string>

namespace varrocade {

namespace {

constexpr int YearsHeight = 16;
constexpr int LabelWidth = 34;
/// Behind the last year, for its label and for the mouse, which takes hold of its last month.
constexpr int EndMargin = 30;

void paintYears(HDC device, const RECT& area, const TimelineScale& scale, const DrawingObjects& objects) {
    constexpr COLORREF tickColour = RGB(150, 134, 100);
    const int step = timelineLabelStep(scale, objects.scaled(LabelWidth));
    const GdiObject<HPEN> pen(CreatePen(PS_SOLID, 1, tickColour));
    const Selection selectedPen(device, pen.get());
    const Selection font(device, objects.smallFont.get());
    SetBkMode(device, TRANSPARENT);
    SetTextColor(device, colourRef(TextInk));
    for (int year = scale.firstYear; year <= scale.lastYear; year += step) {
        const int x = area.left + scale.xOf(year, 1);
        MoveToEx(device, x, area.top, nullptr);
        LineTo(device, x, area.top + scale.height + objects.scaled(3));
        const std::string label = std::to_string(year);
        TextOutA(device, x + objects.scaled(2), area.top + scale.height + 1, label.data(),
                 static_cast<int>(label.size()));
    }
}

} // namespace

TimelineScale timelineScaleIn(const RECT& area, std::span<const AvailabilityPoint> points,
                              const DrawingObjects& objects) {
    return timelineScale(points, std::max<int>(1, area.right - area.left - objects.scaled(EndMargin)),
                         std::max<int>(1, area.bottom - area.top - objects.scaled(YearsHeight)));
}

TimelineScale paintTimeline(HDC device, const RECT& area, std::span<const AvailabilityPoint> points,
                            const DrawingObjects& objects) {
    const TimelineScale scale = timelineScaleIn(area, points, objects);
    RECT ground = area;
    ground.bottom = area.top + scale.height;
    FillRect(device, &ground, objects.whiteBrush.get());
    const std::vector<TimelineStep> steps = timelineSteps(points, scale);
    // The last number holds on.
    const auto endOf = [&](std::size_t i) {
        return i + 1 < steps.size() ? steps[i].right : static_cast<int>(area.right - area.left);
    };
    const auto bandBrush = [&](std::size_t step) {
        return objects.greenBrushes[step % objects.greenBrushes.size()].get();
    };
    for (std::size_t i = 0; i < steps.size(); ++i) {
        const RECT band{area.left + steps[i].left, area.top + steps[i].top, area.left + endOf(i),
                        ground.bottom};
        FillRect(device, &band, bandBrush(i));
    }
    paintYears(device, area, scale, objects);
    const Selection font(device, objects.smallFont.get());
    for (std::size_t i = 0; i < steps.size(); ++i) {
        const TimelineStep& step = steps[i];
        const std::string number = grouped(step.number);
        SIZE size{};
        GetTextExtentPoint32A(device, number.data(), static_cast<int>(number.size()), &size);
        if (size.cx + objects.scaled(2) > endOf(i) - step.left) {
            continue;
        }
        // Inside the band where it is high enough, otherwise above it.
        const bool isInside = scale.height - step.top >= size.cy;
        SetTextColor(device, isInside ? RGB(255, 255, 255) : colourRef(TextInk));
        // The lines of the years end before the number.
        const int x = area.left + step.left + objects.scaled(2);
        const int y = area.top + std::max(0, isInside ? step.top + 1 : step.top - static_cast<int>(size.cy));
        const RECT place{x, y, x + size.cx, y + size.cy};
        FillRect(device, &place, isInside ? bandBrush(i) : objects.whiteBrush.get());
        TextOutA(device, x, y, number.data(), static_cast<int>(number.size()));
    }
    FrameRect(device, &ground, static_cast<HBRUSH>(GetStockObject(GRAY_BRUSH)));
    return scale;
}

} // namespace varrocade
