#include "catalogue.h"
#include "parts/armour.h"
#include "parts/fittings.h"
#include "parts/gear.h"
#include "parts/wreck.h"
#include "schemes.h"

#include <array>

namespace artwork {

namespace {

constexpr double Roof = 142.0;

void wheels(Relief& r) {
    for (const double y : {142.0, -152.0}) {
        for (const double side : {-1.0, 1.0}) {
            const auto placed = r.place({.x = side * 84.0, .y = y});
            r.add(Shape::roundRect(-13.0, -53.0, 13.0, 53.0, 7.0),
                  tube({-1e4, 0}, {1e4, 0}, 53.0, 53.0, 53.0).rounded(7.0, 6.0), paints::Rubber);
            for (double t = -48.0; t < 48.0; t += 8.0) {
                r.add(Shape::line({{-11.0, t}, {0.0, t + 5.0}, {11.0, t}}, 2.4), raise(-1.6), paints::Rubber);
            }
            const auto hub = r.place({.x = -side * 16.0});
            r.add(Shape::roundRect(-8.0, -7.0, 8.0, 7.0, 3.0), flat(58.0).rounded(4.0, 5.0), paints::Steel);
        }
        r.add(Shape::rect(-70.0, y - 5.0, 70.0, y + 5.0), flat(52.0), paints::DarkSteel);
    }
}

void body(Relief& r) {
    // riveted plates, pointed towards bow and stern like a boat
    const std::array<Vec2, 10> low{{{24, 236},
                                    {46, 222},
                                    {66, 176},
                                    {84, 86},
                                    {84, -100},
                                    {66, -190},
                                    {44, -234},
                                    {-44, -234},
                                    {-66, -190},
                                    {-84, -100}}};
    std::vector<Vec2> lower(low.begin(), low.end());
    lower.insert(lower.end(), {{-84, 86}, {-66, 176}, {-46, 222}, {-24, 236}});
    const std::array<Vec2, 10> high{{{18, 122},
                                     {36, 112},
                                     {58, 92},
                                     {68, 70},
                                     {68, -82},
                                     {52, -156},
                                     {38, -196},
                                     {-38, -196},
                                     {-52, -156},
                                     {-68, -82}}};
    std::vector<Vec2> upper(high.begin(), high.end());
    upper.insert(upper.end(), {{-68, 70}, {-58, 92}, {-36, 112}, {-18, 122}});
    frustum(r, lower, upper, 74.0, Roof);
    // engine cover behind the turret lies lower
    r.add(Shape::polygon({{-66, -84}, {66, -84}, {52, -158}, {38, -198}, {-38, -198}, {-52, -158}}),
          slope({0, -84}, 130.0, {0, -198}, 118.0).rounded(1.5, 1.2));
    rivets(r, {{-62, 68}, {-62, -76}}, 9.0, 1.4);
    rivets(r, {{62, 68}, {62, -76}}, 9.0, 1.4);
    rivets(r, {{-16, 118}, {16, 118}}, 9.0, 1.4);
    for (const double side : {-1.0, 1.0}) {
        rivets(r, {{side * 24, 226}, {side * 20, 128}}, 10.0, 1.4);
        rivets(r, {{side * 44, 216}, {side * 40, 118}}, 10.0, 1.4);
        rivets(r, {{side * 78, 80}, {side * 78, -94}}, 10.0, 1.4);
    }
    turretRing(r, {0, 12}, 62.0, 28);
}

void front(Relief& r) {
    {
        const auto placed = r.placeOn({.y = 146.0});
        r.add(Shape::roundRect(-24.0, -14.0, 24.0, 24.0, 3.0), raise(6.0).rounded(2.5, 2.0));
        hinge(r, 30.0);
        r.add(Shape::rect(-14.0, 14.0, 14.0, 17.0), raise(-3.0), paints::Dark);
    }
    {
        const auto placed = r.placeOn({.y = 196.0});
        panel(r, -18.0, -16.0, 18.0, 20.0, 1.6, 2.0);
    }
    for (const double side : {-1.0, 1.0}) {
        {
            const auto placed = r.placeOn({.x = side * 48.0, .y = 202.0, .z = 10.0});
            headlight(r, 10.0);
        }
        // mudguards in front and behind, stowage bins between
        const Shape frontGuard = Shape::smooth({{side * 70, 172},
                                                {side * 80, 180},
                                                {side * 98, 176},
                                                {side * 99, 142},
                                                {side * 99, 104},
                                                {side * 86, 98},
                                                {side * 80, 130},
                                                {side * 74, 158}});
        r.add(frontGuard, tube({-1e4, 142}, {1e4, 142}, 64.0, 64.0, 44.0).rounded(5.0, 5.0));
        const Shape rearGuard = Shape::smooth({{side * 84, -110},
                                               {side * 98, -112},
                                               {side * 99, -150},
                                               {side * 98, -188},
                                               {side * 82, -194},
                                               {side * 70, -182},
                                               {side * 75, -156},
                                               {side * 81, -126}});
        r.add(rearGuard, tube({-1e4, -152}, {1e4, -152}, 64.0, 64.0, 44.0).rounded(5.0, 5.0));
        const auto placed = r.place({.x = side * 91.0, .y = -4.0, .z = 62.0});
        stowageBox(r, 18.0, 116.0, 34.0);
    }
    r.add(Shape::roundRect(-30.0, 232.0, 30.0, 239.0, 2.0), flat(66.0).rounded(2.0, 2.0), paints::Steel);
}

void engineDeck(Relief& r) {
    for (const double side : {-1.0, 1.0}) {
        louvres(r, side > 0 ? 6.0 : -44.0, -148.0, side > 0 ? 44.0 : -6.0, -98.0, 7);
        const auto placed = r.placeOn({.x = side * 24.0, .y = -176.0});
        panel(r, -14.0, -14.0, 14.0, 14.0, 1.4, 2.0);
    }
    {
        // the rear driver's visor
        const auto placed = r.placeOn({.x = -14.0, .y = -214.0, .angle = 180.0});
        r.add(Shape::roundRect(-14.0, -8.0, 14.0, 8.0, 2.0), raise(5.0).rounded(2.5, 2.0));
    }
    {
        const auto placed = r.place({.x = -60.0, .y = -190.0, .angle = 152.0, .z = 84.0});
        r.add(Shape::roundRect(-8.0, -22.0, 8.0, 12.0, 5.0), tube({0, -22}, {0, 12}, 8.0, 8.0, 2.0),
              paints::Rust);
        exhaustPipe(r, 30.0, 3.6);
    }
    {
        const auto placed = r.place({.x = 30.0, .y = -232.0, .z = 70.0});
        r.add(Shape::circle({}, 7.0), flat(8.0).rounded(3.0, 3.0), paints::Steel);
    }
    const auto placed = r.placeOn({.x = -54.0, .y = -64.0});
    antennaBase(r);
}

void stowage(Relief& r) {
    {
        const auto placed = r.place({.x = 76.0, .y = -54.0, .angle = 2.0, .z = 112.0});
        shovel(r, 70.0);
    }
    const auto placed = r.place({.x = -77.0, .y = 34.0, .angle = -2.0, .z = 108.0});
    axe(r, 64.0);
}

void drawHull(Relief& r) {
    wheels(r);
    body(r);
    front(r);
    engineDeck(r);
    stowage(r);
}

void drawTurret(Relief& r) {
    barrel(r, {{74.0, 6.0}, {90.0, 5.0}, {90.0, 3.8}, {150.0, 3.0}}, 36.0);
    barrel(r, {{150.0, 3.0}, {150.0, 4.8}, {166.0, 6.0}}, 36.0, paints::DarkSteel);
    muzzleBore(r, 166.0, 4.0, 36.0);
    {
        const auto placed = r.place({.x = 18.0, .z = 38.0});
        machineGunBarrel(r, 66.0, 88.0, 2.2, 0.0, false);
    }
    const std::array<Vec2, 10> low{{{32, 68},
                                    {52, 52},
                                    {68, 10},
                                    {62, -38},
                                    {40, -66},
                                    {-40, -66},
                                    {-62, -38},
                                    {-68, 10},
                                    {-52, 52},
                                    {-32, 68}}};
    const std::array<Vec2, 10> high{{{25, 42},
                                     {38, 34},
                                     {48, 6},
                                     {45, -26},
                                     {30, -46},
                                     {-30, -46},
                                     {-45, -26},
                                     {-48, 6},
                                     {-38, 34},
                                     {-25, 42}}};
    frustum(r, low, high, 10.0, 76.0);
    for (std::size_t i = 0; i < low.size(); ++i) {
        const std::size_t j = (i + 1) % low.size();
        rivets(r, {lerp(low[i], high[i], 0.18), lerp(low[j], high[j], 0.18)}, 9.0, 1.3);
        rivets(r, {lerp(low[i], high[i], 0.82), lerp(low[j], high[j], 0.82)}, 9.0, 1.3);
    }
    r.add(Shape::roundRect(-26.0, 56.0, 28.0, 80.0, 5.0),
          tube({-1e4, 62}, {1e4, 62}, 16.0, 16.0, 34.0).rounded(4.0, 3.0));
    bolts(r, {-22, 70}, {24, 70}, 6, 1.4);
    {
        const auto placed = r.placeOn({.x = -20.0, .y = -10.0});
        hatchRect(r, 34.0, 44.0, 3.0, 3.0);
    }
    {
        const auto placed = r.placeOn({.x = 20.0, .y = -10.0});
        hatchRect(r, 34.0, 44.0, 3.0, 3.0);
    }
    {
        const auto placed = r.placeOn({.x = -24.0, .y = 28.0});
        ventDome(r, 7.0);
    }
    const auto placed = r.placeOn({.x = 22.0, .y = 27.0});
    periscope(r, 12.0, 8.0, 8.0);
}

void damageHull(Relief& r) {
    burnAll(r, 0.85, 0.9, 181);
    scorch(r, {0, -140}, 100.0, 1.0, 182);
    scorch(r, {0, 30}, 80.0, 0.8, 183);
    shellHole(r, {30, 160}, 5.5);
    shellHole(r, {-66, 30}, 5.5);
    openHatch(r, Shape::rect(6, -148, 44, -98));
    tornPlate(r, {88, 150}, 10.0, 24.0, 3);
    debris(r, {0, -20}, 100.0, 40, 184);
}

void damageTurret(Relief& r) {
    burnAll(r, 0.85, 0.5, 185);
    openHatch(r, Shape::roundRect(3, -32, 37, 12, 3));
    shellHole(r, {-34, 40}, 5.0);
    debris(r, {0, -10}, 50.0, 10, 186);
}

constexpr std::array<Sheet, 4> Sheets{
    {{.path = "Units/Vehicles/Hulls/French Panhard 178 hull.png",
      .width = 201,
      .height = 479,
      .draw = drawHull,
      .scheme = frenchCavalry},
     {.path = "Units/Vehicles/Destroyed/French Panhard 178 hull destroyed.png",
      .width = 201,
      .height = 479,
      .draw = drawHull,
      .damage = damageHull,
      .scheme = frenchCavalry},
     {.path = "Units/Vehicles/Turrets/French Panhard 178 turret.png",
      .width = 154,
      .height = 342,
      .draw = drawTurret,
      .scheme = frenchCavalry,
      .how = Mounted},
     {.path = "Units/Vehicles/Destroyed/French Panhard 178 turret destroyed.png",
      .width = 154,
      .height = 342,
      .draw = drawTurret,
      .damage = damageTurret,
      .scheme = frenchCavalry,
      .how = Mounted}}};

} // namespace

std::span<const Sheet> panhardSheets() {
    return Sheets;
}

} // namespace artwork
