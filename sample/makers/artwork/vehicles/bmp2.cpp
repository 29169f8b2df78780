#include "catalogue.h"
#include "parts/armour.h"
#include "parts/fittings.h"
#include "parts/gear.h"
#include "parts/wreck.h"
#include "schemes.h"

#include <array>

namespace artwork {

namespace {

constexpr TrackStyle BmpTrack{.pitch = 14.0, .bar = 0.5, .barRise = 2.0, .split = true};
constexpr double Roof = 164.0;

void runningGear(Relief& r) {
    r.add(Shape::rect(-116.0, -320.0, 116.0, 318.0), flat(50.0), paints::Dark);
    for (const double side : {-1.0, 1.0}) {
        track(r, side > 0 ? 114.0 : -144.0, side > 0 ? 144.0 : -114.0, -280.0, 284.0, 98.0, 32.0, BmpTrack);
        // hollow fenders, full of foam, that help it swim
        r.add(Shape::polygon({{side * 112, 250},
                              {side * 150, 230},
                              {side * 157, 180},
                              {side * 157, -290},
                              {side * 150, -312},
                              {side * 112, -318}}),
              flat(116.0).rounded(4.0, 4.0));
        r.add(Shape::polygon({{side * 112, 246}, {side * 150, 228}, {side * 146, 306}, {side * 118, 318}}),
              slope({0, 236}, 116.0, {0, 318}, 92.0));
        for (int i = 0; i < 6; ++i) {
            gap(r, {{side * 118.0, -280.0 + i * 88.0}, {side * 156.0, -280.0 + i * 88.0}}, 1.2);
            r.add(Shape::capsule({side * 124.0, -264.0 + i * 88.0}, {side * 124.0, -208.0 + i * 88.0}, 3.0),
                  raise(1.4).rounded(1.5, 1.4));
        }
    }
}

void body(Relief& r) {
    frustumSymmetric(r, {{128, 160}, {132, 60}, {132, -296}, {120, -326}},
                     {{104, 148}, {112, 56}, {112, -286}, {104, -306}}, 114.0, Roof);
    // the long, nearly level bow plate
    r.add(Shape::polygon({{-104, 148},
                          {104, 148},
                          {128, 160},
                          {118, 296},
                          {96, 331},
                          {-96, 331},
                          {-118, 296},
                          {-128, 160}}),
          slope({0, 148}, Roof, {0, 331}, 116.0));
    r.add(Shape::polygon({{-96, 331}, {96, 331}, {88, 337}, {-88, 337}}),
          slope({0, 331}, 116.0, {0, 337}, 70.0));
    weld(r, {{-104, 148}, {104, 148}}, 2.2);
    for (const double side : {-1.0, 1.0}) {
        weld(r, {{side * 112, -286}, {side * 112, 56}, {side * 104, 148}}, 2.0);
        // firing ports along the troop compartment, each with its periscope
        for (const double y : {-60.0, -130.0, -200.0}) {
            const auto placed = r.place({.x = side * 126.0, .y = y, .angle = side * 55.0, .z = 132.0});
            r.add(Shape::circle({}, 10.0), flat(8.0).rounded(9.0, 8.0));
            r.add(Shape::circle({0, 5.0}, 3.0), raise(-3.0), paints::Dark);
        }
        for (const double y : {-66.0, -136.0, -206.0}) {
            const auto placed = r.placeOn({.x = side * 96.0, .y = y, .angle = side * 60.0});
            periscope(r, 13.0, 8.0, 5.0);
        }
    }
}

void bowFittings(Relief& r) {
    // the trim vane lies folded on the bow; beneath it the ribbed cover over the gearbox
    r.add(Shape::roundRect(-92.0, 262.0, 92.0, 322.0, 6.0), raise(4.0).rounded(2.0, 1.6));
    for (double x = -78.0; x <= 78.0; x += 19.5) {
        r.add(Shape::capsule({x, 270}, {x, 314}, 5.0), raise(1.8).rounded(2.5, 1.8));
    }
    panel(r, -6.0, 160.0, 88.0, 252.0, 2.0, 5.0);
    for (double y = 172.0; y < 246.0; y += 10.0) {
        r.add(Shape::capsule({2.0, y}, {80.0, y}, 4.4), raise(1.8).rounded(2.2, 1.8));
    }
    for (const double side : {-1.0, 1.0}) {
        {
            const auto placed = r.placeOn({.x = side * 102.0, .y = 238.0});
            headlight(r, 9.0);
            r.add(Shape::line({{-11, -6}, {-11, 13}, {11, 13}, {11, -6}}, 2.0), flat(16.0).rounded(1.0, 1.0),
                  paints::Steel);
        }
        const auto hook = r.placeOn({.x = side * 74.0, .y = 324.0});
        shackle(r);
    }
    // radiator and exhaust on the right, behind the engine cover
    louvres(r, 22.0, 92.0, 84.0, 134.0, 7);
    meshGrille(r, 88.0, 98.0, 104.0, 140.0, 4.0);
    {
        const auto placed = r.placeOn({.x = 50.0, .y = 74.0});
        panel(r, -28.0, -8.0, 28.0, 8.0, 1.4);
    }
}

void roofFittings(Relief& r) {
    {
        // the driver sits at the left, the commander of the section behind him
        const auto placed = r.placeOn({.x = -62.0, .y = 128.0, .angle = 0.0});
        r.add(Shape::roundRect(-27.0, -26.0, 27.0, 24.0, 14.0), raise(5.0).rounded(3.0, 3.0));
        gap(r, {{-20, 20}, {20, 20}}, 1.0);
        const auto hatch = r.place({.y = -4.0, .z = 5.0});
        handle(r, 14.0);
        for (const double angle : {-38.0, 0.0, 38.0}) {
            const auto scope = r.place({.x = bearing(angle).x * 34.0,
                                        .y = bearing(angle).y * 34.0 - 4.0,
                                        .angle = angle,
                                        .z = -3.0});
            periscope(r, 15.0, 8.0, 5.0);
        }
    }
    {
        const auto placed = r.placeOn({.x = -66.0, .y = 62.0});
        hatchRound(r, 24.0, 4.0);
    }
    {
        const auto placed = r.placeOn({.x = -66.0, .y = 94.0});
        periscope(r, 18.0, 9.0, 6.0);
    }
    turretRing(r, {0, -22}, 92.0, 36);
    for (const double side : {-1.0, 1.0}) {
        // troop hatches open sideways from the middle
        for (const double y : {-172.0, -242.0}) {
            const auto placed = r.placeOn({.x = side * 46.0, .y = y, .angle = side * 90.0});
            hatchRect(r, 62.0, 72.0, 3.0, 5.0);
        }
    }
    gap(r, {{0, -132}, {0, -284}}, 1.6);
    {
        const auto placed = r.placeOn({.x = 100.0, .y = -262.0});
        antennaBase(r);
    }
    const auto placed = r.placeOn({.x = -6.0, .y = -292.0});
    ventDome(r, 8.0);
}

void rear(Relief& r) {
    r.add(Shape::rect(-118.0, -326.0, 118.0, -306.0), slope({0, -306}, Roof - 4.0, {0, -326}, 96.0));
    for (const double side : {-1.0, 1.0}) {
        // the doors are fuel tanks
        r.add(Shape::roundRect(side > 0 ? 8.0 : -86.0, -336.0, side > 0 ? 86.0 : -8.0, -312.0, 9.0),
              flat(138.0).rounded(9.0, 12.0));
        for (const double x : {28.0, 64.0}) {
            r.add(Shape::capsule({side * x, -318}, {side * x, -332}, 4.0), raise(1.5).rounded(2.0, 1.5));
        }
    }
    const auto placed = r.placeOn({.x = 134.0, .y = -70.0, .z = 0.0});
    r.add(Shape::capsule({0, -118}, {0, 116}, 13.0), flat(13.0).rounded(6.0, 6.0).rough(1.6),
          paints::DarkWood);
    for (const double y : {-80.0, 70.0}) {
        r.add(Shape::rect(-8.5, y, 8.5, y + 4.0), flat(14.0), paints::Steel);
    }
}

void stowage(Relief& r) {
    towCable(r, {{-118, 200}, {-134, 120}, {-138, 0}, {-136, -120}, {-138, -220}}, 3.2);
    {
        const auto placed = r.placeOn({.x = 134.0, .y = 110.0});
        shovel(r, 86.0);
    }
    const auto placed = r.placeOn({.x = 120.0, .y = 196.0});
    crowbar(r, 70.0);
}

void drawHull(Relief& r) {
    runningGear(r);
    body(r);
    bowFittings(r);
    roofFittings(r);
    rear(r);
    stowage(r);
}

void launcher(Relief& r) {
    // the guided missile's tube on its post
    r.add(Shape::circle({0, -14}, 11.0), flat(66.0).rounded(4.0, 3.0), paints::Steel);
    r.add(Shape::rect(-11.0, -26.0, 11.0, 16.0), flat(76.0).rounded(3.0, 3.0));
    const Paint tubePaint{.colour = hex(0x6B6E4E), .gloss = 0.1};
    barrel(r, {{-68.0, 8.6}, {-62.0, 8.6}, {-62.0, 7.4}, {44.0, 7.4}, {44.0, 8.8}, {54.0, 8.8}}, 84.0,
           tubePaint);
    for (const double y : {-40.0, 0.0, 30.0}) {
        r.add(Shape::rect(-8.0, y, 8.0, y + 3.0), raise(0.8), paints::Steel);
    }
    r.stain(Shape::rect(-8.8, 51.0, 8.8, 54.0), hex(0x2A2A26), 0.9);
    r.add(Shape::roundRect(10.0, -14.0, 24.0, 12.0, 2.0), flat(88.0).rounded(2.0, 2.0));
    r.add(Shape::rect(12.0, 9.0, 22.0, 12.0), raise(-5.0), paints::Glass);
}

void drawTurret(Relief& r) {
    barrel(r, {{76.0, 9.0}, {112.0, 7.0}, {112.0, 5.0}, {150.0, 4.2}, {150.0, 3.4}, {262.0, 2.9}}, 30.0);
    barrel(r,
           {{262.0, 5.2},
            {266.0, 5.2},
            {266.0, 3.2},
            {272.0, 3.2},
            {272.0, 5.2},
            {276.0, 5.2},
            {276.0, 3.2},
            {281.0, 3.2},
            {281.0, 5.0},
            {285.0, 5.0}},
           30.0, paints::DarkSteel);
    {
        const auto placed = r.place({.x = 18.0, .z = 28.0});
        machineGunBarrel(r, 82.0, 122.0, 2.2, 0.0, false);
    }
    // a flat cone, its front drawn out around the gun
    r.add(Shape::circle({}, 99.0), flat(40.0).chamfered(37.0, 34.0));
    r.add(Shape::symmetricSmooth({{0, 62}, {34, 56}, {60, 22}, {62, -14}, {44, -46}, {0, -60}}),
          flat(42.0).rounded(2.0, 1.4));
    weld(r, {{-54, 34}, {-30, 58}, {30, 58}, {54, 34}}, 2.0);
    r.add(Shape::roundRect(-26.0, 48.0, 26.0, 92.0, 8.0), tube({0, 40}, {0, 96}, 26.0, 20.0, 16.0));
    bolts(r, {-20, 56}, {20, 56}, 4, 1.5);
    {
        const auto placed = r.placeOn({.x = 36.0, .y = -8.0});
        hatchRound(r, 23.0, 5.0);
        for (const double angle : {-50.0, -15.0, 20.0, 55.0}) {
            const auto scope =
                r.place({.x = bearing(angle).x * 30.0, .y = bearing(angle).y * 30.0, .angle = angle});
            periscope(r, 12.0, 7.0, 6.0);
        }
        const auto lamp = r.place({.x = -2.0, .y = 40.0, .z = 2.0});
        headlight(r, 7.5);
    }
    {
        const auto placed = r.placeOn({.x = -36.0, .y = -12.0});
        hatchRound(r, 22.0, 4.0);
    }
    {
        const auto placed = r.placeOn({.x = -36.0, .y = 30.0});
        r.add(Shape::roundRect(-13.0, -11.0, 13.0, 13.0, 4.0), flat(14.0).rounded(3.0, 3.0));
        r.add(Shape::rect(-9.0, 10.0, 9.0, 13.0), flat(8.0), paints::Glass);
    }
    for (const double side : {-1.0, 1.0}) {
        const auto placed = r.place({.x = side * 84.0, .y = 30.0, .angle = side * 40.0, .z = 18.0});
        smokeTubes(r, 3, 22.0, 4.4);
    }
    r.add(Shape::roundRect(-50.0, -92.0, 50.0, -62.0, 6.0), flat(30.0).rounded(4.0, 4.0));
    gap(r, {{0, -64}, {0, -90}}, 1.0);
    {
        const auto placed = r.placeOn({.x = -66.0, .y = -56.0});
        antennaBase(r);
    }
    launcher(r);
}

void damageHull(Relief& r) {
    burnAll(r, 0.85, 0.9, 121);
    scorch(r, {0, -120}, 180.0, 1.0, 122);
    scorch(r, {50, 180}, 90.0, 0.8, 123);
    shellHole(r, {86, 30}, 6.0);
    shellHole(r, {-110, -160}, 5.0);
    openHatch(r, Shape::roundRect(10, -203, 82, -141, 4));
    openHatch(r, Shape::roundRect(-82, -273, -10, -211, 4));
    openHatch(r, Shape::circle({-66, 62}, 22.0));
    tornPlate(r, {40, 200}, 34.0, 30.0, 8);
    brokenTrack(r, {134, 262}, -10.0, 30.0, 5, 14.0);
    debris(r, {0, -60}, 170.0, 60, 124);
}

void damageTurret(Relief& r) {
    burnAll(r, 0.9, 0.6, 125);
    scorch(r, {0, -10}, 90.0, 0.9, 126);
    openHatch(r, Shape::circle({36, -8}, 20.0));
    shellHole(r, {-58, 10}, 5.0);
    debris(r, {0, 0}, 80.0, 18, 127);
}

constexpr std::array<Sheet, 4> Sheets{{{.path = "Units/Vehicles/Hulls/Russian BMP-2 hull.png",
                                        .width = 315,
                                        .height = 674,
                                        .draw = drawHull,
                                        .scheme = sovietModern},
                                       {.path = "Units/Vehicles/Destroyed/Russian BMP-2 hull destroyed.png",
                                        .width = 315,
                                        .height = 674,
                                        .draw = drawHull,
                                        .damage = damageHull,
                                        .scheme = sovietModern},
                                       {.path = "Units/Vehicles/Turrets/Russian BMP-2 turret.png",
                                        .width = 220,
                                        .height = 578,
                                        .draw = drawTurret,
                                        .scheme = sovietModern,
                                        .how = Mounted},
                                       {.path = "Units/Vehicles/Destroyed/Russian BMP-2 turret destroyed.png",
                                        .width = 220,
                                        .height = 578,
                                        .draw = drawTurret,
                                        .damage = damageTurret,
                                        .scheme = sovietModern,
                                        .how = Mounted}}};

} // namespace

std::span<const Sheet> bmp2Sheets() {
    return Sheets;
}

} // namespace artwork
