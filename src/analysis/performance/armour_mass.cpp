#include "analysis/performance/armour_mass.h"

#include "analysis/performance/lengths.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace varrocade {

namespace {

constexpr double SteelDensity = 7'850.0; ///< kg/m3
constexpr double MaxThickness = 5'000.0; ///< millimetres
constexpr double MaxSlope = 85.0;        ///< degrees; beyond, the caps of a plate's reach decide anyway

/// The part of a hull's box that is body, from drawings of vehicles of each kind.
struct BodyShape {
    double clearance;  ///< metres under the belly
    double upperWidth; ///< of the box's width, above tracks or wheels
    double lowerWidth; ///< between them
    double sideLength; ///< of the box's length
};

/// By `RunningGear`.
constexpr std::array<BodyShape, RunningGearCount> Shapes = {
    {{0.40, 0.85, 0.62, 0.88}, {0.45, 0.88, 0.70, 0.85}, {0.45, 0.88, 0.70, 0.85}}};

/// Clearance is at most this part of a hull's height.
constexpr double MaxClearancePart = 0.35;
/// A steep plate reaches at most this part of the hull's length: the glacis of a BMP-1, 80 degrees, ends
/// at a quarter.
constexpr double UpperReachPart = 0.12;
constexpr double LowerReachPart = 0.10;
/// A leaning side is at most so much higher than the box.
constexpr double MaxSideReach = 1.5;
/// Skirts and stand-off plates cover this part of the box's face.
constexpr double SpacedPart = 0.25;
/// A mantlet's width and height, of the turret's diameter and height.
constexpr double MantletWidthPart = 0.45;
constexpr double MantletHeightPart = 0.55;
/// The roof of a turret is at least this part of its diameter across.
constexpr double MinTurretRoof = 0.45;
/// A gun shield in front of a fixed weapon, square metres.
constexpr double ShieldArea = 0.6;

double radians(double degrees) {
    return std::clamp(std::abs(degrees), 0.0, MaxSlope) * std::numbers::pi / 180.0;
}

/// The slant height of a plate that rises by `height` and leans by `angle` degrees.
double slantOf(double height, double angle, double cap) {
    return std::max(height, std::min(height / std::cos(radians(angle)), cap));
}

class MassSum {
public:
    MassSum(BodyKind body, int year) : body_(body), year_(year) {}

