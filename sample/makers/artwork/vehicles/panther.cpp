#include "catalogue.h"
#include "parts/armour.h"
#include "parts/fittings.h"
#include "parts/gear.h"
#include "parts/wreck.h"
#include "schemes.h"

#include <array>

namespace artwork {

namespace {

constexpr TrackStyle PantherTrack{.pitch = 15.0, .bar = 0.40, .barRise = 2.2};
constexpr double Roof = 185.0;
constexpr double Sponson = 112.0;

void lowerHull(Relief& r) {
    r.add(Shape::rect(-100.0, -318.0, 100.0, 300.0), flat(50.0), paints::Dark);
    for (const double side : {-1.0, 1.0}) {
        track(r, side > 0 ? 98.0 : -164.0, side > 0 ? 164.0 : -98.0, -276.0, 284.0, 100.0, 55.0,
              PantherTrack);
        r.add(Shape::roundRect(side > 0 ? 84.0 : -104.0, 258.0, side > 0 ? 104.0 : -84.0, 306.0, 8.0),
              flat(74.0).rounded(8.0, 12.0));
    }
}

void glacis(Relief& r) {
    plate(r, {{-118, 190}, {118, 190}, {93, 318}, {-93, 318}}, Roof, Roof, 92.0);
    plate(r, {{118, 190}, {157, 210}, {93, 318}}, Roof, Sponson + 10, 92.0);
    plate(r, {{-118, 190}, {-157, 210}, {-93, 318}}, Roof, Sponson + 10, 92.0);
    r.add(Shape::rect(-93.0, 317.0, 93.0, 326.0), slope({0, 317}, 92.0, {0, 326}, 70.0));
    weld(r, {{-93, 317}, {93, 317}}, 3.0);
    weld(r, {{-120, 191}, {120, 191}}, 2.6);
    for (const double side : {-1.0, 1.0}) {
        weld(r, {{side * 119, 190}, {side * 93, 316}}, 2.6);
        const auto placed = r.placeOn({.x = side * 86.0, .y = 320.0, .z = -8.0});
        shackle(r);
    }
    r.add(Shape::circle({62.0, 206.0}, 15.0), flat(Roof - 14.0).rounded(13.0, 14.0).rough(0.4));
    {
        const auto placed = r.placeOn({.x = -64.0, .y = 228.0});
        headlight(r, 8.5);
    }
    const auto placed = r.placeOn({.x = 18.0, .y = 244.0, .angle = 90.0});
    spareTrack(r, 16.0, 5, 15.0);
}

void fenders(Relief& r) {
    for (const double side : {-1.0, 1.0}) {
        const double x0 = side > 0 ? 96.0 : -166.0;
        const double x1 = x0 + 70.0;
        r.add(Shape::polygon({{side * 157, 210},
                              {side * 166, 210},
                              {side * 166, 290},
                              {side * 96, 290},
                              {side * 96, 312}}),
              slope({0, 210}, 116.0, {0, 300}, 110.0));
        r.add(Shape::roundRect(x0, 286.0, x1, 341.0, 5.0),
              tube({-1e4, 282}, {1e4, 282}, 62.0, 62.0, 48.0).rounded(1.5, 1.2));
        for (const double x : {x0 + 18.0, x0 + 35.0, x0 + 52.0}) {
            r.add(Shape::capsule({x, 294}, {x, 334}, 2.4), raise(1.2).rounded(1.2, 1.2));
        }
        // side skirts on their rail, a gap between two plates
        r.add(Shape::rect(side > 0 ? 155.0 : -166.0, -290.0, side > 0 ? 166.0 : -155.0, 214.0),
              flat(108.0).rounded(1.0, 0.8));
        for (int i = 0; i < 6; ++i) {
            const double y0 = -262.0 + i * 78.0;
            r.add(Shape::rect(side > 0 ? 166.5 : -171.0, y0, side > 0 ? 171.0 : -166.5, y0 + 76.0),
                  flat(112.0).rounded(1.0, 0.8));
            bolts(r, {side * 161.0, y0 + 12.0}, {side * 161.0, y0 + 64.0}, 3, 1.5);
        }
    }
}

void sponsons(Relief& r) {
    for (const double side : {-1.0, 1.0}) {
        plate(r, {{side * 157, 210}, {side * 118, 190}, {side * 118, -300}}, Sponson, Roof, Roof);
        r.add(Shape::polygon({{side * 157, 210}, {side * 118, 190}, {side * 118, -308}, {side * 157, -318}}),
              plane({side * 157, 0}, Sponson, {side * 157, -100}, Sponson, {side * 118, 0}, Roof));
        // what hangs on the sides: rod tube, tools, spare links
        {
            const auto placed = r.place({.x = side * 146.0, .y = side < 0 ? 40.0 : 20.0, .z = 128.0});
            if (side < 0) {
                r.add(Shape::roundRect(-8.0, -92.0, 8.0, 92.0, 4.0), tube({0, -92}, {0, 92}, 8.0, 8.0, 10.0));
                bolts(r, {-8, -60}, {-8, 60}, 4, 2.0);
            } else {
                r.add(Shape::rect(-7.0, -60.0, 7.0, 60.0), flat(16.0), paints::Steel);
                const auto tool = r.place({.x = -3.0, .z = 16.0});
                axe(r, 100.0);
            }
        }
        for (int i = 0; i < 2; ++i) {
            const auto placed = r.place({.x = side * 140.0, .y = -160.0 - i * 64.0, .z = 140.0});
            spareTrack(r, 20.0, 4, 14.0);
        }
        towCable(r, {{side * 124, 150}, {side * 129, 60}, {side * 127, -60}, {side * 131, -120}}, 3.2);
    }
}

void roofPlate(Relief& r) {
    r.add(Shape::polygon({{-118, 191}, {118, 191}, {118, -90}, {118, -308}, {-118, -308}, {-118, -90}}),
          flat(Roof).rounded(1.6, 1.0));
    for (const double side : {-1.0, 1.0}) {
        const auto placed = r.placeOn({.x = side * 62.0, .y = 150.0});
        hatchRect(r, 50.0, 44.0, 3.2, 12.0);
        const auto scope = r.place({.x = side * 4.0, .y = 32.0, .angle = side * 8.0});
        periscope(r, 17.0, 8.0, 5.0);
    }
    {
        const auto placed = r.placeOn({.y = 148.0});
        ventDome(r, 11.0);
    }
    bolts(r, {-108, 182}, {108, 182}, 10, 1.5);
    gap(r, {{-104, 118}, {104, 118}}, 1.2);
    turretRing(r, {0, 14}, 84.0, 34);
    weld(r, {{-116, -88}, {116, -88}}, 2.2);
}

void engineDeck(Relief& r) {
    panel(r, -42.0, -226.0, 42.0, -112.0, 1.6, 5.0);
    bolts(r, {-38, -222}, {-38, -116}, 7);
    bolts(r, {38, -222}, {38, -116}, 7);
    for (const double y : {-140.0, -196.0}) {
        const auto placed = r.placeOn({.y = y});
        ventDome(r, 16.0);
    }
    for (const double side : {-1.0, 1.0}) {
        const double x0 = side > 0 ? 53.0 : -105.0;
        meshGrille(r, x0, -160.0, x0 + 52.0, -112.0, 4.2);
        meshGrille(r, x0, -290.0, x0 + 52.0, -244.0, 4.2);
        const auto placed = r.placeOn({.x = side * 79.0, .y = -202.0});
        fanGrille(r, 27.0, 8);
    }
    for (const double x : {-22.0, 22.0}) {
        const auto placed = r.placeOn({.x = x, .y = -258.0});
        fillerCap(r, 9.0);
    }
    {
        const auto placed = r.placeOn({.x = -80.0, .y = -98.0});
        antennaBase(r);
    }
    const auto placed = r.placeOn({.y = -286.0, .angle = 90.0});
    woodBlock(r, 16.0, 44.0);
}

void rear(Relief& r) {
    for (const double side : {-1.0, 1.0}) {
        const auto placed = r.place({.x = side * 92.0, .y = -326.0, .z = 84.0});
        stowageBox(r, 62.0, 30.0, 78.0);
    }
    for (const double side : {-1.0, 1.0}) {
        const auto placed = r.place({.x = side * 24.0, .y = -328.0, .z = 100.0});
        r.add(Shape::roundRect(-11.0, -8.0, 11.0, 18.0, 4.0), flat(10.0).rounded(4.0, 6.0));
        exhaustStack(r, 9.5, 56.0);
    }
    const auto placed = r.place({.y = -322.0, .angle = 0.0, .z = 92.0});
    jack(r, 34.0);
}

void drawHull(Relief& r) {
    lowerHull(r);
    glacis(r);
    fenders(r);
    rear(r);
    sponsons(r);
    roofPlate(r);
    engineDeck(r);
}

void drawTurret(Relief& r) {
    barrel(r, {{108.0, 15.0}, {150.0, 12.5}, {156.0, 11.0}, {300.0, 9.4}, {300.0, 8.8}, {470.0, 7.2}}, 50.0);
    muzzleBrake(r, 508.0, 42.0, 12.5, 50.0);
    // roof and walls bent from one plate
    frustumSymmetric(r, {{86, 80}, {98, 20}, {100, -30}, {78, -112}},
                     {{70, 76}, {76, 18}, {76, -28}, {56, -98}}, 0.0, 78.0);
    weld(r,
         {{-56, -98}, {-76, -28}, {-76, 18}, {-70, 76}, {70, 76}, {76, 18}, {76, -28}, {56, -98}, {-56, -98}},
         2.0);
    r.add(Shape::roundRect(-84.0, 80.0, 84.0, 112.0, 6.0),
          tube({-1e4, 88}, {1e4, 88}, 26.0, 26.0, 44.0).rough(0.6));
    r.add(Shape::roundRect(-84.0, 76.0, 84.0, 88.0, 3.0), flat(66.0).rounded(2.0, 4.0));
    r.add(Shape::roundRect(-22.0, 100.0, 22.0, 122.0, 8.0),
          tube({0, 92}, {0, 124}, 22.0, 16.0, 50.0).rough(0.4));
    r.add(Shape::ellipse({-52.0, 110.0}, 3.6, 3.0), raise(-6.0), paints::Dark);
    {
        const auto placed = r.place({.x = 38.0, .z = 52.0});
        machineGunBarrel(r, 110.0, 128.0, 2.0, 0.0, true);
    }
    {
        const auto placed = r.placeOn({.x = -36.0, .y = -42.0});
        cupola(r, 36.0, 24.0, 7, true);
    }
    {
        const auto placed = r.place({.x = -52.0, .y = -28.0, .angle = -8.0, .z = 112.0});
        r.add(Shape::capsule({0.0, -30.0}, {0.0, 4.0}, 6.0), flat(2.0).rounded(3.0, 2.0), paints::DarkSteel);
        machineGunBarrel(r, 4.0, 74.0, 2.2, 2.0, true);
        r.add(Shape::roundRect(-9.0, -8.0, -3.0, 6.0, 2.0), flat(1.0).rounded(2.0, 1.0), paints::Steel);
    }
    {
        const auto placed = r.placeOn({.x = 38.0, .y = 30.0, .angle = 6.0});
        periscope(r, 17.0, 9.0, 5.0);
    }
    {
        const auto placed = r.placeOn({.x = 18.0, .y = -4.0});
        ventDome(r, 13.0);
    }
    {
        const auto placed = r.placeOn({.x = 56.0, .y = -42.0});
        r.add(Shape::circle({}, 8.0), raise(3.0).rounded(3.0, 2.0));
        r.add(Shape::circle({}, 4.5), raise(-4.0), paints::Dark);
    }
    for (const auto& [x, y] : {std::array{-60.0, 56.0}, std::array{60.0, 56.0}, std::array{8.0, -84.0}}) {
        const auto placed = r.placeOn({.x = x, .y = y});
        liftingHook(r);
    }
    r.add(Shape::roundRect(-22.0, -114.0, 22.0, -102.0, 6.0), flat(46.0).rounded(5.0, 8.0));
    for (const double side : {-1.0, 1.0}) {
        const auto placed = r.place({.x = side * 88.0, .y = -62.0, .angle = side * 16.0, .z = 34.0});
        spareTrack(r, 14.0, 3, 15.0);
    }
}

void damageHull(Relief& r) {
    burnAll(r, 0.75, 0.8, 31);
    scorch(r, {0, -180}, 150.0, 0.95, 4);
    shellHole(r, {-96, 60}, 7.0);
    shellHole(r, {40, 232}, 6.0);
    furrow(r, {-40, 286}, {-58, 238}, 5.0);
    tornPlate(r, {150, 240}, 14.0, 34.0, 9);
    openHatch(r, Shape::roundRect(38, 129, 86, 171, 10));
    brokenTrack(r, {132, -150}, 24.0, 60.0, 5, 15.0);
    debris(r, {0, 0}, 160.0, 40, 12);
}

void damageTurret(Relief& r) {
    burnAll(r, 0.8, 0.5, 77);
    scorch(r, {-36, -42}, 70.0, 0.9, 6);
    openHatch(r, Shape::circle({-36, -42}, 18.0));
    shellHole(r, {30, 20}, 6.0);
    furrow(r, {60, 96}, {74, 60}, 5.0);
    debris(r, {0, -20}, 80.0, 16, 3);
}

constexpr std::array<Sheet, 4> Sheets{
    {{.path = "Units/Vehicles/Hulls/German Panzer V Panther Ausf G hull.png",
      .width = 342,
      .height = 687,
      .draw = drawHull,
      .scheme = germanAmbush},
     {.path = "Units/Vehicles/Destroyed/German Panzer V Panther Ausf G hull destroyed.png",
      .width = 342,
      .height = 687,
      .draw = drawHull,
      .damage = damageHull,
      .scheme = germanAmbush},
     {.path = "Units/Vehicles/Turrets/German Panzer V Panther Ausf G turret.png",
      .width = 236,
      .height = 1024,
      .draw = drawTurret,
      .scheme = germanAmbush,
      .how = Mounted},
     {.path = "Units/Vehicles/Destroyed/German Panzer V Panther Ausf G turret destroyed.png",
      .width = 236,
      .height = 1024,
      .draw = drawTurret,
      .damage = damageTurret,
      .scheme = germanAmbush,
      .how = Mounted}}};

} // namespace

std::span<const Sheet> pantherSheets() {
    return Sheets;
}

} // namespace artwork
