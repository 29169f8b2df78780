#include "distance.h"

#include <cmath>
#include <cstddef>
#include <limits>

namespace artwork {

namespace {

constexpr float Far = 1e12F;

/// Lower envelope of the parabolas rooted at each cell of one line.
class LineTransform {
public:
    explicit LineTransform(std::size_t longest) : roots_(longest), bounds_(longest + 1), values_(longest) {}

    void run(float* line, std::size_t count, std::size_t stride) {
        for (std::size_t i = 0; i < count; ++i) {
            values_[i] = line[i * stride];
        }
        std::size_t k = 0;
        roots_[0] = 0;
        bounds_[0] = -std::numeric_limits<float>::infinity();
        bounds_[1] = std::numeric_limits<float>::infinity();
        for (std::size_t q = 1; q < count; ++q) {
            float s = crossing(q, roots_[k]);
            while (s <= bounds_[k]) {
                --k;
                s = crossing(q, roots_[k]);
            }
            ++k;
            roots_[k] = q;
            bounds_[k] = s;
            bounds_[k + 1] = std::numeric_limits<float>::infinity();
        }
        k = 0;
        for (std::size_t q = 0; q < count; ++q) {
            while (bounds_[k + 1] < static_cast<float>(q)) {
                ++k;
            }
            const float d = static_cast<float>(q) - static_cast<float>(roots_[k]);
            line[q * stride] = d * d + values_[roots_[k]];
        }
    }

private:
    [[nodiscard]] float crossing(std::size_t q, std::size_t r) const {
        const auto fq = static_cast<float>(q);
        const auto fr = static_cast<float>(r);
        return ((values_[q] + fq * fq) - (values_[r] + fr * fr)) / (2.0F * (fq - fr));
    }

    std::vector<std::size_t> roots_;
    std::vector<float> bounds_;
    std::vector<float> values_;
};

} // namespace

std::vector<float> distanceInside(const std::vector<unsigned char>& inside, int width, int height) {
    // one cell of outside all round
    const auto w = static_cast<std::size_t>(width) + 2;
    const auto h = static_cast<std::size_t>(height) + 2;
    std::vector<float> grid(w * h, 0.0F);
    for (std::size_t y = 0; y + 2 < h; ++y) {
        for (std::size_t x = 0; x + 2 < w; ++x) {
            if (inside[y * (w - 2) + x] != 0) {
                grid[(y + 1) * w + x + 1] = Far;
            }
        }
    }
    LineTransform transform(w > h ? w : h);
    for (std::size_t x = 0; x < w; ++x) {
        transform.run(&grid[x], h, w);
    }
    for (std::size_t y = 0; y < h; ++y) {
        transform.run(&grid[y * w], w, 1);
    }
    std::vector<float> result((w - 2) * (h - 2));
    for (std::size_t y = 0; y + 2 < h; ++y) {
        for (std::size_t x = 0; x + 2 < w; ++x) {
            result[y * (w - 2) + x] = std::sqrt(grid[(y + 1) * w + x + 1]);
        }
    }
    return result;
}

} // namespace artwork
