#include "view/drawing/traverse.h"

#include "view/drawing/drawing_angles.h"

#include <algorithm>
#include <cmath>

namespace varrocade {

namespace {

constexpr double FullCircle = 360;

Traverse traverse(Point pivot, bool isLimited, std::int32_t left, std::int32_t right) {
    return {pivot, isLimited, static_cast<double>(std::max(0, left)),
            static_cast<double>(std::max(0, right))};
}

} // namespace

std::optional<Traverse> traverseOf(const SquadRecord& unit, const UnitPart& part) {
    if (!hasPart(unit, part)) {
        return std::nullopt;
    }
    if (part.kind == PartKind::HeavyWeapon) {
        const HeavyWeaponRecord& weapon = *unit.heavyWeapon;
        return traverse({}, weapon.limitedTraverse, weapon.rotateLeft, weapon.rotateRight);
    }
    if (part.kind != PartKind::Component) {
        return std::nullopt;
    }
    const ComponentRecord& component = unit.vehicle->components[part.component];
    const bool isFixed = component.kind == ComponentKind::FixedWeapon;
    if (!isFixed && component.kind != ComponentKind::Turret) {
        return std::nullopt;
    }
    return traverse(pivotOf(component), isFixed || component.limitedTraverse, component.rotateLeft,
                    component.rotateRight);
}

std::optional<SectorItem> sectorOf(Point pivot, double radius, double rest, std::int32_t left,
                                   std::int32_t right, UnitPart part) {
    // Files may hold any limits, whose sum no 32 bits need hold.
    const double sweep = static_cast<double>(left) + right;
    if (sweep <= 0) {
        return std::nullopt;
    }
    const double from = rest - left;
    return SectorItem{pivot, radius, from, from + std::min(sweep, FullCircle), part};
}

std::vector<Point> outlineOf(const SectorItem& sector) {
    constexpr double step = 2; // degrees
    const double sweep = std::clamp(sector.to - sector.from, 0.0, FullCircle);
    const int steps = std::max(1, static_cast<int>(std::lround(sweep / step)));
    std::vector<Point> corners = {sector.centre};
    for (int i = 0; i <= steps; ++i) {
        corners.push_back(along(sector.centre, sector.from + sweep * i / steps, sector.radius));
    }
    corners.push_back(sector.centre);
    return corners;
}

double allowedTurn(const Traverse& traverse, double turn) {
    const double shorter = std::remainder(turn, FullCircle);
    return traverse.isLimited ? std::clamp(shorter, -traverse.left, traverse.right) : shorter;
}

} // namespace varrocade
