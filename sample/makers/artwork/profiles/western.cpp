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
constexpr Rgb White = hex(0xE0DDD0);

Pose ground(double x) {
    return {.x = x, .y = -166.0};
}

/// Three bogies of two wheels on volute springs, as under every American medium.
void voluteBogies(Relief& r) {
    const SideWheel drive{-242, 72, 36};
    const SideWheel idler{236, 52, 28};
    std::vector<SideWheel> all{drive, idler};
    std::vector<SideWheel> wheels;
    for (const double x : {-158.0, -14.0, 130.0}) {
        wheels.push_back({x - 36, 28, 25});
        wheels.push_back({x + 36, 28, 25});
    }
    all.insert(all.end(), wheels.begin(), wheels.end());
    const std::array<SideWheel, 3> rollers{{{-138, 88, 8}, {6, 88, 8}, {150, 84, 8}}};
    all.insert(all.end(), rollers.begin(), rollers.end());
    trackBelt(r, all, 7.0, 15.2);
    sprocket(r, drive, 13);
    roadWheel(r, idler, WheelStyle::Spoked, 6.0);
    for (const SideWheel& roller : rollers) {
        roadWheel(r, roller, WheelStyle::Disc, 8.0);
    }
    for (const SideWheel& wheel : wheels) {
        roadWheel(r, wheel, WheelStyle::Bogie);
    }
    for (const double x : {-158.0, -14.0, 130.0}) {
        r.add(Shape::polygon({{x - 42, 26},
                              {x - 26, 48},
                              {x - 18, 78},
                              {x + 18, 78},
                              {x + 26, 48},
                              {x + 42, 26},
                              {x + 30, 26},
                              {x + 12, 44},
                              {x - 12, 44},
                              {x - 30, 26}}),
              flat(26.0).rounded(3.0, 4.0));
        r.add(Shape::roundRect(x - 14, 52, x + 14, 72, 3), flat(22.0).rounded(2.0, 2.0), paints::Steel);
    }
}

void sherman(Relief& r) {
    const auto placed = r.place(ground(14.0));
    voluteBogies(r);
    r.add(Shape::smooth({{-226, 106}, {-258, 104}, {-290, 80}, {-292, 58}, {-262, 40}, {-220, 46}}),
          flat(-4.0).rounded(18.0, 16.0).rough(0.6));
    sprocket(r, {-242, 72, 36}, 13);
    sidePlate(r, {{-234, 106}, {-140, 178}, {250, 178}, {286, 128}, {262, 96}, {-230, 96}}, 20.0);
    weld(r, {{-232, 100}, {260, 100}}, 2.4);
    r.add(Shape::roundRect(-84, 112, -14, 170, 1), flat(24.0).rounded(1.2, 1.5));
    r.add(Shape::roundRect(2, 112, 72, 170, 1), flat(24.0).rounded(1.2, 1.5));
    r.add(Shape::polygon({{-176, 150}, {-132, 186}, {-112, 186}, {-112, 150}}), flat(18.0).rounded(6.0, 6.0));
    r.add(Shape::polygon({{-262, 96}, {-206, 118}, {-196, 112}, {-250, 90}}), flat(26.0).rounded(1.5, 1.5));
    {
        const auto tool = r.place({.x = 170, .y = 150, .angle = -90, .z = 20});
        shovel(r, 96.0);
    }
    towCable(r, {{-90, 106}, {0, 104}, {140, 106}}, 3.4);
    r.add(Shape::roundRect(236, 176, 288, 200, 8), flat(16.0).rounded(8.0, 8.0).rough(1.0), paints::Canvas);
    {
        const auto gun = r.place(pointingForward(-34, 218, 4.0));
        barrel(r, {{100.0, 9.6}, {150.0, 8.4}, {236.0, 6.6}, {236.0, 7.2}, {262.0, 7.0}}, 0.0);
    }
    r.add(Shape::smooth({{-136, 196}, {-140, 222}, {-128, 244}, {-106, 244}, {-100, 190}, {-120, 186}}),
          flat(14.0).rounded(12.0, 12.0).rough(0.6));
    sideCast(r,
             {{-114, 184},
              {-122, 222},
              {-104, 258},
              {-50, 268},
              {28, 266},
              {82, 256},
              {92, 220},
              {66, 196},
              {20, 182}},
             30.0, 28.0, 24.0);
    r.add(Shape::roundRect(-30, 264, 40, 278, 5), flat(16.0).rounded(5.0, 5.0));
    r.add(Shape::circle({-34, 222}, 13.0), raise(4.0).rounded(4.0, 3.0));
    {
        const auto gun = r.place(pointingForward(14, 304, 12.0, 2.0));
        machineGunBarrel(r, 12.0, 88.0, 3.0, 0.0, false);
        r.add(Shape::roundRect(-5, -44, 5, 12, 2), flat(2.0).rounded(2.0, 2.0), paints::DarkSteel);
    }
    r.add(Shape::capsule({8, 278}, {12, 302}, 4.0), flat(10.0), paints::Steel);
    star(r, {38, 138}, 26.0, White);
    digits(r, {-66, 116}, 13, "3081532", hex(0xC8C09A), 0.7);
    aerial(r, {70, 258}, 70.0);
    splashMud(r, -290, 280, 70.0, Mud);
}

