#include "noise.h"

#include "geometry.h"

namespace artwork {

double latticeNoise(std::int32_t x, std::int32_t y, std::uint32_t seed) {
    std::uint32_t h = static_cast<std::uint32_t>(x) * 374761393U +
                      static_cast<std::uint32_t>(y) * 668265263U + seed * 2246822519U;
    h = (h ^ (h >> 13)) * 1274126177U;
    h ^= h >> 16;
    h *= 2654435769U;
    h ^= h >> 15;
    return static_cast<double>(h & 0xFFFFFFU) / 16777215.0;
}

double smoothNoise(double x, double y, std::uint32_t seed) {
    const double fx = std::floor(x);
    const double fy = std::floor(y);
    const auto ix = static_cast<std::int32_t>(fx);
    const auto iy = static_cast<std::int32_t>(fy);
    const double tx = smoothstep(0.0, 1.0, x - fx);
    const double ty = smoothstep(0.0, 1.0, y - fy);
    const double low = lerp(latticeNoise(ix, iy, seed), latticeNoise(ix + 1, iy, seed), tx);
    const double high = lerp(latticeNoise(ix, iy + 1, seed), latticeNoise(ix + 1, iy + 1, seed), tx);
    return lerp(low, high, ty);
}

double cloudNoise(double x, double y, int octaves, std::uint32_t seed) {
    double sum = 0.0;
    double weight = 0.0;
    double strength = 1.0;
    for (int octave = 0; octave < octaves; ++octave) {
        sum += strength * smoothNoise(x, y, seed + static_cast<std::uint32_t>(octave) * 101U);
        weight += strength;
        strength *= 0.5;
        // turned a little each octave, so that the lattice does not show
        const double turned = x * 1.6 + y * 1.2;
        y = y * 1.6 - x * 1.2;
        x = turned;
    }
    return sum / weight;
}

double Dice::next(double from, double to) {
    state_ ^= state_ << 13;
    state_ ^= state_ >> 17;
    state_ ^= state_ << 5;
    return from + (to - from) * static_cast<double>(state_ & 0xFFFFFFU) / 16777215.0;
}

} // namespace artwork
