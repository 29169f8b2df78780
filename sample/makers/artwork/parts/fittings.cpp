#include "parts/fittings.h"

#include "noise.h"

#include <vector>

namespace artwork {

void bolts(Relief& r, Vec2 from, Vec2 to, int count, double radius) {
    for (int i = 0; i < count; ++i) {
        const Vec2 p = lerp(from, to, count > 1 ? static_cast<double>(i) / (count - 1) : 0.5);
        r.add(Shape::circle(p, radius), raise(radius * 0.8).rounded(radius, radius * 0.5));
    }
}

void boltRing(Relief& r, Vec2 centre, double radius, int count, double size) {
    for (int i = 0; i < count; ++i) {
        const Vec2 p = centre + bearing(360.0 * i / count) * radius;
        r.add(Shape::circle(p, size), raise(size * 0.8).rounded(size, size * 0.5));
    }
}

void weld(Relief& r, std::span<const Vec2> points, double width) {
    std::vector<Vec2> wavy;
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        const Vec2 d = points[i + 1] - points[i];
        const double span = length(d);
        const int steps = std::max(1, static_cast<int>(span / 4.0));
        for (int s = 0; s <= steps; ++s) {
            const Vec2 p = lerp(points[i], points[i + 1], static_cast<double>(s) / steps);
            const double off = (smoothNoise(p.x / 3.0 + 9.0, p.y / 3.0, 4) - 0.5) * width * 0.5;
            wavy.push_back(p + Vec2{-d.y, d.x} * (off / std::max(span, 1.0)));
        }
    }
    r.add(Shape::line(wavy, width), raise(width * 0.45).rounded(width / 2.0, width * 0.4));
}

void weld(Relief& r, std::initializer_list<Vec2> points, double width) {
    weld(r, std::span<const Vec2>(points.begin(), points.size()), width);
}

void gap(Relief& r, std::initializer_list<Vec2> points, double width, double depth) {
    const Shape line = Shape::line(points, width);
    r.add(line, raise(-depth));
    r.stain(line, hex(0x1D1A16), 0.35);
}

void panel(Relief& r, double x0, double y0, double x1, double y1, double rise, double radius) {
    const Shape around = Shape::roundRect(x0 - 1.0, y0 - 1.0, x1 + 1.0, y1 + 1.0, radius + 1.0);
    r.add(around, raise(-0.8));
    r.stain(around, hex(0x1D1A16), 0.30);
    r.add(Shape::roundRect(x0, y0, x1, y1, radius), raise(0.8 + rise).rounded(1.0, 0.6));
}

void hinge(Relief& r, double width) {
    r.add(Shape::roundRect(-width / 2.0, -3.0, width / 2.0, 5.0, 1.0), raise(1.2).rounded(1.0, 0.8));
    r.add(Shape::capsule({-width / 2.0, 4.5}, {width / 2.0, 4.5}, 4.0), raise(2.0).rounded(2.0, 2.0));
}

void handle(Relief& r, double width) {
    r.add(Shape::line({{-width / 2.0, -2.0}, {-width / 2.0, 1.0}, {width / 2.0, 1.0}, {width / 2.0, -2.0}},
                      1.6),
          raise(3.0).rounded(0.8, 0.8));
}

void hatchRound(Relief& r, double radius, double rise) {
    r.add(Shape::circle({}, radius + 2.5), raise(1.0).rounded(1.5, 1.0));
    r.add(Shape::ring({}, radius, radius + 0.9), raise(-1.2));
    r.add(Shape::circle({}, radius), raise(rise - 1.0).rounded(3.0, 2.0));
    r.add(Shape::circle({}, radius * 0.72), raise(0.6).rounded(1.2, 0.6));
    {
        const auto placed = r.place({.y = -radius + 1.0, .angle = 180.0});
        hinge(r, radius * 0.8);
    }
    const auto placed = r.place({.y = radius * 0.38});
    handle(r, radius * 0.5);
}

void hatchRect(Relief& r, double width, double length, double rise, double radius) {
    panel(r, -width / 2.0, -length / 2.0, width / 2.0, length / 2.0, rise, radius);
    for (const double side : {-1.0, 1.0}) {
        const auto placed = r.place({.x = side * width * 0.28, .y = -length / 2.0 + 1.0, .angle = 180.0});
        hinge(r, width * 0.18);
    }
    const auto placed = r.place({.y = length * 0.26});
    handle(r, width * 0.3);
}

