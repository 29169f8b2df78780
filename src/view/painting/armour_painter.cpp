#include "view/painting/armour_painter.h"

#include <algorithm>
#include <cmath>

namespace varrocade {

namespace {

constexpr int SketchHeight = 92;
constexpr int PlateLabelGap = 12;
constexpr int WidestLine = 12;
constexpr int ThickestOnSheet = 16 * WidestLine; ///< the same for all components, so that they compare
constexpr Colour PlateSteel = {70, 74, 80};

int rounded(double value) {
    return static_cast<int>(std::lround(value));
}

int sketchWidth(int height) {
    return rounded(height * ArmourSketch::Width);
}

/// What the labels take on both sides of a sketch, in pixels.
struct LabelRoom {
    int left = 0;
    int right = 0;
};

LabelRoom labelRoom(PaintDevice& device, const ArmourSketch& sketch) {
    LabelRoom room;
    for (const SketchPlate& plate : sketch.plates) {
        const int width =
            device.scaled(PlateLabelGap) + std::max(device.sizeOf(plate.label, TextFont::Small).width,
                                                    device.sizeOf(plate.effective, TextFont::Small).width);
        if (plate.side != 0) {
            int& side = plate.side < 0 ? room.left : room.right;
            side = std::max(side, width);
        }
    }
    return room;
}

/// Whether a sketch with its labels is no wider than this.
bool fitsInto(PaintDevice& device, const ArmourSketch& sketch, int width) {
    const LabelRoom room = labelRoom(device, sketch);
    return room.left + sketchWidth(device.scaled(SketchHeight)) + room.right <= width;
}

class SketchPainter {
public:
    SketchPainter(PaintDevice& device, const PixelRect& area, int thickest = ThickestOnSheet)
        : device_(device), area_(area), thickest_(thickest), height_(area.bottom - area.top),
          left_((area.left + area.right - sketchWidth(height_)) / 2), lineHeight_(device.scaled(14)) {}

    /// Moves the sketch aside where the labels of one side would leave the area.
    void makeRoomFor(const LabelRoom& room) {
        const int furthest = area_.right - room.right - sketchWidth(height_);
        left_ = std::max(std::min(left_, furthest), area_.left + room.left);
    }

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
        const int gap = device_.scaled(PlateLabelGap);
        const bool isLeft = plate.side < 0;
        const TextSide side = isLeft ? TextSide::Right : TextSide::Left;
        const int x = isLeft ? left_ - gap : left_ + sketchWidth(height_) + gap;
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

void paintPlates(PaintDevice& device, const PixelRect& area, const ArmourSketch& sketch,
                 std::string_view caption, int thickest) {
    const int top = area.top + device.lineHeight(TextFont::Small);
    device.text(caption, {area.left + device.scaled(4), area.top}, TextFont::Small, TextInk);
    const PixelRect place{area.left, top, area.right, area.bottom};
    SketchPainter(device, place, thickest).paintPlates(sketch);
}

int paintArmour(PaintDevice& device, int left, int right, int top, const SheetArmour& armour) {
    const int line = device.lineHeight(TextFont::Small);
    const int height = device.scaled(SketchHeight);
    device.text(armour.caption + " (= what a level shot meets)", {left, top}, TextFont::Small, TextInk);
    int y = top + line;
    const auto paint = [&](int from, int to, const ArmourSketch& sketch, std::string_view caption) {
        device.text(caption, {from, y}, TextFont::Small, FaintInk);
        const PixelRect place{from, y + line, to, y + line + height};
        SketchPainter painter(device, place);
        painter.makeRoomFor(labelRoom(device, sketch));
        painter.paintPlates(sketch);
        painter.paintLabels(sketch);
    };
    const int gap = device.scaled(24);
    const int half = (right - left - gap) / 2;
    const bool isSideBySide = fitsInto(device, armour.side, half) && fitsInto(device, armour.cross, half);
    paint(left, isSideBySide ? left + half : right, armour.side, "Front and rear");
    if (!isSideBySide) {
        y += line + height;
    }
    paint(isSideBySide ? right - half : left, right, armour.cross, "Left and right");
    return y + line + height - top;
}

} // namespace varrocade