void grant(Relief& r) {
    const auto placed = r.place(ground(0.0));
    voluteBogies(r);
    r.add(Shape::smooth({{-196, 112}, {-246, 110}, {-278, 84}, {-280, 60}, {-250, 42}, {-200, 46}}),
          flat(-4.0).rounded(16.0, 14.0).rough(0.6));
    sprocket(r, {-242, 72, 36}, 13);
    sidePlate(r,
              {{-200, 100},
               {-150, 130},
               {-120, 206},
               {84, 206},
               {88, 152},
               {256, 150},
               {272, 104},
               {256, 92},
               {-196, 92}},
              18.0);
    rivets(r, {{-116, 198}, {78, 198}}, 13.0, 1.7);
    rivets(r, {{-140, 136}, {250, 104}}, 15.0, 1.7);
    rivets(r, {{78, 198}, {78, 140}}, 12.0, 1.7);
    // side door and visor
    r.add(Shape::roundRect(-24, 130, 34, 192, 3), raise(3.0).rounded(2.0, 2.0));
    r.add(Shape::roundRect(-8, 164, 18, 174, 2), raise(3.0).rounded(2.0, 2.0));
    r.add(Shape::polygon({{-206, 92}, {-196, 104}, {262, 104}, {262, 72}, {-170, 72}}),
          flat(30.0).rounded(2.0, 2.0));
    for (int i = 0; i < 5; ++i) {
        gap(r, {{-126.0 + i * 80, 73}, {-126.0 + i * 80, 103}}, 1.6);
    }
    r.add(Shape::roundRect(150, 150, 208, 180, 3), flat(22.0).rounded(3.0, 3.0));
    r.add(Shape::roundRect(222, 150, 254, 168, 6), flat(14.0).rounded(6.0, 6.0).rough(1.0),
          {.colour = hex(0x8B7C56)});
    {
        // the hull gun is on the far side; its barrel stands out in front
        const auto gun = r.place(pointingForward(-122, 150, -10.0));
        barrel(r, {{24.0, 12.0}, {46.0, 10.0}, {46.0, 8.4}, {128.0, 6.6}, {128.0, 7.4}, {140.0, 7.4}}, 0.0);
    }
    r.add(Shape::smooth({{-158, 138}, {-160, 168}, {-140, 186}, {-120, 188}, {-122, 136}}),
          flat(6.0).rounded(10.0, 10.0).rough(0.6));
    {
        const auto gun = r.place(pointingForward(-24, 240, 4.0));
        barrel(r, {{80.0, 7.6}, {110.0, 6.4}, {110.0, 5.0}, {196.0, 4.2}}, 0.0);
    }
    r.add(Shape::roundRect(-118, 226, -90, 256, 8), flat(12.0).rounded(8.0, 8.0).rough(0.5));
    sideCast(r, {{-96, 208}, {-102, 246}, {-84, 272}, {-20, 280}, {50, 276}, {80, 256}, {78, 224}, {48, 208}},
             28.0, 22.0, 18.0);
    r.add(Shape::roundRect(-40, 276, 26, 286, 4), flat(12.0).rounded(4.0, 4.0));
    r.add(Shape::circle({-30, 242}, 12.0), raise(4.0).rounded(4.0, 3.0));
    digits(r, {14, 226}, 22, "4", hex(0x9A2A26));
    digits(r, {96, 116}, 14, "24193", White, 0.7);
    aerial(r, {60, 272}, 70.0);
    splashMud(r, -276, 270, 60.0, hex(0xB29E74));
}

