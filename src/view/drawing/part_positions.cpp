#include "view/drawing/part_positions.h"

#include "view/drawing/drawing_angles.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <type_traits>

namespace varrocade {

namespace {

/// The two numbers of a file that make a position, and the frame that they count in.
template <typename Number>
struct Position {
    Number* x = nullptr;
    Number* y = nullptr;
    Point origin = {};
    double angle = 0;
};

/// `Unit` is a record that may be changed, or one that may not.
template <typename Unit>
auto find(Unit& unit, const UnitPart& part, std::span<const double> turns) {
    using Found = Position<std::conditional_t<std::is_const_v<Unit>, const std::int32_t, std::int32_t>>;
    if (!isMovable(unit, part)) {
        return std::optional<Found>();
    }
    if (part.kind == PartKind::Exhaust) {
        auto& pipe = unit.vehicle->exhaustPipes[part.index];
        return std::optional(Found{&pipe.offsetX, &pipe.offsetY});
    }
    if (part.kind == PartKind::Rotor) {
        auto& rotor = unit.aircraft->rotorBlades[part.index];
        return std::optional(Found{&rotor.offsetX, &rotor.offsetY});
    }
    if (!unit.vehicle) {
        auto& weapon = unit.aircraft->weapons[part.index];
        return std::optional(Found{&weapon.offsetX, &weapon.offsetY});
    }
    auto& component = unit.vehicle->components[part.component];
    if (component.kind == ComponentKind::FixedWeapon) {
        return std::optional(Found{&component.offsetX, &component.offsetY});
    }
    auto& weapon = component.weapons[part.index];
    return std::optional(Found{&weapon.offsetX, &weapon.offsetY, pivotOf(component),
                               angleOf(component, turnOf(turns, part.component))});
}

bool set(const Position<std::int32_t>& position, double x, double y) {
    // Far outside every drawing, so that a runaway mouse leaves no absurd figures.
    constexpr double furthest = 100000;
    const auto whole = [furthest](double value) {
        return static_cast<std::int32_t>(std::lround(std::clamp(value, -furthest, furthest)));
    };
    const std::int32_t newX = whole(x);
    const std::int32_t newY = whole(y);
    const bool isOther = newX != *position.x || newY != *position.y;
    *position.x = newX;
    *position.y = newY;
    return isOther;
}

} // namespace

bool isMovable(const SquadRecord& unit, const UnitPart& part) {
    if (!hasPart(unit, part)) {
        return false;
    }
    if (part.kind == PartKind::Exhaust || part.kind == PartKind::Rotor) {
        return true;
    }
    if (part.kind != PartKind::Weapon) {
        return false;
    }
    if (!unit.vehicle) {
        return unit.aircraft.has_value();
    }
    const ComponentKind kind = unit.vehicle->components[part.component].kind;
    return kind == ComponentKind::Turret || kind == ComponentKind::FixedWeapon;
}

std::optional<Point> positionOf(const SquadRecord& unit, const UnitPart& part,
                                std::span<const double> turns) {
    const auto position = find(unit, part, turns);
    if (!position) {
        return std::nullopt;
    }
    const Point offset{static_cast<double>(*position->x), static_cast<double>(*position->y)};
    return position->origin + turned(offset, position->angle);
}

std::string positionText(const SquadRecord& unit, const UnitPart& part) {
    const auto position = find(unit, part, {});
    return position ? "X " + std::to_string(*position->x) + " cm, Y " + std::to_string(*position->y) + " cm"
                    : std::string();
}

bool movePart(SquadRecord& unit, const UnitPart& part, Point to, std::span<const double> turns) {
    const auto position = find(unit, part, turns);
    if (!position) {
        return false;
    }
    const Point offset = turned(to - position->origin, -position->angle);
    return set(*position, offset.x, offset.y);
}

void takePosition(SquadRecord& unit, const UnitPart& part, const SquadRecord& from, const UnitPart& other) {
    const auto position = find(unit, part, {});
    const auto wanted = find(from, other, {});
    if (position && wanted) {
        *position->x = *wanted->x;
        *position->y = *wanted->y;
    }
}

bool nudgePart(SquadRecord& unit, const UnitPart& part, int right, int up, std::span<const double> turns) {
    const auto position = find(unit, part, turns);
    if (!position) {
        return false;
    }
    const double quarters = std::round(position->angle / 90) * 90;
    const Point step = turned({static_cast<double>(right), static_cast<double>(up)}, -quarters);
    return set(*position, *position->x + step.x, *position->y + step.y);
}

} // namespace varrocade
