#include "data/unit/unit_consistency.h"
#include "data/unit_fields.h"
#include "tools/checks/engine/check_rules.h"
#include "tools/checks/rules/unit_rules.h"

#include <algorithm>
#include <cstdlib>

namespace varrocade {

namespace {

namespace ck = check_key;

/// Centimetres that what is bolted to the outside may stand beyond a hull.
constexpr std::int32_t Overhang = 40;

const ComponentRecord* hullOf(const VehicleRecord& vehicle) {
    const auto hull = std::find_if(vehicle.components.begin(), vehicle.components.end(),
                                   [](const auto& part) { return part.kind == ComponentKind::Hull; });
    return hull == vehicle.components.end() ? nullptr : &*hull;
}

/// Tells of an offset beyond a half of what it stands on.
void checkOffset(const CheckedUnit& checked, const RulePath& path, const FieldInfo& field,
                 std::int32_t offset, std::int32_t half, std::string_view around) {
    if (half > 0 && std::abs(std::int64_t{offset}) > half) {
        checked.out.atValue(path.to(field),
                            {.key = ck::OutsideHull,
                             .message = std::string(field.element) + " " + std::to_string(offset) +
                                        " cm lies outside of the " + std::string(around),
                             .value = std::to_string(offset),
                             .expected = std::to_string(-half) + " to " + std::to_string(half)});
    }
}

void checkSize(const CheckedUnit& checked, const RulePath& path, const FieldInfo& field, std::int32_t size) {
    if (size <= 0) {
        checked.out.atValue(path.to(field),
                            {.key = ck::NoSize,
                             .message = std::string(field.label) + " is " + std::to_string(size),
                             .value = std::to_string(size),
                             .expected = "at least 1"});
    }
}

void checkSizes(const CheckedUnit& checked, const ComponentRecord& part, const RulePath& path) {
    if (part.kind == ComponentKind::Hull || part.kind == ComponentKind::Superstructure) {
        checkSize(checked, path, field::Width, part.width);
        checkSize(checked, path, field::Length, part.length);
        checkSize(checked, path, field::Height, part.height);
    } else if (part.kind == ComponentKind::Turret) {
        checkSize(checked, path, field::Diameter, part.diameter);
        checkSize(checked, path, field::Height, part.height);
    }
}

void checkOnHull(const CheckedUnit& checked, const ComponentRecord& part, const RulePath& path,
                 const ComponentRecord& hull) {
    if (part.kind != ComponentKind::Hull) {
        checkOffset(checked, path, field::OffsetX, part.offsetX, hull.width / 2, "hull");
        checkOffset(checked, path, field::OffsetY, part.offsetY, hull.length / 2, "hull");
    }
    if (part.kind == ComponentKind::FixedWeapon && part.offsetZ > 2 * hull.height + 200 && hull.height > 0) {
        checked.out.atValue(
            path.to(field::OffsetZ),
            {.key = ck::OutsideHull,
             .message = "offsetZ " + std::to_string(part.offsetZ) + " cm is far above the vehicle",
             .value = std::to_string(part.offsetZ),
             .expected = "up to " + std::to_string(2 * hull.height + 200)});
    }
    const bool isTurret = part.kind == ComponentKind::Turret;
    const std::int32_t halfWidth = (isTurret ? part.diameter : hull.width) / 2 + Overhang;
    const std::int32_t halfLength = (isTurret ? part.diameter : hull.length) / 2 + Overhang;
    for (std::size_t i = 0; i < part.smokeDischargers.size(); ++i) {
        const RulePath discharger(path, element::SmokeDischarger, i + 1);
        checkOffset(checked, discharger, field::DischargerOffsetX, part.smokeDischargers[i].offsetX,
                    halfWidth, elementOf(part.kind));
        checkOffset(checked, discharger, field::DischargerOffsetY, part.smokeDischargers[i].offsetY,
                    halfLength, elementOf(part.kind));
    }
    for (std::size_t i = 0; i < part.weapons.size(); ++i) {
        const RulePath weapon(path, element::Weapon, i + 1);
        // To the front a barrel may reach beyond its turret, but hardly beyond the hull's half length.
        checkOffset(checked, weapon, field::MountedOffsetX, part.weapons[i].offsetX, halfWidth,
                    elementOf(part.kind));
        checkOffset(checked, weapon, field::MountedOffsetY, part.weapons[i].offsetY,
                    std::max(halfLength, hull.length / 2), elementOf(part.kind));
    }
}

void checkHulls(const CheckedUnit& checked, const VehicleRecord& vehicle) {
    const auto hulls = std::count_if(vehicle.components.begin(), vehicle.components.end(),
                                     [](const auto& part) { return part.kind == ComponentKind::Hull; });
    if (hulls != 1) {
        checked.out.atValue(hulls == 0 ? std::string(element::Vehicle) : "vehicle.hull[2]",
                            {.key = ck::NoHull,
                             .message = hulls == 0 ? "the vehicle has no hull"
                                                   : "the vehicle has " + std::to_string(hulls) + " hulls",
                             .value = std::to_string(hulls),
                             .expected = "1"});
    }
}

} // namespace

void checkPlacement(const CheckedUnit& checked) {
    if (!checked.unit.vehicle) {
        return;
    }
    const VehicleRecord& vehicle = *checked.unit.vehicle;
    checkHulls(checked, vehicle);
    for (Finding& finding : vehicleFindings(vehicle)) {
        checked.out.atValue(std::move(finding));
    }
    const ComponentRecord* hull = hullOf(vehicle);
    forEachComponentPath(vehicle, [&](const ComponentRecord& part, const RulePath& path) {
        checkSizes(checked, part, path);
        if (hull != nullptr) {
            checkOnHull(checked, part, path, *hull);
        }
    });
    const RulePath record;
    const RulePath ofVehicle(record, element::Vehicle);
    for (std::size_t i = 0; hull != nullptr && i < vehicle.exhaustPipes.size(); ++i) {
        const RulePath path(ofVehicle, element::ExhaustPipe, i + 1);
        checkOffset(checked, path, field::ExhaustOffsetX, vehicle.exhaustPipes[i].offsetX,
                    hull->width / 2 + Overhang, "hull");
        checkOffset(checked, path, field::ExhaustOffsetY, vehicle.exhaustPipes[i].offsetY,
                    hull->length / 2 + Overhang, "hull");
    }
}

} // namespace varrocade
