#pragma once
// Points and directions of the drawing: angles are degrees clockwise seen from above, 0 straight ahead.

#include "data/unit/unit_record.h"
#include "view/drawing/draw_list.h"

#include <cmath>
#include <cstddef>
#include <numbers>
#include <span>

namespace varrocade {

inline double radians(double degrees) {
    return degrees * std::numbers::pi / 180;
}

inline Point operator+(Point a, Point b) {
    return {a.x + b.x, a.y + b.y};
}

inline Point operator-(Point a, Point b) {
    return {a.x - b.x, a.y - b.y};
}

/// An offset from a pivot when what it belongs to turns.
inline Point turned(Point offset, double angle) {
    const double sine = std::sin(radians(angle));
    const double cosine = std::cos(radians(angle));
    return {offset.x * cosine + offset.y * sine, -offset.x * sine + offset.y * cosine};
}

/// A point `length` away from another in a direction.
inline Point along(Point from, double angle, double length) {
    return from + turned({0, length}, angle);
}

inline Point pivotOf(const ComponentRecord& component) {
    return {static_cast<double>(component.offsetX), static_cast<double>(component.offsetY)};
}

/// How far a component is turned for looking at.
inline double turnOf(std::span<const double> turns, std::size_t component) {
    return component < turns.size() ? turns[component] : 0;
}

/// Where a component points: a turret that turns all round has no use for an offset angle.
inline double angleOf(const ComponentRecord& component, double turn) {
    const bool hasAngle = component.kind == ComponentKind::FixedWeapon || component.limitedTraverse;
    return (hasAngle ? component.offsetAngle : 0) + turn;
}

} // namespace varrocade
