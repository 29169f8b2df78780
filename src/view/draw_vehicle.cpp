#include "data/image_names.h"
#include "view/draw_list.h"
#include "view/image_folders.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <span>

namespace varrocade {

namespace {

constexpr double DefaultCentimetresPerPixel = 1.0;
/// The size of a part whose file names none, so that its placeholder can be seen.
constexpr double UnknownPartSize = 100;
constexpr double BarrelShare = 0.25;

double radians(double degrees) {
    return degrees * std::numbers::pi / 180;
}

class VehicleDrawing {
public:
    VehicleDrawing(const VehicleRecord& vehicle, const DrawOptions& options, PictureSizes& sizes)
        : vehicle_(vehicle), options_(options), sizes_(sizes) {
        findScale();
    }

    DrawList draw() {
        drawKind(ComponentKind::Hull);
        drawKind(ComponentKind::Superstructure);
        drawMarks(vehicle_.exhaustPipes);
        for (const ComponentRecord& component : vehicle_.components) {
            if (component.kind == ComponentKind::Turret || component.kind == ComponentKind::FixedWeapon) {
                drawComponent(component);
            }
        }
        for (const ComponentRecord& component : vehicle_.components) {
            drawDischargers(component);
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

    void drawKind(ComponentKind kind) {
        for (const ComponentRecord& component : vehicle_.components) {
            if (component.kind == kind) {
                drawComponent(component);
            }
        }
    }

    void drawComponent(const ComponentRecord& component) {
        const Point centre{static_cast<double>(component.offsetX), static_cast<double>(component.offsetY)};
        switch (component.kind) {
        case ComponentKind::Hull:
            drawHull(component);
            break;
        case ComponentKind::Superstructure:
            add(OutlineItem{centre, sizeOr(component.width), sizeOr(component.length)});
            cover(centre, sizeOr(component.width), sizeOr(component.length), 0);
            break;
        case ComponentKind::Turret:
        case ComponentKind::FixedWeapon:
            drawTurning(component, centre);
            break;
        }
    }

    void drawHull(const ComponentRecord& hull) {
        const auto picture = pictureOf(hull, image_folder::Hulls);
        const double width = picture ? picture->size.width * centimetresPerPixel_ : sizeOr(hull.width);
        const double length = picture ? picture->size.height * centimetresPerPixel_ : sizeOr(hull.length);
        if (picture) {
            add(PictureItem{picture->path, {}, width, length, 0});
        } else {
            add(PlaceholderItem{labelOf(hull, "Hull"), {}, width, length, 0, false});
        }
        cover({}, width, length, 0);
    }

    /// A turret or fixed weapon: the centre of its picture is its pivot.
    void drawTurning(const ComponentRecord& component, Point pivot) {
        const bool isTurret = component.kind == ComponentKind::Turret;
        const bool hasAngle = !isTurret || component.limitedTraverse;
        const double angle = hasAngle ? component.offsetAngle : 0;
        if (const auto picture = pictureOf(component, image_folder::Turrets)) {
            const double width = picture->size.width * centimetresPerPixel_;
            const double height = picture->size.height * centimetresPerPixel_;
            add(PictureItem{picture->path, pivot, width, height, angle});
            // The barrel needs the front half only; the rear half is empty, there to put the pivot in the
            // middle.
            const Point front{pivot.x + std::sin(radians(angle)) * height / 4,
                              pivot.y + std::cos(radians(angle)) * height / 4};
            cover(front, width, height / 2, angle);
            return;
        }
        // A fixed weapon without a picture of its own is a part of the hull's; a short line shows its
        // direction.
        const double size = isTurret ? sizeOr(component.diameter) : UnknownPartSize * BarrelShare;
        if (isTurret || !component.viewImage.empty()) {
            add(PlaceholderItem{labelOf(component, isTurret ? "Turret" : "Fixed Weapon"), pivot, size, size,
                                angle, true});
        }
        const Point muzzle{pivot.x + std::sin(radians(angle)) * size,
                           pivot.y + std::cos(radians(angle)) * size};
        add(LineItem{pivot, muzzle, Ink::Blue});
        cover(pivot, size, size, angle);
    }

    void drawMarks(std::span<const ExhaustPipeRecord> pipes) {
        for (const ExhaustPipeRecord& pipe : pipes) {
            const Point centre{static_cast<double>(pipe.offsetX), static_cast<double>(pipe.offsetY)};
            add(MarkItem{MarkItem::Shape::Exhaust, centre, static_cast<double>(pipe.angle)});
            cover(centre, 0, 0, 0);
        }
    }

    /// Dischargers stand at offsets from their component's pivot and turn with it.
    void drawDischargers(const ComponentRecord& component) {
        const bool turns = component.kind == ComponentKind::Turret && component.limitedTraverse;
        const double turn = turns ? component.offsetAngle : 0;
        for (const SmokeDischargerRecord& discharger : component.smokeDischargers) {
            const double sine = std::sin(radians(turn));
            const double cosine = std::cos(radians(turn));
            const Point centre{component.offsetX + discharger.offsetX * cosine + discharger.offsetY * sine,
                               component.offsetY - discharger.offsetX * sine + discharger.offsetY * cosine};
            const auto direction =
                discharger.directional ? std::optional(discharger.angle + turn) : std::optional<double>();
            add(MarkItem{MarkItem::Shape::SmokeDischarger, centre, direction});
            cover(centre, 0, 0, 0);
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

Fit fitInto(const DrawList& list, int width, int height, int margin) {
    constexpr double leastExtent = 100; // centimetres
    constexpr int leastScale = 2;
    constexpr int greatestScale = 200;
    const double extentX = std::max(leastExtent, list.greatest.x - list.least.x);
    const double extentY = std::max(leastExtent, list.greatest.y - list.least.y);
    const double freeX = std::max(1, width - 2 * margin);
    const double freeY = std::max(1, height - 2 * margin);
    const double scale = std::min(freeX / extentX, freeY / extentY) * 100;
    Fit fit;
    fit.pixelsPerMetre = std::clamp(static_cast<int>(scale), leastScale, greatestScale);
    fit.originX =
        static_cast<int>(std::lround(width / 2.0 - fit.length((list.least.x + list.greatest.x) / 2)));
    fit.originY =
        static_cast<int>(std::lround(height / 2.0 + fit.length((list.least.y + list.greatest.y) / 2)));
    return fit;
}

} // namespace varrocade
