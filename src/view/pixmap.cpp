#include "view/pixmap.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace varrocade {

namespace {

constexpr std::uint32_t EvenChannels = 0x00FF00FF;

/// Four pixels averaged, all channels at once: two of them lie in each half of the sums.
std::uint32_t average(std::uint32_t a, std::uint32_t b, std::uint32_t c, std::uint32_t d) {
    const auto mean = [&](unsigned shift) {
        const std::uint32_t sum = ((a >> shift) & EvenChannels) + ((b >> shift) & EvenChannels) +
                                  ((c >> shift) & EvenChannels) + ((d >> shift) & EvenChannels);
        return ((sum + 0x00020002U) >> 2U) & EvenChannels;
    };
    return mean(0) | (mean(8) << 8U);
}

Pixmap halved(const Pixmap& source) {
    Pixmap half{std::max(1, source.width / 2), std::max(1, source.height / 2), {}};
    half.pixels.reserve(static_cast<std::size_t>(half.width) * static_cast<std::size_t>(half.height));
    for (int y = 0; y < half.height; ++y) {
        const int lower = std::min(2 * y + 1, source.height - 1);
        for (int x = 0; x < half.width; ++x) {
            const int right = std::min(2 * x + 1, source.width - 1);
            half.pixels.push_back(average(source.at(2 * x, 2 * y), source.at(right, 2 * y),
                                          source.at(2 * x, lower), source.at(right, lower)));
        }
    }
    return half;
}

/// From `a` to `b` by `share` of 256.
std::uint32_t mixed(std::uint32_t a, std::uint32_t b, std::uint32_t share) {
    const auto mix = [&](unsigned shift) {
        const std::uint32_t sum =
            ((a >> shift) & EvenChannels) * (256 - share) + ((b >> shift) & EvenChannels) * share;
        return (sum >> 8U) & EvenChannels;
    };
    return mix(0) | (mix(8) << 8U);
}

/// Reads a picture between its pixels. Outside it is transparent, or goes on with its edge.
class Sampler {
public:
    Sampler(const Pixmap& source, bool keepsEdge) : source_(source), keepsEdge_(keepsEdge) {}

    /// Coordinates in 65536ths of a pixel.
    [[nodiscard]] std::uint32_t operator()(std::int64_t x, std::int64_t y) const {
        const auto column = static_cast<int>(x >> 16);
        const auto row = static_cast<int>(y >> 16);
        const auto shareX = static_cast<std::uint32_t>((x >> 8) & 0xFF);
        const auto shareY = static_cast<std::uint32_t>((y >> 8) & 0xFF);
        if (column >= 0 && row >= 0 && column + 1 < source_.width && row + 1 < source_.height) {
            const std::uint32_t* upper =
                &source_.pixels[static_cast<std::size_t>(row) * static_cast<std::size_t>(source_.width) +
                                static_cast<std::size_t>(column)];
            const std::uint32_t* lower = upper + source_.width;
            return mixed(mixed(upper[0], upper[1], shareX), mixed(lower[0], lower[1], shareX), shareY);
        }
        return mixed(mixed(pixel(column, row), pixel(column + 1, row), shareX),
                     mixed(pixel(column, row + 1), pixel(column + 1, row + 1), shareX), shareY);
    }

private:
    [[nodiscard]] std::uint32_t pixel(int x, int y) const {
        if (keepsEdge_) {
            return source_.at(std::clamp(x, 0, source_.width - 1), std::clamp(y, 0, source_.height - 1));
        }
        const bool isInside = x >= 0 && y >= 0 && x < source_.width && y < source_.height;
        return isInside ? source_.at(x, y) : 0;
    }

    const Pixmap& source_;
    bool keepsEdge_;
};

std::int64_t fixedPoint(double value) {
    return static_cast<std::int64_t>(std::floor(value * 65536 + 0.5));
}

} // namespace

PixelBox boxOf(const PixmapPlacement& placement) {
    const double angle = placement.angle * std::numbers::pi / 180;
    const double sine = std::abs(std::sin(angle));
    const double cosine = std::abs(std::cos(angle));
    const double width = placement.width * cosine + placement.height * sine;
    const double height = placement.width * sine + placement.height * cosine;
    // A little less than the half, so that a picture of whole pixels gets no empty row from rounding.
    constexpr double slack = 1e-6;
    PixelBox box;
    box.left = static_cast<int>(std::floor(-width / 2 + slack));
    box.top = static_cast<int>(std::floor(-height / 2 + slack));
    box.width = static_cast<int>(std::ceil(width / 2 - slack)) - box.left;
    box.height = static_cast<int>(std::ceil(height / 2 - slack)) - box.top;
    return box;
}

Pixmap placedPixmap(const Pixmap& source, const PixmapPlacement& placement, const PixelBox& box) {
    Pixmap result{std::max(0, box.width), std::max(0, box.height), {}};
    result.pixels.resize(static_cast<std::size_t>(result.width) * static_cast<std::size_t>(result.height));
    if (source.width <= 0 || source.height <= 0 || placement.width <= 0 || placement.height <= 0) {
        return result;
    }
    // Reading between pixels averages two by two; what shrinks further is halved first.
    Pixmap smaller;
    const Pixmap* used = &source;
    while (used->width >= 2 * placement.width && used->height >= 2 * placement.height && used->width > 1 &&
           used->height > 1) {
        smaller = halved(*used);
        used = &smaller;
    }
    const double angle = placement.angle * std::numbers::pi / 180;
    const double scaleX = used->width / placement.width;
    const double scaleY = used->height / placement.height;
    const double stepXx = std::cos(angle) * scaleX;
    const double stepXy = -std::sin(angle) * scaleY;
    const double stepYx = std::sin(angle) * scaleX;
    const double stepYy = std::cos(angle) * scaleY;
    const Sampler sample(*used, placement.isTile);
    const std::int64_t fixedStepX = fixedPoint(stepXx);
    const std::int64_t fixedStepY = fixedPoint(stepXy);
    std::size_t next = 0;
    for (int row = 0; row < result.height; ++row) {
        const double x = box.left + 0.5;
        const double y = box.top + row + 0.5;
        std::int64_t sourceX = fixedPoint(used->width / 2.0 + x * stepXx + y * stepYx - 0.5);
        std::int64_t sourceY = fixedPoint(used->height / 2.0 + x * stepXy + y * stepYy - 0.5);
        for (int column = 0; column < result.width; ++column) {
            result.pixels[next++] = sample(sourceX, sourceY);
            sourceX += fixedStepX;
            sourceY += fixedStepY;
        }
    }
    return result;
}

} // namespace varrocade
