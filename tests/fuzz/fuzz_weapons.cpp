// Reads any bytes as a weapon file, and checks that what the writer makes of it is read and written again.

#include "round_trip.h"
#include "weapons/weapon_files.h"

#include <cstddef>
#include <cstdint>

namespace varrocade::fuzz {

namespace {

WeaponRecord read(std::string_view content) {
    Diagnostics diagnostics;
    return readWeapon(content, "weapon", diagnostics);
}

/// Comments stand on a line of their own, so blanks at their ends are lost.
bool hasBlankEnds(std::string_view text) {
    return !text.empty() && (text.find_first_of(" \t") == 0 || text.find_last_of(" \t") == text.size() - 1);
}

} // namespace

} // namespace varrocade::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace varrocade;
    const std::string_view content(reinterpret_cast<const char*>(data), size);
    const WeaponRecord weapon = fuzz::read(content);
    if (fuzz::hasPlainTexts(content)) {
        fuzz::checkRoundTrip(weapon, fuzz::read, weaponFileText, fuzz::hasBlankEnds(weapon.comments));
    } else {
        fuzz::read(weaponFileText(weapon));
    }
    return 0;
}
