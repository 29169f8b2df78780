// Reads any bytes as a unit file, and checks that what each writer makes of the unit is read and written
// again.

#include "data/reading/unit_reader.h"
#include "data/writing/unit_writers.h"
#include "round_trip.h"

#include <cstddef>
#include <cstdint>

namespace varrocade::fuzz {

namespace {

SquadRecord read(std::string_view content) {
    Diagnostics diagnostics;
    return readUnit(content, "unit", diagnostics);
}

/// A trail that "%.2f" prints as none is not read again.
bool hasTinyTrail(const SquadRecord& unit) {
    return unit.heavyWeapon && unit.heavyWeapon->trailLength > 0 && unit.heavyWeapon->trailLength < 0.01;
}

} // namespace

} // namespace varrocade::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace varrocade;
    const std::string_view content(reinterpret_cast<const char*>(data), size);
    const SquadRecord unit = fuzz::read(content);
    const bool isPlain = fuzz::hasPlainTexts(content);
    for (const Category category : {Category::Vehicles, Category::Infantry, Category::Aircraft}) {
        const auto write = [category](const SquadRecord& record) {
            return unitFileText(category, record).value_or("");
        };
        if (isPlain) {
            // The national ranks leave a blank line behind the first time.
            fuzz::checkRoundTrip(unit, fuzz::read, write, fuzz::hasTinyTrail(unit));
        } else {
            fuzz::read(write(unit));
        }
    }
    return 0;
}
