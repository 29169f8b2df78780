#include "catalogue.h"
#include "parts/armour.h"
#include "parts/fittings.h"
#include "parts/gear.h"
#include "parts/wreck.h"
#include "schemes.h"

#include <array>

namespace artwork {

namespace {

constexpr TrackStyle WaffleTrack{.pitch = 17.0, .bar = 0.6, .barRise = 2.0, .split = true};
constexpr double Roof = 158.0;
constexpr double Sponson = 96.0;

void runningGear(Relief& r) {
    r.add(Shape::rect(-96.0, -280.0, 96.0, 270.0), flat(46.0), paints::Dark);
    for (const double side : {-1.0, 1.0}) {
        track(r, side > 0 ? 97.0 : -147.0, side > 0 ? 147.0 : -97.0, -250.0, 258.0, 86.0, 33.0, WaffleTrack);
    }
}

void fenders(Relief& r) {
    for (const double side : {-1.0, 1.0}) {
        const double x0 = side > 0 ? 94.0 : -150.0;
        const double x1 = x0 + 56.0;
        r.add(Shape::rect(x0, -270.0, x1, 232.0), flat(Sponson).rounded(1.0, 0.8));
        r.add(Shape::roundRect(x0, 214.0, x1, 292.0, 8.0),
              tube({-1e4, 228}, {1e4, 228}, 66.0, 66.0, 31.0).rounded(1.5, 1.2));
        r.add(Shape::roundRect(x0, -292.0, x1, -250.0, 6.0),
              tube({-1e4, -250}, {1e4, -250}, 45.0, 45.0, 52.0).rounded(1.5, 1.2));
        for (const double y : {226.0, 250.0, 272.0}) {
            r.add(Shape::rect(x0 + 2.0, y, x1 - 2.0, y + 1.8), raise(1.0).rounded(0.8, 0.8));
        }
        bolts(r, {side * 147.0, -240.0}, {side * 147.0, 210.0}, 16, 1.2);
    }
}

void upperHull(Relief& r) {
    // sloped all round: the roof is narrow, the sides fall to the fenders
    const std::array<Vec2, 6> low{
        {{146, 206}, {146, -246}, {88, -290}, {-88, -290}, {-146, -246}, {-146, 206}}};
    const std::array<Vec2, 6> high{{{86, 138}, {82, -208}, {74, -236}, {-74, -236}, {-82, -208}, {-86, 138}}};
    for (std::size_t i = 0; i < 5; ++i) {
        r.add(Shape::polygon({low[i], low[i + 1], high[i + 1], high[i]}),
              i == 2 ? slope({0, -236}, Roof - 6.0, {0, -290}, 88.0)
                     : plane(low[i], Sponson, low[i + 1], i == 1 || i == 3 ? 92.0 : Sponson, high[i], Roof));
    }
    r.add(Shape::polygon({{146, 206}, {146, -246}, {82, -208}, {86, 138}}),
          plane({146, 206}, Sponson, {146, -246}, Sponson, {84, 0}, Roof));
    r.add(Shape::polygon({{-146, 206}, {-146, -246}, {-82, -208}, {-86, 138}}),
          plane({-146, 206}, Sponson, {-146, -246}, Sponson, {-84, 0}, Roof));
    r.add(Shape::polygon({{-86, 138}, {86, 138}, {82, -208}, {74, -236}, {-74, -236}, {-82, -208}}),
          flat(Roof).rounded(1.2, 0.8));
    // glacis
    r.add(Shape::polygon({{-86, 138}, {86, 138}, {146, 206}, {94, 282}, {-94, 282}, {-146, 206}}),
          slope({0, 138}, Roof, {0, 282}, 80.0));
    r.add(Shape::roundRect(-95.0, 276.0, 95.0, 290.0, 6.0), tube({-1e4, 280}, {1e4, 280}, 10.0, 10.0, 72.0));
    weld(r, {{-86, 138}, {86, 138}}, 2.6);
    for (const double side : {-1.0, 1.0}) {
        weld(r, {{side * 86, 138}, {side * 146, 206}}, 2.4);
        weld(r, {{side * 85, 136}, {side * 81, -208}}, 2.2);
        weld(r, {{side * 82, -208}, {side * 146, -246}}, 2.2);
    }
}

void glacisFittings(Relief& r) {
    {
        const auto placed = r.placeOn({.x = -32.0, .y = 178.0});
        r.add(Shape::roundRect(-32.0, -28.0, 32.0, 34.0, 4.0), raise(3.0).rounded(2.0, 1.6));
        gap(r, {{-31, -26}, {31, -26}, {31, 32}, {-31, 32}, {-31, -26}}, 1.0);
        for (const double x : {-18.0, 18.0}) {
            r.add(Shape::capsule({x - 6.0, -29.0}, {x + 6.0, -29.0}, 6.0), raise(3.0).rounded(3.0, 3.0));
            const auto scope = r.placeOn({.x = x, .y = -4.0});
            periscope(r, 15.0, 10.0, 7.0);
        }
    }
    r.add(Shape::circle({48.0, 205.0}, 17.0), raise(12.0).rounded(16.0, 14.0).rough(0.4));
    {
        const auto placed = r.placeOn({.x = -76.0, .y = 196.0});
        headlight(r, 9.0);
    }
    for (const double side : {-1.0, 1.0}) {
        const auto hook = r.placeOn({.x = side * 66.0, .y = 268.0});
        shackle(r);
    }
    for (const double x : {-78.0, 84.0}) {
        r.add(Shape::line({{x, 164.0}, {x + 2.0, 186.0}}, 2.2), raise(5.0).rounded(1.0, 1.0));
    }
    const auto placed = r.placeOn({.x = 8.0, .y = 252.0, .angle = 90.0});
    spareTrack(r, 20.0, 3, 17.0);
}

void deck(Relief& r) {
    turretRing(r, {0, 66}, 71.0, 30);
    weld(r, {{-82, -16}, {82, -16}}, 2.2);
    // engine cover with the radiator intakes along it
    panel(r, -38.0, -126.0, 38.0, -26.0, 5.0, 5.0);
    r.add(Shape::roundRect(-26.0, -112.0, 26.0, -42.0, 6.0), raise(4.0).rounded(5.0, 4.0));
    louvres(r, -20.0, -104.0, 20.0, -50.0, 7);
    for (const double side : {-1.0, 1.0}) {
        const double x0 = side > 0 ? 46.0 : -76.0;
        r.add(Shape::roundRect(x0, -128.0, x0 + 30.0, -24.0, 5.0), raise(4.0).rounded(4.0, 4.0));
        louvres(r, x0 + 6.0, -122.0, x0 + 24.0, -30.0, 10);
        const auto placed = r.placeOn({.x = side * 66.0, .y = -6.0});
        fillerCap(r, 7.0);
    }
    r.add(Shape::roundRect(-76.0, -216.0, 76.0, -140.0, 8.0), raise(6.0).rounded(7.0, 6.0));
    meshGrille(r, -64.0, -204.0, 64.0, -152.0, 4.4);
    bolts(r, {-70, -226}, {70, -226}, 11, 1.6);
    // rear plate: the round gearbox hatch and the exhausts
    {
        const auto placed = r.placeOn({.y = -262.0});
        r.add(Shape::ellipse({}, 30.0, 20.0), raise(4.0).rounded(4.0, 3.0));
        boltRing(r, {}, 16.0, 10, 1.5);
    }
    for (const double side : {-1.0, 1.0}) {
        const auto placed = r.placeOn({.x = side * 52.0, .y = -262.0, .angle = 180.0});
        r.add(Shape::roundRect(-11.0, -10.0, 11.0, 12.0, 8.0), raise(6.0).rounded(8.0, 6.0));
        exhaustPipe(r, 24.0, 7.0);
        const auto hook = r.placeOn({.x = side * 24.0, .y = 20.0, .angle = 0.0});
        shackle(r);
    }
}

void stowage(Relief& r) {
    for (const double side : {-1.0, 1.0}) {
        const auto placed = r.place({.x = side * 132.0, .y = -196.0, .z = Sponson});
        stowageBox(r, 30.0, 62.0, 26.0);
    }
    {
        const auto placed = r.place({.x = -136.0, .y = 60.0, .z = Sponson});
        r.add(Shape::roundRect(-7.0, -84.0, 7.0, 84.0, 2.0), flat(9.0).rounded(1.5, 1.2));
        bolts(r, {-4, -74}, {-4, 74}, 5, 1.2);
    }
    {
        const auto placed = r.place({.x = 136.0, .y = 120.0, .z = Sponson});
        stowageBox(r, 24.0, 78.0, 22.0);
    }
    for (int i = 0; i < 2; ++i) {
        const auto placed = r.place({.x = 136.0, .y = 36.0 - i * 60.0, .z = Sponson});
        spareTrack(r, 26.0, 3, 17.0);
    }
    towCable(r, {{-114, 196}, {-138, 150}, {-140, 20}, {-138, -120}, {-120, -150}}, 3.0);
    {
        const auto placed = r.placeOn({.x = 104.0, .y = -70.0, .angle = 2.0});
        canvasRoll(r, 18.0, 7.0);
    }
    // handrails for the riders
    for (const double side : {-1.0, 1.0}) {
        for (const double y : {-140.0, -60.0, 40.0}) {
            r.add(Shape::line(
                      {{side * 98, y - 22}, {side * 101, y - 18}, {side * 101, y + 18}, {side * 98, y + 22}},
                      2.0),
                  raise(6.0).rounded(1.0, 1.0));
        }
    }
}

void drawHull(Relief& r) {
    runningGear(r);
    fenders(r);
    upperHull(r);
    glacisFittings(r);
    deck(r);
    stowage(r);
}

void drawTurret(Relief& r) {
    barrel(r, {{96.0, 8.6}, {140.0, 7.6}, {140.0, 7.0}, {300.0, 6.0}, {300.0, 6.6}, {306.0, 6.6}}, 36.0);
    muzzleBore(r, 306.0, 4.6, 36.0);
    const std::array<Vec2, 8> low{
        {{32, 88}, {66, 74}, {94, 10}, {84, -62}, {52, -96}, {-52, -96}, {-84, -62}, {-94, 10}}};
    const std::array<Vec2, 8> high{
        {{26, 62}, {50, 54}, {66, 4}, {60, -48}, {40, -72}, {-40, -72}, {-60, -48}, {-66, 4}}};
    std::vector<Vec2> lower(low.begin(), low.end());
    std::vector<Vec2> upper(high.begin(), high.end());
    lower.push_back({-66, 74});
    upper.push_back({-50, 54});
    lower.push_back({-32, 88});
    upper.push_back({-26, 62});
    r.add(Shape::polygon(lower), flat(30.0).rounded(8.0, 26.0));
    frustum(r, lower, upper, 8.0, 68.0);
    for (std::size_t i = 0; i < lower.size(); ++i) {
        weld(r, {lerp(lower[i], upper[i], 0.06), upper[i]}, 2.0);
    }
    // gun housing with its rounded cover
    r.add(Shape::roundRect(-25.0, 60.0, 25.0, 100.0, 5.0), tube({-1e4, 74}, {1e4, 74}, 28.0, 28.0, 32.0));
    r.add(Shape::roundRect(-18.0, 84.0, 18.0, 112.0, 5.0), flat(52.0).rounded(7.0, 10.0));
    bolts(r, {-22, 66}, {22, 66}, 5, 1.5);
    bolts(r, {-15, 107}, {15, 107}, 4, 1.3);
    {
        const auto placed = r.place({.x = 24.0, .z = 40.0});
        machineGunBarrel(r, 98.0, 118.0, 2.4, 0.0, false);
    }
    // the single large hatch
    panel(r, -44.0, -62.0, 44.0, 4.0, 4.0, 8.0);
    r.add(Shape::roundRect(-36.0, -54.0, 36.0, -6.0, 6.0), raise(1.2).rounded(3.0, 1.2));
    for (const double x : {-24.0, 24.0}) {
        const auto placed = r.placeOn({.x = x, .y = 4.0});
        hinge(r, 16.0);
    }
    {
        const auto placed = r.placeOn({.y = -30.0});
        ventDome(r, 9.0);
    }
    for (const double side : {-1.0, 1.0}) {
        const auto placed = r.placeOn({.x = side * 30.0, .y = 34.0});
        r.add(Shape::circle({}, 10.0), raise(2.0).rounded(2.0, 1.6));
        periscope(r, 12.0, 10.0, 8.0);
        const auto hook = r.placeOn({.x = side * 26.0, .y = -42.0, .angle = side * 40.0});
        liftingHook(r);
        // vision slit and pistol port of the side wall
        r.add(Shape::roundRect(side > 0 ? 16.0 : -24.0, -32.0, side > 0 ? 24.0 : -16.0, -20.0, 2.0),
              raise(3.0).rounded(2.0, 2.0));
    }
}

void damageHull(Relief& r) {
    burnAll(r, 0.75, 0.8, 91);
    scorch(r, {0, -120}, 140.0, 0.95, 21);
    shellHole(r, {-40, 232}, 6.5);
    shellHole(r, {114, 40}, 7.0);
    furrow(r, {30, 258}, {44, 222}, 5.0);
    openHatch(r, Shape::roundRect(-62, 152, -2, 210, 4));
    openHatch(r, Shape::roundRect(-62, -202, 62, -154, 3));
    tornPlate(r, {122, 250}, 16.0, 26.0, 7);
    brokenTrack(r, {-122, 214}, 12.0, 48.0, 5, 17.0);
    debris(r, {0, 0}, 140.0, 40, 31);
}

void damageTurret(Relief& r) {
    burnAll(r, 0.85, 0.5, 97);
    scorch(r, {0, -30}, 70.0, 0.9, 26);
    openHatch(r, Shape::roundRect(-44, -62, 44, 4, 8));
    shellHole(r, {56, 34}, 6.0);
    furrow(r, {-60, 70}, {-46, 40}, 5.0);
    debris(r, {0, 0}, 70.0, 10, 33);
}

constexpr std::array<Sheet, 4> Sheets{
    {{.path = "Units/Vehicles/Hulls/Russian T-34 Model 1941 hull.png",
      .width = 300,
      .height = 592,
      .draw = drawHull,
      .scheme = sovietGreen},
     {.path = "Units/Vehicles/Destroyed/Russian T-34 Model 1941 hull destroyed.png",
      .width = 300,
      .height = 592,
      .draw = drawHull,
      .damage = damageHull,
      .scheme = sovietGreen},
     {.path = "Units/Vehicles/Turrets/Russian T-34 Model 1941 turret.png",
      .width = 204,
      .height = 620,
      .draw = drawTurret,
      .scheme = sovietGreen,
      .how = Mounted},
     {.path = "Units/Vehicles/Destroyed/Russian T-34 Model 1941 turret destroyed.png",
      .width = 204,
      .height = 620,
      .draw = drawTurret,
      .damage = damageTurret,
      .scheme = sovietGreen,
      .how = Mounted}}};

} // namespace

std::span<const Sheet> t34Sheets() {
    return Sheets;
}

} // namespace artwork
