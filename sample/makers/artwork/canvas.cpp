#include "canvas.h"

#include <algorithm>

namespace artwork {

Canvas::Canvas(int pixelWidth, int pixelHeight, double scale)
    : surface_(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, pixelWidth, pixelHeight)),
      context_(cairo_create(surface_.get())) {
    cairo_scale(context_.get(), scale, scale);
}

void Canvas::colour(Rgb colour, double alpha) {
    cairo_set_source_rgba(context_.get(), colour.r, colour.g, colour.b, alpha);
}

void Canvas::rect(double x, double y, double width, double height, Rgb fill) {
    colour(fill);
    cairo_rectangle(context_.get(), x, y, width, height);
    cairo_fill(context_.get());
}

void Canvas::disc(double x, double y, double radius, Rgb fill) {
    colour(fill);
    cairo_new_sub_path(context_.get());
    cairo_arc(context_.get(), x, y, radius, 0.0, radians(360.0));
    cairo_fill(context_.get());
}

void Canvas::polygon(std::initializer_list<Vec2> points, Rgb fill) {
    colour(fill);
    cairo_new_sub_path(context_.get());
    for (const Vec2 p : points) {
        cairo_line_to(context_.get(), p.x, p.y);
    }
    cairo_close_path(context_.get());
    cairo_fill(context_.get());
}

void Canvas::line(Vec2 from, Vec2 to, double width, Rgb stroke) {
    colour(stroke);
    cairo_set_line_width(context_.get(), width);
    cairo_move_to(context_.get(), from.x, from.y);
    cairo_line_to(context_.get(), to.x, to.y);
    cairo_stroke(context_.get());
}

void Canvas::star(Vec2 centre, double radius, Rgb fill, double angle, int points, double inner) {
    colour(fill);
    cairo_new_sub_path(context_.get());
    for (int i = 0; i < points * 2; ++i) {
        const Vec2 d = bearing(angle + i * 180.0 / points);
        const double reach = i % 2 == 0 ? radius : radius * inner;
        cairo_line_to(context_.get(), centre.x + d.x * reach, centre.y - d.y * reach);
    }
    cairo_close_path(context_.get());
    cairo_fill(context_.get());
}

void Canvas::crescent(Vec2 centre, double radius, double cut, Vec2 shift, Rgb fill) {
    cairo_t* c = context_.get();
    cairo_push_group(c);
    disc(centre.x, centre.y, radius, fill);
    cairo_set_operator(c, CAIRO_OPERATOR_CLEAR);
    cairo_arc(c, centre.x + shift.x, centre.y + shift.y, cut, 0.0, radians(360.0));
    cairo_fill(c);
    cairo_set_operator(c, CAIRO_OPERATOR_OVER);
    cairo_pop_group_to_source(c);
    cairo_paint(c);
}

void Canvas::clip(double x, double y, double width, double height) {
    cairo_save(context_.get());
    cairo_rectangle(context_.get(), x, y, width, height);
    cairo_clip(context_.get());
}

void Canvas::unclip() {
    cairo_restore(context_.get());
}

Picture Canvas::picture() const {
    cairo_surface_flush(surface_.get());
    Picture result;
    result.width = cairo_image_surface_get_width(surface_.get());
    result.height = cairo_image_surface_get_height(surface_.get());
    result.pixels.resize(static_cast<std::size_t>(result.width) * static_cast<std::size_t>(result.height));
    const unsigned char* rows = cairo_image_surface_get_data(surface_.get());
    const auto stride = static_cast<std::ptrdiff_t>(cairo_image_surface_get_stride(surface_.get()));
    const auto bytes = static_cast<std::ptrdiff_t>(result.width) * 4;
    auto* out = reinterpret_cast<unsigned char*>(result.pixels.data());
    for (std::ptrdiff_t y = 0; y < result.height; ++y) {
        std::copy_n(rows + y * stride, bytes, out + y * bytes);
    }
    return result;
}

} // namespace artwork
