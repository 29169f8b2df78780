#pragma once
// Puts a draw list on a device.

#include "view/drawing/view_place.h"
#include "view/painting/drawing_objects_win32.h"
#include "view/painting/picture_cache_win32.h"

#include <memory>

namespace varrocade {

/// A bitmap in memory that painting goes to first, so that the screen changes in one step.
class MemoryBitmap {
public:
    MemoryBitmap(HDC screen, int width, int height);
    MemoryBitmap(const MemoryBitmap&) = delete;
    MemoryBitmap& operator=(const MemoryBitmap&) = delete;
    ~MemoryBitmap();
    [[nodiscard]] HDC device() const { return device_; }

private:
    HDC device_;
    HBITMAP bitmap_;
    HGDIOBJ former_;
};

/// Paints an area on the ground of all sheets so that the screen changes in one step.
template <typename Paint>
void paintBuffered(HDC screen, const RECT& area, const DrawingObjects& objects, Paint paint) {
    const MemoryBitmap memory(screen, area.right, area.bottom);
    FillRect(memory.device(), &area, objects.beigeBrush.get());
    paint(memory.device());
    BitBlt(screen, 0, 0, area.right, area.bottom, memory.device(), 0, 0, SRCCOPY);
}

/// A bitmap that is kept from one painting to the next.
struct Canvas {
    std::unique_ptr<MemoryBitmap> bitmap;
    SIZE size{};
    bool isPainted = false; ///< shows what it is to show
};

/// The device of a canvas, which is unpainted when it was of another size.
HDC deviceOf(Canvas& canvas, HDC screen, SIZE size);

/// How a drawing is looked at.
struct DrawingView {
    Fit fit;
    UnitPart selected = {};
    std::string caption = {}; ///< beside the selected part, while it is moved
};

/// Pixels of 96 dpi that a drawing leaves free at the edges of its area.
inline constexpr int DrawingMargin = 24;
/// And more of them at its lower edge, for the scale.
inline constexpr int ScaleHeight = 12;

/// Paints a drawing into `area`: the ground with its metre grid, the unit, a scale in metres.
void paintDrawing(HDC device, const RECT& area, const DrawList& list, const DrawingView& view,
                  const DrawingObjects& objects, PictureCache& pictures);

/// Decodes and places a picture of a drawing, so that painting it into `area` finds that done.
void preparePicture(const PictureItem& item, const RECT& area, const Fit& fit, PictureCache& pictures);

} // namespace varrocade
