#include "catalogue.h"
#include "parts/armour.h"
#include "parts/fittings.h"
#include "parts/gear.h"
#include "profiles/side.h"
#include "schemes.h"

#include <array>

namespace artwork {

namespace {

constexpr Rgb Mud = hex(0x6F6047);

/// The ground line of every profile.
Pose ground(double x) {
    return {.x = x, .y = -166.0};
}

void interleaved(Relief& r, std::span<const SideWheel> behind, std::span<const SideWheel> before,
                 WheelStyle style) {
    for (const SideWheel& wheel : behind) {
        roadWheel(r, wheel, style, -4.0);
    }
    for (const SideWheel& wheel : before) {
        roadWheel(r, wheel, style, 12.0);
    }
}

void tiger(Relief& r) {
    const auto placed = r.place(ground(104.0));
    const SideWheel drive{-262, 84, 42};
    const SideWheel idler{252, 66, 30};
    const auto outer = wheelRow(4, -184, 176, 46, 40);
    const auto inner = wheelRow(4, -134, 222, 46, 40);
    std::vector<SideWheel> all(outer);
    all.insert(all.end(), inner.begin(), inner.end());
    all.insert(all.end(), {drive, idler});
    trackBelt(r, all, 8.0, 13.0);
    sprocket(r, drive, 20);
    roadWheel(r, idler, WheelStyle::Disc, 4.0);
    interleaved(r, inner, outer, WheelStyle::Rubber);
    // superstructure over the tracks
    sidePlate(r, {{-204, 124}, {-206, 183}, {294, 183}, {300, 150}, {288, 92}, {276, 104}, {-204, 104}},
              20.0);
    sidePlate(r, {{-300, 108}, {-290, 126}, {-204, 132}, {-204, 104}, {-268, 104}}, 18.0);
    r.add(Shape::polygon({{-306, 96}, {-262, 130}, {-206, 138}, {-206, 124}, {-262, 116}}),
          flat(22.0).rounded(2.0, 2.0));
    for (int i = 0; i < 4; ++i) {
        const double x = -204.0 + i * 120.0;
        r.add(Shape::rect(x, 96.0, x + 118.0, 116.0), flat(26.0).rounded(1.5, 1.5));
    }
    towCable(r, {{-190, 160}, {-100, 152}, {60, 154}, {220, 160}}, 3.6);
    for (const double x : {-150.0, 110.0}) {
        const auto tool = r.place({.x = x, .y = 170.0, .angle = -90.0, .z = 20.0});
        shovel(r, 92.0);
    }
    r.add(Shape::roundRect(288, 128, 312, 182, 5), flat(10.0).rounded(5, 4), paints::Rust);
    r.add(Shape::roundRect(-212, 150, -200, 172, 3), flat(14.0).rounded(3, 3));
    {
        const auto gun = r.place(pointingForward(-8, 214, 10.0));
        barrel(r, {{84.0, 19.0}, {176.0, 17.0}, {182.0, 12.6}, {330.0, 10.6}, {330.0, 9.9}, {474.0, 8.4}},
               0.0);
        muzzleBrake(r, 521.0, 50.0, 14.5, 0.0);
    }
    // turret: nearly upright walls, the bin behind
    sidePlate(r, {{96, 200}, {96, 246}, {150, 246}, {154, 204}}, 6.0, 3.0);
    r.add(Shape::polygon({{-100, 190}, {-104, 236}, {-92, 252}, {-80, 252}, {-80, 188}}),
          flat(16.0).rounded(6.0, 6.0));
    r.add(Shape::polygon({{-84, 184}, {-86, 248}, {-44, 262}, {100, 262}, {112, 240}, {112, 184}}),
          flat(28.0).rounded(26.0, 18.0));
    r.add(Shape::roundRect(14, 258, 92, 284, 4), flat(14.0).rounded(8.0, 8.0));
    r.add(Shape::roundRect(10, 280, 96, 288, 3), flat(14.0).rounded(4.0, 4.0));
    for (const double x : {26.0, 52.0, 78.0}) {
        r.add(Shape::rect(x - 6, 269, x + 6, 273), flat(14.0), paints::Glass);
    }
    for (int i = 0; i < 4; ++i) {
        const auto link = r.place({.x = -42.0 + i * 20.0, .y = 224.0, .z = 24.0});
        spareTrack(r, 17.0, 2, 15.0);
    }
    for (int i = 0; i < 3; ++i) {
        r.add(Shape::capsule({-66.0 + i * 8, 236.0}, {-72.0 + i * 8, 254.0}, 7.0),
              flat(32.0).rounded(3.0, 3.0));
    }
    digits(r, {52, 212}, 24, "231", hex(0xE4E0D2));
    balkenCross(r, {8, 152}, 15.0);
    aerial(r, {110, 183}, 130.0);
    splashMud(r, -310, 300, 70.0, Mud);
}

void panther(Relief& r) {
    const auto placed = r.place(ground(88.0));
    const SideWheel drive{-288, 88, 43};
    const SideWheel idler{272, 62, 30};
    const auto outer = wheelRow(4, -220, 150, 47, 43);
    const auto inner = wheelRow(4, -158, 212, 47, 43);
    std::vector<SideWheel> all(outer);
    all.insert(all.end(), inner.begin(), inner.end());
    all.insert(all.end(), {drive, idler});
    trackBelt(r, all, 8.0, 15.0);
    sprocket(r, drive, 17);
    roadWheel(r, idler, WheelStyle::Spoked, 4.0);
    interleaved(r, inner, outer, WheelStyle::Rubber);
    // nose, glacis and the sloped side
    sidePlate(r, {{-322, 96}, {-196, 185}, {316, 185}, {336, 120}, {324, 84}, {300, 104}, {-300, 104}}, 14.0);
    r.add(Shape::polygon({{-232, 122}, {-192, 184}, {312, 184}, {330, 122}}),
          slope({0, 122}, 26.0, {0, 184}, 6.0).rounded(1.5, 1.0));
    r.add(Shape::polygon({{-344, 84}, {-330, 122}, {-270, 132}, {-232, 126}, {-232, 112}, {-300, 112}}),
          flat(24.0).rounded(2.0, 2.0));
    for (int i = 0; i < 6; ++i) {
        const double x = -218.0 + i * 82.0;
        r.add(Shape::rect(x, 70.0, x + 80.0, 122.0), flat(30.0).rounded(1.2, 1.2));
    }
    r.add(Shape::roundRect(-130, 140, 60, 154, 6), flat(26.0).rounded(6.0, 8.0));
    for (const double x : {110.0, 176.0, 242.0}) {
        const auto link = r.place({.x = x, .y = 150.0, .angle = 90.0, .z = 12.0});
        spareTrack(r, 24.0, 3, 15.0);
    }
    r.add(Shape::roundRect(310, 128, 346, 178, 3), flat(20.0).rounded(3, 3));
    r.add(Shape::capsule({326, 140}, {336, 190}, 13.0), flat(8.0).rounded(6, 6), paints::Rust);
    {
        const auto gun = r.place(pointingForward(-14, 228, 8.0));
        barrel(r, {{100.0, 14.0}, {150.0, 12.0}, {156.0, 10.8}, {300.0, 9.4}, {300.0, 8.8}, {470.0, 7.2}},
               0.0);
        muzzleBrake(r, 508.0, 42.0, 12.5, 0.0);
    }
    r.add(Shape::polygon({{-122, 206}, {-124, 236}, {-110, 254}, {-92, 254}, {-92, 196}, {-112, 196}}),
          flat(18.0).rounded(10.0, 10.0).rough(0.6));
    r.add(Shape::polygon({{-98, 188}, {-88, 264}, {78, 264}, {98, 190}}),
          slope({0, 188}, 30.0, {0, 264}, 8.0).rounded(2.0, 1.5));
    r.add(Shape::roundRect(0, 260, 70, 290, 6), flat(14.0).rounded(12.0, 12.0).rough(0.4));
    for (const double x : {14.0, 36.0, 58.0}) {
        r.add(Shape::rect(x - 6, 276, x + 6, 280), flat(16.0), paints::Glass);
    }
    {
        const auto gun = r.place(pointingForward(30, 296, 16.0, 2.0));
        machineGunBarrel(r, 0.0, 74.0, 2.6, 0.0, true);
        r.add(Shape::capsule({0, -30}, {0, 4}, 6.0), flat(2.0).rounded(3.0, 2.0), paints::DarkSteel);
        r.add(Shape::capsule({-10, -2}, {0, -2}, 4.0), flat(0.0), paints::Steel);
    }
    digits(r, {-10, 212}, 26, "124", hex(0xE4E0D2));
    balkenCross(r, {86, 150}, 14.0);
    aerial(r, {116, 184}, 130.0);
    splashMud(r, -344, 340, 74.0, Mud);
}

void stugOutside(Relief& r) {
    r.add(Shape::polygon({{-102, 186}, {-96, 214}, {-92, 214}, {-94, 186}}), flat(10.0).rounded(1.0, 1.0));
    {
        const auto gun = r.place(pointingForward(-66, 206, 12.0, 3.0));
        machineGunBarrel(r, 10.0, 76.0, 2.6, 0.0, true);
        r.add(Shape::capsule({0, -40}, {0, 12}, 6.0), flat(2.0).rounded(3.0, 2.0), paints::DarkSteel);
    }
    for (int i = 0; i < 3; ++i) {
        r.add(Shape::capsule({-146.0 + i * 8, 134.0}, {-152.0 + i * 8, 150.0}, 7.0),
              flat(34.0).rounded(3.0, 3.0));
    }
    // skirts
    for (int i = 0; i < 4; ++i) {
        const double x = -196.0 + i * 102.0;
        r.add(Shape::polygon({{x + (i == 0 ? 18.0 : 0.0), 62.0},
                              {x, 128.0},
                              {x + 100.0, 128.0},
                              {x + 100.0 - (i == 3 ? 18.0 : 0.0), 62.0}}),
              flat(38.0).rounded(1.2, 1.2));
    }
    balkenCross(r, {-46, 98}, 15.0);
    digits(r, {50, 84}, 24, "12", hex(0x2A2A2A));
    {
        const auto spare = r.place({.x = 206, .y = 126, .z = 22});
        roadWheel(r, {0, 0, 24}, WheelStyle::Rubber, 0.0);
    }
    aerial(r, {52, 150}, 120.0);
    splashMud(r, -260, 260, 64.0, Mud);
}

void stug(Relief& r) {
    const auto placed = r.place(ground(60.0));
    const SideWheel drive{-222, 66, 34};
    const SideWheel idler{216, 56, 30};
    const auto wheels = wheelRow(6, -156, 158, 34, 26);
    const auto rollers = wheelRow(3, -110, 110, 84, 11);
    std::vector<SideWheel> all(wheels);
    all.insert(all.end(), rollers.begin(), rollers.end());
    all.insert(all.end(), {drive, idler});
    trackBelt(r, all, 7.0, 12.0);
    sprocket(r, drive, 18);
    roadWheel(r, idler, WheelStyle::Spoked, 8.0);
    for (const SideWheel& wheel : rollers) {
        roadWheel(r, wheel, WheelStyle::Rubber, 6.0);
    }
    for (const SideWheel& wheel : wheels) {
        roadWheel(r, wheel, WheelStyle::Rubber);
    }
    sidePlate(r, {{-256, 78}, {-236, 104}, {-176, 112}, {250, 146}, {262, 110}, {250, 92}}, 2.0);
    r.add(Shape::polygon({{-264, 92}, {-250, 104}, {254, 104}, {262, 92}, {254, 98}, {-248, 98}}),
          flat(24.0).rounded(1.2, 1.0));
    sidePlate(r, {{44, 104}, {48, 146}, {220, 142}, {248, 120}, {246, 104}}, 6.0);
    louvres(r, 90, 112, 196, 128, 9, false);
    // superstructure with its slanted front corners
    r.add(Shape::polygon({{-178, 108}, {-166, 182}, {44, 184}, {48, 106}}), flat(14.0).rounded(2.0, 1.5));
    r.add(Shape::polygon({{-130, 106}, {-118, 178}, {40, 178}, {44, 106}}),
          slope({0, 106}, 30.0, {0, 178}, 22.0).rounded(1.5, 1.2));
    r.add(Shape::roundRect(-36, 180, 34, 206, 6), flat(20.0).rounded(12.0, 12.0).rough(0.4));
    for (const double x : {-20.0, 0.0, 20.0}) {
        r.add(Shape::rect(x - 6, 193, x + 6, 197), flat(22.0), paints::Glass);
    }
    {
        const auto gun = r.place(pointingForward(-152, 152, 4.0));
        barrel(r, {{60.0, 13.0}, {84.0, 9.0}, {150.0, 7.6}, {150.0, 7.0}, {218.0, 6.0}}, 0.0);
        muzzleBrake(r, 250.0, 34.0, 11.0, 0.0);
        r.add(Shape::symmetricSmooth({{0, 76}, {11, 74}, {15, 60}, {18, 34}, {24, 8}, {24, -20}, {0, -24}}),
              flat(20.0).rounded(18.0, 24.0).rough(0.6));
    }
    stugOutside(r);
}

void halftrackOutside(Relief& r) {
    // wing and boxes
    r.add(Shape::smooth({{-284, 74},
                         {-270, 96},
                         {-222, 106},
                         {-176, 98},
                         {-150, 74},
                         {-158, 72},
                         {-184, 88},
                         {-222, 94},
                         {-262, 86}}),
          flat(30.0).rounded(4.0, 4.0));
    for (int i = 0; i < 3; ++i) {
        const double x = -62.0 + i * 86.0;
        r.add(Shape::roundRect(x, 84.0, x + 76.0, 108.0, 2.0), flat(32.0).rounded(2.0, 2.0));
        r.add(Shape::rect(x + 34, 94.0, x + 42, 100.0), raise(2.0), paints::Steel);
    }
    {
        const auto tool = r.place({.x = -128, .y = 92, .angle = -90, .z = 20});
        shovel(r, 66.0);
    }
    {
        const auto gun = r.place(pointingForward(-24, 198, 8.0));
        machineGunBarrel(r, 14.0, 76.0, 2.6, 0.0, true);
        r.add(Shape::capsule({0, -44}, {0, 16}, 6.0), flat(2.0).rounded(3.0, 2.0), paints::DarkSteel);
        r.add(Shape::polygon({{-24, 14}, {18, 18}, {18, 22}, {-24, 18}}), flat(6.0).rounded(1.0, 1.0));
    }
    {
        const auto gun = r.place({.x = 262, .y = 186, .angle = 70.0, .z = 8.0});
        machineGunBarrel(r, 0.0, 66.0, 2.6, 0.0, true);
        r.add(Shape::capsule({0, -40}, {0, 4}, 6.0), flat(2.0).rounded(3.0, 2.0), paints::DarkSteel);
    }
    r.add(Shape::capsule({252, 160}, {262, 184}, 4.0), flat(4.0), paints::Steel);
    balkenCross(r, {20, 142}, 14.0);
    digits(r, {100, 134}, 20, "815", hex(0xE4E0D2));
    aerial(r, {-64, 174}, 130.0);
    splashMud(r, -270, 260, 60.0, Mud);
}

void halftrack(Relief& r) {
    const auto placed = r.place(ground(0.0));
    const SideWheel drive{-44, 58, 36};
    const SideWheel idler{222, 44, 30};
    const auto outer = wheelRow(3, 20, 190, 38, 31);
    const auto inner = wheelRow(3, 62, 148, 38, 31);
    std::vector<SideWheel> all(outer);
    all.insert(all.end(), {drive, idler});
    trackBelt(r, all, 7.0, 14.0);
    sprocket(r, drive, 12);
    roadWheel(r, idler, WheelStyle::Rubber, 2.0);
    interleaved(r, inner, outer, WheelStyle::Rubber);
    tyre(r, {-222, 44, 44}, 22.0, 4.0);
    r.add(Shape::polygon({{-292, 50}, {-292, 62}, {-270, 62}, {-270, 50}}), flat(4.0).rounded(4.0, 4.0));
    // bonnet, crew compartment: upper and lower plates meet in a ridge
    r.add(Shape::polygon({{-272, 74}, {-240, 126}, {-104, 146}, {-104, 78}, {-170, 72}}),
          slope({0, 78}, 4.0, {0, 140}, 12.0).rounded(2.0, 1.5));
    r.add(Shape::polygon({{-104, 80}, {-104, 118}, {240, 118}, {286, 112}, {252, 62}, {-60, 70}}),
          slope({0, 70}, 4.0, {0, 118}, 24.0).rounded(1.5, 1.2));
    r.add(Shape::polygon({{-104, 118}, {-94, 148}, {-88, 174}, {246, 174}, {286, 112}, {240, 118}}),
          slope({0, 118}, 24.0, {0, 174}, 6.0).rounded(1.5, 1.2));
    weld(r, {{-104, 118}, {240, 118}}, 2.4);
    gap(r, {{-96, 120}, {-90, 172}}, 1.4);
    gap(r, {{60, 119}, {64, 173}}, 1.4);
    r.add(Shape::roundRect(-84, 148, -52, 162, 2), raise(4.0).rounded(2, 2));
    r.add(Shape::rect(-78, 154, -58, 157), raise(-4.0), paints::Dark);
    halftrackOutside(r);
}

constexpr std::array<Sheet, 4> Sheets{
    {{.path = "Units/Vehicles/Profiles/Profile German Panzer VI Tiger Ausf E.png",
      .width = 400,
      .height = 160,
      .pixelsPerCm = 0.46,
      .draw = tiger,
      .scheme = germanThreeTone,
      .how = Sideways},
     {.path = "Units/Vehicles/Profiles/Profile German Panzer V Panther Ausf G.png",
      .width = 400,
      .height = 160,
      .pixelsPerCm = 0.46,
      .draw = panther,
      .scheme = germanAmbush,
      .how = Sideways},
     {.path = "Units/Vehicles/Profiles/Profile German StuG III Ausf G.png",
      .width = 400,
      .height = 160,
      .pixelsPerCm = 0.46,
      .draw = stug,
      .scheme = germanWinter,
      .how = Sideways},
     {.path = "Units/Vehicles/Profiles/Profile German Sd Kfz 251-1 Ausf C.png",
      .width = 400,
      .height = 160,
      .pixelsPerCm = 0.46,
      .draw = halftrack,
      .scheme = panzerGrey,
      .how = Sideways}}};

} // namespace

std::span<const Sheet> germanProfiles() {
    return Sheets;
}

} // namespace artwork
