#include "relief.h"

#include "distance.h"
#include "noise.h"

#include <algorithm>
#include <memory>

namespace artwork {

namespace {

struct CairoDeleter {
    void operator()(cairo_t* context) const { cairo_destroy(context); }
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};

/// The part of an edge's drop that applies at a distance from the outline.
double edgeShare(const Form& form, double distance) {
    if (form.edge == Form::Edge::Sharp || distance >= form.edgeWidth) {
        return 0.0;
    }
    const double t = 1.0 - distance / form.edgeWidth;
    return form.edge == Form::Edge::Chamfer ? t : 1.0 - std::sqrt(std::max(0.0, 1.0 - t * t));
}

std::vector<unsigned char> halfCovered(std::vector<unsigned char> cover) {
    for (auto& cell : cover) {
        cell = cell >= 128 ? 1 : 0;
    }
    return cover;
}

double tubeHeight(const Form& form, Vec2 p) {
    const Vec2 axis = form.to - form.from;
    const double span = dot(axis, axis);
    const double t = span > 0.0 ? clamp01(dot(p - form.from, axis) / span) : 0.0;
    const double radius = lerp(form.radius0, form.radius1, t);
    const double across =
        span > 0.0 ? std::abs(axis.x * (p.y - form.from.y) - axis.y * (p.x - form.from.x)) / std::sqrt(span)
                   : length(p - form.from);
    return form.z + std::sqrt(std::max(0.0, radius * radius - across * across));
}

} // namespace

Form Form::rounded(double width, double drop) const {
    Form form = *this;
    form.edge = Edge::Round;
    form.edgeWidth = width;
    form.edgeDrop = drop;
    return form;
}

Form Form::chamfered(double width, double drop) const {
    Form form = rounded(width, drop);
    form.edge = Edge::Chamfer;
    return form;
}

Form Form::rough(double amount) const {
    Form form = *this;
    form.roughness = amount;
    return form;
}

Form Form::onlyHigher() const {
    Form form = *this;
    form.highest = true;
    return form;
}

Form flat(double z) {
    return {.z = z};
}

Form slope(Vec2 p0, double z0, Vec2 p1, double z1) {
    const Vec2 d = p1 - p0;
    const Vec2 gradient = d * ((z1 - z0) / dot(d, d));
    return {.z = z0 - dot(gradient, p0), .gradient = gradient};
}

Form plane(Vec2 a, double za, Vec2 b, double zb, Vec2 c, double zc) {
    const Vec2 u = b - a;
    const Vec2 v = c - a;
    const double det = u.x * v.y - u.y * v.x;
    const Vec2 gradient{((zb - za) * v.y - (zc - za) * u.y) / det, ((zc - za) * u.x - (zb - za) * v.x) / det};
    return {.z = za - dot(gradient, a), .gradient = gradient};
}

Form tube(Vec2 from, Vec2 to, double radius0, double radius1, double z) {
    return {.kind = Form::Kind::Tube, .z = z, .from = from, .to = to, .radius0 = radius0, .radius1 = radius1};
}

Form raise(double dz) {
    return {.kind = Form::Kind::Raise, .z = dz};
}

/// Coverage of a shape over a window of the samples.
struct Relief::Mask {
    int x0 = 0, y0 = 0, width = 0, height = 0;
    std::vector<unsigned char> cover;
    std::vector<float> distance; ///< samples from the outline inwards, when asked for
};

Relief::Relief(int pixelWidth, int pixelHeight, double pixelsPerCm)
    : width_(pixelWidth * Samples), height_(pixelHeight * Samples), samplesPerCm_(pixelsPerCm * Samples),
      samples_(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_)) {}

Vec2 Relief::position(int x, int y) const {
    return {(x + 0.5 - width_ / 2.0) / samplesPerCm_, (height_ / 2.0 - y - 0.5) / samplesPerCm_};
}

double Relief::heightAt(Vec2 point) const {
    const Vec2 p = toSamples().apply(point);
    if (p.x < 0.0 || p.y < 0.0 || p.x >= width_ || p.y >= height_) {
        return 0.0;
    }
    return static_cast<double>(at(static_cast<int>(p.x), static_cast<int>(p.y)).height) - frame_.z0;
}

