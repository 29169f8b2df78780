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
constexpr double Roof = 206.0;
constexpr double Deck = 152.0;

void runningGear(Relief& r) {
    r.add(Shape::rect(-88.0, -266.0, 88.0, 250.0), flat(44.0), paints::Dark);
    for (const double side : {-1.0, 1.0}) {
        track(r, side > 0 ? 87.0 : -129.0, side > 0 ? 129.0 : -87.0, -238.0, 240.0, 92.0, 38.0, RubberTrack);
        // desert sand shields along the sides
        r.add(Shape::rect(side > 0 ? 126.0 : -136.0, -262.0, side > 0 ? 136.0 : -126.0, 216.0),
              flat(104.0).rounded(2.0, 2.0));
        r.add(Shape::roundRect(side > 0 ? 88.0 : -136.0, 196.0, side > 0 ? 136.0 : -88.0, 262.0, 5.0),
              tube({-1e4, 214}, {1e4, 214}, 50.0, 50.0, 56.0).rounded(1.5, 1.2));
        for (int i = 0; i < 6; ++i) {
            gap(r, {{side * 127.0, -190.0 + i * 72.0}, {side * 136.0, -190.0 + i * 72.0}}, 1.2);
        }
    }
}

void bow(Relief& r) {
    // the bolted cover of the transmission, in three parts
    r.add(Shape::roundRect(-86.0, 196.0, 86.0, 281.0, 16.0),
          tube({-1e4, 232}, {1e4, 232}, 48.0, 48.0, 58.0).rounded(10.0, 10.0).rough(0.5));
    for (const double x : {-30.0, 30.0}) {
        r.add(Shape::rect(x - 5.0, 198.0, x + 5.0, 280.0), raise(4.0).rounded(2.0, 2.0));
        bolts(r, {x, 204}, {x, 274}, 7, 2.0);
    }
    r.add(Shape::rect(-88.0, 190.0, 88.0, 202.0), flat(112.0).rounded(1.5, 1.2));
    bolts(r, {-82, 196}, {82, 196}, 15, 1.8);
    for (const double side : {-1.0, 1.0}) {
        const auto placed = r.place({.x = side * 62.0, .y = 268.0, .z = 66.0});
        shackle(r);
    }
    for (const double side : {-1.0, 1.0}) {
        r.add(Shape::rect(side > 0 ? 86.0 : -136.0, 60.0, side > 0 ? 136.0 : -86.0, 202.0),
              flat(110.0).rounded(1.4, 1.2));
        rivets(r, {{side * 130, 70}, {side * 130, 194}}, 12.0, 1.4);
    }
    // sloping plate between transmission and superstructure
    r.add(Shape::polygon({{-136, 126}, {60, 140}, {88, 196}, {-88, 196}, {-136, 170}}),
          slope({0, 126}, 168.0, {0, 196}, 112.0));
    rivets(r, {{-84, 190}, {40, 190}}, 10.0, 1.6);
}

void superstructure(Relief& r) {
    // the left front is angled back, the right front bulges around the gun's shield
    const std::array<Vec2, 8> low{
        {{-136, 66}, {-74, 142}, {30, 148}, {52, 160}, {116, 160}, {136, 132}, {136, -86}, {-136, -86}}};
    const std::array<Vec2, 8> high{
        {{-118, 60}, {-64, 118}, {30, 124}, {54, 134}, {110, 134}, {124, 112}, {124, -76}, {-118, -76}}};
    frustum(r, low, high, 112.0, Roof);
    r.add(Shape::circle({84.0, 126.0}, 36.0), flat(Roof - 8.0).rounded(14.0, 26.0).rough(0.6));
    r.add(Shape::circle({84.0, 122.0}, 22.0), flat(Roof - 6.0).rounded(8.0, 6.0).rough(0.4));
    rivets(r, {{-112, 56}, {-62, 112}, {28, 118}}, 10.0, 1.6);
    rivets(r, {{118, 84}, {118, -70}}, 10.0, 1.6);
    rivets(r, {{-112, 50}, {-112, -70}}, 10.0, 1.6);
    rivets(r, {{-108, -70}, {112, -70}}, 10.0, 1.6);
    {
        // driver's visor
        const auto placed = r.place({.x = -4.0, .y = 130.0, .z = 178.0});
        r.add(Shape::roundRect(-22.0, -8.0, 22.0, 12.0, 3.0), flat(14.0).rounded(3.0, 6.0));
        r.add(Shape::rect(-15.0, 9.0, 15.0, 11.5), raise(-5.0), paints::Dark);
    }
    turretRing(r, {-30, 24}, 70.0, 28);
    {
        const auto placed = r.placeOn({.x = 86.0, .y = 36.0});
        hatchRect(r, 46.0, 60.0, 3.0, 4.0);
    }
    {
        const auto placed = r.placeOn({.x = 72.0, .y = -44.0});
        ventDome(r, 12.0);
    }
    {
        const auto placed = r.placeOn({.x = 66.0, .y = 88.0, .angle = 4.0});
        r.add(Shape::circle({}, 9.0), raise(3.0).rounded(2.0, 2.0));
        periscope(r, 13.0, 8.0, 6.0);
    }
    // side doors
    for (const double side : {-1.0, 1.0}) {
        r.add(Shape::roundRect(side > 0 ? 128.0 : -136.0, -30.0, side > 0 ? 136.0 : -128.0, 22.0, 2.0),
              flat(176.0).rounded(2.0, 3.0));
    }
}

