#include "noise.h"
#include "parts/armour.h"
#include "parts/fittings.h"
#include "uniforms/uniforms.h"

#include <array>

namespace artwork {

namespace {

constexpr Paint Cloth{.colour = {}, .scheme = 1.0, .gloss = 0.02, .dirt = 0.6};

Paint of(Rgb colour, double gloss = 0.03) {
    return {.colour = colour, .gloss = gloss, .dirt = 0.4};
}

bool has(const UniformLook& look, Feature feature) {
    return (look.features & feature) != 0;
}

void torso(Relief& r, const UniformLook& look) {
    const Paint cloth = has(look, Leather) ? of(look.cloth, 0.35) : Cloth;
    const Shape body = Shape::symmetricSmooth(
        {{0, -4}, {7, -4.5}, {14, -8.0}, {21, -13}, {23.5, -21}, {23.8, -34}, {0, -36}});
    r.add(body, flat(13.0).rounded(13.0, 11.0).rough(0.35), cloth);
    // arms part from the chest
    for (const double side : {-1.0, 1.0}) {
        r.add(Shape::smooth({{side * 13.5, -9.0},
                             {side * 20, -11.5},
                             {side * 23.5, -20},
                             {side * 23.6, -34},
                             {side * 17.0, -34},
                             {side * 16.0, -22}}),
              flat(12.0).rounded(5.5, 5.0).rough(0.35), cloth);
        for (const double y : {-18.0, -22.0, -28.0}) {
            r.add(Shape::line({{side * 17.0, y}, {side * 20.0, y - 1.4}}, 0.9), raise(-0.5), cloth);
        }
    }
    // the closing down the front
    if (look.collar == Collar::Wrap) {
        r.add(Shape::line({{-7.0, -6.0}, {1.5, -14.0}, {7.0, -34.0}}, 0.8), raise(-1.0), cloth);
    } else {
        r.add(Shape::line({{0.8, -8.0}, {0.8, -34.0}}, 0.6), raise(-0.9), cloth);
    }
    if (has(look, Buttons)) {
        for (double y = -13.0; y > -34.0; y -= 5.2) {
            r.add(Shape::circle({-0.6, y}, 0.85), raise(0.7).rounded(0.8, 0.6), of(hex(0x9A9484), 0.5));
        }
    }
    if (has(look, Greatcoat)) {
        for (double y = -13.0; y > -34.0; y -= 5.6) {
            for (const double x : {-5.0, 5.0}) {
                r.add(Shape::circle({x, y}, 0.95), raise(0.7).rounded(0.8, 0.6), of(hex(0x8E7A4A), 0.5));
            }
        }
    }
    if (has(look, Pockets)) {
        for (const double side : {-1.0, 1.0}) {
            r.add(Shape::roundRect(side * 9.2 - 4.6, -26.0, side * 9.2 + 4.6, -17.0, 0.8),
                  raise(0.7).rounded(0.6, 0.5), cloth);
            r.add(Shape::polygon({{side * 9.2 - 4.9, -16.6},
                                  {side * 9.2 + 4.9, -16.6},
                                  {side * 9.2 + 4.9, -19.0},
                                  {side * 9.2, -20.6},
                                  {side * 9.2 - 4.9, -19.0}}),
                  raise(0.7).rounded(0.6, 0.5), cloth);
            r.add(Shape::circle({side * 9.2, -19.4}, 0.7), raise(0.5).rounded(0.6, 0.5),
                  of(hex(0x8E8876), 0.5));
        }
    }
}

void straps(Relief& r, const UniformLook& look) {
    if (has(look, ShoulderStraps)) {
        for (const double side : {-1.0, 1.0}) {
            r.add(Shape::polygon({{side * 8.0, -5.6},
                                  {side * 9.4, -8.0},
                                  {side * 20.0, -13.4},
                                  {side * 20.6, -10.6},
                                  {side * 10.0, -4.8}}),
                  flat(14.0).rounded(0.7, 0.6), of(look.collarColour));
            r.stain(Shape::line({{side * 9.0, -6.6}, {side * 19.4, -12.0}}, 0.6), look.tabs, 0.7);
        }
    }
    if (has(look, Braces)) {
        for (const double side : {-1.0, 1.0}) {
            r.add(Shape::polygon(
                      {{side * 8.0, -6.0}, {side * 11.2, -6.6}, {side * 10.4, -34.0}, {side * 6.8, -34.0}}),
                  raise(0.9).rounded(0.6, 0.5), of(look.webbing));
            r.add(Shape::rect(side * 8.7 - 2.2, -25.0, side * 8.7 + 2.2, -23.4), raise(0.6),
                  of(hex(0x7D7868), 0.4));
        }
        r.add(Shape::rect(-23.0, -34.0, 23.0, -30.6), raise(1.0).rounded(0.6, 0.5), of(look.webbing));
        for (const double x : {-14.0, -9.0, 9.0, 14.0}) {
            r.add(Shape::roundRect(x - 2.2, -34.0, x + 2.2, -28.6, 0.8), raise(2.0).rounded(0.8, 0.8),
                  of(scaled(look.webbing, 0.9)));
        }
    }
    if (has(look, Plates)) {
        r.add(Shape::symmetric({{0, -11},
                                {6, -11},
                                {8.0, -8.0},
                                {11.5, -8.5},
                                {13.5, -14},
                                {14.5, -24},
                                {14.0, -34},
                                {0, -34}}),
              flat(17.5).rounded(2.2, 1.8).rough(0.3), Cloth);
        for (double y = -16.0; y > -34.0; y -= 3.6) {
            r.add(Shape::rect(-13.0, y, 13.0, y + 1.3), raise(0.7).rounded(0.5, 0.4), of(look.webbing));
        }
        for (const double x : {-9.2, -3.0, 3.2, 9.4}) {
            r.add(Shape::roundRect(x - 2.8, -34.0, x + 2.8, -24.0, 0.8), raise(2.6).rounded(1.2, 1.0),
                  of(look.webbing));
        }
    }
}

void collar(Relief& r, const UniformLook& look) {
    const Paint paint = of(look.collarColour);
    r.add(Shape::roundRect(-5.4, -9.0, 5.4, 4.0, 3.0), tube({0, -9}, {0, 4}, 5.6, 5.4, 8.0),
          of(look.skin, 0.1));
    if (look.collar == Collar::OpenTie) {
        r.add(Shape::polygon({{-5.6, -4.0}, {5.6, -4.0}, {0, -15.0}}), flat(13.6), of(hex(0x8C8560)));
        r.add(Shape::polygon({{-1.2, -5.0}, {1.2, -5.0}, {1.8, -13.0}, {0, -15.0}, {-1.8, -13.0}}),
              flat(14.2).rounded(0.8, 0.6), of(hex(0x4A4A3A)));
    }
    if (look.collar == Collar::Wrap) {
        r.add(Shape::polygon({{-5.6, -4.0}, {5.6, -4.0}, {0, -12.0}}), flat(13.4), of(hex(0x77776C)));
        r.add(Shape::polygon({{-1.0, -5.0}, {1.0, -5.0}, {1.4, -11.0}, {-1.4, -11.0}}), flat(14.0),
              of(hex(0x22211F)));
    }
    for (const double side : {-1.0, 1.0}) {
        switch (look.collar) {
        case Collar::Stand:
            r.add(Shape::polygon({{0, -9.6}, {side * 6.4, -7.6}, {side * 6.8, -2.8}, {0, -5.4}}),
                  flat(15.0).rounded(0.8, 0.8), paint);
            break;
        case Collar::Round:
            r.add(Shape::line({{0, -10.0}, {side * 4.6, -8.4}, {side * 6.4, -4.0}}, 1.8),
                  flat(14.8).rounded(0.9, 0.9), paint);
            break;
        case Collar::Fall:
            r.add(Shape::polygon(
                      {{side * 0.4, -9.0}, {side * 4.0, -12.8}, {side * 9.4, -8.2}, {side * 6.6, -3.0}}),
                  flat(15.4).rounded(0.9, 0.9), paint);
            break;
        case Collar::OpenTie:
            r.add(Shape::polygon(
                      {{side * 0.6, -15.0}, {side * 5.0, -10.8}, {side * 9.6, -8.4}, {side * 6.8, -3.0}}),
                  flat(15.4).rounded(0.9, 0.9), paint);
            break;
        case Collar::Wrap:
            r.add(Shape::polygon(
                      {{side * 0.4, -13.0}, {side * 10.4, -14.0}, {side * 10.8, -7.6}, {side * 6.6, -3.0}}),
                  flat(15.4).rounded(0.9, 0.9), paint);
            break;
        }
        const bool noTabs = look.tabs.r + look.tabs.g + look.tabs.b < 0.01;
        if (!noTabs && look.collar != Collar::Round && look.collar != Collar::OpenTie) {
            const Vec2 at = look.collar == Collar::Stand ? Vec2{side * 3.4, -6.6} : Vec2{side * 5.6, -9.2};
            const auto placed = r.place({.x = at.x,
                                         .y = at.y,
                                         .angle = side * 34.0,
                                         .z = look.collar == Collar::Stand ? 15.0 : 15.5});
            r.add(Shape::roundRect(-1.4, -2.4, 1.4, 2.4, 0.4), flat(0.5).rounded(0.3, 0.3), of(look.tabs));
            r.stain(Shape::rect(-0.35, -1.7, 0.35, 1.7), hex(0xD9D4C4), 0.8);
        }
    }
    if (has(look, Scarf)) {
        r.add(Shape::symmetricSmooth({{0, -3}, {6.4, -2.6}, {7.2, -7.0}, {3.0, -11.0}, {0, -11.4}}),
              flat(15.6).rounded(3.0, 2.4).rough(0.8), of(hex(0x8B8468)));
    }
}

void eyesAndMouth(Relief& r, Rgb skin, std::uint32_t seed) {
    Dice dice(seed);
    const double gaze = dice.next(-0.35, 0.35);
    const Rgb brow = mix(hex(0x4A3524), hex(0x8A6B44), dice.next());
    for (const double side : {-1.0, 1.0}) {
        const double x = side * 3.3;
        r.stain(Shape::ellipse({x, 12.2}, 2.3, 1.6), scaled(skin, 0.62), 0.5, 1.0);
        r.stain(Shape::ellipse({x, 11.9}, 1.45, 0.75), hex(0xE6DFD4), 0.9);
        r.stain(Shape::circle({x + gaze, 11.9}, 0.72), hex(0x35302A), 0.95);
        r.add(Shape::line({{side * 1.6, 13.5}, {side * 3.4, 14.2}, {side * 5.2, 13.4}}, 0.85), raise(0.35),
              of(brow));
        r.stain(Shape::ellipse({side * 4.6, 7.8}, 2.0, 1.6), hex(0xB4664F), 0.22, 1.2);
    }
    r.add(Shape::polygon({{-0.7, 12.4}, {0.7, 12.4}, {1.5, 8.6}, {0, 7.8}, {-1.5, 8.6}}),
          raise(1.5).rounded(1.2, 1.3), of(skin, 0.12));
    for (const double side : {-1.0, 1.0}) {
        r.stain(Shape::circle({side * 0.7, 8.1}, 0.45), hex(0x5A3A2C), 0.7);
    }
    const double smile = dice.next(-0.3, 0.35);
    r.stain(Shape::line({{-2.3, 5.0 + smile}, {0.0, 4.7}, {2.3, 5.0 + smile}}, 0.6), hex(0x6E4034), 0.85);
    r.stain(Shape::ellipse({0, 4.2}, 1.9, 0.8), hex(0xAC6A58), 0.55, 0.4);
    r.stain(Shape::ellipse({0, 2.2}, 2.4, 0.6), scaled(skin, 0.75), 0.35, 0.3);
}

void face(Relief& r, const UniformLook& look, std::uint32_t seed) {
    for (const double side : {-1.0, 1.0}) {
        r.add(Shape::ellipse({side * 7.6, 11.0}, 1.5, 2.8), flat(11.0).rounded(1.2, 1.0),
              of(look.skin, 0.08));
    }
    const Shape head = Shape::symmetricSmooth(
        {{0, 24.5}, {5.4, 23.0}, {7.6, 17.0}, {7.5, 10.0}, {6.4, 4.6}, {3.6, 0.6}, {0, -0.6}});
    r.add(head, flat(20.0).rounded(7.4, 8.0), of(look.skin, 0.14));
    r.stain(Shape::symmetricSmooth({{0, 6.6}, {4.2, 7.0}, {6.2, 8.4}, {5.8, 4.0}, {3.4, 1.0}, {0, 0.0}}),
            hex(0x6B5648), 0.16, 1.6);
    // hair at the temples
    const Rgb hair = mix(hex(0x3A2C20), hex(0x8A6B44), latticeNoise(static_cast<std::int32_t>(seed), 3, 5));
    for (const double side : {-1.0, 1.0}) {
        r.stain(
            Shape::smooth({{side * 7.7, 19.0}, {side * 7.7, 12.4}, {side * 6.6, 11.8}, {side * 6.2, 18.0}}),
            hair, 0.8, 0.6);
    }
    eyesAndMouth(r, look.skin, seed);
    if (has(look, Moustache)) {
        r.add(Shape::symmetricSmooth({{0, 7.0}, {1.8, 6.9}, {3.8, 5.6}, {4.6, 6.2}, {3.4, 5.0}, {0, 5.6}}),
              raise(0.8).rounded(0.6, 0.6), of(hair));
    }
}

} // namespace

void drawHeadgear(Relief& r, const UniformLook& look);

Scheme clothScheme(const UniformLook& look) {
    Scheme scheme{.base = look.cloth,
                  .dust = hex(0x9A8F76),
                  .dustAmount = 0.06,
                  .wear = 0.0,
                  .wash = 0.45,
                  .fade = 0.06,
                  .seed = 4};
    if (look.pattern == Pattern::Leaf) {
        scheme.patches = {{.colour = mix(look.cloth, hex(0x6B4B30), 0.7),
                           .size = 6.0,
                           .level = 0.55,
                           .soft = 0.02,
                           .seed = 3},
                          {.colour = mix(look.cloth, hex(0x2F3A22), 0.8),
                           .size = 4.5,
                           .level = 0.60,
                           .soft = 0.02,
                           .seed = 9}};
    } else if (look.pattern == Pattern::Splinter) {
        scheme.patches = {{.colour = mix(look.cloth, hex(0x8C7A50), 0.8),
                           .size = 9.0,
                           .level = 0.52,
                           .soft = 0.01,
                           .turn = 40.0,
                           .seed = 3},
                          {.colour = mix(look.cloth, hex(0x2F3A26), 0.8),
                           .size = 7.0,
                           .level = 0.58,
                           .soft = 0.01,
                           .turn = -30.0,
                           .seed = 9}};
    } else if (look.pattern == Pattern::Pixel) {
        scheme.patches = {{.colour = mix(look.cloth, hex(0x4A5238), 0.8),
                           .size = 3.2,
                           .level = 0.52,
                           .soft = 0.005,
                           .seed = 3},
                          {.colour = mix(look.cloth, hex(0xA59C7C), 0.8),
                           .size = 2.6,
                           .level = 0.58,
                           .soft = 0.005,
                           .seed = 9},
                          {.colour = mix(look.cloth, hex(0x363A2C), 0.8),
                           .size = 2.2,
                           .level = 0.62,
                           .soft = 0.005,
                           .seed = 17}};
    }
    return scheme;
}

void drawPortrait(Relief& r, const UniformLook& look, std::uint32_t seed) {
    const auto placed = r.place({.y = 2.0});
    torso(r, look);
    straps(r, look);
    collar(r, look);
    face(r, look, seed);
    drawHeadgear(r, look);
}

} // namespace artwork
