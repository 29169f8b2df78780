#pragma once

#include "geometry.h"

#include <cstdint>
#include <string>
#include <vector>

namespace artwork {

/// A finished picture: premultiplied 32-bit ARGB as cairo keeps it.
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;
};

/// Premultiplies and packs; channels in 0..1.
std::uint32_t packPixel(Rgb colour, double alpha);

/// Writes the picture as PNG. False when the file cannot be written.
bool writePng(const Picture& picture, const std::string& path);

} // namespace artwork