void engineDeck(Relief& r) {
    r.add(Shape::polygon({{-130, -84}, {130, -84}, {130, -220}, {104, -260}, {-104, -260}, {-130, -220}}),
          flat(Deck).rounded(1.6, 1.2));
    r.add(Shape::rect(-104.0, -276.0, 104.0, -258.0), slope({0, -258}, Deck, {0, -276}, 104.0));
    for (const double side : {-1.0, 1.0}) {
        panel(r, side > 0 ? 4.0 : -66.0, -228.0, side > 0 ? 66.0 : -4.0, -150.0, 1.6, 3.0);
        meshGrille(r, side > 0 ? 8.0 : -64.0, -138.0, side > 0 ? 64.0 : -8.0, -98.0, 4.4);
        rivets(r, {{side * 122, -92}, {side * 122, -216}}, 10.0, 1.5);
        for (const double y : {-104.0, -136.0}) {
            const auto placed = r.placeOn({.x = side * 98.0, .y = y});
            fillerCap(r, 7.5);
        }
        {
            // stowage boxes over the rear guards
            const auto placed = r.placeOn({.x = side * 102.0, .y = -196.0});
            stowageBox(r, 46.0, 58.0, 28.0);
        }
        {
            // air cleaners on both sides of the rear plate
            const auto placed = r.place({.x = side * 92.0, .y = -268.0, .z = 112.0});
            r.add(Shape::circle({}, 13.0), flat(34.0).rounded(4.0, 3.0));
            r.add(Shape::circle({}, 6.0), raise(3.0).rounded(3.0, 2.0));
        }
        const auto pipe = r.place({.x = side * 66.0, .y = -262.0, .angle = 180.0, .z = 104.0});
        exhaustPipe(r, 19.0, 6.0);
    }
    {
        const auto placed = r.placeOn({.x = 0.0, .y = -248.0, .angle = 1.0});
        canvasRoll(r, 128.0, 13.0, {.colour = hex(0x8B7C56)});
    }
    towCable(r, {{-60, -240}, {-40, -232}, {0, -234}, {40, -232}, {60, -240}}, 3.0);
    {
        const auto placed = r.placeOn({.x = 36.0, .y = -190.0, .angle = 96.0});
        shovel(r, 76.0);
    }
    for (const double y : {-178.0, -160.0}) {
        const auto placed = r.placeOn({.x = -36.0, .y = y, .angle = 2.0});
        jerrycan(r, {.colour = hex(0x9B8A5E), .gloss = 0.1});
    }
}

void drawHull(Relief& r) {
    runningGear(r);
    bow(r);
    engineDeck(r);
    superstructure(r);
    for (const double side : {-1.0, 1.0}) {
        const auto placed = r.placeOn({.x = side * 108.0, .y = 210.0});
        headlight(r, 8.0);
    }
}

void drawSponsonGun(Relief& r) {
    barrel(r, {{24.0, 12.0}, {46.0, 10.0}, {46.0, 8.4}, {128.0, 6.6}, {128.0, 7.4}, {140.0, 7.4}}, 20.0);
    muzzleBore(r, 140.0, 5.0, 20.0);
    r.add(Shape::symmetricSmooth({{0, 40}, {16, 36}, {24, 16}, {22, -8}, {0, -14}}),
          flat(40.0).rounded(20.0, 30.0).rough(0.7));
    r.add(Shape::rect(-10.0, 26.0, 10.0, 46.0), tube({0, 20}, {0, 46}, 12.0, 10.5, 22.0));
}

