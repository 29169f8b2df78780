#include "data/unit/enumerations.h"
#include "data/unit/image_folders.h"
#include "data/unit/image_names.h"
#include "view/drawing/drawing_angles.h"
#include "view/drawing/traverse.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace varrocade {

namespace {

constexpr double DefaultCentimetresPerPixel = 1.0;
/// The size of a part whose file names none, so that its placeholder can be seen.
constexpr double UnknownPartSize = 100;
constexpr double BarrelShare = 0.25;

/// Crew men stand side by side; the files do not say where.
constexpr double ManSpacing = 40;
constexpr std::size_t MenInRow = 4;

class VehicleDrawing {
public:
    VehicleDrawing(const VehicleRecord& vehicle, const DrawOptions& options, PictureSizes& sizes)
        : vehicle_(vehicle), options_(options), sizes_(sizes) {
        findScale();
    }

    DrawList draw() {
        drawKinds({ComponentKind::Hull});
        drawKinds({ComponentKind::Superstructure});
        for (std::size_t i = 0; options_.showMarks && i < vehicle_.components.size(); ++i) {
            drawSector(i);
        }
        drawKinds({ComponentKind::Turret, ComponentKind::FixedWeapon});
        if (options_.showMarks) {
            drawExhausts();
            for (std::size_t i = 0; i < vehicle_.components.size(); ++i) {
                drawCrew(i);
                drawDischargers(i);
                drawWeapons(i);
            }
        }
        return std::move(list_);
    }

private:
    struct FoundPicture {
        std::string path;
        PictureSize size;
    };

    /// The hull's picture is as long as the hull; the other pictures of a vehicle are drawn at that scale.
    void findScale() {
        for (const ComponentRecord& component : vehicle_.components) {
            if (component.kind != ComponentKind::Hull || component.length <= 0) {
                continue;
            }
            if (const auto picture = find(component.viewImage, image_folder::Hulls)) {
                centimetresPerPixel_ = static_cast<double>(component.length) / picture->size.height;
                return;
            }
        }
    }

    [[nodiscard]] std::optional<FoundPicture> find(std::string_view name, std::string_view folder) const {
        // The generic pictures of units stand beside the folders of the vehicles.
        const std::array<std::string_view, 2> folders = {folder, image_folder::Units};
        for (const std::string_view candidate : folders) {
            for (const std::string& base : options_.bases) {
                std::string path = base;
                path += candidate;
                path += name;
                path += ImageEnding;
                if (const auto size = sizes_.sizeOf(path)) {
                    return FoundPicture{path, *size};
                }
            }
        }
        return std::nullopt;
    }

    void noteMissing(std::string_view name, std::string_view folder) {
        std::string path(folder);
        path += name;
        path += ImageEnding;
        if (std::find(list_.missingPictures.begin(), list_.missingPictures.end(), path) ==
            list_.missingPictures.end()) {
            list_.missingPictures.push_back(std::move(path));
        }
    }

    /// The picture that shows a component as it is to be shown now.
    std::optional<FoundPicture> pictureOf(const ComponentRecord& component, std::string_view viewFolder) {
        if (options_.showDestroyed && !component.destroyedImage.empty()) {
            if (auto picture = find(component.destroyedImage, image_folder::Destroyed)) {
                return picture;
            }
            noteMissing(component.destroyedImage, image_folder::Destroyed);
        }
        if (component.viewImage.empty()) {
            return std::nullopt;
        }
        auto picture = find(component.viewImage, viewFolder);
        if (!picture) {
            noteMissing(component.viewImage, viewFolder);
        }
        return picture;
    }

    void drawKinds(std::initializer_list<ComponentKind> kinds) {
        for (std::size_t i = 0; i < vehicle_.components.size(); ++i) {
            if (std::find(kinds.begin(), kinds.end(), vehicle_.components[i].kind) != kinds.end()) {
                drawComponent(i);
            }
        }
    }

    [[nodiscard]] static UnitPart partOf(std::size_t component) {
        return {PartKind::Component, component, 0};
    }

    [[nodiscard]] double directionOf(std::size_t component) const {
        return angleOf(vehicle_.components[component], turnOf(options_.turns, component));
    }

