#include "view/painting/painter_win32.h"

#include "view/drawing/drawing_angles.h"
#include "view/drawing/part_at.h"
#include "view/drawing/traverse.h"
#include "view/painting/paint_device.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <variant>

namespace varrocade {

namespace {

constexpr COLORREF Ground = RGB(206, 200, 170);
constexpr COLORREF LabelInk = colourRef(TextInk);
constexpr int MarkRadius = 6;

HPEN penOf(const DrawingObjects& objects, Ink ink) {
    switch (ink) {
    case Ink::Black:
        return objects.blackPen.get();
    case Ink::White:
        return objects.whitePen.get();
    case Ink::Red:
        return objects.redPen.get();
    case Ink::Yellow:
        return objects.yellowPen.get();
    case Ink::Blue:
        break;
    }
    return objects.bluePen.get();
}

POINT centreOf(const PictureItem& item, const RECT& area, const Fit& fit) {
    return {nearestPixel(area.left + fit.screenX(item.centre.x)),
            nearestPixel(area.top + fit.screenY(item.centre.y))};
}

/// A picture as it is shown, so far as it lies in the area.
const PlacedBitmap* placedPicture(const PictureItem& item, const RECT& area, const Fit& fit,
                                  PictureCache& pictures) {
    const POINT centre = centreOf(item, area, fit);
    const PixelBox visible{area.left - centre.x, area.top - centre.y, area.right - area.left,
                           area.bottom - area.top};
    const PixmapPlacement placement{
        .width = fit.length(item.width), .height = fit.length(item.height), .angle = item.angle};
    return pictures.placed(item.path, placement, visible);
}

/// One drawing on one device, through GDI.
class DrawingPainter {
public:
    DrawingPainter(HDC device, const RECT& area, const Fit& fit, const DrawingObjects& objects,
                   PictureCache& pictures)
        : device_(device), area_(area), fit_(fit), objects_(objects), pictures_(pictures) {}

    void paintGround() const {
        const GdiObject<HBRUSH> ground(CreateSolidBrush(Ground));
        FillRect(device_, &area_, ground.get());
        const int tile = fit_.pixelsPerMetre;
        constexpr int leastTile = 6; // smaller ones are a blur
        if (objects_.gridPixels.pixels.empty() || tile < leastTile) {
            return;
        }
        const PixmapPlacement placement{
            .width = static_cast<double>(tile), .height = static_cast<double>(tile), .isTile = true};
        const PlacedBitmap* placed =
            pictures_.placed({}, objects_.gridPixels, placement, {-tile / 2, -tile / 2, tile, tile});
        if (placed == nullptr) {
            return;
        }
        const MemoryDevice memory(device_);
        const Selection selection(memory.get(), placed->bitmap.get());
        // A corner of the tiles lies on the centre of the hull.
        const int firstX = area_.left - tile + (fit_.originX % tile);
        const int firstY = area_.top - tile + (fit_.originY % tile);
        for (int y = firstY; y < area_.bottom; y += tile) {
            for (int x = firstX; x < area_.right; x += tile) {
                BitBlt(device_, x, y, tile, tile, memory.get(), 0, 0, SRCCOPY);
            }
        }
    }

    void operator()(const PictureItem& item) const {
        if (pictures_.pixels(item.path) == nullptr) {
            (*this)(PlaceholderItem{std::string(pictures_.failureOf(item.path)) + ": " + item.path,
                                    item.centre, item.width, item.height, item.angle, false, item.part});
            return;
        }
        const POINT centre = centreOf(item, area_, fit_);
        if (const PlacedBitmap* placed = placedPicture(item, area_, fit_, pictures_)) {
            blend(device_, centre.x, centre.y, *placed);
        }
    }

    void operator()(const PlaceholderItem& item) const {
        const Selection pen(device_, objects_.redPen.get());
        const Selection brush(device_, GetStockObject(NULL_BRUSH));
        if (item.isRound) {
            circle(item.centre, fit_.length(item.width) / 2);
        } else {
            frame(item.centre, item.width, item.height, item.angle);
        }
        labelPlaceholder(item);
    }

