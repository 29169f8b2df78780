#include "catalogue.h"
#include "guns/carriage.h"
#include "parts/armour.h"
#include "parts/fittings.h"
#include "parts/gear.h"
#include "schemes.h"

#include <array>

namespace artwork {

namespace {

/// A girder of the platform from the middle outwards, with the jack at its end.
void platformArm(Relief& r, double angle, double reach, double width) {
    const auto placed = r.place({.angle = angle});
    const double w = width / 2.0;
    r.add(Shape::polygon({{-w, 20}, {w, 20}, {w * 0.72, reach}, {-w * 0.72, reach}}),
          slope({0, 20}, 34.0, {0, reach}, 22.0).rounded(1.6, 1.4));
    for (const double x : {-w * 0.6, w * 0.6}) {
        r.add(Shape::capsule({x, 60}, {x * 0.8, reach - 20}, 3.0), raise(1.6).rounded(1.5, 1.4));
    }
    for (double y = 70.0; y < reach - 20.0; y += 34.0) {
        r.add(Shape::rect(-w * 0.7, y, w * 0.7, y + 3.0), raise(1.0).rounded(1.0, 0.8));
    }
    r.add(Shape::circle({0, reach - 12.0}, w * 0.92), flat(26.0).rounded(4.0, 4.0));
    r.add(Shape::circle({0, reach - 12.0}, w * 0.42), raise(6.0).rounded(3.0, 3.0), paints::Steel);
    r.add(Shape::capsule({-w * 0.8, reach - 12.0}, {w * 0.8, reach - 12.0}, 2.6),
          raise(2.0).rounded(1.3, 1.3), paints::Steel);
}

void flak36Base(Relief& r) {
    platformArm(r, 0.0, 290.0, 44.0);
    platformArm(r, 180.0, 290.0, 44.0);
    platformArm(r, 90.0, 250.0, 32.0);
    platformArm(r, 270.0, 250.0, 32.0);
    r.add(Shape::roundRect(-54, -74, 54, 74, 12), flat(40.0).rounded(4.0, 4.0));
    boltRing(r, {}, 46.0, 20, 2.0);
    r.add(Shape::circle({}, 40.0), flat(62.0).rounded(10.0, 12.0));
    r.add(Shape::circle({}, 26.0), flat(70.0).rounded(6.0, 6.0));
    for (const double side : {-1.0, 1.0}) {
        r.add(Shape::capsule({side * 30, 54}, {side * 70, 120}, 5.0), flat(32.0).rounded(2.5, 2.5),
              paints::Steel);
    }
}

void flak36Gun(Relief& r) {
    // shield with its sloped wings
    shieldPlate(r, {{-82, 36}, {-58, 66}, {58, 66}, {82, 36}}, {{-80, 20}, {-56, 48}, {56, 48}, {80, 20}},
                90.0, 170.0);
    r.add(Shape::rect(-17, 44, 17, 68), flat(110.0), paints::Dark);
    cradle(r, -70.0, 120.0, 34.0, 128.0);
    barrel(r,
           {{-76.0, 15.0},
            {30.0, 14.0},
            {30.0, 12.5},
            {170.0, 11.0},
            {170.0, 9.6},
            {392.0, 7.0},
            {392.0, 8.4},
            {400.0, 8.4}},
           142.0);
    muzzleBore(r, 400.0, 4.6, 142.0);
    barrel(r, {{-20.0, 8.5}, {112.0, 8.5}, {112.0, 6.5}, {124.0, 6.5}}, 166.0);
    breech(r, -110.0, -72.0, 34.0, 140.0);
    for (const double side : {-1.0, 1.0}) {
        // seats and wheels of the layers
        const auto placed = r.place({.x = side * 52.0, .y = -34.0, .z = 96.0});
        r.add(Shape::roundRect(-12, -11, 12, 11, 6), flat(5.0).rounded(4.0, 3.0), paints::Leather);
        r.add(Shape::capsule({0, 10}, {-side * 22.0, 28}, 4.0), flat(2.0).rounded(2.0, 2.0), paints::Steel);
        const auto wheel = r.place({.x = -side * 4.0, .y = 34.0, .z = 18.0});
        handwheel(r, 12.0);
    }
    const auto tray = r.place({.x = 34.0, .y = -84.0, .z = 130.0});
    r.add(Shape::roundRect(-10, -26, 10, 26, 4), flat(4.0).rounded(2.0, 2.0), paints::Steel);
}

void mortarBase(Relief& r, double plateWidth, double plateLength, const Paint& plate) {
    const auto placed = r.place({.y = -40.0});
    r.add(Shape::roundRect(-plateWidth / 2, -plateLength / 2, plateWidth / 2, plateLength / 2, 5.0),
          flat(7.0).rounded(2.0, 2.0), plate);
    for (double x = -plateWidth / 2 + 7.0; x < plateWidth / 2 - 3.0; x += 9.0) {
        r.add(Shape::capsule({x, -plateLength / 2 + 5}, {x, plateLength / 2 - 5}, 3.0),
              raise(2.0).rounded(1.5, 1.5), plate);
    }
    r.add(Shape::circle({0, 4.0}, 8.0), raise(4.0).rounded(4.0, 3.0), plate);
    for (const double side : {-1.0, 1.0}) {
        r.add(Shape::capsule({side * 5.0, 64.0}, {side * 34.0, 92.0}, 4.6),
              slope({0, 64}, 62.0, {0, 92}, 6.0), plate);
        r.add(Shape::circle({side * 34.0, 92.0}, 5.5), flat(6.0).rounded(3.0, 3.0), plate);
    }
    r.add(Shape::line({{-34, 92}, {0, 84}, {34, 92}}, 1.4), flat(10.0), paints::Steel);
    r.add(Shape::capsule({-14, 64}, {14, 64}, 4.0), flat(66.0).rounded(2.0, 2.0), paints::Steel);
}

void mortarTube(Relief& r, double radius, double muzzle) {
    for (double y = -38.0; y < muzzle; y += 2.0) {
        // the tube stands at seventy degrees: each slice lies higher than the one behind
        const double z = lerp(10.0, 92.0, (y + 38.0) / (muzzle + 38.0));
        r.add(Shape::rect(-radius * 1.05, y, radius * 1.05, y + 2.4),
              tube({0, y - 5}, {0, y + 5}, radius, radius, z), paints::Steel);
    }
    r.add(Shape::ellipse({0, muzzle}, radius * 1.15, radius * 0.72), flat(100.0).rounded(1.0, 1.0),
          paints::Steel);
    r.add(Shape::ellipse({0, muzzle}, radius * 0.86, radius * 0.5), flat(80.0), paints::Dark);
    const auto sight = r.place({.x = -radius - 6.0, .y = 22.0, .z = 70.0});
    r.add(Shape::roundRect(-3.5, -6, 3.5, 6, 2), flat(8.0).rounded(2.0, 2.0), paints::DarkSteel);
}

constexpr Paint DarkGreyPaint{.colour = hex(0x53575A), .gloss = 0.15};

void threeInchBase(Relief& r) {
    mortarBase(r, 44.0, 40.0, paints::Hull);
}

void threeInchTube(Relief& r) {
    mortarTube(r, 6.4, 60.0);
}

void grw34Base(Relief& r) {
    mortarBase(r, 54.0, 36.0, DarkGreyPaint);
}

void grw34Tube(Relief& r) {
    mortarTube(r, 6.6, 54.0);
}

void maximBase(Relief& r) {
    for (const double side : {-1.0, 1.0}) {
        const auto placed = r.place({.x = side * 27.0, .y = 2.0});
        r.add(Shape::roundRect(-3.5, -20, 3.5, 20, 2), tube({-1e4, 0}, {1e4, 0}, 20.0, 20.0, 20.0),
              paints::Steel);
        r.add(Shape::rect(-5.0, -4, 5.0, 4), flat(24.0).rounded(2.0, 2.0), paints::Steel);
    }
    r.add(Shape::rect(-26, -2, 26, 6), tube({-26, 2}, {26, 2}, 4.0, 4.0, 22.0));
    // towing arc
    r.add(Shape::line({{-16, 0}, {-15, -60}, {-8, -84}, {8, -84}, {15, -60}, {16, 0}}, 5.0),
          flat(26.0).rounded(2.5, 2.5));
    r.add(Shape::circle({0, -14}, 17.0), flat(34.0).rounded(3.0, 3.0));
    r.add(Shape::circle({0, -14}, 10.0), flat(42.0).rounded(3.0, 3.0), paints::Steel);
    shieldPlate(r, {{-27, 24}, {0, 28}, {27, 24}}, {{-26, 14}, {0, 17}, {26, 14}}, 38.0, 70.0);
    r.add(Shape::rect(-7, 13, 7, 30), flat(44.0), paints::Dark);
}

void maximGun(Relief& r) {
    barrel(r, {{8.0, 6.6}, {64.0, 6.6}, {66.0, 5.0}}, 54.0);
    for (double y = 12.0; y < 62.0; y += 3.6) {
        r.add(Shape::rect(-6.8, y, 6.8, y + 1.4), raise(-0.8));
    }
    barrel(r, {{66.0, 2.6}, {75.0, 3.2}}, 54.0, paints::DarkSteel);
    r.add(Shape::roundRect(-6, -36, 6, 10, 1.5), flat(62.0).rounded(1.5, 1.5), paints::Steel);
    r.add(Shape::circle({-2, 20}, 3.4), raise(2.0).rounded(2.0, 2.0), paints::Brass);
    for (const double x : {-8.0, 8.0}) {
        r.add(Shape::capsule({x, -38}, {x, -48}, 4.0), flat(60.0).rounded(2.0, 2.0), paints::DarkWood);
    }
    r.add(Shape::rect(-9, -38, 9, -35), flat(60.0), paints::Steel);
    // cloth belt to the right
    r.add(Shape::line({{6, -2}, {12, -3}, {18, -6}}, 7.0), flat(54.0).rounded(1.5, 1.5),
          {.colour = hex(0xA39A7A)});
    for (double x = 7.0; x < 19.0; x += 2.4) {
        r.add(Shape::capsule({x, -6}, {x, 0}, 1.3), raise(1.2), paints::Brass);
    }
    r.add(Shape::roundRect(6, -20, 12, -8, 1.5), flat(58.0).rounded(1.0, 1.0), paints::DarkSteel);
}

void m40Base(Relief& r) {
    const auto leg = [&](Vec2 to) {
        r.add(Shape::capsule({0, 0}, to, 7.0), tube({0, 0}, to, 3.5, 3.0, 24.0));
        r.add(Shape::circle(to, 6.0), flat(16.0).rounded(3.0, 3.0));
    };
    leg({-66, -82});
    leg({66, -82});
    leg({0, 80});
    const auto wheel = r.place({.y = 88.0});
    r.add(Shape::roundRect(-5, -18, 5, 18, 4), tube({-1e4, 0}, {1e4, 0}, 18.0, 18.0, 18.0).rounded(2.5, 3.0),
          paints::Rubber);
    r.add(Shape::rect(-9, -3, 9, 3), flat(22.0).rounded(1.5, 1.5), paints::Steel);
    const auto middle = r.place({.y = -88.0});
    r.add(Shape::circle({}, 22.0), flat(44.0).rounded(6.0, 6.0));
    r.add(Shape::circle({}, 12.0), flat(56.0).rounded(4.0, 4.0), paints::Steel);
    const auto hand = r.place({.x = -30.0, .y = -14.0, .z = 50.0});
    handwheel(r, 11.0);
}

void m40Gun(Relief& r) {
    barrel(r, {{-92.0, 8.6}, {196.0, 7.2}, {196.0, 7.8}, {210.0, 7.8}}, 80.0);
    muzzleBore(r, 210.0, 6.0, 80.0);
    // perforated chamber and the vents behind
    barrel(r, {{-112.0, 10.5}, {-92.0, 12.0}, {-52.0, 12.0}, {-44.0, 9.0}}, 80.0);
    barrel(r, {{-130.0, 13.5}, {-112.0, 9.5}}, 80.0, paints::Steel);
    for (const double x : {-6.0, 6.0}) {
        r.add(Shape::ellipse({x, -122.0}, 2.6, 5.0), raise(-5.0), paints::Dark);
    }
    // the spotting rifle above
    barrel(r, {{-40.0, 3.2}, {30.0, 3.0}, {30.0, 2.0}, {112.0, 1.8}}, 94.0, paints::DarkSteel);
    for (const double y : {-22.0, 24.0, 86.0}) {
        r.add(Shape::rect(-9, y, 9, y + 5), raise(1.0).rounded(1.0, 1.0), paints::Steel);
    }
    const auto sight = r.place({.x = -15.0, .y = -20.0, .z = 92.0});
    r.add(Shape::roundRect(-4, -14, 4, 10, 2), flat(8.0).rounded(2.0, 2.0), paints::DarkSteel);
}

void ags17Base(Relief& r) {
    for (const Vec2 to : {Vec2{-36, -38}, Vec2{36, -38}, Vec2{0, 42}}) {
        r.add(Shape::capsule({0, -4}, to, 6.0), tube({0, -4}, to, 3.0, 2.6, 18.0));
        r.add(Shape::circle(to, 5.0), flat(10.0).rounded(3.0, 3.0));
    }
    r.add(Shape::circle({0, -4}, 13.0), flat(30.0).rounded(4.0, 4.0));
}

void ags17Gun(Relief& r) {
    r.add(Shape::roundRect(-8, -40, 8, 18, 3), flat(44.0).rounded(2.5, 2.5), paints::DarkSteel);
    barrel(r, {{18.0, 4.0}, {44.0, 3.6}, {44.0, 4.4}, {48.0, 4.4}}, 38.0, paints::Steel);
    for (double y = 21.0; y < 42.0; y += 3.0) {
        r.add(Shape::rect(-4.2, y, 4.2, y + 1.2), raise(-0.8), paints::DarkSteel);
    }
    // drum at the right
    r.add(Shape::circle({15.0, -4.0}, 9.5), flat(46.0).rounded(3.0, 3.0));
    r.add(Shape::circle({15.0, -4.0}, 4.0), raise(1.4).rounded(2.0, 1.4), paints::Steel);
    for (const double x : {-6.0, 6.0}) {
        r.add(Shape::capsule({x, -42}, {x, -52}, 4.0), flat(40.0).rounded(2.0, 2.0), paints::Rubber);
    }
    r.add(Shape::roundRect(-15, -24, -9, -8, 2), flat(52.0).rounded(2.0, 2.0), paints::DarkSteel);
}

constexpr Sheet part(std::string_view path, int w, int h, void (*draw)(Relief&), const Scheme& (*scheme)()) {
    return {.path = path, .width = w, .height = h, .draw = draw, .scheme = scheme, .how = Mounted};
}

constexpr std::array<Sheet, 12> Sheets{
    part("Units/Image-Flak36 base.png", 600, 600, flak36Base, germanYellow),
    part("Units/Image-Flak36 gun.png", 170, 860, flak36Gun, germanYellow),
    part("Units/Image-3in mortar base.png", 90, 130, threeInchBase, britishGreen),
    part("Units/Image-3in mortar gun.png", 40, 150, threeInchTube, britishGreen),
    part("Units/Image-GrW34 base.png", 90, 130, grw34Base, panzerGrey),
    part("Units/Image-GrW34 gun.png", 40, 140, grw34Tube, panzerGrey),
    part("Units/Image-Maxim M1910 base.png", 80, 200, maximBase, sovietGreen),
    part("Units/Image-Maxim M1910 gun.png", 40, 200, maximGun, sovietGreen),
    part("Units/Image-M40 recoilless base.png", 170, 220, m40Base, oliveDrab),
    part("Units/Image-M40 recoilless gun.png", 50, 440, m40Gun, oliveDrab),
    part("Units/Image-AGS17 base.png", 90, 100, ags17Base, sovietGreen),
    part("Units/Image-AGS17 gun.png", 50, 110, ags17Gun, sovietGreen)};

} // namespace

std::span<const Sheet> supportSheets() {
    return Sheets;
}

} // namespace artwork
