#include "catalogue.h"
#include "guns/carriage.h"
#include "parts/armour.h"
#include "parts/fittings.h"
#include "parts/gear.h"
#include "profiles/side.h"
#include "schemes.h"

#include <array>

namespace artwork {

namespace {

/// A towed gun from its left: x from the wheel's centre, centimetres.
struct Towed {
    double bore = 90.0;    ///< height of the bore's axis
    double muzzle = 300.0; ///< from the wheel's centre
    double root = 9.0;     ///< radius of the barrel at the cradle
    double tip = 6.0;
    double brake = 0.0;   ///< length of the muzzle brake, none at 0
    double cone = 0.0;    ///< length of a flash hider
    double breech = 84.0; ///< how far it reaches back
    double wheel = 45.0;
    bool pneumatic = true;
    bool spoked = false;
    double trail = 320.0;
    double trailWidth = 13.0;
    double shieldTop = 120.0; ///< no shield at 0
    double shieldFoot = 40.0;
    double shieldFront = 36.0;
    double shieldLean = 28.0;
    bool recuperatorAbove = false;
};

void wheelOf(Relief& r, const Towed& gun) {
    const SideWheel wheel{0, gun.wheel, gun.wheel};
    if (gun.spoked) {
        const auto placed = r.place({.x = 0, .y = gun.wheel, .z = 16});
        r.add(Shape::ring({}, gun.wheel * 0.84, gun.wheel), flat(2.0).rounded(2.0, 2.0), paints::Steel);
        for (int i = 0; i < 12; ++i) {
            r.add(Shape::capsule({}, bearing(i * 30.0) * (gun.wheel * 0.9), 3.4), flat(1.0).rounded(1.6, 1.6),
                  paints::DarkWood);
        }
        r.add(Shape::circle({}, gun.wheel * 0.22), flat(8.0).rounded(4.0, 5.0), paints::Steel);
    } else if (gun.pneumatic) {
        tyre(r, wheel, gun.wheel * 0.56);
    } else {
        roadWheel(r, wheel, WheelStyle::Rubber);
    }
}

void shieldOf(Relief& r, const Towed& gun) {
    const double back = -gun.shieldFront + gun.shieldLean;
    r.add(Shape::polygon({{-gun.shieldFront - 3, gun.shieldFoot},
                          {-gun.shieldFront + 3, gun.shieldFoot},
                          {back + 3, gun.shieldTop},
                          {back - 3, gun.shieldTop}}),
          flat(26.0).rounded(1.2, 1.2));
    // the bent wing towards the beholder
    r.add(Shape::polygon({{-gun.shieldFront + 2, gun.shieldFoot + 8},
                          {-gun.shieldFront + 24, gun.shieldFoot + 12},
                          {back + 24, gun.shieldTop - 8},
                          {back + 2, gun.shieldTop - 2}}),
          flat(24.0).rounded(1.2, 1.2));
    rivets(r, {{-gun.shieldFront + 7, gun.shieldFoot + 14}, {back + 8, gun.shieldTop - 8}}, 10.0, 1.4);
}

void towed(Relief& r, const Towed& gun) {
    // trail, spade
    r.add(Shape::polygon({{0, gun.wheel + 4},
                          {0, gun.wheel + 4 + gun.trailWidth},
                          {gun.trail - 8, 16},
                          {gun.trail - 8, 16 - gun.trailWidth * 0.8}}),
          flat(4.0).rounded(gun.trailWidth * 0.5, gun.trailWidth * 0.4));
    r.add(
        Shape::polygon({{gun.trail - 14, 20}, {gun.trail + 6, 22}, {gun.trail + 2, -2}, {gun.trail - 20, 2}}),
        flat(10.0).rounded(2.0, 2.0));
    r.add(Shape::capsule({gun.trail - 34, 18}, {gun.trail - 24, 34}, 4.0), flat(8.0).rounded(2.0, 2.0),
          paints::Steel);
    {
        const auto lain = r.place(pointingForward(0, gun.bore, 0.0));
        barrel(r,
               {{-30.0, gun.root + 1.0},
                {gun.muzzle * 0.22, gun.root},
                {gun.muzzle * 0.22, gun.root * 0.88},
                {gun.muzzle - gun.brake - gun.cone, gun.tip}},
               0.0);
        if (gun.brake > 0.0) {
            muzzleBrake(r, gun.muzzle, gun.brake, gun.tip * 1.9, 0.0);
        }
        if (gun.cone > 0.0) {
            barrel(r, {{gun.muzzle - gun.cone, gun.tip}, {gun.muzzle, gun.tip * 2.1}}, 0.0,
                   paints::DarkSteel);
        }
        if (gun.recuperatorAbove) {
            const auto above = r.place({.x = gun.root * 1.9});
            barrel(r, {{-30.0, 6.0}, {gun.muzzle * 0.3, 6.0}}, 0.0);
        }
        // cradle below the barrel
        r.add(Shape::roundRect(-gun.root * 2.3, -gun.breech * 0.5, -gun.root * 0.4, gun.muzzle * 0.32, 4.0),
              flat(8.0).rounded(5.0, 5.0));
        r.add(Shape::roundRect(-gun.root * 1.5, -gun.breech, gun.root * 1.5, -gun.breech * 0.45, 2.0),
              flat(10.0).rounded(3.0, 3.0), paints::Steel);
    }
    r.add(Shape::polygon({{-22, gun.wheel - 6},
                          {-14, gun.bore - gun.root * 2.0},
                          {22, gun.bore - gun.root * 2.0},
                          {30, gun.wheel - 6}}),
          flat(6.0).rounded(3.0, 3.0));
    {
        const auto placed = r.place({.x = 24, .y = gun.bore - gun.root, .z = 16});
        handwheel(r, gun.wheel * 0.24);
    }
    if (gun.shieldTop > 0.0) {
        shieldOf(r, gun);
    }
    wheelOf(r, gun);
}

/// The frame of a profile: the wheel's centre so many centimetres from the middle, the ground near the lower
/// edge.
Pose standing(double x, double pixelsPerCm) {
    return {.x = x, .y = -(80.0 - 8.0) / pixelsPerCm};
}

void pak40(Relief& r) {
    const auto placed = r.place(standing(0, 0.6));
    towed(r, {.bore = 98,
              .muzzle = 315,
              .root = 9.6,
              .tip = 6.4,
              .brake = 46,
              .breech = 90,
              .wheel = 49,
              .pneumatic = false,
              .trail = 318,
              .trailWidth = 15,
              .shieldTop = 126,
              .shieldFoot = 40,
              .shieldFront = 42,
              .shieldLean = 30});
}

void sixPounder(Relief& r) {
    const auto placed = r.place(standing(0, 0.72));
    towed(r, {.bore = 80,
              .muzzle = 245,
              .root = 7.8,
              .tip = 4.9,
              .breech = 74,
              .wheel = 39,
              .trail = 258,
              .trailWidth = 14,
              .shieldTop = 112,
              .shieldFoot = 44,
              .shieldFront = 34,
              .shieldLean = 16});
    const auto lain = r.place(pointingForward(0, 80, 0.0));
    barrel(r, {{226.0, 7.6}, {245.0, 7.4}}, 0.0);
}

void zis3(Relief& r) {
    const auto placed = r.place(standing(-4, 0.6));
    towed(r, {.bore = 96,
              .muzzle = 300,
              .root = 9.0,
              .tip = 6.2,
              .brake = 40,
              .breech = 84,
              .wheel = 45,
              .trail = 326,
              .trailWidth = 14,
              .shieldTop = 128,
              .shieldFoot = 42,
              .shieldFront = 40,
              .shieldLean = 34,
              .recuperatorAbove = true});
}

void m42(Relief& r) {
    const auto placed = r.place(standing(6, 0.7));
    towed(r, {.bore = 72,
              .muzzle = 270,
              .root = 5.8,
              .tip = 3.6,
              .breech = 62,
              .wheel = 40,
              .pneumatic = false,
              .spoked = true,
              .trail = 248,
              .trailWidth = 11,
              .shieldTop = 100,
              .shieldFoot = 34,
              .shieldFront = 30,
              .shieldLean = 18});
}

void m3(Relief& r) {
    const auto placed = r.place(standing(-20, 0.82));
    towed(r, {.bore = 70,
              .muzzle = 185,
              .root = 5.4,
              .tip = 3.4,
              .breech = 54,
              .wheel = 35,
              .trail = 228,
              .trailWidth = 11,
              .shieldTop = 94,
              .shieldFoot = 40,
              .shieldFront = 26,
              .shieldLean = 14});
}

void hotchkiss(Relief& r) {
    const auto placed = r.place(standing(0, 0.88));
    towed(r, {.bore = 60,
              .muzzle = 200,
              .root = 4.4,
              .tip = 2.8,
              .cone = 22,
              .breech = 50,
              .wheel = 44,
              .pneumatic = false,
              .spoked = true,
              .trail = 208,
              .trailWidth = 9,
              .shieldTop = 92,
              .shieldFoot = 30,
              .shieldFront = 26,
              .shieldLean = 14});
}

void breda47(Relief& r) {
    const auto placed = r.place(standing(-26, 1.0));
    towed(r, {.bore = 56,
              .muzzle = 135,
              .root = 5.8,
              .tip = 4.4,
              .breech = 56,
              .wheel = 32,
              .pneumatic = false,
              .trail = 198,
              .trailWidth = 10,
              .shieldTop = 0});
}

void type92(Relief& r) {
    const auto placed = r.place(standing(-42, 1.25));
    towed(r, {.bore = 58,
              .muzzle = 62,
              .root = 7.4,
              .tip = 6.6,
              .breech = 44,
              .wheel = 35,
              .pneumatic = false,
              .trail = 158,
              .trailWidth = 10,
              .shieldTop = 78,
              .shieldFoot = 36,
              .shieldFront = 24,
              .shieldLean = 12});
}

void flak36(Relief& r) {
    const auto placed = r.place(standing(50, 0.52));
    // platform with the jacks at its ends
    r.add(Shape::polygon(
              {{-290, 12}, {-290, 26}, {-60, 44}, {60, 44}, {290, 26}, {290, 12}, {60, 18}, {-60, 18}}),
          flat(4.0).rounded(2.0, 2.0));
    for (const double x : {-278.0, 278.0}) {
        r.add(Shape::roundRect(x - 14, 0, x + 14, 34, 4), flat(10.0).rounded(4.0, 4.0));
        r.add(Shape::rect(x - 20, -2, x + 20, 5), flat(8.0), paints::Steel);
    }
    r.add(Shape::roundRect(-14, 0, 20, 30, 3), flat(22.0).rounded(4.0, 4.0));
    r.add(Shape::polygon({{-40, 42}, {-26, 120}, {26, 120}, {40, 42}}), flat(12.0).rounded(5.0, 5.0));
    r.add(Shape::roundRect(-34, 104, 42, 150, 5), flat(16.0).rounded(4.0, 4.0));
    {
        const auto lain = r.place(pointingForward(10, 152, 4.0, 14.0));
        barrel(r,
               {{-76.0, 15.0},
                {30.0, 14.0},
                {30.0, 12.5},
                {170.0, 11.0},
                {170.0, 9.6},
                {392.0, 7.0},
                {392.0, 8.4},
                {400.0, 8.4}},
               0.0);
        r.add(Shape::roundRect(-30.0, -60.0, -12.0, 120.0, 4.0), flat(8.0).rounded(5.0, 5.0));
        const auto above = r.place({.x = 23.0});
        barrel(r, {{-20.0, 8.5}, {112.0, 8.5}, {112.0, 6.5}, {124.0, 6.5}}, 0.0);
        r.add(Shape::roundRect(-40.0, -112.0, -6.0, -72.0, 3.0), flat(10.0).rounded(4.0, 4.0), paints::Steel);
    }
    // shield, its wing, the layers' places
    r.add(Shape::polygon({{-62, 66}, {-56, 66}, {-40, 196}, {-46, 196}}), flat(26.0).rounded(1.2, 1.2));
    r.add(Shape::polygon({{-58, 76}, {-26, 80}, {-14, 182}, {-42, 190}}), flat(24.0).rounded(1.2, 1.2));
    rivets(r, {{-50, 84}, {-38, 184}}, 12.0, 1.6);
    {
        const auto wheel = r.place({.x = 18, .y = 122, .z = 24});
        handwheel(r, 15.0);
    }
    r.add(Shape::roundRect(52, 84, 82, 92, 3), flat(24.0).rounded(2.0, 2.0), paints::Leather);
    r.add(Shape::line({{66, 84}, {44, 60}}, 4.0), flat(20.0), paints::Steel);
}

void mortar(Relief& r, const Paint& metal) {
    r.add(Shape::polygon({{22, 2}, {26, 12}, {84, 6}, {84, -2}}), flat(8.0).rounded(2.0, 2.0), metal);
    for (const double x : {36.0, 52.0, 68.0}) {
        r.add(Shape::polygon({{x, -4}, {x + 8, -4}, {x + 6, 4}, {x + 2, 4}}), flat(6.0), metal);
    }
    {
        const auto tubeFrame = r.place({.x = 48, .y = 12, .angle = -30.0, .z = 10});
        barrel(r, {{0.0, 6.5}, {122.0, 6.5}, {122.0, 7.4}, {130.0, 7.4}}, 0.0, paints::Steel);
        r.add(Shape::roundRect(-10, 78, 10, 92, 3), flat(9.0).rounded(3.0, 3.0), metal);
        r.add(Shape::roundRect(8, 74, 16, 92, 2), flat(9.0).rounded(2.0, 2.0), paints::DarkSteel);
    }
    // bipod
    r.add(Shape::capsule({0, 88}, {-38, 0}, 5.0), tube({0, 88}, {-38, 0}, 2.5, 2.5, 8.0), metal);
    r.add(Shape::capsule({2, 88}, {-14, 2}, 5.0), tube({2, 88}, {-14, 2}, 2.5, 2.5, 14.0), metal);
    r.add(Shape::capsule({-27, 30}, {-9, 30}, 1.8), flat(12.0), paints::Steel);
    for (const double x : {-38.0, -14.0}) {
        r.add(Shape::rect(x - 6, -3, x + 6, 2), flat(14.0), paints::Steel);
    }
    r.add(Shape::capsule({-6, 86}, {12, 84}, 3.0), flat(18.0), paints::Steel);
    // bombs set ready
    for (int i = 0; i < 3; ++i) {
        const auto bomb = r.place({.x = 112.0 + i * 15, .y = 0, .z = 6});
        r.add(Shape::smooth({{-4, 8}, {-5, 20}, {0, 34}, {5, 20}, {4, 8}}), flat(6.0).rounded(4.5, 5.0),
              {.colour = hex(0x5B5A3C), .gloss = 0.2});
        r.add(Shape::rect(-4.5, 0, 4.5, 8), flat(4.0).rounded(1.0, 1.0), paints::Steel);
        r.add(Shape::circle({0, 34}, 1.8), flat(7.0).rounded(1.5, 1.5), paints::Brass);
    }
}

void threeInch(Relief& r) {
    const auto placed = r.place(standing(-26, 0.95));
    mortar(r, paints::Hull);
}

void grw34(Relief& r) {
    const auto placed = r.place(standing(-26, 0.95));
    mortar(r, {.colour = hex(0x53575A), .gloss = 0.15});
}

void maxim(Relief& r) {
    const auto placed = r.place(standing(-10, 1.5));
    r.add(Shape::line({{4, 24}, {60, 30}, {88, 14}}, 5.0), flat(4.0).rounded(2.5, 2.5));
    r.add(Shape::polygon({{-10, 20}, {-6, 46}, {22, 46}, {26, 24}}), flat(8.0).rounded(3.0, 3.0));
    {
        const auto gun = r.place(pointingForward(0, 58, 4.0));
        barrel(r, {{8.0, 6.6}, {62.0, 6.6}, {65.0, 5.0}, {65.0, 2.4}, {75.0, 3.4}}, 0.0);
        for (double y = 12.0; y < 60.0; y += 3.6) {
            r.add(Shape::rect(-6.8, y, 6.8, y + 1.4), raise(-0.8));
        }
        r.add(Shape::roundRect(-8, -38, 8, 10, 1.5), flat(8.0).rounded(1.5, 1.5), paints::Steel);
        r.add(Shape::line({{-4, -38}, {-5, -50}, {4, -50}, {4, -38}}, 3.0), flat(8.0).rounded(1.5, 1.5),
              paints::DarkWood);
        r.add(Shape::circle({9, 0}, 3.0), flat(8.0).rounded(2.0, 2.0), paints::Brass);
    }
    r.add(Shape::polygon({{-28, 32}, {-24, 32}, {-14, 84}, {-18, 84}}), flat(22.0).rounded(1.2, 1.2));
    r.add(Shape::polygon({{-26, 36}, {-10, 40}, {-4, 74}, {-16, 80}}), flat(20.0).rounded(1.2, 1.2));
    // wheel
    const auto wheel = r.place({.x = 2, .y = 20, .z = 24});
    r.add(Shape::ring({}, 16.0, 20.0), flat(2.0).rounded(2.0, 2.0), paints::Steel);
    for (int i = 0; i < 10; ++i) {
        r.add(Shape::capsule({}, bearing(i * 36.0) * 17.5, 2.2), flat(1.0).rounded(1.0, 1.0), paints::Steel);
    }
    r.add(Shape::circle({}, 5.0), flat(6.0).rounded(3.0, 3.0), paints::Steel);
}

void m40(Relief& r) {
    const auto placed = r.place(standing(10, 0.9));
    r.add(Shape::capsule({-14, 62}, {-66, 16}, 7.0), tube({-14, 62}, {-66, 16}, 3.5, 3.0, 4.0));
    r.add(Shape::capsule({20, 62}, {64, 4}, 7.0), tube({20, 62}, {64, 4}, 3.5, 3.0, 8.0));
    r.add(Shape::rect(56, -3, 74, 4), flat(9.0), paints::Steel);
    tyre(r, {-72, 17, 17}, 9.0, 8.0);
    r.add(Shape::polygon({{-18, 58}, {-12, 92}, {20, 92}, {28, 58}}), flat(12.0).rounded(4.0, 4.0));
    {
        const auto wheel = r.place({.x = 20, .y = 70, .z = 22});
        handwheel(r, 11.0);
    }
    const auto gun = r.place(pointingForward(0, 96, 8.0, 3.0));
    barrel(r, {{-44.0, 8.0}, {196.0, 7.0}, {196.0, 7.6}, {210.0, 7.6}}, 0.0);
    barrel(r, {{-112.0, 10.0}, {-92.0, 12.0}, {-52.0, 12.0}, {-44.0, 9.0}}, 0.0);
    for (double y = -104.0; y < -50.0; y += 5.0) {
        for (const double x : {-5.0, 1.0, 7.0}) {
            r.stain(Shape::circle({x, y}, 1.2), hex(0x161512), 0.8);
        }
    }
    barrel(r, {{-130.0, 13.5}, {-112.0, 9.5}}, 0.0, paints::Steel);
    const auto spotting = r.place({.x = 15.0});
    barrel(r, {{-40.0, 3.4}, {30.0, 3.2}, {30.0, 2.2}, {112.0, 2.0}}, 0.0, paints::DarkSteel);
    for (const double y : {-22.0, 24.0, 86.0}) {
        r.add(Shape::rect(-18, y, 2, y + 5), flat(3.0), paints::Steel);
    }
}

void ags17(Relief& r) {
    const auto placed = r.place(standing(-4, 1.7));
    r.add(Shape::capsule({-4, 34}, {-44, 2}, 5.0), tube({-4, 34}, {-44, 2}, 2.5, 2.2, 2.0));
    r.add(Shape::capsule({6, 34}, {42, 2}, 5.0), tube({6, 34}, {42, 2}, 2.5, 2.2, 8.0));
    for (const double x : {-44.0, 42.0}) {
        r.add(Shape::circle({x, 2}, 4.0), flat(10.0).rounded(2.0, 2.0));
    }
    r.add(Shape::polygon({{-10, 30}, {-8, 44}, {14, 44}, {14, 30}}), flat(10.0).rounded(3.0, 3.0));
    const auto gun = r.place(pointingForward(0, 54, 6.0, 6.0));
    barrel(r, {{18.0, 4.0}, {44.0, 3.8}, {44.0, 4.6}, {48.0, 4.6}}, 0.0, paints::Steel);
    for (double y = 21.0; y < 42.0; y += 3.0) {
        r.add(Shape::rect(-4.2, y, 4.2, y + 1.2), raise(-0.8), paints::DarkSteel);
    }
    r.add(Shape::roundRect(-8, -40, 9, 18, 3), flat(6.0).rounded(2.5, 2.5), paints::DarkSteel);
    r.add(Shape::roundRect(9, -14, 16, 2, 2), flat(6.0).rounded(2.0, 2.0), paints::DarkSteel);
    r.add(Shape::line({{-6, -40}, {-8, -52}}, 4.0), flat(8.0).rounded(2.0, 2.0), paints::Rubber);
    // drum
    const auto drum = r.place({.x = -6.0, .y = -2.0, .z = 14.0});
    r.add(Shape::circle({}, 14.0), flat(2.0).rounded(3.0, 3.0));
    r.add(Shape::ring({}, 8.0, 11.0), raise(-0.8).rounded(1.0, -0.6));
    r.add(Shape::circle({}, 4.0), raise(1.6).rounded(2.0, 1.6), paints::Steel);
}

constexpr Sheet side(std::string_view path, double pixelsPerCm, void (*draw)(Relief&),
                     const Scheme& (*scheme)()) {
    return {.path = path,
            .width = 400,
            .height = 160,
            .pixelsPerCm = pixelsPerCm,
            .draw = draw,
            .scheme = scheme,
            .how = Sideways};
}

constexpr std::array<Sheet, 14> Sheets{
    side("Units/Profile-Pak40.png", 0.6, pak40, germanYellow),
    side("Units/Profile-6pdr.png", 0.72, sixPounder, britishGreen),
    side("Units/Profile-ZiS3.png", 0.6, zis3, sovietGreen),
    side("Units/Profile-M42 45mm.png", 0.7, m42, sovietGreen),
    side("Units/Profile-37mm M3.png", 0.82, m3, oliveDrab),
    side("Units/Profile-Flak36.png", 0.52, flak36, germanYellow),
    side("Units/Profile-Hotchkiss 25.png", 0.88, hotchkiss, frenchGreyGreen),
    side("Units/Profile-47mm M35.png", 1.0, breda47, italianGreyGreen),
    side("Units/Profile-Type92 70mm.png", 1.25, type92, japaneseKhaki),
    side("Units/Profile-3in mortar.png", 0.95, threeInch, britishGreen),
    side("Units/Profile-GrW34.png", 0.95, grw34, panzerGrey),
    side("Units/Profile-Maxim M1910.png", 1.5, maxim, sovietGreen),
    side("Units/Profile-M40 recoilless.png", 0.9, m40, oliveDrab),
    side("Units/Profile-AGS17.png", 1.7, ags17, sovietGreen)};

} // namespace

std::span<const Sheet> gunProfiles() {
    return Sheets;
}

} // namespace artwork
