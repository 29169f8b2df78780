#include "noise.h"
#include "parts/gear.h"
#include "uniforms/uniforms.h"

namespace artwork {

namespace {

constexpr Paint Cloth{.colour = {}, .scheme = 1.0, .gloss = 0.02, .dirt = 0.6};

Paint of(Rgb colour, double gloss = 0.03) {
    return {.colour = colour, .gloss = gloss, .dirt = 0.4};
}

bool has(const UniformLook& look, Feature feature) {
    return (look.features & feature) != 0;
}

Paint clothOf(const UniformLook& look) {
    return has(look, Leather) ? of(look.cloth, 0.35) : Cloth;
}

void arm(Relief& r, const UniformLook& look, Vec2 shoulder, Vec2 elbow, Vec2 hand, double z) {
    const Paint cloth = clothOf(look);
    r.add(Shape::capsule(shoulder, elbow, 10.5), tube(shoulder, elbow, 5.4, 4.8, z).rough(0.3), cloth);
    r.add(Shape::capsule(elbow, hand, 8.6), tube(elbow, hand, 4.4, 3.6, z - 1.0).rough(0.3), cloth);
    r.add(Shape::circle(hand, 3.4), flat(z + 3.0).rounded(3.0, 3.0), of(look.skin, 0.08));
}

void rifle(Relief& r) {
    const auto placed = r.place({.x = 5.0, .y = 13.0, .angle = -10.0, .z = 116.0});
    r.add(Shape::polygon({{-1.6, -22}, {1.6, -22}, {1.5, -8}, {1.3, 12}, {-1.3, 12}, {-1.5, -8}}),
          flat(3.0).rounded(1.2, 1.2), paints::Wood);
    r.add(Shape::capsule({0, 8}, {0, 24}, 1.8), flat(3.6).rounded(0.9, 0.9), paints::DarkSteel);
    r.add(Shape::rect(-1.3, -6, 1.3, 4), flat(4.2).rounded(0.8, 0.8), paints::DarkSteel);
    r.add(Shape::capsule({1.0, -3}, {4.0, -4}, 1.2), flat(4.0), paints::Steel);
}

bool isHelmet(Headgear head) {
    return head >= Headgear::GermanHelmet && head <= Headgear::ModernHelmet;
}

void headFromAbove(Relief& r, const UniformLook& look) {
    // nose and brow look out in front of whatever is worn
    r.add(Shape::ellipse({0, 3.0}, 8.4, 10.2), flat(154.0).rounded(8.0, 8.0), of(look.skin, 0.1));
    const bool cloth = look.head == Headgear::AmericanHelmetCover || look.head == Headgear::ModernHelmet;
    const Paint paint = cloth ? Paint{.colour = look.headColour, .scheme = 0.9, .gloss = 0.02, .dirt = 0.4}
                              : of(look.headColour, isHelmet(look.head) ? 0.2 : 0.05);
    if (look.head == Headgear::SoupPlate || look.head == Headgear::SoupPlateNet) {
        r.add(Shape::ellipse({0, 1.4}, 14.0, 15.0), flat(160.0).rounded(6.0, 4.0), paint);
        r.add(Shape::ellipse({0, 1.4}, 9.4, 10.4), flat(170.0).rounded(9.0, 9.0), paint);
    } else if (isHelmet(look.head)) {
        r.add(Shape::ellipse({0, 1.0}, 11.6, 13.2), flat(162.0).rounded(4.0, 4.0), paint);
        r.add(Shape::ellipse({0, 1.2}, 10.4, 11.6), flat(172.0).rounded(10.0, 10.0), paint);
        if (look.head == Headgear::Adrian) {
            r.add(Shape::capsule({0, -8}, {0, 9}, 2.2), raise(1.6).rounded(1.0, 1.0), paint);
        }
    } else if (look.head == Headgear::SideCap) {
        r.add(Shape::ellipse({0.6, 1.2}, 7.6, 10.6), flat(168.0).rounded(7.0, 7.0), paint);
        r.add(Shape::line({{0.6, -8.6}, {0.6, 10.8}}, 1.0), raise(-1.4), paint);
    } else if (look.head == Headgear::Beret) {
        r.add(Shape::ellipse({1.8, 1.0}, 11.2, 11.2), flat(168.0).rounded(8.0, 6.0), paint);
    } else {
        r.add(Shape::ellipse({0, 0.8}, 9.6, 11.0), flat(170.0).rounded(9.0, 9.0), paint);
        if (look.head == Headgear::FieldCap) {
            r.add(Shape::symmetricSmooth({{0, 15.4}, {5.0, 14.0}, {7.8, 9.0}, {0, 10.4}}),
                  flat(164.0).rounded(2.0, 2.0), paint);
        }
        if (look.head == Headgear::PaddedTanker) {
            for (const double x : {-4.4, 0.0, 4.4}) {
                r.add(Shape::capsule({x, -7.0 + std::abs(x) * 0.4}, {x, 8.6 - std::abs(x) * 0.4}, 2.6),
                      raise(1.8).rounded(1.3, 1.6), paint);
            }
        }
    }
    if (has(look, Goggles)) {
        for (const double x : {-3.6, 3.6}) {
            r.add(Shape::ellipse({x, 10.6}, 3.2, 2.0), flat(168.0).rounded(1.4, 1.4), of(hex(0x6C7A76), 0.9));
        }
    }
    if (has(look, Headphones)) {
        r.add(Shape::capsule({-9.6, 0.4}, {9.6, 0.4}, 1.6), flat(173.0).rounded(0.8, 0.8),
              of(hex(0x242321), 0.2));
        for (const double x : {-10.0, 10.0}) {
            r.add(Shape::ellipse({x, 0.4}, 2.4, 3.6), flat(164.0).rounded(2.0, 2.0), of(hex(0x242321), 0.2));
        }
    }
}

} // namespace

void drawFigure(Relief& r, const UniformLook& look, std::uint32_t seed) {
    Dice dice(seed);
    const auto placed = r.place({.y = -4.0, .angle = dice.next(-4.0, 4.0)});
    const Paint cloth = clothOf(look);
    if (has(look, Pack)) {
        r.add(Shape::roundRect(-12.0, -20.0, 12.0, -7.0, 3.0), flat(136.0).rounded(3.0, 5.0).rough(0.5),
              of(look.webbing));
        r.add(Shape::capsule({-10.0, -17.0}, {10.0, -17.0}, 6.5),
              tube({-10, -17}, {10, -17}, 3.2, 3.2, 136.0), of(scaled(look.webbing, 0.85)));
    }
    r.add(Shape::symmetricSmooth(
              {{0, 8.5}, {10, 7.5}, {19, 4.0}, {23, -2.0}, {20, -8.0}, {10, -10.5}, {0, -11.5}}),
          flat(142.0).rounded(9.0, 9.0).rough(0.4), cloth);
    if (has(look, Plates)) {
        r.add(Shape::symmetricSmooth({{0, 10.5}, {10, 9.5}, {13, 2.0}, {12.5, -9.0}, {0, -12.5}}),
              flat(146.0).rounded(3.0, 3.0), of(look.webbing));
    }
    if (has(look, Braces)) {
        for (const double side : {-1.0, 1.0}) {
            r.add(Shape::line({{side * 9.0, 7.0}, {side * 10.0, -2.0}, {side * 8.0, -10.0}}, 2.4),
                  raise(0.8).rounded(0.8, 0.6), of(look.webbing));
        }
    }
    if (has(look, Weapon)) {
        arm(r, look, {20, -2}, {21, 10}, {9, 9}, 122.0);
        arm(r, look, {-20, -2}, {-16, 13}, {3, 22}, 120.0);
        rifle(r);
        r.add(Shape::circle({2.6, 22.0}, 3.0), flat(122.0).rounded(3.0, 3.0), of(look.skin, 0.08));
    } else {
        arm(r, look, {20, -2}, {22, 9}, {15, 18}, 118.0);
        arm(r, look, {-20, -2}, {-22, 9}, {-15, 18}, 118.0);
    }
    headFromAbove(r, look);
}

} // namespace artwork