    void operator()(const OutlineItem& item) const {
        const Selection pen(device_, objects_.paleGreenPen.get());
        frame(item.centre, item.width, item.height, 0);
    }

    void operator()(const LineItem& item) const {
        const Selection pen(device_, penOf(objects_, item.ink));
        line(x(item.from), y(item.from), x(item.to), y(item.to));
    }

    void operator()(const SectorItem& item) const {
        std::vector<POINT> corners;
        for (const Point corner : outlineOf(item)) {
            corners.push_back(pixel(corner));
        }
        const Selection pen(device_, objects_.paleGreenPen.get());
        Polyline(device_, corners.data(), static_cast<int>(corners.size()));
    }

    void operator()(const MarkItem& item) const {
        if (item.direction) {
            paintArrow(item);
        }
        if (item.shape == MarkItem::Shape::CrewMan) {
            paintCrewMan(item);
            return;
        }
        const HBITMAP mark = item.shape == MarkItem::Shape::Exhaust  ? objects_.exhaustMark.get()
                             : item.shape == MarkItem::Shape::Weapon ? objects_.weaponMark.get()
                                                                     : objects_.dischargeMark.get();
        BITMAP size{};
        GetObjectA(mark, sizeof(size), &size);
        const MemoryDevice memory(device_);
        const Selection selection(memory.get(), mark);
        const int width = objects_.scaled(size.bmWidth);
        const int height = objects_.scaled(size.bmHeight);
        GdiAlphaBlend(device_, nearestPixel(x(item.centre)) - width / 2,
                      nearestPixel(y(item.centre)) - height / 2, width, height, memory.get(), 0, 0,
                      size.bmWidth, size.bmHeight, OverGround);
    }

    void operator()(const LabelItem& item) const {
        const Selection font(device_, item.isBold ? objects_.boldFont.get() : objects_.smallFont.get());
        SetBkMode(device_, TRANSPARENT);
        SetTextColor(device_, LabelInk);
        const int halfWidth = nearestPixel(fit_.length(item.width) / 2);
        const POINT top = pixel(item.top);
        RECT place{top.x - halfWidth, top.y, top.x + halfWidth, area_.bottom};
        DrawTextA(device_, item.text.data(), static_cast<int>(item.text.size()), &place,
                  DT_CENTER | DT_WORDBREAK | DT_NOPREFIX | DT_NOCLIP);
    }

    void operator()(const ShapeItem& item) const {
        std::vector<POINT> corners;
        for (const Point corner : item.corners) {
            corners.push_back(pixel(corner));
        }
        const GdiObject<HBRUSH> brush(CreateSolidBrush(colourRef(item.fill)));
        const Selection selectedBrush(device_, brush.get());
        const Selection pen(device_, objects_.blackPen.get());
        Polygon(device_, corners.data(), static_cast<int>(corners.size()));
    }

    /// Shows which part is selected: a ring around a mark, a frame around a picture.
    void paintSelection(const DrawList& list, const DrawingView& view) const {
        const std::vector<const DrawItem*> items = itemsOf(list, view.selected);
        if (items.empty()) {
            return;
        }
        // Lines only tell more of what they stand beside: where a part has a picture or a mark, that is it.
        const auto body = std::find_if(items.rbegin(), items.rend(), [](const DrawItem* item) {
            return !std::holds_alternative<LineItem>(*item);
        });
        const DrawItem& shown = body == items.rend() ? *items.back() : **body;
        // Dark on a wider light line can be seen on every ground.
        const GdiObject<HPEN> light(CreatePen(PS_SOLID, objects_.scaled(4), RGB(255, 255, 255)));
        const GdiObject<HPEN> dark(CreatePen(PS_SOLID, objects_.scaled(2), GetSysColor(COLOR_HIGHLIGHT)));
        const Selection brush(device_, GetStockObject(NULL_BRUSH));
        for (const HPEN pen : {light.get(), dark.get()}) {
            const Selection selectedPen(device_, pen);
            std::visit([this](const auto& item) { surround(item); }, shown);
        }
        if (!view.caption.empty()) {
            std::visit([&](const auto& item) { caption(view.caption, pixel(placeOf(item))); }, shown);
        }
    }

