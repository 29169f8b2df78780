#include "aircraft/airframe.h"
#include "catalogue.h"
#include "parts/armour.h"
#include "parts/fittings.h"
#include "parts/gear.h"
#include "schemes.h"

#include <array>

namespace artwork {

namespace {

/// Straight-edged splinters of the second green over wings and body.
void splinter(Relief& r, Rgb colour) {
    const auto patch = [&](std::initializer_list<Vec2> points) {
        r.stain(Shape::polygon(points), colour, 0.95);
    };
    patch({{-700, 160}, {-470, 160}, {-360, -140}, {-560, -140}});
    patch({{-250, 200}, {-90, 200}, {-150, -20}, {-30, -160}, {-330, -160}, {-190, 20}});
    patch({{40, 40}, {260, 200}, {420, 200}, {300, 20}, {420, -160}, {180, -160}});
    patch({{520, 200}, {700, 200}, {700, -20}, {600, -160}, {470, 20}});
    patch({{-60, 620}, {60, 620}, {60, 400}, {-20, 300}, {-60, 420}});
    patch({{-60, -150}, {60, -240}, {60, -380}, {-60, -300}});
    patch({{-260, -420}, {-110, -420}, {-60, -620}, {-220, -620}});
    patch({{60, -430}, {200, -430}, {280, -620}, {120, -620}});
}

/// The Stuka's cranked wing: flat inboard, rising outboard. `span` is half the whole.
void stukaWings(Relief& r, double span, bool cannon) {
    // tailplane with its struts
    wingPair(r, {{0, -470}, {30, -455}, {232, -470}, {244, -484}, {236, -540}, {30, -560}, {0, -556}}, 130.0,
             7.0);
    ruledPair(r, {{16, -522}, {238, -510}});
    wingPair(r, {{0, 150}, {60, 150}, {165, 132}, {165, -124}, {60, -134}, {0, -134}}, 60.0, 15.0);
    wingPair(r, {{160, 133}, {span - 60, 62}, {span - 12, 36}, {span, 0}, {span - 26, -46}, {160, -124}},
             66.0, 13.0);
    // the double wing: flaps and ailerons hang behind the trailing edge
    wingPair(r, {{66, -142}, {166, -136}, {166, -168}, {66, -172}}, 50.0, 4.0);
    wingPair(r, {{170, -134}, {span - 40, -58}, {span - 46, -84}, {170, -166}}, 54.0, 4.0);
    ruledPair(r, {{165, 132}, {165, -124}}, 2.4);
    ruledPair(r, {{66, -112}, {160, -106}, {span - 50, -30}});
    for (const double x : {230.0, 330.0, 430.0}) {
        ruledPair(r, {{x, 120.0 - (x - 160.0) * 0.16}, {x, -104.0 + (x - 160.0) * 0.17}}, 1.2);
    }
    // trousered undercarriage below the bend shows ahead of the wing
    for (const double side : {-1.0, 1.0}) {
        r.add(Shape::smooth({{side * 150, 40},
                             {side * 132, 100},
                             {side * 142, 176},
                             {side * 158, 176},
                             {side * 168, 100}}),
              flat(50.0).rounded(14.0, 16.0).onlyHigher());
        r.add(Shape::roundRect(side * 150 - 9, 168, side * 150 + 9, 186, 4), flat(36.0).rounded(6.0, 6.0),
              paints::Rubber);
    }
    if (cannon) {
        for (const double side : {-1.0, 1.0}) {
            r.add(Shape::roundRect(side * 226 - 17, -60, side * 226 + 17, 150, 12),
                  flat(50.0).rounded(10.0, 10.0).onlyHigher());
            const auto gun = r.place({.x = side * 226, .z = 44});
            barrel(r, {{148.0, 5.5}, {190.0, 4.6}, {250.0, 3.6}, {250.0, 5.0}, {262.0, 5.0}}, 0.0,
                   paints::DarkSteel);
        }
    }
}

void stuka(Relief& r, double span, bool cannon) {
    stukaWings(r, span, cannon);
    fuselage(r,
             {{-566, 16},
              {-480, 26},
              {-300, 42},
              {-120, 56},
              {60, 60},
              {240, 58},
              {420, 50},
              {500, 42},
              {528, 34}},
             92.0);
    fin(r, 0.0, -440, -570, 20.0, 190.0);
    bodyFrames(r, {-420, -340, -250, -170, 250, 330, 410}, 60.0);
    canopy(r, -92, 200, 38.0, 128.0, 7);
    {
        // the gunner's pair of machine guns
        const auto guns = r.place({.y = -96.0, .angle = 180.0, .z = 168.0});
        for (const double x : {-4.5, 4.5}) {
            const auto gun = r.place({.x = x});
            machineGunBarrel(r, 0.0, 58.0, 2.6, 0.0, true);
        }
    }
    exhaustStubs(r, 60.0, 320.0, 22.0, 6, 260.0);
    r.add(Shape::roundRect(-22, 330, 22, 470, 10), raise(4.0).rounded(8.0, 4.0));
    splinter(r, hex(0x3C4534));
    for (const double side : {-1.0, 1.0}) {
        plainCross(r, {side * (span - 190.0), 6.0}, 44.0);
    }
    propeller(r, {0, 531}, 166.0, 28.0);
}

void ju87d(Relief& r) {
    stuka(r, 688.0, false);
}

void ju87g(Relief& r) {
    stuka(r, 748.0, true);
}

void il2(Relief& r) {
    wingPair(r, {{0, -452}, {40, -430}, {230, -462}, {246, -480}, {236, -528}, {40, -556}, {0, -552}}, 120.0,
             7.0);
    ruledPair(r, {{16, -506}, {238, -500}});
    wingPair(r, {{0, 226}, {130, 220}, {130, -96}, {0, -112}}, 60.0, 16.0);
    // outer wings swept back, for the balance of the second seat
    wingPair(r, {{128, 221}, {660, 86}, {712, 56}, {726, 20}, {704, -24}, {128, -98}}, 66.0, 13.0);
    ruledPair(r, {{130, 220}, {130, -96}}, 2.4);
    ruledPair(r, {{136, -52}, {420, -30}, {690, 6}});
    ruledPair(r, {{420, -30}, {426, -62}});
    for (const double x : {220.0, 320.0, 420.0, 520.0, 610.0}) {
        ruledPair(r, {{x, 196.0 - (x - 130.0) * 0.25}, {x, -40.0 + (x - 136.0) * 0.08}}, 1.2);
    }
    for (const double side : {-1.0, 1.0}) {
        // undercarriage nacelles and the cannon outboard of them
        r.add(Shape::smooth({{side * 150, -110},
                             {side * 124, 60},
                             {side * 132, 250},
                             {side * 150, 276},
                             {side * 168, 250},
                             {side * 176, 60}}),
              flat(84.0).rounded(24.0, 24.0));
        const auto gun = r.place({.x = side * 240, .z = 74});
        barrel(r, {{180.0, 4.5}, {220.0, 3.6}, {262.0, 3.0}}, 0.0, paints::DarkSteel);
        // the machine gun inboard of the cannon
        r.add(Shape::capsule({side * -30, 150}, {side * -30, 196}, 4.0), flat(2.0), paints::DarkSteel);
    }
    fuselage(r,
             {{-574, 14},
              {-480, 26},
              {-300, 44},
              {-100, 58},
              {80, 64},
              {250, 62},
              {420, 56},
              {500, 46},
              {530, 36}},
             92.0);
    fin(r, 0.0, -424, -576, 20.0, 190.0);
    bodyFrames(r, {-420, -330, -240, -160, 260, 350, 430}, 64.0);
    canopy(r, 50, 220, 40.0, 130.0, 3);
    canopy(r, -60, 52, 37.0, 128.0, 2);
    {
        const auto gun = r.place({.y = -58.0, .angle = 172.0, .z = 168.0});
        machineGunBarrel(r, 0.0, 84.0, 3.2, 0.0, true);
    }
    exhaustStubs(r, 63.0, 300.0, 22.0, 6, 260.0);
    for (const double side : {-1.0, 1.0}) {
        redStarMark(r, {side * 540.0, 30.0}, 46.0);
    }
    r.add(Shape::roundRect(-20, 420, 20, 492, 12), raise(5.0).rounded(10.0, 5.0));
    propeller(r, {0, 534}, 168.0, 32.0);
}

void invasionStripes(Relief& r, double x0) {
    for (int i = 0; i < 5; ++i) {
        const Rgb colour = i % 2 == 0 ? hex(0xE0DED6) : hex(0x1E1E1E);
        for (const double side : {-1.0, 1.0}) {
            const double a = side * (x0 + i * 40.0);
            const double b = side * (x0 + i * 40.0 + 40.0);
            r.stain(Shape::rect(std::min(a, b), -200, std::max(a, b), 260), colour, 0.88);
        }
    }
}

void p47(Relief& r) {
    wingPair(
        r, {{0, -370}, {30, -356}, {150, -372}, {232, -404}, {246, -430}, {220, -462}, {30, -490}, {0, -486}},
        120.0, 7.0);
    ruledPair(r, {{14, -440}, {236, -432}});
    wingPair(r,
             {{0, 196},
              {120, 192},
              {330, 168},
              {500, 112},
              {590, 58},
              {620, 8},
              {604, -42},
              {520, -84},
              {330, -122},
              {120, -136},
              {0, -136}},
             64.0, 16.0);
    ruledPair(r, {{64, -92}, {330, -80}, {340, -118}});
    ruledPair(r, {{340, -78}, {560, -38}});
    for (const double x : {160.0, 250.0, 340.0, 430.0, 520.0}) {
        ruledPair(r, {{x, 180.0 - (x - 120.0) * 0.16}, {x, -80.0 + (x - 330.0) * (x > 330.0 ? 0.2 : 0.0)}},
                  1.2);
    }
    invasionStripes(r, 96.0);
    for (const double side : {-1.0, 1.0}) {
        // four guns, stepped
        for (int i = 0; i < 4; ++i) {
            const double x = side * (196.0 + i * 17.0);
            r.add(Shape::capsule({x, 150.0 - i * 6.0}, {x, 216.0 - i * 9.0}, 6.0),
                  tube({x, 150}, {x, 216}, 3.0, 2.6, 76.0), paints::DarkSteel);
        }
        starAndBar(r, {side * 440.0, 36.0}, 46.0);
    }
    fuselage(r, {{-546, 10}, {-470, 26}, {-330, 46}, {-150, 62}, {40, 74}, {240, 80}, {360, 82}}, 96.0);
    // the big round cowling
    fuselage(r, {{352, 84}, {460, 84}, {500, 80}, {512, 70}}, 96.0);
    bodyFrames(r, {-430, -350, -270, -190, 250, 300, 356, 440}, 84.0);
    for (int i = 0; i < 9; ++i) {
        const double x = -72.0 + i * 18.0;
        gap(r, {{x, 356}, {x, 382}}, 1.2);
    }
    r.add(Shape::rect(-60, 504, 60, 512), raise(-20.0), paints::Dark);
    fin(r, 0.0, -360, -548, 20.0, 200.0);
    canopy(r, 20, 176, 38.0, 150.0, 1);
    r.stain(Shape::polygon({{-30, 190}, {30, 190}, {42, 440}, {-42, 440}}), hex(0x3C422E), 0.85, 3.0);
    for (const double side : {-1.0, 1.0}) {
        exhaustStain(r, {side * 60.0, 250.0}, 200.0, 26.0);
    }
    propeller(r, {0, 520}, 190.0, 20.0);
}

void typhoon(Relief& r) {
    wingPair(r, {{0, -318}, {30, -304}, {180, -330}, {204, -350}, {196, -392}, {30, -424}, {0, -420}}, 120.0,
             7.0);
    ruledPair(r, {{14, -376}, {196, -366}});
    wingPair(r,
             {{0, 190},
              {116, 190},
              {500, 120},
              {590, 78},
              {630, 22},
              {600, -30},
              {480, -76},
              {116, -126},
              {0, -126}},
             62.0, 18.0);
    ruledPair(r, {{60, -82}, {300, -64}, {308, -100}});
    ruledPair(r, {{310, -62}, {560, -22}});
    for (const double x : {160.0, 250.0, 340.0, 430.0, 520.0}) {
        ruledPair(r, {{x, 182.0 - (x - 116.0) * 0.18}, {x, -70.0 + (x - 300.0) * (x > 300.0 ? 0.16 : 0.0)}},
                  1.2);
    }
    for (const double side : {-1.0, 1.0}) {
        for (const double x : {168.0, 200.0}) {
            const auto gun = r.place({.x = side * x, .z = 76});
            barrel(r, {{150.0, 7.0}, {206.0, 5.0}, {206.0, 3.2}, {262.0, 2.8}}, 0.0);
        }
        // rockets on their rails look out ahead of the wing
        for (int i = 0; i < 4; ++i) {
            const double x = side * (262.0 + i * 44.0);
            const double y = 168.0 - i * 10.0;
            r.add(Shape::capsule({x, y - 160.0}, {x, y + 6.0}, 7.0),
                  flat(54.0).rounded(3.0, 3.0).onlyHigher(), paints::Steel);
            r.add(Shape::capsule({x, y - 10.0}, {x, y + 34.0}, 12.0),
                  tube({x, y - 10}, {x, y + 34}, 6.5, 5.0, 52.0).onlyHigher(),
                  {.colour = hex(0x4E5240), .gloss = 0.2});
        }
        britishRoundel(r, {side * 470.0, 30.0}, 52.0, false);
    }
    fuselage(r,
             {{-478, 12},
              {-400, 26},
              {-260, 42},
              {-100, 54},
              {60, 60},
              {230, 62},
              {360, 60},
              {426, 52},
              {440, 44}},
             94.0);
    fin(r, 0.0, -306, -480, 20.0, 190.0);
    bodyFrames(r, {-340, -270, -200, -130, 210, 300, 390}, 62.0);
    r.stain(Shape::rect(-60, -292, 60, -250), hex(0xB8BEB4), 0.75);
    // the chin radiator below the nose
    r.add(Shape::roundRect(-34, 380, 34, 430, 12), raise(-14.0).rounded(10.0, 10.0));
    canopy(r, -10, 134, 37.0, 136.0, 1);
    exhaustStubs(r, 60.0, 270.0, 18.0, 6, 240.0);
    propeller(r, {0, 436}, 200.0, 33.0);
}

void hurricane(Relief& r) {
    wingPair(r, {{0, -332}, {24, -322}, {160, -338}, {176, -356}, {166, -390}, {24, -414}, {0, -410}}, 120.0,
             6.0);
    ruledPair(r, {{12, -374}, {166, -366}});
    wingPair(r,
             {{0, 168},
              {90, 168},
              {420, 118},
              {540, 84},
              {590, 46},
              {606, 10},
              {590, -28},
              {500, -56},
              {90, -110},
              {0, -110}},
             62.0, 17.0);
    ruledPair(r, {{50, -76}, {290, -54}, {296, -84}});
    ruledPair(r, {{300, -52}, {560, -10}});
    for (const double x : {140.0, 230.0, 320.0, 410.0, 500.0}) {
        ruledPair(r, {{x, 160.0 - (x - 90.0) * 0.14}, {x, -60.0 + (x - 300.0) * (x > 300.0 ? 0.15 : 0.0)}},
                  1.2);
    }
    for (const double side : {-1.0, 1.0}) {
        // the forty-millimetre guns in their fairings
        r.add(Shape::roundRect(side * 168 - 15, -60, side * 168 + 15, 182, 12),
              flat(50.0).rounded(10.0, 10.0).onlyHigher());
        {
            const auto gun = r.place({.x = side * 168, .z = 46});
            barrel(r, {{180.0, 7.0}, {196.0, 5.4}, {246.0, 4.2}, {246.0, 5.6}, {258.0, 5.6}}, 0.0,
                   paints::DarkSteel);
        }
        r.add(Shape::capsule({side * 250, 120}, {side * 250, 156}, 4.0), flat(70.0), paints::DarkSteel);
        britishRoundel(r, {side * 440.0, 30.0}, 48.0, false);
    }
    fuselage(r,
             {{-482, 10},
              {-400, 22},
              {-260, 36},
              {-100, 46},
              {60, 50},
              {220, 50},
              {360, 46},
              {430, 40},
              {446, 34}},
             92.0);
    fin(r, 0.0, -316, -484, 18.0, 180.0);
    bodyFrames(r, {-350, -280, -210, -140, 190, 280, 360}, 50.0);
    // fabric over stringers behind the cockpit
    for (const double x : {-22.0, -11.0, 0.0, 11.0, 22.0}) {
        r.add(Shape::capsule({x * 0.5, -360}, {x, -60}, 2.0), raise(1.2).rounded(1.0, 1.0));
    }
    canopy(r, -20, 104, 34.0, 126.0, 4);
    exhaustStubs(r, 51.0, 270.0, 34.0, 3, 220.0);
    // tropical filter
    r.add(Shape::roundRect(-17, 380, 17, 440, 12), raise(-20.0).rounded(8.0, 8.0));
    propeller(r, {0, 446}, 166.0, 29.0);
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

constexpr std::array<Sheet, 6> Sheets{
    air("Units/Image-Ju 87 D.png", 690, 575, ju87d, luftwaffeGreen),
    air("Units/Image-Ju 87 G.png", 750, 575, ju87g, luftwaffeGreen),
    air("Units/Image-Il-2 Type 3.png", 730, 583, il2, sovietAirGreenBrown),
    air("Units/Image-P-47D.png", 622, 551, p47, naturalMetal),
    air("Units/Image-Typhoon IB.png", 634, 487, typhoon, britishAirDay),
    air("Units/Image-Hurricane IID.png", 610, 491, hurricane, britishAirDesert)};

} // namespace

std::span<const Sheet> singleEngineSheets() {
    return Sheets;
}

} // namespace artwork