void churchillTurret(Relief& r) {
    r.add(Shape::roundRect(-196, 184, -172, 220, 6), flat(8.0).rounded(6.0, 6.0).rough(0.6));
    r.add(Shape::polygon({{-182, 166}, {-178, 244}, {-30, 248}, {8, 240}, {14, 170}}),
          flat(28.0).rounded(14.0, 12.0).rough(0.9));
    r.add(Shape::roundRect(10, 172, 48, 222, 5), flat(20.0).rounded(5.0, 5.0));
    r.add(Shape::roundRect(-92, 244, -26, 262, 6), flat(14.0).rounded(8.0, 8.0).rough(0.4));
    for (const double x : {-78.0, -60.0, -42.0}) {
        r.add(Shape::rect(x - 6, 252, x + 6, 256), flat(18.0), paints::Glass);
    }
    r.add(Shape::circle({-100, 208}, 11.0), raise(4.0).rounded(4.0, 3.0));
    digits(r, {-72, 190}, 24, "6", hex(0x9A2A26));
    r.stain(Shape::rect(-150, 190, -142, 208), White, 0.7);
    r.stain(Shape::rect(-142, 190, -134, 208), hex(0x9A2A26), 0.7);
    r.stain(Shape::rect(-134, 190, -126, 208), White, 0.7);
    aerial(r, {0, 240}, 90.0);
    splashMud(r, -370, 366, 70.0, Mud);
}

void churchill(Relief& r) {
    const auto placed = r.place(ground(10.0));
    const SideWheel front{-336, 86, 38};
    const SideWheel rear{334, 78, 36};
    auto wheels = wheelRow(11, -266, 270, 26, 13);
    std::vector<SideWheel> all(wheels);
    const std::array<SideWheel, 2> top{{{-250, 120, 6}, {240, 118, 6}}};
    all.insert(all.end(), top.begin(), top.end());
    all.insert(all.end(), {front, rear});
    trackBelt(r, all, 8.0, 21.0);
    // the pannier between the runs of track
    sidePlate(r, {{-330, 104}, {-288, 118}, {290, 118}, {326, 100}, {300, 46}, {-296, 46}}, 8.0);
    rivets(r, {{-280, 108}, {284, 108}}, 17.0, 1.8);
    rivets(r, {{-280, 52}, {284, 52}}, 17.0, 1.8);
    for (int i = 0; i < 11; ++i) {
        const double x = -266.0 + i * 53.6;
        r.add(Shape::roundRect(x - 10, 34, x + 10, 62, 3), flat(12.0).rounded(3.0, 3.0));
    }
    r.add(Shape::roundRect(-72, 62, -16, 104, 4), raise(3.0).rounded(2.0, 2.0));
    r.add(Shape::circle({-44, 84}, 14.0), raise(3.0).rounded(3.0, 3.0));
    for (const SideWheel& wheel : wheels) {
        roadWheel(r, wheel, WheelStyle::Disc, 14.0);
    }
    roadWheel(r, front, WheelStyle::Spoked, 10.0);
    sprocket(r, rear, 21);
    // guard, then the hull above it
    r.add(Shape::polygon({{-292, 122}, {-236, 132}, {262, 130}, {262, 122}}), flat(24.0).rounded(1.4, 1.2));
    sidePlate(
        r, {{-208, 130}, {-206, 158}, {96, 158}, {96, 146}, {316, 144}, {350, 118}, {340, 112}, {300, 128}},
        14.0);
    r.add(Shape::roundRect(22, 122, 114, 162, 4), flat(34.0).rounded(4.0, 4.0));
    louvres(r, 34, 130, 102, 154, 8, false);
    r.add(Shape::roundRect(-170, 132, -80, 150, 3), flat(26.0).rounded(3.0, 3.0));
    r.add(Shape::capsule({150, 150}, {278, 152}, 11.0), flat(24.0).rounded(5.0, 5.0), paints::Rust);
    r.add(Shape::polygon({{276, 146}, {292, 140}, {294, 168}, {276, 158}}), flat(24.0).rounded(2.0, 2.0),
          paints::Rust);
    {
        // flame projector
        const auto gun = r.place(pointingForward(-200, 126, 10.0));
        barrel(r, {{4.0, 8.5}, {34.0, 8.0}, {34.0, 6.4}, {52.0, 6.0}, {52.0, 8.4}, {66.0, 5.4}}, 0.0,
               paints::DarkSteel);
    }
    r.add(Shape::roundRect(344, 66, 372, 86, 4), flat(6.0).rounded(4.0, 4.0), paints::Steel);
    {
        const auto gun = r.place(pointingForward(-92, 202, 4.0));
        barrel(r, {{84.0, 10.5}, {150.0, 8.6}, {150.0, 7.6}, {252.0, 6.2}}, 0.0);
        muzzleBrake(r, 282.0, 32.0, 10.5, 0.0);
    }
    churchillTurret(r);
}

