#pragma once
// Where in its picture something is drawn: what two pictures of one part are compared by.

#include "pictures/picture.h"

#include <cstdint>
#include <vector>

namespace varrocade {

/// Which cells of a picture are more solid than transparent. A picture has at most so many cells a side.
struct Silhouette {
    static constexpr std::int32_t MostCells = 64;

    PictureSize size;
    std::int32_t cell = 1; ///< pixels a side
    std::int32_t columns = 0;
    std::int32_t rows = 0;
    std::vector<std::uint8_t> isSolid = {}; ///< by rows, 1 or 0

    [[nodiscard]] bool isSolidAt(std::int32_t x, std::int32_t y) const {
        return x >= 0 && y >= 0 && x < columns && y < rows &&
               isSolid[static_cast<std::size_t>(y) * static_cast<std::size_t>(columns) +
                       static_cast<std::size_t>(x)] != 0;
    }
};

Silhouette silhouetteOf(const Picture& picture);

/// Pixels to the right and down.
struct PictureShift {
    std::int32_t x = 0;
    std::int32_t y = 0;
    bool operator==(const PictureShift&) const = default;
};

/// How far `part` would have to move to lie within `whole`, both pictures of one size. Nothing where it lies
/// there as well as anywhere near, as a wreck does that has lost its barrel or whose debris lies around it.
PictureShift shiftInto(const Silhouette& whole, const Silhouette& part);

} // namespace varrocade