    void drawComponent(std::size_t place) {
        const ComponentRecord& component = vehicle_.components[place];
        switch (component.kind) {
        case ComponentKind::Hull:
            drawHull(place);
            break;
        case ComponentKind::Superstructure:
            add(OutlineItem{pivotOf(component), sizeOr(component.width), sizeOr(component.length),
                            partOf(place)});
            cover(pivotOf(component), sizeOr(component.width), sizeOr(component.length), 0);
            break;
        case ComponentKind::Turret:
        case ComponentKind::FixedWeapon:
            drawTurning(place);
            break;
        }
    }

    void drawHull(std::size_t place) {
        const ComponentRecord& hull = vehicle_.components[place];
        const auto picture = pictureOf(hull, image_folder::Hulls);
        const double width = picture ? picture->size.width * centimetresPerPixel_ : sizeOr(hull.width);
        const double length = picture ? picture->size.height * centimetresPerPixel_ : sizeOr(hull.length);
        if (picture) {
            add(PictureItem{picture->path, {}, width, length, 0, partOf(place)});
        } else {
            add(PlaceholderItem{labelOf(hull, "Hull"), {}, width, length, 0, false, partOf(place)});
        }
        cover({}, width, length, 0);
    }

    /// A turret or fixed weapon: the centre of its picture is its pivot.
    void drawTurning(std::size_t place) {
        const ComponentRecord& component = vehicle_.components[place];
        const Point pivot = pivotOf(component);
        const bool isTurret = component.kind == ComponentKind::Turret;
        const double angle = directionOf(place);
        if (const auto picture = pictureOf(component, image_folder::Turrets)) {
            const double width = picture->size.width * centimetresPerPixel_;
            const double height = picture->size.height * centimetresPerPixel_;
            const double roundSize = isTurret && component.diameter > 0 ? component.diameter : width;
            add(PictureItem{picture->path, pivot, width, height, angle, partOf(place), roundSize});
            // The barrel needs the front half only; the rear half is empty, there to put the pivot in the
            // middle. Turning to look round does not change the scale of the view.
            const double rest = angleOf(component, 0);
            cover(along(pivot, rest, height / 4), width, height / 2, rest);
            return;
        }
        // A fixed weapon without a picture of its own is a part of the hull's; a short line shows its
        // direction.
        const double size = isTurret ? sizeOr(component.diameter) : UnknownPartSize * BarrelShare;
        if (isTurret || !component.viewImage.empty()) {
            add(PlaceholderItem{labelOf(component, isTurret ? "Turret" : "Fixed Weapon"), pivot, size, size,
                                angle, true, partOf(place)});
        }
        add(LineItem{pivot, along(pivot, angle, size), Ink::Blue, partOf(place)});
        cover(pivot, size, size, angle);
    }

    /// Where the traverse is limited, the sector that it leaves.
    void drawSector(std::size_t place) {
        const ComponentRecord& component = vehicle_.components[place];
        const bool isLimited = component.kind == ComponentKind::FixedWeapon ||
                               (component.kind == ComponentKind::Turret && component.limitedTraverse);
        if (!isLimited) {
            return;
        }
        constexpr double beyondMuzzle = 1.15;
        const auto picture = pictureOf(component, image_folder::Turrets);
        const double reach = picture ? picture->size.height * centimetresPerPixel_ / 2 : UnknownPartSize;
        if (const auto sector =
                sectorOf(pivotOf(component), std::max(UnknownPartSize, reach * beyondMuzzle),
                         angleOf(component, 0), component.rotateLeft, component.rotateRight, partOf(place))) {
            add(*sector);
        }
    }

    void drawExhausts() {
        for (std::size_t i = 0; i < vehicle_.exhaustPipes.size(); ++i) {
            const ExhaustPipeRecord& pipe = vehicle_.exhaustPipes[i];
            const Point centre{static_cast<double>(pipe.offsetX), static_cast<double>(pipe.offsetY)};
            add(MarkItem{MarkItem::Shape::Exhaust, centre, static_cast<double>(pipe.angle),
                         UnitPart{PartKind::Exhaust, 0, i}, static_cast<double>(pipe.verticalAngle)});
            cover(centre, 0, 0, 0);
        }
    }

    /// A place of the file, in the frame of a component.
    [[nodiscard]] Point placeOn(std::size_t component, std::int32_t x, std::int32_t y) const {
        return pivotOf(vehicle_.components[component]) +
               turned({static_cast<double>(x), static_cast<double>(y)}, directionOf(component));
    }

