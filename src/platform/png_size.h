#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace varrocade {

/// What a PNG file begins with.
inline constexpr std::string_view PngSignature = "\x89PNG\r\n\x1A\n";

/// A picture's size in pixels.
struct PictureSize {
    std::int32_t width = 0;
    std::int32_t height = 0;
    bool operator==(const PictureSize&) const = default;
};

/// Larger pictures are not decoded: a file of a few bytes can say that it is larger than the memory. Some
/// sixteen million pixels take 64 MB; the game's own pictures have less than one million.
inline constexpr std::uint64_t MostPicturePixels = std::uint64_t{1} << 24U;

/// The size that the header of a PNG file names; nothing when the bytes do not begin such a file.
std::optional<PictureSize> pngSizeOf(std::string_view bytes);

/// The size of the PNG file at `path`, of which only the beginning is read; nothing when it cannot be read or
/// is no PNG file.
std::optional<PictureSize> readPngSize(const std::string& path);

} // namespace varrocade
