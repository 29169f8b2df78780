#include "profiles/side.h"

#include "noise.h"
#include "parts/fittings.h"

#include <algorithm>

namespace artwork {

namespace {

double turn(Vec2 o, Vec2 a, Vec2 b) {
    return (a.x - o.x) * (b.y - o.y) - (a.y - o.y) * (b.x - o.x);
}

/// Convex hull by Andrew's monotone chain.
std::vector<Vec2> convexHull(std::vector<Vec2> points) {
    std::sort(points.begin(), points.end(),
              [](Vec2 a, Vec2 b) { return a.x < b.x || (a.x == b.x && a.y < b.y); });
    std::vector<Vec2> hull;
    const auto sweep = [&hull](Vec2 p, std::size_t keep) {
        while (hull.size() >= keep + 2 && turn(hull[hull.size() - 2], hull.back(), p) <= 0.0) {
            hull.pop_back();
        }
        hull.push_back(p);
    };
    for (const Vec2 p : points) {
        sweep(p, 0);
    }
    const std::size_t lower = hull.size() - 1;
    for (std::size_t i = points.size() - 1; i-- > 0;) {
        sweep(points[i], lower);
    }
    hull.pop_back();
    return hull;
}

} // namespace

std::vector<SideWheel> wheelRow(int count, double x0, double x1, double y, double radius) {
    std::vector<SideWheel> wheels;
    wheels.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        wheels.push_back({lerp(x0, x1, count > 1 ? static_cast<double>(i) / (count - 1) : 0.5), y, radius});
    }
    return wheels;
}

void trackBelt(Relief& r, std::span<const SideWheel> around, double thickness, double pitch) {
    std::vector<Vec2> points;
    points.reserve(around.size() * 48);
    for (const SideWheel& wheel : around) {
        for (int i = 0; i < 48; ++i) {
            const Vec2 d = bearing(i * 7.5);
            points.push_back(Vec2{wheel.x, wheel.y} + d * (wheel.radius + thickness / 2.0));
        }
    }
    std::vector<Vec2> belt = convexHull(std::move(points));
    r.add(Shape::polygon(belt), flat(-30.0), paints::Dark);
    belt.push_back(belt.front());
    r.add(Shape::line(belt, thickness), flat(12.0).rounded(2.0, 1.5), paints::TrackSteel);
    double along = 0.0;
    for (std::size_t i = 0; i + 1 < belt.size(); ++i) {
        const Vec2 d = belt[i + 1] - belt[i];
        const double span = length(d);
        const Vec2 outwards{d.y / span, -d.x / span};
        for (double t = pitch - along; t < span; t += pitch) {
            const Vec2 p = belt[i] + d * (t / span);
            r.stain(Shape::capsule(p - outwards * (thickness * 0.5), p + outwards * (thickness * 0.5), 1.8),
                    hex(0x0E0C0A), 0.75);
            const Vec2 mid = p + d * (pitch * 0.5 / span);
            r.add(Shape::capsule(mid, mid + outwards * (thickness * 0.75), 4.0), flat(13.0),
                  paints::TrackSteel);
        }
        along = std::fmod(along + span, pitch);
    }
}

void roadWheel(Relief& r, const SideWheel& wheel, WheelStyle style, double z) {
    const auto placed = r.place({.x = wheel.x, .y = wheel.y, .z = z});
    const double radius = wheel.radius;
    const bool rubber = style != WheelStyle::Disc;
    r.add(Shape::circle({}, radius), flat(0.0).rounded(3.0, 3.0),
          rubber ? paints::Rubber : paints::TrackSteel);
    const double rim = rubber ? radius * (style == WheelStyle::Bogie ? 0.74 : 0.84) : radius * 0.93;
    r.add(Shape::circle({}, rim), flat(1.0).rounded(2.0, 2.0));
    if (style == WheelStyle::Spoked || style == WheelStyle::Bogie) {
        const int holes = style == WheelStyle::Bogie ? 5 : 6;
        for (int i = 0; i < holes; ++i) {
            r.add(Shape::circle(bearing(i * 360.0 / holes) * (rim * 0.62), rim * 0.19), flat(-8.0),
                  paints::Dark);
        }
    } else {
        r.add(Shape::ring({}, rim * 0.5, rim * 0.86),
              flat(style == WheelStyle::Dished ? -3.0 : -1.0).rounded(4.0, 2.0));
    }
    r.add(Shape::circle({}, radius * 0.32), flat(4.0).rounded(4.0, 4.0));
    r.add(Shape::circle({}, radius * 0.14), raise(2.0).rounded(2.0, 2.0), paints::Steel);
    boltRing(r, {}, radius * 0.26, 6, std::max(1.2, radius * 0.04));
}

