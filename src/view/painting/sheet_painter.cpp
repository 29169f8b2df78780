#include "view/painting/sheet_painter.h"

#include "data/unit/enumerations.h"
#include "view/painting/armour_painter.h"
#include "view/painting/flag_painter.h"
#include "view/sheet/table_layout.h"

#include <algorithm>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

namespace {

constexpr Colour RuleColour = {190, 172, 128};
constexpr Colour SelectedGround = {186, 205, 226};
constexpr Colour LinkInk = {0, 70, 160};
constexpr Colour BarGround = {255, 221, 148};

/// Lays a sheet out from top to bottom and paints it on the way.
class SheetPainter {
public:
    SheetPainter(PaintDevice& device, const PixelRect& area, const SheetOptions& options)
        : device_(device), options_(options), left_(area.left + device.scaled(Margin)),
          right_(area.right - device.scaled(Margin)), y_(area.top + device.scaled(Margin)),
          clipBottom_(area.bottom) {}

    SheetLayout paint(const DataSheet& sheet) {
        const int top = y_ - device_.scaled(Margin);
        paintTitle(sheet.title);
        paintBar(sheet.warnings);
        layout_.headHeight = y_ - top;
        device_.clip({0, y_, right_ + device_.scaled(Margin), clipBottom_});
        y_ -= options_.scroll;
        const int before = y_;
        if (!sheet.comment.empty()) {
            paragraph(sheet.comment, TextFont::Normal, TextInk);
            note({PartKind::Details}, before);
        }
        for (const SheetSection& section : sheet.sections) {
            paintSection(section);
        }
        layout_.height = y_ + options_.scroll - top + device_.scaled(Margin);
        return std::move(layout_);
    }

private:
    static constexpr int Margin = 14;
    static constexpr int FlagWidth = 48;
    static constexpr int FlagHeight = 32;
    static constexpr int SectionGap = 10;
    static constexpr int TimelineHeight = 96;
    static constexpr int TableGap = 10;

    [[nodiscard]] int widthOf(std::string_view words, TextFont font) const {
        return device_.sizeOf(words, font).width;
    }

    /// Text broken into lines between `left` and `right`; returns its height.
    int brokenText(const std::string& words, int left, int right, int y, TextFont font, Colour colour) {
        const PixelSize size = device_.sizeOf(words, font);
        // Most texts fit into one line, which is sooner done.
        if (size.width <= right - left && words.find_first_of("\r\n") == std::string::npos) {
            device_.text(words, {left, y}, font, colour);
            return words.empty() ? 0 : size.height;
        }
        return device_.brokenText(brokenName(words, right - left, font), left, right, y, font, colour);
    }

    /// The names of files have no blanks: a long one is broken behind its underscores.
    [[nodiscard]] std::string brokenName(const std::string& words, int width, TextFont font) const {
        if (words.find_first_of(" \r\n") != std::string::npos) {
            return words;
        }
        std::string result;
        std::string rest = words;
        while (widthOf(rest, font) > width) {
            std::size_t end = rest.rfind('_', rest.size() - 2);
            while (end != std::string::npos && end > 0 && widthOf(rest.substr(0, end + 1), font) > width) {
                end = rest.rfind('_', end - 1);
            }
            if (end == std::string::npos || end == 0) {
                break;
            }
            result += rest.substr(0, end + 1) + "\n";
            rest.erase(0, end + 1);
        }
        return result + rest;
    }

    void paragraph(const std::string& words, TextFont font, Colour colour) {
        y_ += brokenText(words, left_, right_, y_, font, colour) + device_.scaled(4);
    }

    static std::string_view wordOf(std::string_view nationality) {
        return nationality.starts_with(NationalityPrefix) ? nationality.substr(NationalityPrefix.size())
                                                          : std::string_view();
    }

    void paintTitle(const SheetTitle& title) {
        const int flagWidth = device_.scaled(FlagWidth);
        int textLeft = left_;
        const PixelRect flag{left_, y_, left_ + flagWidth, y_ + device_.scaled(FlagHeight)};
        if (paintFlag(device_, flag, wordOf(title.nationality), options_.bases)) {
            textLeft += flagWidth + device_.scaled(Margin);
        }
        const int buttonWidth = device_.scaled(100);
        const int titleHeight =
            brokenText(title.text, textLeft, right_ - buttonWidth, y_, TextFont::Large, TextInk);
        device_.text(title.subtitle, {textLeft, y_ + titleHeight}, TextFont::Normal, FaintInk);
        y_ += std::max(titleHeight + device_.lineHeight(TextFont::Normal), device_.scaled(FlagHeight)) +
              device_.scaled(SectionGap);
    }