Frame Relief::toSamples() const {
    Frame f = frame_;
    f.xx *= samplesPerCm_;
    f.xy *= samplesPerCm_;
    f.yx *= -samplesPerCm_;
    f.yy *= -samplesPerCm_;
    f.x0 = frame_.x0 * samplesPerCm_ + width_ / 2.0;
    f.y0 = height_ / 2.0 - frame_.y0 * samplesPerCm_;
    return f;
}

Relief::Mask Relief::rasterise(const Shape& shape, bool distances) const {
    Frame frame = toSamples();
    double left = 1e9;
    double right = -1e9;
    double top = 1e9;
    double bottom = -1e9;
    for (const auto& contour : shape.contours()) {
        for (const Vec2 point : contour) {
            const Vec2 p = frame.apply(point);
            left = std::min(left, p.x);
            right = std::max(right, p.x);
            top = std::min(top, p.y);
            bottom = std::max(bottom, p.y);
        }
    }
    const double pen = shape.strokeWidth() * frame_.scale * samplesPerCm_;
    Mask mask;
    // distances need the outline even where it lies outside the picture
    const double margin = distances ? 1e5 : 0.0;
    mask.x0 = static_cast<int>(std::floor(std::max(left - pen / 2.0, -margin)));
    mask.y0 = static_cast<int>(std::floor(std::max(top - pen / 2.0, -margin)));
    mask.width = static_cast<int>(std::ceil(std::min(right + pen / 2.0, width_ + margin))) - mask.x0;
    mask.height = static_cast<int>(std::ceil(std::min(bottom + pen / 2.0, height_ + margin))) - mask.y0;
    if (mask.width <= 0 || mask.height <= 0) {
        mask.width = mask.height = 0;
        return mask;
    }
    const std::unique_ptr<cairo_surface_t, CairoDeleter> surface(
        cairo_image_surface_create(CAIRO_FORMAT_A8, mask.width, mask.height));
    {
        const std::unique_ptr<cairo_t, CairoDeleter> context(cairo_create(surface.get()));
        cairo_set_fill_rule(context.get(), CAIRO_FILL_RULE_EVEN_ODD);
        frame.x0 -= mask.x0;
        frame.y0 -= mask.y0;
        shape.trace(context.get(), frame);
        if (pen > 0.0) {
            cairo_set_line_width(context.get(), pen);
            cairo_set_line_cap(context.get(), CAIRO_LINE_CAP_ROUND);
            cairo_set_line_join(context.get(), CAIRO_LINE_JOIN_ROUND);
            cairo_stroke(context.get());
        } else {
            cairo_fill(context.get());
        }
    }
    cairo_surface_flush(surface.get());
    const unsigned char* rows = cairo_image_surface_get_data(surface.get());
    const auto stride = static_cast<std::size_t>(cairo_image_surface_get_stride(surface.get()));
    const auto w = static_cast<std::size_t>(mask.width);
    mask.cover.resize(w * static_cast<std::size_t>(mask.height));
    for (std::size_t y = 0; y < static_cast<std::size_t>(mask.height); ++y) {
        std::copy_n(rows + y * stride, w, mask.cover.begin() + static_cast<std::ptrdiff_t>(y * w));
    }
    if (distances) {
        mask.distance = distanceInside(halfCovered(mask.cover), mask.width, mask.height);
    }
    return mask;
}

namespace {

void blend(Relief::Sample& s, float m, float height, const Paint& paint) {
    const auto mixIn = [m](float& value, double target) {
        value += (static_cast<float>(target) - value) * m;
    };
    const double own = 1.0 - paint.scheme;
    // the first cover of an empty sample sets its height whole, or thin edges would sink to the ground
    s.height = s.alpha < 0.02F ? height : s.height + (height - s.height) * m;
    mixIn(s.r, paint.colour.r * own);
    mixIn(s.g, paint.colour.g * own);
    mixIn(s.b, paint.colour.b * own);
    mixIn(s.scheme, paint.scheme);
    mixIn(s.gloss, paint.gloss);
    mixIn(s.dirt, paint.dirt);
    if (s.alpha < 0.02F) {
        s.r = static_cast<float>(paint.colour.r * own);
        s.g = static_cast<float>(paint.colour.g * own);
        s.b = static_cast<float>(paint.colour.b * own);
        s.scheme = static_cast<float>(paint.scheme);
        s.gloss = static_cast<float>(paint.gloss);
        s.dirt = static_cast<float>(paint.dirt);
    }
    s.alpha += (1.0F - s.alpha) * m;
}

} // namespace

