#include "catalogue.h"
#include "parts/armour.h"
#include "parts/fittings.h"
#include "parts/gear.h"
#include "profiles/side.h"
#include "schemes.h"

#include <array>

namespace artwork {

namespace {

constexpr Rgb Mud = hex(0x6A5C42);

Pose ground(double x) {
    return {.x = x, .y = -166.0};
}

void t34Turret(Relief& r) {
    // turret: walls leaning in, gun housing in front
    r.add(Shape::polygon({{-172, 176}, {-174, 204}, {-140, 212}, {-126, 212}, {-126, 172}}),
          flat(14.0).rounded(5.0, 6.0));
    r.add(Shape::polygon({{-150, 164}, {-122, 222}, {4, 222}, {36, 168}, {10, 158}, {-136, 158}}),
          slope({0, 160}, 30.0, {0, 222}, 4.0).rounded(3.0, 3.0));
    r.add(Shape::polygon({{-150, 164}, {-122, 222}, {-98, 222}, {-118, 160}, {-136, 158}}),
          slope({0, 160}, 24.0, {0, 222}, 2.0));
    r.add(Shape::polygon({{-58, 222}, {-52, 230}, {0, 228}, {4, 222}}), flat(4.0).rounded(2.0, 2.0));
    r.add(Shape::roundRect(-96, 221, -84, 238, 3), flat(6.0).rounded(3.0, 3.0));
    r.add(Shape::roundRect(-70, 194, -54, 200, 2), flat(22.0).rounded(2.0, 2.0));
    r.add(Shape::circle({-40, 186}, 4.0), raise(2.0).rounded(3.0, 2.0));
    digits(r, {-86, 178}, 24, "17", hex(0xE0DDD0), 0.75);
    star(r, {-14, 192}, 12.0, hex(0x9A2A26), 0.8);
    splashMud(r, -300, 300, 70.0, Mud);
}

void t34(Relief& r) {
    const auto placed = r.place(ground(40.0));
    const SideWheel idler{-246, 62, 30};
    const SideWheel drive{254, 66, 33};
    const std::array<SideWheel, 5> wheels{
        {{-178, 46, 41}, {-88, 46, 41}, {6, 46, 41}, {96, 46, 41}, {186, 46, 41}}};
    std::vector<SideWheel> all(wheels.begin(), wheels.end());
    all.insert(all.end(), {idler, drive});
    trackBelt(r, all, 7.0, 17.0);
    roadWheel(r, idler, WheelStyle::Dished, 10.0);
    roadWheel(r, drive, WheelStyle::Spoked, 10.0);
    for (const SideWheel& wheel : wheels) {
        roadWheel(r, wheel, WheelStyle::Rubber);
    }
    // sloped side above the guards
    sidePlate(r, {{-284, 82}, {-252, 100}, {262, 100}, {284, 92}, {240, 74}, {-250, 74}}, 4.0);
    r.add(Shape::polygon({{-206, 98}, {-138, 158}, {236, 152}, {290, 92}, {262, 96}}),
          slope({0, 96}, 26.0, {0, 158}, 6.0).rounded(2.0, 1.5));
    r.add(Shape::polygon({{-290, 84}, {-206, 100}, {-140, 157}, {-150, 158}, {-216, 104}, {-292, 92}}),
          flat(16.0).rounded(1.5, 1.2));
    r.add(Shape::polygon({{-294, 72},
                          {-284, 92},
                          {-236, 104},
                          {262, 102},
                          {290, 92},
                          {296, 70},
                          {286, 88},
                          {256, 97},
                          {-232, 98},
                          {-276, 86}}),
          flat(30.0).rounded(1.2, 1.2));
    r.add(Shape::circle({-204, 128}, 9.0), flat(26.0).rounded(8.0, 8.0));
    for (const double x : {-60.0, 40.0, 140.0}) {
        r.add(Shape::line({{x - 22, 138}, {x - 18, 132}, {x + 18, 132}, {x + 22, 138}}, 2.6),
              flat(30.0).rounded(1.2, 1.2));
    }
    r.add(Shape::roundRect(168, 102, 232, 126, 3), flat(30.0).rounded(3.0, 3.0));
    {
        const auto saw = r.place({.x = -90, .y = 112, .angle = 90, .z = 28});
        r.add(Shape::roundRect(-6, -70, 6, 70, 2), flat(4.0).rounded(1.5, 1.5));
    }
    r.add(Shape::capsule({270, 106}, {290, 100}, 12.0), flat(14.0).rounded(5.0, 5.0), paints::Rust);
    {
        const auto gun = r.place(pointingForward(-66, 192, 8.0));
        barrel(r, {{90.0, 8.6}, {140.0, 7.6}, {140.0, 7.0}, {300.0, 6.0}, {300.0, 6.6}, {306.0, 6.6}}, 0.0);
    }
    t34Turret(r);
}

void t28(Relief& r) {
    const auto placed = r.place(ground(10.0));
    const SideWheel idler{-336, 66, 30};
    const SideWheel drive{334, 62, 34};
    const auto wheels = wheelRow(12, -280, 274, 28, 19);
    std::vector<SideWheel> all(wheels);
    all.insert(all.end(), {idler, drive});
    trackBelt(r, all, 6.0, 17.0);
    roadWheel(r, idler, WheelStyle::Spoked, 10.0);
    sprocket(r, drive, 16);
    for (const SideWheel& wheel : wheels) {
        roadWheel(r, wheel, WheelStyle::Rubber, 4.0);
    }
    // armoured skirt over the springs
    sidePlate(r, {{-290, 46}, {-302, 84}, {296, 84}, {286, 46}}, 24.0, 2.0);
    for (int i = 0; i < 7; ++i) {
        gap(r, {{-250.0 + i * 80, 48}, {-250.0 + i * 80, 82}}, 1.6);
    }
    sidePlate(r, {{-366, 58}, {-352, 92}, {-300, 116}, {354, 116}, {366, 84}, {300, 84}, {-300, 84}}, 6.0);
    r.add(Shape::polygon({{-376, 84}, {-340, 104}, {340, 104}, {372, 88}, {340, 98}, {-338, 98}}),
          flat(30.0).rounded(1.2, 1.2));
    sidePlate(r, {{-322, 104}, {-304, 150}, {-170, 158}, {24, 158}, {24, 104}}, 10.0);
    sidePlate(r, {{24, 104}, {24, 146}, {350, 146}, {362, 104}}, 12.0);
    louvres(r, 60, 118, 170, 138, 11, false);
    r.add(Shape::roundRect(208, 146, 288, 166, 8), flat(10.0).rounded(6.0, 6.0));
    r.add(Shape::roundRect(164, 144, 192, 160, 6), flat(8.0).rounded(6.0, 6.0), paints::Rust);
    for (const double x : {40.0, 190.0}) {
        r.add(Shape::roundRect(x, 104, x + 84, 132, 2), flat(26.0).rounded(2.0, 2.0));
    }
    rivets(r, {{-312, 112}, {340, 112}}, 16.0, 1.6);
    {
        // small turret
        const auto gun = r.place(pointingForward(-224, 186, 18.0));
        machineGunBarrel(r, 48.0, 88.0, 3.0, 0.0, false);
    }
    r.add(Shape::roundRect(-274, 156, -176, 212, 4), flat(24.0).rounded(24.0, 18.0));
    rivets(r, {{-268, 206}, {-182, 206}}, 11.0, 1.5);
    {
        const auto gun = r.place(pointingForward(-88, 204, 4.0));
        barrel(r, {{88.0, 12.0}, {124.0, 11.0}, {124.0, 8.4}, {214.0, 7.0}, {214.0, 7.8}, {222.0, 7.8}}, 0.0);
    }
    r.add(Shape::polygon({{-200, 182}, {-200, 226}, {-176, 234}, {-168, 180}}), flat(10.0).rounded(6.0, 6.0));
    r.add(Shape::roundRect(-184, 162, 8, 246, 4), flat(28.0).rounded(36.0, 26.0));
    r.add(Shape::roundRect(0, 180, 36, 240, 4), flat(18.0).rounded(6.0, 6.0));
    r.add(Shape::roundRect(-82, 244, -26, 256, 4), flat(12.0).rounded(4.0, 4.0));
    rivets(r, {{-176, 240}, {0, 240}}, 12.0, 1.6);
    rivets(r, {{-176, 168}, {0, 168}}, 12.0, 1.6);
    // rail aerial
    r.add(Shape::capsule({-188, 272}, {12, 272}, 3.0), flat(34.0).rounded(1.5, 1.5), paints::Steel);
    for (const double x : {-180.0, -132.0, -84.0, -36.0, 6.0}) {
        r.add(Shape::capsule({x, 244}, {x, 272}, 2.4), flat(33.0), paints::Steel);
    }
    {
        const auto gun = r.place({.x = 34, .y = 206, .angle = 90.0, .z = 18.0});
        machineGunBarrel(r, 0.0, 34.0, 3.0, 0.0, false);
    }
    r.stain(Shape::rect(-182, 222, 6, 232), hex(0xC9C8BC), 0.6);
    splashMud(r, -370, 370, 60.0, Mud);
}

void bmp2Turret(Relief& r) {
    r.add(Shape::polygon({{-86, 164}, {-56, 204}, {84, 206}, {118, 164}}),
          slope({0, 164}, 32.0, {0, 206}, 4.0).rounded(2.0, 2.0));
    r.add(Shape::polygon({{-66, 172}, {-70, 194}, {-44, 202}, {-34, 170}}), flat(24.0).rounded(4.0, 4.0));
    for (int i = 0; i < 3; ++i) {
        r.add(Shape::capsule({-38.0 + i * 9, 176.0}, {-46.0 + i * 9, 194.0}, 8.0),
              flat(38.0).rounded(4.0, 4.0));
    }
    r.add(Shape::roundRect(-26, 204, 2, 222, 4), flat(10.0).rounded(5.0, 5.0));
    r.add(Shape::circle({-12, 214}, 7.0), flat(20.0).rounded(3.0, 3.0), paints::Glass);
    r.add(Shape::roundRect(40, 204, 66, 214, 3), flat(8.0).rounded(3.0, 3.0));
    {
        const auto tube = r.place(pointingForward(26, 238, 14.0, 2.0));
        const Paint green{.colour = hex(0x62664A), .gloss = 0.1};
        barrel(r, {{-68.0, 8.6}, {-62.0, 8.6}, {-62.0, 7.4}, {44.0, 7.4}, {44.0, 8.8}, {54.0, 8.8}}, 0.0,
               green);
        r.add(Shape::rect(-14, -8, 14, 4), flat(4.0).rounded(2.0, 2.0));
    }
    r.add(Shape::capsule({26, 206}, {26, 232}, 8.0), flat(6.0).rounded(3.0, 3.0), paints::Steel);
    digits(r, {92, 134}, 22, "3", hex(0xE0DDD0));
    digits(r, {4, 172}, 24, "317", hex(0xE0DDD0), 0.8);
    aerial(r, {92, 196}, 120.0);
    splashMud(r, -330, 330, 70.0, Mud);
}

void bmp2(Relief& r) {
    const auto placed = r.place(ground(0.0));
    const SideWheel drive{-284, 72, 29};
    const SideWheel idler{276, 64, 25};
    const auto wheels = wheelRow(6, -206, 204, 35, 30);
    std::vector<SideWheel> all(wheels);
    all.insert(all.end(), {idler, drive});
    trackBelt(r, all, 6.0, 14.0);
    sprocket(r, drive, 13);
    roadWheel(r, idler, WheelStyle::Spoked, 8.0);
    for (const SideWheel& wheel : wheels) {
        roadWheel(r, wheel, WheelStyle::Rubber);
    }
    sidePlate(r, {{-336, 110}, {-148, 160}, {306, 164}, {326, 110}, {316, 70}, {-300, 70}}, 2.0);
    r.add(Shape::polygon({{-322, 112}, {-148, 158}, {306, 162}, {322, 114}}),
          slope({0, 114}, 24.0, {0, 162}, 6.0).rounded(1.5, 1.2));
    // side skirt with its ribs
    r.add(Shape::polygon({{-316, 92}, {-300, 118}, {318, 118}, {312, 84}, {-250, 84}}),
          flat(32.0).rounded(2.0, 2.0));
    for (int i = 0; i < 7; ++i) {
        gap(r, {{-240.0 + i * 84, 86}, {-240.0 + i * 84, 117}}, 1.4);
    }
    for (const double x : {60.0, 130.0, 200.0}) {
        r.add(Shape::circle({x, 136}, 9.0), flat(28.0).rounded(8.0, 8.0));
        r.add(Shape::circle({x, 136}, 3.0), raise(-3.0), paints::Dark);
        r.add(Shape::roundRect(x - 6, 160, x + 8, 170, 2), flat(8.0).rounded(2.0, 2.0));
    }
    r.add(Shape::roundRect(312, 78, 338, 148, 8), flat(12.0).rounded(8.0, 8.0));
    r.add(Shape::capsule({-80, 126}, {160, 126}, 12.0), flat(40.0).rounded(6.0, 6.0).rough(1.5),
          paints::DarkWood);
    r.add(Shape::polygon({{-330, 112}, {-262, 132}, {-258, 138}, {-332, 120}}), flat(18.0).rounded(1.5, 1.5));
    r.add(Shape::circle({-236, 146}, 9.0), flat(24.0).rounded(8.0, 8.0));
    r.add(Shape::roundRect(-150, 158, -108, 168, 3), flat(12.0).rounded(3.0, 3.0));
    {
        const auto gun = r.place(pointingForward(22, 188, 8.0, 1.0));
        barrel(r, {{76.0, 9.0}, {112.0, 7.0}, {112.0, 5.0}, {150.0, 4.2}, {150.0, 3.6}, {262.0, 3.1}}, 0.0);
        barrel(r, {{262.0, 5.4}, {285.0, 5.4}}, 0.0, paints::DarkSteel);
    }
    bmp2Turret(r);
}

void gazMm(Relief& r) {
    const auto placed = r.place(ground(0.0));
    // frame and axles
    r.add(Shape::rect(-250, 52, 258, 64), flat(-4.0), paints::DarkSteel);
    tyre(r, {-168, 42, 42}, 23.0, 0.0);
    tyre(r, {152, 42, 42}, 23.0, 2.0);
    r.add(Shape::roundRect(-270, 52, -254, 62, 2), flat(6.0).rounded(2.0, 2.0), paints::Steel);
    // bonnet, cab, wings
    r.add(Shape::polygon({{-240, 66}, {-240, 122}, {-126, 134}, {-126, 64}}), flat(10.0).rounded(3.0, 4.0));
    r.add(Shape::roundRect(-246, 62, -236, 126, 3), flat(14.0).rounded(3.0, 3.0), paints::Steel);
    for (int i = 0; i < 12; ++i) {
        r.add(Shape::capsule({-222.0 + i * 7.5, 84}, {-222.0 + i * 7.5, 112}, 2.4),
              raise(2.0).rounded(1.2, 1.2));
    }
    r.add(Shape::polygon({{-126, 58}, {-126, 134}, {-118, 190}, {-108, 196}, {-14, 196}, {-14, 58}}),
          flat(14.0).rounded(3.0, 3.0));
    r.add(Shape::polygon({{-114, 136}, {-108, 184}, {-28, 184}, {-26, 136}}), raise(-3.0), paints::Glass);
    gap(r, {{-112, 62}, {-118, 132}, {-110, 188}}, 1.4);
    gap(r, {{-22, 62}, {-22, 188}}, 1.4);
    r.add(Shape::rect(-44, 118, -32, 122), raise(2.0), paints::Steel);
    r.add(Shape::smooth({{-232, 50},
                         {-222, 78},
                         {-190, 94},
                         {-150, 92},
                         {-124, 72},
                         {-96, 56},
                         {-96, 50},
                         {-124, 58},
                         {-152, 82},
                         {-188, 84},
                         {-216, 68}}),
          flat(24.0).rounded(3.0, 3.0));
    r.add(Shape::rect(-100, 48, -14, 56), flat(24.0).rounded(2.0, 2.0));
    r.add(Shape::circle({-244, 96}, 12.0), flat(26.0).rounded(9.0, 9.0));
    r.add(Shape::circle({-252, 96}, 7.0), flat(24.0), paints::Lens);
    // body of boards
    r.add(Shape::rect(-8, 92, 266, 146), flat(14.0).rounded(1.5, 1.5),
          {.colour = hex(0x6F6848), .scheme = 0.5});
    for (const double y : {106.0, 119.0, 132.0}) {
        gap(r, {{-6, y}, {264, y}}, 1.4);
    }
    for (const double x : {20.0, 96.0, 172.0, 240.0}) {
        r.add(Shape::rect(x, 84, x + 6, 150), raise(3.0).rounded(1.0, 1.0), paints::Steel);
    }
    r.add(Shape::rect(-8, 78, 266, 92), flat(6.0), paints::DarkWood);
    r.add(Shape::polygon({{96, 80}, {110, 66}, {118, 66}, {104, 80}}), flat(8.0), paints::Steel);
    {
        const auto roll = r.place({.x = 130, .y = 154, .z = -2});
        canvasRoll(r, 90.0, 12.0);
    }
    r.add(Shape::rect(200, 146, 246, 170), flat(2.0).rounded(1.0, 1.0), paints::Wood);
    digits(r, {-90, 84}, 18, "314", hex(0xDEDACB), 0.7);
    splashMud(r, -260, 266, 70.0, Mud);
}

constexpr std::array<Sheet, 4> Sheets{{{.path = "Units/Vehicles/Profiles/Profile Russian T-34 Model 1941.png",
                                        .width = 400,
                                        .height = 160,
                                        .pixelsPerCm = 0.46,
                                        .draw = t34,
                                        .scheme = sovietGreen,
                                        .how = Sideways},
                                       {.path = "Units/Vehicles/Profiles/Profile Russian T-28 Model 1938.png",
                                        .width = 400,
                                        .height = 160,
                                        .pixelsPerCm = 0.46,
                                        .draw = t28,
                                        .scheme = sovietWinterTrace,
                                        .how = Sideways},
                                       {.path = "Units/Vehicles/Profiles/Profile Russian BMP-2.png",
                                        .width = 400,
                                        .height = 160,
                                        .pixelsPerCm = 0.46,
                                        .draw = bmp2,
                                        .scheme = sovietModern,
                                        .how = Sideways},
                                       {.path = "Units/Vehicles/Profiles/Profile Russian GAZ-MM.png",
                                        .width = 400,
                                        .height = 160,
                                        .pixelsPerCm = 0.46,
                                        .draw = gazMm,
                                        .scheme = lorryGreen,
                                        .how = Sideways}}};

} // namespace

std::span<const Sheet> russianProfiles() {
    return Sheets;
}

} // namespace artwork
