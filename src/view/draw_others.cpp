// The drawings of heavy weapons and of aircraft: their records have no sizes, so the pictures' own count.

#include "data/image_names.h"
#include "view/draw_list.h"
#include "view/image_folders.h"

#include <algorithm>

namespace varrocade {

namespace {

constexpr double GroundScale = 1.0; ///< centimetres a pixel
constexpr double AirScale = 2.0;    ///< aircraft pictures are drawn at half the scale
constexpr double UnknownPictureSize = 200;

class PictureStack {
public:
    PictureStack(const DrawOptions& options, PictureSizes& sizes) : options_(options), sizes_(sizes) {}

    /// Puts a picture on the drawing; `width` stretches it to a size in centimetres where that is known.
    void add(std::string_view name, Point centre, double centimetresPerPixel, double width = 0) {
        if (name.empty()) {
            return;
        }
        std::string below(image_folder::Units);
        below += name;
        below += ImageEnding;
        for (const std::string& base : options_.bases) {
            if (const auto size = sizes_.sizeOf(base + below)) {
                const double scale = width > 0 ? width / size->width : centimetresPerPixel;
                place(PictureItem{base + below, centre, size->width * scale, size->height * scale, 0});
                return;
            }
        }
        list_.missingPictures.push_back(below);
        const double size = width > 0 ? width : UnknownPictureSize;
        place(PlaceholderItem{"Missing: " + std::string(name) + std::string(ImageEnding), centre, size, size,
                              0, false});
    }

    DrawList take() { return std::move(list_); }

private:
    template <typename Item>
    void place(Item item) {
        const Point least{item.centre.x - item.width / 2, item.centre.y - item.height / 2};
        const Point greatest{item.centre.x + item.width / 2, item.centre.y + item.height / 2};
        list_.least = {std::min(list_.least.x, least.x), std::min(list_.least.y, least.y)};
        list_.greatest = {std::max(list_.greatest.x, greatest.x), std::max(list_.greatest.y, greatest.y)};
        list_.items.push_back(std::move(item));
    }

    const DrawOptions& options_;
    PictureSizes& sizes_;
    DrawList list_;
};

} // namespace

DrawList drawHeavyWeapon(const HeavyWeaponRecord& weapon, const DrawOptions& options, PictureSizes& sizes) {
    PictureStack stack(options, sizes);
    stack.add(weapon.baseImage, {}, GroundScale);
    stack.add(weapon.gunImage, {}, GroundScale);
    return stack.take();
}

DrawList drawAircraft(const AircraftRecord& aircraft, const DrawOptions& options, PictureSizes& sizes) {
    PictureStack stack(options, sizes);
    stack.add(aircraft.image, {}, AirScale);
    for (const RotorBladesRecord& rotor : aircraft.rotorBlades) {
        stack.add(rotor.image, {static_cast<double>(rotor.offsetX), static_cast<double>(rotor.offsetY)},
                  AirScale, rotor.diameter);
    }
    return stack.take();
}

} // namespace varrocade
