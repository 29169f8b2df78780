#include "view/painter_win32.h"

#include <cmath>
#include <numbers>
#include <string>
#include <variant>

namespace varrocade {

namespace {

constexpr COLORREF Ground = RGB(206, 200, 170);
constexpr int PaintMargin = 24;

HPEN penOf(const DrawingObjects& objects, Ink ink) {
    switch (ink) {
    case Ink::Black:
        return objects.blackPen.get();
    case Ink::White:
        return objects.whitePen.get();
    case Ink::Red:
        return objects.redPen.get();
    case Ink::Green:
        return objects.greenPen.get();
    case Ink::PaleGreen:
        return objects.paleGreenPen.get();
    case Ink::Yellow:
        return objects.yellowPen.get();
    case Ink::Blue:
        break;
    }
    return objects.bluePen.get();
}

/// One drawing on one device. Pictures go through GDI+, text and lines through GDI.
class DrawingPainter {
public:
    DrawingPainter(HDC device, const RECT& area, const Fit& fit, const DrawingObjects& objects,
                   PictureCache& pictures)
        : device_(device), area_(area), fit_(fit), objects_(objects), pictures_(pictures) {}

    void paintGround() const {
        const GdiObject<HBRUSH> ground(CreateSolidBrush(Ground));
        FillRect(device_, &area_, ground.get());
        if (!objects_.grid) {
            return;
        }
        const int tile = fit_.pixelsPerMetre;
        const MemoryBitmap scaledTile(device_, tile, tile);
        {
            Gdiplus::Graphics graphics(scaledTile.device());
            graphics.SetInterpolationMode(Gdiplus::InterpolationModeHighQualityBilinear);
            graphics.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
            graphics.DrawImage(objects_.grid.get(), Gdiplus::Rect(0, 0, tile, tile), 0, 0,
                               static_cast<INT>(objects_.grid->GetWidth()),
                               static_cast<INT>(objects_.grid->GetHeight()), Gdiplus::UnitPixel);
        }
        // A corner of the tiles lies on the centre of the hull.
        const int firstX = area_.left - tile + (fit_.originX % tile);
        const int firstY = area_.top - tile + (fit_.originY % tile);
        for (int y = firstY; y < area_.bottom; y += tile) {
            for (int x = firstX; x < area_.right; x += tile) {
                BitBlt(device_, x, y, tile, tile, scaledTile.device(), 0, 0, SRCCOPY);
            }
        }
    }

    void operator()(const PictureItem& item) const {
        Gdiplus::Bitmap* bitmap = pictures_.picture(item.path);
        if (bitmap == nullptr) {
            (*this)(PlaceholderItem{"Unreadable: " + item.path, item.centre, item.width, item.height,
                                    item.angle, false});
            return;
        }
        Gdiplus::Graphics graphics(device_);
        graphics.SetInterpolationMode(Gdiplus::InterpolationModeHighQualityBilinear);
        graphics.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
        graphics.TranslateTransform(static_cast<Gdiplus::REAL>(x(item.centre)),
                                    static_cast<Gdiplus::REAL>(y(item.centre)));
        graphics.RotateTransform(static_cast<Gdiplus::REAL>(item.angle));
        const auto width = static_cast<Gdiplus::REAL>(fit_.length(item.width));
        const auto height = static_cast<Gdiplus::REAL>(fit_.length(item.height));
        graphics.DrawImage(bitmap, Gdiplus::RectF(-width / 2, -height / 2, width, height), 0, 0,
                           static_cast<Gdiplus::REAL>(bitmap->GetWidth()),
                           static_cast<Gdiplus::REAL>(bitmap->GetHeight()), Gdiplus::UnitPixel);
    }

    void operator()(const PlaceholderItem& item) const {
        const Selection pen(device_, objects_.redPen.get());
        const Selection brush(device_, GetStockObject(NULL_BRUSH));
        const int halfWidth = rounded(fit_.length(item.width) / 2);
        const int halfHeight = rounded(fit_.length(item.height) / 2);
        const int centreX = rounded(x(item.centre));
        const int centreY = rounded(y(item.centre));
        if (item.isRound) {
            Ellipse(device_, centreX - halfWidth, centreY - halfHeight, centreX + halfWidth,
                    centreY + halfHeight);
        } else {
            Rectangle(device_, centreX - halfWidth, centreY - halfHeight, centreX + halfWidth,
                      centreY + halfHeight);
        }
        text(item.label, centreX, centreY);
    }

