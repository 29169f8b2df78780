#include "aircraft/airframe.h"
#include "catalogue.h"
#include "parts/armour.h"
#include "parts/fittings.h"
#include "parts/gear.h"
#include "schemes.h"

#include <array>

namespace artwork {

namespace {

constexpr Paint CockpitGlass{.colour = hex(0x3C4E56), .gloss = 1.0, .dirt = 0.05};

void rocketPod(Relief& r, double x, double y, double radius, double length) {
    r.add(Shape::roundRect(x - radius, y - length / 2, x + radius, y + length / 2, 4.0),
          tube({x, y - length / 2}, {x, y + length / 2}, radius, radius, 70.0));
    r.add(Shape::rect(x - radius, y + length / 2 - 6.0, x + radius, y + length / 2), raise(-2.0),
          paints::DarkSteel);
    for (const double t : {-0.2, 0.2}) {
        r.add(Shape::rect(x - radius - 0.8, y + t * length - 2.0, x + radius + 0.8, y + t * length + 2.0),
              raise(0.8), paints::Steel);
    }
}

void rotorHead(Relief& r, double y, double radius) {
    r.add(Shape::circle({0, y}, radius), flat(214.0).rounded(4.0, 6.0), paints::Steel);
    r.add(Shape::circle({0, y}, radius * 0.45), flat(230.0).rounded(4.0, 4.0), paints::DarkSteel);
}

void uh1(Relief& r) {
    // skids
    for (const double side : {-1.0, 1.0}) {
        r.add(Shape::line({{side * 104, 20}, {side * 104, 420}, {side * 98, 452}}, 8.0),
              flat(18.0).rounded(4.0, 4.0), paints::Steel);
        for (const double y : {110.0, 310.0}) {
            r.add(Shape::capsule({0, y}, {side * 104, y}, 7.0), flat(30.0).rounded(3.0, 3.0), paints::Steel);
        }
        r.add(Shape::rect(side > 0 ? 80.0 : -138.0, 246.0, side > 0 ? 138.0 : -80.0, 262.0),
              flat(60.0).rounded(3.0, 3.0));
        rocketPod(r, side * 134.0, 250.0, 20.0, 150.0);
        const auto gun = r.place({.x = side * 112.0, .y = 140.0, .angle = side * 12.0, .z = 86.0});
        machineGunBarrel(r, -10.0, 92.0, 3.4, 0.0, true);
        r.add(Shape::roundRect(-7, -36, 7, -6, 3), flat(4.0).rounded(3.0, 3.0), paints::DarkSteel);
    }
    // tail boom, stabiliser, tail rotor
    wingPair(r, {{0, -418}, {20, -412}, {134, -424}, {138, -440}, {130, -470}, {20, -480}, {0, -478}}, 120.0,
             5.0);
    fuselage(r, {{-612, 10}, {-540, 16}, {-300, 26}, {-60, 44}, {40, 66}}, 118.0);
    bodyFrames(r, {-480, -380, -280, -180, -90}, 40.0);
    fin(r, 6.0, -520, -640, 18.0, 190.0);
    {
        const Shape disc = Shape::roundRect(-26.0, -640.0, -20.0, -506.0, 3.0);
        r.add(disc, flat(170.0).rounded(2.0, 2.0), {.colour = hex(0x3A3A38)});
        r.thin(disc, 0.55);
        r.add(Shape::capsule({-24, -574}, {0, -574}, 6.0), flat(172.0).rounded(3.0, 3.0), paints::Steel);
    }
    // cabin
    const Shape cabin = Shape::symmetricSmooth(
        {{0, 634}, {44, 620}, {84, 560}, {98, 460}, {98, 180}, {88, 80}, {60, 0}, {0, -20}});
    r.add(cabin, flat(168.0).rounded(52.0, 60.0));
    for (const double side : {-1.0, 1.0}) {
        r.add(Shape::smooth(
                  {{side * 8, 612}, {side * 42, 600}, {side * 74, 552}, {side * 78, 500}, {side * 12, 512}}),
              raise(-0.6), CockpitGlass);
        r.add(Shape::roundRect(side > 0 ? 26.0 : -68.0, 420.0, side > 0 ? 68.0 : -26.0, 486.0, 8.0),
              raise(0.2), {.colour = hex(0x3E6250), .gloss = 0.9, .dirt = 0.05});
        r.add(Shape::roundRect(side > 0 ? 86.0 : -97.0, 430.0, side > 0 ? 97.0 : -86.0, 520.0, 4.0),
              raise(-0.5), CockpitGlass);
        gap(r, {{side * 97, 410}, {side * 90, 410}, {side * 90, 190}, {side * 97, 190}}, 1.6);
    }
    r.add(Shape::rect(-3, 506, 3, 626), raise(0.8));
    // engine cowling and exhaust behind the mast
    r.add(Shape::roundRect(-52, -30, 52, 330, 34), flat(188.0).rounded(26.0, 18.0));
    louvres(r, -34, 60, 34, 110, 6);
    meshGrille(r, -42, 190, -18, 250, 5.0);
    meshGrille(r, 18, 190, 42, 250, 5.0);
    r.add(Shape::roundRect(-26, -70, 26, -14, 10), flat(168.0).rounded(8.0, 8.0), paints::Rust);
    r.add(Shape::ellipse({0, -62}, 18.0, 8.0), raise(-10.0), paints::Soot);
    exhaustStain(r, {0, -66}, 240.0, 40.0);
    rotorHead(r, 200.0, 22.0);
    star(r, {0, 384}, 20.0, hex(0x2E3024), 0.7);
}

void blade(Relief& r, double from, double to, double width) {
    r.add(Shape::polygon(
              {{-width * 0.35, from}, {width * 0.65, from}, {width * 0.65, to}, {-width * 0.35, to}}),
          flat(30.0).rounded(width * 0.4, 5.0), {.colour = hex(0x3C3D38), .gloss = 0.15, .dirt = 0.3});
    r.stain(Shape::rect(-width * 0.35, to - 34.0, width * 0.65, to), hex(0xBFA64A), 0.8);
}

void uh1Rotor(Relief& r) {
    for (const double angle : {36.0, 216.0}) {
        const auto placed = r.place({.angle = angle});
        blade(r, 60.0, 670.0, 52.0);
        r.add(Shape::roundRect(-14, 16, 14, 90, 6), flat(34.0).rounded(6.0, 6.0), paints::Steel);
    }
    {
        // stabiliser bar with its weights
        const auto placed = r.place({.angle = 126.0});
        r.add(Shape::capsule({0, -136}, {0, 136}, 6.0), flat(40.0).rounded(3.0, 3.0), paints::Steel);
        for (const double y : {-136.0, 136.0}) {
            r.add(Shape::circle({0, y}, 11.0), flat(44.0).rounded(8.0, 8.0), paints::DarkSteel);
        }
    }
    r.add(Shape::circle({}, 24.0), flat(46.0).rounded(8.0, 8.0), paints::Steel);
    r.thin(Shape::circle({}, 700.0), 0.78);
}

void rotor(Relief& r, int blades, double radius, double width, double hub) {
    for (int i = 0; i < blades; ++i) {
        const auto placed = r.place({.angle = 14.0 + 360.0 * i / blades});
        blade(r, hub * 1.6, radius, width);
        r.add(Shape::roundRect(-9, 0, 9, hub * 2.0, 4), flat(36.0).rounded(5.0, 5.0), paints::Steel);
        r.add(Shape::circle({0, hub * 1.3}, 11.0), flat(42.0).rounded(5.0, 5.0), paints::DarkSteel);
    }
    r.add(Shape::circle({}, hub), flat(46.0).rounded(8.0, 8.0), paints::Steel);
    r.add(Shape::circle({}, hub * 0.5), flat(54.0).rounded(6.0, 6.0), paints::DarkSteel);
    r.thin(Shape::circle({}, radius + 10.0), 0.78);
}

void mi24Rotor(Relief& r) {
    rotor(r, 5, 864.0, 58.0, 40.0);
}

void ka52Rotor(Relief& r) {
    rotor(r, 3, 724.0, 53.0, 34.0);
}

void missileRail(Relief& r, double x, double y) {
    for (const double off : {-9.0, 9.0}) {
        r.add(Shape::capsule({x + off, y - 70}, {x + off, y + 78}, 12.0),
              tube({x + off, y - 70}, {x + off, y + 78}, 6.5, 6.0, 62.0),
              {.colour = hex(0x5C5F4A), .gloss = 0.2});
    }
}

void mi24(Relief& r) {
    // stub wings with their loads
    wingPair(r, {{0, 250}, {100, 236}, {318, 190}, {322, 120}, {100, 100}, {0, 96}}, 90.0, 8.0);
    for (const double side : {-1.0, 1.0}) {
        rocketPod(r, side * 168.0, 170.0, 24.0, 220.0);
        rocketPod(r, side * 236.0, 164.0, 24.0, 220.0);
        missileRail(r, side * 302.0, 156.0);
    }
    wingPair(r, {{0, -640}, {24, -632}, {170, -650}, {176, -676}, {168, -712}, {24, -726}, {0, -724}}, 120.0,
             6.0);
    fuselage(r, {{-866, 12}, {-780, 20}, {-560, 32}, {-300, 48}, {-120, 70}}, 124.0);
    bodyFrames(r, {-700, -600, -500, -400, -300, -200}, 56.0);
    fin(r, 0.0, -700, -874, 24.0, 200.0);
    {
        const Shape disc = Shape::roundRect(20.0, -872.0, 27.0, -730.0, 3.0);
        r.add(disc, flat(190.0).rounded(2.0, 2.0), {.colour = hex(0x3A3A38)});
        r.thin(disc, 0.55);
        r.add(Shape::capsule({0, -806}, {24, -806}, 7.0), flat(190.0).rounded(3.0, 3.0), paints::Steel);
    }
    const Shape body = Shape::symmetricSmooth(
        {{0, 858}, {26, 836}, {46, 760}, {58, 640}, {82, 500}, {88, 240}, {84, -20}, {70, -130}, {0, -150}});
    r.add(body, flat(150.0).rounded(48.0, 60.0));
    for (const double side : {-1.0, 1.0}) {
        for (const double y : {430.0, 350.0, 270.0, 190.0}) {
            r.add(Shape::roundRect(side * 84 - 5, y - 18, side * 84 + 5, y + 18, 3), raise(-0.5),
                  CockpitGlass);
        }
    }
    // twin bubbles, the gunner in front, the pilot above and behind
    for (const auto& [y, w, z] : {std::array{742.0, 38.0, 150.0}, std::array{624.0, 44.0, 176.0}}) {
        r.add(Shape::ellipse({0, y}, w + 5.0, 62.0), flat(z - 16.0).rounded(20.0, 20.0));
        r.add(Shape::ellipse({0, y}, w, 55.0), flat(z).rounded(w, 34.0), CockpitGlass);
        r.add(Shape::rect(-2.2, y - 54, 2.2, y + 54), raise(1.4));
        r.add(Shape::rect(-w, y - 3, w, y + 3), raise(1.4));
        r.stain(Shape::ellipse({0, y}, w * 0.6, 34.0), hex(0x161C20), 0.45, 10.0);
    }
    // chin turret and sensor pods
    r.add(Shape::circle({0, 826}, 18.0), flat(104.0).rounded(16.0, 14.0), paints::DarkSteel);
    for (const double x : {-5.0, 0.0, 5.0}) {
        r.add(Shape::capsule({x, 836}, {x, 872}, 3.6), flat(102.0).rounded(1.8, 1.8), paints::DarkSteel);
    }
    // engines side by side with their filters
    for (const double side : {-1.0, 1.0}) {
        const auto engine = r.place({.x = side * 40.0});
        fuselage(r, {{-20, 26}, {120, 34}, {330, 36}, {430, 32}}, 186.0);
        r.add(Shape::circle({0, 436}, 30.0), flat(220.0).rounded(28.0, 26.0));
        bodyFrames(r, {60, 160, 260, 350}, 36.0);
        r.add(Shape::ellipse({side * 34.0, 20}, 14.0, 34.0), flat(206.0).rounded(8.0, 8.0), paints::Rust);
        r.add(Shape::ellipse({side * 38.0, 20}, 8.0, 26.0), raise(-10.0), paints::Soot);
        exhaustStain(r, {side * 34.0, 0}, 200.0, 34.0);
    }
    r.add(Shape::roundRect(-26, 60, 26, 330, 20), flat(222.0).rounded(16.0, 14.0));
    rotorHead(r, 200.0, 34.0);
    redStarMark(r, {0, -40}, 26.0);
}

void ka52(Relief& r) {
    wingPair(r, {{0, 110}, {90, 100}, {352, 70}, {360, -10}, {90, -40}, {0, -44}}, 90.0, 8.0);
    for (const double side : {-1.0, 1.0}) {
        rocketPod(r, side * 190.0, 36.0, 24.0, 200.0);
        rocketPod(r, side * 270.0, 32.0, 20.0, 170.0);
        r.add(Shape::roundRect(side * 350 - 13, -60, side * 350 + 13, 110, 9), flat(90.0).rounded(9.0, 10.0));
    }
    // tailplane with a fin at each end
    wingPair(r, {{0, -520}, {30, -512}, {196, -530}, {200, -600}, {30, -612}, {0, -610}}, 110.0, 6.0);
    for (const double side : {-1.0, 1.0}) {
        r.add(Shape::ellipse({side * 200, -570}, 9.0, 78.0), flat(180.0).rounded(9.0, 14.0));
    }
    fuselage(r, {{-670, 14}, {-600, 26}, {-380, 44}, {-160, 66}}, 116.0);
    bodyFrames(r, {-500, -400, -300, -220}, 50.0);
    fin(r, 0.0, -540, -674, 22.0, 190.0);
    r.add(Shape::symmetricSmooth({{0, 672},
                                  {32, 654},
                                  {60, 590},
                                  {84, 500},
                                  {90, 380},
                                  {84, 120},
                                  {76, -100},
                                  {60, -170},
                                  {0, -190}}),
          flat(150.0).rounded(48.0, 58.0));
    // crew side by side under a flat-paned hood
    for (const double side : {-1.0, 1.0}) {
        r.add(Shape::polygon({{side * 4, 556}, {side * 50, 540}, {side * 68, 470}, {side * 4, 478}}),
              raise(2.0).rounded(3.0, 2.0), CockpitGlass);
        r.add(Shape::polygon({{side * 4, 470}, {side * 68, 462}, {side * 72, 390}, {side * 4, 392}}),
              raise(2.0).rounded(3.0, 2.0), CockpitGlass);
        const auto engine = r.place({.x = side * 66.0});
        fuselage(r, {{-30, 24}, {60, 32}, {230, 36}, {330, 32}, {346, 24}}, 150.0);
        r.add(Shape::ellipse({0, 340}, 22.0, 12.0), raise(-6.0), paints::Dark);
        r.add(Shape::ellipse({side * 16.0, -40}, 22.0, 30.0), flat(160.0).rounded(10.0, 10.0), paints::Rust);
        r.add(Shape::ellipse({side * 18.0, -44}, 14.0, 20.0), raise(-8.0), paints::Soot);
        exhaustStain(r, {side * 14.0, -60}, 180.0, 36.0);
    }
    r.add(Shape::circle({0, 650}, 20.0), flat(120.0).rounded(18.0, 16.0), CockpitGlass);
    {
        // cannon at the right flank
        const auto gun = r.place({.x = 100.0, .y = 150.0, .z = 96.0});
        r.add(Shape::roundRect(-12, -60, 12, 60, 5), flat(6.0).rounded(5.0, 5.0), paints::DarkSteel);
        barrel(r, {{60.0, 5.0}, {120.0, 4.0}, {206.0, 3.4}, {206.0, 5.4}, {218.0, 5.4}}, 0.0,
               paints::DarkSteel);
    }
    r.add(Shape::roundRect(-34, 20, 34, 330, 26), flat(200.0).rounded(18.0, 16.0));
    for (const double radius : {30.0, 18.0}) {
        r.add(Shape::circle({0, 150}, radius), flat(radius > 20 ? 226.0 : 268.0).rounded(6.0, 6.0),
              radius > 20 ? paints::Steel : paints::DarkSteel);
    }
    redStarMark(r, {0, -280}, 24.0);
}

constexpr Developing Flying{.shadowLength = 60.0, .rim = 0.25};

constexpr Sheet air(std::string_view path, int w, int h, void (*draw)(Relief&), const Scheme& (*scheme)()) {
    return {.path = path,
            .width = w,
            .height = h,
            .pixelsPerCm = 0.5,
            .draw = draw,
            .scheme = scheme,
            .how = Flying};
}

constexpr std::array<Sheet, 6> Sheets{air("Units/Image-UH-1C.png", 160, 645, uh1, oliveDrab),
                                      air("Units/Image-UH-1 rotor.png", 671, 671, uh1Rotor, bareSteel),
                                      air("Units/Image-Mi-24V.png", 325, 875, mi24, sovietHelicopter),
                                      air("Units/Image-Mi-24 rotor.png", 865, 865, mi24Rotor, bareSteel),
                                      air("Units/Image-Ka-52.png", 365, 677, ka52, darkGreyGreen),
                                      air("Units/Image-Ka-52 rotor.png", 725, 725, ka52Rotor, bareSteel)};

} // namespace

std::span<const Sheet> helicopterSheets() {
    return Sheets;
}

} // namespace artwork
