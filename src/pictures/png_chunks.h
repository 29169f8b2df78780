#pragma once
// What a PNG file consists of (PNG standard, 5 and 11), without its pixels.

#include "platform/png_size.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// A chunk, as it lies in the bytes of its file.
struct PngChunk {
    std::string_view name; ///< four letters
    std::string_view data;
    std::string_view whole; ///< with length, name and check sum
};

/// What else a file says of its pixels.
enum class PngHeaderColours : std::uint8_t { Grey = 0, Rgb = 2, Palette = 3, GreyAlpha = 4, Rgba = 6 };

struct PngHeader {
    PictureSize size;
    unsigned bits = 8; ///< of a sample, or of an index into the palette
    PngHeaderColours colours = PngHeaderColours::Rgba;
    bool isInterlaced = false;

    [[nodiscard]] unsigned bitsPerPixel() const;
    [[nodiscard]] bool isGrey() const {
        return colours == PngHeaderColours::Grey || colours == PngHeaderColours::GreyAlpha;
    }
};

struct PngChunks {
    PngHeader header;
    std::vector<PngChunk> chunks;
    std::string failure; ///< why the bytes are no PNG file that can be read; empty where they are one
};

/// Splits a file into its chunks, whose check sums must be right. A picture of more than `MostPicturePixels`,
/// an animation, and what has bytes behind its end are failures.
PngChunks splitPng(std::string_view bytes);

/// How many bytes the packed rows of a picture take, each with the byte that names its filter.
std::size_t packedSizeOf(const PngHeader& header);

namespace png_chunk {

inline constexpr std::string_view Header = "IHDR";
inline constexpr std::string_view Palette = "PLTE";
inline constexpr std::string_view Transparency = "tRNS";
inline constexpr std::string_view Pixels = "IDAT";
inline constexpr std::string_view End = "IEND";
inline constexpr std::string_view Profile = "iCCP";

} // namespace png_chunk

/// What may become of a chunk beside the pixels when these are written anew.
enum class PngChunkUse : std::uint8_t {
    Pixels,    ///< part of the pixels themselves
    Free,      ///< says the same of any form of the pixels: gamma, profile, density, texts, time
    OfColours, ///< counts in the colour type or palette of its file: background, significant bits, histogram
    Unknown    ///< nobody may copy it to a file whose pixels were written anew
};
PngChunkUse useOf(std::string_view chunk);

} // namespace varrocade
