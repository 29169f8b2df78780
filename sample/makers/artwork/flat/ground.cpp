#include "flat/flat.h"
#include "noise.h"

namespace artwork {

namespace {

constexpr int Tile = 100;

/// Lattice noise that repeats after `cells` features, so that tiles join without a seam.
double tiledNoise(double x, double y, int cells, std::uint32_t seed) {
    const double u = x / Tile * cells;
    const double v = y / Tile * cells;
    const int ix = static_cast<int>(std::floor(u));
    const int iy = static_cast<int>(std::floor(v));
    const double tx = smoothstep(0.0, 1.0, u - ix);
    const double ty = smoothstep(0.0, 1.0, v - iy);
    const auto at = [&](int dx, int dy) { return latticeNoise((ix + dx) % cells, (iy + dy) % cells, seed); };
    return lerp(lerp(at(0, 0), at(1, 0), tx), lerp(at(0, 1), at(1, 1), tx), ty);
}

Rgb soilAt(double x, double y) {
    const double broad =
        tiledNoise(x, y, 3, 1) * 0.5 + tiledNoise(x, y, 7, 2) * 0.3 + tiledNoise(x, y, 17, 3) * 0.2;
    const double grain = tiledNoise(x, y, 50, 4);
    Rgb colour = mix(hex(0xB0AC8B), hex(0xABA988), smoothstep(0.3, 0.7, broad));
    colour = mix(colour, hex(0xB8B190), smoothstep(0.58, 0.8, tiledNoise(x, y, 11, 5)) * 0.35);
    return scaled(colour, 0.97 + 0.06 * grain);
}

} // namespace

void drawGround(Album& album) {
    constexpr std::string_view path = "grid.png";
    if (!album.wants(path)) {
        return;
    }
    Picture picture{Tile, Tile, {}};
    picture.pixels.reserve(static_cast<std::size_t>(Tile) * Tile);
    for (int y = 0; y < Tile; ++y) {
        for (int x = 0; x < Tile; ++x) {
            Rgb colour = soilAt(x, y);
            if (x == 0 || y == 0) {
                colour = mix(colour, hex(0x6F6C52), 0.55);
            } else if (x % 20 == 0 || y % 20 == 0) {
                colour = mix(colour, hex(0x7C795E), 0.22);
            }
            picture.pixels.push_back(packPixel(colour, 1.0));
        }
    }
    album.put(path, picture);
}

} // namespace artwork
