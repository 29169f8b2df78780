#include "catalogue.h"
#include "parts/armour.h"
#include "parts/fittings.h"
#include "parts/gear.h"
#include "profiles/side.h"
#include "schemes.h"

#include <array>

namespace artwork {

namespace {

constexpr Rgb Mud = hex(0x7A6A4E);

Pose ground(double x) {
    return {.x = x, .y = -166.0};
}

void m1340Turret(Relief& r) {
    r.add(Shape::roundRect(-110, 166, -86, 206, 8), flat(10.0).rounded(8.0, 8.0));
    r.add(Shape::polygon({{-96, 152}, {-82, 216}, {30, 216}, {46, 152}}),
          slope({0, 152}, 26.0, {0, 216}, 6.0).rounded(2.0, 2.0));
    rivets(r, {{-88, 158}, {40, 158}}, 10.0, 1.6);
    rivets(r, {{-78, 210}, {26, 210}}, 10.0, 1.6);
    r.add(Shape::circle({-22, 184}, 9.0), raise(3.0).rounded(3.0, 3.0));
    r.add(Shape::roundRect(-42, 215, 16, 224, 3), flat(10.0).rounded(3.0, 3.0));
    r.stain(Shape::rect(8, 172, 30, 186), hex(0x9A2A26), 0.8);
    r.stain(Shape::rect(18, 172, 20, 186), hex(0xE0DDD0), 0.8);
    aerial(r, {48, 146}, 120.0, 0.2);
    splashMud(r, -240, 230, 60.0, hex(0xA8926A));
}

void m1340(Relief& r) {
    const auto placed = r.place(ground(0.0));
    const SideWheel drive{-202, 62, 32};
    const SideWheel idler{198, 50, 30};
    std::vector<SideWheel> wheels;
    for (const double x : {-128.0, -76.0, -10.0, 42.0}) {
        wheels.push_back({x - 13, 24, 20});
        wheels.push_back({x + 17, 24, 20});
    }
    wheels.push_back({100, 24, 20});
    const auto rollers = wheelRow(3, -110, 120, 84, 10);
    std::vector<SideWheel> all(wheels);
    all.insert(all.end(), rollers.begin(), rollers.end());
    all.insert(all.end(), {drive, idler});
    trackBelt(r, all, 6.0, 11.0);
    sprocket(r, drive, 19);
    roadWheel(r, idler, WheelStyle::Spoked, 8.0);
    for (const SideWheel& wheel : rollers) {
        roadWheel(r, wheel, WheelStyle::Rubber, 6.0);
    }
    for (const SideWheel& wheel : wheels) {
        roadWheel(r, wheel, WheelStyle::Rubber);
    }
    for (const double x : {-100.0, 18.0}) {
        r.add(
            Shape::polygon(
                {{x - 56, 30}, {x - 4, 70}, {x + 4, 70}, {x + 56, 30}, {x + 46, 28}, {x, 58}, {x - 46, 28}}),
            flat(26.0).rounded(3.0, 3.0));
    }
    r.add(Shape::smooth({{-182, 94}, {-226, 92}, {-244, 70}, {-236, 46}, {-196, 40}}),
          flat(-4.0).rounded(12.0, 12.0));
    sprocket(r, drive, 19);
    sidePlate(r,
              {{-190, 92}, {-132, 112}, {-120, 148}, {58, 148}, {64, 128}, {186, 126}, {226, 98}, {214, 88}},
              14.0);
    r.add(Shape::polygon({{-210, 82}, {-186, 96}, {206, 96}, {216, 84}, {206, 90}, {-184, 90}}),
          flat(28.0).rounded(1.2, 1.2));
    rivets(r, {{-114, 142}, {52, 142}}, 11.0, 1.6);
    rivets(r, {{-126, 102}, {60, 102}}, 11.0, 1.6);
    rivets(r, {{70, 120}, {182, 118}}, 11.0, 1.6);
    r.add(Shape::roundRect(-76, 104, -24, 142, 3), raise(3.0).rounded(2.0, 2.0));
    r.add(Shape::roundRect(-60, 124, -40, 132, 2), raise(2.0).rounded(2.0, 2.0));
    louvres(r, 84, 102, 140, 120, 7, false);
    r.add(Shape::roundRect(74, 96, 152, 114, 8), flat(34.0).rounded(8.0, 8.0), paints::Rust);
    r.add(Shape::capsule({150, 106}, {172, 104}, 6.0), flat(34.0).rounded(3.0, 3.0), paints::Rust);
    {
        const auto guns = r.place(pointingForward(-118, 130, -4.0));
        machineGunBarrel(r, 8.0, 50.0, 3.2, 0.0, false);
    }
    r.add(Shape::circle({-124, 130}, 14.0), flat(4.0).rounded(12.0, 12.0));
    {
        const auto gun = r.place(pointingForward(-26, 186, 2.0));
        barrel(r, {{70.0, 8.0}, {98.0, 6.4}, {98.0, 5.2}, {170.0, 4.2}, {170.0, 4.8}, {178.0, 4.8}}, 0.0);
    }
    m1340Turret(r);
}

void haGo(Relief& r) {
    const auto placed = r.place(ground(0.0));
    const SideWheel drive{-184, 66, 30};
    const SideWheel idler{182, 48, 28};
    const std::array<SideWheel, 4> wheels{{{-112, 32, 28}, {-44, 32, 28}, {40, 32, 28}, {108, 32, 28}}};
    const std::array<SideWheel, 2> rollers{{{-80, 82, 9}, {76, 80, 9}}};
    std::vector<SideWheel> all(wheels.begin(), wheels.end());
    all.insert(all.end(), rollers.begin(), rollers.end());
    all.insert(all.end(), {drive, idler});
    trackBelt(r, all, 5.0, 10.0);
    sprocket(r, drive, 16);
    roadWheel(r, idler, WheelStyle::Spoked, 8.0);
    for (const SideWheel& wheel : rollers) {
        roadWheel(r, wheel, WheelStyle::Disc, 8.0);
    }
    for (const SideWheel& wheel : wheels) {
        roadWheel(r, wheel, WheelStyle::Bogie);
    }
    // bell cranks and the long horizontal spring
    r.add(Shape::capsule({-64, 62}, {62, 62}, 10.0), flat(24.0).rounded(5.0, 5.0));
    for (const double x : {-78.0, 74.0}) {
        r.add(Shape::polygon(
                  {{x - 40, 30}, {x, 70}, {x + 8, 62}, {x + 40, 30}, {x + 30, 28}, {x, 50}, {x - 30, 28}}),
              flat(26.0).rounded(3.0, 3.0));
    }
    sidePlate(r, {{-214, 76}, {-186, 92}, {-118, 98}, {-118, 84}, {206, 84}, {196, 60}, {-206, 56}}, 0.0);
    r.add(Shape::polygon({{-196, 84}, {-184, 96}, {192, 94}, {196, 84}}), flat(26.0).rounded(1.2, 1.2));
    r.add(Shape::smooth({{-120, 94}, {-112, 118}, {-92, 124}, {48, 124}, {62, 112}, {64, 94}}),
          flat(24.0).rounded(16.0, 14.0));
    sidePlate(r, {{60, 92}, {60, 112}, {150, 112}, {200, 76}, {190, 70}, {140, 92}}, 4.0);
    rivets(r, {{-106, 102}, {52, 102}}, 11.0, 1.6);
    rivets(r, {{-100, 118}, {46, 118}}, 11.0, 1.6);
    rivets(r, {{-206, 70}, {-190, 86}}, 9.0, 1.6);
    rivets(r, {{68, 106}, {146, 106}}, 10.0, 1.6);
    {
        const auto gun = r.place(pointingForward(-118, 112, 12.0));
        machineGunBarrel(r, 6.0, 44.0, 3.6, 0.0, true);
    }
    r.add(Shape::circle({-116, 112}, 13.0), flat(16.0).rounded(12.0, 12.0));
    r.add(Shape::circle({-198, 100}, 9.0), flat(10.0).rounded(8.0, 8.0));
    {
        const auto gun = r.place(pointingForward(-20, 154, 2.0));
        barrel(r, {{50.0, 6.5}, {78.0, 5.2}, {78.0, 4.4}, {148.0, 3.6}}, 0.0);
    }
    r.add(Shape::roundRect(-88, 140, -70, 170, 5), flat(8.0).rounded(5.0, 5.0));
    r.add(Shape::polygon({{-80, 126}, {-70, 184}, {32, 184}, {42, 126}}), flat(26.0).rounded(24.0, 16.0));
    r.add(Shape::roundRect(-26, 182, 26, 202, 5), flat(18.0).rounded(12.0, 10.0));
    r.add(Shape::rect(-8, 190, 10, 193), flat(22.0), paints::Dark);
    rivets(r, {{-72, 178}, {34, 178}}, 10.0, 1.5);
    rivets(r, {{-76, 132}, {38, 132}}, 10.0, 1.5);
    {
        const auto gun = r.place({.x = 38, .y = 158, .angle = 86.0, .z = 14.0});
        machineGunBarrel(r, 0.0, 26.0, 3.2, 0.0, true);
    }
    // star of the army on the turret's side
    star(r, {-24, 156}, 10.0, hex(0xC9A94E), 0.85);
    splashMud(r, -214, 206, 56.0, Mud);
}

void sevenTpTurret(Relief& r) {
    r.add(Shape::roundRect(-86, 166, -66, 194, 5), flat(14.0).rounded(5.0, 5.0));
    r.add(Shape::roundRect(-74, 150, 22, 208, 4), flat(28.0).rounded(22.0, 16.0));
    r.add(Shape::roundRect(-40, 206, 4, 216, 4), flat(14.0).rounded(4.0, 4.0));
    rivets(r, {{-66, 202}, {16, 202}}, 10.0, 1.5);
    rivets(r, {{-66, 156}, {16, 156}}, 10.0, 1.5);
    r.add(Shape::roundRect(-36, 180, -16, 186, 2), raise(4.0).rounded(2.0, 2.0));
    splashMud(r, -230, 226, 56.0, Mud);
}

void sevenTp(Relief& r) {
    const auto placed = r.place(ground(0.0));
    const SideWheel drive{-196, 62, 32};
    const SideWheel idler{194, 50, 28};
    std::vector<SideWheel> wheels;
    for (const double x : {-116.0, -56.0, 30.0, 92.0}) {
        wheels.push_back({x - 14, 22, 18});
        wheels.push_back({x + 18, 22, 18});
    }
    const auto rollers = wheelRow(4, -130, 120, 78, 9);
    std::vector<SideWheel> all(wheels);
    all.insert(all.end(), rollers.begin(), rollers.end());
    all.insert(all.end(), {drive, idler});
    trackBelt(r, all, 6.0, 12.0);
    sprocket(r, drive, 17);
    roadWheel(r, idler, WheelStyle::Spoked, 8.0);
    for (const SideWheel& wheel : rollers) {
        roadWheel(r, wheel, WheelStyle::Rubber, 6.0);
    }
    for (const SideWheel& wheel : wheels) {
        roadWheel(r, wheel, WheelStyle::Rubber);
    }
    // leaf springs
    for (const double x : {-84.0, 62.0}) {
        for (int i = 0; i < 4; ++i) {
            r.add(
                Shape::line(
                    {{x - 50 + i * 9, 34.0 + i * 5}, {x, 40.0 + i * 5}, {x + 50 - i * 9, 34.0 + i * 5}}, 4.0),
                flat(24.0 + i).rounded(2.0, 2.0), paints::Steel);
        }
        r.add(Shape::roundRect(x - 10, 36, x + 10, 66, 3), flat(28.0).rounded(3.0, 3.0));
    }
    r.add(Shape::polygon({{-214, 78}, {-196, 94}, {200, 92}, {214, 78}, {198, 86}, {-194, 88}}),
          flat(28.0).rounded(1.2, 1.2));
    sidePlate(r, {{-226, 66}, {-196, 82}, {-96, 96}, {-96, 88}, {-190, 60}}, -6.0);
    sidePlate(r, {{-132, 92}, {-122, 136}, {-84, 136}, {-84, 92}}, 0.0);
    sidePlate(r, {{-94, 92}, {-86, 150}, {40, 150}, {46, 92}}, 18.0);
    sidePlate(r, {{44, 92}, {44, 140}, {180, 140}, {206, 92}}, 2.0);
    rivets(r, {{-82, 144}, {36, 144}}, 10.0, 1.5);
    rivets(r, {{-86, 98}, {40, 98}}, 10.0, 1.5);
    rivets(r, {{50, 134}, {174, 134}}, 10.0, 1.5);
    louvres(r, 96, 104, 160, 126, 7, false);
    r.add(Shape::roundRect(190, 78, 228, 98, 7), flat(8.0).rounded(7.0, 7.0), paints::Rust);
    r.add(Shape::circle({-164, 106}, 9.0), flat(26.0).rounded(8.0, 8.0));
    {
        const auto far = r.place(pointingForward(-26, 182, -20.0));
        barrel(r, {{44.0, 5.2}, {96.0, 5.2}, {96.0, 2.6}, {112.0, 3.6}}, 0.0, paints::DarkSteel);
    }
    {
        const auto gun = r.place(pointingForward(-26, 180, 8.0));
        barrel(r, {{44.0, 5.4}, {96.0, 5.4}}, 0.0, paints::Steel);
        barrel(r, {{96.0, 2.6}, {106.0, 2.6}, {106.0, 3.6}, {112.0, 4.2}}, 0.0, paints::DarkSteel);
    }
    sevenTpTurret(r);
}

constexpr std::array<Sheet, 3> Sheets{{{.path = "Units/Vehicles/Profiles/Profile Italian Carro M13-40.png",
                                        .width = 400,
                                        .height = 160,
                                        .pixelsPerCm = 0.46,
                                        .draw = m1340,
                                        .scheme = italianDesert,
                                        .how = Sideways},
                                       {.path = "Units/Vehicles/Profiles/Profile Japanese Type 95 Ha-Go.png",
                                        .width = 400,
                                        .height = 160,
                                        .pixelsPerCm = 0.46,
                                        .draw = haGo,
                                        .scheme = japaneseStripes,
                                        .how = Sideways},
                                       {.path = "Units/Vehicles/Profiles/Profile Polish 7TP twin turret.png",
                                        .width = 400,
                                        .height = 160,
                                        .pixelsPerCm = 0.46,
                                        .draw = sevenTp,
                                        .scheme = polishThreeTone,
                                        .how = Sideways}}};

} // namespace

std::span<const Sheet> otherProfiles() {
    return Sheets;
}

} // namespace artwork
