#pragma once
// How far an ammunition type goes through each plate of a vehicle.

#include "analysis/armour_plates.h"
#include "analysis/penetration.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace varrocade {

struct PlateRange {
    VehiclePlate plate;
    std::optional<int> range; ///< metres, at most `CurveEnd`; nothing when it does not go through at all
};

/// The range up to which a projectile with this curve goes through a plate, the plate's own angle taken into
/// account; nothing when it does not at all.
std::optional<int> rangeThrough(const PenetrationCurve& curve, const ArmourPlate& plate);

/// The plates that a level shot can meet, all but top and bottom, with the range up to which a projectile
/// with this curve goes through each.
std::vector<PlateRange> plateRanges(const VehicleRecord& vehicle, const PenetrationCurve& curve);

/// Ranges that a drawing shows in one colour.
struct RangeBand {
    int end; ///< the greatest range of the band, in metres; below 0 for "never"
    std::string_view name;
};

/// From never to every range, without gaps.
std::span<const RangeBand> rangeBands();

/// The place of a range in `rangeBands`.
std::size_t rangeBandOf(std::optional<int> range);

} // namespace varrocade
