// Reads any bytes as a unit and as a weapon, composes what the window shows of them, and moves every part
// that can be moved: whatever a file says, it can be looked at.

#include "data/reading/unit_reader.h"
#include "round_trip.h"
#include "view/drawing/draw_list.h"
#include "view/drawing/part_at.h"
#include "view/drawing/part_positions.h"
#include "view/drawing/plate_outline.h"
#include "view/drawing/traverse.h"
#include "view/drawing/view_place.h"
#include "view/painting/pixmap.h"
#include "view/sheet/data_sheet.h"
#include "view/sheet/timeline.h"
#include "weapons/weapon_files.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

namespace varrocade::fuzz {

namespace {

/// Every other picture is there, and is all solid.
class HalfThePictures : public PictureSizes {
public:
    std::optional<PictureSize> sizeOf(const std::string& path) override {
        return path.size() % 2 == 0 ? std::optional(PictureSize{64, 128}) : std::nullopt;
    }
    bool isSolidAt(const std::string&, double, double) override { return true; }
};

/// What the painter computes for items before it hands them to the device.
class PaintedGeometry {
public:
    explicit PaintedGeometry(const Fit& fit) : fit_(fit) {}

    void operator()(const SectorItem& item) const {
        const std::vector<Point> corners = outlineOf(item);
        require(corners.size() < 1000, "a sector of too many corners", "", "");
        for (const Point corner : corners) {
            pixelOf(corner);
        }
    }
    void operator()(const PictureItem& item) const {
        pixelOf(item.centre);
        const PixmapPlacement placement{
            .width = fit_.length(item.width), .height = fit_.length(item.height), .angle = item.angle};
        const PixelBox box = boxOf(placement);
        const PixelBox shown{std::max(box.left, -8), std::max(box.top, -8), std::clamp(box.width, 0, 16),
                             std::clamp(box.height, 0, 16)};
        placedPixmap({2, 2, {1, 2, 3, 4}}, placement, shown);
    }
    void operator()(const LineItem& item) const {
        pixelOf(item.from);
        pixelOf(item.to);
    }
    void operator()(const LabelItem& item) const { pixelOf(item.top); }
    void operator()(const ShapeItem& item) const {
        for (const Point corner : item.corners) {
            pixelOf(corner);
        }
    }
    template <typename Item>
    void operator()(const Item& item) const {
        pixelOf(item.centre);
    }

private:
    void pixelOf(Point point) const {
        require(std::isfinite(point.x) && std::isfinite(point.y), "an item nowhere", "", "");
        nearestPixel(fit_.screenX(point.x));
        nearestPixel(fit_.screenY(point.y));
    }

    const Fit& fit_;
};

void look(const DrawList& list) {
    HalfThePictures pictures;
    for (const double edge : {list.least.x, list.least.y, list.greatest.x, list.greatest.y}) {
        require(std::isfinite(edge), "a drawing without bounds", "", "");
    }
    const Fit fit = fitInto(list, 400, 800, 20);
    require(fit.pixelsPerMetre > 0, "a drawing without a scale", "", "");
    partAt(list, fit.pointAt(200, 400), 9, pictures);
    for (const Fit& view : {fit, zoomedAbout(fit, 200, 400, 50), zoomedAbout(fit, 200, 400, -50)}) {
        for (const DrawItem& item : list.items) {
            std::visit(PaintedGeometry(view), item);
        }
    }
}

void moveParts(SquadRecord& unit, const DrawList& list) {
    constexpr double greatest = std::numeric_limits<double>::max();
    for (const DrawItem& item : list.items) {
        const UnitPart part = std::visit([](const auto& one) { return one.part; }, item);
        if (isMovable(unit, part)) {
            nudgePart(unit, part, 1, -1);
            movePart(unit, part, {greatest, -greatest});
            positionText(unit, part);
        }
    }
}

void showUnit(SquadRecord unit) {
    HalfThePictures pictures;
    const WeaponCatalogue none;
    const DrawOptions options{.bases = {"a\\", "bc\\"}};
    DrawList list;
    if (unit.vehicle) {
        list = drawVehicle(*unit.vehicle, options, pictures);
        plateOutline(*unit.vehicle, plateRanges(*unit.vehicle, PenetrationCurve(CurveEnd + 1, 100.0)));
    } else if (unit.heavyWeapon) {
        list = drawHeavyWeapon(*unit.heavyWeapon, options, pictures);
    } else if (unit.aircraft) {
        list = drawAircraft(*unit.aircraft, options, pictures);
    }
    addMen(list, unit, none, options, pictures);
    look(list);
    unitSheet(unit, list.missingPictures, none);
    const TimelineScale scale = timelineScale(unit.availability, 300, 96);
    timelineSteps(unit.availability, scale);
    const int years = (scale.lastYear - scale.firstYear) / timelineLabelStep(scale, 30);
    require(years < 1000, "a timeline of too many years", "", "");
    moveParts(unit, list);
}

} // namespace

} // namespace varrocade::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace varrocade;
    const std::string_view content(reinterpret_cast<const char*>(data), size);
    Diagnostics diagnostics;
    fuzz::showUnit(readUnit(content, "unit", diagnostics));
    const WeaponRecord weapon = readWeapon(content, "weapon", diagnostics);
    fuzz::HalfThePictures pictures;
    fuzz::look(drawWeapon(weapon, {.bases = {"a\\", "bc\\"}}, pictures));
    weaponSheet(weapon, {}, {});
    return 0;
}
