#include "app/workspace/options_file.h"

#include <algorithm>

namespace varrocade {

namespace {

constexpr std::size_t VersionWidth = 2;
constexpr std::size_t LengthWidth = 4;
constexpr std::size_t HeaderLength = VersionWidth + LengthWidth;
constexpr unsigned BitsPerByte = 8;

void appendLittleEndian(std::string& out, std::uint32_t value, std::size_t width) {
    for (std::size_t i = 0; i < width; ++i) {
        out += static_cast<char>((value >> (BitsPerByte * i)) & 0xFFU);
    }
}

std::uint32_t littleEndian(std::string_view bytes) {
    std::uint32_t value = 0;
    for (std::size_t i = bytes.size(); i-- > 0;) {
        value = (value << BitsPerByte) | static_cast<unsigned char>(bytes[i]);
    }
    return value;
}

} // namespace

Options decodeOptions(std::string_view content) {
    if (content.size() < HeaderLength) {
        return {};
    }
    const std::uint32_t length = littleEndian(content.substr(VersionWidth, LengthWidth));
    if (length >= MaxPathLength) {
        return {.isFatal = true};
    }
    return {.gameFolder = std::string(content.substr(HeaderLength, length))};
}

std::string encodeOptions(std::string_view gameFolder) {
    std::string content;
    appendLittleEndian(content, OptionsVersion, VersionWidth);
    appendLittleEndian(content, static_cast<std::uint32_t>(gameFolder.size()), LengthWidth);
    content += gameFolder;
    return content;
}

} // namespace varrocade
