#pragma once
// Text for JSON and for consoles, whatever bytes it is made of.

#include <string>
#include <string_view>

namespace varrocade {

/// A text as UTF-8: as it stands where it is that already; otherwise each byte beyond ASCII as the character
/// that it is in Latin-1.
std::string asUtf8(std::string_view text);

/// A JSON string with its quotes. The result is of ASCII and UTF-8 only.
std::string jsonString(std::string_view text);

} // namespace varrocade
