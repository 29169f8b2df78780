// The drawing of a weapon: the piece, its tracer and its rounds, all to one scale.

#include "data/unit/image_folders.h"
#include "data/unit/image_names.h"
#include "view/drawing/weapon_shapes.h"
#include "weapons/ammo_words.h"
#include "weapons/weapon_names.h"

#include <algorithm>
#include <cmath>

namespace varrocade {

namespace {

/// Shares of the weapon's length.
constexpr double LabelShare = 0.1;
constexpr double CellShare = 0.2;
constexpr double GapShare = 0.04;

std::string labelOf(const AmmoTypeRecord& ammo) {
    const std::string flavour = flavourWord(nameOf(ammo.flavour));
    return ammo.name.empty() ? flavour : flavour + "\n" + ammo.name;
}

void drawTracer(DrawList& list, const WeaponRecord& weapon, double length, const DrawOptions& options,
                PictureSizes& sizes) {
    if (weapon.tracerImage.empty()) {
        return;
    }
    const std::string below =
        std::string(image_folder::Tracers) + weapon.tracerImage + std::string(ImageEnding);
    const double height = length * LabelShare;
    const Point centre{0, length * (1 + GapShare) + height / 2};
    coverBox(list, {-height, length}, {height, centre.y + height / 2});
    for (const std::string& base : options.bases) {
        if (const auto size = sizes.sizeOf(base + below)) {
            list.items.emplace_back(
                PictureItem{base + below, centre, height * size->width / size->height, height, 0});
            return;
        }
    }
    list.missingPictures.push_back(below);
    list.items.emplace_back(PlaceholderItem{"Missing: " + weapon.tracerImage + std::string(ImageEnding),
                                            centre, height, height, 0, false});
}

/// The rounds in columns to the right of the weapon, from the top.
void drawRounds(DrawList& list, const WeaponRecord& weapon, const ShapeGroup& piece, double length) {
    double longest = 0;
    double widest = 0;
    for (const AmmoTypeRecord& ammo : weapon.ammoTypes) {
        const ShapeGroup round = roundShape(weapon, ammo);
        longest = std::max(longest, round.length);
        widest = std::max(widest, round.width);
    }
    if (longest <= 0) {
        return;
    }
    const double cellWidth = std::max(length * CellShare, widest * 1.3);
    const double cellHeight = longest + length * LabelShare;
    const std::size_t rows = std::max<std::size_t>(1, static_cast<std::size_t>(length / cellHeight));
    const double left = piece.width / 2 + length * GapShare;
    for (std::size_t i = 0; i < weapon.ammoTypes.size(); ++i) {
        const std::size_t column = i / rows;
        const Point bottom{left + cellWidth * (static_cast<double>(column) + 0.5),
                           length - cellHeight * static_cast<double>(i % rows) - longest};
        const UnitPart part{PartKind::Ammunition, 0, i};
        addShapes(list, roundShape(weapon, weapon.ammoTypes[i]), bottom, 0, part);
        list.items.emplace_back(
            LabelItem{labelOf(weapon.ammoTypes[i]), {bottom.x, bottom.y - length * 0.008}, cellWidth, part});
        coverBox(list, {bottom.x - cellWidth / 2, bottom.y - length * LabelShare},
                 {bottom.x + cellWidth / 2, bottom.y + longest});
    }
}

} // namespace

DrawList drawWeapon(const WeaponRecord& weapon, const DrawOptions& options, PictureSizes& sizes) {
    DrawList list;
    const ShapeGroup piece = weaponShape(weapon);
    addShapes(list, piece, {}, 0, {PartKind::Details});
    coverBox(list, {-piece.width / 2, 0}, {piece.width / 2, piece.length});
    drawTracer(list, weapon, piece.length, options, sizes);
    const bool isItsOwnRound = weapon.type == WeaponType::Bomb || weapon.type == WeaponType::Grenade;
    if (isItsOwnRound) {
        const std::string label =
            weapon.ammoTypes.empty() ? std::string() : labelOf(weapon.ammoTypes.front());
        list.items.emplace_back(LabelItem{label, {0, -piece.length * GapShare}, piece.length});
        coverBox(list, {-piece.length / 2, -piece.length * 2 * LabelShare}, {piece.length / 2, 0});
    } else {
        drawRounds(list, weapon, piece, piece.length);
    }
    return list;
}

} // namespace varrocade
