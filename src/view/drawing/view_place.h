#pragma once
// Where a drawing goes on the screen: its scale and its place, and changing both with the mouse.

#include "view/drawing/draw_list.h"

#include <algorithm>
#include <cmath>

namespace varrocade {

/// The pixel nearest to a place of the screen, however far a file's figures lead: devices draw no further
/// than some 2^27 pixels, and turned or surrounded places must stay below that too.
inline int nearestPixel(double place) {
    constexpr double furthest = 1 << 24;
    return static_cast<int>(std::lround(std::clamp(place, -furthest, furthest)));
}

/// A scale at which a metre is a whole number of pixels, and the pixel of the point (0, 0).
struct Fit {
    int pixelsPerMetre = 100;
    int originX = 0;
    int originY = 0;
    bool operator==(const Fit&) const = default;

    /// The pixel of a point; y grows downwards on the screen.
    [[nodiscard]] double screenX(double x) const { return originX + x * pixelsPerMetre / 100; }
    [[nodiscard]] double screenY(double y) const { return originY - y * pixelsPerMetre / 100; }
    [[nodiscard]] double length(double centimetres) const { return centimetres * pixelsPerMetre / 100; }
    /// The point at a pixel.
    [[nodiscard]] Point pointAt(double pixelX, double pixelY) const {
        return {centimetres(pixelX - originX), centimetres(originY - pixelY)};
    }
    [[nodiscard]] double centimetres(double pixels) const { return pixels * 100 / pixelsPerMetre; }
};

inline constexpr int LeastPixelsPerMetre = 2;
inline constexpr int GreatestFittedScale = 200; ///< what is small is not blown up
inline constexpr int GreatestScale = 1000;

/// Fits a drawing into an area of `width` by `height` pixels with `margin` pixels left free on each side.
Fit fitInto(const DrawList& list, int width, int height, int margin, int greatestScale = GreatestFittedScale);

/// Bigger by `steps` (smaller where they are negative), with the point at a pixel staying where it is.
Fit zoomedAbout(const Fit& fit, int pixelX, int pixelY, int steps);

/// The same view in an area of another size: what was in the middle stays there.
Fit movedBy(const Fit& fit, int pixelsX, int pixelsY);

} // namespace varrocade
