#include "view/painting/armour_painter.h"

#include <algorithm>
#include <cmath>

namespace varrocade {

namespace {

constexpr int SketchHeight = 92;
constexpr int WidestLine = 12;
constexpr int ThickestOnSheet = 16 * WidestLine; ///< the same for all components, so that they compare
constexpr Colour PlateSteel = {70, 74, 80};

class SketchPainter {
public:
    SketchPainter(PaintDevice& device, const PixelRect& area, int thickest = ThickestOnSheet)
        : device_(device), area_(area), thickest_(thickest), height_(area.bottom - area.top),
          left_((area.left + area.right) / 2 - rounded(height_ * ArmourSketch::Width / 2)),
          lineHeight_(device.scaled(14)) {}

    void paintPlates(const ArmourSketch& sketch) {
        for (const SketchPlate& plate : sketch.plates) {
            paintPlate(plate);
        }
    }

    /// The figures of the plates, most of them to both sides of the sketch.
    void paintLabels(const ArmourSketch& sketch) {
        for (const SketchPlate& plate : sketch.plates) {
            paintLabel(plate);
        }
    }

private:
    static int rounded(double value) { return static_cast<int>(std::lround(value)); }

    [[nodiscard]] PixelPoint pixel(Point point) const {
        return {left_ + rounded(point.x * height_), area_.top + rounded(point.y * height_)};
    }

    void line(Point from, Point to, int width) { device_.line(pixel(from), pixel(to), PlateSteel, width); }

    void paintPlate(const SketchPlate& plate) {
        constexpr double apart = 0.09;
        if (plate.thickness > 0) {
            const double width = static_cast<double>(WidestLine) * plate.thickness / thickest_;
            line(plate.from, plate.to,
                 device_.scaled(static_cast<int>(std::clamp<double>(width, 1, WidestLine))));
        }
        if (plate.spaced > 0) {
            const double away = plate.side * apart;
            line({plate.from.x + away, plate.from.y}, {plate.to.x + away, plate.to.y}, device_.scaled(1));
        }
    }

    void text(const std::string& words, int x, int y, TextSide side, Colour colour) {
        device_.text(words, {x, y}, TextFont::Small, colour, side);
    }

    void paintLabel(const SketchPlate& plate) {
        const PixelPoint middle = pixel({(plate.from.x + plate.to.x) / 2, (plate.from.y + plate.to.y) / 2});
        if (plate.side == 0 && plate.from.x == plate.to.x) {
            text(plate.label, middle.x + device_.scaled(22), middle.y - lineHeight_ / 2, TextSide::Left,
                 TextInk);
            return;
        }
        if (plate.side == 0) {
            // Top and bottom have their figure inside.
            const bool isUpper = middle.y < area_.top + height_ / 2;
            text(plate.label, middle.x,
                 isUpper ? middle.y + device_.scaled(4) : middle.y - lineHeight_ - device_.scaled(3),
                 TextSide::Centre, TextInk);
            return;
        }
        const int gap = device_.scaled(12);
        const bool isLeft = plate.side < 0;
        const TextSide side = isLeft ? TextSide::Right : TextSide::Left;
        const int x = isLeft ? left_ - gap : left_ + rounded(height_ * ArmourSketch::Width) + gap;
        const int lines = plate.effective.empty() ? 1 : 2;
        const int y =
            std::clamp(middle.y - lines * lineHeight_ / 2, area_.top, area_.bottom - lines * lineHeight_);
        text(plate.label, x, y, side, TextInk);
        text(plate.effective, x, y + lineHeight_, side, FaintInk);
    }

    PaintDevice& device_;
    const PixelRect& area_;
    int thickest_;
    int height_;
    int left_;
    int lineHeight_;
};

} // namespace

int armourHeight(const PaintDevice& device) {
    constexpr int captionHeight = 18;
    return device.scaled(SketchHeight + captionHeight);
}

void paintPlates(PaintDevice& device, const PixelRect& area, const ArmourSketch& sketch,
                 std::string_view caption, int thickest) {
    const int top = area.top + device.lineHeight(TextFont::Small);
    device.text(caption, {area.left + device.scaled(4), area.top}, TextFont::Small, TextInk);
    const PixelRect place{area.left, top, area.right, area.bottom};
    SketchPainter(device, place, thickest).paintPlates(sketch);
}

void paintArmour(PaintDevice& device, const PixelRect& area, const SheetArmour& armour) {
    const int middle = (area.left + area.right) / 2;
    const int top = area.bottom - device.scaled(SketchHeight);
    const auto half = [&](int left, int right, const ArmourSketch& sketch, const std::string& caption) {
        const PixelRect place{left, top, right, area.bottom};
        SketchPainter painter(device, place);
        painter.paintPlates(sketch);
        painter.paintLabels(sketch);
        device.text(caption, {left, area.top}, TextFont::Small, FaintInk);
    };
    half(area.left, middle, armour.side, armour.caption + ": front and rear (= what a level shot meets)");
    half(middle + device.scaled(24), area.right, armour.cross, "Left and right");
}

} // namespace varrocade
