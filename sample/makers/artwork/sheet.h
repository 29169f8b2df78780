#pragma once

#include "develop.h"

#include <span>
#include <string_view>

namespace artwork {

/// One picture to be drawn.
struct Sheet {
    std::string_view path{}; ///< below the Images folder, slashes between folders
    int width = 0;           ///< pixels
    int height = 0;          ///< pixels
    double pixelsPerCm = 1.0;
    void (*draw)(Relief&) = nullptr;
    void (*damage)(Relief&) = nullptr; ///< drawn over it for the burnt-out variant
    const Scheme& (*scheme)() = nullptr;
    Developing how{.mud = 0.55}; ///< as for a hull, muddy below
};

/// The look of turrets and guns, which lie on something: a soft shadow falls around them.
inline constexpr Developing Mounted{.groundShadow = 0.42};
/// The look of profiles, seen from the side.
inline constexpr Developing Sideways{.shadowLength = 40.0, .rim = 0.15};

/// Draws a sheet from nothing.
Picture drawSheet(const Sheet& sheet);

} // namespace artwork