void sprocket(Relief& r, const SideWheel& wheel, int teeth, double z) {
    const auto placed = r.place({.x = wheel.x, .y = wheel.y, .z = z});
    for (int i = 0; i < teeth; ++i) {
        const Vec2 d = bearing(360.0 * (i + 0.5) / teeth);
        r.add(Shape::capsule(d * (wheel.radius * 0.8), d * (wheel.radius * 1.06), wheel.radius * 0.16),
              flat(1.0).rounded(2.0, 2.0), paints::TrackSteel);
    }
    r.add(Shape::circle({}, wheel.radius * 0.92), flat(2.0).rounded(2.0, 2.0), paints::TrackSteel);
    r.add(Shape::circle({}, wheel.radius * 0.80), flat(2.6).rounded(2.0, 1.0));
    for (int i = 0; i < 7; ++i) {
        r.add(Shape::circle(bearing(i * 360.0 / 7) * (wheel.radius * 0.56), wheel.radius * 0.12), flat(-6.0),
              paints::Dark);
    }
    r.add(Shape::circle({}, wheel.radius * 0.34), flat(8.0).rounded(5.0, 6.0));
    boltRing(r, {}, wheel.radius * 0.26, 8, 1.4);
}

void tyre(Relief& r, const SideWheel& wheel, double rim, double z) {
    const auto placed = r.place({.x = wheel.x, .y = wheel.y, .z = z});
    r.add(Shape::circle({}, wheel.radius), flat(0.0).rounded(wheel.radius - rim, 8.0), paints::Rubber);
    for (int i = 0; i < 36; ++i) {
        const Vec2 d = bearing(i * 10.0);
        r.stain(Shape::capsule(d * (wheel.radius * 0.93), d * wheel.radius, 2.0), hex(0x0C0C0B), 0.7);
    }
    r.add(Shape::circle({}, rim), flat(-1.0).rounded(3.0, 3.0));
    r.add(Shape::ring({}, rim * 0.48, rim * 0.86), flat(-4.0).rounded(4.0, 2.0));
    r.add(Shape::circle({}, rim * 0.3), flat(4.0).rounded(4.0, 4.0), paints::Steel);
    boltRing(r, {}, rim * 0.4, 6, 1.6);
}

Pose pointingForward(double x, double y, double z, double elevation) {
    return {.x = x, .y = y, .angle = -90.0 + elevation, .z = z};
}

void sidePlate(Relief& r, std::initializer_list<Vec2> corners, double z, double edge) {
    r.add(Shape::polygon(corners), flat(z).rounded(edge, edge));
}

void sideCast(Relief& r, std::initializer_list<Vec2> corners, double z, double edge, double depth) {
    r.add(Shape::smooth(corners), flat(z).rounded(edge, depth).rough(0.8));
}

void aerial(Relief& r, Vec2 foot, double height, double lean) {
    r.add(Shape::capsule(foot, foot + Vec2{0, 9}, 4.0), flat(20.0).rounded(2.0, 2.0), paints::Rubber);
    r.add(Shape::capsule(foot, foot + Vec2{height * lean, height}, 1.8), flat(20.0), paints::DarkSteel);
}

void splashMud(Relief& r, double x0, double x1, double top, Rgb colour) {
    Dice dice(static_cast<std::uint32_t>(x1 - x0) + 7U);
    for (int i = 0; i < 150; ++i) {
        const double height = dice.next();
        const Vec2 at{dice.next(x0, x1), height * height * top};
        r.stain(Shape::circle(at, dice.next(1.0, 5.5)), colour, 0.32, 1.5);
    }
    for (int k = 0; k < 6; ++k) {
        r.stain(Shape::rect(x0, -2.0, x1, top * (k + 1) / 6.0), colour, 0.06);
    }
}

} // namespace artwork
