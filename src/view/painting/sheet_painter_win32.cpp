#include "view/painting/painter_win32.h"

#include "data/unit/enumerations.h"
#include "view/painting/armour_painter_win32.h"
#include "view/painting/flag_painter_win32.h"
#include "view/painting/timeline_painter_win32.h"

#include <algorithm>
#include <numeric>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

namespace {

constexpr COLORREF Ink = RGB(40, 34, 24);
constexpr COLORREF FadedInk = RGB(120, 104, 76);
constexpr COLORREF RuleColour = RGB(190, 172, 128);
constexpr COLORREF SelectedGround = RGB(186, 205, 226);

/// Lays a sheet out from top to bottom and paints it on the way.
class SheetPainter {
public:
    SheetPainter(HDC device, const RECT& area, const SheetOptions& options, const DrawingObjects& objects,
                 PictureCache& pictures)
        : device_(device), options_(options), objects_(objects), pictures_(pictures),
          left_(area.left + objects.scaled(Margin)), right_(area.right - objects.scaled(Margin)),
          y_(area.top + objects.scaled(Margin)), clipBottom_(area.bottom),
          rule_(CreatePen(PS_SOLID, 1, RuleColour)) {
        SetBkMode(device_, TRANSPARENT);
    }

    SheetLayout paint(const DataSheet& sheet) {
        const int top = y_ - objects_.scaled(Margin);
        paintTitle(sheet.title);
        layout_.headHeight = y_ - top;
        IntersectClipRect(device_, 0, y_, right_ + objects_.scaled(Margin), clipBottom_);
        y_ -= options_.scroll;
        const int before = y_;
        if (!sheet.comment.empty()) {
            paragraph(sheet.comment, objects_.normalFont.get(), Ink);
            note({PartKind::Details}, before);
        }
        for (const SheetSection& section : sheet.sections) {
            paintSection(section);
        }
        layout_.height = y_ + options_.scroll - top + objects_.scaled(Margin);
        return std::move(layout_);
    }

private:
    static constexpr int Margin = 14;
    static constexpr int FlagWidth = 48;
    static constexpr int FlagHeight = 32;
    static constexpr int SectionGap = 10;
    static constexpr int TimelineHeight = 96;

    /// Whoever called for the painting selects his own font again.
    void use(HFONT font) const {
        if (GetCurrentObject(device_, OBJ_FONT) != font) {
            SelectObject(device_, font);
        }
    }

    [[nodiscard]] int lineHeight(HFONT font) const {
        use(font);
        TEXTMETRICA metrics{};
        GetTextMetricsA(device_, &metrics);
        return metrics.tmHeight + objects_.scaled(2);
    }

    [[nodiscard]] SIZE sizeOf(const std::string& words, HFONT font) const {
        use(font);
        SIZE size{};
        GetTextExtentPoint32A(device_, words.data(), static_cast<int>(words.size()), &size);
        return size;
    }

    [[nodiscard]] int widthOf(const std::string& words, HFONT font) const { return sizeOf(words, font).cx; }

    void text(const std::string& words, int x, int y, HFONT font, COLORREF colour) const {
        use(font);
        SetTextColor(device_, colour);
        TextOutA(device_, x, y, words.data(), static_cast<int>(words.size()));
    }

    /// Text broken into lines between `left` and `right`; returns its height.
    int brokenText(const std::string& words, int left, int right, int y, HFONT font, COLORREF colour) const {
        const SIZE size = sizeOf(words, font);
        SetTextColor(device_, colour);
        // Most texts fit into one line, which is sooner done.
        if (size.cx <= right - left && words.find_first_of("\r\n") == std::string::npos) {
            TextOutA(device_, left, y, words.data(), static_cast<int>(words.size()));
            return words.empty() ? 0 : size.cy;
        }
        const std::string broken = brokenName(words, right - left, font);
        const auto length = static_cast<int>(broken.size());
        constexpr UINT format = DT_WORDBREAK | DT_NOPREFIX | DT_EDITCONTROL;
        RECT place{left, y, right, y};
        DrawTextA(device_, broken.data(), length, &place, format | DT_CALCRECT);
        place.right = right;
        DrawTextA(device_, broken.data(), length, &place, format);
        return place.bottom - place.top;
    }

