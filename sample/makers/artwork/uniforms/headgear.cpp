#include "parts/armour.h"
#include "parts/fittings.h"
#include "uniforms/uniforms.h"

namespace artwork {

void drawHeadgear(Relief& r, const UniformLook& look);

namespace {

Paint of(Rgb colour, double gloss = 0.03) {
    return {.colour = colour, .gloss = gloss, .dirt = 0.4};
}

/// A dome over the skull between the brim's height and the crown.
void dome(Relief& r, double brim, double crown, double halfWidth, const Paint& paint, double rise = 10.0) {
    r.add(Shape::symmetricSmooth({{0, crown},
                                  {halfWidth * 0.62, crown - 1.6},
                                  {halfWidth * 0.95, crown - 6.4},
                                  {halfWidth, brim},
                                  {0, brim - 0.6}}),
          flat(24.0).rounded(halfWidth * 0.95, rise), paint);
}

void chinStrap(Relief& r, Rgb colour) {
    for (const double side : {-1.0, 1.0}) {
        r.add(Shape::line({{side * 8.0, 15.0}, {side * 7.0, 7.0}, {side * 3.6, 0.2}, {0, -0.8}}, 1.0),
              raise(0.5).rounded(0.5, 0.4), of(colour));
    }
}

void fieldCap(Relief& r, Rgb colour) {
    r.add(Shape::symmetricSmooth({{0, 28.0}, {6.5, 27.6}, {9.4, 24.0}, {8.6, 18.0}, {0, 16.6}}),
          flat(24.0).rounded(6.0, 5.0).rough(0.3), of(colour));
    r.add(Shape::line({{-8.4, 20.4}, {0, 18.6}, {8.4, 20.4}}, 0.8), raise(-0.6), of(colour));
    r.add(Shape::symmetricSmooth({{0, 18.0}, {6.6, 18.4}, {7.6, 15.6}, {4.0, 14.2}, {0, 13.8}}),
          flat(28.0).rounded(2.4, 2.0), of(scaled(colour, 0.9)));
    r.add(Shape::circle({0, 22.6}, 1.0), raise(0.6).rounded(0.6, 0.4), of(hex(0xB9B4A4), 0.4));
}

void sideCap(Relief& r, Rgb colour) {
    r.add(Shape::smooth({{-8.2, 18.4}, {-7.4, 24.0}, {1.0, 28.6}, {6.6, 26.0}, {8.4, 20.0}, {0, 17.6}}),
          flat(24.0).rounded(5.0, 4.0).rough(0.3), of(colour));
    r.add(Shape::smooth({{-8.2, 18.2}, {-7.8, 22.4}, {0.6, 23.6}, {8.2, 22.4}, {8.4, 19.6}, {0, 17.4}}),
          flat(25.0).rounded(1.4, 1.2).rough(0.3), of(scaled(colour, 0.95)));
    r.add(Shape::circle({0.4, 21.0}, 0.9), raise(0.5).rounded(0.6, 0.4), of(hex(0xB9B4A4), 0.4));
}

void beret(Relief& r, Rgb colour) {
    r.add(Shape::smooth({{-8.6, 18.6},
                         {-9.8, 23.0},
                         {-4.0, 27.0},
                         {4.0, 26.4},
                         {11.0, 20.8},
                         {10.2, 16.8},
                         {7.4, 17.6},
                         {0, 17.0}}),
          flat(24.0).rounded(4.6, 4.0).rough(0.3), of(colour));
    r.add(Shape::line({{-8.2, 18.0}, {0, 16.6}, {8.0, 17.4}}, 1.3), flat(23.4).rounded(0.6, 0.5),
          of(hex(0x1D1C1A)));
    r.add(Shape::circle({-4.0, 20.6}, 1.4), raise(0.8).rounded(0.8, 0.5), of(hex(0xC2BCA8), 0.5));
}

void germanHelmet(Relief& r, Rgb colour, bool early) {
    const Paint paint = of(colour, 0.16);
    // the shell flares over ears and neck
    r.add(Shape::symmetricSmooth({{0, 28.4},
                                  {5.6, 27.0},
                                  {8.8, 22.0},
                                  {9.4, 17.2},
                                  {11.6, 11.6},
                                  {10.6, 9.8},
                                  {8.0, 10.4},
                                  {7.6, 13.6},
                                  {0, 15.4}}),
          flat(24.0).rounded(7.0, 9.0), paint);
    r.add(Shape::symmetricSmooth({{0, 18.0}, {6.0, 17.4}, {9.0, 14.8}, {8.6, 13.2}, {4.4, 14.4}, {0, 14.8}}),
          flat(27.0).rounded(1.6, 2.0), paint);
    if (early) {
        for (const double side : {-1.0, 1.0}) {
            r.add(Shape::circle({side * 8.4, 20.6}, 1.1), raise(1.4).rounded(0.8, 0.8), paint);
        }
    }
    chinStrap(r, hex(0x2E2620));
}

void americanHelmet(Relief& r, Rgb colour, bool cover) {
    const Paint paint =
        cover ? Paint{.colour = colour, .scheme = 0.9, .gloss = 0.02, .dirt = 0.4} : of(colour, 0.06);
    dome(r, 14.6, 29.0, 10.0, paint, 10.0);
    r.add(
        Shape::symmetricSmooth({{0, 16.6}, {6.4, 16.6}, {10.4, 14.6}, {10.4, 13.4}, {6.0, 14.2}, {0, 14.0}}),
        flat(27.0).rounded(1.0, 1.2), paint);
    chinStrap(r, hex(0x6E6A4A));
}

void soupPlate(Relief& r, Rgb colour, bool net) {
    const Paint paint = of(colour, 0.08);
    dome(r, 18.0, 28.0, 8.8, paint, 9.0);
    r.add(
        Shape::symmetricSmooth({{0, 19.6}, {8.0, 19.4}, {14.2, 16.0}, {13.6, 14.8}, {7.0, 15.6}, {0, 15.4}}),
        flat(27.0).rounded(1.6, 2.2), paint);
    if (net) {
        for (double x = -9.0; x <= 9.0; x += 2.2) {
            r.stain(Shape::line({{x, 16.0}, {x * 0.8 + 0.8, 27.0}}, 0.35), hex(0x2C2A1E), 0.5);
        }
        for (double y = 16.4; y < 28.0; y += 2.0) {
            r.stain(Shape::line({{-10.0, y}, {10.0, y + 0.4}}, 0.35), hex(0x2C2A1E), 0.5);
        }
    }
    chinStrap(r, hex(0x5A5238));
}

void adrian(Relief& r, Rgb colour) {
    const Paint paint = of(colour, 0.14);
    dome(r, 17.0, 27.6, 8.6, paint, 9.0);
    r.add(Shape::symmetricSmooth({{0, 18.4}, {7.4, 18.2}, {10.6, 14.6}, {9.6, 13.6}, {6.0, 15.0}, {0, 14.6}}),
          flat(27.0).rounded(1.4, 1.8), paint);
    // the crest along the top and the badge
    r.add(Shape::smooth({{-1.3, 22.0}, {-1.0, 29.6}, {1.0, 29.6}, {1.3, 22.0}}), flat(28.0).rounded(0.9, 1.2),
          paint);
    r.add(Shape::circle({0, 20.4}, 1.6), flat(28.0).rounded(1.0, 0.8), of(hex(0xA39468), 0.4));
    chinStrap(r, hex(0x4A3826));
}

void plainHelmet(Relief& r, Rgb colour, double flare, bool starBadge) {
    const Paint paint = of(colour, 0.10);
    dome(r, 13.6, 28.4, 9.4, paint, 10.0);
    r.add(Shape::symmetricSmooth(
              {{0, 16.0}, {6.6, 15.6}, {9.6 + flare, 12.6}, {9.0 + flare, 11.4}, {5.6, 13.8}, {0, 14.0}}),
          flat(26.4).rounded(1.2, 1.4), paint);
    if (starBadge) {
        star(r, {0, 20.6}, 1.9, hex(0xB9A254), 0.9);
    }
    chinStrap(r, hex(0x5A5238));
}

void modernHelmet(Relief& r, Rgb colour) {
    const Paint paint{.colour = colour, .scheme = 0.9, .gloss = 0.02, .dirt = 0.4};
    r.add(Shape::symmetricSmooth({{0, 28.6},
                                  {6.0, 27.4},
                                  {9.6, 22.4},
                                  {9.8, 15.0},
                                  {10.0, 9.8},
                                  {7.8, 9.0},
                                  {7.6, 13.4},
                                  {0, 15.2}}),
          flat(25.0).rounded(7.0, 9.0), paint);
    r.add(Shape::roundRect(-2.4, 19.0, 2.4, 24.0, 0.8), raise(1.2).rounded(0.8, 0.6), of(hex(0x3A3B33), 0.2));
    r.add(Shape::line({{-9.4, 17.6}, {0, 16.4}, {9.4, 17.6}}, 0.9), raise(0.3), of(hex(0x6C6A50)));
    chinStrap(r, hex(0x6C684C));
}

void paddedTanker(Relief& r, Rgb colour) {
    const Paint paint = of(colour, 0.08);
    dome(r, 15.4, 28.4, 9.2, paint, 8.0);
    for (const double x : {-5.0, 0.0, 5.0}) {
        r.add(Shape::smooth({{x - 1.7, 16.6},
                             {x * 0.86 - 1.5, 27.0 - std::abs(x) * 0.22},
                             {x * 0.86 + 1.5, 27.0 - std::abs(x) * 0.22},
                             {x + 1.7, 16.6}}),
              raise(1.8).rounded(1.6, 1.6), paint);
    }
    for (const double side : {-1.0, 1.0}) {
        r.add(Shape::smooth({{side * 7.2, 18.0},
                             {side * 9.8, 16.0},
                             {side * 9.6, 8.0},
                             {side * 7.4, 4.0},
                             {side * 6.4, 8.0}}),
              flat(22.0).rounded(2.0, 2.0), paint);
        r.add(Shape::circle({side * 8.6, 10.6}, 2.9), raise(1.6).rounded(2.0, 1.6), paint);
    }
    chinStrap(r, scaled(colour, 0.8));
}

void americanTanker(Relief& r, Rgb colour) {
    const Paint paint = of(colour, 0.14);
    dome(r, 16.0, 28.6, 9.2, paint, 9.0);
    r.add(Shape::rect(-8.6, 18.8, 8.6, 20.2), raise(0.6), of(hex(0x3E3226)));
    for (const double x : {-4.6, 0.0, 4.6}) {
        for (const double y : {23.0, 25.6}) {
            r.stain(Shape::circle({x, y}, 0.7), hex(0x1A1612), 0.85);
        }
    }
    for (const double side : {-1.0, 1.0}) {
        r.add(Shape::smooth({{side * 7.4, 17.0},
                             {side * 9.8, 15.0},
                             {side * 9.4, 8.0},
                             {side * 7.6, 5.0},
                             {side * 6.8, 9.0}}),
              flat(22.0).rounded(1.6, 1.6), of(hex(0x4A3A2A), 0.15));
        r.add(Shape::circle({side * 8.6, 11.0}, 2.8), raise(1.4).rounded(1.6, 1.4), of(hex(0x2A2622), 0.15));
    }
    chinStrap(r, hex(0x3E3226));
}

void frenchTanker(Relief& r, Rgb colour) {
    dome(r, 16.6, 28.0, 8.8, of(colour, 0.14), 9.0);
    // leather pad across the brow instead of a brim
    r.add(Shape::smooth({{-8.8, 17.8}, {0, 19.6}, {8.8, 17.8}, {8.6, 14.8}, {0, 15.6}, {-8.6, 14.8}}),
          flat(27.0).rounded(1.8, 1.8), of(hex(0x3B2A1E), 0.22));
    r.add(Shape::circle({0, 22.4}, 1.6), raise(1.0).rounded(1.0, 0.8), of(hex(0xA39468), 0.4));
    chinStrap(r, hex(0x3B2A1E));
}

void italianTanker(Relief& r) {
    const Paint leather = of(hex(0x2B2521), 0.3);
    dome(r, 17.0, 28.0, 8.8, leather, 9.0);
    for (const double side : {-1.0, 1.0}) {
        r.add(Shape::smooth({{side * 7.2, 18.0},
                             {side * 9.4, 15.0},
                             {side * 8.8, 6.0},
                             {side * 6.4, 3.0},
                             {side * 6.4, 9.0}}),
              flat(21.0).rounded(1.4, 1.4), leather);
    }
    // the padded roll around the brow
    r.add(Shape::line({{-9.0, 19.6}, {-4.6, 17.6}, {0, 17.0}, {4.6, 17.6}, {9.0, 19.6}}, 3.0),
          flat(28.0).rounded(1.5, 1.5), leather);
    chinStrap(r, hex(0x2B2521));
}

void japaneseTanker(Relief& r, Rgb colour) {
    const Paint paint = of(colour, 0.06);
    dome(r, 15.8, 28.0, 9.0, paint, 8.0);
    for (const double x : {-3.4, 3.4}) {
        r.add(Shape::line({{x, 17.0}, {x * 0.8, 27.0}}, 0.7), raise(-0.7), paint);
    }
    for (const double side : {-1.0, 1.0}) {
        r.add(Shape::smooth({{side * 7.2, 17.6},
                             {side * 9.6, 15.6},
                             {side * 9.0, 7.0},
                             {side * 6.6, 4.0},
                             {side * 6.6, 9.0}}),
              flat(21.0).rounded(1.6, 1.6), paint);
    }
    star(r, {0, 20.4}, 1.8, hex(0xB9A254), 0.9);
    chinStrap(r, hex(0x5A4A32));
}

void goggles(Relief& r) {
    r.add(Shape::line({{-9.2, 19.0}, {0, 20.2}, {9.2, 19.0}}, 1.1), raise(0.5), of(hex(0x3A342C)));
    for (const double side : {-1.0, 1.0}) {
        r.add(Shape::roundRect(side * 3.6 - 3.0, 18.6, side * 3.6 + 3.0, 22.6, 1.8),
              flat(28.4).rounded(1.0, 1.0), of(hex(0x2E2A25), 0.2));
        r.add(Shape::roundRect(side * 3.6 - 2.1, 19.4, side * 3.6 + 2.1, 21.8, 1.2),
              flat(28.0).rounded(1.0, -0.4), of(hex(0x7C8A86), 0.9));
    }
}

void headphones(Relief& r) {
    r.add(Shape::line(
              {{-8.6, 12.0}, {-9.4, 20.0}, {-5.0, 27.4}, {0, 29.2}, {5.0, 27.4}, {9.4, 20.0}, {8.6, 12.0}},
              1.1),
          flat(29.0).rounded(0.5, 0.5), of(hex(0x2A2927), 0.3));
    for (const double side : {-1.0, 1.0}) {
        r.add(Shape::ellipse({side * 8.6, 11.6}, 1.9, 2.8), flat(26.0).rounded(1.4, 1.4),
              of(hex(0x222120), 0.2));
    }
}

void putOn(Relief& r, const UniformLook& look) {
    switch (look.head) {
    case Headgear::FieldCap:
        fieldCap(r, look.headColour);
        break;
    case Headgear::SideCap:
        sideCap(r, look.headColour);
        break;
    case Headgear::Beret:
        beret(r, look.headColour);
        break;
    case Headgear::GermanHelmet:
    case Headgear::GermanHelmet1916:
        germanHelmet(r, look.headColour, look.head == Headgear::GermanHelmet1916);
        break;
    case Headgear::AmericanHelmet:
    case Headgear::AmericanHelmetCover:
        americanHelmet(r, look.headColour, look.head == Headgear::AmericanHelmetCover);
        break;
    case Headgear::SoupPlate:
    case Headgear::SoupPlateNet:
        soupPlate(r, look.headColour, look.head == Headgear::SoupPlateNet);
        break;
    case Headgear::Adrian:
        adrian(r, look.headColour);
        break;
    case Headgear::SovietHelmet:
        plainHelmet(r, look.headColour, 0.4, false);
        break;
    case Headgear::ItalianHelmet:
        plainHelmet(r, look.headColour, 0.0, false);
        break;
    case Headgear::JapaneseHelmet:
        plainHelmet(r, look.headColour, 1.2, true);
        break;
    case Headgear::ModernHelmet:
        modernHelmet(r, look.headColour);
        break;
    case Headgear::PaddedTanker:
        paddedTanker(r, look.headColour);
        break;
    case Headgear::AmericanTanker:
        americanTanker(r, look.headColour);
        break;
    case Headgear::FrenchTanker:
        frenchTanker(r, look.headColour);
        break;
    case Headgear::ItalianTanker:
        italianTanker(r);
        break;
    case Headgear::JapaneseTanker:
        japaneseTanker(r, look.headColour);
        break;
    }
}

} // namespace

void drawHeadgear(Relief& r, const UniformLook& look) {
    putOn(r, look);
    if ((look.features & Goggles) != 0) {
        goggles(r);
    }
    if ((look.features & Headphones) != 0) {
        headphones(r);
    }
}

} // namespace artwork
