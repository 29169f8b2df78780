#include "catalogue.h"
#include "parts/armour.h"
#include "parts/fittings.h"
#include "parts/gear.h"
#include "parts/wreck.h"
#include "schemes.h"

#include <array>

namespace artwork {

namespace {

constexpr TrackStyle VickersTrack{.pitch = 12.0, .bar = 0.42, .barRise = 2.2};
constexpr double Roof = 150.0;

void runningGear(Relief& r) {
    r.add(Shape::rect(-90.0, -216.0, 90.0, 206.0), flat(44.0), paints::Dark);
    for (const double side : {-1.0, 1.0}) {
        track(r, side > 0 ? 91.0 : -118.0, side > 0 ? 118.0 : -91.0, -198.0, 200.0, 82.0, 34.0, VickersTrack);
        r.add(Shape::rect(side > 0 ? 86.0 : -121.0, -206.0, side > 0 ? 121.0 : -86.0, 176.0),
              flat(88.0).rounded(1.2, 1.0));
        r.add(Shape::roundRect(side > 0 ? 87.0 : -121.0, 170.0, side > 0 ? 121.0 : -87.0, 216.0, 4.0),
              tube({-1e4, 180}, {1e4, 180}, 48.0, 48.0, 40.5).rounded(1.2, 1.0));
        rivets(r, {{side * 118, -200}, {side * 118, 204}}, 12.0, 1.2);
        for (double y = -190.0; y < 160.0; y += 50.0) {
            gap(r, {{side * 88, y}, {side * 120, y}}, 1.0);
        }
    }
}

void bow(Relief& r) {
    r.add(Shape::polygon({{-74, 96}, {74, 96}, {70, 196}, {-70, 196}}),
          slope({0, 96}, 96.0, {0, 196}, 78.0).rounded(1.4, 1.2));
    r.add(Shape::polygon({{-70, 196}, {70, 196}, {64, 226}, {-64, 226}}),
          slope({0, 196}, 78.0, {0, 226}, 44.0));
    rivets(r, {{-64, 190}, {64, 190}}, 9.0, 1.6);
    rivets(r, {{-58, 220}, {58, 220}}, 9.0, 1.6);
    for (const double side : {-1.0, 1.0}) {
        rivets(r, {{side * 68, 102}, {side * 66, 188}}, 9.0, 1.5);
        {
            const auto placed = r.placeOn({.x = side * 50.0, .y = 206.0});
            shackle(r);
        }
        const auto lamp = r.placeOn({.x = side * 104.0, .y = 164.0});
        headlight(r, 8.0);
    }
    {
        const auto placed = r.placeOn({.x = -30.0, .y = 150.0});
        hatchRect(r, 44.0, 56.0, 2.6, 3.0);
    }
    // the driver's hood at the right
    frustum(r, std::array<Vec2, 4>{{{4, 132}, {58, 132}, {58, 84}, {4, 84}}},
            std::array<Vec2, 4>{{{8, 122}, {54, 122}, {54, 86}, {8, 86}}}, 92.0, 136.0);
    rivets(r, {{12, 117}, {50, 117}}, 8.0, 1.4);
    r.add(Shape::rect(16.0, 124.0, 46.0, 128.0), raise(4.0).rounded(1.5, 1.5));
    const auto placed = r.placeOn({.x = 31.0, .y = 102.0});
    hatchRect(r, 34.0, 22.0, 2.4, 2.0);
}

void fightingCompartment(Relief& r) {
    const std::array<Vec2, 8> low{
        {{76, 94}, {106, 70}, {106, -22}, {76, -46}, {-76, -46}, {-106, -22}, {-106, 70}, {-76, 94}}};
    const std::array<Vec2, 8> high{
        {{72, 86}, {98, 64}, {98, -18}, {72, -40}, {-72, -40}, {-98, -18}, {-98, 64}, {-72, 86}}};
    frustum(r, low, high, 88.0, Roof);
    for (std::size_t i = 0; i < low.size(); ++i) {
        const std::size_t j = (i + 1) % low.size();
        rivets(r, {lerp(high[i], {0, 26}, 0.07), lerp(high[j], {0, 26}, 0.07)}, 9.0, 1.4);
    }
    for (const double side : {-1.0, 1.0}) {
        turretRing(r, {side * 54.0, 26.0}, 42.0, 20);
    }
    const auto placed = r.placeOn({.x = 0.0, .y = -22.0});
    ventDome(r, 9.0);
}

void engineDeck(Relief& r) {
    // the diesel needed a taller engine room than its model
    const std::array<Vec2, 4> low{{{74, -44}, {74, -206}, {-74, -206}, {-74, -44}}};
    const std::array<Vec2, 4> high{{{66, -44}, {62, -182}, {-62, -182}, {-66, -44}}};
    frustum(r, low, high, 88.0, 140.0);
    rivets(r, {{-60, -50}, {-57, -176}, {57, -176}, {60, -50}}, 9.0, 1.4);
    for (const double side : {-1.0, 1.0}) {
        panel(r, side > 0 ? 4.0 : -50.0, -118.0, side > 0 ? 50.0 : -4.0, -56.0, 2.0, 3.0);
        for (const double y : {-70.0, -104.0}) {
            const auto placed = r.placeOn({.x = side * 50.0, .y = y, .angle = side * 90.0});
            hinge(r, 12.0);
        }
    }
    louvres(r, -46.0, -170.0, 46.0, -128.0, 6);
    r.add(Shape::rect(-70.0, -228.0, 70.0, -204.0), slope({0, -204}, 88.0, {0, -228}, 56.0));
    rivets(r, {{-64, -210}, {64, -210}}, 9.0, 1.5);
    // silencer across the rear
    const auto placed = r.place({.x = 10.0, .y = -216.0, .z = 84.0});
    silencer(r, 76.0, 11.0, 16.0);
}

void stowage(Relief& r) {
    {
        const auto placed = r.place({.x = -103.0, .y = -112.0, .z = 88.0});
        stowageBox(r, 28.0, 72.0, 22.0);
    }
    {
        const auto placed = r.place({.x = 104.0, .y = -100.0, .z = 88.0});
        jack(r, 56.0);
    }
    {
        const auto placed = r.place({.x = 112.0, .y = 118.0, .z = 88.0});
        shovel(r, 64.0);
    }
    {
        const auto placed = r.place({.x = -106.0, .y = 116.0, .z = 88.0});
        axe(r, 62.0);
    }
    {
        const auto placed = r.place({.x = 104.0, .y = -166.0, .angle = 90.0, .z = 88.0});
        canvasRoll(r, 44.0, 9.0);
    }
    towCable(r, {{-112, 84}, {-113, 40}, {-113, -20}, {-106, -62}}, 2.6);
}

void drawHull(Relief& r) {
    runningGear(r);
    bow(r);
    engineDeck(r);
    fightingCompartment(r);
    stowage(r);
}

void drawTurret(Relief& r) {
    r.add(Shape::roundRect(-13.0, 36.0, 13.0, 58.0, 5.0), flat(46.0).rounded(6.0, 8.0));
    {
        const auto placed = r.place({.z = 30.0});
        // water jacket of the heavy machine gun
        barrel(r, {{52.0, 5.2}, {96.0, 5.2}}, 0.0, paints::Steel);
        barrel(r, {{96.0, 2.2}, {106.0, 2.2}, {106.0, 3.4}, {112.0, 4.2}}, 0.0, paints::DarkSteel);
    }
    r.add(Shape::circle({}, 48.0), flat(58.0).rounded(2.4, 2.6));
    boltRing(r, {}, 43.0, 26, 1.4);
    gap(r, {{-47, 4}, {-38, 4}}, 1.0);
    {
        const auto placed = r.placeOn({.y = -10.0});
        hatchRect(r, 48.0, 42.0, 3.0, 10.0);
    }
    {
        const auto placed = r.placeOn({.x = 24.0, .y = 24.0});
        periscope(r, 10.0, 8.0, 7.0);
    }
    const auto placed = r.placeOn({.x = -20.0, .y = 26.0});
    ventDome(r, 6.0);
    for (const double angle : {-62.0, 62.0}) {
        const auto slit =
            r.place({.x = bearing(angle).x * 47.0, .y = bearing(angle).y * 47.0, .angle = angle, .z = 30.0});
        r.add(Shape::roundRect(-7.0, -2.0, 7.0, 4.0, 1.5), flat(10.0).rounded(2.0, 3.0));
    }
}

void damageHull(Relief& r) {
    burnAll(r, 0.85, 0.8, 211);
    scorch(r, {0, -110}, 110.0, 1.0, 212);
    shellHole(r, {20, 150}, 6.0);
    shellHole(r, {-88, 30}, 6.0);
    openHatch(r, Shape::roundRect(14, 91, 48, 113, 2));
    openHatch(r, Shape::rect(-50, -118, -4, -56));
    tornPlate(r, {104, 30}, 10.0, 30.0, 7);
    brokenTrack(r, {104, 186}, -12.0, 26.0, 5, 12.0);
    debris(r, {0, 0}, 110.0, 36, 213);
}

void damageTurret(Relief& r) {
    burnAll(r, 0.9, 0.5, 215);
    openHatch(r, Shape::roundRect(-24, -31, 24, 11, 10));
    shellHole(r, {22, 24}, 5.0);
}

constexpr std::array<Sheet, 4> Sheets{
    {{.path = "Units/Vehicles/Hulls/Polish 7TP twin turret hull.png",
      .width = 243,
      .height = 475,
      .draw = drawHull,
      .scheme = polishThreeTone},
     {.path = "Units/Vehicles/Destroyed/Polish 7TP twin turret hull destroyed.png",
      .width = 243,
      .height = 475,
      .draw = drawHull,
      .damage = damageHull,
      .scheme = polishThreeTone},
     {.path = "Units/Vehicles/Turrets/Polish 7TP machine gun turret.png",
      .width = 116,
      .height = 234,
      .draw = drawTurret,
      .scheme = polishThreeTone,
      .how = Mounted},
     {.path = "Units/Vehicles/Destroyed/Polish 7TP machine gun turret destroyed.png",
      .width = 116,
      .height = 234,
      .draw = drawTurret,
      .damage = damageTurret,
      .scheme = polishThreeTone,
      .how = Mounted}}};

} // namespace

std::span<const Sheet> sevenTpSheets() {
    return Sheets;
}

} // namespace artwork
