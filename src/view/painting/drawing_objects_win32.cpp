#include "view/painting/drawing_objects_win32.h"

#include "resources/resource.h"
#include "view/painting/picture_cache_win32.h"

#include <cstdint>
#include <span>

namespace varrocade {

namespace {

constexpr COLORREF Beige = RGB(239, 226, 191);

/// Palette-relative, as the colours of the program have always been.
constexpr COLORREF paletteColour(COLORREF colour) {
    constexpr COLORREF paletteRelative = 0x02000000;
    return colour | paletteRelative;
}

GdiObject<HFONT> font(int height, int weight, int dpi) {
    return GdiObject<HFONT>(CreateFontA(MulDiv(height, dpi, USER_DEFAULT_SCREEN_DPI), 0, 0, 0, weight, FALSE,
                                        FALSE, FALSE, ANSI_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS,
                                        DEFAULT_QUALITY, VARIABLE_PITCH | FF_DONTCARE, "Arial"));
}

GdiObject<HBRUSH> brush(COLORREF colour) {
    return GdiObject<HBRUSH>(CreateSolidBrush(paletteColour(colour)));
}

GdiObject<HPEN> pen(int width, COLORREF colour) {
    return GdiObject<HPEN>(CreatePen(PS_SOLID, width, paletteColour(colour)));
}

constexpr std::uint32_t MarkKey = 0x00FF00FF; ///< the colour of a mark's bitmap that is transparent

/// A bitmap of the resources as one that blends: blending is much faster than leaving a colour out.
GdiObject<HBITMAP> mark(HINSTANCE instance, int id) {
    const GdiObject<HBITMAP> loaded(static_cast<HBITMAP>(
        LoadImageA(instance, MAKEINTRESOURCEA(id), IMAGE_BITMAP, 0, 0, LR_DEFAULTCOLOR)));
    BITMAP size{};
    GetObjectA(loaded.get(), sizeof(size), &size);
    std::span<std::uint32_t> pixels;
    GdiObject<HBITMAP> result = pixelBitmap(size.bmWidth, size.bmHeight, pixels);
    BITMAPINFO info = pixelFormat(size.bmWidth, size.bmHeight);
    const MemoryDevice device(nullptr);
    GetDIBits(device.get(), loaded.get(), 0, static_cast<UINT>(size.bmHeight), pixels.data(), &info,
              DIB_RGB_COLORS);
    constexpr std::uint32_t opaque = 0xFF000000;
    for (std::uint32_t& pixel : pixels) {
        const std::uint32_t colour = pixel & ~opaque;
        pixel = colour == MarkKey ? 0 : colour | opaque;
    }
    return result;
}

} // namespace

void createFonts(DrawingObjects& objects, int dpi) {
    constexpr int smallHeight = 14;
    constexpr int normalHeight = 16;
    constexpr int largeHeight = 22;
    objects.dpi = dpi;
    objects.smallFont = font(smallHeight, FW_NORMAL, dpi);
    objects.normalFont = font(normalHeight, FW_NORMAL, dpi);
    objects.boldFont = font(normalHeight, FW_BOLD, dpi);
    objects.largeFont = font(largeHeight, FW_NORMAL, dpi);
}

DrawingObjects createDrawingObjects(HINSTANCE instance, const std::string& gridPath, int dpi) {
    constexpr int wide = 3;
    DrawingObjects objects;
    createFonts(objects, dpi);
    for (std::size_t i = 0; i < objects.greenBrushes.size(); ++i) {
        objects.greenBrushes[i] = brush(i % 2 == 0 ? RGB(0, 160, 0) : RGB(0, 140, 0));
    }
    objects.beigeBrush = brush(Beige);
    objects.whiteBrush = brush(RGB(255, 255, 255));
    objects.highlightBrush = brush(GetSysColor(COLOR_HIGHLIGHT));
    objects.redPen = pen(1, RGB(255, 0, 0));
    objects.greenPen = pen(1, RGB(0, 255, 0));
    objects.blackPen = pen(1, RGB(0, 0, 0));
    objects.paleGreenPen = pen(1, RGB(169, 236, 121));
    objects.yellowPen = pen(1, RGB(255, 255, 0));
    objects.whitePen = pen(1, RGB(255, 255, 255));
    objects.bluePen = pen(wide, RGB(128, 128, 255));
    objects.secondGreenPen = pen(1, RGB(0, 255, 0));
    objects.weaponMark = mark(instance, IDB_WEAPON_MARK);
    objects.dischargeMark = mark(instance, IDB_DISCHARGER_MARK);
    objects.exhaustMark = mark(instance, IDB_EXHAUST_MARK);
    loadGrid(objects, gridPath);
    return objects;
}

void loadGrid(DrawingObjects& objects, const std::string& gridPath) {
    objects.gridPixels = {};
    objects.grid = std::make_unique<Gdiplus::Bitmap>(widened(gridPath).c_str());
    if (objects.grid->GetLastStatus() != Gdiplus::Ok) {
        objects.grid.reset();
    } else {
        objects.gridPixels = pixelsOf(*objects.grid);
    }
}

std::wstring widened(const std::string& text) {
    const int length = MultiByteToWideChar(CP_ACP, 0, text.data(), static_cast<int>(text.size()), nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(length), L'\0');
    MultiByteToWideChar(CP_ACP, 0, text.data(), static_cast<int>(text.size()), wide.data(), length);
    return wide;
}

} // namespace varrocade
