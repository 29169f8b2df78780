#include "parts/armour.h"

#include "parts/fittings.h"

#include <array>
#include <cctype>
#include <string_view>

namespace artwork {

namespace {

std::vector<Vec2> closeMirror(std::initializer_list<Vec2> rightHalf) {
    std::vector<Vec2> points(rightHalf);
    for (std::size_t i = rightHalf.size(); i-- > 0;) {
        if (points[i].x > 0.01) {
            points.push_back({-points[i].x, points[i].y});
        }
    }
    return points;
}

} // namespace

void frustum(Relief& r, std::span<const Vec2> lower, std::span<const Vec2> upper, double bottom, double top,
             bool roof) {
    const std::size_t n = lower.size();
    for (std::size_t i = 0; i < n; ++i) {
        const std::size_t j = (i + 1) % n;
        const double narrow = length(lower[j] - lower[i]);
        if (narrow < 0.01 && length(upper[j] - upper[i]) < 0.01) {
            continue;
        }
        const Form wall = narrow >= 0.01
                              ? plane(lower[i], bottom, lower[j], bottom, lerp(upper[i], upper[j], 0.5), top)
                              : plane(lower[i], bottom, upper[j], top, upper[i], top);
        r.add(Shape::polygon({lower[i], lower[j], upper[j], upper[i]}), wall);
    }
    if (roof) {
        r.add(Shape::polygon(upper), flat(top).rounded(1.5, 0.8));
    }
}

void frustumSymmetric(Relief& r, std::initializer_list<Vec2> lower, std::initializer_list<Vec2> upper,
                      double bottom, double top, bool roof) {
    frustum(r, closeMirror(lower), closeMirror(upper), bottom, top, roof);
}

void plate(Relief& r, std::initializer_list<Vec2> corners, double z0, double z1, double z2) {
    const Vec2* c = corners.begin();
    r.add(Shape::polygon(corners), plane(c[0], z0, c[1], z1, c[2], z2));
}

void turretRing(Relief& r, Vec2 centre, double radius, int boltCount) {
    r.add(Shape::circle(centre, radius * 1.1), raise(1.4).rounded(2.0, 1.4));
    boltRing(r, centre, radius * 1.04, boltCount, 1.4);
    r.add(Shape::circle(centre, radius * 0.97), raise(-3.0).rounded(2.0, 1.0));
    r.add(Shape::circle(centre, radius * 0.91), raise(-26.0), paints::DarkSteel);
    r.add(Shape::ring(centre, radius * 0.55, radius * 0.60), raise(3.0).rounded(1.0, 1.0), paints::Steel);
}

void rivets(Relief& r, std::initializer_list<Vec2> points, double pitch, double radius) {
    const Vec2* p = points.begin();
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        const double span = length(p[i + 1] - p[i]);
        bolts(r, p[i], p[i + 1], std::max(2, static_cast<int>(span / pitch) + 1), radius);
    }
}

void star(Relief& r, Vec2 centre, double radius, Rgb colour, double opacity) {
    std::array<Vec2, 10> points;
    for (std::size_t i = 0; i < points.size(); ++i) {
        points[i] = centre + bearing(static_cast<double>(i) * 36.0) * (i % 2 == 0 ? radius : radius * 0.382);
    }
    r.stain(Shape::polygon(points), colour, opacity);
}

void balkenCross(Relief& r, Vec2 centre, double size) {
    const auto arms = [&](double half, double thick, Rgb colour) {
        r.stain(Shape::rect(centre.x - half, centre.y - thick, centre.x + half, centre.y + thick), colour,
                0.85);
        r.stain(Shape::rect(centre.x - thick, centre.y - half, centre.x + thick, centre.y + half), colour,
                0.85);
    };
    arms(size, size * 0.38, hex(0xE2DED2));
    arms(size, size * 0.20, hex(0x1B1B1B));
}

void roundel(Relief& r, Vec2 centre, double radius, std::initializer_list<Rgb> fromOutside) {
    double size = radius;
    const double step = radius / static_cast<double>(fromOutside.size());
    for (const Rgb colour : fromOutside) {
        r.stain(Shape::circle(centre, size), colour, 0.85);
        size -= step;
    }
}

namespace {

/// Seven strokes of a digit as bits: top, upper right, lower right, bottom, lower left, upper left, middle.
constexpr std::array<unsigned, 10> DigitStrokes{0x3F, 0x06, 0x5B, 0x4F, 0x66, 0x6D, 0x7D, 0x07, 0x7F, 0x6F};

} // namespace

void digits(Relief& r, Vec2 start, double height, const char* text, Rgb colour, double opacity) {
    const double w = height * 0.46;
    const double h = height / 2.0;
    const std::array<std::array<Vec2, 2>, 7> strokes{{{{{0, height}, {w, height}}},
                                                      {{{w, height}, {w, h}}},
                                                      {{{w, h}, {w, 0}}},
                                                      {{{w, 0}, {0, 0}}},
                                                      {{{0, 0}, {0, h}}},
                                                      {{{0, h}, {0, height}}},
                                                      {{{0, h}, {w, h}}}}};
    for (const char c : std::string_view(text)) {
        if (std::isdigit(static_cast<unsigned char>(c)) != 0) {
            const unsigned bits = DigitStrokes[static_cast<std::size_t>(c - '0')];
            for (std::size_t s = 0; s < strokes.size(); ++s) {
                if ((bits >> s & 1U) != 0) {
                    r.stain(Shape::capsule(start + strokes[s][0], start + strokes[s][1], height * 0.2),
                            colour, opacity);
                }
            }
        }
        start.x += w + height * 0.36;
    }
}

} // namespace artwork
