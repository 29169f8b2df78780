#pragma once

#include "geometry.h"

#include <cairo.h>
#include <initializer_list>
#include <span>
#include <vector>

namespace artwork {

/// A closed area built of contours; overlapping contours of one shape cut holes (even-odd).
class Shape {
public:
    static Shape polygon(std::span<const Vec2> points);
    static Shape polygon(std::initializer_list<Vec2> points);
    static Shape rect(double x0, double y0, double x1, double y1);
    static Shape roundRect(double x0, double y0, double x1, double y1, double radius);
    static Shape circle(Vec2 centre, double radius);
    static Shape ellipse(Vec2 centre, double rx, double ry);
    static Shape ring(Vec2 centre, double inner, double outer);
    /// A sector of a ring between two bearings (degrees clockwise from straight ahead).
    static Shape band(Vec2 centre, double inner, double outer, double from, double to);
    /// A line with round ends.
    static Shape capsule(Vec2 a, Vec2 b, double width);
    /// A line through several points with round ends and joins.
    static Shape line(std::span<const Vec2> points, double width);
    static Shape line(std::initializer_list<Vec2> points, double width);
    /// A smooth closed outline through the points (Catmull-Rom).
    static Shape smooth(std::span<const Vec2> points);
    static Shape smooth(std::initializer_list<Vec2> points);
    /// The right half of an outline given from front to rear; its mirror image closes it.
    static Shape symmetric(std::initializer_list<Vec2> rightHalf);
    static Shape symmetricSmooth(std::initializer_list<Vec2> rightHalf);

    Shape& add(const Shape& other);
    void trace(cairo_t* context, const Frame& frame) const;
    [[nodiscard]] double strokeWidth() const { return strokeWidth_; }
    [[nodiscard]] std::span<const std::vector<Vec2>> contours() const { return contours_; }

private:
    std::vector<std::vector<Vec2>> contours_;
    double strokeWidth_ = 0.0; ///< above 0 the contours are open lines of that width
};

/// A polyline through control points, rounded into a curve (Catmull-Rom, open).
std::vector<Vec2> curveThrough(std::span<const Vec2> points, int steps = 10);

} // namespace artwork