    /// A bar of whole metres in the lower left corner, or of tenths where a metre is too long.
    void paintScale() const {
        constexpr int wantedLength = 100;
        constexpr int tenths = 10;
        const int wanted = objects_.scaled(wantedLength);
        const bool isLarge = fit_.pixelsPerMetre > 3 * wanted;
        const double unit = isLarge ? fit_.pixelsPerMetre / static_cast<double>(tenths) : fit_.pixelsPerMetre;
        const int units = niceCount(std::max(1, static_cast<int>(wanted / unit)));
        const int left = area_.left + objects_.scaled(DrawingMargin);
        const int bottom = area_.bottom - objects_.scaled(DrawingMargin) / 2;
        const int height = objects_.scaled(5);
        const int pad = objects_.scaled(6);
        const int length = nearestPixel(unit * units);
        // On a plate of its own: the unit may reach below it.
        const RECT plate{left - pad, bottom - height - objects_.scaled(20), left + length + pad,
                         bottom + pad};
        FillRect(device_, &plate, objects_.beigeBrush.get());
        const Selection pen(device_, objects_.blackPen.get());
        const int bars = units <= tenths ? units : tenths / 2;
        for (int bar = 0; bar < bars; ++bar) {
            const Selection brush(device_, GetStockObject(bar % 2 == 0 ? BLACK_BRUSH : WHITE_BRUSH));
            Rectangle(device_, left + nearestPixel(unit * units * bar / bars), bottom - height,
                      left + nearestPixel(unit * units * (bar + 1) / bars) + 1, bottom + 1);
        }
        const std::string words =
            isLarge ? std::to_string(units * tenths) + " cm" : std::to_string(units) + " m";
        text(words, left + nearestPixel(unit * units / 2), bottom - height - objects_.scaled(2));
    }

private:
    [[nodiscard]] double x(Point point) const { return area_.left + fit_.screenX(point.x); }
    [[nodiscard]] double y(Point point) const { return area_.top + fit_.screenY(point.y); }
    [[nodiscard]] POINT pixel(Point point) const { return {nearestPixel(x(point)), nearestPixel(y(point))}; }

    /// 1, 2, 5, 10, 20 ...: the greatest that is not above `most`.
    static int niceCount(int most) {
        int nice = 1;
        for (const int factor : {1, 10, 100}) {
            for (const int digit : {1, 2, 5}) {
                nice = digit * factor <= most ? digit * factor : nice;
            }
        }
        return nice;
    }

    void line(double fromX, double fromY, double toX, double toY) const {
        MoveToEx(device_, nearestPixel(fromX), nearestPixel(fromY), nullptr);
        LineTo(device_, nearestPixel(toX), nearestPixel(toY));
    }

    void circle(Point centre, double radius) const {
        const POINT middle = pixel(centre);
        const int size = nearestPixel(radius);
        Ellipse(device_, middle.x - size, middle.y - size, middle.x + size + 1, middle.y + size + 1);
    }

    /// The outline of a turned rectangle.
    void frame(Point centre, double width, double height, double angle) const {
        std::array<POINT, 5> corners{};
        constexpr std::array<Point, 5> signs = {{{-1, 1}, {1, 1}, {1, -1}, {-1, -1}, {-1, 1}}};
        for (std::size_t i = 0; i < corners.size(); ++i) {
            corners[i] = pixel(centre + turned({signs[i].x * width / 2, signs[i].y * height / 2}, angle));
        }
        Polyline(device_, corners.data(), static_cast<int>(corners.size()));
    }

