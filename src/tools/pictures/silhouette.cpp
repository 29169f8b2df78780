#include "tools/pictures/silhouette.h"

#include <algorithm>
#include <cstdlib>

namespace varrocade {

namespace {

/// What lies inside to this share is in its place. Where that can be had nowhere, as with debris around, no
/// place is the right one.
constexpr double WellInside = 0.97;
/// The right place has so much more of the part inside: outlines are uneven.
constexpr double Better = 0.04;

std::int32_t cellsOf(std::int32_t pixels, std::int32_t cell) {
    return (pixels + cell - 1) / cell;
}

struct Cell {
    std::int32_t x;
    std::int32_t y;
};

std::vector<Cell> solidCells(const Silhouette& silhouette) {
    std::vector<Cell> cells;
    for (std::int32_t y = 0; y < silhouette.rows; ++y) {
        for (std::int32_t x = 0; x < silhouette.columns; ++x) {
            if (silhouette.isSolidAt(x, y)) {
                cells.push_back({x, y});
            }
        }
    }
    return cells;
}

/// The share of the cells that a silhouette covers when they are moved.
double shareInside(const Silhouette& whole, const std::vector<Cell>& cells, std::int32_t x, std::int32_t y) {
    const auto inside = std::count_if(cells.begin(), cells.end(), [&](const Cell& cell) {
        return whole.isSolidAt(cell.x + x, cell.y + y);
    });
    return static_cast<double>(inside) / static_cast<double>(cells.size());
}

} // namespace

Silhouette silhouetteOf(const Picture& picture) {
    Silhouette made{.size = picture.size};
    const std::int32_t longest = std::max(picture.size.width, picture.size.height);
    made.cell = std::max(1, cellsOf(longest, Silhouette::MostCells));
    made.columns = cellsOf(picture.size.width, made.cell);
    made.rows = cellsOf(picture.size.height, made.cell);
    const auto width = static_cast<std::size_t>(picture.size.width);
    const auto cell = static_cast<std::size_t>(made.cell);
    const auto columns = static_cast<std::size_t>(made.columns);
    // The highest byte of alpha is what counts, of deep pictures too.
    const std::size_t pixel = picture.bytesPerPixel();
    const std::size_t alpha = pixel / 4 * 3;
    std::vector<std::uint32_t> alphas(columns * static_cast<std::size_t>(made.rows));
    std::vector<std::uint32_t> counts(alphas.size());
    for (std::size_t i = 0; i < picture.pixelCount(); ++i) {
        const std::size_t at = i / width / cell * columns + i % width / cell;
        alphas[at] += picture.samples[i * pixel + alpha];
        ++counts[at];
    }
    constexpr std::uint32_t half = 128;
    made.isSolid.resize(alphas.size());
    for (std::size_t i = 0; i < alphas.size(); ++i) {
        made.isSolid[i] = alphas[i] >= half * counts[i] ? 1 : 0;
    }
    return made;
}

PictureShift shiftInto(const Silhouette& whole, const Silhouette& part) {
    const std::vector<Cell> cells = solidCells(part);
    if (cells.empty() || whole.size != part.size) {
        return {};
    }
    const double asItIs = shareInside(whole, cells, 0, 0);
    if (asItIs >= WellInside) {
        return {};
    }
    double best = std::max(WellInside, asItIs + Better);
    PictureShift found;
    constexpr std::int32_t reach = Silhouette::MostCells / 4;
    for (std::int32_t y = -reach; y <= reach; ++y) {
        for (std::int32_t x = -reach; x <= reach; ++x) {
            const double share = shareInside(whole, cells, x, y);
            const bool isNearer =
                std::abs(x) + std::abs(y) < (std::abs(found.x) + std::abs(found.y)) / whole.cell;
            if (share > best || (share == best && (found == PictureShift{} || isNearer))) {
                best = share;
                found = {x * whole.cell, y * whole.cell};
            }
        }
    }
    return found;
}

} // namespace varrocade
