#pragma once
// Painting through GDI.

#include "view/painting/drawing_objects_win32.h"
#include "view/painting/paint_device.h"
#include "view/painting/picture_cache_win32.h"

namespace varrocade {

inline PixelRect pixelRect(const RECT& area) {
    return {area.left, area.top, area.right, area.bottom};
}

/// Paints on a device context and leaves that as it was.
class GdiDevice : public PaintDevice {
public:
    /// Without a cache there are no pictures.
    GdiDevice(HDC device, const DrawingObjects& objects, PictureCache* pictures = nullptr);
    GdiDevice(const GdiDevice&) = delete;
    GdiDevice& operator=(const GdiDevice&) = delete;
    ~GdiDevice() override;

    [[nodiscard]] int scaled(int length) const override { return objects_.scaled(length); }
    int lineHeight(TextFont font) override;
    PixelSize sizeOf(std::string_view words, TextFont font) override;
    std::optional<PictureSize> pictureSize(const std::string& path) override;
    void text(std::string_view words, PixelPoint at, TextFont font, Colour colour, TextSide side) override;
    int brokenText(std::string_view words, int left, int right, int top, TextFont font,
                   Colour colour) override;
    void line(PixelPoint from, PixelPoint to, Colour colour, int width) override;
    void fill(const PixelRect& area, Colour colour) override;
    bool picture(const std::string& path, PixelPoint corner, const PixmapPlacement& placement) override;
    void timeline(const PixelRect& area, std::span<const AvailabilityPoint> points) override;
    void clip(const PixelRect& area) override;

private:
    void use(TextFont font);

    HDC device_;
    int saved_;
    const DrawingObjects& objects_;
    PictureCache* pictures_;
};

} // namespace varrocade
