#pragma once
// PNG files read into pictures and written from them.

#include "pictures/picture.h"
#include "pictures/png_chunks.h"

#include <functional>
#include <string>
#include <string_view>

namespace varrocade {

struct PngReading {
    Picture picture;
    std::string failure; ///< why there is no picture, to go behind the file's name; empty where there is one
};

/// The pixels of a file, deep ones where it has 16 bits a sample.
PngReading readPng(std::string_view bytes);

/// Whether two files show the same, pixel by pixel, and mean the same colours by them: what they say of gamma
/// and profile counts too, unless it is the usual. False where one of them cannot be read.
bool samePngPixels(std::string_view a, std::string_view b);

/// A file of a picture, made quickly; empty when there is no memory for it.
std::string writePng(const Picture& picture);

/// Whether the colour types with grey, or those with colours, may be written.
enum class PngColourKinds : std::uint8_t { Any, GreyOnly, ColourOnly };

/// Is told how far the search for the smallest file has come, from 0 to 1, between the files that are tried;
/// false ends it with nothing.
using SearchWatch = std::function<bool(double)>;

/// The smallest file of a picture that can be found: colour types, palettes, filters of rows and levels of
/// compression are tried. It has no chunks beside those of the pixels. Empty when there is no memory for it.
std::string writeSmallestPng(const Picture& picture, PngColourKinds kinds = PngColourKinds::Any,
                             const SearchWatch& watch = {});

/// The smallest file that keeps the colour type, the bits and the palette of another; not interlaced.
std::string writeInSameColours(std::string_view bytes, const PngHeader& header,
                               const SearchWatch& watch = {});

} // namespace varrocade
