#pragma once
// What a unit may be called.

#include <optional>
#include <string>
#include <string_view>

namespace varrocade {

/// The message that refuses a unit's name which does not begin with its nationality ("German").
std::optional<std::string> refusalOfNationality(std::string_view name, std::string_view nationality);

} // namespace varrocade
