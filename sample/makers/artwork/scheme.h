#pragma once

#include "geometry.h"

#include <cstdint>
#include <vector>

namespace artwork {

/// One colour sprayed or brushed over the base coat, its patches drawn from cloud noise.
struct Patches {
    Rgb colour{};
    double size = 80.0;     ///< of a patch, cm
    double level = 0.55;    ///< noise above this is covered: 0.5 covers half, 0.6 a sixth
    double soft = 0.02;     ///< width of the sprayed edge in noise units
    Vec2 stretch{1.0, 1.0}; ///< patches are longer where below 1
    double turn = 0.0;      ///< degrees
    std::uint32_t seed = 1;
    double band = 0.0;    ///< above 0: only a band of noise this wide above the level, for stripes
    double outline = 0.0; ///< width of a dividing line in noise units
    Rgb outlineColour{};
};

/// The paint of a vehicle and how it has weathered.
struct Scheme {
    Rgb base{};
    std::vector<Patches> patches{};
    Rgb dust = hex(0xA39473);
    double dustAmount = 0.25;
    double wear = 0.3;        ///< bare, brighter edges
    double wash = 0.6;        ///< dark dirt in corners
    double fade = 0.10;       ///< cloudy changes of brightness
    Rgb chip = hex(0x6E6A63); ///< what shows where the paint is worn through
    std::uint32_t seed = 1;
};

Rgb schemeColour(const Scheme& scheme, Vec2 at);

} // namespace artwork
