#include "catalogue.h"
#include "parts/armour.h"
#include "parts/fittings.h"
#include "parts/gear.h"
#include "parts/wreck.h"
#include "schemes.h"

#include <array>

namespace artwork {

namespace {

constexpr TrackStyle StugTrack{.pitch = 12.0, .bar = 0.5, .barRise = 2.2};
constexpr double Deck = 110.0;
constexpr double Roof = 184.0;

void runningGear(Relief& r) {
    r.add(Shape::rect(-100.0, -262.0, 100.0, 250.0), flat(44.0), paints::Dark);
    for (const double side : {-1.0, 1.0}) {
        track(r, side > 0 ? 100.0 : -140.0, side > 0 ? 140.0 : -100.0, -232.0, 238.0, 92.0, 36.0, StugTrack);
        // the fender runs the whole length; its front flap is turned down
        r.add(Shape::rect(side > 0 ? 93.0 : -142.0, -252.0, side > 0 ? 142.0 : -93.0, 232.0),
              flat(99.0).rounded(1.2, 1.0));
        r.add(Shape::roundRect(side > 0 ? 97.0 : -142.0, 232.0, side > 0 ? 142.0 : -97.0, 264.0, 4.0),
              tube({-1e4, 228}, {1e4, 228}, 40.0, 40.0, 58.0).rounded(1.2, 1.0));
        for (double y = -240.0; y < 225.0; y += 15.0) {
            r.add(Shape::rect(side > 0 ? 97.0 : -139.0, y, side > 0 ? 139.0 : -97.0, y + 1.6),
                  raise(0.8).rounded(0.8, 0.6));
        }
        // skirts hang on brackets
        for (int i = 0; i < 4; ++i) {
            const double y0 = -200.0 + i * 100.0;
            r.add(Shape::rect(side > 0 ? 143.6 : -147.5, y0, side > 0 ? 147.5 : -143.6, y0 + 98.0),
                  flat(112.0).rounded(0.8, 0.6));
            r.add(Shape::rect(side > 0 ? 134.0 : -144.0, y0 + 20.0, side > 0 ? 144.0 : -134.0, y0 + 24.0),
                  flat(104.0));
        }
    }
}

void nose(Relief& r) {
    r.add(Shape::rect(-95.0, 172.0, 95.0, 236.0), slope({0, 172}, Deck, {0, 236}, 92.0).rounded(1.4, 1.0));
    r.add(Shape::rect(-95.0, 236.0, 95.0, 256.0), slope({0, 236}, 92.0, {0, 256}, 44.0));
    weld(r, {{-95, 236}, {95, 236}}, 2.4);
    for (const double side : {-1.0, 1.0}) {
        {
            const auto placed = r.placeOn({.x = side * 48.0, .y = 204.0, .angle = side * 90.0});
            hatchRect(r, 40.0, 56.0, 2.6, 3.0);
        }
        r.add(Shape::roundRect(side > 0 ? 82.0 : -104.0, 226.0, side > 0 ? 104.0 : -82.0, 260.0, 8.0),
              flat(70.0).rounded(8.0, 10.0));
        const auto placed = r.placeOn({.x = side * 70.0, .y = 252.0});
        shackle(r);
    }
    {
        const auto placed = r.placeOn({.y = 214.0});
        convoyLamp(r);
    }
    // bolted 30 mm plate on the lower front
    bolts(r, {-84, 241}, {84, 241}, 9, 1.8);
    const auto placed = r.placeOn({.y = 246.0, .angle = 90.0});
    spareTrack(r, 12.0, 8, 12.0);
}

void superstructure(Relief& r) {
    // panniers over the tracks, then the fighting compartment
    frustumSymmetric(r, {{131, 122}, {131, -40}, {96, -47}}, {{108, 112}, {108, -36}, {92, -43}}, 100.0,
                     176.0);
    frustumSymmetric(r, {{98, 179}, {131, 122}, {131, -40}, {96, -47}},
                     {{92, 160}, {108, 112}, {108, -36}, {90, -44}}, 104.0, Roof);
    // front plates with the opening for the gun
    r.add(Shape::roundRect(-97.0, 158.0, -22.0, 178.0, 3.0), slope({0, 158}, Roof - 2.0, {0, 178}, 160.0));
    r.add(Shape::roundRect(60.0, 158.0, 97.0, 178.0, 3.0), slope({0, 158}, Roof - 2.0, {0, 178}, 160.0));
    bolts(r, {-92, 168}, {-28, 168}, 5, 1.8);
    bolts(r, {66, 168}, {92, 168}, 3, 1.8);
    r.add(Shape::rect(-20.0, 148.0, 58.0, 172.0), flat(160.0), paints::DarkSteel);
    r.add(Shape::roundRect(-24.0, 140.0, 62.0, 152.0, 3.0), flat(Roof - 1.0).rounded(2.0, 2.0));
    r.add(Shape::roundRect(-84.0, 172.0, -46.0, 182.0, 2.0), flat(150.0).rounded(2.0, 4.0));
    r.add(Shape::rect(-78.0, 179.0, -52.0, 181.5), raise(-6.0), paints::Dark);
    weld(r, {{-108, 110}, {108, 110}}, 2.2);
    for (const double side : {-1.0, 1.0}) {
        weld(r, {{side * 106, -36}, {side * 106, 110}, {side * 91, 158}}, 2.0);
        bolts(r, {side * 101, -30}, {side * 101, 100}, 8, 1.5);
        const auto placed = r.place({.x = side * 120.0, .y = 142.0, .angle = side * 25.0, .z = 128.0});
        smokeTubes(r, 3, 22.0, 4.6);
    }
}

void roofFittings(Relief& r) {
    {
        const auto placed = r.placeOn({.x = -60.0, .y = 2.0});
        cupola(r, 36.0, 22.0, 7, true);
    }
    r.add(Shape::smooth(
              {{-96, 22}, {-84, 46}, {-60, 54}, {-36, 46}, {-24, 22}, {-30, 26}, {-60, 40}, {-90, 26}}),
          flat(Roof + 15.0).rounded(5.0, 8.0).rough(0.5));
    {
        const auto placed = r.placeOn({.x = 52.0, .y = 22.0});
        hatchSplit(r, 60.0, 46.0, 3.2);
    }
    gap(r, {{-60, 136}, {-60, 70}, {-16, 70}, {-16, 136}, {-60, 136}}, 1.4, 2.0);
    {
        const auto placed = r.placeOn({.x = -38.0, .y = 98.0});
        periscope(r, 14.0, 14.0, 12.0);
    }
    {
        const auto placed = r.placeOn({.x = 12.0, .y = -22.0});
        ventDome(r, 15.0);
    }
    for (const double side : {-1.0, 1.0}) {
        const auto placed = r.place({.x = side * 74.0, .y = -48.0, .z = 150.0});
        antennaBase(r);
    }
    const auto placed = r.placeOn({.x = 78.0, .y = 84.0});
    liftingHook(r);
}

void engineDeck(Relief& r) {
    r.add(Shape::polygon({{-94, -46}, {94, -46}, {90, -214}, {-90, -214}}), flat(144.0).rounded(1.6, 1.2));
    r.add(Shape::rect(-90.0, -246.0, 90.0, -212.0), slope({0, -212}, 143.0, {0, -246}, 118.0));
    for (const double side : {-1.0, 1.0}) {
        r.add(Shape::polygon({{side * 94, -52}, {side * 106, -60}, {side * 104, -206}, {side * 90, -214}}),
              plane({side * 106, -60}, 108.0, {side * 106, -206}, 108.0, {side * 92, -120}, 144.0));
        louvres(r, side > 0 ? 95.0 : -102.0, -150.0, side > 0 ? 102.0 : -95.0, -80.0, 9);
        {
            const auto placed = r.placeOn({.x = side * 42.0, .y = -94.0, .angle = side * 90.0});
            hatchRect(r, 74.0, 62.0, 2.6, 3.0);
        }
        {
            const auto placed = r.placeOn({.x = side * 42.0, .y = -172.0, .angle = side * 90.0});
            hatchRect(r, 62.0, 62.0, 2.6, 3.0);
        }
        {
            const auto placed = r.placeOn({.x = side * 42.0, .y = -94.0, .angle = side > 0 ? 0.0 : 180.0});
            intakeCowl(r, 22.0, 44.0, 9.0);
        }
        const auto placed = r.placeOn({.x = side * 42.0, .y = -172.0, .angle = side > 0 ? 0.0 : 180.0});
        intakeCowl(r, 22.0, 38.0, 9.0);
    }
    weld(r, {{-90, -212}, {90, -212}}, 2.0);
    {
        const auto placed = r.placeOn({.x = 2.0, .y = -230.0, .angle = 90.0});
        spareTrack(r, 34.0, 11, 12.0);
    }
    r.add(Shape::rect(-90.0, -268.0, 90.0, -246.0), flat(74.0), paints::Dark);
    for (const double side : {-1.0, 1.0}) {
        const auto placed =
            r.place({.x = side * 58.0, .y = -258.0, .angle = side < 0 ? 180.0 : 0.0, .z = 82.0});
        silencer(r, 56.0, 12.0, 0.0);
    }
}

void stowage(Relief& r) {
    for (const double side : {-1.0, 1.0}) {
        const auto wheel = r.placeOn({.x = side * 118.0, .y = -206.0});
        r.add(Shape::circle({}, 26.0), flat(14.0).rounded(4.0, 3.0), paints::Rubber);
        r.add(Shape::circle({}, 18.5), raise(-2.0));
        r.add(Shape::circle({}, 8.0), raise(5.0).rounded(3.0, 2.0));
        boltRing(r, {}, 13.0, 8, 1.4);
    }
    {
        const auto placed = r.placeOn({.x = 120.0, .y = -120.0});
        jack(r, 66.0);
    }
    {
        const auto placed = r.placeOn({.x = -117.0, .y = 170.0});
        axe(r, 84.0);
    }
    {
        const auto placed = r.placeOn({.x = 112.0, .y = 176.0});
        shovel(r, 92.0);
    }
    {
        const auto placed = r.placeOn({.x = 126.0, .y = 186.0});
        crowbar(r, 84.0);
    }
    {
        const auto placed = r.placeOn({.x = -118.0, .y = -120.0});
        stowageBox(r, 36.0, 64.0, 28.0);
    }
    towCable(r, {{-130, 220}, {-132, 150}, {-134, 60}, {-134, -60}, {-130, -160}}, 3.0);
    const auto placed = r.placeOn({.x = 8.0, .y = -132.0, .angle = 4.0});
    canvasRoll(r, 96.0, 10.0);
}

void drawHull(Relief& r) {
    runningGear(r);
    nose(r);
    engineDeck(r);
    superstructure(r);
    roofFittings(r);
    stowage(r);
    balkenCross(r, {0, -188}, 13.0);
}

void drawGun(Relief& r) {
    barrel(r, {{64.0, 12.0}, {84.0, 9.0}, {150.0, 7.6}, {150.0, 7.0}, {218.0, 6.0}}, 24.0);
    muzzleBrake(r, 250.0, 34.0, 11.0, 24.0);
    r.add(Shape::roundRect(-30.0, -26.0, 30.0, 4.0, 5.0), flat(24.0).rounded(5.0, 8.0));
    // the cast mantlet, like a pig's snout
    r.add(Shape::symmetricSmooth({{0, 76}, {11, 74}, {15, 60}, {20, 34}, {29, 8}, {30, -6}, {0, -10}}),
          flat(46.0).rounded(22.0, 34.0).rough(0.7));
    for (const double side : {-1.0, 1.0}) {
        const auto placed = r.placeOn({.x = side * 17.0, .y = 10.0, .angle = 90.0});
        liftingHook(r);
    }
    r.add(Shape::ring({0, 70}, 10.0, 13.0), raise(1.0).rounded(1.0, 0.8));
}

void damageHull(Relief& r) {
    burnAll(r, 0.7, 0.7, 41);
    scorch(r, {20, 40}, 110.0, 0.95, 14);
    scorch(r, {0, -150}, 90.0, 0.7, 15);
    shellHole(r, {70, 150}, 6.5);
    shellHole(r, {-88, 40}, 6.0);
    openHatch(r, Shape::roundRect(22, 0, 82, 45, 3));
    openHatch(r, Shape::circle({-60, 2}, 18.0));
    tornPlate(r, {-118, 60}, 16.0, 40.0, 5);
    brokenTrack(r, {-116, 214}, -14.0, 38.0, 5, 12.0);
    debris(r, {0, 40}, 130.0, 36, 22);
}

void damageGun(Relief& r) {
    burnAll(r, 0.85, 0.5, 44);
    furrow(r, {-6, 66}, {-14, 38}, 4.0);
    shellHole(r, {10, 18}, 4.5);
}

constexpr std::array<Sheet, 4> Sheets{
    {{.path = "Units/Vehicles/Hulls/German StuG III Ausf G hull.png",
      .width = 295,
      .height = 549,
      .draw = drawHull,
      .scheme = germanWinter},
     {.path = "Units/Vehicles/Destroyed/German StuG III Ausf G hull destroyed.png",
      .width = 295,
      .height = 549,
      .draw = drawHull,
      .damage = damageHull,
      .scheme = germanWinter},
     {.path = "Units/Vehicles/Turrets/German StuG III Ausf G gun.png",
      .width = 84,
      .height = 508,
      .draw = drawGun,
      .scheme = germanWinter,
      .how = Mounted},
     {.path = "Units/Vehicles/Destroyed/German StuG III Ausf G gun destroyed.png",
      .width = 84,
      .height = 508,
      .draw = drawGun,
      .damage = damageGun,
      .scheme = germanWinter,
      .how = Mounted}}};

} // namespace

std::span<const Sheet> stugSheets() {
    return Sheets;
}

} // namespace artwork
