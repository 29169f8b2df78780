#include "scheme.h"

#include "noise.h"

namespace artwork {

Rgb schemeColour(const Scheme& scheme, Vec2 at) {
    Rgb colour = scheme.base;
    for (const Patches& patch : scheme.patches) {
        const double c = std::cos(radians(patch.turn));
        const double s = std::sin(radians(patch.turn));
        const double x = (at.x * c - at.y * s) / patch.size * patch.stretch.x;
        const double y = (at.x * s + at.y * c) / patch.size * patch.stretch.y;
        const double noise = cloudNoise(x + 31.7, y + 17.3, 3, patch.seed + scheme.seed * 13U);
        double cover = smoothstep(patch.level - patch.soft, patch.level + patch.soft, noise);
        if (patch.band > 0.0) {
            cover *= 1.0 - smoothstep(patch.level + patch.band - patch.soft,
                                      patch.level + patch.band + patch.soft, noise);
        }
        if (patch.outline > 0.0) {
            const double edge =
                1.0 - smoothstep(patch.outline * 0.7, patch.outline, std::abs(noise - patch.level));
            colour = mix(mix(colour, patch.colour, cover), patch.outlineColour, edge);
        } else {
            colour = mix(colour, patch.colour, cover);
        }
    }
    return colour;
}

} // namespace artwork
