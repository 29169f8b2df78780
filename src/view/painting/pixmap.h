#pragma once
// Pictures as pixels in memory, and stretching and turning them.

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace varrocade {

/// Rows from the top, each pixel 0xAARRGGBB with the colours multiplied by the alpha.
struct Pixmap {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;

    [[nodiscard]] std::uint32_t at(int x, int y) const {
        return pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                      static_cast<std::size_t>(x)];
    }
};

/// A picture stretched to `width` by `height` pixels around its centre, then turned by `angle` degrees
/// clockwise.
struct PixmapPlacement {
    double width = 0;
    double height = 0;
    double angle = 0;
    bool isTile = false; ///< goes on with its edge outside, where others are transparent
    /// Where the centre lies within its pixel, from the pixel's upper left corner.
    double shiftX = 0;
    double shiftY = 0;
};

/// A rectangle of whole pixels around the centre of a placed picture: its corner is negative as a rule.
struct PixelBox {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    bool operator==(const PixelBox&) const = default;
};

/// The box that a placed picture takes.
PixelBox boxOf(const PixmapPlacement& placement);

/// What a placed picture looks like within a box. Stretching averages the pixels that come together.
Pixmap placedPixmap(const Pixmap& source, const PixmapPlacement& placement, const PixelBox& box);

/// The same into pixels that are there already, transparent ones, as many as the box has.
void placePixmap(const Pixmap& source, const PixmapPlacement& placement, const PixelBox& box,
                 std::span<std::uint32_t> pixels);

} // namespace varrocade
