#pragma once

#include <cstdint>
#include <string>

namespace varrocade {

/// A mod's identity and the years that it spans. A new mod begins with the Second World War.
struct ModSettings {
    std::string name = "New Mod";
    std::string author;
    std::string comment;
    std::int32_t firstYear = 1939;
    std::int32_t lastYear = 1945;
    bool operator==(const ModSettings&) const = default;
};

} // namespace varrocade
