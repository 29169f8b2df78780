// Reads any bytes as a unit file, and checks that what each writer makes of the unit is read and written
// again.

#include "data/unit_reader.h"
#include "data/unit_writers.h"
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

void checkWriter(Category category, const SquadRecord& first) {
    const std::string firstText = unitFileText(category, first).value_or("");
    if (firstText.empty() || !hasShortLines(firstText)) {
        return;
    }
    const SquadRecord second = read(firstText);
    const std::string secondText = unitFileText(category, second).value_or("");
    // The national ranks leave a blank line behind the first time.
    require(hasTinyTrail(first) || withoutBlankLines(secondText) == withoutBlankLines(firstText),
            "the second text is another", firstText, secondText);
    const SquadRecord third = read(secondText);
    require(third == second, "the third record is another", firstText, secondText);
    const std::string thirdText = unitFileText(category, third).value_or("");
    require(thirdText == secondText, "the third text is another", secondText, thirdText);
}

} // namespace

} // namespace varrocade::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace varrocade;
    const std::string_view content(reinterpret_cast<const char*>(data), size);
    const SquadRecord unit = fuzz::read(content);
    const bool isPlain = fuzz::hasPlainTexts(content);
    for (const Category category : {Category::Vehicles, Category::Infantry, Category::Aircraft}) {
        if (isPlain) {
            fuzz::checkWriter(category, unit);
        } else if (const auto text = unitFileText(category, unit)) {
            fuzz::read(*text);
        }
    }
    return 0;
}
