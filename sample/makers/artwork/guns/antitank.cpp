#include "catalogue.h"
#include "guns/carriage.h"
#include "parts/fittings.h"
#include "parts/gear.h"
#include "schemes.h"

#include <array>

namespace artwork {

namespace {

void pak40Base(Relief& r) {
    splitTrails(r, {.hinge = 24, .start = -12, .reach = 320, .spread = 15.5, .width = 15, .z = 44});
    axle(r, 84.0, 0.0, 46.0);
    for (const double side : {-1.0, 1.0}) {
        gunWheel(r, side * 94.0, 0.0, 49.0, 15.0, GunWheel::Disc);
    }
    // two spaced plates, the wings bent back
    shieldPlate(r, {{-100, 26}, {-52, 44}, {52, 44}, {100, 26}}, {{-98, 6}, {-50, 22}, {50, 22}, {98, 6}},
                70.0, 122.0);
    shieldPlate(r, {{-96, 34}, {-52, 50}, {52, 50}, {96, 34}}, {{-94, 16}, {-50, 30}, {50, 30}, {94, 16}},
                66.0, 116.0);
    for (const double side : {-1.0, 1.0}) {
        r.add(Shape::rect(side * 44 - 3, 18, side * 44 + 3, 30), flat(116.0).rounded(1.0, 1.0));
    }
    const auto placed = r.place({.x = -34.0, .y = -16.0, .angle = 20.0, .z = 84.0});
    handwheel(r, 11.0);
}

void pak40Gun(Relief& r) {
    cradle(r, -52.0, 112.0, 30.0, 96.0);
    breech(r, -90.0, -50.0, 27.0, 100.0);
    barrel(r, {{-52.0, 10.5}, {60.0, 9.6}, {60.0, 8.6}, {270.0, 6.2}}, 106.0);
    muzzleBrake(r, 315.0, 46.0, 12.0, 106.0);
    r.add(Shape::rect(-13.0, 24.0, 13.0, 44.0), raise(1.6).rounded(1.0, 1.0));
    const auto sight = r.place({.x = -21.0, .y = -12.0, .z = 112.0});
    r.add(Shape::roundRect(-4.0, -9.0, 4.0, 12.0, 2.0), flat(10.0).rounded(2.0, 2.0), paints::Steel);
    r.add(Shape::rect(-2.4, 9.0, 2.4, 12.0), flat(8.0), paints::Glass);
}

void sixPounderBase(Relief& r) {
    splitTrails(
        r, {.hinge = 20, .start = -10, .reach = 260, .spread = 15.0, .width = 14, .z = 40, .tubular = true});
    axle(r, 74.0, 0.0, 40.0);
    for (const double side : {-1.0, 1.0}) {
        gunWheel(r, side * 86.0, 0.0, 39.0, 20.0, GunWheel::Pneumatic);
    }
    shieldPlate(r, {{-74, 30}, {74, 30}}, {{-74, 16}, {74, 16}}, 52.0, 112.0);
    for (const double side : {-1.0, 1.0}) {
        shieldPlate(r, {{side * 74, 30}, {side * 92, 16}}, {{side * 74, 16}, {side * 90, 4}}, 62.0, 108.0);
    }
    r.add(Shape::rect(-12, 14, 12, 34), flat(70.0), paints::Dark);
}

void sixPounderGun(Relief& r) {
    cradle(r, -40.0, 86.0, 24.0, 80.0);
    breech(r, -74.0, -38.0, 22.0, 82.0);
    barrel(r, {{-40.0, 8.5}, {40.0, 7.8}, {40.0, 7.0}, {226.0, 4.8}}, 88.0);
    barrel(r, {{226.0, 7.6}, {245.0, 7.4}}, 88.0);
    bolts(r, {0, 230}, {0, 240}, 2, 1.2);
    const auto sight = r.place({.x = -17.0, .y = -20.0, .z = 94.0});
    r.add(Shape::roundRect(-3.0, -14.0, 3.0, 10.0, 1.5), flat(6.0).rounded(2.0, 2.0), paints::Steel);
    // the layer's shoulder piece
    r.add(Shape::line({{-14, -44}, {-26, -52}, {-26, -66}}, 5.0), flat(92.0).rounded(2.5, 2.5),
          paints::Leather);
}

void zis3Base(Relief& r) {
    splitTrails(r, {.hinge = 20, .start = -10, .reach = 330, .spread = 14.0, .width = 14, .z = 42});
    axle(r, 72.0, 0.0, 44.0);
    for (const double side : {-1.0, 1.0}) {
        gunWheel(r, side * 84.0, 0.0, 45.0, 22.0, GunWheel::Pneumatic);
    }
    shieldPlate(r, {{-82, 34}, {-30, 36}, {30, 36}, {82, 34}}, {{-78, 4}, {-30, 8}, {30, 8}, {78, 4}}, 58.0,
                120.0);
    r.add(Shape::roundRect(-18, 2, 18, 38, 3), flat(64.0), paints::Dark);
    for (const double side : {-1.0, 1.0}) {
        const auto placed = r.place({.x = side * 36.0, .y = -22.0, .z = 60.0});
        r.add(Shape::roundRect(-10.0, -8.0, 10.0, 8.0, 5.0), flat(4.0).rounded(4.0, 3.0), paints::Steel);
    }
}

void zis3Gun(Relief& r) {
    cradle(r, -40.0, 92.0, 26.0, 92.0);
    breech(r, -84.0, -40.0, 26.0, 96.0);
    barrel(r, {{-42.0, 9.5}, {50.0, 8.8}, {50.0, 8.0}, {264.0, 6.0}}, 104.0);
    // recuperator above the barrel
    barrel(r, {{-36.0, 6.5}, {96.0, 6.5}}, 118.0);
    muzzleBrake(r, 300.0, 40.0, 12.0, 104.0);
    const auto sight = r.place({.x = -20.0, .y = -14.0, .z = 112.0});
    r.add(Shape::roundRect(-4.0, -8.0, 4.0, 8.0, 2.0), flat(14.0).rounded(2.0, 2.0), paints::Steel);
}

void m42Base(Relief& r) {
    splitTrails(r, {.hinge = 16, .start = -8, .reach = 250, .spread = 13.5, .width = 11, .z = 34});
    axle(r, 58.0, 0.0, 38.0);
    for (const double side : {-1.0, 1.0}) {
        gunWheel(r, side * 68.0, 0.0, 40.0, 10.0, GunWheel::Spoked);
    }
    shieldPlate(r, {{-58, 28}, {58, 28}}, {{-56, 10}, {56, 10}}, 46.0, 96.0);
    shieldPlate(r, {{-58, 28}, {-70, 20}}, {{-56, 10}, {-66, 4}}, 50.0, 90.0);
    shieldPlate(r, {{58, 28}, {70, 20}}, {{56, 10}, {66, 4}}, 50.0, 90.0);
    r.add(Shape::rect(-10, 8, 10, 30), flat(56.0), paints::Dark);
}

void m42Gun(Relief& r) {
    cradle(r, -30.0, 70.0, 18.0, 66.0);
    breech(r, -62.0, -28.0, 17.0, 70.0);
    barrel(r, {{-30.0, 6.2}, {44.0, 5.8}, {44.0, 5.2}, {262.0, 3.4}, {262.0, 4.0}, {270.0, 4.0}}, 74.0);
    muzzleBore(r, 270.0, 2.6, 74.0);
    const auto sight = r.place({.x = -13.0, .y = -10.0, .z = 80.0});
    r.add(Shape::roundRect(-3.0, -10.0, 3.0, 8.0, 1.5), flat(5.0).rounded(2.0, 2.0), paints::Steel);
}

void m3Base(Relief& r) {
    splitTrails(
        r, {.hinge = 16, .start = -8, .reach = 230, .spread = 15.0, .width = 11, .z = 34, .tubular = false});
    axle(r, 60.0, 0.0, 34.0);
    for (const double side : {-1.0, 1.0}) {
        gunWheel(r, side * 72.0, 0.0, 35.0, 16.0, GunWheel::Pneumatic);
    }
    shieldPlate(r, {{-50, 24}, {50, 24}}, {{-48, 10}, {48, 10}}, 46.0, 92.0);
    r.add(Shape::rect(-9, 8, 9, 27), flat(56.0), paints::Dark);
}

void m3Gun(Relief& r) {
    cradle(r, -26.0, 64.0, 17.0, 64.0);
    breech(r, -54.0, -24.0, 16.0, 66.0);
    barrel(r, {{-26.0, 5.8}, {36.0, 5.2}, {36.0, 4.6}, {185.0, 3.2}}, 70.0);
    muzzleBore(r, 185.0, 2.4, 70.0);
    const auto sight = r.place({.x = -12.0, .y = -8.0, .z = 76.0});
    r.add(Shape::roundRect(-2.6, -10.0, 2.6, 8.0, 1.5), flat(5.0).rounded(2.0, 2.0), paints::Steel);
}

void hotchkissBase(Relief& r) {
    splitTrails(
        r, {.hinge = 14, .start = -6, .reach = 210, .spread = 15.0, .width = 9, .z = 34, .tubular = true});
    axle(r, 54.0, 0.0, 40.0);
    for (const double side : {-1.0, 1.0}) {
        gunWheel(r, side * 64.0, 0.0, 44.0, 9.0, GunWheel::Spoked);
    }
    // the upper edge is cut in waves, to break its outline
    shieldPlate(r, {{-54, 24}, {-36, 24}, {-18, 24}, {0, 24}, {18, 24}, {36, 24}, {54, 24}},
                {{-52, 12}, {-36, 6}, {-18, 13}, {0, 7}, {18, 13}, {36, 6}, {52, 12}}, 42.0, 86.0);
    r.add(Shape::rect(-8, 6, 8, 27), flat(50.0), paints::Dark);
}

void hotchkissGun(Relief& r) {
    cradle(r, -22.0, 60.0, 14.0, 58.0);
    breech(r, -50.0, -20.0, 13.0, 60.0);
    barrel(r, {{-22.0, 4.6}, {36.0, 4.2}, {36.0, 3.6}, {178.0, 2.6}}, 62.0);
    barrel(r, {{178.0, 2.8}, {200.0, 5.8}}, 62.0, paints::DarkSteel);
    const auto sight = r.place({.x = -11.0, .y = -8.0, .z = 68.0});
    r.add(Shape::roundRect(-2.4, -10.0, 2.4, 8.0, 1.2), flat(5.0).rounded(2.0, 2.0), paints::Steel);
}

void breda47Base(Relief& r) {
    splitTrails(
        r, {.hinge = 14, .start = -6, .reach = 200, .spread = 17.0, .width = 10, .z = 28, .tubular = true});
    axle(r, 48.0, 0.0, 30.0);
    for (const double side : {-1.0, 1.0}) {
        gunWheel(r, side * 58.0, 0.0, 32.0, 9.0, GunWheel::Disc);
    }
    r.add(Shape::roundRect(-18, -14, 18, 20, 5), flat(46.0).rounded(4.0, 4.0));
    const auto placed = r.place({.x = -22.0, .y = -12.0, .z = 48.0});
    handwheel(r, 9.0);
}

void breda47Gun(Relief& r) {
    cradle(r, -28.0, 68.0, 17.0, 52.0);
    breech(r, -56.0, -26.0, 17.0, 54.0);
    barrel(r, {{-28.0, 6.2}, {52.0, 5.6}, {52.0, 5.0}, {128.0, 4.2}, {128.0, 4.8}, {135.0, 4.8}}, 58.0);
    muzzleBore(r, 135.0, 3.0, 58.0);
}

void type92Base(Relief& r) {
    splitTrails(
        r, {.hinge = 12, .start = -6, .reach = 160, .spread = 14.0, .width = 10, .z = 28, .tubular = false});
    axle(r, 40.0, 0.0, 34.0);
    for (const double side : {-1.0, 1.0}) {
        gunWheel(r, side * 48.0, 0.0, 35.0, 8.0, GunWheel::Perforated);
    }
    shieldPlate(r, {{-36, 20}, {36, 20}}, {{-35, 8}, {35, 8}}, 40.0, 74.0);
    r.add(Shape::rect(-11, 6, 11, 23), flat(46.0), paints::Dark);
}

void type92Gun(Relief& r) {
    cradle(r, -26.0, 34.0, 19.0, 52.0);
    breech(r, -44.0, -22.0, 20.0, 54.0);
    barrel(r, {{-24.0, 7.6}, {20.0, 7.2}, {20.0, 6.6}, {54.0, 6.0}, {54.0, 6.8}, {60.0, 6.8}}, 60.0);
    muzzleBore(r, 60.0, 4.4, 60.0);
}

constexpr Sheet base(std::string_view path, int w, int h, void (*draw)(Relief&), const Scheme& (*scheme)()) {
    return {.path = path, .width = w, .height = h, .draw = draw, .scheme = scheme, .how = Mounted};
}

constexpr std::array<Sheet, 16> Sheets{
    base("Units/Image-Pak40 base.png", 260, 680, pak40Base, germanYellow),
    base("Units/Image-Pak40 gun.png", 60, 680, pak40Gun, germanYellow),
    base("Units/Image-6pdr base.png", 230, 560, sixPounderBase, britishGreen),
    base("Units/Image-6pdr gun.png", 50, 560, sixPounderGun, britishGreen),
    base("Units/Image-ZiS3 base.png", 250, 680, zis3Base, sovietGreen),
    base("Units/Image-ZiS3 gun.png", 60, 680, zis3Gun, sovietGreen),
    base("Units/Image-M42 45mm base.png", 180, 560, m42Base, sovietGreen),
    base("Units/Image-M42 45mm gun.png", 40, 560, m42Gun, sovietGreen),
    base("Units/Image-37mm M3 base.png", 200, 480, m3Base, oliveDrab),
    base("Units/Image-37mm M3 gun.png", 40, 480, m3Gun, oliveDrab),
    base("Units/Image-Hotchkiss 25 base.png", 180, 480, hotchkissBase, frenchGreyGreen),
    base("Units/Image-Hotchkiss 25 gun.png", 40, 480, hotchkissGun, frenchGreyGreen),
    base("Units/Image-47mm M35 base.png", 180, 460, breda47Base, italianGreyGreen),
    base("Units/Image-47mm M35 gun.png", 40, 460, breda47Gun, italianGreyGreen),
    base("Units/Image-Type92 70mm base.png", 140, 340, type92Base, japaneseKhaki),
    base("Units/Image-Type92 70mm gun.png", 40, 340, type92Gun, japaneseKhaki)};

} // namespace

std::span<const Sheet> antiTankSheets() {
    return Sheets;
}

} // namespace artwork
