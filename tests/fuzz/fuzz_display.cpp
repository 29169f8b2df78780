// Reads any bytes as a unit and as a weapon, composes what the window shows of them, and moves every part
// that can be moved: whatever a file says, it can be looked at.

#include "data/reading/unit_reader.h"
#include "round_trip.h"
#include "view/drawing/draw_list.h"
#include "view/drawing/part_at.h"
#include "view/drawing/part_positions.h"
#include "view/drawing/plate_outline.h"
#include "view/drawing/view_place.h"
#include "view/sheet/data_sheet.h"
#include "view/sheet/timeline.h"
#include "weapons/weapon_files.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>

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

void look(const DrawList& list) {
    HalfThePictures pictures;
    for (const double edge : {list.least.x, list.least.y, list.greatest.x, list.greatest.y}) {
        require(std::isfinite(edge), "a drawing without bounds", "", "");
    }
    const Fit fit = fitInto(list, 400, 800, 20);
    require(fit.pixelsPerMetre > 0, "a drawing without a scale", "", "");
    partAt(list, fit.pointAt(200, 400), 9, pictures);
    zoomedAbout(fit, 200, 400, 5);
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
    timelineLabelStep(scale, 30);
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