    /// The point of an item that its caption belongs to.
    template <typename Item>
    static Point placeOf(const Item& item) {
        return item.centre;
    }
    static Point placeOf(const LineItem& item) { return item.from; }
    static Point placeOf(const LabelItem& item) { return item.top; }
    static Point placeOf(const ShapeItem& item) { return item.corners.front(); }

    void surround(const PictureItem& item) const {
        if (item.roundSize > 0) {
            circle(item.centre, fit_.length(item.roundSize) / 2);
        } else {
            frame(item.centre, item.width, item.height, item.angle);
        }
    }
    void surround(const PlaceholderItem& item) const {
        frame(item.centre, item.width, item.height, item.angle);
    }
    void surround(const OutlineItem& item) const { frame(item.centre, item.width, item.height, 0); }
    void surround(const LineItem& item) const { circle(item.from, objects_.scaled(2 * MarkRadius)); }
    void surround(const SectorItem& item) const { circle(item.centre, objects_.scaled(2 * MarkRadius)); }
    void surround(const MarkItem& item) const { circle(item.centre, objects_.scaled(MarkRadius + 4)); }
    void surround(const LabelItem&) const {}
    void surround(const ShapeItem& item) const {
        Point least = item.corners.front();
        Point greatest = least;
        for (const Point corner : item.corners) {
            least = {std::min(least.x, corner.x), std::min(least.y, corner.y)};
            greatest = {std::max(greatest.x, corner.x), std::max(greatest.y, corner.y)};
        }
        frame({(least.x + greatest.x) / 2, (least.y + greatest.y) / 2}, greatest.x - least.x,
              greatest.y - least.y, 0);
    }

    /// Shorter the more it points up; straight up nothing is left of it.
    void paintArrow(const MarkItem& item) const {
        constexpr int arrowLength = 26;
        constexpr int barbLength = 6;
        constexpr double barbAngle = 150;
        const double length = std::cos(radians(item.elevation)) * objects_.scaled(arrowLength);
        if (length < objects_.scaled(MarkRadius)) {
            return;
        }
        const Ink ink = item.shape == MarkItem::Shape::Exhaust  ? Ink::Red
                        : item.shape == MarkItem::Shape::Weapon ? Ink::White
                                                                : Ink::Yellow;
        const Selection pen(device_, penOf(objects_, ink));
        const auto arrow = [&](Point from, double direction, double size) {
            const double angle = radians(direction);
            const Point tip{from.x + std::sin(angle) * size, from.y - std::cos(angle) * size};
            line(from.x, from.y, tip.x, tip.y);
            return tip;
        };
        const Point tip = arrow({x(item.centre), y(item.centre)}, *item.direction, length);
        for (const double side : {barbAngle, -barbAngle}) {
            arrow(tip, *item.direction + side, objects_.scaled(barbLength));
        }
    }