    void operator()(const OutlineItem& item) const {
        const Selection pen(device_, objects_.paleGreenPen.get());
        const Selection brush(device_, GetStockObject(NULL_BRUSH));
        Rectangle(device_, rounded(x(item.centre) - fit_.length(item.width) / 2),
                  rounded(y(item.centre) - fit_.length(item.height) / 2),
                  rounded(x(item.centre) + fit_.length(item.width) / 2),
                  rounded(y(item.centre) + fit_.length(item.height) / 2));
    }

    void operator()(const LineItem& item) const {
        const Selection pen(device_, penOf(objects_, item.ink));
        line(x(item.from), y(item.from), x(item.to), y(item.to));
    }

    void operator()(const MarkItem& item) const {
        const bool isExhaust = item.shape == MarkItem::Shape::Exhaust;
        const Selection pen(device_, isExhaust ? objects_.redPen.get() : objects_.yellowPen.get());
        const Selection brush(device_,
                              isExhaust ? GetStockObject(BLACK_BRUSH) : GetStockObject(DKGRAY_BRUSH));
        constexpr int radius = 4;
        constexpr int arrowLength = 18;
        constexpr int barbLength = 6;
        constexpr double barbAngle = 150;
        const int size = objects_.scaled(radius);
        const double centreX = x(item.centre);
        const double centreY = y(item.centre);
        if (item.direction) {
            const Point tip = along({centreX, centreY}, *item.direction, objects_.scaled(arrowLength));
            line(centreX, centreY, tip.x, tip.y);
            for (const double side : {barbAngle, -barbAngle}) {
                const Point barb = along(tip, *item.direction + side, objects_.scaled(barbLength));
                line(tip.x, tip.y, barb.x, barb.y);
            }
        }
        Ellipse(device_, rounded(centreX) - size, rounded(centreY) - size, rounded(centreX) + size + 1,
                rounded(centreY) + size + 1);
    }

    /// A bar of whole metres in the lower left corner.
    void paintScale() const {
        constexpr int wantedLength = 100;
        const int pixels = fit_.pixelsPerMetre;
        const int metres = std::max(1, objects_.scaled(wantedLength) / pixels);
        const int left = area_.left + objects_.scaled(PaintMargin);
        const int bottom = area_.bottom - objects_.scaled(PaintMargin);
        const int tick = objects_.scaled(4);
        const Selection pen(device_, objects_.blackPen.get());
        line(left, bottom, left + metres * pixels, bottom);
        for (int metre = 0; metre <= metres; ++metre) {
            line(left + metre * pixels, bottom - tick, left + metre * pixels, bottom + tick);
        }
        text(std::to_string(metres) + " m", left + metres * pixels / 2, bottom - 2 * tick);
    }

private:
    static int rounded(double value) { return static_cast<int>(std::lround(value)); }
    [[nodiscard]] double x(Point point) const { return area_.left + fit_.screenX(point.x); }
    [[nodiscard]] double y(Point point) const { return area_.top + fit_.screenY(point.y); }

    /// A point of the screen `length` pixels away in a direction.
    static Point along(Point from, double direction, double length) {
        const double angle = direction * std::numbers::pi / 180;
        return {from.x + std::sin(angle) * length, from.y - std::cos(angle) * length};
    }

    void line(double fromX, double fromY, double toX, double toY) const {
        MoveToEx(device_, rounded(fromX), rounded(fromY), nullptr);
        LineTo(device_, rounded(toX), rounded(toY));
    }

    void text(const std::string& words, int centreX, int baseY) const {
        const Selection font(device_, objects_.smallFont.get());
        SetBkMode(device_, TRANSPARENT);
        SetTextAlign(device_, TA_CENTER | TA_BOTTOM);
        TextOutA(device_, centreX, baseY, words.data(), static_cast<int>(words.size()));
        SetTextAlign(device_, TA_LEFT | TA_TOP);
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

void paintDrawing(HDC device, const RECT& area, const DrawList& list, const DrawingObjects& objects,
                  PictureCache& pictures) {
    const Fit fit =
        fitInto(list, area.right - area.left, area.bottom - area.top, objects.scaled(PaintMargin));
    const int saved = SaveDC(device);
    IntersectClipRect(device, area.left, area.top, area.right, area.bottom);
    const DrawingPainter painter(device, area, fit, objects, pictures);
    painter.paintGround();
    for (const DrawItem& item : list.items) {
        std::visit(painter, item);
    }
    painter.paintScale();
    RestoreDC(device, saved);
}

} // namespace varrocade