void hatchSplit(Relief& r, double width, double length, double rise) {
    for (const double side : {-1.0, 1.0}) {
        const double inner = 0.6;
        const double outer = width / 2.0;
        panel(r, side < 0 ? -outer : inner, -length / 2.0, side < 0 ? -inner : outer, length / 2.0, rise,
              3.0);
        for (const double along : {-0.28, 0.28}) {
            const auto placed =
                r.place({.x = side * (outer - 1.0), .y = along * length, .angle = side * 90.0});
            hinge(r, length * 0.16);
        }
        const auto placed = r.place({.x = side * width * 0.1, .angle = side * 90.0});
        handle(r, length * 0.22);
    }
}

void periscope(Relief& r, double width, double depth, double height) {
    r.add(Shape::roundRect(-width / 2.0 - 2.0, -depth / 2.0 - 2.0, width / 2.0 + 2.0, depth / 2.0 + 2.0, 2.0),
          raise(0.8).rounded(0.8, 0.6));
    r.add(Shape::roundRect(-width / 2.0, -depth / 2.0, width / 2.0, depth / 2.0, 1.2),
          raise(height).rounded(1.5, 1.2));
    r.add(Shape::rect(-width / 2.0 + 1.0, depth / 2.0 - 2.2, width / 2.0 - 1.0, depth / 2.0),
          raise(-height * 0.5), paints::Glass);
}

void liftingHook(Relief& r) {
    r.add(Shape::capsule({-3.0, 0.0}, {3.0, 0.0}, 4.5), raise(4.0).rounded(2.2, 2.0));
    r.add(Shape::circle({0.0, 2.0}, 1.2), raise(-3.0));
}

void ventDome(Relief& r, double radius) {
    r.add(Shape::circle({}, radius + 3.0), raise(0.8).rounded(0.8, 0.6));
    boltRing(r, {}, radius + 1.4, 10, 0.9);
    r.add(Shape::circle({}, radius), raise(radius * 0.45).rounded(radius, radius * 0.45));
}

void fillerCap(Relief& r, double radius) {
    r.add(Shape::circle({}, radius), raise(2.2).rounded(1.5, 1.2));
    r.add(Shape::circle({}, radius * 0.55), raise(1.0).rounded(1.0, 0.8));
    r.add(Shape::capsule({-radius * 0.8, 0}, {radius * 0.8, 0}, 1.4), raise(1.0).rounded(0.7, 0.6));
}

void cupola(Relief& r, double radius, double rise, int blocks, bool castRing) {
    const double inner = radius * 0.62;
    if (castRing) {
        r.add(Shape::circle({}, radius), raise(rise).rounded(radius - inner, rise).rough(0.3));
    } else {
        r.add(Shape::circle({}, radius + 2.5), raise(1.2).rounded(2.0, 1.2));
        r.add(Shape::circle({}, radius), raise(rise).rounded(2.5, 2.5));
    }
    for (int i = 0; i < blocks; ++i) {
        const double angle = 360.0 * i / blocks;
        const auto placed = r.place(
            {.x = bearing(angle).x * radius * 0.84, .y = bearing(angle).y * radius * 0.84, .angle = angle});
        if (castRing) {
            r.add(Shape::roundRect(-7.0, -4.0, 7.0, radius * 0.16 + 2.0, 2.0), raise(3.0).rounded(2.0, 2.0));
        }
        r.add(Shape::rect(-5.5, castRing ? radius * 0.1 : radius * 0.12, 5.5,
                          castRing ? radius * 0.16 + 1.0 : radius * 0.165),
              raise(-4.0), paints::Glass);
    }
    r.add(Shape::ring({}, inner - 1.0, inner + 0.6), raise(-1.5));
    const auto placed = r.place({.angle = 180.0});
    hatchRound(r, inner - 2.0, 3.5);
}

void louvres(Relief& r, double x0, double y0, double x1, double y1, int slats, bool crosswise) {
    r.add(Shape::roundRect(x0 - 2.5, y0 - 2.5, x1 + 2.5, y1 + 2.5, 2.0), raise(1.4).rounded(1.0, 0.8));
    const Shape opening = Shape::rect(x0, y0, x1, y1);
    r.add(opening, raise(-5.0));
    r.stain(opening, hex(0x100E0C), 0.75);
    const double step = (crosswise ? y1 - y0 : x1 - x0) / slats;
    for (int i = 0; i < slats; ++i) {
        const double a = (crosswise ? y0 : x0) + step * (i + 0.12);
        const double b = a + step * 0.62;
        const Shape slat = crosswise ? Shape::rect(x0, a, x1, b) : Shape::rect(a, y0, b, y1);
        // each slat leans, its lower edge tucked under the next
        r.add(slat, raise(5.0).rounded(step * 0.25, step * 0.2));
    }
}

