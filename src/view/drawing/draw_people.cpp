// The drawings of infantry: the men from above, with what they carry beside them, all to one scale.

#include "data/unit/enumerations.h"
#include "data/unit/image_folders.h"
#include "data/unit/image_names.h"
#include "view/drawing/weapon_shapes.h"

#include <algorithm>

namespace varrocade {

namespace {

constexpr double CellWidth = 130;
constexpr double LineHeight = 17; ///< of a label, at the scale that a whole squad is shown at
constexpr std::size_t LineLength = 17;
constexpr std::size_t CrewLineLength = 12; ///< below a gun, which makes the scale smaller
constexpr double WeaponGap = 4;

class SquadDrawing {
public:
    SquadDrawing(DrawList& list, const SquadRecord& unit, const WeaponCatalogue& catalogue,
                 const DrawOptions& options, PictureSizes& sizes)
        : list_(list), unit_(unit), catalogue_(catalogue), options_(options), sizes_(sizes) {
        findUniform();
    }

    void draw(double top) {
        const std::size_t count = unit_.infantrymen.size();
        constexpr std::size_t smallSquad = 4;
        const std::size_t columns =
            count <= smallSquad ? std::max<std::size_t>(1, std::min<std::size_t>(count, 2)) : 3;
        for (std::size_t first = 0; first < count; first += columns) {
            const std::size_t last = std::min(first + columns, count);
            double width = 0;
            for (std::size_t man = first; man < last; ++man) {
                width += cellWidth(man);
            }
            double height = 0;
            double left = -width / 2;
            for (std::size_t man = first; man < last; ++man) {
                height = std::max(height, drawMan(man, {left + cellWidth(man) / 2, top}));
                left += cellWidth(man);
            }
            coverBox(list_, {-width / 2, top - height}, {width / 2, top});
            top -= height;
        }
    }

private:
    /// Long weapons need more room than a man and his name.
    [[nodiscard]] double cellWidth(std::size_t man) const {
        double width = CellWidth;
        for (const Text& type : unit_.infantrymen[man].weapons) {
            if (const WeaponRecord* weapon = catalogue_.find(type)) {
                width = std::max(width, weaponShape(*weapon).length + 2 * WeaponGap);
            }
        }
        return width;
    }

    /// The picture of a man as the game shows him.
    void findUniform() {
        const NationalUniform* national = findNationalUniform(unit_.nationality);
        const Text& named = unit_.namedUniform ? unit_.uniformName : unit_.uniformGame;
        const bool isDefault = named.empty() || isDefaultImage(named);
        const std::string name =
            isDefault ? std::string(national != nullptr ? national->game : std::string_view()) : named.str();
        if (name.empty()) {
            return;
        }
        const std::string below = std::string(image_folder::Uniforms) + name + std::string(ImageEnding);
        for (const std::string& base : options_.bases) {
            if (const auto size = sizes_.sizeOf(base + below)) {
                uniform_ = base + below;
                uniformSize_ = *size;
                return;
            }
        }
        list_.missingPictures.push_back(below);
        missing_ = "Missing: " + name + std::string(ImageEnding);
    }

    /// Draws a man in a cell below a point; returns the height of the cell.
    double drawMan(std::size_t place, Point top) {
        constexpr double size = 48; // a man with his elbows
        const UnitPart part{PartKind::Man, 0, place};
        const Point centre{top.x, top.y - size / 2 - WeaponGap};
        if (!uniform_.empty()) {
            // A centimetre a pixel, as the vehicles have it.
            list_.items.emplace_back(PictureItem{uniform_, centre, static_cast<double>(uniformSize_.width),
                                                 static_cast<double>(uniformSize_.height), 0, part});
        } else {
            list_.items.emplace_back(PlaceholderItem{missing_, centre, size, size, 0, true, part});
        }
        double y = centre.y - std::max(size, static_cast<double>(uniformSize_.height)) / 2 - WeaponGap;
        std::string words = partName(unit_, part);
        const CrewManRecord& man = unit_.infantrymen[place];
        for (const Text& type : man.weapons) {
            y -= drawWeapon(type, 1, {top.x, y}, part);
            words += "\n" + weaponWord(type);
        }
        for (const AmmoLoadRecord& ammo : man.ammo) {
            const bool isThrown =
                std::find(man.weapons.begin(), man.weapons.end(), ammo.weaponType) == man.weapons.end();
            const WeaponRecord* weapon = isThrown ? catalogue_.find(ammo.weaponType) : nullptr;
            if (weapon != nullptr && weapon->type == WeaponType::Grenade) {
                y -= drawWeapon(ammo.weaponType, ammo.rounds, {top.x, y}, part);
            }
        }
        list_.items.emplace_back(LabelItem{words, {top.x, y}, CellWidth, part});
        return top.y - y + labelHeight(words);
    }

    /// What a label takes when its lines are broken at the width of a cell.
    [[nodiscard]] double labelHeight(std::string_view words) const {
        const std::size_t length = unit_.heavyWeapon ? CrewLineLength : LineLength;
        double lines = 1; // free below the last one
        while (!words.empty()) {
            const std::size_t end = std::min(words.find('\n'), words.size());
            const std::size_t broken = (end + length - 1) / length;
            lines += static_cast<double>(broken);
            words.remove_prefix(std::min(words.size(), end + 1));
        }
        return lines * LineHeight;
    }

    /// Draws `count` pieces of a weapon side by side, lying with the muzzle to the right; returns the height.
    double drawWeapon(std::string_view type, std::int32_t count, Point top, UnitPart part) {
        const WeaponRecord* weapon = catalogue_.find(type);
        if (weapon == nullptr) {
            return 0;
        }
        const ShapeGroup shape = weaponShape(*weapon);
        constexpr std::int32_t most = 8;
        const std::int32_t pieces = std::clamp(count, 1, most);
        const double step = shape.length + 2;
        const double left = top.x - step * pieces / 2;
        const double middle = top.y - shape.width / 2;
        for (std::int32_t i = 0; i < pieces; ++i) {
            addShapes(list_, shape, {left + step * i, middle}, 90, part);
        }
        return shape.width + WeaponGap;
    }

    DrawList& list_;
    const SquadRecord& unit_;
    const WeaponCatalogue& catalogue_;
    const DrawOptions& options_;
    PictureSizes& sizes_;
    std::string uniform_;
    PictureSize uniformSize_{};
    std::string missing_ = "No uniform";
};

} // namespace

void addMen(DrawList& list, const SquadRecord& unit, const WeaponCatalogue& catalogue,
            const DrawOptions& options, PictureSizes& sizes) {
    constexpr double apart = 30;
    const double top = list.items.empty() ? 0 : list.least.y - apart;
    SquadDrawing(list, unit, catalogue, options, sizes).draw(top);
}

} // namespace varrocade
