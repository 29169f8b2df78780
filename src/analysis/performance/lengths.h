#pragma once
// Lengths of unit files as the formulas take them.

#include <algorithm>
#include <cstdint>

namespace varrocade {

/// A kilometre is beyond every vehicle: what a file states beyond counts as that, a negative length as none.
inline constexpr double MaxMetres = 1e3;

constexpr double inMetres(std::int32_t centimetres) {
    return std::clamp(centimetres / 100.0, 0.0, MaxMetres);
}

} // namespace varrocade
