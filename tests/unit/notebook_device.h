#pragma once
// A device that writes down what is painted on it.

#include "view/painting/paint_device.h"

#include <algorithm>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade::tests {

/// Notes what is painted. All letters are 6 pixels wide and 12 high, whatever the font.
class NotebookDevice : public PaintDevice {
public:
    struct Words {
        std::string text;
        PixelRect place;
    };

    [[nodiscard]] int scaled(int length) const override { return length; }
    int lineHeight(TextFont) override { return LetterHeight + 2; }
    PixelSize sizeOf(std::string_view words, TextFont) override {
        return {LetterWidth * static_cast<int>(words.size()), LetterHeight};
    }
    std::optional<PictureSize> pictureSize(const std::string& path) override {
        return path.starts_with("game\\") ? std::optional(PictureSize{40, 60}) : std::nullopt;
    }
    void text(std::string_view words, PixelPoint at, TextFont font, Colour, TextSide side) override {
        const int width = sizeOf(words, font).width;
        const int left = side == TextSide::Left    ? at.x
                         : side == TextSide::Right ? at.x - width
                                                   : at.x - width / 2;
        texts.push_back({std::string(words), {left, at.y, left + width, at.y + LetterHeight}});
    }
    int brokenText(std::string_view words, int left, int right, int top, TextFont, Colour) override {
        const auto breaks = static_cast<int>(std::count(words.begin(), words.end(), '\n'));
        const int tall =
            breaks > 0 ? breaks + 1 : LetterWidth * static_cast<int>(words.size()) / (right - left) + 1;
        texts.push_back({std::string(words), {left, top, right, top + tall * LetterHeight}});
        return tall * LetterHeight;
    }
    void line(PixelPoint from, PixelPoint to, Colour, int width) override {
        lines.push_back({from, to, width});
    }
    void fill(const PixelRect& area, Colour) override { fills.push_back(area); }
    bool picture(const std::string& path, PixelPoint, const PixmapPlacement&) override {
        pictures.push_back(path);
        return pictureSize(path).has_value();
    }
    void timeline(const PixelRect& area, std::span<const AvailabilityPoint>) override {
        timelines.push_back(area);
    }
    void clip(const PixelRect&) override {}

    struct Line {
        PixelPoint from;
        PixelPoint to;
        int width;
    };
    std::vector<Words> texts;
    std::vector<Line> lines;
    std::vector<PixelRect> fills;
    std::vector<PixelRect> timelines;
    std::vector<std::string> pictures;

private:
    static constexpr int LetterWidth = 6;
    static constexpr int LetterHeight = 12;
};

} // namespace varrocade::tests
