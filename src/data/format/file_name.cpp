#include "data/format/file_name.h"

#include "data/format/texts.h"

#include <algorithm>
#include <array>

namespace varrocade {

namespace {

/// Names that the system gives to devices in every folder, whatever the ending.
bool isDeviceName(std::string_view name) {
    constexpr std::array<std::string_view, 6> plain = {"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$"};
    constexpr std::array<std::string_view, 2> numbered = {"COM", "LPT"};
    const auto isName = [&](std::string_view device) { return equalsIgnoringCase(name, device); };
    if (std::any_of(plain.begin(), plain.end(), isName)) {
        return true;
    }
    constexpr std::size_t length = 4;
    return name.size() == length && name.back() >= '1' && name.back() <= '9' &&
           std::any_of(numbered.begin(), numbered.end(), [&](std::string_view device) {
               return equalsIgnoringCase(name.substr(0, device.size()), device);
           });
}

} // namespace

std::optional<std::string> refusalOfName(std::string_view name, FullStops stops) {
    if (name.find_first_not_of(' ') == std::string_view::npos) {
        return "A name must be entered";
    }
    if (name.find_first_of("<>:\"/\\|?*") != std::string_view::npos ||
        (stops == FullStops::Refused && name.find('.') != std::string_view::npos)) {
        return "Ilegal characters in the filename";
    }
    if (name.back() == '.') {
        return "A name cannot end with a full stop";
    }
    if (name.front() == ' ' || name.back() == ' ') {
        return "A name cannot begin or end with a blank";
    }
    if (isDeviceName(name)) {
        return std::string(name) + " is the system's name for a device";
    }
    return std::nullopt;
}

} // namespace varrocade
