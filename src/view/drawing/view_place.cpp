#include "view/drawing/view_place.h"

#include <algorithm>
#include <cmath>

namespace varrocade {

Fit fitInto(const DrawList& list, int width, int height, int margin, int greatestScale) {
    constexpr double leastExtent = 1; // centimetres
    const double extentX = std::max(leastExtent, list.greatest.x - list.least.x);
    const double extentY = std::max(leastExtent, list.greatest.y - list.least.y);
    const double freeX = std::max(1, width - 2 * margin);
    const double freeY = std::max(1, height - 2 * margin);
    const double scale =
        std::min(std::min(freeX / extentX, freeY / extentY) * 100, static_cast<double>(greatestScale));
    Fit fit;
    fit.pixelsPerMetre = std::max(static_cast<int>(scale), LeastPixelsPerMetre);
    fit.originX = nearestPixel(width / 2.0 - fit.length((list.least.x + list.greatest.x) / 2));
    fit.originY = nearestPixel(height / 2.0 + fit.length((list.least.y + list.greatest.y) / 2));
    return fit;
}

Fit zoomedAbout(const Fit& fit, int pixelX, int pixelY, int steps) {
    constexpr double stepFactor = 1.25;
    const Point fixed = fit.pointAt(pixelX, pixelY);
    Fit zoomed = fit;
    const double wanted = fit.pixelsPerMetre * std::pow(stepFactor, steps);
    // At small scales a step is less than a pixel a metre; it must not come to nothing.
    const int least = steps > 0 ? fit.pixelsPerMetre + 1 : LeastPixelsPerMetre;
    const int greatest = steps < 0 ? fit.pixelsPerMetre - 1 : GreatestScale;
    const double clamped =
        std::min(std::max(wanted, static_cast<double>(least)), static_cast<double>(greatest));
    zoomed.pixelsPerMetre = std::clamp(static_cast<int>(std::lround(clamped)), LeastPixelsPerMetre,
                                       std::max(GreatestScale, fit.pixelsPerMetre));
    zoomed.originX = nearestPixel(pixelX - zoomed.length(fixed.x));
    zoomed.originY = nearestPixel(pixelY + zoomed.length(fixed.y));
    return zoomed;
}

Fit movedBy(const Fit& fit, int pixelsX, int pixelsY) {
    return {fit.pixelsPerMetre, fit.originX + pixelsX, fit.originY + pixelsY};
}

} // namespace varrocade
