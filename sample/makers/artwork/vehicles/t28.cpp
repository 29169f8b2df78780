#include "catalogue.h"
#include "parts/armour.h"
#include "parts/fittings.h"
#include "parts/gear.h"
#include "parts/wreck.h"
#include "schemes.h"

#include <array>

namespace artwork {

namespace {

constexpr TrackStyle SmallTrack{.pitch = 17.0, .bar = 0.3, .barRise = 2.0};
constexpr double Deck = 146.0;
constexpr double Roof = 165.0;

void runningGear(Relief& r) {
    r.add(Shape::rect(-92.0, -360.0, 92.0, 350.0), flat(46.0), paints::Dark);
    for (const double side : {-1.0, 1.0}) {
        track(r, side > 0 ? 96.0 : -134.0, side > 0 ? 134.0 : -96.0, -330.0, 322.0, 92.0, 34.0, SmallTrack);
        // the guard over the track, with the skirt of the suspension at its outer edge
        r.add(Shape::rect(side > 0 ? 88.0 : -140.0, -318.0, side > 0 ? 140.0 : -88.0, 318.0),
              flat(104.0).rounded(1.2, 1.0));
        r.add(Shape::polygon({{side * 92, 318}, {side * 140, 318}, {side * 138, 366}, {side * 94, 366}}),
              slope({0, 318}, 104.0, {0, 366}, 84.0));
        r.add(Shape::polygon({{side * 92, -318}, {side * 140, -318}, {side * 138, -362}, {side * 94, -362}}),
              slope({0, -318}, 104.0, {0, -362}, 88.0));
        r.add(Shape::rect(side > 0 ? 136.0 : -143.5, -268.0, side > 0 ? 143.5 : -136.0, 262.0),
              flat(96.0).rounded(1.5, 1.2));
        for (int i = 0; i < 7; ++i) {
            gap(r, {{side * 136.0, -230.0 + i * 76.0}, {side * 143.5, -230.0 + i * 76.0}}, 1.2);
        }
        rivets(r, {{side * 133, -310}, {side * 133, 310}}, 12.0, 1.2);
    }
}

void bow(Relief& r) {
    // the driver's cab stands forward between the two small turrets
    r.add(Shape::polygon({{-92, 292}, {92, 292}, {66, 352}, {-66, 352}}),
          slope({0, 292}, 116.0, {0, 352}, 92.0));
    r.add(Shape::polygon({{-66, 352}, {66, 352}, {60, 366}, {-60, 366}}),
          slope({0, 352}, 92.0, {0, 366}, 58.0));
    weld(r, {{-66, 352}, {66, 352}}, 2.4);
    r.add(Shape::rect(-92.0, 160.0, 92.0, 294.0), flat(118.0).rounded(1.5, 1.2));
    frustumSymmetric(r, {{24, 318}, {27, 200}, {27, 170}}, {{22, 300}, {24, 204}, {24, 176}}, 112.0, Roof);
    {
        const auto placed = r.placeOn({.y = 250.0});
        hatchSplit(r, 40.0, 46.0, 2.6);
    }
    r.add(Shape::rect(-18.0, 302.0, 18.0, 312.0), raise(2.0).rounded(2.0, 1.6));
    r.add(Shape::rect(-12.0, 308.0, 12.0, 310.0), raise(-4.0), paints::Dark);
    rivets(r, {{-60, 346}, {60, 346}}, 10.0, 1.6);
    for (const double side : {-1.0, 1.0}) {
        turretRing(r, {side * 70.0, 224.0}, 42.0, 20);
        {
            const auto placed = r.placeOn({.x = side * 46.0, .y = 330.0});
            headlight(r, 8.5);
        }
        const auto hook = r.placeOn({.x = side * 44.0, .y = 356.0, .z = -4.0});
        shackle(r);
    }
}

void fightingCompartment(Relief& r) {
    r.add(Shape::polygon(
              {{-92, 186}, {92, 186}, {118, 160}, {118, 0}, {92, -24}, {-92, -24}, {-118, 0}, {-118, 160}}),
          flat(Roof - 6.0).rounded(1.6, 1.2));
    rivets(r, {{-112, 154}, {-112, 6}}, 12.0, 1.5);
    rivets(r, {{112, 154}, {112, 6}}, 12.0, 1.5);
    rivets(r, {{-88, -18}, {88, -18}}, 12.0, 1.5);
    r.add(Shape::circle({0, 88}, 104.0), flat(Roof).rounded(3.0, 3.0));
    turretRing(r, {0, 88}, 88.0, 36);
    for (const double side : {-1.0, 1.0}) {
        const auto placed = r.placeOn({.x = side * 103.0, .y = 8.0});
        ventDome(r, 9.0);
    }
}

void engineDeck(Relief& r) {
    r.add(Shape::polygon({{-92, -22}, {92, -22}, {92, -300}, {76, -358}, {-76, -358}, {-92, -300}}),
          flat(Deck).rounded(1.8, 1.4));
    // engine hatch with its raised, mushroom-shaped intake
    panel(r, -36.0, -128.0, 36.0, -34.0, 4.0, 5.0);
    r.add(Shape::roundRect(-20.0, -112.0, 20.0, -56.0, 18.0), raise(16.0).rounded(10.0, 8.0));
    for (const double side : {-1.0, 1.0}) {
        // radiators lie along both sides
        louvres(r, side > 0 ? 46.0 : -82.0, -168.0, side > 0 ? 82.0 : -46.0, -44.0, 12);
        rivets(r, {{side * 87, -30}, {side * 87, -296}}, 12.0, 1.4);
        const auto pipe = r.place({.x = side * 46.0, .y = -176.0, .angle = 180.0, .z = Deck + 12.0});
        exhaustPipe(r, 26.0, 7.0);
    }
    {
        // the long silencer lies across
        const auto placed = r.place({.y = -178.0, .z = Deck + 4.0});
        silencer(r, 118.0, 12.0, 0.0);
    }
    // the fan's sloped tower with its slatted outlet
    r.add(Shape::roundRect(-70.0, -286.0, 70.0, -206.0, 20.0), flat(Deck + 22.0).rounded(16.0, 14.0));
    {
        const auto placed = r.placeOn({.y = -246.0});
        fanGrille(r, 32.0, 12);
    }
    louvres(r, -62.0, -332.0, 62.0, -298.0, 6);
    rivets(r, {{-72, -350}, {72, -350}}, 12.0, 1.5);
    for (const double side : {-1.0, 1.0}) {
        const auto placed = r.placeOn({.x = side * 76.0, .y = -306.0});
        fillerCap(r, 8.0);
    }
}

void stowage(Relief& r) {
    for (const double side : {-1.0, 1.0}) {
        {
            // smoke apparatus on the guards
            const auto placed = r.place({.x = side * 118.0, .y = -70.0, .z = 104.0});
            stowageBox(r, 36.0, 72.0, 36.0);
            r.add(Shape::circle({0, 10}, 10.0), raise(8.0).rounded(5.0, 5.0));
        }
        {
            const auto placed = r.place({.x = side * 116.0, .y = -208.0, .z = 104.0});
            stowageBox(r, 34.0, 96.0, 24.0);
        }
        const auto placed = r.place({.x = side * 128.0, .y = 236.0, .z = 104.0});
        if (side < 0) {
            shovel(r, 96.0);
        } else {
            crowbar(r, 96.0);
        }
    }
    towCable(r, {{106, 300}, {128, 150}, {126, 20}, {128, -20}}, 3.0);
    {
        const auto placed = r.placeOn({.x = 20.0, .y = -346.0, .angle = 90.0});
        jack(r, 46.0);
    }
    const auto placed = r.placeOn({.x = -116.0, .y = 100.0, .angle = 90.0, .z = 0.0});
    canvasRoll(r, 72.0, 9.0);
}

void drawHull(Relief& r) {
    runningGear(r);
    bow(r);
    fightingCompartment(r);
    engineDeck(r);
    stowage(r);
}

void railAntenna(Relief& r) {
    // the aerial runs round the turret on posts
    const double z = 62.0;
    r.add(Shape::band({0, 0}, 99.5, 102.5, 40.0, 320.0), flat(z).rounded(1.4, 1.4), paints::Steel);
    for (int i = 0; i < 8; ++i) {
        const double angle = 42.0 + i * 39.4;
        const Vec2 d = bearing(angle);
        r.add(Shape::capsule(d * 88.0, d * 101.0, 2.4), flat(z - 2.0).rounded(1.2, 1.2), paints::Steel);
    }
}

void drawTurret(Relief& r) {
    // radio bustle, then the drum
    r.add(Shape::roundRect(-44.0, -124.0, 44.0, -60.0, 10.0), flat(70.0).rounded(4.0, 4.0));
    rivets(r, {{-38, -118}, {38, -118}}, 10.0, 1.4);
    {
        const auto placed = r.place({.y = -122.0, .angle = 180.0, .z = 34.0});
        r.add(Shape::circle({0, 0}, 13.0), flat(10.0).rounded(12.0, 10.0));
        machineGunBarrel(r, 8.0, 34.0, 2.4, 8.0, false);
    }
    barrel(r, {{104.0, 12.0}, {124.0, 11.0}, {124.0, 8.4}, {214.0, 7.0}, {214.0, 7.8}, {222.0, 7.8}}, 34.0);
    muzzleBore(r, 222.0, 5.6, 34.0);
    const Shape wall =
        Shape::symmetricSmooth({{0, 92}, {46, 84}, {82, 46}, {92, 0}, {82, -46}, {46, -82}, {0, -94}});
    r.add(wall, flat(76.0).rounded(2.5, 2.5));
    rivets(r, {{-34, 78}, {34, 78}}, 9.0, 1.4);
    for (int i = 0; i < 26; ++i) {
        const Vec2 d = bearing(38.0 + i * 11.4);
        bolts(r, d * 84.0, d * 84.0, 1, 1.5);
    }
    r.add(Shape::roundRect(-32.0, 84.0, 32.0, 108.0, 8.0), tube({-1e4, 90}, {1e4, 90}, 20.0, 20.0, 28.0));
    r.add(Shape::circle({48.0, 78.0}, 13.0), flat(44.0).rounded(12.0, 10.0));
    {
        const auto placed = r.place({.x = 48.0, .z = 38.0});
        machineGunBarrel(r, 86.0, 114.0, 2.4, 0.0, false);
    }
    {
        const auto placed = r.placeOn({.x = -34.0, .y = -10.0});
        hatchRound(r, 27.0, 4.0);
    }
    {
        const auto placed = r.placeOn({.x = 34.0, .y = -14.0});
        hatchRect(r, 46.0, 56.0, 4.0, 6.0);
    }
    for (const double side : {-1.0, 1.0}) {
        {
            const auto placed = r.placeOn({.x = side * 40.0, .y = 40.0});
            r.add(Shape::circle({}, 10.0), raise(3.0).rounded(3.0, 2.0));
            periscope(r, 12.0, 9.0, 8.0);
        }
        const auto hook = r.placeOn({.x = side * 62.0, .y = 22.0});
        liftingHook(r);
    }
    {
        const auto placed = r.placeOn({.x = 0.0, .y = -58.0});
        ventDome(r, 14.0);
    }
    // the ring of the anti-aircraft mounting
    r.add(Shape::ring({-34.0, -10.0}, 31.0, 34.0), raise(3.5).rounded(1.5, 1.5), paints::Steel);
    railAntenna(r);
}

void drawSmallTurret(Relief& r) {
    const Shape wall = Shape::symmetricSmooth({{0, 50}, {30, 42}, {49, 12}, {49, -14}, {32, -42}, {0, -51}});
    r.add(Shape::circle({0, 48.0}, 12.0), flat(40.0).rounded(11.0, 10.0));
    {
        const auto placed = r.place({.z = 34.0});
        machineGunBarrel(r, 56.0, 88.0, 2.4, 0.0, false);
    }
    r.add(wall, flat(58.0).rounded(2.2, 2.2));
    r.add(Shape::rect(-10.0, 40.0, 10.0, 54.0), flat(48.0).rounded(3.0, 4.0));
    for (int i = 0; i < 18; ++i) {
        const Vec2 d = bearing(24.0 + i * 18.4);
        bolts(r, d * 43.0, d * 43.0, 1, 1.3);
    }
    {
        const auto placed = r.placeOn({.y = -10.0});
        hatchRound(r, 22.0, 3.6);
    }
    const auto placed = r.placeOn({.x = -20.0, .y = 24.0});
    periscope(r, 9.0, 7.0, 4.0);
}

void damageHull(Relief& r) {
    burnAll(r, 0.75, 0.8, 61);
    scorch(r, {0, -160}, 160.0, 0.95, 62);
    scorch(r, {70, 224}, 70.0, 0.8, 65);
    shellHole(r, {0, 272}, 6.5);
    shellHole(r, {100, 100}, 7.0);
    openHatch(r, Shape::roundRect(-36, -128, 36, -34, 5));
    tornPlate(r, {-118, 190}, 18.0, 44.0, 3);
    brokenTrack(r, {-116, 322}, 14.0, 36.0, 5, 17.0);
    debris(r, {0, 40}, 160.0, 46, 63);
}

void damageTurret(Relief& r) {
    burnAll(r, 0.85, 0.5, 67);
    scorch(r, {0, 0}, 80.0, 0.85, 68);
    openHatch(r, Shape::circle({-34, -10}, 25.0));
    openHatch(r, Shape::roundRect(11, -42, 57, 14, 6));
    shellHole(r, {-20, 56}, 6.0);
    debris(r, {0, -10}, 80.0, 14, 69);
}

void damageSmallTurret(Relief& r) {
    burnAll(r, 0.9, 0.4, 70);
    openHatch(r, Shape::circle({0, -10}, 20.0));
    shellHole(r, {22, 18}, 5.0);
}

constexpr std::array<Sheet, 6> Sheets{
    {{.path = "Units/Vehicles/Hulls/Russian T-28 Model 1938 hull.png",
      .width = 287,
      .height = 744,
      .draw = drawHull,
      .scheme = sovietWinterTrace},
     {.path = "Units/Vehicles/Destroyed/Russian T-28 Model 1938 hull destroyed.png",
      .width = 287,
      .height = 744,
      .draw = drawHull,
      .damage = damageHull,
      .scheme = sovietWinterTrace},
     {.path = "Units/Vehicles/Turrets/Russian T-28 Model 1938 turret.png",
      .width = 216,
      .height = 452,
      .draw = drawTurret,
      .scheme = sovietWinterTrace,
      .how = Mounted},
     {.path = "Units/Vehicles/Destroyed/Russian T-28 Model 1938 turret destroyed.png",
      .width = 216,
      .height = 452,
      .draw = drawTurret,
      .damage = damageTurret,
      .scheme = sovietWinterTrace,
      .how = Mounted},
     {.path = "Units/Vehicles/Turrets/Russian T-28 machine gun turret.png",
      .width = 116,
      .height = 184,
      .draw = drawSmallTurret,
      .scheme = sovietWinterTrace,
      .how = Mounted},
     {.path = "Units/Vehicles/Destroyed/Russian T-28 machine gun turret destroyed.png",
      .width = 116,
      .height = 184,
      .draw = drawSmallTurret,
      .damage = damageSmallTurret,
      .scheme = sovietWinterTrace,
      .how = Mounted}}};

} // namespace

std::span<const Sheet> t28Sheets() {
    return Sheets;
}

} // namespace artwork
