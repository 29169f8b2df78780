#include "catalogue.h"
#include "parts/fittings.h"
#include "parts/gear.h"
#include "parts/wreck.h"
#include "schemes.h"

#include <array>

namespace artwork {

namespace {

constexpr TrackStyle TigerTrack{.pitch = 13.0, .bar = 0.42, .barRise = 2.4};
constexpr double Roof = 183.0;

void runningGear(Relief& r) {
    for (const double side : {-1.0, 1.0}) {
        const double inner = side * 113.0;
        const double outer = side * 185.5;
        track(r, std::min(inner, outer), std::max(inner, outer), -260.0, 262.0, 96.0, 54.0, TigerTrack);
        // final drive and hull floor beside the nose
        r.add(Shape::roundRect(side > 0 ? 88.0 : -116.0, 236.0, side > 0 ? 116.0 : -88.0, 288.0, 8.0),
              flat(72.0).rounded(10.0, 14.0));
    }
}

void nose(Relief& r) {
    r.add(Shape::rect(-98.0, 214.0, 98.0, 262.0), slope({0, 214}, 134.0, {0, 262}, 126.0));
    r.add(Shape::rect(-98.0, 262.0, 98.0, 288.0), slope({0, 262}, 126.0, {0, 288}, 74.0));
    r.add(Shape::rect(-98.0, 288.0, 98.0, 300.0), slope({0, 288}, 74.0, {0, 300}, 44.0));
    weld(r, {{-98, 262}, {98, 262}}, 2.6);
    // hull side plates carry the towing eyes past the nose
    for (const double side : {-1.0, 1.0}) {
        r.add(Shape::roundRect(side > 0 ? 96.0 : -104.0, 214.0, side > 0 ? 104.0 : -96.0, 306.0, 3.0),
              slope({0, 250}, 128.0, {0, 306}, 60.0));
        const auto placed = r.place({.x = side * 100.0, .y = 296.0, .z = 60.0});
        shackle(r);
    }
}

void mudguards(Relief& r) {
    for (const double side : {-1.0, 1.0}) {
        const double x0 = side > 0 ? 108.0 : -185.0;
        const double x1 = x0 + 77.0;
        r.add(Shape::rect(x0, 208.0, x1, 268.0), slope({0, 208}, 118.0, {0, 268}, 112.0).rounded(1.5, 1.2));
        r.add(Shape::roundRect(x0, 266.0, x1, 312.0, 4.0),
              tube({-1e4, 262}, {1e4, 262}, 62.0, 62.0, 50.0).rounded(1.5, 1.2));
        gap(r, {{x0, 267}, {x1, 267}}, 1.2);
        for (const double x : {x0 + 16.0, x1 - 16.0}) {
            const auto placed = r.place({.x = x, .y = 268.0});
            hinge(r, 13.0);
        }
        // stiffening ribs
        for (const double x : {x0 + 25.0, x0 + 38.0, x0 + 51.0}) {
            r.add(Shape::capsule({x, 274}, {x, 303}, 2.6), raise(1.2).rounded(1.3, 1.2));
        }
        for (int i = 0; i < 4; ++i) {
            const double y0 = -296.0 + i * 126.0;
            r.add(Shape::rect(side > 0 ? 155.0 : -184.0, y0, side > 0 ? 184.0 : -155.0, y0 + 124.5),
                  flat(117.0).rounded(1.4, 1.2));
            r.add(Shape::capsule({side * 169.0, y0 + 10}, {side * 169.0, y0 + 114}, 3.0),
                  raise(1.0).rounded(1.5, 1.0));
            bolts(r, {side * 159.0, y0 + 10}, {side * 159.0, y0 + 114}, 5, 1.4);
        }
        r.add(Shape::rect(x0, -312.0, x1, -290.0),
              slope({0, -290}, 112.0, {0, -312}, 80.0).rounded(1.5, 1.2));
        gap(r, {{x0, -296}, {x1, -296}}, 1.0);
    }
}

void driverCompartment(Relief& r) {
    for (const double side : {-1.0, 1.0}) {
        {
            const auto placed = r.place({.x = side * 68.0, .y = 172.0, .angle = side * 90.0});
            hatchRound(r, 25.0, 5.0);
        }
        {
            const auto placed = r.place({.x = side * 68.0, .y = 184.0, .angle = side * -24.0, .z = 0.0});
            periscope(r, 15.0, 8.0, 4.0);
        }
        const auto placed = r.place({.x = side * 128.0, .y = 190.0});
        headlight(r, 9.0);
    }
    const auto placed = r.place({.y = 178.0});
    ventDome(r, 13.0);
}

void hullBox(Relief& r) {
    r.add(Shape::rect(-157.0, -297.0, 157.0, 206.0), flat(Roof).rounded(1.6, 1.2));
    // front plate seen from above, with the driver's visor and the gunner's ball standing out of it
    r.add(Shape::rect(-157.0, 206.0, 157.0, 216.0), slope({0, 206}, Roof, {0, 216}, 122.0));
    r.add(Shape::roundRect(-86.0, 209.0, -36.0, 221.0, 3.0), flat(160.0).rounded(3.0, 8.0));
    r.add(Shape::rect(-80.0, 218.0, -42.0, 220.5), raise(-6.0), paints::Dark);
    r.add(Shape::circle({58.0, 214.0}, 15.0), flat(150.0).rounded(14.0, 14.0));
    weld(r, {{-150, -92}, {150, -92}}, 2.0);
    weld(r, {{-157, -290}, {157, -290}}, 2.0);
    for (const double side : {-1.0, 1.0}) {
        weld(r, {{side * 149, -290}, {side * 149, 204}}, 2.0);
        bolts(r, {side * 141, -84}, {side * 141, 128}, 9, 1.7);
    }
    bolts(r, {-132, 132}, {132, 132}, 13, 1.7);
    gap(r, {{-145, 138}, {145, 138}}, 1.2);
    // turret race
    r.add(Shape::circle({0, 8}, 104.0), raise(1.4).rounded(2.0, 1.4));
    boltRing(r, {0, 8}, 99.0, 36, 1.6);
    r.add(Shape::circle({0, 8}, 92.0), raise(-3.0).rounded(2.0, 1.0));
    r.add(Shape::circle({0, 8}, 86.0), raise(-26.0), paints::DarkSteel);
}

void engineDeck(Relief& r) {
    panel(r, -47.0, -270.0, 47.0, -118.0, 1.4, 3.0);
    bolts(r, {-43, -266}, {-43, -122}, 9);
    bolts(r, {43, -266}, {43, -122}, 9);
    {
        const auto placed = r.place({.y = -166.0});
        ventDome(r, 15.0);
    }
    for (const double side : {-1.0, 1.0}) {
        meshGrille(r, side > 0 ? 58.0 : -132.0, -172.0, side > 0 ? 132.0 : -58.0, -118.0, 4.2);
        meshGrille(r, side > 0 ? 58.0 : -132.0, -276.0, side > 0 ? 132.0 : -58.0, -220.0, 4.2);
        panel(r, side > 0 ? 60.0 : -130.0, -208.0, side > 0 ? 130.0 : -60.0, -184.0, 1.0);
        {
            const auto placed = r.place({.x = side * 78.0, .y = -196.0});
            fillerCap(r, 8.0);
        }
        {
            const auto placed = r.place({.x = side * 112.0, .y = -196.0});
            liftingHook(r);
        }
        const auto hook = r.place({.x = side * 36.0, .y = -132.0, .angle = 90.0});
        liftingHook(r);
    }
    const auto lift = r.place({.y = -248.0});
    handle(r, 22.0);
}

/// Air filters of the first year: canisters at the rear corners and the hoses to the engine hatch.
void airFilters(Relief& r) {
    for (const double side : {-1.0, 1.0}) {
        const std::array<Vec2, 5> hose{{{side * 30.0, -226.0},
                                        {side * 44.0, -262.0},
                                        {side * 66.0, -284.0},
                                        {side * 90.0, -292.0},
                                        {side * 104.0, -300.0}}};
        const auto path = curveThrough(hose, 10);
        r.add(Shape::line(path, 11.0), flat(Roof + 13.0).rounded(5.5, 8.0), paints::Hull);
        for (const double x : {98.0, 118.0}) {
            r.add(Shape::circle({side * x, -304.0}, 9.5), flat(Roof - 8.0).rounded(4.0, 3.0));
            r.add(Shape::circle({side * x, -304.0}, 4.5), raise(2.0).rounded(2.0, 1.5));
        }
    }
}

void rearPlate(Relief& r) {
    r.add(Shape::rect(-110.0, -306.0, 110.0, -296.0), slope({0, -296}, 150.0, {0, -306}, 70.0));
    for (const double side : {-1.0, 1.0}) {
        const auto placed = r.place({.x = side * 56.0, .y = -302.0, .z = 120.0});
        exhaustStack(r, 11.5, 52.0);
    }
    {
        const auto placed = r.place({.x = -6.0, .y = -303.0, .angle = 90.0, .z = 110.0});
        jack(r, 62.0);
    }
}

void tools(Relief& r) {
    towCable(r, {{-128, 150}, {-139, 120}, {-139, 20}, {-137, -70}, {-140, -100}, {-142, -180}, {-140, -284}},
             3.4);
    towCable(r, {{128, 150}, {139, 120}, {139, 20}, {137, -70}, {140, -100}, {142, -180}, {140, -284}}, 3.4);
    {
        const auto placed = r.placeOn({.x = -120.0, .y = 20.0});
        cleaningRods(r, 150.0, 4);
    }
    {
        const auto placed = r.placeOn({.x = 124.0, .y = 60.0});
        axe(r, 92.0);
    }
    {
        const auto placed = r.placeOn({.x = 124.0, .y = -44.0, .angle = 180.0});
        crowbar(r, 80.0);
    }
    {
        const auto placed = r.placeOn({.x = 12.0, .y = 238.0, .angle = 88.0, .z = 0.0});
        shovel(r, 112.0);
    }
    {
        const auto placed = r.placeOn({.x = -38.0, .y = 236.0, .angle = -82.0});
        sledgehammer(r, 84.0);
    }
    {
        const auto placed = r.placeOn({.x = -112.0, .y = -106.0});
        fireExtinguisher(r);
    }
    const auto placed = r.placeOn({.x = -100.0, .y = -98.0});
    antennaBase(r);
}

void drawHull(Relief& r) {
    r.add(Shape::rect(-118.0, -300.0, 118.0, 288.0), flat(46.0), paints::Dark);
    runningGear(r);
    nose(r);
    mudguards(r);
    hullBox(r);
    driverCompartment(r);
    engineDeck(r);
    rearPlate(r);
    airFilters(r);
    tools(r);
}

void mantlet(Relief& r) {
    barrel(r, {{96.0, 19.5}, {176.0, 17.0}, {182.0, 15.0}}, 46.0);
    barrel(r, {{182.0, 12.6}, {330.0, 10.6}, {330.0, 9.9}, {474.0, 8.4}}, 46.0);
    bolts(r, {-12, 180}, {12, 180}, 4, 1.0);
    muzzleBrake(r, 521.0, 50.0, 14.5, 46.0);
    r.add(Shape::roundRect(-88.0, 84.0, 88.0, 106.0, 5.0),
          tube({-1e4, 92}, {1e4, 92}, 17.0, 17.0, 42.0).rough(0.5));
    r.add(Shape::roundRect(-30.0, 98.0, 30.0, 122.0, 9.0),
          tube({0, 92}, {0, 124}, 30.0, 22.0, 38.0).rough(0.4));
    for (const double x : {-68.0, -58.0}) {
        r.add(Shape::ellipse({x, 104.0}, 3.4, 3.0), raise(-6.0), paints::Dark);
    }
    r.add(Shape::circle({40.0, 102.0}, 7.0), raise(2.0).rounded(5.0, 4.0));
    {
        const auto placed = r.place({.x = 40.0, .z = 48.0});
        machineGunBarrel(r, 104.0, 126.0, 2.0, 0.0, true);
    }
}

void shell(Relief& r) {
    // the horseshoe: one bent plate 82 mm thick
    const Shape outside = Shape::symmetricSmooth({{0, 84},
                                                  {46, 84},
                                                  {84, 83},
                                                  {91, 78},
                                                  {99, 40},
                                                  {105, 0},
                                                  {101, -42},
                                                  {84, -80},
                                                  {52, -106},
                                                  {0, -116}});
    r.add(outside, flat(76.0).rounded(2.5, 2.5));
    const Shape roof = Shape::symmetricSmooth({{0, 76},
                                               {44, 76},
                                               {76, 75},
                                               {84, 70},
                                               {91, 38},
                                               {96.5, 0},
                                               {93, -38},
                                               {77, -74},
                                               {48, -98},
                                               {0, -107}});
    r.add(roof, flat(72.5).rounded(1.5, 1.2));
    r.add(Shape::polygon({{-82, 71}, {82, 71}, {89, 36}, {-89, 36}}), slope({0, 36}, 73.0, {0, 71}, 66.0));
    weld(r, {{-89, 36}, {89, 36}}, 2.2);
}

void roofFittings(Relief& r) {
    {
        const auto placed = r.place({.x = -50.0, .y = -30.0});
        cupola(r, 41.0, 20.0, 5, false);
    }
    {
        const auto placed = r.place({.x = 50.0, .y = -2.0});
        hatchRect(r, 52.0, 40.0, 4.5, 5.0);
    }
    {
        const auto placed = r.place({.x = 2.0, .y = -66.0});
        ventDome(r, 17.0);
    }
    {
        const auto placed = r.place({.x = 52.0, .y = 40.0, .angle = 12.0});
        periscope(r, 17.0, 9.0, 4.0);
    }
    for (const auto& [x, y, angle] :
         {std::array{-74.0, 52.0, 30.0}, std::array{74.0, 52.0, -30.0}, std::array{0.0, -94.0, 0.0}}) {
        const auto placed = r.place({.x = x, .y = y, .angle = angle});
        liftingHook(r);
    }
    for (const double side : {-1.0, 1.0}) {
        {
            const auto placed = r.place({.x = side * 103.0, .y = 50.0, .angle = side * 35.0, .z = 44.0});
            smokeTubes(r, 3, 24.0, 4.6);
        }
        // spare links hang on the sides
        for (int i = 0; i < (side < 0 ? 4 : 3); ++i) {
            const auto placed = r.place(
                {.x = side * 109.0, .y = 12.0 - i * 20.0, .angle = side * (i > 1 ? 14.0 : 2.0), .z = 46.0});
            r.add(Shape::roundRect(-4.5, -8.5, 4.5, 8.5, 1.5), flat(22.0).rounded(1.5, 1.2),
                  paints::TrackSteel);
            r.add(Shape::rect(-5.5, -2.6, 5.5, 2.6), flat(23.0).rounded(1.0, 0.8), paints::TrackSteel);
        }
    }
    // escape hatch in the rear wall
    const auto hatch = r.place({.x = 78.0, .y = -88.0, .angle = 138.0, .z = 20.0});
    r.add(Shape::roundRect(-24.0, -3.0, 24.0, 8.0, 3.0), flat(40.0).rounded(4.0, 6.0));
}

void turretBin(Relief& r) {
    const Shape bin = Shape::smooth({{-72.0, -99.0},
                                     {-30.0, -116.0},
                                     {30.0, -118.0},
                                     {46.0, -113.0},
                                     {54.0, -140.0},
                                     {0.0, -152.0},
                                     {-58.0, -142.0},
                                     {-84.0, -112.0}});
    r.add(bin, flat(62.0).rounded(3.0, 3.0));
    gap(r, {{-56, -134}, {0, -143}, {46, -134}}, 0.9);
    gap(r, {{-18, -121}, {-18, -145}}, 0.9);
    for (const double x : {-38.0, 18.0}) {
        const auto placed = r.place({.x = x, .y = -140.0, .angle = 180.0});
        hinge(r, 9.0);
    }
}

void drawTurret(Relief& r) {
    turretBin(r);
    mantlet(r);
    shell(r);
    roofFittings(r);
}

void damageHull(Relief& r) {
    burnAll(r, 0.7, 0.8, 17);
    scorch(r, {0, -190}, 150.0, 0.95, 8);
    shellHole(r, {-104, 84}, 7.0);
    shellHole(r, {-30, 262}, 6.5);
    furrow(r, {60, 284}, {84, 244}, 5.0);
    furrow(r, {128, 120}, {150, 74}, 5.0);
    openHatch(r, Shape::circle({-68, 172}, 23.0));
    openHatch(r, Shape::roundRect(-46, -268, 46, -196, 3));
    tornPlate(r, {-148, 262}, 30.0, 26.0, 9);
    brokenTrack(r, {-150, 60}, 9.0, 62.0, 6, 13.0);
    debris(r, {0, 20}, 170.0, 44, 12);
}

void damageTurret(Relief& r) {
    burnAll(r, 0.8, 0.5, 57);
    scorch(r, {40, -10}, 80.0, 0.9, 6);
    openHatch(r, Shape::circle({-50, -30}, 22.0));
    openHatch(r, Shape::roundRect(25, -21, 75, 17, 4));
    shellHole(r, {-20, 30}, 6.0);
    furrow(r, {50, 104}, {62, 74}, 5.0);
    debris(r, {0, -20}, 90.0, 16, 3);
}

constexpr std::array<Sheet, 4> Sheets{
    {{.path = "Units/Vehicles/Hulls/German Panzer VI Tiger Ausf E hull.png",
      .width = 371,
      .height = 632,
      .draw = drawHull,
      .scheme = germanThreeTone},
     {.path = "Units/Vehicles/Destroyed/German Panzer VI Tiger Ausf E hull destroyed.png",
      .width = 371,
      .height = 632,
      .draw = drawHull,
      .damage = damageHull,
      .scheme = germanThreeTone},
     {.path = "Units/Vehicles/Turrets/German Panzer VI Tiger Ausf E turret.png",
      .width = 252,
      .height = 1050,
      .draw = drawTurret,
      .scheme = germanThreeTone,
      .how = Mounted},
     {.path = "Units/Vehicles/Destroyed/German Panzer VI Tiger Ausf E turret destroyed.png",
      .width = 252,
      .height = 1050,
      .draw = drawTurret,
      .damage = damageTurret,
      .scheme = germanThreeTone,
      .how = Mounted}}};

} // namespace

std::span<const Sheet> tigerSheets() {
    return Sheets;
}

} // namespace artwork
