#include "platform/png_size.h"

#include "platform/file_operations.h"

namespace varrocade {

namespace {

// Eight bytes of signature, the length and name of the first chunk, then width and height, high byte first
// (PNG standard, 5.2 and 11.2.2).
constexpr std::size_t HeaderNamePlace = 12;
constexpr std::size_t WidthPlace = 16;
constexpr std::size_t HeightPlace = 20;
constexpr std::size_t HeaderEnd = 24;
constexpr std::uint32_t LargestSide = 1U << 20U;

std::uint32_t bigEndian(std::string_view bytes) {
    std::uint32_t value = 0;
    for (const char byte : bytes) {
        value = (value << 8U) | static_cast<unsigned char>(byte);
    }
    return value;
}

} // namespace

std::optional<PictureSize> pngSizeOf(std::string_view bytes) {
    if (bytes.size() < HeaderEnd || !bytes.starts_with(PngSignature) ||
        bytes.substr(HeaderNamePlace, 4) != "IHDR") {
        return std::nullopt;
    }
    const std::uint32_t width = bigEndian(bytes.substr(WidthPlace, 4));
    const std::uint32_t height = bigEndian(bytes.substr(HeightPlace, 4));
    if (width == 0 || height == 0 || width > LargestSide || height > LargestSide) {
        return std::nullopt;
    }
    return PictureSize{static_cast<std::int32_t>(width), static_cast<std::int32_t>(height)};
}

std::optional<PictureSize> readPngSize(const std::string& path) {
    std::string bytes;
    if (!readFileBeginning(path, HeaderEnd, bytes)) {
        return std::nullopt;
    }
    return pngSizeOf(bytes);
}

} // namespace varrocade
