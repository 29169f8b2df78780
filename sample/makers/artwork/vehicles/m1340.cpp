#include "catalogue.h"
#include "parts/armour.h"
#include "parts/fittings.h"
#include "parts/gear.h"
#include "parts/wreck.h"
#include "schemes.h"

#include <array>

namespace artwork {

namespace {

constexpr TrackStyle FiatTrack{.pitch = 11.0, .bar = 0.5, .barRise = 2.0};
constexpr double Roof = 148.0;

void runningGear(Relief& r) {
    r.add(Shape::rect(-80.0, -232.0, 80.0, 214.0), flat(44.0), paints::Dark);
    for (const double side : {-1.0, 1.0}) {
        track(r, side > 0 ? 80.0 : -106.0, side > 0 ? 106.0 : -80.0, -206.0, 206.0, 86.0, 36.0, FiatTrack);
        r.add(Shape::rect(side > 0 ? 77.0 : -110.0, -196.0, side > 0 ? 110.0 : -77.0, 152.0),
              flat(93.0).rounded(1.2, 1.0));
        r.add(Shape::roundRect(side > 0 ? 78.0 : -110.0, 150.0, side > 0 ? 110.0 : -78.0, 212.0, 4.0),
              tube({-1e4, 170}, {1e4, 170}, 52.0, 52.0, 45.0).rounded(1.2, 1.0));
        rivets(r, {{side * 107, -190}, {side * 107, 200}}, 11.0, 1.2);
    }
}

void bow(Relief& r) {
    r.add(Shape::rect(-76.0, 116.0, 76.0, 186.0), slope({0, 116}, 114.0, {0, 186}, 96.0).rounded(1.4, 1.2));
    r.add(Shape::roundRect(-76.0, 178.0, 76.0, 238.0, 10.0), tube({-1e4, 190}, {1e4, 190}, 47.0, 47.0, 50.0));
    rivets(r, {{-70, 184}, {70, 184}}, 9.0, 1.6);
    rivets(r, {{-70, 226}, {70, 226}}, 9.0, 1.6);
    for (const double side : {-1.0, 1.0}) {
        rivets(r, {{side * 71, 122}, {side * 71, 220}}, 9.0, 1.5);
        {
            // brake hatches, hinged in front
            const auto placed = r.placeOn({.x = side * 36.0, .y = 150.0});
            hatchRect(r, 52.0, 48.0, 2.8, 3.0);
        }
        {
            const auto placed = r.placeOn({.x = side * 92.0, .y = 158.0});
            headlight(r, 8.5);
        }
        const auto placed = r.placeOn({.x = side * 46.0, .y = 232.0});
        shackle(r);
    }
    const auto placed = r.placeOn({.y = 206.0, .angle = 90.0});
    spareTrack(r, 20.0, 6, 11.0);
}

void superstructure(Relief& r) {
    const std::array<Vec2, 6> low{{{62, 132}, {94, 104}, {94, -60}, {-94, -60}, {-94, 104}, {-62, 132}}};
    const std::array<Vec2, 6> high{{{58, 122}, {88, 98}, {88, -56}, {-88, -56}, {-88, 98}, {-58, 122}}};
    frustum(r, low, high, 96.0, Roof);
    // the bulge of the twin machine guns at the right, the driver's visor at the left
    r.add(Shape::circle({52.0, 118.0}, 26.0), flat(Roof - 4.0).rounded(8.0, 18.0));
    rivets(r, {{-82, 94}, {-82, -50}}, 9.0, 1.5);
    rivets(r, {{82, 94}, {82, -50}}, 9.0, 1.5);
    rivets(r, {{-54, 116}, {22, 116}}, 9.0, 1.5);
    rivets(r, {{-76, -50}, {76, -50}}, 9.0, 1.5);
    {
        const auto placed = r.place({.x = -30.0, .y = 126.0, .z = 122.0});
        r.add(Shape::roundRect(-20.0, -2.0, 20.0, 9.0, 3.0), flat(14.0).rounded(3.0, 5.0));
        r.add(Shape::rect(-14.0, 6.5, 14.0, 8.5), raise(-4.0), paints::Dark);
    }
    turretRing(r, {12, 26}, 64.0, 26);
    {
        const auto placed = r.placeOn({.x = -60.0, .y = 82.0});
        periscope(r, 12.0, 9.0, 6.0);
    }
    {
        // entrance in the left flank
        const auto placed = r.place({.x = -94.0, .y = 46.0, .angle = -90.0, .z = 116.0});
        r.add(Shape::roundRect(-26.0, -2.0, 26.0, 5.0, 2.0), flat(22.0).rounded(2.0, 3.0));
    }
    const auto placed = r.placeOn({.x = -74.0, .y = -36.0});
    antennaBase(r);
}

void engineDeck(Relief& r) {
    r.add(Shape::polygon({{-78, -56}, {78, -56}, {74, -186}, {-74, -186}}), flat(128.0).rounded(1.6, 1.4));
    r.add(Shape::rect(-74.0, -228.0, 74.0, -184.0), slope({0, -184}, 127.0, {0, -228}, 96.0));
    r.add(Shape::rect(-72.0, -242.0, 72.0, -226.0), slope({0, -226}, 96.0, {0, -242}, 60.0));
    for (const double side : {-1.0, 1.0}) {
        // inspection covers with their louvres
        panel(r, side > 0 ? 5.0 : -66.0, -132.0, side > 0 ? 66.0 : -5.0, -66.0, 2.0, 3.0);
        louvres(r, side > 0 ? 12.0 : -58.0, -124.0, side > 0 ? 58.0 : -12.0, -76.0, 6);
        rivets(r, {{side * 72, -62}, {side * 69, -182}}, 9.0, 1.5);
        meshGrille(r, side > 0 ? 8.0 : -64.0, -178.0, side > 0 ? 64.0 : -8.0, -144.0, 4.0);
        {
            const auto placed = r.place({.x = side * 97.0, .y = -112.0, .angle = 90.0, .z = 95.0});
            silencer(r, 78.0, 9.5, 0.0);
        }
        {
            const auto placed = r.place({.x = side * 97.0, .y = -150.0, .angle = 180.0, .z = 103.0});
            exhaustPipe(r, 24.0, 3.4);
        }
        const auto wheel = r.placeOn({.x = side * 36.0, .y = -206.0});
        r.add(Shape::circle({}, 20.0), flat(9.0).rounded(4.0, 3.0), paints::Rubber);
        r.add(Shape::circle({}, 14.0), raise(-2.0));
        r.add(Shape::circle({}, 5.0), raise(4.0).rounded(2.0, 2.0));
    }
    const auto placed = r.placeOn({.x = 0.0, .y = -206.0});
    jack(r, 36.0);
}

void stowage(Relief& r) {
    for (const double y : {54.0, 16.0}) {
        const auto placed = r.place({.x = 102.0, .y = y, .angle = 90.0, .z = 93.0});
        jerrycan(r, {.colour = hex(0x8E7C52), .gloss = 0.1});
    }
    {
        const auto placed = r.place({.x = -102.0, .y = -30.0, .z = 93.0});
        shovel(r, 72.0);
    }
    {
        const auto placed = r.place({.x = 102.0, .y = -44.0, .z = 93.0});
        axe(r, 56.0);
    }
    {
        const auto placed = r.placeOn({.x = -48.0, .y = -30.0, .angle = -8.0});
        canvasRoll(r, 48.0, 9.0, {.colour = hex(0x8C8062)});
    }
    towCable(r, {{-102, 120}, {-103, 100}, {-103, 40}, {-102, 12}}, 2.6);
}

void drawHull(Relief& r) {
    runningGear(r);
    bow(r);
    engineDeck(r);
    superstructure(r);
    stowage(r);
}

void drawTurret(Relief& r) {
    barrel(r, {{80.0, 7.4}, {98.0, 6.4}, {98.0, 5.2}, {170.0, 4.0}, {170.0, 4.6}, {178.0, 4.6}}, 32.0);
    muzzleBore(r, 178.0, 3.0, 32.0);
    {
        const auto placed = r.place({.x = 15.0, .z = 34.0});
        machineGunBarrel(r, 74.0, 96.0, 2.4, 0.0, false);
    }
    // a horseshoe of riveted plates, all sloped a little
    const std::array<Vec2, 11> low{{{44, 68},
                                    {66, 52},
                                    {74, 0},
                                    {64, -44},
                                    {36, -70},
                                    {-36, -70},
                                    {-64, -44},
                                    {-74, 0},
                                    {-66, 52},
                                    {-44, 68},
                                    {0, 70}}};
    const std::array<Vec2, 11> high{{{37, 52},
                                     {52, 42},
                                     {58, 0},
                                     {50, -34},
                                     {29, -54},
                                     {-29, -54},
                                     {-50, -34},
                                     {-58, 0},
                                     {-52, 42},
                                     {-37, 52},
                                     {0, 54}}};
    frustum(r, low, high, 8.0, 66.0);
    for (std::size_t i = 0; i < low.size(); ++i) {
        const std::size_t j = (i + 1) % low.size();
        rivets(r, {lerp(low[i], high[i], 0.2), lerp(low[j], high[j], 0.2)}, 9.0, 1.3);
    }
    rivets(r, {{-34, 48}, {34, 48}}, 9.0, 1.3);
    r.add(Shape::roundRect(-40.0, 54.0, 40.0, 82.0, 6.0),
          tube({-1e4, 62}, {1e4, 62}, 20.0, 20.0, 30.0).rounded(4.0, 3.0));
    r.add(Shape::roundRect(-11.0, 72.0, 11.0, 88.0, 4.0), tube({0, 70}, {0, 90}, 12.0, 8.0, 32.0));
    bolts(r, {-34, 72}, {34, 72}, 7, 1.6);
    {
        // two-leaf hatch
        const auto placed = r.placeOn({.x = 0.0, .y = -14.0, .angle = 90.0});
        hatchSplit(r, 56.0, 62.0, 3.2);
    }
    // white disc for the air force to see
    r.stain(Shape::circle({0, -14}, 22.0), hex(0xDAD6CA), 0.6);
    for (const double side : {-1.0, 1.0}) {
        const auto placed = r.placeOn({.x = side * 34.0, .y = 32.0});
        r.add(Shape::circle({}, 8.0), raise(2.5).rounded(2.0, 2.0));
        periscope(r, 11.0, 8.0, 7.0);
    }
    const auto placed = r.placeOn({.x = 0.0, .y = 32.0});
    ventDome(r, 6.0);
}

void damageHull(Relief& r) {
    burnAll(r, 0.8, 0.8, 191);
    scorch(r, {0, -130}, 110.0, 1.0, 192);
    shellHole(r, {-30, 150}, 6.0);
    shellHole(r, {70, 40}, 6.0);
    openHatch(r, Shape::roundRect(10, 126, 62, 174, 3));
    openHatch(r, Shape::rect(-66, -132, -5, -66));
    tornPlate(r, {-94, 100}, 10.0, 26.0, 5);
    brokenTrack(r, {92, 196}, -16.0, 25.0, 5, 11.0);
    debris(r, {0, 0}, 110.0, 36, 193);
}

void damageTurret(Relief& r) {
    burnAll(r, 0.85, 0.5, 195);
    openHatch(r, Shape::rect(-31, -42, 31, 14));
    shellHole(r, {40, 44}, 5.5);
    debris(r, {0, -10}, 60.0, 12, 196);
}

constexpr std::array<Sheet, 4> Sheets{
    {{.path = "Units/Vehicles/Hulls/Italian Carro M13-40 hull.png",
      .width = 220,
      .height = 492,
      .draw = drawHull,
      .scheme = italianDesert},
     {.path = "Units/Vehicles/Destroyed/Italian Carro M13-40 hull destroyed.png",
      .width = 220,
      .height = 492,
      .draw = drawHull,
      .damage = damageHull,
      .scheme = italianDesert},
     {.path = "Units/Vehicles/Turrets/Italian Carro M13-40 turret.png",
      .width = 164,
      .height = 366,
      .draw = drawTurret,
      .scheme = italianDesert,
      .how = Mounted},
     {.path = "Units/Vehicles/Destroyed/Italian Carro M13-40 turret destroyed.png",
      .width = 164,
      .height = 366,
      .draw = drawTurret,
      .damage = damageTurret,
      .scheme = italianDesert,
      .how = Mounted}}};

} // namespace

std::span<const Sheet> m1340Sheets() {
    return Sheets;
}

} // namespace artwork