    /// As much of a text as a line holds.
    [[nodiscard]] std::string cut(std::string words, int width, TextFont font) const {
        if (widthOf(words, font) <= width) {
            return words;
        }
        constexpr std::string_view dots = "...";
        std::size_t fits = 0;
        std::size_t tooMuch = words.size();
        while (tooMuch - fits > 1) {
            const std::size_t middle = (fits + tooMuch) / 2;
            const int needed = widthOf(words.substr(0, middle) + std::string(dots), font);
            (needed <= width ? fits : tooMuch) = middle;
        }
        return words.substr(0, fits).append(dots);
    }

    /// What is wrong stays in sight however far the sheet is scrolled: a few lines of it.
    void paintBar(const std::vector<SheetWarning>& warnings) {
        constexpr std::size_t mostLines = 4;
        const int margin = device_.scaled(4);
        const int lineHeight = device_.lineHeight(TextFont::Small);
        const std::size_t lines = std::min(warnings.size(), mostLines);
        if (lines == 0) {
            return;
        }
        const int bottom = y_ + static_cast<int>(lines) * lineHeight + 2 * margin;
        device_.fill({left_ - margin, y_, right_ + margin, bottom}, BarGround);
        y_ += margin;
        for (std::size_t i = 0; i < lines; ++i) {
            const bool isRest = i + 1 == mostLines && warnings.size() > mostLines;
            const std::string text =
                isRest ? "and " + std::to_string(warnings.size() - i) + " more..." : warnings[i].text;
            device_.text(cut(text, right_ - left_, TextFont::Small), {left_, y_}, TextFont::Small, TextInk);
            layout_.warnings.push_back({{left_ - margin, y_, right_ + margin, y_ + lineHeight},
                                        isRest ? UnitPart{} : warnings[i].part,
                                        isRest ? std::string() : warnings[i].field});
            y_ += lineHeight;
        }
        y_ = bottom + margin;
    }

    /// Notes that what was painted from `before` down to here shows a part.
    void note(const UnitPart& part, int before) {
        if (part) {
            layout_.places.push_back({{left_, before + options_.scroll, right_, y_ + options_.scroll}, part});
        }
    }

    void paintSection(const SheetSection& section) {
        y_ += device_.scaled(SectionGap);
        const int before = y_;
        if (section.part && section.part == options_.selected) {
            const PixelRect ground{left_ - device_.scaled(4), y_, right_ + device_.scaled(4),
                                   y_ + device_.lineHeight(TextFont::Bold)};
            device_.fill(ground, SelectedGround);
        }
        device_.text(section.heading.text, {left_, y_}, TextFont::Bold, TextInk);
        y_ += device_.lineHeight(TextFont::Bold);
        device_.line({left_, y_}, {right_, y_}, RuleColour, 1);
        y_ += device_.scaled(4);
        if (!section.timeline.empty()) {
            const PixelRect area{left_, y_, right_, y_ + device_.scaled(TimelineHeight)};
            device_.timeline(area, section.timeline);
            y_ = area.bottom + device_.scaled(6);
        }
        paintPairs(section.pairs);
        for (const SheetTable& table : section.tables) {
            paintTable(table);
        }
        for (const SheetArmour& armour : section.armour) {
            const int top = y_;
            y_ += paintArmour(device_, left_, right_, y_, armour) + device_.scaled(4);
            note(armour.part, top);
        }
        paintPictures(section.pictures);
        for (const SheetNote& words : section.notes) {
            const int top = y_;
            paragraph(words.text, TextFont::Small, words.isLink ? LinkInk : TextInk);
            if (words.isLink) {
                layout_.links.push_back(
                    {{left_, top + options_.scroll, right_, y_ + options_.scroll}, words.text});
            }
        }
        // After the rows within it, which are the more exact answer to a click.
        note(section.part, before);
        if (section.holdsProblems) {
            layout_.problems = {left_, before + options_.scroll, right_, y_ + options_.scroll};
        }
    }

    /// Pictures side by side at their own size, each above its caption.
    void paintPictures(const std::vector<SheetPicture>& pictures) {
        int x = left_;
        int height = 0;
        for (const SheetPicture& picture : pictures) {
            for (const std::string& base : options_.bases) {
                const auto size = device_.pictureSize(base + picture.path);
                if (!size) {
                    continue;
                }
                const PixmapPlacement placement{
                    .width = static_cast<double>(device_.scaled(static_cast<int>(size->width))),
                    .height = static_cast<double>(device_.scaled(static_cast<int>(size->height))),
                    .isTile = true};
                const PixelBox box = boxOf(placement);
                if (x + box.width > right_ && x > left_) {
                    x = left_;
                    y_ += height;
                    height = 0;
                }
                device_.picture(base + picture.path, {x, y_}, placement);
                device_.text(picture.caption, {x, y_ + box.height}, TextFont::Small, FaintInk);
                x += std::max(box.width, widthOf(picture.caption, TextFont::Small)) + device_.scaled(Margin);
                height = std::max(height, box.height + device_.lineHeight(TextFont::Small));
                break;
            }
        }
        y_ += height;
    }

