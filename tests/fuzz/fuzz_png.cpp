// Reads any bytes as a PNG file and makes it smaller: what can be read keeps its pixels in fewer bytes. The
// pictures are small, or most of the time would go into their pixels. Check sums are set right first, so that
// damage gets past them.

#include "pictures/picture_scaling.h"
#include "pictures/png_codec.h"
#include "pictures/png_reduction.h"
#include "round_trip.h"

#include <cstddef>
#include <cstdint>
#include <string>

#include <libdeflate.h>

namespace varrocade::fuzz {

namespace {

std::uint32_t lengthAt(const std::string& bytes, std::size_t place) {
    std::uint32_t length = 0;
    for (std::size_t i = 0; i < sizeof(length); ++i) {
        length = (length << 8U) | static_cast<unsigned char>(bytes[place + i]);
    }
    return length;
}

std::string withRightSums(std::string bytes) {
    constexpr std::size_t overhead = 12;
    for (std::size_t at = 8; at + overhead <= bytes.size();) {
        const std::size_t length = lengthAt(bytes, at);
        if (length > bytes.size() - at - overhead) {
            break;
        }
        const std::uint32_t sum = libdeflate_crc32(0, bytes.data() + at + 4, length + 4);
        for (unsigned i = 0; i < 4; ++i) {
            bytes[at + 8 + length + i] = static_cast<char>((sum >> (24 - 8 * i)) & 0xFFU);
        }
        at += length + overhead;
    }
    return bytes;
}

void check(const std::string& bytes) {
    const PngReading reading = readPng(bytes);
    constexpr std::size_t mostPixels = 1024;
    if (!reading.failure.empty() || reading.picture.pixelCount() > mostPixels) {
        return;
    }
    // All effort takes a hundred times as long as reading.
    const bool isTried = libdeflate_adler32(1, bytes.data(), bytes.size()) % 64 == 0;
    const PngReduction reduced = isTried ? recompressedPng(bytes) : PngReduction{};
    if (!reduced.content.empty()) {
        require(reduced.content.size() < bytes.size(), "larger than before", "", "");
        require(samePngPixels(bytes, reduced.content), "other pixels", "", "");
    }
    require(!scaledPicture(reading.picture, {reading.picture.size.width / 2, 3}).samples.empty(),
            "not to be scaled", "", "");
}

} // namespace

} // namespace varrocade::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    varrocade::fuzz::check(
        varrocade::fuzz::withRightSums(std::string(reinterpret_cast<const char*>(data), size)));
    return 0;
}
