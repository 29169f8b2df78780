#include "catalogue.h"
#include "parts/armour.h"
#include "parts/fittings.h"
#include "parts/gear.h"
#include "parts/wreck.h"
#include "schemes.h"

#include <array>

namespace artwork {

namespace {

constexpr TrackStyle HalftrackTrack{.pitch = 14.0, .rubber = true};
constexpr double Wall = 175.0;

void runningGear(Relief& r) {
    r.add(Shape::rect(-62.0, -272.0, 62.0, 240.0), flat(46.0), paints::Dark);
    for (const double side : {-1.0, 1.0}) {
        track(r, side > 0 ? 64.0 : -92.0, side > 0 ? 92.0 : -64.0, -224.0, 60.0, 78.0, 40.0, HalftrackTrack);
        // front wheel, standing out from under its wing
        const auto wheel = r.place({.x = side * 82.0, .y = 222.0, .angle = -3.0});
        r.add(Shape::roundRect(-10.5, -44.0, 10.5, 44.0, 6.0),
              tube({-1e4, 0}, {1e4, 0}, 44.0, 44.0, 44.0).rounded(4.0, 5.0), paints::Rubber);
        for (double y = -36.0; y < 40.0; y += 7.0) {
            r.add(Shape::line({{-9.0, y}, {0.0, y + 4.0}, {9.0, y}}, 2.2), raise(-1.2), paints::Rubber);
        }
    }
    // bumper roller between the wings
    r.add(Shape::roundRect(-60.0, 276.0, 60.0, 288.0, 5.0), tube({-60, 282}, {60, 282}, 6.0, 6.0, 56.0));
    for (const double side : {-1.0, 1.0}) {
        const auto placed = r.place({.x = side * 34.0, .y = 274.0, .z = 58.0});
        shackle(r);
    }
}

void wings(Relief& r) {
    for (const double side : {-1.0, 1.0}) {
        r.add(Shape::roundRect(side > 0 ? 66.0 : -98.0, 178.0, side > 0 ? 98.0 : -66.0, 252.0, 9.0),
              tube({-1e4, 212}, {1e4, 212}, 58.0, 58.0, 42.0).rounded(2.5, 2.5));
        // running board with its boxes
        r.add(Shape::rect(side > 0 ? 78.0 : -103.0, -258.0, side > 0 ? 103.0 : -78.0, 180.0),
              flat(84.0).rounded(1.2, 1.0));
        for (int i = 0; i < 3; ++i) {
            const auto placed = r.place({.x = side * 93.0, .y = 26.0 - i * 82.0, .z = 84.0});
            stowageBox(r, 20.0, 72.0, 24.0);
        }
        {
            const auto placed = r.place({.x = side * 92.0, .y = 112.0, .z = 84.0});
            if (side < 0) {
                fireExtinguisher(r);
            } else {
                jerrycan(r, paints::Hull);
            }
        }
        {
            const auto placed = r.place({.x = side * 86.0, .y = 246.0, .z = 96.0});
            r.add(Shape::capsule({0, 0}, {0, 10.0}, 2.0), raise(16.0), paints::WornSteel);
            r.add(Shape::circle({0, 12.0}, 3.2), raise(18.0).rounded(3.0, 3.0), paints::Lens);
        }
        const auto placed = r.place({.x = side * 60.0, .y = 258.0, .z = 92.0});
        headlight(r, 8.0);
    }
}

void bonnet(Relief& r) {
    frustumSymmetric(r, {{46, 272}, {64, 250}, {86, 104}, {86, 96}},
                     {{28, 240}, {46, 230}, {70, 104}, {70, 96}}, 84.0, 134.0);
    r.add(Shape::polygon({{-46, 231}, {46, 231}, {70, 96}, {-70, 96}}),
          slope({0, 231}, 133.0, {0, 96}, 146.0).rounded(1.5, 1.0));
    r.add(Shape::polygon({{-28, 241}, {28, 241}, {46, 231}, {-46, 231}}),
          slope({0, 231}, 133.0, {0, 241}, 124.0));
    weld(r, {{-46, 231}, {46, 231}}, 2.2);
    for (const double side : {-1.0, 1.0}) {
        const auto placed = r.placeOn({.x = side * 25.0, .y = 166.0, .angle = side * -4.0});
        hatchRect(r, 42.0, 84.0, 1.8, 3.0);
    }
    louvres(r, -30.0, 206.0, 30.0, 224.0, 5);
    const auto placed = r.placeOn({.x = 0.0, .y = 186.0});
    fillerCap(r, 6.0);
}

void hullWalls(Relief& r) {
    // below the bend the sides run in, above it too: only the upper half shows from above
    frustumSymmetric(r, {{88, 104}, {102, 60}, {102, -238}, {86, -288}},
                     {{70, 92}, {74, 56}, {74, -244}, {62, -268}}, 116.0, Wall, false);
    const Shape inside =
        Shape::symmetric({{0, 92}, {69, 92}, {72.5, 56}, {72.5, -243}, {61, -266}, {0, -266}});
    r.add(inside, flat(72.0), {.colour = hex(0x4C5254), .gloss = 0.05});
    r.stain(inside, hex(0x17181A), 0.35);
    // rim of the walls
    for (const double side : {-1.0, 1.0}) {
        r.add(Shape::line({{side * 69.5, 92}, {side * 73.5, 56}, {side * 73.5, -243.5}, {side * 61.5, -267}},
                          2.4),
              flat(Wall).rounded(1.0, 0.8));
        weld(r, {{side * 102, 58}, {side * 102, -238}}, 2.2);
        bolts(r, {side * 88, 40}, {side * 88, -220}, 8, 1.4);
        gap(r, {{side * 75, -90}, {side * 101, -96}}, 1.2);
    }
    r.add(Shape::line({{-61.5, -267}, {61.5, -267}}, 2.4), flat(Wall).rounded(1.0, 0.8));
    gap(r, {{0, -268}, {0, -288}}, 1.6, 2.0);
    for (const double side : {-1.0, 1.0}) {
        const auto placed = r.placeOn({.x = side * 36.0, .y = -280.0});
        handle(r, 14.0);
    }
}

void interior(Relief& r) {
    for (double y = -252.0; y < 84.0; y += 9.0) {
        r.add(Shape::capsule({-38, y}, {38, y}, 1.6), raise(1.2), {.colour = hex(0x5A5E5E), .gloss = 0.1});
    }
    for (const double side : {-1.0, 1.0}) {
        // benches in two lengths, the backrests folded against the wall, rifles in their racks
        for (const auto& [y0, y1] : {std::array{-246.0, -124.0}, std::array{-116.0, 6.0}}) {
            r.add(Shape::roundRect(side > 0 ? 30.0 : -58.0, y0, side > 0 ? 58.0 : -30.0, y1, 4.0),
                  flat(112.0).rounded(4.0, 3.0), paints::Leather);
            for (double y = y0 + 20.0; y < y1; y += 24.0) {
                gap(r, {{side * 31, y}, {side * 57, y}}, 1.2, 1.6);
            }
            r.add(Shape::roundRect(side > 0 ? 61.0 : -67.0, y0 + 2.0, side > 0 ? 67.0 : -61.0, y1 - 2.0, 2.0),
                  flat(146.0).rounded(2.0, 2.0), paints::Leather);
        }
        const auto rack = r.place({.x = side * 69.0, .y = -60.0, .z = 150.0});
        r.add(Shape::capsule({0, -52}, {0, 50}, 3.4), flat(3.0).rounded(1.5, 1.5), paints::Wood);
        r.add(Shape::capsule({0, -4}, {0, 58}, 1.8), flat(4.0).rounded(0.9, 0.9), paints::DarkSteel);
    }
    for (const double side : {-1.0, 1.0}) {
        // the seats of driver and commander under the roof's rear edge
        r.add(Shape::roundRect(side > 0 ? 14.0 : -52.0, 18.0, side > 0 ? 52.0 : -14.0, 52.0, 6.0),
              flat(108.0).rounded(5.0, 4.0), paints::Leather);
        r.add(Shape::roundRect(side > 0 ? 14.0 : -52.0, 10.0, side > 0 ? 52.0 : -14.0, 18.0, 3.0),
              flat(136.0).rounded(3.0, 3.0), paints::Leather);
    }
    {
        const auto placed = r.place({.x = 4.0, .y = -40.0, .angle = 8.0, .z = 74.0});
        crate(r, 30.0, 44.0, 24.0);
    }
    {
        const auto placed = r.place({.x = -6.0, .y = -196.0, .angle = 84.0, .z = 74.0});
        canvasRoll(r, 52.0, 11.0);
    }
}

void roofAndScreen(Relief& r) {
    r.add(Shape::polygon({{-70, 96}, {70, 96}, {73.5, 54}, {-73.5, 54}}), flat(Wall + 2.0).rounded(1.6, 1.2));
    r.add(Shape::polygon({{-78, 106}, {78, 106}, {70, 94}, {-70, 94}}),
          slope({0, 106}, 148.0, {0, 94}, Wall + 2.0));
    for (const double side : {-1.0, 1.0}) {
        r.add(Shape::roundRect(side > 0 ? 16.0 : -58.0, 97.0, side > 0 ? 58.0 : -16.0, 107.0, 2.0),
              raise(4.0).rounded(2.0, 2.0));
        r.add(Shape::rect(side > 0 ? 22.0 : -52.0, 103.5, side > 0 ? 52.0 : -22.0, 106.0), raise(-3.0),
              paints::Dark);
    }
    bolts(r, {-64, 90}, {64, 90}, 9, 1.4);
    const auto placed = r.placeOn({.x = 62.0, .y = 62.0});
    antennaBase(r);
}

void drawHull(Relief& r) {
    runningGear(r);
    wings(r);
    bonnet(r);
    hullWalls(r);
    interior(r);
    roofAndScreen(r);
    {
        const auto placed = r.place({.x = 88.0, .y = 150.0, .angle = 176.0, .z = 82.0});
        silencer(r, 18.0, 7.0, 0.0);
    }
    {
        const auto placed = r.place({.x = -92.0, .y = 160.0, .z = 86.0});
        shovel(r, 66.0);
    }
    balkenCross(r, {0, 136}, 12.0);
}

void damageHull(Relief& r) {
    burnAll(r, 0.85, 0.8, 5);
    scorch(r, {0, -80}, 130.0, 1.0, 2);
    scorch(r, {0, 190}, 60.0, 0.8, 3);
    shellHole(r, {-86, 10}, 7.0);
    shellHole(r, {24, 176}, 6.0);
    tornPlate(r, {90, -150}, 12.0, 40.0, 8);
    openHatch(r, Shape::polygon({{-44, 130}, {-6, 128}, {-8, 204}, {-40, 206}}));
    brokenTrack(r, {-86, -190}, 6.0, 27.0, 5, 14.0);
    debris(r, {0, -60}, 110.0, 50, 5);
}

constexpr std::array<Sheet, 2> Sheets{
    {{.path = "Units/Vehicles/Hulls/German Sd Kfz 251-1 Ausf C hull.png",
      .width = 210,
      .height = 580,
      .draw = drawHull,
      .scheme = panzerGrey},
     {.path = "Units/Vehicles/Destroyed/German Sd Kfz 251-1 Ausf C hull destroyed.png",
      .width = 210,
      .height = 580,
      .draw = drawHull,
      .damage = damageHull,
      .scheme = panzerGrey}}};

} // namespace

std::span<const Sheet> halftrackSheets() {
    return Sheets;
}

} // namespace artwork
