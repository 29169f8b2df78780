#include "catalogue.h"
#include "parts/armour.h"
#include "parts/fittings.h"
#include "parts/gear.h"
#include "schemes.h"

#include <array>

namespace artwork {

namespace {

/// A machine gun in the ball of a hull front; `radius` of the ball, `reach` of the muzzle beyond its centre.
void ballMount(Relief& r, double radius, double reach, double barrelRadius, bool jacket) {
    {
        const auto placed = r.place({.z = 12.0});
        machineGunBarrel(r, radius * 0.5, reach, barrelRadius, 0.0, jacket);
    }
    r.add(Shape::circle({}, radius), flat(22.0).rounded(radius * 0.95, 18.0).rough(0.3));
    r.add(Shape::circle({0, radius * 0.55}, barrelRadius * 2.2), raise(2.0).rounded(2.0, 2.0), paints::Steel);
}

void bowMg34(Relief& r) {
    ballMount(r, 12.0, 48.0, 2.4, true);
}

void bowDt(Relief& r) {
    ballMount(r, 13.0, 46.0, 3.4, false);
}

void bowBrowning(Relief& r) {
    ballMount(r, 13.0, 50.0, 2.6, true);
}

void bowType97(Relief& r) {
    ballMount(r, 14.0, 44.0, 3.0, true);
}

void bowBreda(Relief& r) {
    for (const double x : {-8.5, 8.5}) {
        const auto placed = r.place({.x = x, .z = 12.0});
        machineGunBarrel(r, 8.0, 50.0, 2.6, 0.0, false);
    }
    r.add(Shape::ellipse({}, 22.0, 15.0), flat(24.0).rounded(14.0, 20.0));
    boltRing(r, {}, 11.0, 8, 1.2);
}

void mg34Body(Relief& r, double z) {
    const auto placed = r.place({.z = z});
    machineGunBarrel(r, 14.0, 76.0, 2.4, 0.0, true);
    r.add(Shape::roundRect(-3.2, -26.0, 3.2, 16.0, 1.5), flat(3.0).rounded(2.0, 2.0), paints::DarkSteel);
    r.add(Shape::polygon({{-2.4, -26}, {2.4, -26}, {4.2, -50}, {-4.2, -50}}), flat(3.0).rounded(2.0, 2.0),
          paints::DarkSteel);
    // saddle drum at the left of the feed
    r.add(Shape::roundRect(-15.0, -10.0, -3.0, 8.0, 5.0), flat(2.0).rounded(4.0, 3.0), paints::Steel);
    r.add(Shape::capsule({0, 30}, {0, 36}, 7.0), raise(0.6), paints::DarkSteel);
}

void roofShield(Relief& r) {
    // two plates in a blunt wedge ahead of the hatch
    for (const double side : {-1.0, 1.0}) {
        plate(r, {{0, 34}, {side * 34, 16}, {side * 34, 10}}, 18.0, 18.0, 24.0);
        r.add(Shape::polygon({{0, 34}, {side * 34, 17}, {side * 33, 8}, {0, 24}}),
              plane({0, 34}, 6.0, {side * 34, 17}, 6.0, {0, 24}, 32.0));
        bolts(r, {side * 8, 26}, {side * 28, 15}, 3, 1.3);
    }
    r.add(Shape::rect(-5.0, 22.0, 5.0, 36.0), flat(12.0), paints::Dark);
    mg34Body(r, 24.0);
}

void frontShield(Relief& r) {
    r.add(Shape::polygon({{-44, 4}, {-12, 18}, {12, 18}, {44, 4}, {42, -2}, {10, 10}, {-10, 10}, {-42, -2}}),
          flat(30.0).rounded(2.4, 6.0));
    bolts(r, {-36, 5}, {-14, 14}, 3, 1.2);
    bolts(r, {36, 5}, {14, 14}, 3, 1.2);
    r.add(Shape::rect(-5.0, 8.0, 5.0, 20.0), flat(16.0), paints::Dark);
    r.add(Shape::capsule({0, -18}, {0, 10}, 5.0), flat(16.0).rounded(2.5, 2.5), paints::Steel);
    mg34Body(r, 26.0);
}

void swivelArm(Relief& r) {
    r.add(Shape::line({{0, -24}, {10, -12}, {0, 0}}, 3.6), flat(16.0).rounded(1.8, 1.8), paints::Steel);
    r.add(Shape::circle({0, -24}, 5.0), flat(18.0).rounded(3.0, 3.0), paints::Steel);
    mg34Body(r, 22.0);
}

constexpr std::array<Sheet, 8> Sheets{{{.path = "Units/Vehicles/Turrets/Bow MG34 ball mount.png",
                                        .width = 36,
                                        .height = 104,
                                        .draw = bowMg34,
                                        .scheme = germanThreeTone,
                                        .how = Mounted},
                                       {.path = "Units/Vehicles/Turrets/Bow DT ball mount.png",
                                        .width = 38,
                                        .height = 100,
                                        .draw = bowDt,
                                        .scheme = sovietGreen,
                                        .how = Mounted},
                                       {.path = "Units/Vehicles/Turrets/Bow M1919A4 ball mount.png",
                                        .width = 38,
                                        .height = 108,
                                        .draw = bowBrowning,
                                        .scheme = oliveDrab,
                                        .how = Mounted},
                                       {.path = "Units/Vehicles/Turrets/Type 97 ball mount.png",
                                        .width = 40,
                                        .height = 96,
                                        .draw = bowType97,
                                        .scheme = japaneseStripes,
                                        .how = Mounted},
                                       {.path = "Units/Vehicles/Turrets/Twin Breda M38 ball mount.png",
                                        .width = 56,
                                        .height = 108,
                                        .draw = bowBreda,
                                        .scheme = italianDesert,
                                        .how = Mounted},
                                       {.path = "Units/Vehicles/Turrets/MG34 with roof shield.png",
                                        .width = 84,
                                        .height = 164,
                                        .draw = roofShield,
                                        .scheme = germanWinter,
                                        .how = Mounted},
                                       {.path = "Units/Vehicles/Turrets/MG34 with front shield.png",
                                        .width = 104,
                                        .height = 164,
                                        .draw = frontShield,
                                        .scheme = panzerGrey,
                                        .how = Mounted},
                                       {.path = "Units/Vehicles/Turrets/MG34 on swivel arm.png",
                                        .width = 48,
                                        .height = 164,
                                        .draw = swivelArm,
                                        .scheme = panzerGrey,
                                        .how = Mounted}}};

} // namespace

std::span<const Sheet> mountSheets() {
    return Sheets;
}

} // namespace artwork
