#include "catalogue.h"
#include "parts/armour.h"
#include "parts/fittings.h"
#include "parts/gear.h"
#include "parts/wreck.h"
#include "schemes.h"

#include <array>

namespace artwork {

namespace {

constexpr Paint Boards{.colour = hex(0x8B7A58), .scheme = 0.25, .gloss = 0.03};

void wheel(Relief& r, double width, double radius) {
    r.add(Shape::roundRect(-width / 2.0, -radius, width / 2.0, radius, width * 0.35),
          tube({-1e4, 0}, {1e4, 0}, radius, radius, radius).rounded(width * 0.4, 4.0), paints::Rubber);
    for (double y = -radius + 6.0; y < radius - 4.0; y += 6.0) {
        r.add(Shape::line({{-width * 0.4, y}, {0.0, y + 3.0}, {width * 0.4, y}}, 1.8), raise(-1.0),
              paints::Rubber);
    }
}

void chassis(Relief& r) {
    for (const double side : {-1.0, 1.0}) {
        r.add(Shape::rect(side > 0 ? 34.0 : -40.0, -258.0, side > 0 ? 40.0 : -34.0, 250.0), flat(58.0),
              paints::DarkSteel);
        {
            const auto placed = r.place({.x = side * 72.0, .y = 168.0, .angle = side * 2.0});
            wheel(r, 17.0, 42.0);
        }
        for (const double x : {64.0, 83.0}) {
            const auto placed = r.place({.x = side * x, .y = -152.0});
            wheel(r, 17.0, 42.0);
        }
    }
    r.add(Shape::roundRect(-84.0, 254.0, 84.0, 266.0, 3.0), flat(58.0).rounded(2.5, 2.0), paints::Steel);
    r.add(Shape::roundRect(-80.0, 250.0, 80.0, 255.0, 2.0), flat(52.0), paints::Steel);
}

void wings(Relief& r) {
    for (const double side : {-1.0, 1.0}) {
        const Shape wing = Shape::smooth({{side * 50, 232},
                                          {side * 72, 232},
                                          {side * 90, 214},
                                          {side * 92, 170},
                                          {side * 88, 120},
                                          {side * 52, 112},
                                          {side * 50, 150},
                                          {side * 52, 200}});
        r.add(wing, tube({-1e4, 172}, {1e4, 172}, 62.0, 62.0, 34.0).rounded(9.0, 9.0));
        r.add(Shape::roundRect(side > 0 ? 56.0 : -92.0, 14.0, side > 0 ? 92.0 : -56.0, 118.0, 4.0),
              flat(52.0).rounded(1.5, 1.0));
        for (double x = 62.0; x < 90.0; x += 6.0) {
            r.add(Shape::capsule({side * x, 20}, {side * x, 108}, 1.4), raise(0.8), paints::Steel);
        }
        const auto placed = r.place({.x = side * 46.0, .y = 236.0, .z = 86.0});
        r.add(Shape::capsule({-side * 12.0, -2.0}, {0, 0}, 3.0), flat(2.0), paints::Steel);
        headlight(r, 10.0);
    }
}

void bonnet(Relief& r) {
    const Shape cover = Shape::polygon({{-33, 236}, {33, 236}, {44, 122}, {-44, 122}});
    r.add(cover, tube({0, 240}, {0, 120}, 33.0, 46.0, 78.0));
    r.add(Shape::roundRect(-34.0, 230.0, 34.0, 242.0, 3.0), flat(112.0).rounded(3.0, 3.0));
    for (double x = -28.0; x <= 28.0; x += 4.0) {
        r.add(Shape::rect(x, 238.0, x + 2.0, 242.0), raise(-4.0), paints::Dark);
    }
    {
        const auto placed = r.placeOn({.y = 235.0});
        fillerCap(r, 5.0);
    }
    gap(r, {{0, 230}, {0, 124}}, 1.2);
    for (const double side : {-1.0, 1.0}) {
        gap(r, {{side * 24, 230}, {side * 33, 124}}, 1.0);
        for (int i = 0; i < 11; ++i) {
            const double y = 136.0 + i * 8.0;
            const double x = lerp(40.0, 32.5, (y - 124.0) / 110.0);
            r.add(Shape::capsule({side * (x - 6.0), y}, {side * x, y}, 2.2), raise(1.6).rounded(1.1, 1.4));
        }
    }
}

void cab(Relief& r) {
    r.add(Shape::roundRect(-62.0, 20.0, 62.0, 126.0, 6.0), flat(150.0).rounded(4.0, 3.0));
    // windscreen below the roof's edge
    r.add(Shape::roundRect(-58.0, 116.0, 58.0, 128.0, 3.0), slope({0, 116}, 150.0, {0, 128}, 118.0));
    r.add(Shape::rect(-50.0, 119.0, -2.0, 125.0), raise(-0.6), paints::Glass);
    r.add(Shape::rect(2.0, 119.0, 50.0, 125.0), raise(-0.6), paints::Glass);
    // roof: a wooden frame under leathercloth
    const Shape roof = Shape::roundRect(-64.0, 14.0, 64.0, 117.0, 10.0);
    r.add(roof, flat(197.0).rounded(16.0, 11.0).rough(0.5),
          {.colour = hex(0x4A4B3A), .scheme = 0.35, .gloss = 0.08});
    for (double y = 34.0; y < 110.0; y += 19.0) {
        r.add(Shape::capsule({-54, y}, {54, y}, 3.0), raise(0.8).rounded(1.5, 0.8),
              {.colour = hex(0x4A4B3A), .scheme = 0.35});
    }
    for (const double side : {-1.0, 1.0}) {
        const auto placed = r.place({.x = side * 66.0, .y = 104.0, .angle = side * 18.0, .z = 150.0});
        r.add(Shape::capsule({0, 0}, {side * 10.0, 4.0}, 1.8), flat(3.0), paints::Steel);
        r.add(Shape::roundRect(side > 0 ? 8.0 : -16.0, 2.0, side > 0 ? 16.0 : -8.0, 7.0, 2.0),
              flat(8.0).rounded(2.0, 2.0), paints::Steel);
    }
}

void cargoBed(Relief& r) {
    r.add(Shape::rect(-101.0, -266.0, 101.0, 8.0), flat(98.0), Boards);
    for (double x = -92.0; x < 95.0; x += 15.4) {
        gap(r, {{x, -263}, {x, 5}}, 1.2, 1.4);
    }
    for (double x = -97.0; x < 95.0; x += 15.4) {
        r.stain(Shape::rect(x - 2.0, -262.0, x + 8.0, 4.0), hex(0x5B4C34),
                0.12 + 0.1 * std::fmod(std::abs(x), 3.0));
    }
    for (const double y : {-200.0, -130.0, -60.0}) {
        bolts(r, {-94, y}, {94, y}, 13, 1.2);
    }
    // side boards with their iron stanchions
    const auto board = [&](double x0, double y0, double x1, double y1) {
        r.add(Shape::rect(x0, y0, x1, y1), flat(142.0).rounded(0.8, 0.8));
    };
    board(-102.0, -266.0, -97.0, 8.0);
    board(97.0, -266.0, 102.0, 8.0);
    board(-102.0, 3.5, 102.0, 8.5);
    board(-102.0, -267.0, 102.0, -262.0);
    for (const double side : {-1.0, 1.0}) {
        for (const double y : {-230.0, -150.0, -70.0, -10.0}) {
            r.add(Shape::rect(side > 0 ? 96.0 : -102.0, y, side > 0 ? 102.0 : -96.0, y + 6.0),
                  flat(148.0).rounded(0.8, 0.6), paints::Steel);
        }
    }
}

void cargo(Relief& r) {
    for (const double y : {-36.0, -128.0, -214.0}) {
        // planks hung across as benches
        r.add(Shape::rect(-96.0, y - 11.0, 96.0, y + 11.0), flat(126.0).rounded(1.0, 0.8), paints::Wood);
        gap(r, {{-96, y}, {96, y}}, 1.0, 1.4);
    }
    {
        const auto placed = r.place({.x = -62.0, .y = -82.0, .angle = 4.0, .z = 98.0});
        crate(r, 48.0, 58.0, 34.0);
    }
    {
        const auto placed = r.place({.x = -58.0, .y = -172.0, .angle = -6.0, .z = 98.0});
        crate(r, 48.0, 34.0, 24.0);
    }
    {
        const auto placed = r.place({.x = 48.0, .y = -82.0, .angle = 12.0, .z = 98.0});
        canvasRoll(r, 66.0, 13.0);
    }
    for (const double x : {52.0, 82.0}) {
        const auto placed = r.place({.x = x, .y = -174.0, .z = 98.0});
        r.add(Shape::circle({}, 14.0), flat(38.0).rounded(2.0, 1.2), paints::Rust);
        r.add(Shape::circle({}, 11.5), raise(-1.4), paints::Rust);
        r.add(Shape::circle({5, 4}, 2.6), raise(2.0), paints::Steel);
    }
}

void drawHull(Relief& r) {
    chassis(r);
    wings(r);
    bonnet(r);
    cab(r);
    cargoBed(r);
    cargo(r);
}

void damageHull(Relief& r) {
    burnAll(r, 0.95, 1.2, 131);
    scorch(r, {0, 150}, 110.0, 1.0, 132);
    scorch(r, {10, -120}, 140.0, 1.0, 133);
    shellHole(r, {20, 60}, 9.0);
    tornPlate(r, {30, -60}, 30.0, 36.0, 4);
    tornPlate(r, {-50, -220}, 24.0, 20.0, 6);
    openHatch(r, Shape::polygon({{-30, 130}, {-2, 130}, {-2, 222}, {-24, 222}}));
    debris(r, {0, -60}, 130.0, 60, 134);
}

constexpr std::array<Sheet, 2> Sheets{{{.path = "Units/Vehicles/Hulls/Russian GAZ-MM hull.png",
                                        .width = 204,
                                        .height = 535,
                                        .draw = drawHull,
                                        .scheme = lorryGreen},
                                       {.path = "Units/Vehicles/Destroyed/Russian GAZ-MM hull destroyed.png",
                                        .width = 204,
                                        .height = 535,
                                        .draw = drawHull,
                                        .damage = damageHull,
                                        .scheme = lorryGreen}}};

} // namespace

std::span<const Sheet> lorrySheets() {
    return Sheets;
}

} // namespace artwork
