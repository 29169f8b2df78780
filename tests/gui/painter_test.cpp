// What the painter puts on a device, compared by colours with a tolerance. Nothing here depends on fonts.

#include "temp_game.h"
#include "windows_driver.h"

#include "view/drawing/drawing_angles.h"
#include "view/painting/painter_win32.h"

#include <gtest/gtest.h>

#include <array>

namespace varrocade::gui {

namespace {

constexpr COLORREF Red = RGB(220, 30, 20);
constexpr COLORREF Green = RGB(20, 160, 40);
constexpr COLORREF PlainGround = RGB(206, 200, 170);

/// A PNG whose front half is of one colour and whose rear half is empty.
void writeHalf(const std::string& path, int width, int height, COLORREF colour) {
    constexpr CLSID pngEncoder = {
        0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};
    Gdiplus::Bitmap bitmap(width, height, PixelFormat32bppARGB);
    for (int y = 0; y < height / 2; ++y) {
        for (int x = 0; x < width; ++x) {
            bitmap.SetPixel(x, y, Gdiplus::Color(GetRValue(colour), GetGValue(colour), GetBValue(colour)));
        }
    }
    ASSERT_EQ(bitmap.Save(toWide(path).c_str(), &pngEncoder, nullptr), Gdiplus::Ok);
}

int difference(COLORREF a, COLORREF b) {
    return std::max({std::abs(GetRValue(a) - GetRValue(b)), std::abs(GetGValue(a) - GetGValue(b)),
                     std::abs(GetBValue(a) - GetBValue(b))});
}

} // namespace

class PainterTest : public testing::Test {
protected:
    static constexpr int Size = 300;
    static constexpr int Tolerance = 6;

    PainterTest() : screen(GetDC(nullptr)), bitmap(screen, Size, Size) {
        writeHalf(game.path() + "red.png", 100, 200, Red);
        writeHalf(game.path() + "green.png", 40, 120, Green);
        // Without a picture of the ground, so that it is of one colour.
        objects = createDrawingObjects(GetModuleHandleA(nullptr), game.path() + "no grid.png", 96);
    }
    ~PainterTest() override { ReleaseDC(nullptr, screen); }

    void paint(const DrawList& list, const UnitPart& selected = {}) {
        paintDrawing(bitmap.device(), {0, 0, Size, Size}, list, {.fit = fit, .selected = selected}, objects,
                     pictures);
    }
    /// The colour at a point of the drawing.
    [[nodiscard]] COLORREF at(Point point) const {
        return GetPixel(bitmap.device(), static_cast<int>(fit.screenX(point.x)),
                        static_cast<int>(fit.screenY(point.y)));
    }
    void expectColours(std::initializer_list<std::pair<Point, COLORREF>> expected) const {
        for (const auto& [point, colour] : expected) {
            EXPECT_LE(difference(at(point), colour), Tolerance)
                << point.x << ", " << point.y << ": " << std::hex << at(point) << " for " << colour;
        }
    }

    PictureSession session;
    TempGame game;
    HDC screen;
    MemoryBitmap bitmap;
    DrawingObjects objects;
    PictureCache pictures;
    Fit fit{100, 150, 150};
};

TEST_F(PainterTest, PicturesAreStretchedTurnedAndPutOverOneAnother) {
    DrawList list;
    list.items.emplace_back(PictureItem{game.path() + "red.png", {}, 100, 200, 0});
    list.items.emplace_back(PictureItem{game.path() + "green.png", {10, 20}, 80, 240, 90});
    paint(list);
    expectColours({{{-30, 80}, Red},
                   {{-45, 5}, Red},
                   {{-30, -50}, PlainGround}, // the empty half
                   {{-60, 50}, PlainGround},
                   {{15, 20}, Green}, // on top, its front to the right
                   {{120, 50}, Green},
                   {{0, 20}, Red},
                   {{120, 65}, PlainGround}});
    // Twice as large about the same origin, and again from what is kept.
    fit.pixelsPerMetre = 200;
    for (int i = 0; i < 2; ++i) {
        paint(list);
        expectColours(
            {{{-45, 70}, Red}, {{-45, -5}, PlainGround}, {{60, 20}, Green}, {{-55, 20}, PlainGround}});
    }
    // Half of it outside.
    fit = {100, 0, 0};
    paint(list);
    expectColours({{{45, -5}, Green}, {{45, -60}, PlainGround}});
}

TEST_F(PainterTest, WhatIsMissingOrBrokenHasAFrame) {
    game.write("broken.png", "no picture");
    DrawList list;
    list.items.emplace_back(PlaceholderItem{"", {0, 0}, 100, 200, 0, false});
    list.items.emplace_back(PictureItem{game.path() + "broken.png", {0, 0}, 40, 60, 0});
    paint(list);
    expectColours({{{-50, 70}, RGB(255, 0, 0)},
                   {{30, 100}, RGB(255, 0, 0)},
                   {{-20, -20}, RGB(255, 0, 0)},
                   {{-35, 70}, PlainGround}});
}

TEST_F(PainterTest, PicturesTooLargeAndBrokenOnesAreTriedOnce) {
    using namespace std::string_literals;
    // 30,000 pixels either way, as the header says.
    game.write("bomb.png", "\x89PNG\r\n\x1A\n\0\0\0\x0DIHDR\0\0\x75\x30\0\0\x75\x30\x08\x06\0\0\0"s);
    game.write("broken.png", "no picture");
    const std::string bomb = game.path() + "bomb.png";
    const std::string broken = game.path() + "broken.png";
    EXPECT_EQ(pictures.pixels(bomb), nullptr);
    EXPECT_EQ(pictures.failureOf(bomb), "Too large");
    EXPECT_EQ(pictures.pixels(broken), nullptr);
    EXPECT_EQ(pictures.failureOf(broken), "Unreadable");
    EXPECT_EQ(pictures.failureOf(game.path() + "red.png"), "");
    // Only what is forgotten is looked at again.
    writeHalf(broken, 4, 4, Red);
    EXPECT_EQ(pictures.pixels(broken), nullptr);
    pictures.clear();
    EXPECT_NE(pictures.pixels(broken), nullptr);
    EXPECT_EQ(pictures.failureOf(broken), "");
}

TEST_F(PainterTest, TheSelectedPartHasARingInTheSystemsColour) {
    const UnitPart turret{PartKind::Component, 1, 0};
    DrawList list;
    list.items.emplace_back(PictureItem{game.path() + "red.png", {}, 100, 200, 0, turret, 120});
    ShapeItem shape{.corners = {{-140, 100}, {-100, 100}, {-100, 140}, {-140, 140}}, .fill = {1, 2, 200}};
    list.items.emplace_back(shape);
    paint(list, turret);
    const COLORREF highlight = GetSysColor(COLOR_HIGHLIGHT);
    expectColours({{{-60, 0}, highlight}, {{0, -60}, highlight}, {{-120, 120}, RGB(1, 2, 200)}});
    paint(list);
    expectColours({{{-60, 0}, PlainGround}, {{0, -60}, PlainGround}});
}

} // namespace varrocade::gui
