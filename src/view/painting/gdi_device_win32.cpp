#include "view/painting/gdi_device_win32.h"

#include "view/painting/timeline_painter_win32.h"

namespace varrocade {

namespace {

int lengthOf(std::string_view words) {
    return static_cast<int>(words.size());
}

} // namespace

GdiDevice::GdiDevice(HDC device, const DrawingObjects& objects, PictureCache* pictures)
    : device_(device), saved_(SaveDC(device)), objects_(objects), pictures_(pictures) {
    SetBkMode(device_, TRANSPARENT);
}

GdiDevice::~GdiDevice() {
    RestoreDC(device_, saved_);
}

void GdiDevice::use(TextFont font) {
    const HFONT wanted = font == TextFont::Small    ? objects_.smallFont.get()
                         : font == TextFont::Normal ? objects_.normalFont.get()
                         : font == TextFont::Bold   ? objects_.boldFont.get()
                                                    : objects_.largeFont.get();
    if (GetCurrentObject(device_, OBJ_FONT) != wanted) {
        SelectObject(device_, wanted);
    }
}

int GdiDevice::lineHeight(TextFont font) {
    use(font);
    TEXTMETRICA metrics{};
    GetTextMetricsA(device_, &metrics);
    return metrics.tmHeight + scaled(2);
}

PixelSize GdiDevice::sizeOf(std::string_view words, TextFont font) {
    use(font);
    SIZE size{};
    GetTextExtentPoint32A(device_, words.data(), lengthOf(words), &size);
    return {size.cx, size.cy};
}

std::optional<PictureSize> GdiDevice::pictureSize(const std::string& path) {
    return pictures_ != nullptr ? pictures_->sizeOf(path) : std::nullopt;
}

void GdiDevice::text(std::string_view words, PixelPoint at, TextFont font, Colour colour, TextSide side) {
    use(font);
    SetTextColor(device_, colourRef(colour));
    const UINT horizontal = side == TextSide::Left     ? TA_LEFT
                            : side == TextSide::Centre ? TA_CENTER
                                                       : TA_RIGHT;
    const UINT former = SetTextAlign(device_, horizontal | TA_TOP);
    TextOutA(device_, at.x, at.y, words.data(), lengthOf(words));
    SetTextAlign(device_, former);
}

int GdiDevice::brokenText(std::string_view words, int left, int right, int top, TextFont font,
                          Colour colour) {
    constexpr UINT format = DT_WORDBREAK | DT_NOPREFIX | DT_EDITCONTROL;
    use(font);
    SetTextColor(device_, colourRef(colour));
    RECT place{left, top, right, top};
    DrawTextA(device_, words.data(), lengthOf(words), &place, format | DT_CALCRECT);
    place.right = right;
    DrawTextA(device_, words.data(), lengthOf(words), &place, format);
    return place.bottom - place.top;
}

void GdiDevice::line(PixelPoint from, PixelPoint to, Colour colour, int width) {
    const GdiObject<HPEN> pen(CreatePen(PS_SOLID, width, colourRef(colour)));
    const Selection selection(device_, pen.get());
    MoveToEx(device_, from.x, from.y, nullptr);
    LineTo(device_, to.x, to.y);
}

void GdiDevice::fill(const PixelRect& area, Colour colour) {
    const RECT rectangle{area.left, area.top, area.right, area.bottom};
    const GdiObject<HBRUSH> brush(CreateSolidBrush(colourRef(colour)));
    FillRect(device_, &rectangle, brush.get());
}

bool GdiDevice::picture(const std::string& path, PixelPoint corner, const PixmapPlacement& placement) {
    const PlacedBitmap* placed =
        pictures_ != nullptr ? pictures_->placed(path, placement, boxOf(placement)) : nullptr;
    if (placed == nullptr) {
        return false;
    }
    blend(device_, corner.x - placed->box.left, corner.y - placed->box.top, *placed);
    return true;
}

void GdiDevice::timeline(const PixelRect& area, std::span<const AvailabilityPoint> points) {
    paintTimeline(device_, {area.left, area.top, area.right, area.bottom}, points, objects_);
}

void GdiDevice::clip(const PixelRect& area) {
    IntersectClipRect(device_, area.left, area.top, area.right, area.bottom);
}

} // namespace varrocade
