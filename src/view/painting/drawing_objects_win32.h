#pragma once
// The fonts, brushes, pens and bitmaps that all painting shares, created once at start.

#include "view/drawing/draw_list.h"
#include "view/painting/gdi_object_win32.h"
#include "view/painting/gdiplus_win32.h"
#include "view/painting/pixmap.h"

#include <array>
#include <cstddef>
#include <memory>
#include <string>

namespace varrocade {

constexpr COLORREF colourRef(Colour colour) {
    return RGB(colour.red, colour.green, colour.blue);
}

struct DrawingObjects {
    static constexpr std::size_t GreenBrushes = 7;

    GdiObject<HFONT> smallFont;
    GdiObject<HFONT> normalFont;
    GdiObject<HFONT> boldFont;
    GdiObject<HFONT> largeFont;
    std::array<GdiObject<HBRUSH>, GreenBrushes> greenBrushes; ///< the bands of the availability timeline
    GdiObject<HBRUSH> beigeBrush;
    GdiObject<HBRUSH> whiteBrush;
    GdiObject<HBRUSH> highlightBrush;
    GdiObject<HPEN> redPen;
    GdiObject<HPEN> greenPen;
    GdiObject<HPEN> blackPen;
    GdiObject<HPEN> paleGreenPen;
    GdiObject<HPEN> yellowPen;
    GdiObject<HPEN> whitePen;
    GdiObject<HPEN> bluePen;
    GdiObject<HPEN> secondGreenPen;
    GdiObject<HBITMAP> weaponMark;    ///< bitmap resource 151
    GdiObject<HBITMAP> dischargeMark; ///< bitmap resource 183
    GdiObject<HBITMAP> exhaustMark;   ///< bitmap resource 165
    std::unique_ptr<Gdiplus::Bitmap> grid;
    Pixmap gridPixels; ///< of the same picture
    int dpi = 96;

    /// A length of 96 dpi in the pixels of the window's screen.
    [[nodiscard]] int scaled(int length) const { return MulDiv(length, dpi, 96); }
};

/// Creates everything, in the order of the members, for a screen of `dpi`. `gridPath` is the ground's
/// picture.
DrawingObjects createDrawingObjects(HINSTANCE instance, const std::string& gridPath, int dpi);

/// The ground's picture again, from another folder.
void loadGrid(DrawingObjects& objects, const std::string& gridPath);

/// The fonts again for another screen.
void createFonts(DrawingObjects& objects, int dpi);

/// 8-bit text in the wide characters that GDI+ takes.
std::wstring widened(const std::string& text);

} // namespace varrocade