    /// Dischargers stand at offsets from their component's pivot and turn with it.
    void drawDischargers(std::size_t place) {
        const std::vector<SmokeDischargerRecord>& dischargers = vehicle_.components[place].smokeDischargers;
        const double turn = vehicle_.components[place].kind == ComponentKind::Turret ? directionOf(place) : 0;
        for (std::size_t i = 0; i < dischargers.size(); ++i) {
            const SmokeDischargerRecord& discharger = dischargers[i];
            const Point centre = placeOn(place, discharger.offsetX, discharger.offsetY);
            const auto direction =
                discharger.directional ? std::optional(discharger.angle + turn) : std::optional<double>();
            add(MarkItem{MarkItem::Shape::SmokeDischarger, centre, direction,
                         UnitPart{PartKind::Discharger, place, i},
                         static_cast<double>(discharger.elevation)});
            cover(centre, 0, 0, 0);
        }
    }

    void drawWeapons(std::size_t place) {
        const ComponentRecord& component = vehicle_.components[place];
        for (std::size_t i = 0; i < component.weapons.size(); ++i) {
            const WeaponMountRecord& weapon = component.weapons[i];
            // A fixed weapon's own offset is where its weapons are.
            const bool isFixed = component.kind == ComponentKind::FixedWeapon;
            const Point centre =
                isFixed ? pivotOf(component) : placeOn(place, weapon.offsetX, weapon.offsetY);
            add(MarkItem{MarkItem::Shape::Weapon, centre, directionOf(place) + weapon.offsetAngle,
                         UnitPart{PartKind::Weapon, place, i}});
            cover(centre, 0, 0, 0);
        }
    }

    /// Rows of men: on the hull in its front part, on a turret behind its pivot, behind a fixed weapon.
    void drawCrew(std::size_t place) {
        const ComponentRecord& component = vehicle_.components[place];
        constexpr double frontShare = 0.22;
        const double ahead =
            component.kind == ComponentKind::Hull ? component.length * frontShare : -ManSpacing;
        for (std::size_t i = 0; i < component.crew.size(); ++i) {
            const std::size_t row = i / MenInRow;
            const std::size_t inRow = std::min(component.crew.size() - row * MenInRow, MenInRow);
            const Point offset{(static_cast<double>(i % MenInRow) - static_cast<double>(inRow - 1) / 2) *
                                   ManSpacing,
                               ahead - static_cast<double>(row) * ManSpacing};
            add(MarkItem{.shape = MarkItem::Shape::CrewMan,
                         .centre = pivotOf(component) + turned(offset, directionOf(place)),
                         .part = UnitPart{PartKind::CrewMan, place, i},
                         .letter = displayName(component.crew[i].job, JobPrefix).substr(0, 1)});
        }
    }

    static double sizeOr(std::int32_t size) { return size > 0 ? size : UnknownPartSize; }

    static std::string labelOf(const ComponentRecord& component, std::string_view kind) {
        return component.viewImage.empty()
                   ? std::string(kind) + ": no picture"
                   : "Missing: " + component.viewImage.str() + std::string(ImageEnding);
    }

    void add(DrawItem item) { list_.items.push_back(std::move(item)); }

    /// Widens the covered area by a turned rectangle.
    void cover(Point centre, double width, double height, double angle) {
        const double sine = std::abs(std::sin(radians(angle)));
        const double cosine = std::abs(std::cos(radians(angle)));
        const double halfWidth = (width * cosine + height * sine) / 2;
        const double halfHeight = (width * sine + height * cosine) / 2;
        if (isFirst_) {
            list_.least = list_.greatest = centre;
            isFirst_ = false;
        }
        list_.least = {std::min(list_.least.x, centre.x - halfWidth),
                       std::min(list_.least.y, centre.y - halfHeight)};
        list_.greatest = {std::max(list_.greatest.x, centre.x + halfWidth),
                          std::max(list_.greatest.y, centre.y + halfHeight)};
    }

    const VehicleRecord& vehicle_;
    const DrawOptions& options_;
    PictureSizes& sizes_;
    DrawList list_;
    double centimetresPerPixel_ = DefaultCentimetresPerPixel;
    bool isFirst_ = true;
};

} // namespace

DrawList drawVehicle(const VehicleRecord& vehicle, const DrawOptions& options, PictureSizes& sizes) {
    return VehicleDrawing(vehicle, options, sizes).draw();
}

} // namespace varrocade
