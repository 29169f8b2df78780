#include "view/painting/flag_painter.h"

#include "data/format/texts.h"
#include "data/unit/image_folders.h"
#include "data/unit/image_names.h"

namespace varrocade {

bool paintFlag(PaintDevice& device, const PixelRect& area, std::string_view nationalityWord,
               std::span<const std::string> bases) {
    if (nationalityWord.empty()) {
        return false;
    }
    const std::string name = loweredText(nationalityWord);
    const PixmapPlacement placement{.width = static_cast<double>(area.right - area.left),
                                    .height = static_cast<double>(area.bottom - area.top),
                                    .isTile = true};
    for (const std::string& base : bases) {
        const std::string path =
            base + std::string(image_folder::StaticFlags) + name + std::string(ImageEnding);
        // Asking for the size first spares reading a file that is known not to be there.
        if (device.pictureSize(path) && device.picture(path, {area.left, area.top}, placement)) {
            return true;
        }
    }
    return false;
}

} // namespace varrocade