void charB1(Relief& r) {
    const auto placed = r.place(ground(0.0));
    const SideWheel front{-240, 80, 64};
    const SideWheel rear{252, 66, 46};
    const auto wheels = wheelRow(12, -176, 200, 24, 11);
    std::vector<SideWheel> all(wheels);
    const std::array<SideWheel, 2> top{{{-200, 148, 8}, {216, 128, 6}}};
    all.insert(all.end(), top.begin(), top.end());
    all.insert(all.end(), {front, rear});
    trackBelt(r, all, 9.0, 21.0);
    r.add(Shape::polygon({{-286, 84},
                          {-262, 122},
                          {-200, 146},
                          {216, 124},
                          {272, 96},
                          {286, 64},
                          {230, 30},
                          {-200, 30},
                          {-268, 48}}),
          flat(8.0).rounded(3.0, 3.0));
    // bolted armour of the running gear, mud chutes, the side door
    rivets(r, {{-196, 136}, {210, 116}}, 15.0, 1.7);
    rivets(r, {{-190, 40}, {224, 40}}, 15.0, 1.7);
    for (const double x : {-150.0, -70.0, 90.0, 170.0}) {
        r.add(Shape::polygon({{x - 16, 104}, {x + 16, 102}, {x + 8, 60}, {x - 8, 60}}), raise(-6.0));
        r.stain(Shape::polygon({{x - 16, 104}, {x + 16, 102}, {x + 8, 60}, {x - 8, 60}}), hex(0x181512), 0.4);
    }
    r.add(Shape::roundRect(-26, 62, 48, 128, 4), raise(3.0).rounded(2.0, 2.0));
    r.add(Shape::circle({12, 96}, 10.0), raise(2.0).rounded(2.0, 2.0));
    for (const SideWheel& wheel : wheels) {
        roadWheel(r, wheel, WheelStyle::Disc, 10.0);
    }
    sprocket(r, {252, 66, 40}, 15);
    // upper hull above the tracks
    sidePlate(r, {{-216, 138}, {-190, 188}, {-128, 190}, {58, 190}, {252, 166}, {300, 112}, {216, 130}},
              -2.0);
    rivets(r, {{-124, 182}, {54, 182}}, 13.0, 1.7);
    louvres(r, 84, 142, 190, 162, 10, false);
    r.add(Shape::polygon({{-218, 150}, {-206, 184}, {-132, 188}, {-132, 150}}), flat(4.0).rounded(3.0, 3.0));
    r.add(Shape::roundRect(-218, 160, -200, 174, 2), flat(10.0).rounded(2.0, 2.0));
    r.add(Shape::capsule({204, 172}, {262, 164}, 12.0), flat(0.0).rounded(6.0, 6.0), paints::Rust);
    {
        const auto gun = r.place(pointingForward(-152, 122, -24.0));
        barrel(r, {{40.0, 12.5}, {84.0, 12.0}, {84.0, 8.6}, {142.0, 7.6}, {142.0, 8.8}, {152.0, 8.8}}, 0.0);
    }
    {
        const auto gun = r.place(pointingForward(-64, 224, 2.0));
        barrel(r, {{50.0, 8.0}, {96.0, 6.6}, {96.0, 5.4}, {146.0, 4.4}, {146.0, 5.2}, {152.0, 5.2}}, 0.0);
    }
    r.add(Shape::roundRect(-138, 208, -112, 240, 7), flat(8.0).rounded(8.0, 8.0).rough(0.5));
    sideCast(r, {{-122, 194}, {-128, 226}, {-110, 252}, {-60, 258}, {-18, 250}, {0, 222}, {-6, 196}}, 24.0,
             22.0, 18.0);
    sideCast(r, {{-96, 252}, {-92, 270}, {-66, 280}, {-38, 270}, {-32, 252}}, 20.0, 18.0, 14.0);
    r.add(Shape::roundRect(-90, 262, -74, 268, 2), raise(3.0).rounded(2.0, 2.0));
    roundel(r, {-34, 222}, 13.0, {hex(0xA83232), White, hex(0x2F4A86)});
    digits(r, {96, 96}, 18, "323", White, 0.8);
    aerial(r, {-8, 190}, 110.0);
    splashMud(r, -300, 300, 60.0, Mud);
}

