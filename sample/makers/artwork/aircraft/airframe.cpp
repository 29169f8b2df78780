#include "aircraft/airframe.h"

#include "parts/armour.h"
#include "parts/fittings.h"

#include <array>

namespace artwork {

void fuselage(Relief& r, std::initializer_list<Section> sections, double z, const Paint& paint) {
    const Section* s = sections.begin();
    for (std::size_t i = 0; i + 1 < sections.size(); ++i) {
        const auto [y0, w0] = s[i];
        const auto [y1, w1] = s[i + 1];
        r.add(Shape::polygon({{-w0, y0}, {w0, y0}, {w1, y1}, {-w1, y1}}), tube({0, y0}, {0, y1}, w0, w1, z),
              paint);
    }
}

void wingPair(Relief& r, std::initializer_list<Vec2> rightHalf, double z, double thickness) {
    for (const double side : {-1.0, 1.0}) {
        std::vector<Vec2> outline;
        for (const Vec2 p : rightHalf) {
            outline.push_back({p.x * side, p.y});
        }
        // highest near the leading edge, the tip higher than the root
        Form surface = plane({0, 0}, z + thickness, {side * 100.0, 0}, z + thickness + 7.0, {0, 100},
                             z + thickness + 6.0);
        r.add(Shape::polygon(outline), surface.rounded(thickness * 3.0, thickness));
    }
}

void ruledPair(Relief& r, std::initializer_list<Vec2> line, double width) {
    for (const double side : {-1.0, 1.0}) {
        std::vector<Vec2> points;
        for (const Vec2 p : line) {
            points.push_back({p.x * side, p.y});
        }
        const Shape shape = Shape::line(points, width);
        r.add(shape, raise(-1.6));
        r.stain(shape, hex(0x1D1A16), 0.35);
    }
}

void bodyFrames(Relief& r, std::initializer_list<double> at, double halfWidth) {
    for (const double y : at) {
        const Shape line = Shape::rect(-halfWidth, y - 0.9, halfWidth, y + 0.9);
        r.add(line, raise(-1.2));
        r.stain(line, hex(0x1D1A16), 0.25);
    }
}

void canopy(Relief& r, double from, double to, double halfWidth, double z, int frames) {
    const Paint glass{.colour = hex(0x4A5E66), .gloss = 1.0, .dirt = 0.05};
    r.add(Shape::roundRect(-halfWidth, from, halfWidth, to, halfWidth * 0.8),
          tube({0, from}, {0, to}, halfWidth, halfWidth, z), glass);
    // something of the cockpit shows through
    r.stain(Shape::roundRect(-halfWidth * 0.6, lerp(from, to, 0.12), halfWidth * 0.6, lerp(from, to, 0.88),
                             halfWidth * 0.4),
            hex(0x171C1F), 0.55, halfWidth * 0.3);
    r.stain(Shape::capsule({-halfWidth * 0.35, lerp(from, to, 0.1)}, {-halfWidth * 0.35, lerp(from, to, 0.9)},
                           halfWidth * 0.22),
            hex(0xD5E2E6), 0.35, halfWidth * 0.1);
    for (int i = 0; i <= frames; ++i) {
        const double y = lerp(from, to, static_cast<double>(i) / frames);
        r.add(Shape::rect(-halfWidth * (i == 0 || i == frames ? 0.7 : 1.0), y - 2.0,
                          halfWidth * (i == 0 || i == frames ? 0.7 : 1.0), y + 2.0),
              raise(1.4));
    }
    for (const double x : {-halfWidth, 0.0, halfWidth}) {
        r.add(Shape::rect(x - 1.6, from + halfWidth * 0.5, x + 1.6, to - halfWidth * 0.5), raise(1.2));
    }
}

void propeller(Relief& r, Vec2 hub, double radius, double spinner) {
    const Shape disc = Shape::ellipse({hub.x, hub.y + 4.0}, radius, 9.0);
    r.add(disc, flat(100.0).rounded(8.0, 2.0), {.colour = hex(0x4A4A48), .gloss = 0.0, .dirt = 0.0});
    r.stain(Shape::rect(hub.x - radius, hub.y - 6.0, hub.x - radius * 0.9, hub.y + 14.0), hex(0xC9B04A), 0.8);
    r.stain(Shape::rect(hub.x + radius * 0.9, hub.y - 6.0, hub.x + radius, hub.y + 14.0), hex(0xC9B04A), 0.8);
    r.thin(disc, 0.42);
    r.add(Shape::polygon({{hub.x - spinner, hub.y - 12.0},
                          {hub.x + spinner, hub.y - 12.0},
                          {hub.x + spinner * 0.75, hub.y + spinner * 0.6},
                          {hub.x, hub.y + spinner * 1.5},
                          {hub.x - spinner * 0.75, hub.y + spinner * 0.6}}),
          tube({hub.x, hub.y - 12.0}, {hub.x, hub.y + spinner * 1.5}, spinner, spinner * 0.2, 100.0),
          {.colour = hex(0x3E3F3C), .scheme = 0.3, .gloss = 0.3});
}

void exhaustStain(Relief& r, Vec2 from, double length, double width) {
    for (int i = 0; i < 5; ++i) {
        const double part = length * (1.0 - i * 0.16);
        r.stain(Shape::polygon({{from.x - width * 0.25, from.y},
                                {from.x + width * 0.25, from.y},
                                {from.x + width * 0.6, from.y - part},
                                {from.x - width * 0.6, from.y - part}}),
                hex(0x1E1A17), 0.12, width * 0.35);
    }
}

void exhaustStubs(Relief& r, double x, double y, double pitch, int count, double stain) {
    for (const double side : {-1.0, 1.0}) {
        for (int i = 0; i < count; ++i) {
            const double at = y + i * pitch;
            r.add(Shape::capsule({side * (x - 8.0), at}, {side * x, at - 9.0}, 8.0),
                  flat(112.0).rounded(4.0, 4.0), paints::Rust);
        }
        exhaustStain(r, {side * (x - 4.0), y}, stain, 22.0);
    }
}

void fin(Relief& r, double x, double front, double rear, double width, double z) {
    const double w = width / 2.0;
    r.add(Shape::smooth({{x, front},
                         {x + w, lerp(front, rear, 0.35)},
                         {x + w * 0.6, rear},
                         {x - w * 0.6, rear},
                         {x - w, lerp(front, rear, 0.35)}}),
          flat(z).rounded(w, 10.0));
    gap(r, {{x - w, lerp(front, rear, 0.62)}, {x + w, lerp(front, rear, 0.62)}}, 1.6);
}

void starAndBar(Relief& r, Vec2 centre, double radius) {
    const Rgb blue = hex(0x26365C);
    const Rgb white = hex(0xE4E2DA);
    r.stain(Shape::rect(centre.x - radius * 2.05, centre.y - radius * 0.32, centre.x + radius * 2.05,
                        centre.y + radius * 0.46),
            blue, 0.9);
    r.stain(Shape::circle(centre, radius * 1.08), blue, 0.9);
    r.stain(Shape::rect(centre.x - radius * 1.95, centre.y - radius * 0.22, centre.x + radius * 1.95,
                        centre.y + radius * 0.36),
            white, 0.9);
    r.stain(Shape::circle(centre, radius), blue, 1.0);
    star(r, centre, radius, white, 0.95);
}

void redStarMark(Relief& r, Vec2 centre, double radius) {
    star(r, centre, radius * 1.18, hex(0xE4E0D4), 0.9);
    star(r, centre, radius, hex(0xB02A26), 0.95);
}

void plainCross(Relief& r, Vec2 centre, double size) {
    balkenCross(r, centre, size);
}

void britishRoundel(Relief& r, Vec2 centre, double radius, bool yellowRing) {
    if (yellowRing) {
        r.stain(Shape::circle(centre, radius * 1.15), hex(0xCDA93A), 0.9);
    }
    r.stain(Shape::circle(centre, radius), hex(0x26365C), 0.92);
    r.stain(Shape::circle(centre, radius * 0.42), hex(0x9A2E2A), 0.95);
}

} // namespace artwork
