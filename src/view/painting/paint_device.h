#pragma once
// What sheets and sketches are painted on: the screen, or in tests a notebook. Coordinates are pixels of the
// device, x to the right and y downwards.

#include "data/unit/unit_record.h"
#include "platform/png_size.h"
#include "view/drawing/draw_list.h"
#include "view/painting/pixmap.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace varrocade {

struct PixelPoint {
    int x = 0;
    int y = 0;
};

struct PixelSize {
    int width = 0;
    int height = 0;
};

/// From the left and top pixel up to, and without, the right and bottom one.
struct PixelRect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    [[nodiscard]] bool contains(PixelPoint pixel) const {
        return pixel.x >= left && pixel.x < right && pixel.y >= top && pixel.y < bottom;
    }
};

/// Texts are dark brown, labels and remarks fainter.
inline constexpr Colour TextInk = {40, 34, 24};
inline constexpr Colour FaintInk = {120, 104, 76};

enum class TextFont : std::uint8_t { Small, Normal, Bold, Large };

/// Where the point that a text is put at lies on its upper edge.
enum class TextSide : std::uint8_t { Left, Centre, Right };

class PaintDevice {
public:
    PaintDevice() = default;
    PaintDevice(const PaintDevice&) = delete;
    PaintDevice& operator=(const PaintDevice&) = delete;
    virtual ~PaintDevice() = default;

    /// A length of 96 dpi in the pixels of the device.
    [[nodiscard]] virtual int scaled(int length) const = 0;
    /// From one line of text to the next.
    virtual int lineHeight(TextFont font) = 0;
    virtual PixelSize sizeOf(std::string_view words, TextFont font) = 0;
    /// Nothing when there is no such picture.
    virtual std::optional<PictureSize> pictureSize(const std::string& path) = 0;

    virtual void text(std::string_view words, PixelPoint at, TextFont font, Colour colour,
                      TextSide side = TextSide::Left) = 0;
    /// Text broken at its blanks and line ends between `left` and `right`; returns its height.
    virtual int brokenText(std::string_view words, int left, int right, int top, TextFont font,
                           Colour colour) = 0;
    virtual void line(PixelPoint from, PixelPoint to, Colour colour, int width) = 0;
    virtual void fill(const PixelRect& area, Colour colour) = 0;
    /// A picture with the upper left corner of its box at a pixel; false when there is none.
    virtual bool picture(const std::string& path, PixelPoint corner, const PixmapPlacement& placement) = 0;
    /// The timeline of availability with its years.
    virtual void timeline(const PixelRect& area, std::span<const AvailabilityPoint> points) = 0;
    /// From here on nothing is painted outside of the area.
    virtual void clip(const PixelRect& area) = 0;
};

} // namespace varrocade
