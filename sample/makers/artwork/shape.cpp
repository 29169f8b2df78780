#include "shape.h"

#include <algorithm>

namespace artwork {

namespace {

constexpr int CircleSteps = 72;

Vec2 catmullRom(Vec2 p0, Vec2 p1, Vec2 p2, Vec2 p3, double t) {
    const double t2 = t * t;
    const double t3 = t2 * t;
    return p0 * (-0.5 * t3 + t2 - 0.5 * t) + p1 * (1.5 * t3 - 2.5 * t2 + 1.0) +
           p2 * (-1.5 * t3 + 2.0 * t2 + 0.5 * t) + p3 * (0.5 * t3 - 0.5 * t2);
}

void appendArc(std::vector<Vec2>& contour, Vec2 centre, Vec2 radii, double from, double to) {
    const int steps = std::max(2, static_cast<int>(std::abs(to - from) / 360.0 * CircleSteps));
    for (int i = 0; i <= steps; ++i) {
        const Vec2 d = bearing(lerp(from, to, static_cast<double>(i) / steps));
        contour.push_back({centre.x + d.x * radii.x, centre.y + d.y * radii.y});
    }
}

std::vector<Vec2> mirrorClosed(std::initializer_list<Vec2> rightHalf) {
    std::vector<Vec2> points(rightHalf);
    for (std::size_t i = rightHalf.size(); i-- > 0;) {
        const Vec2 p = points[i];
        if (p.x > 0.01) {
            points.push_back({-p.x, p.y});
        }
    }
    return points;
}

} // namespace

std::vector<Vec2> curveThrough(std::span<const Vec2> points, int steps) {
    std::vector<Vec2> result;
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        const Vec2 p0 = points[i == 0 ? 0 : i - 1];
        const Vec2 p3 = points[std::min(i + 2, points.size() - 1)];
        for (int s = 0; s < steps; ++s) {
            result.push_back(catmullRom(p0, points[i], points[i + 1], p3, static_cast<double>(s) / steps));
        }
    }
    result.push_back(points.back());
    return result;
}

Shape Shape::polygon(std::span<const Vec2> points) {
    Shape shape;
    shape.contours_.emplace_back(points.begin(), points.end());
    return shape;
}

Shape Shape::polygon(std::initializer_list<Vec2> points) {
    return polygon(std::span<const Vec2>(points.begin(), points.size()));
}

Shape Shape::rect(double x0, double y0, double x1, double y1) {
    return polygon({{x0, y0}, {x1, y0}, {x1, y1}, {x0, y1}});
}

Shape Shape::roundRect(double x0, double y0, double x1, double y1, double radius) {
    const double r = std::min({radius, (x1 - x0) / 2.0, (y1 - y0) / 2.0});
    Shape shape;
    auto& contour = shape.contours_.emplace_back();
    appendArc(contour, {x1 - r, y1 - r}, {r, r}, 0, 90);
    appendArc(contour, {x1 - r, y0 + r}, {r, r}, 90, 180);
    appendArc(contour, {x0 + r, y0 + r}, {r, r}, 180, 270);
    appendArc(contour, {x0 + r, y1 - r}, {r, r}, 270, 360);
    return shape;
}

Shape Shape::circle(Vec2 centre, double radius) {
    return ellipse(centre, radius, radius);
}

Shape Shape::ellipse(Vec2 centre, double rx, double ry) {
    Shape shape;
    appendArc(shape.contours_.emplace_back(), centre, {rx, ry}, 0, 360);
    return shape;
}

Shape Shape::ring(Vec2 centre, double inner, double outer) {
    Shape shape = circle(centre, outer);
    return shape.add(circle(centre, inner));
}

Shape Shape::band(Vec2 centre, double inner, double outer, double from, double to) {
    Shape shape;
    auto& contour = shape.contours_.emplace_back();
    appendArc(contour, centre, {outer, outer}, from, to);
    appendArc(contour, centre, {inner, inner}, to, from);
    return shape;
}

Shape Shape::capsule(Vec2 a, Vec2 b, double width) {
    return line({a, b}, width);
}

Shape Shape::line(std::span<const Vec2> points, double width) {
    Shape shape = polygon(points);
    shape.strokeWidth_ = width;
    return shape;
}

Shape Shape::line(std::initializer_list<Vec2> points, double width) {
    return line(std::span<const Vec2>(points.begin(), points.size()), width);
}

Shape Shape::smooth(std::span<const Vec2> points) {
    const std::size_t n = points.size();
    Shape shape;
    auto& contour = shape.contours_.emplace_back();
    constexpr int steps = 10;
    for (std::size_t i = 0; i < n; ++i) {
        for (int s = 0; s < steps; ++s) {
            contour.push_back(catmullRom(points[(i + n - 1) % n], points[i], points[(i + 1) % n],
                                         points[(i + 2) % n], static_cast<double>(s) / steps));
        }
    }
    return shape;
}

Shape Shape::smooth(std::initializer_list<Vec2> points) {
    return smooth(std::span<const Vec2>(points.begin(), points.size()));
}

Shape Shape::symmetric(std::initializer_list<Vec2> rightHalf) {
    return polygon(mirrorClosed(rightHalf));
}

Shape Shape::symmetricSmooth(std::initializer_list<Vec2> rightHalf) {
    return smooth(mirrorClosed(rightHalf));
}

Shape& Shape::add(const Shape& other) {
    contours_.insert(contours_.end(), other.contours_.begin(), other.contours_.end());
    return *this;
}

void Shape::trace(cairo_t* context, const Frame& frame) const {
    for (const auto& contour : contours_) {
        cairo_new_sub_path(context);
        for (const Vec2 point : contour) {
            const Vec2 p = frame.apply(point);
            cairo_line_to(context, p.x, p.y);
        }
        if (strokeWidth_ <= 0.0) {
            cairo_close_path(context);
        }
    }
}

} // namespace artwork