    /// Two columns of label and value, or one where the sheet is narrow; a value too long for its column
    /// takes more lines.
    void paintPairs(const std::vector<SheetPair>& pairs) {
        const int gap = device_.scaled(8);
        const int leastValue = device_.scaled(110);
        int labelWidth = device_.scaled(120);
        for (const SheetPair& pair : pairs) {
            labelWidth = std::max(labelWidth, widthOf(pair.label, TextFont::Normal) + gap);
        }
        const bool isWide = (right_ - left_) / 2 - gap >= labelWidth + leastValue;
        const std::size_t columns = isWide ? 2 : 1;
        const int columnWidth = (right_ - left_) / static_cast<int>(columns);
        for (std::size_t i = 0; i < pairs.size(); i += columns) {
            int height = device_.lineHeight(TextFont::Normal);
            for (std::size_t column = 0; column < columns && i + column < pairs.size(); ++column) {
                const SheetPair& pair = pairs[i + column];
                const int x = left_ + static_cast<int>(column) * columnWidth;
                device_.text(pair.label, {x, y_}, TextFont::Normal, FaintInk);
                const int right = x + columnWidth - gap;
                height = std::max(height, brokenText(pair.value.empty() ? "-" : pair.value, x + labelWidth,
                                                     right, y_, TextFont::Normal, TextInk));
            }
            y_ += height;
        }
    }

    void paintTable(const SheetTable& table) {
        const auto width = [this](std::string_view words) { return widthOf(words, TextFont::Small); };
        for (const TableBand& band : tableBands(width, table, right_ - left_, device_.scaled(TableGap))) {
            for (std::size_t i = 0; i < table.rows.size(); ++i) {
                const SheetRow& row = table.rows[i];
                const int top = y_;
                if (row.part && isSameShown(row.part, options_.selected)) {
                    const PixelRect ground{left_ - device_.scaled(4), y_, right_ + device_.scaled(4),
                                           y_ + paintRow(row, band, i == 0)};
                    device_.fill(ground, SelectedGround);
                }
                y_ += paintRow(row, band, i == 0);
                note(row.part, top);
            }
            y_ += device_.scaled(4);
        }
    }

    /// Paints the cells that a band has of a row where the layout has come to; returns their height.
    [[nodiscard]] int paintRow(const SheetRow& row, const TableBand& band, bool isHead) {
        const int gap = device_.scaled(TableGap);
        const TextFont font = TextFont::Small;
        int x = left_;
        int height = device_.lineHeight(font);
        for (const BandColumn& column : band.columns) {
            if (column.place < row.cells.size()) {
                const std::string& cell = row.cells[column.place];
                height =
                    std::max(height, brokenText(column.isGlued ? gluedPlates(cell) : cell, x,
                                                x + column.width, y_, font, isHead ? FaintInk : TextInk));
            }
            x += column.width + gap;
        }
        if (!row.detail.empty() && band.isLast) {
            // Below the weapon's name, which is in the first column or in the one behind the place.
            const bool hasPlace = band.columns.size() > 1 && row.cells.size() > 3;
            const int indent = hasPlace ? band.columns.front().width + gap : device_.scaled(12);
            height += brokenText(row.detail, left_ + indent, right_, y_ + height, font, FaintInk);
        }
        return height;
    }

    PaintDevice& device_;
    const SheetOptions& options_;
    int left_;
    int right_;
    int y_;
    int clipBottom_;
    SheetLayout layout_;
};

} // namespace

SheetLayout paintSheet(PaintDevice& device, const PixelRect& area, const DataSheet& sheet,
                       const SheetOptions& options) {
    device.clip(area);
    return SheetPainter(device, area, options).paint(sheet);
}

const SheetWarningPlace* sheetWarningAt(const SheetLayout& layout, PixelPoint pixel) {
    const auto found =
        std::find_if(layout.warnings.begin(), layout.warnings.end(),
                     [&](const SheetWarningPlace& warning) { return warning.place.contains(pixel); });
    return found == layout.warnings.end() ? nullptr : &*found;
}

const SheetLinkPlace* sheetLinkAt(const SheetLayout& layout, int scroll, PixelPoint pixel) {
    if (pixel.y < layout.headHeight) {
        return nullptr;
    }
    pixel.y += scroll;
    const auto found = std::find_if(layout.links.begin(), layout.links.end(),
                                    [&](const SheetLinkPlace& link) { return link.place.contains(pixel); });
    return found == layout.links.end() ? nullptr : &*found;
}

UnitPart sheetPartAt(const SheetLayout& layout, int scroll, PixelPoint pixel) {
    if (pixel.y < layout.headHeight) {
        return {PartKind::Details};
    }
    pixel.y += scroll;
    const auto found = std::find_if(layout.places.begin(), layout.places.end(),
                                    [&](const SheetPlace& place) { return place.place.contains(pixel); });
    return found == layout.places.end() ? UnitPart{} : found->part;
}

} // namespace varrocade
