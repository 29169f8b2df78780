#include "view/flag_painter_win32.h"

#include "data/image_names.h"
#include "view/image_folders.h"

#include <algorithm>

namespace varrocade {

bool paintFlag(HDC device, const RECT& area, std::string_view nationalityWord,
               std::span<const std::string> bases, PictureCache& pictures) {
    if (nationalityWord.empty()) {
        return false;
    }
    std::string name(nationalityWord);
    std::transform(name.begin(), name.end(), name.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    for (const std::string& base : bases) {
        const std::string path =
            base + std::string(image_folder::StaticFlags) + name + std::string(ImageEnding);
        // Asking for the size first spares reading a file that is known not to be there.
        Gdiplus::Bitmap* flag = pictures.sizeOf(path) ? pictures.picture(path) : nullptr;
        if (flag != nullptr) {
            Gdiplus::Graphics graphics(device);
            graphics.SetInterpolationMode(Gdiplus::InterpolationModeHighQualityBilinear);
            graphics.DrawImage(
                flag, Gdiplus::Rect(area.left, area.top, area.right - area.left, area.bottom - area.top), 0,
                0, static_cast<INT>(flag->GetWidth()), static_cast<INT>(flag->GetHeight()),
                Gdiplus::UnitPixel);
            return true;
        }
    }
    return false;
}

} // namespace varrocade
