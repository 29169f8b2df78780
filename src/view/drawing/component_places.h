#pragma once
// What the display keeps of each component - how far it is turned for looking at, whether it is selected -
// follows the component when its place in the vehicle's list changes.

#include "view/drawing/unit_part.h"

#include <cstddef>
#include <limits>
#include <span>
#include <vector>

namespace varrocade {

/// For each component of a list the place that it had before, or `NewPlace`.
using FormerPlaces = std::vector<std::size_t>;
inline constexpr std::size_t NewPlace = std::numeric_limits<std::size_t>::max();

FormerPlaces swappedPlaces(std::size_t count, std::size_t a, std::size_t b);

/// `count` components were there before one of them went.
FormerPlaces placesWithout(std::size_t count, std::size_t removed);

/// For two states of a list that nothing else is known of: equal components are taken for the same, and what
/// is left over in its place for changed.
FormerPlaces placesBetween(std::span<const ComponentRecord> before, std::span<const ComponentRecord> after);

void carryTurns(std::vector<double>& turns, const FormerPlaces& places);

/// The part in its new place; none when its component is gone.
UnitPart carriedPart(const UnitPart& part, const FormerPlaces& places);

} // namespace varrocade
