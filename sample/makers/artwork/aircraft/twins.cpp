#include "aircraft/airframe.h"
#include "catalogue.h"
#include "parts/armour.h"
#include "parts/fittings.h"
#include "parts/gear.h"
#include "schemes.h"

#include <array>

namespace artwork {

namespace {

void glazedNose(Relief& r, double from, double tip, double halfWidth, double z) {
    const Paint glass{.colour = hex(0x4A5E66), .gloss = 1.0, .dirt = 0.05};
    r.add(Shape::polygon({{-halfWidth, from},
                          {halfWidth, from},
                          {halfWidth * 0.8, lerp(from, tip, 0.6)},
                          {halfWidth * 0.3, tip},
                          {-halfWidth * 0.3, tip},
                          {-halfWidth * 0.8, lerp(from, tip, 0.6)}}),
          tube({0, from}, {0, tip}, halfWidth, halfWidth * 0.3, z), glass);
    for (const double t : {0.0, 0.35, 0.7}) {
        const double y = lerp(from, tip, t);
        r.add(Shape::rect(-halfWidth, y - 2.0, halfWidth, y + 2.0), raise(1.2));
    }
    for (const double x : {-0.45, 0.0, 0.45}) {
        r.add(Shape::line({{x * halfWidth * 1.6, from}, {x * halfWidth * 0.7, tip}}, 2.6), raise(1.2));
    }
}

void pe2(Relief& r) {
    // tailplane with twin fins
    wingPair(r, {{0, -476}, {40, -466}, {230, -484}, {240, -520}, {230, -566}, {40, -590}, {0, -590}}, 120.0,
             7.0);
    ruledPair(r, {{30, -544}, {232, -536}});
    for (const double side : {-1.0, 1.0}) {
        r.add(Shape::ellipse({side * 238, -530}, 9.0, 78.0), flat(170.0).rounded(9.0, 12.0));
    }
    wingPair(r,
             {{0, 240},
              {120, 236},
              {300, 210},
              {800, 86},
              {846, 50},
              {852, 12},
              {820, -28},
              {300, -74},
              {120, -100},
              {0, -100}},
             60.0, 15.0);
    ruledPair(r, {{100, -54}, {420, -24}, {424, -56}});
    ruledPair(r, {{430, -24}, {800, 22}});
    for (const double x : {380.0, 480.0, 580.0, 680.0, 770.0}) {
        ruledPair(r, {{x, 204.0 - (x - 300.0) * 0.23}, {x, -28.0 + (x - 420.0) * 0.11}}, 1.2);
    }
    for (const double side : {-1.0, 1.0}) {
        const auto nacelle = r.place({.x = side * 236});
        fuselage(r, {{-170, 8}, {-60, 34}, {120, 46}, {300, 48}, {400, 42}, {430, 32}}, 78.0);
        bodyFrames(r, {230, 300, 370}, 48.0);
        for (const double edge : {-1.0, 1.0}) {
            for (int i = 0; i < 6; ++i) {
                r.add(Shape::capsule({edge * 42.0, 280.0 + i * 18.0}, {edge * 49.0, 272.0 + i * 18.0}, 7.0),
                      flat(92.0).rounded(3.5, 3.5), paints::Rust);
            }
            exhaustStain(r, {edge * 46.0, 280.0}, 240.0, 20.0);
        }
        propeller(r, {0, 436}, 150.0, 30.0);
    }
    fuselage(r, {{-630, 10}, {-560, 24}, {-380, 38}, {-180, 50}, {40, 58}, {260, 60}, {440, 56}, {540, 48}},
             92.0);
    // the two guns beside the glass of the nose
    for (const double side : {-1.0, 1.0}) {
        r.add(Shape::capsule({side * 18, 590}, {side * 18, 640}, 4.0), flat(80.0), paints::DarkSteel);
    }
    glazedNose(r, 540, 626, 46.0, 92.0);
    bodyFrames(r, {-480, -400, -320, -240, 330, 400}, 60.0);
    canopy(r, 150, 330, 40.0, 126.0, 4);
    r.add(Shape::ellipse({0, 130}, 34.0, 30.0), flat(158.0).rounded(30.0, 20.0),
          {.colour = hex(0x4A5E66), .gloss = 1.0, .dirt = 0.05});
    {
        const auto gun = r.place({.y = 118.0, .angle = 186.0, .z = 160.0});
        machineGunBarrel(r, 8.0, 84.0, 3.0, 0.0, true);
    }
    for (const double side : {-1.0, 1.0}) {
        redStarMark(r, {side * 640.0, 40.0}, 46.0);
    }
}

void a20Armament(Relief& r) {
    // guns in the solid nose
    for (const auto& [x, y] :
         {std::array{-22.0, 700.0}, std::array{22.0, 700.0}, std::array{-12.0, 716.0}, std::array{12.0, 716.0},
          std::array{-34.0, 678.0}, std::array{34.0, 678.0}}) {
        r.add(Shape::capsule({x, y - 20}, {x, y + 14}, 6.0), tube({x, y - 20}, {x, y + 14}, 3.0, 3.0, 110.0),
              paints::DarkSteel);
    }
    canopy(r, 300, 440, 40.0, 140.0, 3);
    {
        // the dorsal turret
        const auto turret = r.place({.y = -60.0, .angle = 180.0, .z = 166.0});
        r.add(Shape::circle({}, 48.0), flat(8.0).rounded(6.0, 6.0));
        r.add(Shape::circle({}, 40.0), flat(30.0).rounded(38.0, 26.0),
              {.colour = hex(0x4A5E66), .gloss = 1.0, .dirt = 0.05});
        r.add(Shape::rect(-4, -40, 4, 40), raise(1.4));
        for (const double x : {-14.0, 14.0}) {
            const auto gun = r.place({.x = x, .z = 12});
            machineGunBarrel(r, 24.0, 92.0, 3.2, 0.0, false);
        }
    }
    starAndBar(r, {-640, 34}, 52.0);
}

void a20(Relief& r) {
    wingPair(r, {{0, -560}, {40, -548}, {280, -578}, {306, -604}, {296, -650}, {40, -680}, {0, -676}}, 130.0,
             8.0);
    ruledPair(r, {{30, -632}, {298, -622}});
    wingPair(r,
             {{0, 206},
              {130, 204},
              {800, 104},
              {900, 74},
              {932, 34},
              {910, -14},
              {800, -46},
              {130, -134},
              {0, -134}},
             66.0, 17.0);
    ruledPair(r, {{110, -92}, {540, -40}, {546, -80}});
    ruledPair(r, {{550, -38}, {880, 8}});
    for (const double x : {430.0, 530.0, 630.0, 730.0, 830.0}) {
        ruledPair(r, {{x, 168.0 - (x - 400.0) * 0.14}, {x, -54.0 + (x - 430.0) * 0.11}}, 1.2);
    }
    for (const double side : {-1.0, 1.0}) {
        const auto nacelle = r.place({.x = side * 270});
        fuselage(r, {{-330, 8}, {-200, 34}, {0, 56}, {200, 66}, {260, 68}}, 84.0);
        fuselage(r, {{256, 72}, {340, 72}, {368, 66}, {376, 56}}, 84.0);
        for (int i = 0; i < 8; ++i) {
            const double x = -62.0 + i * 17.6;
            gap(r, {{x, 262}, {x, 284}}, 1.2);
        }
        r.add(Shape::rect(-48, 370, 48, 376), raise(-18.0), paints::Dark);
        for (const double edge : {-1.0, 1.0}) {
            exhaustStain(r, {edge * 62.0, 262.0}, 220.0, 26.0);
        }
        propeller(r, {0, 384}, 170.0, 20.0);
    }
    fuselage(r,
             {{-728, 12},
              {-640, 30},
              {-440, 52},
              {-200, 66},
              {60, 72},
              {300, 72},
              {500, 66},
              {640, 52},
              {700, 36},
              {728, 18}},
             100.0);
    bodyFrames(r, {-560, -470, -380, -290, 160, 380, 470, 560}, 72.0);
    fin(r, 0.0, -540, -726, 22.0, 210.0);
    a20Armament(r);
}

constexpr Developing Flying{.shadowLength = 60.0, .rim = 0.25};

constexpr std::array<Sheet, 2> Sheets{{{.path = "Units/Image-Pe-2.png",
                                        .width = 857,
                                        .height = 633,
                                        .pixelsPerCm = 0.5,
                                        .draw = pe2,
                                        .scheme = sovietAirGreen,
                                        .how = Flying},
                                       {.path = "Units/Image-A-20G.png",
                                        .width = 935,
                                        .height = 732,
                                        .pixelsPerCm = 0.5,
                                        .draw = a20,
                                        .scheme = oliveDrab,
                                        .how = Flying}}};

} // namespace

std::span<const Sheet> twinEngineSheets() {
    return Sheets;
}

} // namespace artwork