void panhard(Relief& r) {
    const auto placed = r.place(ground(0.0));
    r.add(Shape::polygon({{-236, 76}, {-120, 140}, {82, 142}, {196, 118}, {234, 76}, {200, 50}, {-206, 50}}),
          flat(-6.0).rounded(2.0, 2.0));
    r.add(Shape::polygon({{-224, 78}, {-122, 138}, {80, 140}, {190, 116}, {222, 78}}),
          slope({0, 78}, 14.0, {0, 140}, 2.0).rounded(1.5, 1.5));
    rivets(r, {{-206, 84}, {-122, 130}}, 11.0, 1.5);
    rivets(r, {{-114, 132}, {76, 134}}, 12.0, 1.5);
    rivets(r, {{-206, 60}, {206, 60}}, 13.0, 1.5);
    rivets(r, {{84, 136}, {186, 112}}, 11.0, 1.5);
    louvres(r, 104, 92, 166, 116, 7, false);
    gap(r, {{-60, 76}, {-60, 132}, {10, 134}, {10, 76}, {-60, 76}}, 1.4);
    r.add(Shape::roundRect(-150, 104, -120, 116, 2), raise(4.0).rounded(2.0, 2.0));
    tyre(r, {-142, 53, 53}, 29.0, 10.0);
    tyre(r, {152, 53, 53}, 29.0, 10.0);
    // mudguards
    for (const double x : {-142.0, 152.0}) {
        r.add(Shape::band({x, 53.0}, 57.0, 64.0, -62.0, 62.0), flat(34.0).rounded(2.5, 2.5));
    }
    r.add(Shape::roundRect(-56, 62, 66, 96, 3), flat(32.0).rounded(3.0, 3.0));
    r.add(Shape::circle({-206, 110}, 11.0), flat(14.0).rounded(9.0, 9.0));
    r.add(Shape::circle({-213, 110}, 6.5), flat(12.0), paints::Lens);
    {
        const auto gun = r.place(pointingForward(-12, 188, 2.0));
        barrel(r, {{60.0, 6.0}, {90.0, 5.0}, {90.0, 3.8}, {150.0, 3.2}}, 0.0);
        barrel(r, {{150.0, 3.2}, {150.0, 4.8}, {166.0, 6.0}}, 0.0, paints::DarkSteel);
    }
    r.add(Shape::roundRect(-92, 172, -70, 206, 5), flat(8.0).rounded(5.0, 5.0));
    r.add(Shape::polygon({{-80, 144}, {-54, 216}, {34, 218}, {54, 146}}),
          slope({0, 146}, 26.0, {0, 218}, 4.0).rounded(2.0, 2.0));
    r.add(Shape::polygon({{-80, 144}, {-54, 216}, {-38, 217}, {-52, 145}}),
          slope({0, 146}, 20.0, {0, 218}, 2.0));
    rivets(r, {{-70, 152}, {48, 152}}, 11.0, 1.5);
    rivets(r, {{-50, 210}, {30, 212}}, 11.0, 1.5);
    r.add(Shape::roundRect(-34, 217, 10, 226, 3), flat(6.0).rounded(3.0, 3.0));
    r.add(Shape::roundRect(-14, 178, 10, 188, 2), raise(4.0).rounded(2.0, 2.0));
    roundel(r, {28, 178}, 11.0, {hex(0xA83232), White, hex(0x2F4A86)});
    aerial(r, {64, 140}, 120.0);
    splashMud(r, -230, 230, 60.0, Mud);
}

constexpr std::array<Sheet, 5> Sheets{
    {{.path = "Units/Vehicles/Profiles/Profile American M4A3 Sherman.png",
      .width = 400,
      .height = 160,
      .pixelsPerCm = 0.46,
      .draw = sherman,
      .scheme = oliveDrab,
      .how = Sideways},
     {.path = "Units/Vehicles/Profiles/Profile British Grant Mk I.png",
      .width = 400,
      .height = 160,
      .pixelsPerCm = 0.46,
      .draw = grant,
      .scheme = desertGrant,
      .how = Sideways},
     {.path = "Units/Vehicles/Profiles/Profile British Churchill VII Crocodile.png",
      .width = 400,
      .height = 160,
      .pixelsPerCm = 0.46,
      .draw = churchill,
      .scheme = britishGreen,
      .how = Sideways},
     {.path = "Units/Vehicles/Profiles/Profile French Char B1 bis.png",
      .width = 400,
      .height = 160,
      .pixelsPerCm = 0.46,
      .draw = charB1,
      .scheme = frenchOutlined,
      .how = Sideways},
     {.path = "Units/Vehicles/Profiles/Profile French Panhard 178.png",
      .width = 400,
      .height = 160,
      .pixelsPerCm = 0.46,
      .draw = panhard,
      .scheme = frenchCavalry,
      .how = Sideways}}};

} // namespace

std::span<const Sheet> westernProfiles() {
    return Sheets;
}

} // namespace artwork
