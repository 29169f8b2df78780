#pragma once
// The availability timeline: how many units there are over the months, as steps from point to point. Computed
// without any device, for the data sheet and for the availability editor.

#include "data/unit/unit_record.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace varrocade {

/// The years that a timeline spans and the number at its top, in a box of `width` by `height` pixels.
struct TimelineScale {
    int firstYear = 1939;
    int lastYear = 1945; ///< the last one that is shown whole
    std::uint16_t greatest = 1;
    int width = 0;
    int height = 0;

    /// The pixel of a month's beginning, from the left.
    [[nodiscard]] int xOf(int year, int month) const;
    /// The pixel of a number, from the top.
    [[nodiscard]] int yOf(std::uint16_t number) const;
    /// The month and number that a pixel stands for, within what the box shows.
    [[nodiscard]] AvailabilityPoint pointAt(int x, int y) const;
};

/// A number that holds from one pixel to another; `height` pixels tall.
struct TimelineStep {
    int left = 0;
    int right = 0;
    int top = 0;
    std::uint16_t number = 0;
    std::size_t point = 0; ///< which of the points it begins with
};

/// The scale that shows all points; never less than the years of the war.
TimelineScale timelineScale(std::span<const AvailabilityPoint> points, int width, int height);

/// The steps in the order of their dates. The last one goes on to the end of the timeline.
std::vector<TimelineStep> timelineSteps(std::span<const AvailabilityPoint> points,
                                        const TimelineScale& scale);

/// The point whose step begins nearest to a pixel, within `reach` pixels.
std::optional<std::size_t> timelinePointNear(std::span<const AvailabilityPoint> points,
                                             const TimelineScale& scale, int x, int y, int reach);

/// Every how many years a label fits.
int timelineLabelStep(const TimelineScale& scale, int labelWidth);

} // namespace varrocade
