#pragma once
// What the "Availability" dialog makes of its dates, without any window.

#include "data/unit/unit_record.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace varrocade {

/// The number that a unit without dates begins with, and that the top of its empty timeline stands for.
inline constexpr std::uint16_t FirstNumberOfUnits = 100;

/// A new date: the month after the last one, with its number. It stays in that one's era: after the era's end
/// it is the last month of the era that has no date yet. January 1940 where there are no dates.
AvailabilityPoint nextDate(std::span<const AvailabilityPoint> points);

/// The place of a new date: behind those that are not later.
std::size_t placeOfDate(std::span<const AvailabilityPoint> points, const AvailabilityPoint& added);

/// A number that the mouse has found brought to a round one: the steps are 1, 2 or 5 times a power of ten,
/// and about fifty of them make `greatest`, the number at the top of the timeline.
std::uint16_t roundNumber(std::uint16_t number, std::uint16_t greatest);

} // namespace varrocade
