#include "parts/gear.h"

#include "parts/fittings.h"

#include <algorithm>
#include <vector>

namespace artwork {

namespace {

void clamps(Relief& r, double from, double to, double halfWidth) {
    for (const double y : {lerp(from, to, 0.22), lerp(from, to, 0.72)}) {
        r.add(Shape::roundRect(-halfWidth, y - 1.6, halfWidth, y + 1.6, 0.8), raise(1.4).rounded(0.8, 0.6));
    }
}

void shaft(Relief& r, double from, double to, double radius) {
    r.add(Shape::capsule({0, from}, {0, to}, radius * 2.0),
          tube({0, from}, {0, to}, radius, radius, radius + 1.0), paints::Wood);
}

} // namespace

void shovel(Relief& r, double length) {
    const double h = length / 2.0;
    shaft(r, -h, h - 24.0, 1.9);
    r.add(Shape::capsule({-5.0, -h}, {5.0, -h}, 3.0), raise(1.0).rounded(1.5, 1.0), paints::Wood);
    r.add(Shape::smooth({{0.0, h},
                         {10.0, h - 12.0},
                         {10.0, h - 27.0},
                         {0.0, h - 30.0},
                         {-10.0, h - 27.0},
                         {-10.0, h - 12.0}}),
          raise(1.6).rounded(8.0, 1.2), paints::Steel);
    clamps(r, -h, h - 20.0, 4.0);
}

void axe(Relief& r, double length) {
    const double h = length / 2.0;
    shaft(r, -h, h, 1.8);
    r.add(Shape::polygon({{-3.5, h - 2.0},
                          {-4.0, h - 9.0},
                          {4.0, h - 10.0},
                          {15.0, h - 15.0},
                          {16.0, h + 3.0},
                          {4.0, h - 1.0}}),
          raise(1.8).rounded(2.5, 1.6), paints::Steel);
    clamps(r, -h, h - 12.0, 4.0);
}

void sledgehammer(Relief& r, double length) {
    const double h = length / 2.0;
    shaft(r, -h, h, 1.9);
    r.add(Shape::roundRect(-9.0, h - 8.0, 9.0, h, 1.5), raise(3.4).rounded(2.0, 1.5), paints::Steel);
    clamps(r, -h, h - 10.0, 4.0);
}

void crowbar(Relief& r, double length) {
    const double h = length / 2.0;
    r.add(Shape::line({{0, -h}, {0, h - 4.0}, {3.0, h}}, 2.6), raise(2.0).rounded(1.3, 1.2), paints::Steel);
    clamps(r, -h, h, 3.4);
}

void jack(Relief& r, double length) {
    const double h = length / 2.0;
    r.add(Shape::roundRect(-8.0, -h, 8.0, h - 8.0, 2.0), tube({0, -h}, {0, h}, 8.0, 8.0, 4.0), paints::Steel);
    r.add(Shape::rect(-4.5, h - 8.0, 4.5, h), tube({0, -h}, {0, h}, 4.5, 4.5, 6.0), paints::WornSteel);
    r.add(Shape::roundRect(-10.0, -h - 3.0, 10.0, -h + 3.0, 1.0), raise(2.0).rounded(1.0, 0.8),
          paints::Steel);
    r.add(Shape::circle({9.0, -h * 0.3}, 4.0), raise(3.0).rounded(2.0, 1.5), paints::Steel);
}

void woodBlock(Relief& r, double width, double length) {
    r.add(Shape::rect(-width / 2.0, -length / 2.0, width / 2.0, length / 2.0), raise(9.0).rounded(1.0, 0.8),
          paints::Wood);
    for (double x = -width / 2.0 + 3.0; x < width / 2.0; x += 4.0) {
        r.stain(Shape::capsule({x, -length / 2.0 + 1.0}, {x + 0.6, length / 2.0 - 1.0}, 0.7),
                paints::DarkWood.colour, 0.6);
    }
    for (const double y : {-length * 0.25, length * 0.25}) {
        r.add(Shape::rect(-width / 2.0 - 0.8, y - 1.5, width / 2.0 + 0.8, y + 1.5), raise(0.8),
              paints::Steel);
    }
}

void towCable(Relief& r, std::span<const Vec2> points, double width) {
    const std::vector<Vec2> path = curveThrough(points, 12);
    r.add(Shape::line(path, width), raise(width * 0.8).rounded(width / 2.0, width * 0.6), paints::Cable);
    double along = 0.0;
    for (std::size_t i = 0; i + 1 < path.size(); ++i) {
        // the lay of the strands
        const Vec2 d = path[i + 1] - path[i];
        const double span = length(d);
        for (double t = 2.4 - along; t < span; t += 2.4) {
            const Vec2 p = path[i] + d * (t / span);
            const Vec2 across = Vec2{-d.y, d.x} * (width * 0.42 / span);
            const Vec2 lean = d * (1.1 / span);
            r.stain(Shape::capsule(p - across - lean, p + across + lean, 0.7), hex(0x23211E), 0.6);
        }
        along = std::fmod(along + span, 2.4);
    }
    for (const auto& [end, next] :
         {std::pair{path.front(), path[1]}, std::pair{path.back(), path[path.size() - 2]}}) {
        const Vec2 d = end - next;
        const Vec2 out = end + d * (3.0 / std::max(length(d), 0.01));
        r.add(Shape::ring(out, width * 0.7, width * 1.7), raise(width * 0.7).rounded(1.0, 1.0),
              paints::Steel);
    }
}

void towCable(Relief& r, std::initializer_list<Vec2> points, double width) {
    towCable(r, std::span<const Vec2>(points.begin(), points.size()), width);
}

void cleaningRods(Relief& r, double length, int count) {
    const double h = length / 2.0;
    for (int i = 0; i < count; ++i) {
        const double x = (i - (count - 1) / 2.0) * 3.6;
        r.add(Shape::capsule({x, -h}, {x, h}, 3.0), tube({x, -h}, {x, h}, 1.5, 1.5, 1.8), paints::Wood);
        for (const double y : {-h, h - 5.0}) {
            r.add(Shape::rect(x - 1.6, y, x + 1.6, y + 4.0), raise(0.3), paints::Brass);
        }
    }
    clamps(r, -h, h, count * 1.8 + 2.0);
}

void fireExtinguisher(Relief& r) {
    r.add(Shape::roundRect(-5.0, -17.0, 5.0, 12.0, 4.0), tube({0, -17}, {0, 12}, 5.0, 5.0, 3.0),
          paints::Hull);
    r.add(Shape::roundRect(-2.0, 12.0, 2.0, 18.0, 1.0), raise(3.0).rounded(1.0, 1.0), paints::Brass);
    clamps(r, -17.0, 12.0, 6.0);
}

void headlight(Relief& r, double radius) {
    r.add(Shape::circle({0, -radius * 0.2}, radius), raise(radius * 1.3).rounded(radius, radius * 0.9));
    r.add(Shape::band({0, -radius * 0.2}, radius * 0.72, radius * 1.06, -58.0, 58.0), raise(-radius * 0.2),
          paints::Lens);
}

void convoyLamp(Relief& r) {
    r.add(Shape::ellipse({0, 0}, 6.0, 9.0), raise(6.0).rounded(6.0, 5.0));
    r.add(Shape::rect(-4.0, 6.5, 4.0, 8.5), raise(-3.0), paints::Dark);
}

void shackle(Relief& r) {
    r.add(Shape::line({{-5.0, -3.0}, {-5.5, 6.0}, {0.0, 12.0}, {5.5, 6.0}, {5.0, -3.0}}, 3.2),
          raise(4.0).rounded(1.6, 1.6));
    r.add(Shape::capsule({-8.0, -2.0}, {8.0, -2.0}, 3.4), raise(2.0).rounded(1.7, 1.6), paints::Steel);
}

void stowageBox(Relief& r, double width, double length, double rise) {
    const double w = width / 2.0;
    const double h = length / 2.0;
    r.add(Shape::roundRect(-w, -h, w, h, 2.0), raise(rise).rounded(1.6, 1.4));
    gap(r,
        {{-w + 2.5, -h + 2.5},
         {w - 2.5, -h + 2.5},
         {w - 2.5, h - 2.5},
         {-w + 2.5, h - 2.5},
         {-w + 2.5, -h + 2.5}},
        0.8, 0.8);
    for (const double s : {-0.5, 0.5}) {
        const auto placed = r.place({.x = width > length ? s * width * 0.6 : w - 3.0,
                                     .y = width > length ? h - 3.0 : s * length * 0.6,
                                     .angle = width > length ? 0.0 : 90.0});
        hinge(r, 7.0);
    }
}

void jerrycan(Relief& r, const Paint& paint) {
    r.add(Shape::roundRect(-17.0, -8.0, 17.0, 8.0, 3.0), raise(30.0).rounded(3.0, 2.0), paint);
    for (const double y : {-3.5, 0.0, 3.5}) {
        r.add(Shape::capsule({-9.0, y}, {5.0, y}, 1.8), raise(3.0).rounded(0.9, 0.9), paint);
    }
    r.add(Shape::circle({12.0, 0.0}, 4.0), raise(2.5).rounded(2.0, 1.0), paint);
}

void canvasRoll(Relief& r, double length, double radius, const Paint& paint) {
    const double h = length / 2.0;
    r.add(Shape::roundRect(-h, -radius, h, radius, radius * 0.6),
          tube({-h, 0}, {h, 0}, radius, radius * 0.96, radius * 0.8).rough(1.0), paint);
    for (const double x : {-h * 0.55, h * 0.5}) {
        r.add(Shape::rect(x - 1.3, -radius - 0.3, x + 1.3, radius + 0.3), raise(0.6), paints::Leather);
    }
}

void crate(Relief& r, double width, double length, double rise) {
    const double w = width / 2.0;
    const double h = length / 2.0;
    r.add(Shape::rect(-w, -h, w, h), raise(rise).rounded(1.0, 0.8), paints::Wood);
    for (double y = -h + length / 4.0; y < h - 1.0; y += length / 4.0) {
        gap(r, {{-w, y}, {w, y}}, 0.8, 1.0);
    }
    for (const double x : {-w * 0.75, w * 0.75}) {
        r.add(Shape::rect(x - 2.5, -h, x + 2.5, h), raise(1.2).rounded(0.6, 0.4), paints::Wood);
    }
}

void spareTrack(Relief& r, double width, int links, double pitch) {
    const double start = -links * pitch / 2.0;
    for (int i = 0; i < links; ++i) {
        const double y = start + i * pitch;
        r.add(Shape::roundRect(-width / 2.0, y + 0.6, width / 2.0, y + pitch - 0.6, 1.0),
              raise(3.0).rounded(1.0, 0.8), paints::TrackSteel);
        r.add(Shape::rect(-width / 2.0, y + pitch * 0.3, width / 2.0, y + pitch * 0.62),
              raise(1.6).rounded(1.0, 0.8), paints::TrackSteel);
        r.add(Shape::roundRect(-3.0, y + pitch * 0.1, 3.0, y + pitch * 0.9, 1.0),
              raise(3.0).rounded(1.5, 1.5), paints::TrackSteel);
    }
}

void antennaBase(Relief& r) {
    r.add(Shape::circle({}, 4.5), raise(4.0).rounded(2.0, 2.0), paints::Rubber);
    r.add(Shape::circle({}, 1.6), raise(6.0).rounded(1.6, 1.5), paints::Steel);
}

void smokeTubes(Relief& r, int count, double length, double radius) {
    r.add(Shape::roundRect(-(count - 1) * radius * 1.1 - radius, -3.0, (count - 1) * radius * 1.1 + radius,
                           3.0, 1.0),
          raise(6.0).rounded(1.0, 1.0), paints::Steel);
    for (int i = 0; i < count; ++i) {
        const auto placed =
            r.place({.x = (i - (count - 1) / 2.0) * radius * 2.3, .angle = (i - (count - 1) / 2.0) * 10.0});
        r.add(Shape::rect(-radius, -length * 0.3, radius, length * 0.7),
              tube({0, -length * 0.3}, {0, length * 0.7}, radius, radius, 10.0).onlyHigher());
        r.add(Shape::ellipse({0, length * 0.7 - 1.0}, radius * 0.72, 1.8), raise(-2.0), paints::Dark);
    }
}

namespace {

/// Height of the run over the wheels: level, then round the end wheels.
void trackRun(Relief& r, double x0, double x1, double rear, double front, double top, double radius) {
    r.add(Shape::rect(x0, rear, x1, front), flat(top), paints::TrackSteel);
    r.add(Shape::rect(x0, front, x1, front + radius - 0.6),
          tube({-1e4, front}, {1e4, front}, radius, radius, top - radius), paints::TrackSteel);
    r.add(Shape::rect(x0, rear - radius + 0.6, x1, rear),
          tube({-1e4, rear}, {1e4, rear}, radius, radius, top - radius), paints::TrackSteel);
}

void trackLink(Relief& r, double x0, double x1, double y, double pitch, double shrink,
               const TrackStyle& style, bool plain) {
    const double bar = pitch * style.bar * shrink;
    const Paint& paint = style.rubber ? paints::Rubber : paints::TrackSteel;
    const double mid = (x0 + x1) / 2.0;
    if (style.rubber) {
        for (const double side : {-1.0, 1.0}) {
            const double a = side < 0 ? x0 + 1.0 : mid + 4.0;
            r.add(Shape::roundRect(a, y - bar * 0.9, a + (x1 - x0) / 2.0 - 5.0, y + bar * 0.9, 1.5),
                  raise(style.barRise).rounded(1.0, 0.8), paint);
        }
        for (const double x : {x0 - 0.5, x1 - 3.5}) {
            r.add(Shape::roundRect(x, y - pitch * 0.3 * shrink, x + 4.0, y + pitch * 0.3 * shrink, 1.0),
                  raise(1.6).rounded(1.0, 0.8), paints::WornSteel);
        }
    } else if (style.chevron) {
        r.add(Shape::line({{x0 + 1.5, y - bar * 0.5}, {mid, y + bar * 0.5}, {x1 - 1.5, y - bar * 0.5}},
                          bar * 0.6),
              raise(style.barRise).rounded(bar * 0.3, 0.8), paint);
    } else if (!plain) {
        r.add(Shape::roundRect(x0, y - bar / 2.0, x1, y + bar / 2.0, 0.8),
              raise(style.barRise).rounded(1.0, 0.8), paint);
    }
    const Shape joint = Shape::rect(x0, y + pitch * 0.5 * shrink - 0.7, x1, y + pitch * 0.5 * shrink + 0.7);
    r.add(joint, raise(-1.6));
    r.stain(joint, hex(0x15120F), 0.5);
}

} // namespace

void track(Relief& r, double x0, double x1, double rear, double front, double top, double radius,
           const TrackStyle& style) {
    trackRun(r, x0, x1, rear, front, top, radius);
    bool plain = false;
    for (double y = rear; y <= front; y += style.pitch, plain = !plain) {
        trackLink(r, x0, x1, y, style.pitch, 1.0, style, style.split && plain);
    }
    // round the wheels the links foreshorten
    for (const double end : {-1.0, 1.0}) {
        const double base = end > 0 ? front : rear;
        for (double arc = style.pitch; arc / radius < 1.45; arc += style.pitch) {
            const double a = arc / radius;
            trackLink(r, x0, x1, base + end * std::sin(a) * radius, style.pitch, std::max(0.25, std::cos(a)),
                      style, false);
        }
    }
    const Shape edges = Shape::rect(x0, rear - radius, x1, front + radius);
    r.stain(edges, hex(0x6B5940), 0.22);
}

void barrel(Relief& r, std::span<const BarrelPoint> points, double z, const Paint& paint) {
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        const auto [y0, r0] = points[i];
        const auto [y1, r1] = points[i + 1];
        if (y1 - y0 < 0.01) {
            continue;
        }
        r.add(Shape::polygon({{-r0, y0}, {r0, y0}, {r1, y1}, {-r1, y1}}), tube({0, y0}, {0, y1}, r0, r1, z),
              paint);
    }
}

