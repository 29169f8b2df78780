#include "app/workspace/window_layout.h"

#include <algorithm>

namespace varrocade {

namespace {

constexpr int PlainDpi = 96;

int scaled(int length, int dpi) {
    return length * dpi / PlainDpi;
}

} // namespace

WindowPlace firstWindowPlace(int workWidth, int workHeight, const FrameMetrics& metrics, int dpi) {
    const int height = workHeight;
    const int pictureWidth =
        ((height - (2 * metrics.frame + 8) - metrics.caption - metrics.menu) * PictureAspectWidth) /
        PictureAspectHeight;
    const auto widthAt = [&](int bandDpi) {
        return pictureWidth + 2 * (metrics.frame + scaled(BandWidth / 2, bandDpi));
    };
    const int width = std::max(widthAt(PlainDpi), std::min(widthAt(dpi), workWidth));
    return {(workWidth - width) / 2, (workHeight - height) / 2, width, height};
}

WindowPlace fileListPlace(int height) {
    return {4, 68, 350, std::max(0, height - 102)};
}

WindowPlace filterPlace() {
    return {4, 43, 350, 22};
}

WindowPlace filterBesideBoxPlace() {
    return {4, 43, 212, 22};
}

WindowPlace gameUnitsBoxPlace() {
    return {220, 43, 134, 22};
}

WindowPlace listNoticePlace() {
    return {14, 96, 314, 130};
}

WindowPlace listRemedyPlace() {
    return {106, 234, 130, 28};
}

std::array<WindowPlace, FileButtonCount> fileButtonPlaces(int height) {
    const int y = height - 34;
    return {{{8, y, 82, 24}, {94, y, 82, 24}, {180, y, 82, 24}, {266, y, 82, 24}}};
}

WindowPlace picturePlace(int width, int height, int dpi) {
    const int left = scaled(ListWidth, dpi);
    const int besideSheet = width - scaled(BandWidth, dpi);
    const int besideLeastSheet = width - left - scaled(LeastSheetWidth, dpi);
    const int narrow = std::min(scaled(LeastPictureWidth, dpi), besideLeastSheet);
    return {left, 0, std::max({0, besideSheet, narrow}), height};
}

WindowPlace sheetPlace(int width, int height, int dpi) {
    const WindowPlace picture = picturePlace(width, height, dpi);
    const int left = picture.x + picture.width;
    return {left, 0, std::max(0, width - left), height};
}

} // namespace varrocade
