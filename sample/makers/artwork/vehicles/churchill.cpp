#include "catalogue.h"
#include "parts/armour.h"
#include "parts/fittings.h"
#include "parts/gear.h"
#include "parts/wreck.h"
#include "schemes.h"

#include <array>

namespace artwork {

namespace {

constexpr TrackStyle HeavyTrack{.pitch = 21.0, .bar = 0.42, .barRise = 2.4};
constexpr double Roof = 158.0;

void runningGear(Relief& r) {
    r.add(Shape::rect(-108.0, -352.0, 108.0, 330.0), flat(54.0), paints::Dark);
    for (const double side : {-1.0, 1.0}) {
        // the horns carry the track far in front of the hull
        track(r, side > 0 ? 104.0 : -160.0, side > 0 ? 160.0 : -104.0, -334.0, 336.0, 112.0, 36.0,
              HeavyTrack);
        r.add(Shape::rect(side > 0 ? 100.0 : -106.0, 160.0, side > 0 ? 106.0 : -100.0, 352.0),
              flat(112.0).rounded(1.5, 1.5));
        // track guards, cut away in front and at the rear
        r.add(Shape::rect(side > 0 ? 102.0 : -162.0, -262.0, side > 0 ? 162.0 : -102.0, 236.0),
              flat(124.0).rounded(1.4, 1.2));
        r.add(Shape::polygon({{side * 102, 236}, {side * 162, 236}, {side * 162, 292}, {side * 102, 292}}),
              slope({0, 236}, 124.0, {0, 292}, 117.0).rounded(1.2, 1.0));
        for (int i = 0; i < 6; ++i) {
            gap(r, {{side * 104.0, -176.0 + i * 82.0}, {side * 161.0, -176.0 + i * 82.0}}, 1.2);
        }
        bolts(r, {side * 157, -250}, {side * 157, 228}, 18, 1.4);
    }
}

void front(Relief& r) {
    // upright driver's plate, then the long nose plate between the horns
    r.add(Shape::polygon({{-106, 204}, {106, 204}, {100, 322}, {-100, 322}}),
          slope({0, 204}, 112.0, {0, 322}, 74.0));
    r.add(Shape::rect(-100.0, 320.0, 100.0, 332.0), slope({0, 320}, 76.0, {0, 332}, 46.0));
    weld(r, {{-100, 321}, {100, 321}}, 2.6);
    r.add(Shape::rect(-106.0, 186.0, 106.0, 208.0), flat(Roof).rounded(2.0, 2.0));
    bolts(r, {-98, 196}, {98, 196}, 13, 2.0);
    {
        const auto placed = r.place({.x = 42.0, .y = 204.0, .z = 132.0});
        r.add(Shape::roundRect(-20.0, 0.0, 20.0, 10.0, 3.0), flat(14.0).rounded(3.0, 5.0));
        r.add(Shape::rect(-13.0, 7.0, 13.0, 9.5), raise(-5.0), paints::Dark);
    }
    r.add(Shape::circle({-46.0, 204.0}, 17.0), flat(142.0).rounded(15.0, 12.0));
    for (const double side : {-1.0, 1.0}) {
        const auto placed = r.placeOn({.x = side * 66.0, .y = 314.0});
        shackle(r);
        const auto lamp = r.place({.x = side * 20.0, .y = -76.0, .z = 4.0});
        headlight(r, 8.0);
    }
    const auto placed = r.placeOn({.x = 0.0, .y = 262.0, .angle = 90.0});
    spareTrack(r, 40.0, 3, 21.0);
}

void upperHull(Relief& r) {
    r.add(Shape::rect(-106.0, -96.0, 106.0, 206.0), flat(Roof).rounded(2.0, 1.6));
    for (const double side : {-1.0, 1.0}) {
        {
            const auto placed = r.placeOn({.x = side * 46.0, .y = 166.0});
            hatchSplit(r, 54.0, 42.0, 3.6);
        }
        {
            const auto placed = r.placeOn({.x = side * 86.0, .y = 168.0});
            periscope(r, 14.0, 9.0, 6.0);
        }
        bolts(r, {side * 100, -86}, {side * 100, 140}, 12, 1.8);
        // armoured boxes of the air inlets on both flanks
        const auto placed = r.place({.x = side * 136.0, .y = -66.0, .z = 122.0});
        r.add(Shape::roundRect(-25.0, -46.0, 25.0, 46.0, 4.0), flat(36.0).rounded(4.0, 4.0));
        louvres(r, -17.0, -38.0, 17.0, 38.0, 7);
    }
    turretRing(r, {0, 92}, 78.0, 32);
}

void engineDeck(Relief& r) {
    r.add(Shape::polygon({{-104, -92}, {104, -92}, {104, -300}, {92, -352}, {-92, -352}, {-104, -300}}),
          flat(144.0).rounded(1.8, 1.4));
    for (const double side : {-1.0, 1.0}) {
        const double x0 = side > 0 ? 4.0 : -62.0;
        panel(r, x0, -250.0, x0 + 58.0, -110.0, 2.0, 3.0);
        for (const double y : {-140.0, -220.0}) {
            const auto placed = r.placeOn({.x = side * 60.0, .y = y, .angle = side * 90.0});
            hinge(r, 18.0);
        }
        {
            const auto placed = r.placeOn({.x = side * 34.0, .y = -180.0, .angle = 90.0});
            handle(r, 20.0);
        }
        bolts(r, {side * 97, -104}, {side * 97, -296}, 11, 1.6);
        {
            const auto placed = r.placeOn({.x = side * 82.0, .y = -120.0});
            fillerCap(r, 9.0);
        }
        // exhausts lie along the deck and end in fishtails
        const auto pipe = r.place({.x = side * 78.0, .y = -150.0, .angle = 180.0, .z = 152.0});
        exhaustPipe(r, 112.0, 6.5);
        r.add(Shape::rect(-8.0, 30.0, 8.0, 36.0), flat(8.0), paints::Steel);
        r.add(Shape::polygon({{-6, 108}, {6, 108}, {16, 142}, {-16, 142}}), flat(5.0).rounded(3.0, 3.0),
              paints::Rust);
        r.add(Shape::rect(-14.0, 139.0, 14.0, 142.0), raise(-3.0), paints::Soot);
    }
    louvres(r, -56.0, -300.0, 56.0, -264.0, 6);
    {
        const auto placed = r.placeOn({.y = -326.0});
        stowageBox(r, 120.0, 34.0, 26.0);
    }
    // coupling of the fuel trailer and its pressure pipe
    r.add(Shape::roundRect(-20.0, -372.0, 20.0, -350.0, 5.0), flat(78.0).rounded(5.0, 6.0), paints::Steel);
    r.add(Shape::circle({0, -362.0}, 8.0), flat(86.0).rounded(4.0, 4.0), paints::WornSteel);
    r.add(Shape::capsule({-70, -348}, {-16, -360}, 7.0), flat(96.0).rounded(3.5, 3.5), paints::Steel);
}

void stowage(Relief& r) {
    {
        const auto placed = r.placeOn({.x = -132.0, .y = 110.0});
        stowageBox(r, 44.0, 96.0, 22.0);
    }
    {
        const auto placed = r.placeOn({.x = 132.0, .y = 96.0});
        stowageBox(r, 44.0, 74.0, 22.0);
    }
    {
        const auto placed = r.placeOn({.x = 126.0, .y = -182.0});
        shovel(r, 96.0);
    }
    {
        const auto placed = r.placeOn({.x = 146.0, .y = -186.0});
        axe(r, 88.0);
    }
    {
        const auto placed = r.placeOn({.x = -134.0, .y = -190.0, .angle = 90.0});
        canvasRoll(r, 104.0, 14.0);
    }
    towCable(r, {{150, 214}, {154, 150}, {152, 40}, {140, 12}}, 3.4);
    const auto placed = r.placeOn({.x = -132.0, .y = 192.0});
    jerrycan(r, paints::Hull);
}

void drawHull(Relief& r) {
    runningGear(r);
    front(r);
    upperHull(r);
    engineDeck(r);
    stowage(r);
}

void turretFittings(Relief& r) {
    {
        const auto placed = r.placeOn({.x = 40.0, .y = -32.0});
        cupola(r, 34.0, 16.0, 8, true);
    }
    {
        const auto placed = r.placeOn({.x = -42.0, .y = -10.0});
        hatchSplit(r, 56.0, 50.0, 3.4);
    }
    for (const double side : {-1.0, 1.0}) {
        const auto placed = r.placeOn({.x = side * 40.0, .y = 44.0, .angle = side * 4.0});
        r.add(Shape::circle({}, 10.0), raise(2.5).rounded(2.0, 2.0));
        periscope(r, 14.0, 8.0, 6.0);
    }
    {
        const auto placed = r.placeOn({.x = 0.0, .y = -70.0});
        ventDome(r, 13.0);
    }
    {
        const auto placed = r.placeOn({.x = -60.0, .y = -74.0});
        antennaBase(r);
    }
    {
        // two-inch bomb thrower
        const auto placed = r.placeOn({.x = 50.0, .y = 64.0, .angle = 8.0});
        r.add(Shape::circle({}, 7.0), raise(4.0).rounded(3.0, 2.0));
        r.add(Shape::ellipse({0, 2}, 3.4, 3.4), raise(-5.0), paints::Dark);
    }
    // rear bin
    r.add(Shape::roundRect(-62.0, -140.0, 62.0, -104.0, 8.0), flat(60.0).rounded(3.0, 3.0));
    gap(r, {{-54, -112}, {54, -112}}, 1.0);
    for (const double side : {-1.0, 1.0}) {
        const auto placed = r.placeOn({.x = side * 68.0, .y = 30.0});
        liftingHook(r);
    }
}

void drawTurret(Relief& r) {
    barrel(r, {{112.0, 10.5}, {150.0, 8.6}, {150.0, 7.6}, {252.0, 6.2}}, 38.0);
    muzzleBrake(r, 282.0, 32.0, 10.5, 38.0);
    {
        const auto placed = r.place({.x = -26.0, .z = 40.0});
        machineGunBarrel(r, 86.0, 112.0, 2.6, 0.0, true);
    }
    // thick cast walls with a welded-in roof; the gun sits in a recess
    r.add(Shape::symmetricSmooth(
              {{0, 88}, {62, 88}, {90, 70}, {104, 16}, {104, -30}, {92, -84}, {66, -104}, {0, -108}}),
          flat(82.0).rounded(9.0, 12.0).rough(0.9));
    r.add(Shape::symmetricSmooth(
              {{0, 70}, {52, 70}, {76, 54}, {88, 12}, {88, -26}, {76, -72}, {54, -90}, {0, -93}}),
          flat(83.0).rounded(1.4, 1.0));
    weld(r,
         {{-76, -72},
          {-88, -26},
          {-88, 12},
          {-76, 54},
          {-52, 70},
          {52, 70},
          {76, 54},
          {88, 12},
          {88, -26},
          {76, -72},
          {54, -90},
          {-54, -90},
          {-76, -72}},
         2.2);
    r.add(Shape::roundRect(-52.0, 74.0, 52.0, 92.0, 4.0), flat(56.0).rounded(3.0, 3.0));
    r.add(Shape::roundRect(-46.0, 80.0, 46.0, 98.0, 8.0),
          tube({-1e4, 80}, {1e4, 80}, 18.0, 18.0, 40.0).rough(0.5));
    r.add(Shape::roundRect(-15.0, 88.0, 15.0, 116.0, 6.0),
          tube({0, 86}, {0, 118}, 17.0, 12.0, 38.0).rough(0.4));
    turretFittings(r);
}

void drawProjector(Relief& r) {
    // the flame gun looks out of a ball in the hull's front plate
    barrel(r, {{8.0, 8.5}, {34.0, 8.0}, {34.0, 6.4}, {52.0, 6.0}}, 14.0, paints::Steel);
    barrel(r, {{52.0, 8.4}, {58.0, 8.4}, {66.0, 5.4}}, 14.0, paints::DarkSteel);
    r.add(Shape::rect(-4.6, 63.0, 4.6, 66.0), tube({0, 60}, {0, 66}, 5.0, 5.0, 14.0), paints::Soot);
    r.add(Shape::capsule({9.0, 12.0}, {9.0, 46.0}, 4.0), tube({9, 12}, {9, 46}, 2.0, 2.0, 16.0),
          paints::Brass);
    r.add(Shape::circle({0, 8}, 17.0), flat(26.0).rounded(16.0, 20.0).rough(0.4));
    r.stain(Shape::circle({0, 60}, 18.0), hex(0x14110F), 0.55, 14.0);
}

void damageHull(Relief& r) {
    burnAll(r, 0.75, 0.6, 161);
    scorch(r, {0, -210}, 160.0, 1.0, 162);
    scorch(r, {-46, 220}, 60.0, 0.9, 163);
    shellHole(r, {60, 250}, 7.0);
    shellHole(r, {-90, 60}, 7.0);
    furrow(r, {20, 200}, {30, 168}, 5.0);
    openHatch(r, Shape::roundRect(4, -250, 62, -110, 3));
    openHatch(r, Shape::roundRect(-73, 145, -19, 187, 3));
    tornPlate(r, {134, -10}, 18.0, 40.0, 3);
    brokenTrack(r, {-132, 300}, 10.0, 54.0, 4, 21.0);
    debris(r, {0, 0}, 170.0, 46, 164);
}

void damageTurret(Relief& r) {
    burnAll(r, 0.8, 0.4, 165);
    scorch(r, {0, -20}, 90.0, 0.9, 166);
    openHatch(r, Shape::roundRect(-70, -35, -14, 15, 3));
    openHatch(r, Shape::circle({40, -32}, 18.0));
    shellHole(r, {66, 40}, 6.5);
    furrow(r, {-80, 60}, {-62, 30}, 5.0);
    debris(r, {0, -20}, 80.0, 14, 167);
}

constexpr std::array<Sheet, 5> Sheets{
    {{.path = "Units/Vehicles/Hulls/British Churchill VII Crocodile hull.png",
      .width = 325,
      .height = 744,
      .draw = drawHull,
      .scheme = britishGreen},
     {.path = "Units/Vehicles/Destroyed/British Churchill VII Crocodile hull destroyed.png",
      .width = 325,
      .height = 744,
      .draw = drawHull,
      .damage = damageHull,
      .scheme = britishGreen},
     {.path = "Units/Vehicles/Turrets/British Churchill VII Crocodile turret.png",
      .width = 224,
      .height = 572,
      .draw = drawTurret,
      .scheme = britishGreen,
      .how = Mounted},
     {.path = "Units/Vehicles/Destroyed/British Churchill VII Crocodile turret destroyed.png",
      .width = 224,
      .height = 572,
      .draw = drawTurret,
      .damage = damageTurret,
      .scheme = britishGreen,
      .how = Mounted},
     {.path = "Units/Vehicles/Turrets/Churchill Crocodile flame projector.png",
      .width = 48,
      .height = 140,
      .draw = drawProjector,
      .scheme = britishGreen,
      .how = Mounted}}};

} // namespace

std::span<const Sheet> churchillSheets() {
    return Sheets;
}

} // namespace artwork
