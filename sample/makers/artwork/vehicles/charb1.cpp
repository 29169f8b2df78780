#include "catalogue.h"
#include "parts/armour.h"
#include "parts/fittings.h"
#include "parts/gear.h"
#include "parts/wreck.h"
#include "schemes.h"

#include <array>

namespace artwork {

namespace {

constexpr TrackStyle ShoeTrack{.pitch = 21.0, .bar = 0.3, .barRise = 3.0};
constexpr double Roof = 190.0;

void runningGear(Relief& r) {
    r.add(Shape::rect(-74.0, -296.0, 74.0, 270.0), flat(60.0), paints::Dark);
    for (const double side : {-1.0, 1.0}) {
        // the track runs right round the hull, below a guard along the top
        track(r, side > 0 ? 70.0 : -117.0, side > 0 ? 117.0 : -70.0, -246.0, 240.0, 150.0, 78.0, ShoeTrack);
        r.add(Shape::rect(side > 0 ? 64.0 : -72.0, -282.0, side > 0 ? 72.0 : -64.0, 288.0),
              flat(152.0).rounded(1.5, 1.5));
        r.add(Shape::rect(side > 0 ? 114.0 : -123.0, -262.0, side > 0 ? 123.0 : -114.0, 258.0),
              flat(146.0).rounded(2.0, 2.0));
        r.add(Shape::rect(side > 0 ? 70.0 : -119.0, -176.0, side > 0 ? 119.0 : -70.0, 128.0),
              flat(164.0).rounded(1.6, 1.4));
        r.add(Shape::polygon({{side * 70, 128}, {side * 119, 128}, {side * 119, 206}, {side * 70, 206}}),
              slope({0, 128}, 164.0, {0, 206}, 157.0).rounded(1.4, 1.2));
        r.add(Shape::polygon({{side * 70, -176}, {side * 119, -176}, {side * 119, -232}, {side * 70, -232}}),
              slope({0, -176}, 164.0, {0, -232}, 156.0).rounded(1.4, 1.2));
        rivets(r, {{side * 119, -170}, {side * 119, 200}}, 11.0, 1.5);
        for (double y = -150.0; y < 200.0; y += 58.0) {
            gap(r, {{side * 71, y}, {side * 113, y}}, 1.2);
        }
    }
}

void front(Relief& r) {
    r.add(Shape::polygon({{-70, 206}, {70, 206}, {70, 272}, {-70, 272}}),
          slope({0, 206}, 156.0, {0, 272}, 96.0));
    r.add(Shape::rect(-70.0, 272.0, 70.0, 292.0), slope({0, 272}, 96.0, {0, 292}, 60.0));
    weld(r, {{-70, 272}, {70, 272}}, 2.2);
    rivets(r, {{-64, 212}, {64, 212}}, 10.0, 1.8);
    rivets(r, {{-64, 280}, {64, 280}}, 10.0, 1.8);
    // the driver's turret-like box at the left
    frustum(r, std::array<Vec2, 4>{{{-70, 214}, {2, 214}, {2, 128}, {-70, 128}}},
            std::array<Vec2, 4>{{{-66, 194}, {-2, 194}, {-2, 130}, {-66, 130}}}, 150.0, Roof);
    rivets(r, {{-62, 188}, {-6, 188}}, 9.0, 1.6);
    {
        const auto placed = r.place({.x = -34.0, .y = 206.0, .z = 168.0});
        r.add(Shape::roundRect(-20.0, -6.0, 20.0, 8.0, 2.0), flat(12.0).rounded(3.0, 5.0));
        r.add(Shape::rect(-14.0, 5.0, 14.0, 7.5), raise(-4.0), paints::Dark);
    }
    {
        const auto placed = r.placeOn({.x = -34.0, .y = 160.0});
        hatchRect(r, 46.0, 40.0, 3.0, 4.0);
    }
    // recess of the hull gun at the right
    r.add(Shape::polygon({{6, 214}, {70, 214}, {70, 128}, {6, 128}}), flat(168.0).rounded(2.0, 2.0));
    r.add(Shape::roundRect(10.0, 160.0, 64.0, 214.0, 5.0), flat(138.0), paints::DarkSteel);
    r.add(Shape::roundRect(8.0, 128.0, 68.0, 164.0, 6.0), flat(178.0).rounded(6.0, 8.0).rough(0.5));
    r.add(Shape::circle({60.0, 218.0}, 4.0), raise(4.0).rounded(3.0, 3.0), paints::DarkSteel);
    for (const double side : {-1.0, 1.0}) {
        const auto placed = r.placeOn({.x = side * 46.0, .y = 280.0});
        shackle(r);
        const auto lamp = r.place({.x = side * 12.0, .y = -36.0, .z = 6.0});
        headlight(r, 8.5);
    }
    towCable(r, {{-56, 262}, {-20, 244}, {20, 244}, {56, 262}}, 3.0);
}

void upperHull(Relief& r) {
    r.add(Shape::polygon({{-72, 130}, {72, 130}, {72, -60}, {-72, -60}}), flat(Roof).rounded(2.0, 1.6));
    rivets(r, {{-67, 124}, {-67, -54}}, 10.0, 1.6);
    rivets(r, {{67, 124}, {67, -54}}, 10.0, 1.6);
    rivets(r, {{-60, -54}, {60, -54}}, 10.0, 1.6);
    turretRing(r, {-14, 64}, 52.0, 26);
    {
        const auto placed = r.placeOn({.x = 36.0, .y = -20.0});
        hatchRound(r, 22.0, 3.5);
    }
    {
        const auto placed = r.placeOn({.x = -40.0, .y = -28.0});
        ventDome(r, 11.0);
    }
    {
        const auto placed = r.placeOn({.x = 54.0, .y = 96.0});
        periscope(r, 12.0, 9.0, 6.0);
    }
    const auto placed = r.placeOn({.x = 56.0, .y = 40.0});
    antennaBase(r);
}

void engineDeck(Relief& r) {
    r.add(Shape::polygon({{-72, -58}, {72, -58}, {72, -252}, {-72, -252}}),
          slope({0, -58}, 180.0, {0, -252}, 164.0).rounded(1.6, 1.4));
    r.add(Shape::polygon({{-70, -250}, {70, -250}, {66, -306}, {-66, -306}}),
          slope({0, -250}, 164.0, {0, -306}, 104.0));
    // the big radiator outlet at the left, doors at the right
    louvres(r, -62.0, -190.0, -16.0, -76.0, 13);
    panel(r, 4.0, -136.0, 62.0, -74.0, 1.8, 3.0);
    panel(r, 4.0, -212.0, 62.0, -146.0, 1.8, 3.0);
    for (const double y : {-90.0, -122.0, -162.0, -198.0}) {
        const auto placed = r.placeOn({.x = 62.0, .y = y, .angle = 90.0});
        hinge(r, 12.0);
    }
    meshGrille(r, -60.0, -242.0, -14.0, -206.0, 4.2);
    rivets(r, {{-67, -66}, {-67, -246}}, 10.0, 1.6);
    rivets(r, {{67, -66}, {67, -246}}, 10.0, 1.6);
    rivets(r, {{-60, -298}, {60, -298}}, 10.0, 1.6);
    for (const double side : {-1.0, 1.0}) {
        const auto placed = r.place({.x = side * 26.0, .y = -204.0, .angle = 180.0, .z = 172.0});
        exhaustPipe(r, 58.0, 6.0);
        r.add(Shape::roundRect(-9.0, 6.0, 9.0, 44.0, 4.0), tube({0, 6}, {0, 44}, 9.5, 9.5, 1.0),
              paints::Rust);
    }
    {
        const auto placed = r.placeOn({.x = 0.0, .y = -284.0, .angle = 90.0});
        spareTrack(r, 40.0, 4, 21.0);
    }
    for (const double side : {-1.0, 1.0}) {
        const auto placed = r.placeOn({.x = side * 46.0, .y = -302.0, .angle = 180.0});
        shackle(r);
    }
    r.add(Shape::rect(-60.0, -316.0, 60.0, -304.0), slope({0, -304}, 100.0, {0, -316}, 70.0));
}

void stowage(Relief& r) {
    {
        const auto placed = r.placeOn({.x = 94.0, .y = -60.0});
        stowageBox(r, 36.0, 84.0, 22.0);
    }
    {
        const auto placed = r.placeOn({.x = -96.0, .y = 20.0, .angle = 180.0});
        shovel(r, 92.0);
    }
    {
        const auto placed = r.placeOn({.x = -92.0, .y = -84.0});
        jack(r, 60.0);
    }
    const auto placed = r.placeOn({.x = 96.0, .y = 60.0});
    canvasRoll(r, 34.0, 9.0);
}

void drawHull(Relief& r) {
    runningGear(r);
    front(r);
    upperHull(r);
    engineDeck(r);
    stowage(r);
    // the machine gun in the front plate, to the right of the gun
    const auto placed = r.place({.x = 60.0, .y = 178.0, .z = 110.0});
    r.add(Shape::circle({}, 7.0), flat(4.0).rounded(6.0, 4.0));
    machineGunBarrel(r, 2.0, 34.0, 2.4, 2.0, false);
}

void drawTurret(Relief& r) {
    barrel(r, {{74.0, 7.6}, {96.0, 6.6}, {96.0, 5.4}, {146.0, 4.4}, {146.0, 5.2}, {152.0, 5.2}}, 34.0);
    muzzleBore(r, 152.0, 3.4, 34.0);
    {
        const auto placed = r.place({.x = 21.0, .z = 36.0});
        machineGunBarrel(r, 60.0, 84.0, 2.2, 0.0, false);
    }
    // cast turret, its cupola like a bowler hat
    r.add(Shape::symmetricSmooth({{0, 64}, {30, 60}, {54, 34}, {64, 0}, {56, -36}, {36, -60}, {0, -68}}),
          flat(66.0).rounded(24.0, 52.0).rough(0.9));
    r.add(Shape::roundRect(-30.0, 48.0, 34.0, 74.0, 7.0),
          tube({-1e4, 56}, {1e4, 56}, 18.0, 18.0, 32.0).rounded(4.0, 3.0).rough(0.5));
    r.add(Shape::roundRect(-11.0, 62.0, 11.0, 80.0, 5.0), tube({0, 60}, {0, 80}, 13.0, 8.5, 34.0));
    {
        const auto placed = r.placeOn({.x = 2.0, .y = -4.0});
        r.add(Shape::circle({}, 31.0), flat(7.0).rounded(6.0, 7.0));
        r.add(Shape::circle({}, 25.0), flat(24.0).rounded(24.0, 18.0).rough(0.5));
        for (const double angle : {0.0, 120.0, 240.0}) {
            const auto slit = r.place(
                {.x = bearing(angle).x * 20.0, .y = bearing(angle).y * 20.0, .angle = angle, .z = 9.0});
            r.add(Shape::roundRect(-7.0, -4.0, 7.0, 6.0, 2.0), flat(4.0).rounded(2.5, 3.0));
            r.add(Shape::rect(-4.0, 3.0, 4.0, 5.4), raise(-3.0), paints::Dark);
        }
        boltRing(r, {}, 28.0, 14, 1.3);
    }
    // the hatch in the rear of the turret, a seat when opened
    r.add(Shape::roundRect(-20.0, -72.0, 20.0, -58.0, 5.0), flat(46.0).rounded(4.0, 6.0));
    for (const double side : {-1.0, 1.0}) {
        const auto placed = r.placeOn({.x = side * 44.0, .y = 20.0, .angle = side * 70.0});
        r.add(Shape::roundRect(-8.0, -3.0, 8.0, 6.0, 2.0), flat(6.0).rounded(3.0, 4.0));
        r.add(Shape::rect(-5.0, 3.0, 5.0, 5.0), raise(-3.0), paints::Dark);
        const auto hook = r.placeOn({.x = side * 26.0, .y = -30.0, .angle = 0.0});
        liftingHook(r);
    }
}

void drawHullGun(Relief& r) {
    barrel(r, {{10.0, 12.5}, {40.0, 12.0}, {40.0, 8.6}, {98.0, 7.6}, {98.0, 8.8}, {108.0, 8.8}}, 18.0);
    muzzleBore(r, 108.0, 5.6, 18.0);
    for (const double y : {18.0, 32.0}) {
        r.add(Shape::rect(-13.0, y, 13.0, y + 4.0), raise(1.2).rounded(1.0, 0.8));
    }
    r.add(Shape::roundRect(-20.0, -16.0, 20.0, 18.0, 8.0), flat(32.0).rounded(12.0, 18.0).rough(0.6));
}

void damageHull(Relief& r) {
    burnAll(r, 0.75, 0.7, 171);
    scorch(r, {0, -140}, 130.0, 1.0, 172);
    scorch(r, {-34, 160}, 60.0, 0.85, 173);
    shellHole(r, {-40, 236}, 6.5);
    shellHole(r, {94, 60}, 7.0);
    furrow(r, {24, 262}, {38, 228}, 5.0);
    openHatch(r, Shape::roundRect(-57, 140, -11, 180, 4));
    openHatch(r, Shape::rect(4, -136, 62, -74));
    tornPlate(r, {-94, -40}, 16.0, 36.0, 5);
    brokenTrack(r, {-94, 238}, -8.0, 44.0, 3, 21.0);
    debris(r, {0, 0}, 130.0, 40, 174);
}

void damageTurret(Relief& r) {
    burnAll(r, 0.85, 0.5, 175);
    shellHole(r, {-34, 26}, 6.0);
    openHatch(r, Shape::roundRect(-18, -70, 18, -60, 4));
    debris(r, {0, -10}, 50.0, 10, 176);
}

void damageGun(Relief& r) {
    burnAll(r, 0.9, 0.4, 177);
    furrow(r, {-10, 30}, {-14, 6}, 4.0);
}

constexpr std::array<Sheet, 6> Sheets{
    {{.path = "Units/Vehicles/Hulls/French Char B1 bis hull.png",
      .width = 246,
      .height = 637,
      .draw = drawHull,
      .scheme = frenchOutlined},
     {.path = "Units/Vehicles/Destroyed/French Char B1 bis hull destroyed.png",
      .width = 246,
      .height = 637,
      .draw = drawHull,
      .damage = damageHull,
      .scheme = frenchOutlined},
     {.path = "Units/Vehicles/Turrets/French Char B1 bis turret.png",
      .width = 152,
      .height = 316,
      .draw = drawTurret,
      .scheme = frenchOutlined,
      .how = Mounted},
     {.path = "Units/Vehicles/Destroyed/French Char B1 bis turret destroyed.png",
      .width = 152,
      .height = 316,
      .draw = drawTurret,
      .damage = damageTurret,
      .scheme = frenchOutlined,
      .how = Mounted},
     {.path = "Units/Vehicles/Turrets/French Char B1 bis hull gun.png",
      .width = 60,
      .height = 228,
      .draw = drawHullGun,
      .scheme = frenchOutlined,
      .how = Mounted},
     {.path = "Units/Vehicles/Destroyed/French Char B1 bis hull gun destroyed.png",
      .width = 60,
      .height = 228,
      .draw = drawHullGun,
      .damage = damageGun,
      .scheme = frenchOutlined,
      .how = Mounted}}};

} // namespace

std::span<const Sheet> charB1Sheets() {
    return Sheets;
}

} // namespace artwork