    /// Kilograms of `area` square metres.
    [[nodiscard]] double of(double area, double thickness) const {
        return area * weighingThickness(thickness, body_, year_) / 1000.0 * SteelDensity;
    }

private:
    BodyKind body_;
    int year_;
};

/// A box of four walls with an upper and a lower half.
struct Walls {
    double height;
    double length;
    double upperWidth;
    double lowerWidth;
    double sideLength;
};

double wallsMass(const ArmourRecord& armour, const Walls& box, const MassSum& mass) {
    const double half = box.height / 2.0;
    const double upperCap = std::max(half, UpperReachPart * box.length);
    const double lowerCap = std::max(half, LowerReachPart * box.length);
    const auto across = [&](const ArmourPlate& upper, const ArmourPlate& lower) {
        return mass.of(box.upperWidth * slantOf(half, upper.angle, upperCap), upper.thickness) +
               mass.of(box.lowerWidth * slantOf(half, lower.angle, lowerCap), lower.thickness);
    };
    const auto along = [&](const ArmourPlate& plate) {
        return mass.of(box.sideLength * slantOf(half, plate.angle, MaxSideReach * half), plate.thickness);
    };
    return across(armour.upperFront, armour.lowerFront) + across(armour.upperRear, armour.lowerRear) +
           along(armour.upperLeft) + along(armour.upperRight) + along(armour.lowerLeft) +
           along(armour.lowerRight);
}

double spacedMass(const ArmourRecord& armour, const ComponentRecord& part, const MassSum& mass) {
    const double height = inMetres(part.height);
    return SpacedPart * (mass.of(inMetres(part.width) * height, armour.frontSpaced) +
                         mass.of(inMetres(part.width) * height, armour.rearSpaced) +
                         mass.of(2.0 * inMetres(part.length) * height, armour.sideSpaced));
}

double hullMass(const ComponentRecord& hull, double openings, RunningGear gear, const MassSum& mass) {
    const BodyShape& shape = Shapes[static_cast<std::size_t>(gear)];
    const double width = inMetres(hull.width);
    const double length = inMetres(hull.length);
    const double height = inMetres(hull.height);
    const Walls walls = {.height = height - std::min(shape.clearance, MaxClearancePart * height),
                         .length = length,
                         .upperWidth = shape.upperWidth * width,
                         .lowerWidth = shape.lowerWidth * width,
                         .sideLength = shape.sideLength * length};
    // What a leaning plate takes of the hull's length is no roof.
    const double half = walls.height / 2.0;
    const auto lengthTaken = [&](const ArmourPlate& plate) {
        return slantOf(half, plate.angle, std::max(half, UpperReachPart * length)) *
               std::sin(radians(plate.angle));
    };
    const double roofLength = std::max(
        length - lengthTaken(hull.armour.upperFront) - lengthTaken(hull.armour.upperRear), 0.3 * length);
    const double roof = std::max(roofLength * walls.upperWidth - openings, 0.25 * length * walls.upperWidth);
    const double belly = walls.sideLength * walls.lowerWidth;
    const int bottom = hull.armour.bottom < 0 ? hull.armour.top : hull.armour.bottom;
    return wallsMass(hull.armour, walls, mass) + mass.of(roof, hull.armour.top) + mass.of(belly, bottom);
}

double superstructureMass(const ComponentRecord& part, const MassSum& mass) {
    const double width = inMetres(part.width);
    const double length = inMetres(part.length);
    const Walls walls = {.height = inMetres(part.height),
                         .length = length,
                         .upperWidth = width,
                         .lowerWidth = width,
                         .sideLength = length};
    return wallsMass(part.armour, walls, mass) + mass.of(width * length, part.armour.top);
}

/// Square metres that a component stands on.
double footprintOf(const ComponentRecord& part) {
    if (part.kind == ComponentKind::Turret) {
        const double radius = inMetres(part.diameter) / 2.0;
        return std::numbers::pi * radius * radius;
    }
    return part.kind == ComponentKind::Superstructure ? inMetres(part.width) * inMetres(part.length) : 0.0;
}

/// A truncated cone: a quarter of it front, a half sides, a quarter rear, each narrowing by its own slope.
double turretMass(const ComponentRecord& turret, const MassSum& mass) {
    const double height = inMetres(turret.height);
    const double radius = inMetres(turret.diameter) / 2.0;
    double roofRadius = 0.0;
    double sum = 0.0;
    const auto addPart = [&](const ArmourPlate& plate, double part) {
        const double slope = radians(plate.angle);
        const double top = std::max(radius - height * std::tan(slope), MinTurretRoof * radius);
        const double slant = std::hypot(height, radius - top);
        roofRadius += part * top;
        sum += mass.of(part * std::numbers::pi * (radius + top) * slant, plate.thickness);
    };
    const ArmourRecord& armour = turret.armour;
    for (const ArmourPlate& plate :
         {armour.upperFront, armour.lowerFront, armour.upperRear, armour.lowerRear, armour.upperLeft,
          armour.lowerLeft, armour.upperRight, armour.lowerRight}) {
        addPart(plate, 0.125);
    }
    return sum + mass.of(std::numbers::pi * roofRadius * roofRadius, armour.top);
}

double mantletMass(const ComponentRecord& turret, const MassSum& mass) {
    return mass.of(MantletWidthPart * inMetres(turret.diameter) * MantletHeightPart * inMetres(turret.height),
                   turret.armour.mantlet);
}

} // namespace

double weighingThickness(double thickness, BodyKind body, int year) {
    // Where thicknesses begin to be worth more than they weigh, and what of the rest weighs: a T-72's glacis
    // of 205 mm holds 100 mm of steel, a turret worth 600 mm some 300; a carrier's 38 mm of aluminium weigh
    // as 13 mm of steel.
    constexpr int layeredSince = 1960;
    constexpr int alloySince = 1957;
    constexpr double layeredFrom = 50.0;
    constexpr double layeredPart = 0.08;
    constexpr double alloyFrom = 18.0;
    constexpr double alloyPart = 0.08;
    const double stated = std::clamp(thickness, 0.0, MaxThickness);
    if (body == BodyKind::Carrier && year >= alloySince && stated > alloyFrom) {
        return alloyFrom + alloyPart * (stated - alloyFrom);
    }
    if (year >= layeredSince && stated > layeredFrom) {
        return layeredFrom + layeredPart * (stated - layeredFrom);
    }
    return stated;
}

ArmourMass armourMass(const VehicleRecord& vehicle, RunningGear gear, BodyKind body, int year) {
    const MassSum mass(body, year);
    double openings = 0.0;
    for (const ComponentRecord& part : vehicle.components) {
        openings += footprintOf(part);
    }
    ArmourMass sum;
    for (const ComponentRecord& part : vehicle.components) {
        switch (part.kind) {
        case ComponentKind::Hull:
            sum.hull += hullMass(part, openings, gear, mass);
            sum.spaced += spacedMass(part.armour, part, mass);
            break;
        case ComponentKind::Superstructure:
            sum.hull += superstructureMass(part, mass);
            sum.spaced += spacedMass(part.armour, part, mass);
            break;
        case ComponentKind::Turret:
            sum.turrets += turretMass(part, mass);
            sum.mantlets += mantletMass(part, mass);
            break;
        case ComponentKind::FixedWeapon:
            sum.mantlets +=
                mass.of(ShieldArea, std::max(part.armour.mantlet, part.armour.upperFront.thickness));
            break;
        }
    }
    return sum;
}

} // namespace varrocade
