#pragma once
// A picture as a value: its pixels as they stand in the file, whatever form the file has them in.

#include "platform/png_size.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace varrocade {

/// Rows from the top; a pixel is red, green, blue, alpha, colours not multiplied by the alpha. Of deep
/// pictures each of them has 16 bits, high byte first, of others 8.
struct Picture {
    PictureSize size;
    bool isDeep = false;
    std::vector<std::uint8_t> samples = {};

    [[nodiscard]] std::size_t bytesPerPixel() const { return isDeep ? 8 : 4; }
    [[nodiscard]] std::size_t pixelCount() const {
        return static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height);
    }
};

/// A picture of transparent black pixels of 8 bits.
Picture emptyPicture(PictureSize size);

/// Whether two pictures have the same size and the same pixels. The colour under full transparency counts, as
/// the game's system may mix it into what lies beside. 8 bits are the same as 16 where these are their
/// double.
bool samePixels(const Picture& a, const Picture& b);

} // namespace varrocade
