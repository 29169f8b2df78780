#include "view/sheet/timeline.h"

#include <algorithm>
#include <cmath>

namespace varrocade {

namespace {

constexpr int MonthsPerYear = 12;
constexpr int TopMargin = 6;

int monthsOf(const TimelineScale& scale) {
    return std::max(1, scale.lastYear - scale.firstYear + 1) * MonthsPerYear;
}

int monthIndex(const AvailabilityPoint& point) {
    return point.year * MonthsPerYear + std::clamp<int>(point.month, 1, MonthsPerYear) - 1;
}

} // namespace

int TimelineScale::xOf(int year, int month) const {
    const int index = (year - firstYear) * MonthsPerYear + month - 1;
    return static_cast<int>(std::lround(static_cast<double>(index) * width / monthsOf(*this)));
}

int TimelineScale::yOf(std::uint16_t number) const {
    const double share = static_cast<double>(number) / std::max<std::uint16_t>(1, greatest);
    return height - static_cast<int>(std::lround(share * (height - TopMargin)));
}

AvailabilityPoint TimelineScale::pointAt(int x, int y) const {
    const int months = monthsOf(*this);
    const int index = std::clamp(
        static_cast<int>(std::lround(static_cast<double>(x) * months / std::max(1, width))), 0, months - 1);
    const double share = static_cast<double>(height - y) / std::max(1, height - TopMargin);
    const double number = std::clamp(share * greatest, 0.0, static_cast<double>(UINT16_MAX));
    return {static_cast<std::uint8_t>(index % MonthsPerYear + 1),
            static_cast<std::uint16_t>(firstYear + index / MonthsPerYear),
            static_cast<std::uint16_t>(std::lround(number))};
}

TimelineScale timelineScale(std::span<const AvailabilityPoint> points, int width, int height) {
    TimelineScale scale{.width = width, .height = height};
    if (!points.empty()) {
        int first = points.front().year;
        int last = first;
        for (const AvailabilityPoint& point : points) {
            first = std::min<int>(first, point.year);
            last = std::max<int>(last, point.year);
            scale.greatest = std::max(scale.greatest, point.number);
        }
        // A unit of another war has its own years.
        const bool isInWar = first <= scale.lastYear && last >= scale.firstYear;
        scale.firstYear = isInWar ? std::min(first, scale.firstYear) : first;
        scale.lastYear = isInWar ? std::max(last, scale.lastYear) : last;
    }
    return scale;
}

std::vector<TimelineStep> timelineSteps(std::span<const AvailabilityPoint> points,
                                        const TimelineScale& scale) {
    std::vector<std::size_t> order(points.size());
    for (std::size_t i = 0; i < order.size(); ++i) {
        order[i] = i;
    }
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return monthIndex(points[a]) < monthIndex(points[b]);
    });
    std::vector<TimelineStep> steps;
    for (const std::size_t index : order) {
        const AvailabilityPoint& point = points[index];
        TimelineStep step;
        step.left = scale.xOf(point.year, std::max<int>(1, point.month));
        step.right = scale.width;
        step.top = scale.yOf(point.number);
        step.number = point.number;
        step.point = index;
        if (!steps.empty()) {
            steps.back().right = step.left;
        }
        steps.push_back(step);
    }
    return steps;
}

std::optional<std::size_t> timelinePointNear(std::span<const AvailabilityPoint> points,
                                             const TimelineScale& scale, int x, int y, int reach) {
    std::optional<std::size_t> nearest;
    int best = reach * reach + 1;
    for (const TimelineStep& step : timelineSteps(points, scale)) {
        const int distance = (x - step.left) * (x - step.left) + (y - step.top) * (y - step.top);
        if (distance < best) {
            best = distance;
            nearest = step.point;
        }
    }
    return nearest;
}

int timelineLabelStep(const TimelineScale& scale, int labelWidth) {
    const int years = std::max(1, scale.lastYear - scale.firstYear + 1);
    int step = 1;
    while (years / step > 0 && scale.width * step / years < labelWidth) {
        // 1, 2, 5, 10, 20, 50 ...
        const int leading = step;
        step = (leading == 2 || leading == 20 || leading == 200) ? leading * 5 / 2 : leading * 2;
    }
    return step;
}

} // namespace varrocade