void meshGrille(Relief& r, double x0, double y0, double x1, double y1, double pitch) {
    r.add(Shape::roundRect(x0 - 3.0, y0 - 3.0, x1 + 3.0, y1 + 3.0, 2.0), raise(1.6).rounded(1.2, 1.0));
    const Shape opening = Shape::rect(x0, y0, x1, y1);
    r.add(opening, raise(-6.0));
    r.stain(opening, hex(0x0E0D0B), 0.8);
    const double barStep = (y1 - y0) / std::max(1.0, std::round((y1 - y0) / 12.0));
    for (double y = y0 + barStep; y < y1 - 1.0; y += barStep) {
        r.add(Shape::capsule({x0, y}, {x1, y}, 2.4), raise(3.0).rounded(1.2, 1.0));
    }
    for (double y = y0 + pitch / 2.0; y < y1; y += pitch) {
        r.add(Shape::capsule({x0, y}, {x1, y}, 0.9), raise(2.2), paints::Steel);
    }
    for (double x = x0 + pitch / 2.0; x < x1; x += pitch) {
        r.add(Shape::capsule({x, y0}, {x, y1}, 0.9), raise(1.4), paints::Steel);
    }
    for (const double x : {x0 - 1.6, x1 + 1.6}) {
        bolts(r, {x, y0}, {x, y1}, 4, 0.9);
    }
}

void fanGrille(Relief& r, double radius, int spokes) {
    r.add(Shape::circle({}, radius + 4.0), raise(2.0).rounded(1.5, 1.5));
    boltRing(r, {}, radius + 2.0, 12, 1.0);
    r.add(Shape::circle({}, radius), raise(-7.0));
    r.stain(Shape::circle({}, radius), hex(0x0E0D0B), 0.8);
    for (int i = 0; i < 8; ++i) {
        const auto placed = r.place({.angle = i * 45.0 + 10.0});
        r.add(Shape::polygon({{-2.0, radius * 0.2},
                              {2.0, radius * 0.2},
                              {radius * 0.26, radius * 0.88},
                              {-radius * 0.1, radius * 0.92}}),
              raise(1.5), paints::DarkSteel);
    }
    for (int i = 0; i < spokes; ++i) {
        const auto placed = r.place({.angle = 360.0 * i / spokes});
        r.add(Shape::rect(-1.3, 0.0, 1.3, radius), raise(5.5).rounded(1.2, 0.8));
    }
    r.add(Shape::ring({}, radius * 0.52, radius * 0.60), raise(5.0).rounded(1.0, 0.8));
    r.add(Shape::circle({}, radius * 0.24), raise(6.0).rounded(radius * 0.2, 2.0));
}

void intakeCowl(Relief& r, double width, double length, double rise) {
    r.add(Shape::roundRect(-width / 2.0, -length / 2.0, width / 2.0, length / 2.0, width * 0.25),
          raise(rise).rounded(width * 0.35, rise * 0.7));
    r.add(Shape::rect(width * 0.36, -length * 0.42, width / 2.0, length * 0.42), raise(-rise * 0.5),
          paints::Dark);
}

void exhaustStack(Relief& r, double radius, double rise) {
    r.add(Shape::circle({}, radius), flat(rise).rounded(2.5, 2.0), paints::Rust);
    r.add(Shape::circle({}, radius * 0.56), flat(rise + 5.0).rounded(2.0, 1.5), paints::Rust);
    r.add(Shape::circle({}, radius * 0.40), flat(rise - 14.0), paints::Soot);
    r.add(Shape::band({}, radius + 3.0, radius + 5.0, 95.0, 265.0), flat(rise - 3.0).rounded(1.0, 0.6));
}

void silencer(Relief& r, double length, double radius, double tail) {
    r.add(Shape::roundRect(-length / 2.0, -radius, length / 2.0, radius, radius * 0.35),
          tube({-length / 2.0, 0}, {length / 2.0, 0}, radius, radius, radius), paints::Rust);
    for (const double x : {-length * 0.3, length * 0.3}) {
        r.add(Shape::rect(x - 1.4, -radius - 0.4, x + 1.4, radius + 0.4),
              tube({-length, 0}, {length, 0}, radius + 0.8, radius + 0.8, radius), paints::Steel);
    }
    if (tail > 0.0) {
        const auto placed = r.place({.x = length / 2.0, .angle = 90.0, .z = radius * 0.6});
        exhaustPipe(r, tail, radius * 0.36);
    }
}

void exhaustPipe(Relief& r, double length, double radius) {
    r.add(Shape::rect(-radius, 0.0, radius, length), tube({0, 0}, {0, length}, radius, radius, 0.0),
          paints::Rust);
    r.add(Shape::rect(-radius * 0.8, length - 2.0, radius * 0.8, length), raise(-radius), paints::Soot);
}

} // namespace artwork
