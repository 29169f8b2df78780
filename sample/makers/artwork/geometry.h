#pragma once

#include <cmath>
#include <cstdint>
#include <numbers>

namespace artwork {

/// A point or direction in centimetres: x to the right of the vehicle, y towards its front.
struct Vec2 {
    double x = 0.0;
    double y = 0.0;
};

constexpr Vec2 operator+(Vec2 a, Vec2 b) {
    return {a.x + b.x, a.y + b.y};
}
constexpr Vec2 operator-(Vec2 a, Vec2 b) {
    return {a.x - b.x, a.y - b.y};
}
constexpr Vec2 operator*(Vec2 a, double s) {
    return {a.x * s, a.y * s};
}
constexpr double dot(Vec2 a, Vec2 b) {
    return a.x * b.x + a.y * b.y;
}
inline double length(Vec2 a) {
    return std::hypot(a.x, a.y);
}

constexpr double radians(double degrees) {
    return degrees * std::numbers::pi / 180.0;
}
constexpr double lerp(double a, double b, double t) {
    return a + (b - a) * t;
}
constexpr Vec2 lerp(Vec2 a, Vec2 b, double t) {
    return {lerp(a.x, b.x, t), lerp(a.y, b.y, t)};
}
constexpr double clamp01(double v) {
    return v < 0.0 ? 0.0 : (v > 1.0 ? 1.0 : v);
}
constexpr double smoothstep(double from, double to, double v) {
    const double t = clamp01((v - from) / (to - from));
    return t * t * (3.0 - 2.0 * t);
}

/// The unit vector of a bearing: degrees clockwise, 0 = straight ahead.
inline Vec2 bearing(double degrees) {
    return {std::sin(radians(degrees)), std::cos(radians(degrees))};
}

/// A colour in display values, 0 to 1 a channel.
struct Rgb {
    double r = 0.0;
    double g = 0.0;
    double b = 0.0;
};

constexpr Rgb hex(std::uint32_t value) {
    return {((value >> 16) & 255U) / 255.0, ((value >> 8) & 255U) / 255.0, (value & 255U) / 255.0};
}
constexpr Rgb mix(Rgb a, Rgb b, double t) {
    return {lerp(a.r, b.r, t), lerp(a.g, b.g, t), lerp(a.b, b.b, t)};
}
constexpr Rgb scaled(Rgb a, double s) {
    return {a.r * s, a.g * s, a.b * s};
}

/// Where a part sits: its position, its bearing (degrees clockwise), its height above the frame it is placed
/// in.
struct Pose {
    double x = 0.0;
    double y = 0.0;
    double angle = 0.0;
    double z = 0.0;
    double scale = 1.0;
    bool mirrored = false; ///< left and right exchanged before turning
};

/// A similarity transform from a part's own centimetres to those of the whole picture.
struct Frame {
    double xx = 1.0, xy = 0.0, yx = 0.0, yy = 1.0; ///< rows of the linear part
    double x0 = 0.0, y0 = 0.0, z0 = 0.0;
    double scale = 1.0;

    [[nodiscard]] Vec2 apply(Vec2 p) const { return {xx * p.x + xy * p.y + x0, yx * p.x + yy * p.y + y0}; }
    [[nodiscard]] Vec2 invert(Vec2 p) const {
        const double det = xx * yy - xy * yx;
        const Vec2 d{p.x - x0, p.y - y0};
        return {(yy * d.x - xy * d.y) / det, (xx * d.y - yx * d.x) / det};
    }
    [[nodiscard]] Frame placed(const Pose& pose) const {
        const double c = std::cos(radians(pose.angle)) * pose.scale;
        const double s = std::sin(radians(pose.angle)) * pose.scale;
        const double m = pose.mirrored ? -1.0 : 1.0;
        const Vec2 origin = apply({pose.x, pose.y});
        return {.xx = (xx * c - xy * s) * m,
                .xy = xx * s + xy * c,
                .yx = (yx * c - yy * s) * m,
                .yy = yx * s + yy * c,
                .x0 = origin.x,
                .y0 = origin.y,
                .z0 = z0 + pose.z * scale,
                .scale = scale * pose.scale};
    }
};

} // namespace artwork