void barrel(Relief& r, std::initializer_list<BarrelPoint> points, double z, const Paint& paint) {
    barrel(r, std::span<const BarrelPoint>(points.begin(), points.size()), z, paint);
}

void muzzleBrake(Relief& r, double y, double length, double radius, double z) {
    const double neck = radius * 0.74;
    barrel(r,
           {{y - length, neck},
            {y - length, radius * 0.9},
            {y - length * 0.86, radius},
            {y - length * 0.66, radius}},
           z);
    barrel(r, {{y - length * 0.66, neck}, {y - length * 0.42, neck}}, z);
    barrel(r, {{y - length * 0.42, radius}, {y - length * 0.24, radius}}, z);
    barrel(r, {{y - length * 0.24, neck}, {y - length * 0.10, neck}}, z);
    barrel(r, {{y - length * 0.10, radius * 0.92}, {y, radius * 0.86}}, z);
    for (const double from : {0.66, 0.24}) {
        const double to = from > 0.5 ? 0.42 : 0.10;
        // the side windows
        for (const double side : {-1.0, 1.0}) {
            r.stain(Shape::rect(side > 0 ? neck * 0.3 : -radius, y - length * from,
                                side > 0 ? radius : -neck * 0.3, y - length * to),
                    hex(0x12100E), 0.55);
        }
    }
    r.stain(Shape::rect(-radius, y - length * 0.7, radius, y), hex(0x15120F), 0.25, 2.0);
}

void muzzleBore(Relief& r, double y, double radius, double z) {
    r.add(Shape::rect(-radius, y - 1.2, radius, y), tube({0, y - 2}, {0, y}, radius, radius, z),
          paints::DarkSteel);
}

void machineGunBarrel(Relief& r, double from, double to, double radius, double z, bool jacket) {
    const double tip = to - (to - from) * 0.14;
    barrel(r, {{from, radius}, {tip, radius}}, z, paints::DarkSteel);
    barrel(r, {{tip, radius * 0.6}, {to - 2.5, radius * 0.6}, {to - 2.5, radius * 0.95}, {to, radius * 1.05}},
           z, paints::DarkSteel);
    if (jacket) {
        for (double y = from + 4.0; y < tip - 2.0; y += 4.4) {
            for (const double x : {-radius * 0.45, radius * 0.45}) {
                r.stain(Shape::ellipse({x, y}, radius * 0.28, 1.3), hex(0x080808), 0.8);
            }
        }
    }
}

} // namespace artwork