    /// The names of files have no blanks: a long one is broken behind its underscores.
    [[nodiscard]] std::string brokenName(const std::string& words, int width, HFONT font) const {
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

    void paragraph(const std::string& words, HFONT font, COLORREF colour) {
        y_ += brokenText(words, left_, right_, y_, font, colour) + objects_.scaled(4);
    }

    static std::string_view wordOf(std::string_view nationality) {
        return nationality.starts_with(NationalityPrefix) ? nationality.substr(NationalityPrefix.size())
                                                          : std::string_view();
    }

    void paintTitle(const SheetTitle& title) {
        const int flagWidth = objects_.scaled(FlagWidth);
        int textLeft = left_;
        const RECT flag{left_, y_, left_ + flagWidth, y_ + objects_.scaled(FlagHeight)};
        if (varrocade::paintFlag(device_, flag, wordOf(title.nationality), options_.bases, pictures_)) {
            textLeft += flagWidth + objects_.scaled(Margin);
        }
        const int buttonWidth = objects_.scaled(100);
        const int titleHeight =
            brokenText(title.text, textLeft, right_ - buttonWidth, y_, objects_.largeFont.get(), Ink);
        text(title.subtitle, textLeft, y_ + titleHeight, objects_.normalFont.get(), FadedInk);
        y_ += std::max(titleHeight + lineHeight(objects_.normalFont.get()), objects_.scaled(FlagHeight)) +
              objects_.scaled(SectionGap);
    }

    /// Notes that what was painted from `before` down to here shows a part.
    void note(const UnitPart& part, int before) {
        if (part) {
            layout_.places.push_back({{left_, before + options_.scroll, right_, y_ + options_.scroll}, part});
        }
    }

    void paintSection(const SheetSection& section) {
        y_ += objects_.scaled(SectionGap);
        const int before = y_;
        if (section.part && section.part == options_.selected) {
            const RECT ground{left_ - objects_.scaled(4), y_, right_ + objects_.scaled(4),
                              y_ + lineHeight(objects_.boldFont.get())};
            const GdiObject<HBRUSH> brush(CreateSolidBrush(SelectedGround));
            FillRect(device_, &ground, brush.get());
        }
        text(section.heading.text, left_, y_, objects_.boldFont.get(), Ink);
        y_ += lineHeight(objects_.boldFont.get());
        {
            const Selection pen(device_, rule_.get());
            MoveToEx(device_, left_, y_, nullptr);
            LineTo(device_, right_, y_);
        }
        y_ += objects_.scaled(4);
        if (!section.timeline.empty()) {
            const RECT area{left_, y_, right_, y_ + objects_.scaled(TimelineHeight)};
            paintTimeline(device_, area, section.timeline, objects_);
            y_ = area.bottom + objects_.scaled(6);
        }
        paintPairs(section.pairs);
        for (const SheetTable& table : section.tables) {
            paintTable(table);
        }
        for (const SheetArmour& armour : section.armour) {
            const int top = y_;
            const int height = armourHeight(objects_);
            paintArmour(device_, {left_, y_, right_, y_ + height}, armour, objects_);
            y_ += height + objects_.scaled(4);
            note(armour.part, top);
        }
        paintPictures(section.pictures);
        for (const SheetNote& words : section.notes) {
            paragraph(words.text, objects_.smallFont.get(), Ink);
        }
        // After the rows within it, which are the more exact answer to a click.
        note(section.part, before);
    }

    /// Pictures side by side at their own size, each above its caption.
    void paintPictures(const std::vector<SheetPicture>& pictures) {
        int x = left_;
        int height = 0;
        for (const SheetPicture& picture : pictures) {
            for (const std::string& base : options_.bases) {
                const auto size = pictures_.sizeOf(base + picture.path);
                if (!size) {
                    continue;
                }
                const PixmapPlacement placement{
                    .width = static_cast<double>(objects_.scaled(static_cast<int>(size->width))),
                    .height = static_cast<double>(objects_.scaled(static_cast<int>(size->height))),
                    .isTile = true};
                const PixelBox box = boxOf(placement);
                if (x + box.width > right_ && x > left_) {
                    x = left_;
                    y_ += height;
                    height = 0;
                }
                if (const PlacedBitmap* placed = pictures_.placed(base + picture.path, placement, box)) {
                    blend(device_, x - box.left, y_ - box.top, *placed);
                }
                text(picture.caption, x, y_ + box.height, objects_.smallFont.get(), FadedInk);
                x += std::max(box.width, widthOf(picture.caption, objects_.smallFont.get())) +
                     objects_.scaled(Margin);
                height = std::max(height, box.height + lineHeight(objects_.smallFont.get()));
                break;
            }
        }
        y_ += height;
    }

    /// Two columns of label and value; a value too long for its column takes more lines.
    void paintPairs(const std::vector<SheetPair>& pairs) {
        const int columnWidth = (right_ - left_) / 2;
        const int labelWidth = objects_.scaled(120);
        for (std::size_t i = 0; i < pairs.size(); i += 2) {
            int height = lineHeight(objects_.normalFont.get());
            for (std::size_t column = 0; column < 2 && i + column < pairs.size(); ++column) {
                const SheetPair& pair = pairs[i + column];
                const int x = left_ + static_cast<int>(column) * columnWidth;
                text(pair.label, x, y_, objects_.normalFont.get(), FadedInk);
                const int right = x + columnWidth - objects_.scaled(8);
                height = std::max(height, brokenText(pair.value.empty() ? "-" : pair.value, x + labelWidth,
                                                     right, y_, objects_.normalFont.get(), Ink));
            }
            y_ += height;
        }
    }

    [[nodiscard]] int wordWidth(std::string_view words, HFONT font) const {
        int widest = 0;
        while (!words.empty()) {
            const std::size_t end = std::min(words.find(' '), words.size());
            widest = std::max(widest, widthOf(std::string(words.substr(0, end)), font));
            words.remove_prefix(std::min(words.size(), end + 1));
        }
        return widest;
    }

    /// Column widths by their longest cells. Where they do not fit, first the heads break between their
    /// words, then the widest columns shrink and break their texts.
    [[nodiscard]] std::vector<int> columnWidths(const SheetTable& table) const {
        const HFONT font = objects_.smallFont.get();
        const std::vector<std::string>& heads = table.rows.front().cells;
        std::vector<int> widths(heads.size(), 0);
        for (const SheetRow& row : std::span(table.rows).subspan(1)) {
            for (std::size_t column = 0; column < row.cells.size() && column < widths.size(); ++column) {
                widths[column] = std::max(widths[column], widthOf(row.cells[column], font));
            }
        }
        const int gap = objects_.scaled(10);
        const int free = right_ - left_ - gap * static_cast<int>(widths.size() - 1);
        const auto withHeads = [&](auto headWidth) {
            std::vector<int> wider = widths;
            for (std::size_t column = 0; column < wider.size(); ++column) {
                wider[column] = std::max(wider[column], headWidth(heads[column]));
            }
            return wider;
        };
        const auto totalOf = [](const std::vector<int>& all) {
            return std::accumulate(all.begin(), all.end(), 0);
        };
        std::vector<int> whole = withHeads([&](const std::string& head) { return widthOf(head, font); });
        if (totalOf(whole) <= free) {
            return whole;
        }
        widths = withHeads([&](const std::string& head) { return wordWidth(head, font); });
        int total = totalOf(widths);
        // Only the wide columns give way: narrow ones hold numbers.
        while (total > free) {
            const auto widest = std::max_element(widths.begin(), widths.end());
            const int less = std::min(total - free, std::max(1, *widest / 8));
            *widest -= less;
            total -= less;
        }
        return widths;
    }

    void paintTable(const SheetTable& table) {
        const std::vector<int> widths = columnWidths(table);
        for (std::size_t i = 0; i < table.rows.size(); ++i) {
            const SheetRow& row = table.rows[i];
            const int top = y_;
            if (row.part && isSameShown(row.part, options_.selected)) {
                const RECT ground{left_ - objects_.scaled(4), y_, right_ + objects_.scaled(4),
                                  y_ + paintRow(row, widths, i == 0)};
                const GdiObject<HBRUSH> brush(CreateSolidBrush(SelectedGround));
                FillRect(device_, &ground, brush.get());
            }
            y_ += paintRow(row, widths, i == 0);
            note(row.part, top);
        }
        y_ += objects_.scaled(4);
    }

    /// Paints a row where the layout has come to; returns its height.
    [[nodiscard]] int paintRow(const SheetRow& row, const std::vector<int>& widths, bool isHead) const {
        const int gap = objects_.scaled(10);
        const HFONT font = objects_.smallFont.get();
        int x = left_;
        int height = lineHeight(font);
        for (std::size_t column = 0; column < row.cells.size() && column < widths.size(); ++column) {
            height =
                std::max(height, brokenText(row.cells[column], x, x + widths[column] + objects_.scaled(2), y_,
                                            font, isHead ? FadedInk : Ink));
            x += widths[column] + gap;
        }
        if (!row.detail.empty()) {
            // Below the weapon's name, which is in the first column or in the one behind the place.
            const bool hasPlace = widths.size() > 1 && row.cells.size() > 3;
            const int indent = hasPlace ? widths.front() + gap : objects_.scaled(12);
            height += brokenText(row.detail, left_ + indent, right_, y_ + height, font, FadedInk);
        }
        return height;
    }

    HDC device_;
    const SheetOptions& options_;
    const DrawingObjects& objects_;
    PictureCache& pictures_;
    int left_;
    int right_;
    int y_;
    int clipBottom_;
    GdiObject<HPEN> rule_;
    SheetLayout layout_;
};

} // namespace

SheetLayout paintSheet(HDC device, const RECT& area, const DataSheet& sheet, const SheetOptions& options,
                       const DrawingObjects& objects, PictureCache& pictures) {
    const int saved = SaveDC(device);
    IntersectClipRect(device, area.left, area.top, area.right, area.bottom);
    FillRect(device, &area, objects.beigeBrush.get());
    SheetLayout layout = SheetPainter(device, area, options, objects, pictures).paint(sheet);
    RestoreDC(device, saved);
    return layout;
}

} // namespace varrocade
