#pragma once
// What a file may be called.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace varrocade {

/// Data files have none in their names, since the program adds the ending; pictures and sounds may.
enum class FullStops : std::uint8_t { Refused, Allowed };

/// The message that refuses a name, or nothing: it must not be empty nor hold characters that file names
/// cannot have, neither begin nor end with a blank, nor be a device's (NUL, COM1).
std::optional<std::string> refusalOfName(std::string_view name, FullStops stops = FullStops::Refused);

} // namespace varrocade
