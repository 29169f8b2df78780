#include "pictures/png_chunks.h"

#include <algorithm>
#include <array>

#include <libdeflate.h>

namespace varrocade {

namespace {

constexpr std::size_t ChunkOverhead = 12; ///< length, name and check sum
constexpr std::size_t NameLength = 4;
constexpr std::size_t HeaderLength = 13;
constexpr std::uint32_t LongestChunk = 0x7FFFFFFF;

std::uint32_t bigEndianAt(std::string_view bytes, std::size_t place) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < sizeof(value); ++i) {
        value = (value << 8U) | static_cast<unsigned char>(bytes[place + i]);
    }
    return value;
}

unsigned byteAt(std::string_view bytes, std::size_t place) {
    return static_cast<unsigned char>(bytes[place]);
}

/// The chunk that the bytes begin with; of no length where there is none.
PngChunk chunkAt(std::string_view bytes) {
    if (bytes.size() < ChunkOverhead) {
        return {};
    }
    const std::uint32_t length = bigEndianAt(bytes, 0);
    if (length > LongestChunk || length > bytes.size() - ChunkOverhead) {
        return {};
    }
    const PngChunk chunk{bytes.substr(4, NameLength), bytes.substr(8, length),
                         bytes.substr(0, ChunkOverhead + length)};
    const std::uint32_t sum = libdeflate_crc32(0, chunk.name.data(), NameLength + length);
    return sum == bigEndianAt(bytes, 8 + length) ? chunk : PngChunk{};
}

/// The header of the first chunk; nothing where it names what the format does not have.
bool readHeader(std::string_view data, PngHeader& header) {
    constexpr auto allowedBits =
        std::to_array<std::pair<PngHeaderColours, unsigned>>({{PngHeaderColours::Grey, 1 | 2 | 4 | 8 | 16},
                                                              {PngHeaderColours::Rgb, 8 | 16},
                                                              {PngHeaderColours::Palette, 1 | 2 | 4 | 8},
                                                              {PngHeaderColours::GreyAlpha, 8 | 16},
                                                              {PngHeaderColours::Rgba, 8 | 16}});
    header.bits = byteAt(data, 8);
    header.colours = static_cast<PngHeaderColours>(byteAt(data, 9));
    header.isInterlaced = byteAt(data, 12) == 1;
    const bool isOneBit = header.bits != 0 && (header.bits & (header.bits - 1)) == 0;
    return isOneBit && byteAt(data, 10) == 0 && byteAt(data, 11) == 0 && byteAt(data, 12) <= 1 &&
           std::any_of(allowedBits.begin(), allowedBits.end(), [&](const auto& row) {
               return row.first == header.colours && (row.second & header.bits) != 0;
           });
}

PngChunks failed(std::string_view reason) {
    PngChunks chunks;
    chunks.failure = reason;
    return chunks;
}

} // namespace

unsigned PngHeader::bitsPerPixel() const {
    switch (colours) {
    case PngHeaderColours::Grey:
    case PngHeaderColours::Palette:
        return bits;
    case PngHeaderColours::GreyAlpha:
        return 2 * bits;
    case PngHeaderColours::Rgb:
        return 3 * bits;
    case PngHeaderColours::Rgba:
        return 4 * bits;
    }
    return 0;
}

PngChunks splitPng(std::string_view bytes) {
    if (!bytes.starts_with(PngSignature)) {
        return failed("is no PNG file");
    }
    const auto size = pngSizeOf(bytes);
    if (!size) {
        return failed("has no readable header");
    }
    if (static_cast<std::uint64_t>(size->width) * static_cast<std::uint64_t>(size->height) >
        MostPicturePixels) {
        return failed("is too large to be read");
    }
    PngChunks file;
    file.header.size = *size;
    std::string_view rest = bytes.substr(PngSignature.size());
    while (file.chunks.empty() || file.chunks.back().name != png_chunk::End) {
        const PngChunk chunk = chunkAt(rest);
        if (chunk.whole.empty()) {
            return failed(rest.empty() ? "is cut off" : "is damaged or cut off");
        }
        if (file.chunks.empty() &&
            (chunk.data.size() != HeaderLength || !readHeader(chunk.data, file.header))) {
            return failed("has a header that no PNG file can have");
        }
        if (chunk.name == "acTL") {
            return failed("is an animation");
        }
        file.chunks.push_back(chunk);
        rest.remove_prefix(chunk.whole.size());
    }
    if (!rest.empty()) {
        return failed("has something behind its end");
    }
    return file;
}

std::size_t packedSizeOf(const PngHeader& header) {
    const auto rows = [&](std::size_t width, std::size_t height) {
        return width == 0 ? 0 : height * (1 + (width * header.bitsPerPixel() + 7) / 8);
    };
    const auto width = static_cast<std::size_t>(header.size.width);
    const auto height = static_cast<std::size_t>(header.size.height);
    if (!header.isInterlaced) {
        return rows(width, height);
    }
    struct Pass {
        std::size_t left, top, stepX, stepY;
    };
    // PNG standard, 8.2.
    constexpr auto passes = std::to_array<Pass>(
        {{0, 0, 8, 8}, {4, 0, 8, 8}, {0, 4, 4, 8}, {2, 0, 4, 4}, {0, 2, 2, 4}, {1, 0, 2, 2}, {0, 1, 1, 2}});
    std::size_t size = 0;
    for (const Pass& pass : passes) {
        const auto steps = [](std::size_t side, std::size_t first, std::size_t step) {
            return side > first ? (side - first + step - 1) / step : 0;
        };
        size += rows(steps(width, pass.left, pass.stepX), steps(height, pass.top, pass.stepY));
    }
    return size;
}

PngChunkUse useOf(std::string_view chunk) {
    struct Row {
        std::string_view name;
        PngChunkUse use;
    };
    constexpr auto rows = std::to_array<Row>({
        {png_chunk::Header, PngChunkUse::Pixels},
        {png_chunk::Palette, PngChunkUse::Pixels},
        {png_chunk::Transparency, PngChunkUse::Pixels},
        {png_chunk::Pixels, PngChunkUse::Pixels},
        {png_chunk::End, PngChunkUse::Pixels},
        {"gAMA", PngChunkUse::Free},
        {"cHRM", PngChunkUse::Free},
        {"sRGB", PngChunkUse::Free},
        {png_chunk::Profile, PngChunkUse::Free},
        {"pHYs", PngChunkUse::Free},
        {"tEXt", PngChunkUse::Free},
        {"zTXt", PngChunkUse::Free},
        {"iTXt", PngChunkUse::Free},
        {"tIME", PngChunkUse::Free},
        {"eXIf", PngChunkUse::Free},
        {"sPLT", PngChunkUse::Free},
        {"bKGD", PngChunkUse::OfColours},
        {"sBIT", PngChunkUse::OfColours},
        {"hIST", PngChunkUse::OfColours},
    });
    const auto row =
        std::find_if(rows.begin(), rows.end(), [&](const Row& known) { return known.name == chunk; });
    if (row != rows.end()) {
        return row->use;
    }
    // The case of a name's letters tells what may be done with a chunk that is not known (PNG standard, 5.4).
    const auto isLower = [&](std::size_t place) { return chunk[place] >= 'a' && chunk[place] <= 'z'; };
    return isLower(0) && isLower(3) ? PngChunkUse::Free : PngChunkUse::Unknown;
}

} // namespace varrocade
