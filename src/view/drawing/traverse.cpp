#include "view/drawing/traverse.h"

#include "view/drawing/drawing_angles.h"

#include <algorithm>
#include <cmath>

namespace varrocade {

namespace {

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

double allowedTurn(const Traverse& traverse, double turn) {
    constexpr double fullCircle = 360;
    const double shorter = std::remainder(turn, fullCircle);
    return traverse.isLimited ? std::clamp(shorter, -traverse.left, traverse.right) : shorter;
}

} // namespace varrocade
