#include "tools/pictures/canvas.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

#include <stb_easy_font.h>

namespace varrocade {

namespace {

constexpr std::uint32_t Opaque = 255;

/// A product of two shares of 255, as a share of 255, rounded.
constexpr std::uint32_t product(std::uint32_t a, std::uint32_t b) {
    const std::uint32_t whole = a * b + 128;
    return (whole + (whole >> 8U)) >> 8U;
}

std::uint32_t over(std::uint32_t above, std::uint32_t below) {
    const std::uint32_t alpha = above >> 24U;
    if (alpha == Opaque || below == 0) {
        return above;
    }
    std::uint32_t result = 0;
    for (unsigned shift = 0; shift < 32; shift += 8) {
        const std::uint32_t sum =
            ((above >> shift) & 0xFFU) + product((below >> shift) & 0xFFU, Opaque - alpha);
        result |= std::min(sum, Opaque) << shift;
    }
    return result;
}

/// The colours of a pixel of a canvas, between red and blue.
std::array<std::uint8_t, 4> straightPixel(std::uint32_t pixel) {
    const std::uint32_t alpha = pixel >> 24U;
    if (alpha == 0) {
        return {};
    }
    const auto colour = [&](unsigned shift) {
        const std::uint32_t value = (pixel >> shift) & 0xFFU;
        return static_cast<std::uint8_t>(
            alpha == Opaque ? value : std::min(Opaque, (value * Opaque + alpha / 2) / alpha));
    };
    return {colour(16), colour(8), colour(0), static_cast<std::uint8_t>(alpha)};
}

void layRow(std::uint32_t* below, const std::uint32_t* above, int count) {
    for (int i = 0; i < count; ++i) {
        if (above[i] != 0) {
            below[i] = over(above[i], below[i]);
        }
    }
}

std::size_t placeOf(const Pixmap& pixmap, int x, int y) {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(pixmap.width) + static_cast<std::size_t>(x);
}

/// The font's own function writes to a text that it does not change.
int textWidth(std::string text) {
    return stb_easy_font_width(text.data());
}

std::string plainText(std::string_view text) {
    std::string plain(text);
    std::replace_if(
        plain.begin(), plain.end(), [](char c) { return c < ' ' || c > '~'; }, '?');
    return plain;
}

void fill(Pixmap& canvas, int left, int top, int right, int bottom, std::uint32_t pixel) {
    for (int y = std::max(top, 0); y < std::min(bottom, canvas.height); ++y) {
        for (int x = std::max(left, 0); x < std::min(right, canvas.width); ++x) {
            canvas.pixels[placeOf(canvas, x, y)] = pixel;
        }
    }
}

} // namespace

Pixmap emptyPixmap(PictureSize size) {
    Pixmap pixmap{size.width, size.height, {}};
    pixmap.pixels.resize(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height));
    return pixmap;
}

Pixmap premultiplied(const Picture& picture) {
    Pixmap pixmap = emptyPixmap(picture.size);
    const std::size_t step = picture.isDeep ? 2 : 1;
    const std::uint8_t* sample = picture.samples.data();
    for (std::uint32_t& pixel : pixmap.pixels) {
        const std::uint32_t alpha = sample[3 * step];
        if (alpha == Opaque) {
            pixel = (Opaque << 24U) | (std::uint32_t{sample[0]} << 16U) |
                    (std::uint32_t{sample[step]} << 8U) | sample[2 * step];
        } else if (alpha != 0) {
            pixel = (alpha << 24U) | (product(sample[0], alpha) << 16U) |
                    (product(sample[step], alpha) << 8U) | product(sample[2 * step], alpha);
        }
        sample += 4 * step;
    }
    return pixmap;
}

Picture straightened(const Pixmap& pixmap) {
    Picture picture = emptyPicture({pixmap.width, pixmap.height});
    std::uint8_t* sample = picture.samples.data();
    for (const std::uint32_t pixel : pixmap.pixels) {
        const std::array<std::uint8_t, 4> straight = straightPixel(pixel);
        std::memcpy(sample, straight.data(), straight.size());
        sample += straight.size();
    }
    return picture;
}

void layOver(Pixmap& canvas, const Pixmap& picture, PixmapPlacement placement, double centreX,
             double centreY) {
    const double column = std::floor(centreX);
    const double row = std::floor(centreY);
    constexpr double furthest = 1 << 24;
    if (!(std::abs(column) < furthest && std::abs(row) < furthest)) {
        return;
    }
    placement.shiftX = centreX - column;
    placement.shiftY = centreY - row;
    const int x = static_cast<int>(column);
    const int y = static_cast<int>(row);
    const PixelBox whole = boxOf(placement);
    PixelBox box;
    box.left = std::max(whole.left, -x);
    box.top = std::max(whole.top, -y);
    box.width = std::min(whole.left + whole.width, canvas.width - x) - box.left;
    box.height = std::min(whole.top + whole.height, canvas.height - y) - box.top;
    if (box.width > 0 && box.height > 0) {
        layOver(canvas, placedPixmap(picture, placement, box), x + box.left, y + box.top);
    }
}

void layOver(Pixmap& canvas, const Pixmap& picture, int left, int top) {
    const int firstColumn = std::max(0, -left);
    const int lastColumn = std::min(picture.width, canvas.width - left);
    const int lastRow = std::min(picture.height, canvas.height - top);
    for (int y = std::max(0, -top); y < lastRow && firstColumn < lastColumn; ++y) {
        layRow(canvas.pixels.data() + placeOf(canvas, left + firstColumn, top + y),
               picture.pixels.data() + placeOf(picture, firstColumn, y), lastColumn - firstColumn);
    }
}

std::vector<std::string> brokenText(std::string_view text, int width) {
    std::vector<std::string> lines;
    std::string rest = plainText(text);
    while (!rest.empty()) {
        std::size_t length = rest.size();
        while (length > 1 && textWidth(rest.substr(0, length)) > width) {
            const std::size_t blank = rest.rfind(' ', length - 1);
            length = blank == std::string::npos || blank == 0 ? length - 1 : blank;
        }
        lines.push_back(rest.substr(0, length));
        rest.erase(0, rest.find_first_not_of(' ', length));
    }
    return lines;
}

void writeLine(Pixmap& canvas, const std::string& line, int centreX, int top) {
    struct Vertex {
        float x, y, z;
        std::array<unsigned char, 4> colour;
    };
    // At most some 20 rectangles a letter.
    std::vector<Vertex> vertices(line.size() * 80 + 80);
    std::string text = line;
    const int count = stb_easy_font_print(0, 0, text.data(), nullptr, vertices.data(),
                                          static_cast<int>(vertices.size() * sizeof(Vertex)));
    const int left = centreX - textWidth(line) / 2;
    constexpr std::uint32_t bright = 0xFFF4F1E8;
    constexpr std::uint32_t dark = 0xFF101010;
    for (const auto& [pixel, rim] : {std::pair{bright, 1}, std::pair{dark, 0}}) {
        for (int quad = 0; quad < count; ++quad) {
            const Vertex& first = vertices[static_cast<std::size_t>(quad) * 4];
            const Vertex& last = vertices[static_cast<std::size_t>(quad) * 4 + 2];
            fill(canvas, left + static_cast<int>(first.x) - rim, top + 1 + static_cast<int>(first.y) - rim,
                 left + static_cast<int>(last.x) + rim, top + 1 + static_cast<int>(last.y) + rim, pixel);
        }
    }
}

} // namespace varrocade
