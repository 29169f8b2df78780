#include "view/painting/armour_painter_win32.h"

#include <algorithm>
#include <cmath>

namespace varrocade {

namespace {

constexpr int SketchHeight = 92;
constexpr COLORREF Steel = RGB(70, 74, 80);
constexpr COLORREF SketchInk = RGB(40, 34, 24);
constexpr COLORREF EffectiveInk = RGB(120, 104, 76);

/// One sketch in the middle of its area, with the labels to both sides.
class SketchPainter {
public:
    SketchPainter(HDC device, const RECT& area, const DrawingObjects& objects)
        : device_(device), objects_(objects), height_(area.bottom - area.top), top_(area.top),
          left_((area.left + area.right) / 2 - std::lround(height_ * ArmourSketch::Width / 2)), area_(area),
          lineHeight_(objects.scaled(14)) {
        SetBkMode(device_, TRANSPARENT);
    }

    void paint(const ArmourSketch& sketch) const {
        for (const SketchPlate& plate : sketch.plates) {
            paintPlate(plate);
        }
        for (const SketchPlate& plate : sketch.plates) {
            paintLabel(plate);
        }
    }

private:
    [[nodiscard]] POINT pixel(Point point) const {
        return {left_ + std::lround(point.x * height_), top_ + std::lround(point.y * height_)};
    }

    void line(Point from, Point to, int width) const {
        const GdiObject<HPEN> pen(CreatePen(PS_SOLID, width, Steel));
        const Selection selection(device_, pen.get());
        const POINT begin = pixel(from);
        const POINT end = pixel(to);
        MoveToEx(device_, begin.x, begin.y, nullptr);
        LineTo(device_, end.x, end.y);
    }

    void paintPlate(const SketchPlate& plate) const {
        constexpr int millimetresPerPixel = 16;
        constexpr int thickest = 12;
        constexpr double apart = 0.09;
        if (plate.thickness > 0) {
            line(plate.from, plate.to,
                 objects_.scaled(std::clamp(plate.thickness / millimetresPerPixel, 1, thickest)));
        }
        if (plate.spaced > 0) {
            const double away = plate.side * apart;
            line({plate.from.x + away, plate.from.y}, {plate.to.x + away, plate.to.y}, objects_.scaled(1));
        }
    }

    void text(const std::string& words, int x, int y, UINT alignment, COLORREF colour) const {
        const UINT former = SetTextAlign(device_, alignment | TA_TOP);
        SetTextColor(device_, colour);
        TextOutA(device_, x, y, words.data(), static_cast<int>(words.size()));
        SetTextAlign(device_, former);
    }

    void paintLabel(const SketchPlate& plate) const {
        const Selection font(device_, objects_.smallFont.get());
        const POINT middle = pixel({(plate.from.x + plate.to.x) / 2, (plate.from.y + plate.to.y) / 2});
        if (plate.side == 0 && plate.from.x == plate.to.x) {
            text(plate.label, middle.x + objects_.scaled(22), middle.y - lineHeight_ / 2, TA_LEFT, SketchInk);
            return;
        }
        if (plate.side == 0) {
            // Top and bottom have their figure inside.
            const bool isUpper = middle.y < top_ + height_ / 2;
            text(plate.label, middle.x,
                 isUpper ? middle.y + objects_.scaled(4) : middle.y - lineHeight_ - objects_.scaled(3),
                 TA_CENTER, SketchInk);
            return;
        }
        const int gap = objects_.scaled(12);
        const bool isLeft = plate.side < 0;
        const LONG x = isLeft ? left_ - gap : left_ + std::lround(height_ * ArmourSketch::Width) + gap;
        const int lines = plate.effective.empty() ? 1 : 2;
        const LONG y =
            std::clamp(middle.y - lines * lineHeight_ / 2, area_.top, area_.bottom - lines * lineHeight_);
        text(plate.label, x, y, isLeft ? TA_RIGHT : TA_LEFT, SketchInk);
        text(plate.effective, x, y + lineHeight_, isLeft ? TA_RIGHT : TA_LEFT, EffectiveInk);
    }

    HDC device_;
    const DrawingObjects& objects_;
    LONG height_;
    LONG top_;
    LONG left_;
    const RECT& area_;
    int lineHeight_;
};

} // namespace

int armourHeight(const DrawingObjects& objects) {
    constexpr int captionHeight = 18;
    return objects.scaled(SketchHeight + captionHeight);
}

void paintArmour(HDC device, const RECT& area, const SheetArmour& armour, const DrawingObjects& objects) {
    const LONG middle = (area.left + area.right) / 2;
    const LONG top = area.bottom - objects.scaled(SketchHeight);
    const auto half = [&](LONG left, LONG right, const ArmourSketch& sketch, const std::string& caption) {
        const RECT place{left, top, right, area.bottom};
        SketchPainter(device, place, objects).paint(sketch);
        const Selection font(device, objects.smallFont.get());
        SetTextColor(device, EffectiveInk);
        TextOutA(device, left, area.top, caption.data(), static_cast<int>(caption.size()));
    };
    half(area.left, middle, armour.side, armour.caption + ": front and rear (= what a level shot meets)");
    half(middle + objects.scaled(24), area.right, armour.cross, "Left and right");
}

} // namespace varrocade
