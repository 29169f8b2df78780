#include "guns/carriage.h"

#include "parts/fittings.h"
#include "parts/gear.h"

#include <algorithm>
#include <vector>

namespace artwork {

void gunWheel(Relief& r, double x, double y, double radius, double width, GunWheel style) {
    const auto placed = r.place({.x = x, .y = y});
    const bool soft = style == GunWheel::Pneumatic;
    const double half = width / 2.0;
    r.add(
        Shape::roundRect(-half, -radius, half, radius, soft ? width * 0.45 : 2.0),
        tube({-1e4, 0}, {1e4, 0}, radius, radius, radius).rounded(soft ? half * 0.8 : 2.0, soft ? 6.0 : 2.0),
        style == GunWheel::Spoked || style == GunWheel::Perforated ? paints::Steel : paints::Rubber);
    if (soft) {
        for (double t = -radius + 6.0; t < radius - 4.0; t += 6.0) {
            r.add(Shape::line({{-half * 0.75, t}, {0.0, t + 3.0}, {half * 0.75, t}}, 1.6), raise(-1.2),
                  paints::Rubber);
        }
    }
    // the hub stands out sideways
    const double out = x > 0 ? half : -half;
    r.add(Shape::roundRect(std::min(out, out + (x > 0 ? 7.0 : -7.0)), -6.0,
                           std::max(out, out + (x > 0 ? 7.0 : -7.0)), 6.0, 2.0),
          flat(radius + 4.0).rounded(3.0, 4.0), paints::Steel);
    const double in = x > 0 ? -half - 4.0 : half;
    r.add(Shape::rect(in, -radius * 0.62, in + 4.0, radius * 0.62), flat(radius).rounded(2.0, 3.0));
}

void splitTrails(Relief& r, const Trails& trails) {
    for (const double side : {-1.0, 1.0}) {
        const Vec2 hinge{side * trails.hinge, trails.start};
        const double span = (trails.reach + trails.start) / std::cos(radians(trails.spread));
        const auto placed = r.place({.x = hinge.x, .y = hinge.y, .angle = 180.0 - side * trails.spread});
        const double w = trails.width / 2.0;
        const Shape leg = Shape::polygon({{-w, 0}, {w, 0}, {w * 0.8, span}, {-w * 0.8, span}});
        if (trails.tubular) {
            r.add(leg, tube({0, 0}, {0, span}, w, w * 0.8, trails.z * 0.5));
        } else {
            r.add(leg, slope({0, 0}, trails.z, {0, span}, 16.0).rounded(1.4, 1.2));
            r.add(Shape::rect(-w * 0.4, 12.0, w * 0.4, span - 16.0), raise(-1.4).rounded(0.8, -0.6));
        }
        r.add(Shape::circle({0, 2}, w * 1.25), flat(trails.z + 4.0).rounded(3.0, 3.0));
        r.add(Shape::circle({0, 2}, w * 0.5), raise(2.0).rounded(1.5, 1.5), paints::Steel);
        // spade and handspike
        r.add(Shape::polygon({{-w * 2.4, span - 10.0},
                              {w * 2.4, span - 10.0},
                              {w * 1.8, span + 8.0},
                              {-w * 1.8, span + 8.0}}),
              flat(12.0).rounded(2.0, 4.0));
        r.add(Shape::capsule({0, span - 44.0}, {side * w * 1.6, span - 36.0}, 3.0),
              raise(4.0).rounded(1.5, 1.5), paints::Steel);
        for (const double t : {0.3, 0.55, 0.8}) {
            r.add(Shape::rect(-w * 1.12, span * t, w * 1.12, span * t + 3.0), raise(1.0).rounded(1.0, 0.8));
        }
    }
}

void shieldPlate(Relief& r, std::initializer_list<Vec2> lower, std::initializer_list<Vec2> upper, double z0,
                 double z1) {
    const std::vector<Vec2> low(lower);
    const std::vector<Vec2> high(upper);
    for (std::size_t i = 0; i + 1 < low.size(); ++i) {
        r.add(Shape::polygon({low[i], low[i + 1], high[i + 1], high[i]}),
              plane(low[i], z0, low[i + 1], z0, lerp(high[i], high[i + 1], 0.5), z1));
    }
    r.add(Shape::line(high, 2.6), flat(z1 + 1.0).rounded(1.0, 0.8));
    for (std::size_t i = 0; i + 1 < low.size(); ++i) {
        const double span = length(high[i + 1] - high[i]);
        bolts(r, lerp(lerp(low[i], low[i + 1], 0.1), lerp(high[i], high[i + 1], 0.1), 0.5),
              lerp(lerp(low[i], low[i + 1], 0.9), lerp(high[i], high[i + 1], 0.9), 0.5),
              std::max(2, static_cast<int>(span / 14.0)), 1.2);
    }
}

void cradle(Relief& r, double from, double to, double width, double z) {
    const double w = width / 2.0;
    r.add(Shape::roundRect(-w, from, w, to, w * 0.5), tube({0, from}, {0, to}, w, w, z));
    for (const double y : {lerp(from, to, 0.12), lerp(from, to, 0.5), lerp(from, to, 0.88)}) {
        r.add(Shape::rect(-w - 0.8, y - 1.6, w + 0.8, y + 1.6), raise(1.0).rounded(1.0, 0.8));
    }
}

void breech(Relief& r, double from, double to, double width, double z) {
    const double w = width / 2.0;
    r.add(Shape::roundRect(-w, from, w, to, 2.5), flat(z + w).rounded(3.0, 4.0), paints::Steel);
    r.add(Shape::rect(-w * 0.55, from + 2.0, w * 0.55, from + (to - from) * 0.55), raise(-4.0),
          paints::DarkSteel);
    r.add(Shape::capsule({w, to - 6.0}, {w + 9.0, to - 16.0}, 3.0), flat(z + w - 2.0).rounded(1.5, 1.5),
          paints::Steel);
}

void handwheel(Relief& r, double radius) {
    r.add(Shape::ring({}, radius * 0.8, radius), flat(3.0).rounded(1.0, 1.0), paints::Steel);
    r.add(Shape::capsule({-radius, 0}, {radius, 0}, 1.6), flat(2.6), paints::Steel);
    r.add(Shape::circle({radius * 0.7, radius * 0.5}, 2.0), flat(6.0).rounded(1.5, 1.5), paints::DarkWood);
}

void axle(Relief& r, double halfWidth, double y, double z) {
    r.add(Shape::roundRect(-halfWidth, y - 7.0, halfWidth, y + 7.0, 3.0),
          tube({-halfWidth, y}, {halfWidth, y}, 7.0, 7.0, z));
    r.add(Shape::roundRect(-26.0, y - 18.0, 26.0, y + 16.0, 6.0), flat(z + 10.0).rounded(4.0, 4.0));
}

} // namespace artwork
