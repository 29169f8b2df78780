#include "picture.h"

#include <algorithm>
#include <cairo.h>
#include <cmath>

namespace artwork {

std::uint32_t packPixel(Rgb colour, double alpha) {
    const double a = clamp01(alpha);
    const auto channel = [](double v, double limit) {
        return static_cast<std::uint32_t>(std::lround(std::clamp(v, 0.0, limit) * 255.0));
    };
    return (channel(a, 1.0) << 24) | (channel(colour.r * a, a) << 16) | (channel(colour.g * a, a) << 8) |
           channel(colour.b * a, a);
}

bool writePng(const Picture& picture, const std::string& path) {
    cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, picture.width, picture.height);
    unsigned char* rows = cairo_image_surface_get_data(surface);
    const int stride = cairo_image_surface_get_stride(surface);
    for (int y = 0; rows != nullptr && y < picture.height; ++y) {
        const auto* line = reinterpret_cast<const unsigned char*>(
            picture.pixels.data() + static_cast<std::ptrdiff_t>(y) * picture.width);
        std::copy_n(line, static_cast<std::ptrdiff_t>(picture.width) * 4,
                    rows + static_cast<std::ptrdiff_t>(y) * stride);
    }
    cairo_surface_mark_dirty(surface);
    const cairo_status_t status = cairo_surface_write_to_png(surface, path.c_str());
    cairo_surface_destroy(surface);
    return status == CAIRO_STATUS_SUCCESS;
}

} // namespace artwork
