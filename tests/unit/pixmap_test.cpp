// Stretching and turning of pictures, compared pixel by pixel with a tolerance.

#include "view/painting/pixmap.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace varrocade::tests {
namespace {

constexpr std::uint32_t Red = 0xFFFF0000;
constexpr std::uint32_t Blue = 0xFF0000FF;
constexpr std::uint32_t Glass = 0x40100808; ///< a quarter of a colour

/// Four quarters: red and blue above, nothing and glass below.
Pixmap quarters(int size) {
    Pixmap picture{size, size, {}};
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            const bool isLeft = x < size / 2;
            picture.pixels.push_back(y < size / 2 ? (isLeft ? Red : Blue) : (isLeft ? 0 : Glass));
        }
    }
    return picture;
}

int difference(std::uint32_t a, std::uint32_t b) {
    int most = 0;
    for (unsigned shift = 0; shift < 32; shift += 8) {
        const int one = static_cast<int>((a >> shift) & 0xFFU);
        most = std::max(most, std::abs(one - static_cast<int>((b >> shift) & 0xFFU)));
    }
    return most;
}

/// What a quarter shows, away from the edges where they run into one another.
void expectQuarters(const PixmapPlacement& placement) {
    const PixelBox box = boxOf(placement);
    const Pixmap placed = placedPixmap(quarters(64), placement, box);
    ASSERT_EQ(placed.width, box.width);
    struct Row {
        double x; ///< as shares of half the size
        double y;
        std::uint32_t colour;
    };
    constexpr Row rows[] = {{-0.5, -0.5, Red}, {0.5, -0.5, Blue}, {-0.5, 0.5, 0}, {0.5, 0.5, Glass}};
    const double angle = placement.angle * std::numbers::pi / 180;
    for (const Row& row : rows) {
        const double x = row.x * placement.width / 2;
        const double y = row.y * placement.height / 2;
        const int column = static_cast<int>(std::floor(x * std::cos(angle) - y * std::sin(angle))) - box.left;
        const int line = static_cast<int>(std::floor(x * std::sin(angle) + y * std::cos(angle))) - box.top;
        EXPECT_LE(difference(placed.at(column, line), row.colour), 2)
            << std::hex << placed.at(column, line) << " at " << row.x << ", " << row.y << " of "
            << placement.width << " by " << placement.height << ", " << placement.angle;
    }
}

TEST(Pixmap, KeepsItsColoursHoweverItIsPlaced) {
    for (const double width : {9.0, 20.0, 64.0, 130.5}) {
        for (const double height : {12.0, 64.0}) {
            for (const double angle : {0.0, 30.0, 90.0, 180.0, -135.0}) {
                expectQuarters({.width = width, .height = height, .angle = angle});
            }
        }
    }
}

TEST(Pixmap, StaysAsItIsAtItsOwnSize) {
    const Pixmap picture = quarters(16);
    const PixmapPlacement own{.width = 16, .height = 16};
    EXPECT_EQ(boxOf(own), (PixelBox{-8, -8, 16, 16}));
    EXPECT_EQ(placedPixmap(picture, own, boxOf(own)).pixels, picture.pixels);
    // A part of it is the same as in the whole.
    const Pixmap part = placedPixmap(picture, own, {-2, -1, 5, 3});
    EXPECT_EQ(part.at(0, 0), picture.at(6, 7));
    EXPECT_EQ(part.at(4, 2), picture.at(10, 9));
}

TEST(Pixmap, AveragesWhatShrinks) {
    // Single columns of black and white make an even grey.
    Pixmap stripes{256, 256, {}};
    for (int i = 0; i < 256 * 256; ++i) {
        stripes.pixels.push_back(i % 2 == 0 ? 0xFF000000 : 0xFFFFFFFF);
    }
    const PixmapPlacement small{.width = 40, .height = 40, .isTile = true};
    for (const std::uint32_t pixel : placedPixmap(stripes, small, boxOf(small)).pixels) {
        ASSERT_LE(difference(pixel, 0xFF808080), 3) << std::hex << pixel;
    }
}

TEST(Pixmap, OnlyATileGoesOnPastItsEdge) {
    const Pixmap picture{2, 2, {Red, Red, Red, Red}};
    const PixelBox wide{-10, -10, 20, 20};
    EXPECT_EQ(placedPixmap(picture, {.width = 4, .height = 4}, wide).at(0, 0), 0U);
    EXPECT_EQ(placedPixmap(picture, {.width = 4, .height = 4, .isTile = true}, wide).at(0, 0), Red);
    EXPECT_TRUE(placedPixmap(Pixmap{}, {.width = 4, .height = 4}, {}).pixels.empty());
}

} // namespace
} // namespace varrocade::tests
