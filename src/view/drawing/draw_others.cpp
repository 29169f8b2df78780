// The drawings of heavy weapons and of aircraft: their records have no sizes, so the pictures' own count.

#include "data/unit/image_folders.h"
#include "data/unit/image_names.h"
#include "view/drawing/drawing_angles.h"
#include "view/drawing/traverse.h"

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
    /// Returns the width that it has then.
    double add(std::string_view name, Point centre, double centimetresPerPixel, UnitPart part,
               double width = 0, double angle = 0) {
        if (name.empty()) {
            return width;
        }
        std::string below(image_folder::Units);
        below += name;
        below += ImageEnding;
        for (const std::string& base : options_.bases) {
            if (const auto size = sizes_.sizeOf(base + below)) {
                const double scale = width > 0 ? width / size->width : centimetresPerPixel;
                place(PictureItem{base + below, centre, size->width * scale, size->height * scale, angle,
                                  part});
                return size->width * scale;
            }
        }
        list_.missingPictures.push_back(below);
        const double size = width > 0 ? width : UnknownPictureSize;
        place(PlaceholderItem{"Missing: " + std::string(name) + std::string(ImageEnding), centre, size, size,
                              0, false, part});
        return size;
    }

    /// A sector of traverse that reaches over what has been drawn.
    void addSector(std::int32_t left, std::int32_t right, UnitPart part) {
        const double radius = std::max(UnknownPictureSize, list_.greatest.y);
        if (const auto sector = sectorOf({}, radius, 0, left, right, part)) {
            list_.items.emplace_back(*sector);
        }
    }

    void mark(MarkItem item) { list_.items.push_back(std::move(item)); }
    void line(const LineItem& item) { list_.items.push_back(item); }

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

/// An arrow head where a rotor's blades go to the rear: at its right when it turns clockwise, otherwise at
/// its left. So the marks of two rotors on one mast stand apart.
void addTurning(PictureStack& stack, const RotorBladesRecord& rotor, double diameter, UnitPart part) {
    constexpr double out = 0.35; ///< of the diameter
    constexpr double size = 25;  ///< of the arrow head
    const double side = diameter * (rotor.clockwise ? out : -out);
    const Point tip{rotor.offsetX + side, static_cast<double>(rotor.offsetY)};
    stack.line({{tip.x - size, tip.y + size}, tip, Ink::Yellow, part});
    stack.line({{tip.x + size, tip.y + size}, tip, Ink::Yellow, part});
}

} // namespace

DrawList drawHeavyWeapon(const HeavyWeaponRecord& weapon, const DrawOptions& options, PictureSizes& sizes) {
    PictureStack stack(options, sizes);
    const UnitPart whole{PartKind::HeavyWeapon};
    stack.add(weapon.baseImage, {}, GroundScale, whole);
    if (options.showMarks && weapon.limitedTraverse) {
        stack.addSector(weapon.rotateLeft, weapon.rotateRight, whole);
    }
    stack.add(weapon.gunImage, {}, GroundScale, whole, 0, turnOf(options.turns, 0));
    return stack.take();
}

DrawList drawAircraft(const AircraftRecord& aircraft, const DrawOptions& options, PictureSizes& sizes) {
    PictureStack stack(options, sizes);
    stack.add(aircraft.image, {}, AirScale, {PartKind::Aircraft});
    for (std::size_t i = 0; i < aircraft.rotorBlades.size(); ++i) {
        const RotorBladesRecord& rotor = aircraft.rotorBlades[i];
        const UnitPart part{PartKind::Rotor, 0, i};
        const double diameter =
            stack.add(rotor.image, {static_cast<double>(rotor.offsetX), static_cast<double>(rotor.offsetY)},
                      AirScale, part, rotor.diameter);
        if (options.showMarks) {
            addTurning(stack, rotor, diameter, part);
        }
    }
    for (std::size_t i = 0; options.showMarks && i < aircraft.weapons.size(); ++i) {
        const WeaponMountRecord& weapon = aircraft.weapons[i];
        stack.mark({.shape = MarkItem::Shape::Weapon,
                    .centre = {static_cast<double>(weapon.offsetX), static_cast<double>(weapon.offsetY)},
                    .direction = weapon.offsetAngle,
                    .part = {PartKind::Weapon, 0, i}});
    }
    return stack.take();
}

} // namespace varrocade
