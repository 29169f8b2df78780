#pragma once
// PNG files put together by hand, so that what reads them is tested by something else than what writes them.

#include <cstdint>
#include <string>
#include <string_view>

#include <libdeflate.h>

namespace varrocade::tests {

inline std::string bigEndian(std::uint32_t value) {
    std::string bytes;
    for (unsigned shift = 32; shift > 0; shift -= 8) {
        bytes += static_cast<char>((value >> (shift - 8)) & 0xFFU);
    }
    return bytes;
}

inline std::string pngChunk(std::string_view name, std::string_view data) {
    const std::string body = std::string(name) + std::string(data);
    return bigEndian(static_cast<std::uint32_t>(data.size())) + body +
           bigEndian(libdeflate_crc32(0, body.data(), body.size()));
}

/// What a made file has besides its size and rows.
struct MadePng {
    std::uint32_t width = 1;
    std::uint32_t height = 1;
    int bits = 8;
    int colours = 6; ///< as the header numbers them
    bool isInterlaced = false;
    std::string rows = {};         ///< with a byte for the filter before each
    std::string chunks = {};       ///< before the pixels
    std::string behindPixels = {}; ///< chunks
};

/// Its pixels are not compressed at all.
inline std::string madePng(const MadePng& png) {
    std::string header = bigEndian(png.width) + bigEndian(png.height);
    for (const int value : {png.bits, png.colours, 0, 0, png.isInterlaced ? 1 : 0}) {
        header += static_cast<char>(value);
    }
    std::string packed = "\x78\x01";
    for (std::string_view rest = png.rows; packed.size() == 2 || !rest.empty();) {
        const std::string_view block = rest.substr(0, 0xFFFF);
        rest.remove_prefix(block.size());
        packed += rest.empty() ? '\x01' : '\0';
        for (const std::size_t length : {block.size(), ~block.size()}) {
            packed += static_cast<char>(length & 0xFFU);
            packed += static_cast<char>((length >> 8U) & 0xFFU);
        }
        packed += block;
    }
    packed += bigEndian(libdeflate_adler32(1, png.rows.data(), png.rows.size()));
    return "\x89PNG\r\n\x1A\n" + pngChunk("IHDR", header) + png.chunks + pngChunk("IDAT", packed) +
           png.behindPixels + pngChunk("IEND", "");
}

/// A picture of one colour, "\xRR\xGG\xBB\xAA".
inline std::string plainPng(std::uint32_t width, std::uint32_t height, std::string_view colour) {
    std::string rows;
    for (std::uint32_t y = 0; y < height; ++y) {
        rows += '\0';
        for (std::uint32_t x = 0; x < width; ++x) {
            rows += colour;
        }
    }
    return madePng({.width = width, .height = height, .rows = rows});
}

} // namespace varrocade::tests
