#pragma once

#include <cstdint>

namespace artwork {

/// A repeatable pseudo-random value in 0..1 of a lattice point.
double latticeNoise(std::int32_t x, std::int32_t y, std::uint32_t seed);

/// Smoothly interpolated lattice noise in 0..1, one feature a unit.
double smoothNoise(double x, double y, std::uint32_t seed);

/// Several octaves of smooth noise in 0..1, each half as large and half as strong as the one before.
double cloudNoise(double x, double y, int octaves, std::uint32_t seed);

/// A repeatable sequence of pseudo-random numbers (xorshift).
class Dice {
public:
    explicit Dice(std::uint32_t seed) : state_(seed * 2654435761U + 97U) {}
    /// The next number in from..to.
    double next(double from = 0.0, double to = 1.0);

private:
    std::uint32_t state_;
};

} // namespace artwork
