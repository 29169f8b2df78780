#include "analysis/plate_ranges.h"

#include "data/unit_fields.h"

#include <algorithm>
#include <array>

namespace varrocade {

namespace {

constexpr int NeverEnd = -1;

constexpr auto RangeBands = std::to_array<RangeBand>({
    {NeverEnd, "never"},
    {500, "up to 500 m"},
    {1000, "up to 1,000 m"},
    {2000, "up to 2,000 m"},
    {CurveEnd - 1, "beyond 2,000 m"},
    {CurveEnd, "at every range"},
});

} // namespace

std::optional<int> rangeThrough(const PenetrationCurve& curve, const ArmourPlate& plate) {
    return rangeThrough(curve, plate.thickness, plate.angle);
}

std::vector<PlateRange> plateRanges(const VehicleRecord& vehicle, const PenetrationCurve& curve) {
    std::vector<PlateRange> ranges;
    for (const VehiclePlate& plate : armourPlates(vehicle)) {
        if (plate.name != field::Top.element && plate.name != field::Bottom.element) {
            ranges.push_back({plate, rangeThrough(curve, plate.plate)});
        }
    }
    return ranges;
}

std::span<const RangeBand> rangeBands() {
    return RangeBands;
}

std::size_t rangeBandOf(std::optional<int> range) {
    const int wanted = range.value_or(NeverEnd);
    const auto band = std::find_if(RangeBands.begin(), RangeBands.end() - 1,
                                   [wanted](const RangeBand& row) { return wanted <= row.end; });
    return static_cast<std::size_t>(band - RangeBands.begin());
}

} // namespace varrocade