void Relief::add(const Shape& shape, const Form& form, const Paint& paint) {
    const bool edged = form.edge != Form::Edge::Sharp;
    const Mask mask = rasterise(shape, edged);
    const double cmPerSample = 1.0 / (samplesPerCm_ * frame_.scale);
    for (int my = 0; my < mask.height; ++my) {
        const int y = mask.y0 + my;
        if (y < 0 || y >= height_) {
            continue;
        }
        for (int mx = 0; mx < mask.width; ++mx) {
            const int x = mask.x0 + mx;
            const std::size_t i = static_cast<std::size_t>(my) * static_cast<std::size_t>(mask.width) +
                                  static_cast<std::size_t>(mx);
            if (x < 0 || x >= width_ || mask.cover[i] == 0) {
                continue;
            }
            Sample& sample = at(x, y);
            const bool relative = form.kind == Form::Kind::Raise;
            if (relative && sample.alpha < 0.02F) {
                continue;
            }
            const Vec2 global = position(x, y);
            const Vec2 p = frame_.invert(global);
            double local = form.z;
            if (form.kind == Form::Kind::Plane) {
                local += dot(form.gradient, p);
            } else if (form.kind == Form::Kind::Tube) {
                local = tubeHeight(form, p);
            }
            if (edged) {
                local -= form.edgeDrop *
                         edgeShare(form, (static_cast<double>(mask.distance[i]) - 0.5) * cmPerSample);
            }
            if (form.roughness > 0.0) {
                local += form.roughness * (cloudNoise(global.x / 3.0, global.y / 3.0, 2, 71) - 0.5);
            }
            double z = local * frame_.scale;
            z += relative ? static_cast<double>(sample.height) : frame_.z0;
            if (form.highest && sample.alpha > 0.5F && static_cast<double>(sample.height) > z) {
                continue;
            }
            const float alpha = sample.alpha;
            blend(sample, static_cast<float>(mask.cover[i]) / 255.0F, static_cast<float>(z), paint);
            if (relative) {
                sample.alpha = alpha;
            }
        }
    }
}

void Relief::stain(const Shape& shape, Rgb colour, double opacity, double soft) {
    const Mask mask = rasterise(shape, soft > 0.0);
    const double cmPerSample = 1.0 / (samplesPerCm_ * frame_.scale);
    for (int my = 0; my < mask.height; ++my) {
        for (int mx = 0; mx < mask.width; ++mx) {
            const int x = mask.x0 + mx;
            const int y = mask.y0 + my;
            const std::size_t i = static_cast<std::size_t>(my) * static_cast<std::size_t>(mask.width) +
                                  static_cast<std::size_t>(mx);
            if (x < 0 || y < 0 || x >= width_ || y >= height_ || mask.cover[i] == 0) {
                continue;
            }
            double o = opacity * mask.cover[i] / 255.0;
            if (soft > 0.0) {
                o *= smoothstep(0.0, soft, static_cast<double>(mask.distance[i]) * cmPerSample);
            }
            Sample& s = at(x, y);
            const auto keep = static_cast<float>(1.0 - o);
            s.r = s.r * keep + static_cast<float>(colour.r * o);
            s.g = s.g * keep + static_cast<float>(colour.g * o);
            s.b = s.b * keep + static_cast<float>(colour.b * o);
            s.scheme *= keep;
        }
    }
}

void Relief::thin(const Shape& shape, double keep) {
    const Mask mask = rasterise(shape, false);
    for (int my = 0; my < mask.height; ++my) {
        for (int mx = 0; mx < mask.width; ++mx) {
            const int x = mask.x0 + mx;
            const int y = mask.y0 + my;
            if (x < 0 || y < 0 || x >= width_ || y >= height_) {
                continue;
            }
            const std::size_t i = static_cast<std::size_t>(my) * static_cast<std::size_t>(mask.width) +
                                  static_cast<std::size_t>(mx);
            const double cover = mask.cover[i] / 255.0;
            at(x, y).alpha *= static_cast<float>(1.0 - cover * (1.0 - keep));
        }
    }
}

} // namespace artwork
