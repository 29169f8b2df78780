#include "parts/wreck.h"

#include "noise.h"
#include "parts/gear.h"

#include <array>
#include <vector>

namespace artwork {

namespace {

void toward(Relief::Sample& s, Rgb colour, double share) {
    const auto keep = static_cast<float>(1.0 - share);
    s.r = s.r * keep + static_cast<float>(colour.r * share);
    s.g = s.g * keep + static_cast<float>(colour.g * share);
    s.b = s.b * keep + static_cast<float>(colour.b * share);
    s.scheme *= keep;
    s.gloss *= keep;
}

constexpr Rgb SootColour = hex(0x191614);
constexpr Rgb AshColour = hex(0x8F8A83);
constexpr Rgb RustColour = hex(0x7A4A2C);
constexpr Rgb BareColour = hex(0x54463C);

} // namespace

void scorch(Relief& r, Vec2 centre, double radius, double strength, std::uint32_t seed) {
    for (int y = 0; y < r.height(); ++y) {
        for (int x = 0; x < r.width(); ++x) {
            const Vec2 p = r.position(x, y);
            const double reach = length(p - centre) / radius;
            if (reach > 1.5) {
                continue;
            }
            const double rough = cloudNoise(p.x / 22.0, p.y / 22.0, 3, seed);
            const double d = reach + (rough - 0.5) * 0.9;
            auto& s = r.at(x, y);
            toward(s, SootColour, strength * (1.0 - smoothstep(0.35, 1.0, d)) * 0.92);
            const double core = strength * (1.0 - smoothstep(0.05, 0.55, d));
            const double kind = cloudNoise(p.x / 14.0, p.y / 14.0, 3, seed + 40);
            toward(s, BareColour, core * 0.6);
            toward(s, RustColour, core * smoothstep(0.5, 0.62, kind) * 0.85);
            toward(s, AshColour, core * (1.0 - smoothstep(0.33, 0.44, kind)) * 0.7);
        }
    }
}

void burnAll(Relief& r, double strength, double warp, std::uint32_t seed) {
    for (int y = 0; y < r.height(); ++y) {
        for (int x = 0; x < r.width(); ++x) {
            auto& s = r.at(x, y);
            if (s.alpha < 0.01F) {
                continue;
            }
            const Vec2 p = r.position(x, y);
            const double fire = cloudNoise(p.x / 70.0, p.y / 70.0, 4, seed);
            const double kind = cloudNoise(p.x / 24.0, p.y / 24.0, 4, seed + 7);
            const double gone = strength * smoothstep(0.36, 0.56, fire);
            toward(s, BareColour, gone * 0.8);
            toward(s, RustColour, gone * smoothstep(0.46, 0.60, kind) * 0.8);
            toward(s, SootColour, strength * smoothstep(0.50, 0.68, 1.0 - kind + (fire - 0.5) * 0.5) * 0.85);
            toward(s, AshColour,
                   gone * smoothstep(0.62, 0.70, cloudNoise(p.x / 9.0, p.y / 9.0, 2, seed + 19)) * 0.45);
            s.height +=
                static_cast<float>(warp * (cloudNoise(p.x / 40.0, p.y / 40.0, 2, seed + 3) - 0.5) * 2.0);
        }
    }
}

void shellHole(Relief& r, Vec2 centre, double radius) {
    const auto seed = static_cast<std::uint32_t>(std::abs(centre.x * 7.0 + centre.y * 3.0)) + 3U;
    scorch(r, centre, radius * 4.5, 0.8, seed);
    const auto placed = r.place({.x = centre.x, .y = centre.y});
    Dice dice(seed);
    const auto ragged = [&dice](double size, double spread) {
        std::vector<Vec2> points;
        points.reserve(15);
        for (int i = 0; i < 15; ++i) {
            points.push_back(bearing(i * 24.0) * (size * dice.next(1.0 - spread, 1.0 + spread)));
        }
        return Shape::polygon(points);
    };
    r.add(ragged(radius * 1.5, 0.22), raise(1.4).rounded(radius * 0.6, 1.4), paints::Steel);
    r.add(ragged(radius * 1.15, 0.14), raise(0.5).rounded(radius * 0.3, 0.5), paints::WornSteel);
    r.add(ragged(radius, 0.18), raise(-16.0), paints::Dark);
}

void furrow(Relief& r, Vec2 from, Vec2 to, double width) {
    r.add(Shape::capsule(from, to, width * 1.7), raise(0.9).rounded(width * 0.4, 0.9), paints::Steel);
    r.add(Shape::capsule(from, to, width), raise(-2.6).rounded(width * 0.5, -1.6), paints::WornSteel);
}

void openHatch(Relief& r, const Shape& opening) {
    Vec2 middle;
    for (const Vec2 p : opening.contours().front()) {
        middle = middle + p * (1.0 / static_cast<double>(opening.contours().front().size()));
    }
    r.add(opening, flat(r.heightAt(middle) - 24.0), paints::Dark);
}

void tornPlate(Relief& r, Vec2 centre, double rx, double ry, std::uint32_t seed) {
    Dice dice(seed);
    std::vector<Vec2> outer;
    std::vector<Vec2> inner;
    for (int i = 0; i < 19; ++i) {
        const Vec2 d = bearing(i * 360.0 / 19);
        const double k = dice.next(0.72, 1.15);
        inner.push_back({centre.x + d.x * rx * k, centre.y + d.y * ry * k});
        outer.push_back({centre.x + d.x * (rx * k + 4.0), centre.y + d.y * (ry * k + 4.0)});
    }
    r.add(Shape::polygon(outer), raise(2.6).rounded(3.0, 2.6), paints::Rust);
    r.add(Shape::polygon(inner), raise(-14.0), paints::Soot);
    debris(r, centre, std::min(rx, ry) * 0.7, 9, seed + 1);
}

void brokenTrack(Relief& r, Vec2 centre, double angle, double width, int links, double pitch) {
    const auto placed = r.placeOn({.x = centre.x, .y = centre.y, .angle = angle});
    const double start = -links * pitch / 2.0;
    const Shape strip = Shape::rect(-width / 2.0, start, width / 2.0, -start);
    r.add(strip, flat(6.0).rounded(1.0, 1.0), paints::TrackSteel);
    for (int i = 0; i < links; ++i) {
        const double y = start + (i + 0.5) * pitch;
        r.add(Shape::roundRect(-width / 2.0, y - pitch * 0.26, width / 2.0, y + pitch * 0.2, 1.0),
              raise(2.6).rounded(1.0, 1.0), paints::TrackSteel);
        r.stain(Shape::rect(-width / 2.0, y + pitch * 0.36, width / 2.0, y + pitch * 0.5), hex(0x151210),
                0.7);
        r.add(Shape::roundRect(-2.5, y - 3.0, 2.5, y + 3.0, 1.0), raise(4.0).rounded(1.5, 1.5), paints::Rust);
    }
}

void debris(Relief& r, Vec2 centre, double radius, int count, std::uint32_t seed) {
    Dice dice(seed);
    for (int i = 0; i < count; ++i) {
        const Vec2 way = bearing(dice.next(0.0, 360.0));
        const Vec2 at = centre + way * (radius * std::sqrt(dice.next()));
        const double size = dice.next(1.2, 4.5);
        const auto placed = r.placeOn({.x = at.x, .y = at.y, .angle = dice.next(0.0, 360.0)});
        r.add(Shape::polygon({{-size, -size * 0.4},
                              {size * 0.3, -size * 0.8},
                              {size, size * 0.5},
                              {-size * 0.3, size * 0.7}}),
              flat(size * 0.7), i % 3 == 0 ? paints::Rust : paints::DarkSteel);
    }
}

} // namespace artwork
