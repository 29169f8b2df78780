#include "pictures/picture_scaling.h"

#include <algorithm>

#include <stb_image_resize.h>

namespace varrocade {

namespace {

constexpr int Channels = 4;
constexpr int AlphaChannel = 3;

/// Deep samples between the order of the file and the machine's.
std::vector<stbir_uint16> machineSamples(const std::vector<std::uint8_t>& samples) {
    std::vector<stbir_uint16> numbers(samples.size() / 2);
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        numbers[i] = static_cast<stbir_uint16>((samples[2 * i] << 8U) | samples[2 * i + 1]);
    }
    return numbers;
}

bool scaleDeep(const Picture& from, Picture& to) {
    const std::vector<stbir_uint16> source = machineSamples(from.samples);
    std::vector<stbir_uint16> target(to.samples.size() / 2);
    if (stbir_resize_uint16_generic(source.data(), from.size.width, from.size.height, 0, target.data(),
                                    to.size.width, to.size.height, 0, Channels, AlphaChannel, 0,
                                    STBIR_EDGE_CLAMP, STBIR_FILTER_CATMULLROM, STBIR_COLORSPACE_SRGB,
                                    nullptr) == 0) {
        return false;
    }
    for (std::size_t i = 0; i < target.size(); ++i) {
        to.samples[2 * i] = static_cast<std::uint8_t>(target[i] >> 8U);
        to.samples[2 * i + 1] = static_cast<std::uint8_t>(target[i] & 0xFFU);
    }
    return true;
}

bool scaleFlat(const Picture& from, Picture& to) {
    return stbir_resize_uint8_generic(from.samples.data(), from.size.width, from.size.height, 0,
                                      to.samples.data(), to.size.width, to.size.height, 0, Channels,
                                      AlphaChannel, 0, STBIR_EDGE_CLAMP, STBIR_FILTER_CATMULLROM,
                                      STBIR_COLORSPACE_SRGB, nullptr) != 0;
}

} // namespace

Picture scaledPicture(const Picture& picture, PictureSize size) {
    Picture scaled{{std::max(size.width, 1), std::max(size.height, 1)}, picture.isDeep};
    scaled.samples.resize(scaled.pixelCount() * scaled.bytesPerPixel());
    if (!(picture.isDeep ? scaleDeep(picture, scaled) : scaleFlat(picture, scaled))) {
        scaled.samples.clear();
    }
    return scaled;
}

} // namespace varrocade
