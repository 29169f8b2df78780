#include "view/painting/flag_painter_win32.h"

#include "data/format/texts.h"
#include "data/unit/image_names.h"
#include "view/drawing/image_folders.h"

namespace varrocade {

bool paintFlag(HDC device, const RECT& area, std::string_view nationalityWord,
               std::span<const std::string> bases, PictureCache& pictures) {
    if (nationalityWord.empty()) {
        return false;
    }
    const std::string name = loweredText(nationalityWord);
    for (const std::string& base : bases) {
        const std::string path =
            base + std::string(image_folder::StaticFlags) + name + std::string(ImageEnding);
        // Asking for the size first spares reading a file that is known not to be there.
        if (!pictures.sizeOf(path)) {
            continue;
        }
        const PixmapPlacement placement{.width = static_cast<double>(area.right - area.left),
                                        .height = static_cast<double>(area.bottom - area.top),
                                        .isTile = true};
        if (const PlacedBitmap* flag = pictures.placed(path, placement, boxOf(placement))) {
            blend(device, area.left - flag->box.left, area.top - flag->box.top, *flag);
            return true;
        }
    }
    return false;
}

} // namespace varrocade