    void paintCrewMan(const MarkItem& item) const {
        {
            const Selection pen(device_, objects_.blackPen.get());
            const Selection brush(device_, objects_.beigeBrush.get());
            circle(item.centre, objects_.scaled(MarkRadius + 2));
        }
        const Selection font(device_, objects_.smallFont.get());
        SetBkMode(device_, TRANSPARENT);
        SetTextColor(device_, LabelInk);
        const POINT middle = pixel(item.centre);
        const int size = objects_.scaled(MarkRadius + 2);
        RECT place{middle.x - size, middle.y - size, middle.x + size + 1, middle.y + size + 1};
        DrawTextA(device_, item.letter.data(), static_cast<int>(item.letter.size()), &place,
                  DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    }

    void text(const std::string& words, int centreX, int baseY) const {
        const Selection font(device_, objects_.smallFont.get());
        SetBkMode(device_, TRANSPARENT);
        SetTextColor(device_, LabelInk);
        SetTextAlign(device_, TA_CENTER | TA_BOTTOM);
        TextOutA(device_, centreX, baseY, words.data(), static_cast<int>(words.size()));
        SetTextAlign(device_, TA_LEFT | TA_TOP);
    }

    /// Broken into lines within the outline, or within the least width that names can be read in.
    void labelPlaceholder(const PlaceholderItem& item) const {
        constexpr int leastWidth = 100;
        const int halfWidth =
            std::max(nearestPixel(fit_.length(item.width)), objects_.scaled(leastWidth)) / 2;
        const Selection font(device_, objects_.smallFont.get());
        SetBkMode(device_, TRANSPARENT);
        SetTextColor(device_, LabelInk);
        constexpr UINT format = DT_CENTER | DT_WORDBREAK | DT_EDITCONTROL | DT_NOPREFIX;
        const POINT centre = pixel(item.centre);
        RECT place{centre.x - halfWidth, 0, centre.x + halfWidth, 0};
        DrawTextA(device_, item.label.data(), static_cast<int>(item.label.size()), &place,
                  format | DT_CALCRECT);
        place = {centre.x - halfWidth, centre.y - place.bottom / 2, centre.x + halfWidth, area_.bottom};
        DrawTextA(device_, item.label.data(), static_cast<int>(item.label.size()), &place, format);
    }

    /// Words on a plate of their own beside a point, kept inside the area.
    void caption(const std::string& words, POINT beside) const {
        const Selection font(device_, objects_.normalFont.get());
        SIZE size{};
        GetTextExtentPoint32A(device_, words.data(), static_cast<int>(words.size()), &size);
        const int pad = objects_.scaled(4);
        const int away = objects_.scaled(2 * MarkRadius);
        const LONG width = size.cx + 2 * pad;
        const bool fitsRight = beside.x + away + width <= area_.right;
        const LONG wanted = fitsRight ? beside.x + away : beside.x - away - width;
        const LONG left = std::max(area_.left, wanted);
        const LONG lowest = std::max(area_.top, area_.bottom - size.cy - 2 * pad);
        const LONG top = std::clamp(beside.y - size.cy / 2 - pad, area_.top, lowest);
        const RECT plate{left, top, left + width, top + size.cy + 2 * pad};
        FillRect(device_, &plate, objects_.beigeBrush.get());
        FrameRect(device_, &plate, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
        SetBkMode(device_, TRANSPARENT);
        SetTextColor(device_, LabelInk);
        TextOutA(device_, left + pad, top + pad, words.data(), static_cast<int>(words.size()));
    }

    HDC device_;
    const RECT& area_;
    const Fit& fit_;
    const DrawingObjects& objects_;
    PictureCache& pictures_;
};

} // namespace

MemoryBitmap::MemoryBitmap(HDC screen, int width, int height)
    : device_(CreateCompatibleDC(screen)),
      bitmap_(CreateCompatibleBitmap(screen, std::max(1, width), std::max(1, height))),
      former_(SelectObject(device_, bitmap_)) {}

MemoryBitmap::~MemoryBitmap() {
    SelectObject(device_, former_);
    DeleteObject(bitmap_);
    DeleteDC(device_);
}

HDC deviceOf(Canvas& canvas, HDC screen, SIZE size) {
    if (!canvas.bitmap || canvas.size.cx != size.cx || canvas.size.cy != size.cy) {
        canvas.bitmap = std::make_unique<MemoryBitmap>(screen, size.cx, size.cy);
        canvas.size = size;
        canvas.isPainted = false;
    }
    return canvas.bitmap->device();
}

void preparePicture(const PictureItem& item, const RECT& area, const Fit& fit, PictureCache& pictures) {
    placedPicture(item, area, fit, pictures);
}

void paintDrawing(HDC device, const RECT& area, const DrawList& list, const DrawingView& view,
                  const DrawingObjects& objects, PictureCache& pictures) {
    const int saved = SaveDC(device);
    IntersectClipRect(device, area.left, area.top, area.right, area.bottom);
    const DrawingPainter painter(device, area, view.fit, objects, pictures);
    painter.paintGround();
    for (const DrawItem& item : list.items) {
        std::visit(painter, item);
    }
    painter.paintSelection(list, view);
    painter.paintScale();
    RestoreDC(device, saved);
}

} // namespace varrocade
