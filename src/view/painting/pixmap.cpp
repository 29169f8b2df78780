#include "view/painting/pixmap.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace varrocade {

namespace {

// Four channels are computed with at once: each has 16 bits of a 64-bit number.
constexpr std::uint64_t Channels = 0x00FF00FF00FF00FF;

constexpr std::uint64_t spread(std::uint32_t pixel) {
    return (std::uint64_t{pixel & 0xFF00FF00U} << 24U) | (pixel & 0x00FF00FFU);
}

constexpr std::uint32_t packed(std::uint64_t channels) {
    return static_cast<std::uint32_t>(channels | (channels >> 24U));
}

std::uint32_t average(std::uint32_t a, std::uint32_t b, std::uint32_t c, std::uint32_t d) {
    constexpr std::uint64_t halves = 0x0002000200020002;
    return packed(((spread(a) + spread(b) + spread(c) + spread(d) + halves) >> 2U) & Channels);
}

const std::uint32_t* rowOf(const Pixmap& source, int y) {
    return source.pixels.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(source.width);
}

/// Of a picture that is at least two pixels wide and high.
Pixmap halved(const Pixmap& source) {
    Pixmap half{source.width / 2, source.height / 2, {}};
    half.pixels.resize(static_cast<std::size_t>(half.width) * static_cast<std::size_t>(half.height));
    std::uint32_t* out = half.pixels.data();
    for (int y = 0; y < half.height; ++y) {
        const std::uint32_t* upper = rowOf(source, 2 * y);
        const std::uint32_t* lower = rowOf(source, 2 * y + 1);
        for (int x = 0; x < half.width; ++x, upper += 2, lower += 2) {
            *out++ = average(upper[0], upper[1], lower[0], lower[1]);
        }
    }
    return half;
}

/// From `a` to `b` by `share` of 256.
std::uint64_t mixed(std::uint64_t a, std::uint64_t b, std::uint64_t share) {
    return ((a * (256 - share) + b * share) >> 8U) & Channels;
}

/// A place between the pixels of a picture, in 65536ths of a pixel.
struct Place {
    std::int64_t x = 0;
    std::int64_t y = 0;

    [[nodiscard]] int column() const { return static_cast<int>(x >> 16); }
    [[nodiscard]] int row() const { return static_cast<int>(y >> 16); }
};

/// Four pixels that a place lies between, the two upper ones first.
std::uint32_t between(std::uint32_t a, std::uint32_t b, std::uint32_t c, std::uint32_t d, Place place) {
    const auto shareX = static_cast<std::uint64_t>((place.x >> 8) & 0xFF);
    const auto shareY = static_cast<std::uint64_t>((place.y >> 8) & 0xFF);
    return packed(mixed(mixed(spread(a), spread(b), shareX), mixed(spread(c), spread(d), shareX), shareY));
}

/// Reads a picture between its pixels. Outside it is transparent, or goes on with its edge.
class Sampler {
public:
    Sampler(const Pixmap& source, bool keepsEdge) : source_(source), keepsEdge_(keepsEdge) {}

    [[nodiscard]] std::uint32_t anywhere(Place place) const {
        const int column = place.column();
        const int row = place.row();
        return between(pixel(column, row), pixel(column + 1, row), pixel(column, row + 1),
                       pixel(column + 1, row + 1), place);
    }

    /// A place that has all its four pixels.
    [[nodiscard]] std::uint32_t inside(Place place) const {
        const std::uint32_t* upper = rowOf(source_, place.row()) + place.column();
        const std::uint32_t* lower = upper + source_.width;
        // Much of most pictures is empty.
        if ((upper[0] | upper[1] | lower[0] | lower[1]) == 0) {
            return 0;
        }
        return between(upper[0], upper[1], lower[0], lower[1], place);
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

/// The steps from `first` until before `last`.
struct Steps {
    std::int64_t first = 0;
    std::int64_t last = 0;
};

/// Which of `count` steps from `start` on lie within a side of `size` pixels with a pixel more behind them.
Steps stepsInside(std::int64_t start, std::int64_t step, int size, std::int64_t count) {
    const std::int64_t end = std::int64_t{size - 1} << 16;
    if (step == 0) {
        return start >= 0 && start < end ? Steps{0, count} : Steps{};
    }
    if (step < 0) {
        // The same seen from the other end.
        return stepsInside(end - 1 - start, -step, size, count);
    }
    const auto stepsUpTo = [&](std::int64_t place) {
        return place <= start ? 0 : std::min(count, (place - start + step - 1) / step);
    };
    return {stepsUpTo(0), stepsUpTo(end)};
}

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
    // The figures of files may stretch a picture further than any screen, and than the numbers of pixels.
    constexpr double furthest = 1 << 24;
    const double halfWidth = std::min(width / 2 - slack, furthest);
    const double halfHeight = std::min(height / 2 - slack, furthest);
    PixelBox box;
    box.left = static_cast<int>(std::floor(placement.shiftX - halfWidth));
    box.top = static_cast<int>(std::floor(placement.shiftY - halfHeight));
    box.width = static_cast<int>(std::ceil(placement.shiftX + halfWidth)) - box.left;
    box.height = static_cast<int>(std::ceil(placement.shiftY + halfHeight)) - box.top;
    return box;
}

Pixmap placedPixmap(const Pixmap& source, const PixmapPlacement& placement, const PixelBox& box) {
    Pixmap result{std::max(0, box.width), std::max(0, box.height), {}};
    result.pixels.resize(static_cast<std::size_t>(result.width) * static_cast<std::size_t>(result.height));
    placePixmap(source, placement, box, result.pixels);
    return result;
}

void placePixmap(const Pixmap& source, const PixmapPlacement& placement, const PixelBox& box,
                 std::span<std::uint32_t> pixels) {
    if (source.width <= 0 || source.height <= 0 || placement.width <= 0 || placement.height <= 0) {
        return;
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
    const Place step{fixedPoint(stepXx), fixedPoint(stepXy)};
    std::uint32_t* out = pixels.data();
    for (int row = 0; row < box.height; ++row) {
        const double x = box.left + 0.5 - placement.shiftX;
        const double y = box.top + row + 0.5 - placement.shiftY;
        Place place{fixedPoint(used->width / 2.0 + x * stepXx + y * stepYx - 0.5),
                    fixedPoint(used->height / 2.0 + x * stepXy + y * stepYy - 0.5)};
        const Steps columns = stepsInside(place.x, step.x, used->width, box.width);
        const Steps rows = stepsInside(place.y, step.y, used->height, box.width);
        const auto first = std::max(columns.first, rows.first);
        const auto last = std::max(first, std::min(columns.last, rows.last));
        const auto readUntil = [&](std::int64_t column, std::int64_t end, auto read) {
            for (; column < end; ++column) {
                *out++ = read(place);
                place.x += step.x;
                place.y += step.y;
            }
        };
        readUntil(0, first, [&](Place at) { return sample.anywhere(at); });
        readUntil(first, last, [&](Place at) { return sample.inside(at); });
        readUntil(last, box.width, [&](Place at) { return sample.anywhere(at); });
    }
}

} // namespace varrocade
