#include "catalogue.h"
#include "parts/armour.h"
#include "parts/fittings.h"
#include "parts/gear.h"
#include "parts/wreck.h"
#include "schemes.h"

#include <array>

namespace artwork {

namespace {

constexpr TrackStyle RubberTrack{.pitch = 15.2, .bar = 0.3, .barRise = 2.0, .rubber = true};
constexpr double Roof = 178.0;
constexpr Rgb White = hex(0xD8D5C8);

void runningGear(Relief& r) {
    r.add(Shape::rect(-86.0, -276.0, 86.0, 240.0), flat(44.0), paints::Dark);
    for (const double side : {-1.0, 1.0}) {
        track(r, side > 0 ? 85.0 : -127.0, side > 0 ? 127.0 : -85.0, -250.0, 246.0, 92.0, 38.0, RubberTrack);
    }
}

void bow(Relief& r) {
    // the cast cover over the transmission
    r.add(Shape::roundRect(-84.0, 206.0, 84.0, 293.0, 22.0),
          tube({-1e4, 244}, {1e4, 244}, 49.0, 49.0, 58.0).rounded(14.0, 12.0).rough(0.5));
    r.add(Shape::rect(-84.0, 226.0, 84.0, 234.0), flat(108.0).rounded(1.5, 1.2));
    bolts(r, {-78, 230}, {78, 230}, 14, 1.8);
    for (const double side : {-1.0, 1.0}) {
        const auto placed = r.place({.x = side * 62.0, .y = 281.0, .z = 66.0});
        shackle(r);
    }
    // glacis: one plate right across
    r.add(Shape::polygon({{-131, 138}, {131, 138}, {131, 206}, {112, 228}, {-112, 228}, {-131, 206}}),
          slope({0, 138}, Roof, {0, 228}, 108.0));
    weld(r, {{-129, 139}, {129, 139}}, 2.6);
    for (const double side : {-1.0, 1.0}) {
        // small fenders over the front of the tracks
        r.add(Shape::roundRect(side > 0 ? 87.0 : -131.0, 206.0, side > 0 ? 131.0 : -87.0, 258.0, 4.0),
              tube({-1e4, 216}, {1e4, 216}, 46.0, 46.0, 58.0).rounded(1.5, 1.2));
        // hoods of driver and gunner
        r.add(Shape::roundRect(side > 0 ? 24.0 : -80.0, 120.0, side > 0 ? 80.0 : -24.0, 174.0, 9.0),
              flat(Roof + 2.0).chamfered(11.0, 16.0));
        {
            const auto placed = r.place({.x = side * 52.0, .y = 120.0, .z = Roof + 1.0});
            r.add(Shape::roundRect(-23.0, -24.0, 23.0, 28.0, 14.0), flat(4.0).rounded(3.0, 2.6));
            gap(r, {{-14, -22}, {14, -22}}, 1.0);
            const auto scope = r.place({.y = 8.0, .angle = side * 10.0, .z = 4.0});
            r.add(Shape::circle({}, 9.0), flat(1.4).rounded(2.0, 1.4));
            periscope(r, 13.0, 7.0, 5.0);
        }
        const auto lamp = r.placeOn({.x = side * 96.0, .y = 206.0});
        headlight(r, 8.0);
        for (const double x : {-9.0, 0.0, 9.0}) {
            r.add(Shape::line({{x, -12.0}, {x, 14.0}}, 1.8), flat(16.0).rounded(0.9, 0.9));
        }
        r.add(Shape::line({{-10.0, 14.0}, {10.0, 14.0}}, 1.8), flat(12.0).rounded(0.9, 0.9));
    }
    {
        const auto placed = r.place({.y = 112.0, .z = Roof});
        ventDome(r, 12.0);
    }
    r.add(Shape::circle({58.0, 200.0}, 16.0), raise(10.0).rounded(15.0, 12.0).rough(0.4));
    star(r, {0, 192}, 15.0, White);
    const auto placed = r.placeOn({.x = -20.0, .y = 216.0, .angle = 90.0});
    spareTrack(r, 32.0, 4, 15.2);
}

void upperHull(Relief& r) {
    r.add(Shape::polygon({{-131, 139}, {131, 139}, {131, -250}, {112, -276}, {-112, -276}, {-131, -250}}),
          flat(Roof).rounded(1.6, 1.2));
    r.add(Shape::rect(-116.0, -284.0, 116.0, -262.0), slope({0, -262}, Roof - 10.0, {0, -284}, 128.0));
    turretRing(r, {0, 34}, 88.0, 36);
    for (const double side : {-1.0, 1.0}) {
        weld(r, {{side * 128, 138}, {side * 128, -250}}, 2.0);
        for (const double y : {-88.0, -118.0}) {
            const auto placed = r.placeOn({.x = side * 108.0, .y = y});
            fillerCap(r, 7.5);
        }
        // added plates over the ammunition racks stand proud of the side
        r.add(Shape::roundRect(side > 0 ? 126.0 : -131.0, side > 0 ? 10.0 : -10.0, side > 0 ? 131.0 : -126.0,
                               side > 0 ? 84.0 : 64.0, 1.0),
              flat(Roof - 6.0).rounded(1.0, 1.0));
        const auto hook = r.placeOn({.x = side * 112.0, .y = 96.0});
        liftingHook(r);
    }
    // splash rails around turret and engine
    r.add(Shape::band({0, 34}, 102.0, 105.0, 110.0, 250.0), raise(4.0).rounded(1.5, 1.5));
}

void engineDeck(Relief& r) {
    gap(r, {{-129, -84}, {129, -84}}, 1.4);
    // the big grille doors over the Ford engine
    for (const double side : {-1.0, 1.0}) {
        louvres(r, side > 0 ? 6.0 : -66.0, -232.0, side > 0 ? 66.0 : -6.0, -106.0, 15);
        r.add(Shape::capsule({side * 36.0, -232.0}, {side * 36.0, -106.0}, 4.0),
              raise(2.0).rounded(2.0, 1.5));
        for (const double y : {-132.0, -206.0}) {
            const auto placed = r.placeOn({.x = side * 70.0, .y = y, .angle = side * 90.0});
            hinge(r, 16.0);
        }
        gap(r, {{side * 78, -86}, {side * 78, -252}}, 1.2);
        const auto placed = r.placeOn({.x = side * 104.0, .y = -180.0});
        panel(r, -17.0, -32.0, 17.0, 32.0, 1.4);
    }
    gap(r, {{-129, -250}, {129, -250}}, 1.2);
    star(r, {0, -169}, 30.0, White, 0.6);
}

void stowage(Relief& r) {
    {
        const auto placed = r.placeOn({.x = -112.0, .y = -190.0, .angle = 180.0});
        shovel(r, 96.0);
    }
    {
        const auto placed = r.placeOn({.x = -94.0, .y = -200.0});
        axe(r, 84.0);
    }
    {
        const auto placed = r.placeOn({.x = 120.0, .y = -196.0});
        crowbar(r, 100.0);
    }
    towCable(r, {{-116, 96}, {-122, 40}, {-121, -60}, {-122, -150}}, 3.2);
    // what the crew piles up on the rear
    for (const auto& [x, y, angle, len] :
         {std::array{-66.0, -266.0, 2.0, 84.0}, std::array{22.0, -268.0, -3.0, 76.0}}) {
        const auto placed = r.placeOn({.x = x, .y = y, .angle = angle});
        canvasRoll(r, len, 12.0);
    }
    {
        const auto placed = r.placeOn({.x = 92.0, .y = -266.0, .angle = 4.0});
        crate(r, 46.0, 26.0, 20.0);
    }
    for (const double x : {104.0}) {
        const auto placed = r.placeOn({.x = x, .y = -136.0, .angle = 90.0});
        jerrycan(r, paints::Hull);
    }
    // exhaust deflector below the rear plate
    r.add(Shape::roundRect(-48.0, -294.0, 48.0, -280.0, 3.0), flat(96.0).rounded(3.0, 4.0));
    for (double x = -38.0; x <= 38.0; x += 11.0) {
        r.add(Shape::rect(x - 3.5, -293.0, x + 3.5, -284.0), raise(-5.0), paints::Dark);
    }
}

void drawHull(Relief& r) {
    runningGear(r);
    bow(r);
    upperHull(r);
    engineDeck(r);
    stowage(r);
}

void gun(Relief& r) {
    barrel(r, {{112.0, 9.6}, {150.0, 8.4}, {236.0, 6.6}, {236.0, 7.2}, {262.0, 7.0}}, 38.0);
    muzzleBore(r, 262.0, 5.0, 38.0);
    {
        const auto placed = r.place({.x = -24.0, .z = 40.0});
        machineGunBarrel(r, 96.0, 116.0, 2.4, 0.0, true);
    }
    // the wide gun shield
    r.add(Shape::roundRect(-60.0, 62.0, 60.0, 100.0, 10.0),
          tube({-1e4, 72}, {1e4, 72}, 28.0, 28.0, 34.0).rounded(6.0, 4.0).rough(0.7));
    r.add(Shape::roundRect(-18.0, 84.0, 18.0, 116.0, 8.0),
          tube({0, 80}, {0, 118}, 19.0, 13.0, 38.0).rough(0.4));
    r.add(Shape::ellipse({34.0, 96.0}, 4.0, 3.0), raise(-6.0), paints::Dark);
    bolts(r, {-54, 70}, {54, 70}, 8, 1.8);
}

/// The heavy anti-aircraft machine gun on its pintle.
void roofMachineGun(Relief& r) {
    const auto placed = r.place({.x = 28.0, .y = -44.0, .angle = -4.0, .z = 104.0});
    r.add(Shape::roundRect(-4.0, -44.0, 4.0, 12.0, 2.0), flat(4.0).rounded(2.0, 2.0), paints::DarkSteel);
    r.add(Shape::roundRect(4.0, -22.0, 21.0, -6.0, 2.0), flat(3.0).rounded(2.0, 2.0),
          {.colour = hex(0x4E5034), .gloss = 0.1});
    machineGunBarrel(r, 12.0, 88.0, 2.4, 3.0, false);
    machineGunBarrel(r, 12.0, 26.0, 3.4, 3.0, true);
    r.add(Shape::line({{-3.5, -44}, {-3.5, -50}, {3.5, -50}, {3.5, -44}}, 2.0), flat(3.0), paints::DarkSteel);
}

void drawTurret(Relief& r) {
    gun(r);
    // cast, rounded everywhere; the bustle holds the radio
    r.add(
        Shape::symmetricSmooth(
            {{0, 82}, {44, 80}, {74, 58}, {92, 14}, {90, -28}, {72, -70}, {66, -104}, {52, -122}, {0, -127}}),
        flat(80.0).rounded(30.0, 62.0).rough(0.9));
    for (const double side : {-1.0, 1.0}) {
        for (const double y : {44.0, -84.0}) {
            const auto hook = r.placeOn({.x = side * (y > 0 ? 56.0 : 46.0), .y = y, .angle = side * 60.0});
            liftingHook(r);
        }
    }
    {
        // commander's split hatch in its ring
        const auto placed = r.placeOn({.x = 36.0, .y = -38.0});
        r.add(Shape::circle({}, 36.0), flat(6.0).rounded(5.0, 4.0).rough(0.3));
        r.add(Shape::ring({}, 29.0, 30.5), raise(-2.0));
        r.add(Shape::circle({}, 28.5), flat(8.0).rounded(3.0, 2.4));
        gap(r, {{0, -28}, {0, 28}}, 1.4, 2.0);
        for (const double side : {-1.0, 1.0}) {
            const auto handles = r.place({.x = side * 12.0, .angle = 90.0, .z = 8.0});
            handle(r, 12.0);
        }
        const auto scope = r.place({.x = -14.0, .y = 12.0, .z = 8.0});
        periscope(r, 11.0, 6.0, 4.0);
    }
    {
        const auto placed = r.placeOn({.x = -42.0, .y = -18.0, .angle = -6.0});
        r.add(Shape::roundRect(-17.0, -28.0, 17.0, 28.0, 15.0), flat(4.0).rounded(3.0, 2.4));
        r.add(Shape::ellipse({}, 14.0, 25.0), raise(1.0).rounded(2.0, 1.0));
        const auto grip = r.place({.y = 8.0, .z = 5.0});
        handle(r, 12.0);
    }
    for (const double side : {-1.0, 1.0}) {
        const auto placed = r.placeOn({.x = side * 36.0, .y = 34.0});
        r.add(Shape::circle({}, 9.0), flat(2.5).rounded(2.0, 1.6));
        periscope(r, 13.0, 7.0, 5.0);
    }
    r.add(Shape::capsule({0, 40}, {0, 56}, 3.0), raise(6.0).rounded(1.5, 1.5), paints::Steel);
    {
        const auto placed = r.placeOn({.x = -4.0, .y = -98.0});
        ventDome(r, 12.0);
    }
    {
        const auto placed = r.placeOn({.x = -40.0, .y = -96.0});
        antennaBase(r);
    }
    {
        const auto placed = r.placeOn({.x = -38.0, .y = 60.0});
        r.add(Shape::circle({}, 5.5), raise(3.0).rounded(2.0, 1.5));
        r.add(Shape::circle({}, 2.8), raise(-4.0), paints::Dark);
    }
    roofMachineGun(r);
}

void damageHull(Relief& r) {
    burnAll(r, 0.8, 0.7, 141);
    scorch(r, {0, -180}, 140.0, 1.0, 142);
    scorch(r, {52, 120}, 70.0, 0.8, 143);
    shellHole(r, {-70, 190}, 6.5);
    shellHole(r, {120, 40}, 6.5);
    openHatch(r, Shape::roundRect(30, 97, 74, 147, 13));
    openHatch(r, Shape::rect(6, -232, 66, -106));
    furrow(r, {20, 276}, {34, 236}, 5.0);
    brokenTrack(r, {106, 250}, -12.0, 40.0, 5, 15.2);
    debris(r, {0, 0}, 140.0, 44, 144);
}

void damageTurret(Relief& r) {
    burnAll(r, 0.85, 0.5, 145);
    scorch(r, {36, -38}, 70.0, 0.95, 146);
    openHatch(r, Shape::circle({36, -38}, 27.0));
    openHatch(r, Shape::ellipse({-42, -18}, 14.0, 25.0));
    shellHole(r, {-30, 76}, 6.0);
    debris(r, {0, -20}, 80.0, 14, 147);
}

constexpr std::array<Sheet, 4> Sheets{
    {{.path = "Units/Vehicles/Hulls/American M4A3 Sherman hull.png",
      .width = 262,
      .height = 590,
      .draw = drawHull,
      .scheme = oliveDrab},
     {.path = "Units/Vehicles/Destroyed/American M4A3 Sherman hull destroyed.png",
      .width = 262,
      .height = 590,
      .draw = drawHull,
      .damage = damageHull,
      .scheme = oliveDrab},
     {.path = "Units/Vehicles/Turrets/American M4A3 Sherman turret.png",
      .width = 208,
      .height = 532,
      .draw = drawTurret,
      .scheme = oliveDrab,
      .how = Mounted},
     {.path = "Units/Vehicles/Destroyed/American M4A3 Sherman turret destroyed.png",
      .width = 208,
      .height = 532,
      .draw = drawTurret,
      .damage = damageTurret,
      .scheme = oliveDrab,
      .how = Mounted}}};

} // namespace

std::span<const Sheet> shermanSheets() {
    return Sheets;
}

} // namespace artwork
