#pragma once

#include <string_view>

namespace varrocade {

/// Whether a name holds every word of a filter (words stand between blanks), letter case ignored.
bool passesFilter(std::string_view name, std::string_view filter);

/// The nationality word of the enumeration that a unit's file name begins with, such as "GERMAN" for
/// "German Tiger"; empty when it begins with none.
std::string_view nationalityOfName(std::string_view name);

} // namespace varrocade