void drawTurret(Relief& r) {
    barrel(r, {{92.0, 7.6}, {110.0, 6.4}, {110.0, 4.8}, {196.0, 4.0}}, 34.0);
    muzzleBore(r, 196.0, 3.0, 34.0);
    {
        const auto placed = r.place({.x = -20.0, .z = 36.0});
        machineGunBarrel(r, 84.0, 104.0, 2.4, 0.0, true);
    }
    // cast, with a long bustle for the wireless
    r.add(Shape::symmetricSmooth(
              {{0, 78}, {36, 76}, {64, 52}, {78, 8}, {72, -40}, {58, -84}, {40, -104}, {0, -108}}),
          flat(68.0).rounded(22.0, 46.0).rough(0.9));
    r.add(Shape::roundRect(-34.0, 66.0, 34.0, 92.0, 10.0),
          tube({-1e4, 72}, {1e4, 72}, 20.0, 20.0, 32.0).rounded(6.0, 4.0).rough(0.6));
    r.add(Shape::roundRect(-12.0, 80.0, 12.0, 98.0, 6.0), tube({0, 76}, {0, 98}, 14.0, 9.0, 34.0));
    {
        const auto placed = r.placeOn({.x = 24.0, .y = -18.0});
        r.add(Shape::circle({}, 31.0), flat(5.0).rounded(5.0, 4.0));
        hatchSplit(r, 40.0, 40.0, 3.0);
    }
    {
        const auto placed = r.placeOn({.x = -30.0, .y = 26.0});
        r.add(Shape::circle({}, 9.0), raise(3.0).rounded(2.0, 2.0));
        periscope(r, 13.0, 8.0, 6.0);
    }
    {
        const auto placed = r.placeOn({.x = -16.0, .y = -58.0});
        ventDome(r, 10.0);
    }
    {
        const auto placed = r.placeOn({.x = -24.0, .y = -86.0});
        antennaBase(r);
    }
    {
        // smoke bomb thrower at the right
        const auto placed = r.place({.x = 56.0, .y = 38.0, .angle = 12.0, .z = 46.0});
        r.add(Shape::rect(-5.0, -12.0, 5.0, 16.0), tube({0, -12}, {0, 16}, 5.0, 5.0, 10.0).onlyHigher());
        r.add(Shape::ellipse({0, 15}, 3.6, 1.8), raise(-2.0), paints::Dark);
    }
    for (const auto& [x, y] : {std::array{-46.0, 46.0}, std::array{44.0, 50.0}, std::array{0.0, -92.0}}) {
        const auto placed = r.placeOn({.x = x, .y = y});
        liftingHook(r);
    }
    const auto placed = r.placeOn({.x = 20.0, .y = -84.0, .angle = 12.0});
    canvasRoll(r, 56.0, 9.0, {.colour = hex(0x8B7C56)});
}

void damageHull(Relief& r) {
    burnAll(r, 0.8, 0.8, 151);
    scorch(r, {0, -170}, 120.0, 1.0, 152);
    scorch(r, {90, 60}, 80.0, 0.85, 153);
    shellHole(r, {-70, 88}, 6.5);
    shellHole(r, {30, 170}, 6.5);
    openHatch(r, Shape::roundRect(63, 6, 109, 66, 4));
    openHatch(r, Shape::roundRect(4, -228, 66, -150, 3));
    brokenTrack(r, {-110, 226}, 12.0, 40.0, 5, 15.2);
    debris(r, {0, 0}, 140.0, 44, 154);
}

void damageGun(Relief& r) {
    burnAll(r, 0.9, 0.4, 155);
    shellHole(r, {-8, 14}, 4.5);
}

void damageTurret(Relief& r) {
    burnAll(r, 0.85, 0.5, 156);
    scorch(r, {24, -18}, 60.0, 0.9, 157);
    openHatch(r, Shape::roundRect(4, -38, 44, 2, 3));
    shellHole(r, {-38, 50}, 5.5);
    debris(r, {0, -10}, 70.0, 12, 158);
}

constexpr std::array<Sheet, 6> Sheets{
    {{.path = "Units/Vehicles/Hulls/British Grant Mk I hull.png",
      .width = 272,
      .height = 564,
      .draw = drawHull,
      .scheme = desertGrant},
     {.path = "Units/Vehicles/Destroyed/British Grant Mk I hull destroyed.png",
      .width = 272,
      .height = 564,
      .draw = drawHull,
      .damage = damageHull,
      .scheme = desertGrant},
     {.path = "Units/Vehicles/Turrets/British Grant Mk I hull gun.png",
      .width = 68,
      .height = 288,
      .draw = drawSponsonGun,
      .scheme = desertGrant,
      .how = Mounted},
     {.path = "Units/Vehicles/Destroyed/British Grant Mk I hull gun destroyed.png",
      .width = 68,
      .height = 288,
      .draw = drawSponsonGun,
      .damage = damageGun,
      .scheme = desertGrant,
      .how = Mounted},
     {.path = "Units/Vehicles/Turrets/British Grant Mk I turret.png",
      .width = 180,
      .height = 400,
      .draw = drawTurret,
      .scheme = desertGrant,
      .how = Mounted},
     {.path = "Units/Vehicles/Destroyed/British Grant Mk I turret destroyed.png",
      .width = 180,
      .height = 400,
      .draw = drawTurret,
      .damage = damageTurret,
      .scheme = desertGrant,
      .how = Mounted}}};

} // namespace

std::span<const Sheet> grantSheets() {
    return Sheets;
}

} // namespace artwork
