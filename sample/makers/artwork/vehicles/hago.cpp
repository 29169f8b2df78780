#include "catalogue.h"
#include "parts/armour.h"
#include "parts/fittings.h"
#include "parts/gear.h"
#include "parts/wreck.h"
#include "schemes.h"

#include <array>

namespace artwork {

namespace {

constexpr TrackStyle LightTrack{.pitch = 10.0, .bar = 0.5, .barRise = 2.0};
constexpr double Roof = 124.0;

void runningGear(Relief& r) {
    r.add(Shape::rect(-74.0, -196.0, 74.0, 190.0), flat(42.0), paints::Dark);
    for (const double side : {-1.0, 1.0}) {
        track(r, side > 0 ? 76.0 : -101.0, side > 0 ? 101.0 : -76.0, -184.0, 186.0, 86.0, 32.0, LightTrack);
        r.add(Shape::rect(side > 0 ? 72.0 : -103.0, -196.0, side > 0 ? 103.0 : -72.0, 168.0),
              flat(92.0).rounded(1.2, 1.0));
        r.add(Shape::polygon({{side * 72, 168}, {side * 103, 168}, {side * 102, 204}, {side * 74, 204}}),
              slope({0, 168}, 92.0, {0, 204}, 84.0).rounded(1.2, 1.0));
        rivets(r, {{side * 100, -190}, {side * 100, 196}}, 11.0, 1.2);
    }
}

void bow(Relief& r) {
    r.add(Shape::polygon({{-72, 100}, {72, 100}, {70, 186}, {-70, 186}}),
          slope({0, 100}, 98.0, {0, 186}, 84.0).rounded(1.4, 1.2));
    r.add(Shape::polygon({{-70, 186}, {70, 186}, {66, 214}, {-66, 214}}),
          slope({0, 186}, 84.0, {0, 214}, 48.0));
    rivets(r, {{-64, 182}, {64, 182}}, 9.0, 1.6);
    rivets(r, {{-60, 208}, {60, 208}}, 9.0, 1.6);
    for (const double side : {-1.0, 1.0}) {
        {
            const auto placed = r.placeOn({.x = side * 34.0, .y = 156.0});
            hatchRect(r, 40.0, 34.0, 2.6, 3.0);
        }
        rivets(r, {{side * 66, 106}, {side * 65, 180}}, 9.0, 1.5);
        const auto placed = r.placeOn({.x = side * 50.0, .y = 206.0});
        shackle(r);
    }
    const auto placed = r.placeOn({.x = 0.0, .y = 176.0});
    headlight(r, 9.5);
}

void superstructure(Relief& r) {
    // rounded bulges stand out over both tracks
    const Shape outline = Shape::smooth({{-24, 116},
                                         {-60, 116},
                                         {-84, 92},
                                         {-92, 40},
                                         {-88, -28},
                                         {-70, -60},
                                         {70, -60},
                                         {88, -28},
                                         {92, 40},
                                         {84, 92},
                                         {60, 112},
                                         {24, 116}});
    r.add(outline, flat(Roof).rounded(18.0, 26.0));
    r.add(Shape::smooth({{-24, 100},
                         {-54, 98},
                         {-68, 80},
                         {-74, 38},
                         {-70, -24},
                         {-58, -48},
                         {58, -48},
                         {70, -24},
                         {74, 38},
                         {68, 80},
                         {52, 96},
                         {24, 100}}),
          flat(Roof + 0.6).rounded(1.2, 0.8));
    rivets(r, {{-60, 84}, {-66, 38}, {-62, -24}, {-50, -42}, {50, -42}, {62, -24}, {66, 38}, {60, 80}}, 9.0,
           1.4);
    // the machine gunner's bay at the left, the driver's visor at the right
    r.add(Shape::circle({-42.0, 112.0}, 22.0), flat(Roof - 6.0).rounded(10.0, 16.0));
    {
        const auto placed = r.place({.x = 30.0, .y = 112.0, .z = 100.0});
        r.add(Shape::roundRect(-20.0, -12.0, 20.0, 8.0, 3.0), flat(20.0).rounded(4.0, 6.0));
        r.add(Shape::rect(-13.0, 5.0, 13.0, 7.5), raise(-5.0), paints::Dark);
    }
    turretRing(r, {-12, 20}, 54.0, 24);
    {
        const auto placed = r.placeOn({.x = 52.0, .y = 60.0});
        hatchRect(r, 32.0, 40.0, 2.6, 3.0);
    }
}

void engineDeck(Relief& r) {
    r.add(Shape::polygon({{-70, -58}, {70, -58}, {66, -150}, {-66, -150}}), flat(112.0).rounded(1.6, 1.4));
    r.add(Shape::polygon({{-66, -148}, {66, -148}, {62, -206}, {-62, -206}}),
          slope({0, -148}, 111.0, {0, -206}, 66.0));
    r.add(Shape::rect(-62.0, -214.0, 62.0, -204.0), slope({0, -204}, 66.0, {0, -214}, 46.0));
    panel(r, -40.0, -134.0, 30.0, -70.0, 2.4, 3.0);
    louvres(r, -32.0, -126.0, 22.0, -80.0, 7);
    meshGrille(r, -48.0, -192.0, 44.0, -160.0, 4.0);
    rivets(r, {{-64, -64}, {-61, -144}, {-57, -200}}, 9.0, 1.5);
    rivets(r, {{64, -64}, {61, -144}, {57, -200}}, 9.0, 1.5);
    {
        const auto placed = r.placeOn({.x = 46.0, .y = -76.0});
        fillerCap(r, 7.0);
    }
    // silencer on the right guard under its perforated shield
    const auto placed = r.place({.x = 88.0, .y = -104.0, .angle = 90.0, .z = 94.0});
    silencer(r, 86.0, 11.0, 0.0);
    r.add(Shape::rect(-32.0, -10.5, 32.0, 10.5), tube({-40, 0}, {40, 0}, 12.5, 12.5, 11.0), paints::Steel);
    for (double x = -29.0; x < 31.0; x += 4.0) {
        for (double y = -8.0; y <= 8.0; y += 4.0) {
            r.stain(Shape::circle({x, y}, 1.1), hex(0x100E0D), 0.8);
        }
    }
    const auto tail = r.place({.x = 42.0, .angle = 90.0, .z = 8.0});
    exhaustPipe(r, 14.0, 4.0);
}

void stowage(Relief& r) {
    {
        const auto placed = r.place({.x = -90.0, .y = -110.0, .z = 92.0});
        stowageBox(r, 22.0, 66.0, 20.0);
    }
    {
        const auto placed = r.place({.x = -95.0, .y = 138.0, .z = 92.0});
        shovel(r, 64.0);
    }
    {
        const auto placed = r.place({.x = 93.0, .y = 136.0, .z = 92.0});
        jack(r, 52.0);
    }
    const auto placed = r.placeOn({.y = -172.0, .z = 3.0});
    r.add(Shape::capsule({-30, 0}, {30, 0}, 3.0), raise(1.0), paints::Steel);
    towCable(r, {{-46, 30}, {-20, 22}, {20, 22}, {46, 30}}, 2.6);
}

void drawHull(Relief& r) {
    runningGear(r);
    bow(r);
    engineDeck(r);
    superstructure(r);
    stowage(r);
}

void drawTurret(Relief& r) {
    barrel(r, {{58.0, 6.0}, {78.0, 5.2}, {78.0, 4.4}, {148.0, 3.4}}, 30.0);
    muzzleBore(r, 148.0, 2.6, 30.0);
    {
        // the second machine gun looks out at the right rear
        const auto placed = r.place({.x = 36.0, .y = -46.0, .angle = 140.0, .z = 30.0});
        r.add(Shape::circle({0, 0}, 12.0), flat(8.0).rounded(11.0, 9.0));
        machineGunBarrel(r, 8.0, 36.0, 2.6, 4.0, true);
    }
    r.add(Shape::smooth({{0, 60},
                         {26, 54},
                         {50, 30},
                         {59, 0},
                         {54, -30},
                         {36, -52},
                         {0, -60},
                         {-36, -52},
                         {-54, -30},
                         {-59, 0},
                         {-50, 30},
                         {-26, 54}}),
          flat(60.0).rounded(11.0, 40.0));
    r.add(Shape::smooth({{0, 48},
                         {22, 44},
                         {41, 24},
                         {48, 0},
                         {44, -24},
                         {29, -42},
                         {0, -48},
                         {-29, -42},
                         {-44, -24},
                         {-48, 0},
                         {-41, 24},
                         {-22, 44}}),
          flat(60.5).rounded(1.2, 0.8));
    for (int i = 0; i < 30; ++i) {
        const Vec2 d = bearing(i * 12.0);
        bolts(r, d * 44.0, d * 44.0, 1, 1.3);
    }
    r.add(Shape::roundRect(-20.0, 46.0, 20.0, 66.0, 5.0),
          tube({-1e4, 52}, {1e4, 52}, 15.0, 15.0, 28.0).rounded(3.0, 2.0));
    bolts(r, {-15, 58}, {15, 58}, 4, 1.4);
    {
        // the commander's cupola with its two-leaf lid
        const auto placed = r.placeOn({.x = -14.0, .y = -12.0});
        r.add(Shape::circle({}, 26.0), flat(16.0).rounded(5.0, 5.0));
        hatchSplit(r, 34.0, 34.0, 2.8);
        for (const double angle : {-60.0, 0.0, 60.0, 180.0}) {
            const auto slit = r.place(
                {.x = bearing(angle).x * 23.0, .y = bearing(angle).y * 23.0, .angle = angle, .z = 8.0});
            r.add(Shape::rect(-5.0, 0.0, 5.0, 3.6), flat(4.0), paints::Dark);
        }
    }
    const auto placed = r.placeOn({.x = 26.0, .y = 18.0});
    ventDome(r, 6.0);
}

void damageHull(Relief& r) {
    burnAll(r, 0.85, 0.8, 201);
    scorch(r, {0, -110}, 100.0, 1.0, 202);
    shellHole(r, {20, 60}, 6.0);
    shellHole(r, {-70, 10}, 6.0);
    shellHole(r, {40, 130}, 5.0);
    openHatch(r, Shape::roundRect(36, 40, 68, 80, 3));
    tornPlate(r, {0, -100}, 30.0, 26.0, 7);
    brokenTrack(r, {-90, 170}, 14.0, 24.0, 6, 10.0);
    debris(r, {0, 0}, 100.0, 36, 203);
}

void damageTurret(Relief& r) {
    burnAll(r, 0.9, 0.5, 205);
    openHatch(r, Shape::circle({-14, -12}, 17.0));
    shellHole(r, {28, 34}, 5.5);
    debris(r, {0, -10}, 50.0, 10, 206);
}

constexpr std::array<Sheet, 4> Sheets{
    {{.path = "Units/Vehicles/Hulls/Japanese Type 95 Ha-Go hull.png",
      .width = 206,
      .height = 438,
      .draw = drawHull,
      .scheme = japaneseStripes},
     {.path = "Units/Vehicles/Destroyed/Japanese Type 95 Ha-Go hull destroyed.png",
      .width = 206,
      .height = 438,
      .draw = drawHull,
      .damage = damageHull,
      .scheme = japaneseStripes},
     {.path = "Units/Vehicles/Turrets/Japanese Type 95 Ha-Go turret.png",
      .width = 144,
      .height = 306,
      .draw = drawTurret,
      .scheme = japaneseStripes,
      .how = Mounted},
     {.path = "Units/Vehicles/Destroyed/Japanese Type 95 Ha-Go turret destroyed.png",
      .width = 144,
      .height = 306,
      .draw = drawTurret,
      .damage = damageTurret,
      .scheme = japaneseStripes,
      .how = Mounted}}};

} // namespace

std::span<const Sheet> haGoSheets() {
    return Sheets;
}

} // namespace artwork
