#pragma once
// PNG files made smaller: the same pixels in fewer bytes, or fewer pixels.

#include "pictures/png_codec.h"
#include "platform/png_size.h"

#include <string>
#include <string_view>

namespace varrocade {

struct PngReduction {
    std::string content; ///< the smaller file; empty where there is none
    /// Why the file has to stay as it is, to go behind its name; empty where it was made smaller, or is as
    /// small as can be.
    std::string failure;
};

/// The same pixels in fewer bytes. Colours under full transparency stay as they are. What the file says
/// beside its pixels stays, byte for byte, and so does the form of the pixels where that counts in it; a file
/// with something that nobody knows how to keep is a failure, as a damaged one is. Where `watch` ends the
/// search, there is no smaller file.
PngReduction recompressedPng(std::string_view bytes, const SearchWatch& watch = {});

/// The picture in a smaller size, with gamma, profile and texts as they were; what counted the colours of the
/// larger picture goes. Where that takes more bytes than before, nothing.
PngReduction scaledPng(std::string_view bytes, PictureSize size, const SearchWatch& watch = {});

} // namespace varrocade
