#include "analysis/performance/vehicle_kind.h"

#include <algorithm>
#include <array>

namespace varrocade {

namespace {

constexpr std::array<std::string_view, RunningGearCount> GearNames = {"tracked", "half-tracked", "wheeled"};

constexpr std::string_view DefaultSteering = "STEERING_CLUTCH_AND_BRAKE";
constexpr std::string_view FrontWheels = "STEERING_FRONT_WHEELS";
constexpr std::string_view HalfTrackSteering = "STEERING_HALFTRACK";
constexpr std::string_view TypeArmouredCar = "TYPE_ARMOURED_CAR";
constexpr std::string_view TypeCarrier = "TYPE_INFANTRY_FIGHTING_VEHICLE";
constexpr std::string_view TypeHalfTrack = "TYPE_HALFTRACK";
constexpr std::string_view TypeLorry = "TYPE_LORRY";
constexpr std::string_view TypeTank = "TYPE_TANK";

/// Sheet steel, in millimetres: what keeps no bullet out is no armour.
constexpr int SheetThickness = 3;

bool isUnarmoured(const VehicleRecord& vehicle) {
    return std::none_of(
        vehicle.components.begin(), vehicle.components.end(), [](const ComponentRecord& part) {
            const ArmourRecord& armour = part.armour;
            return part.kind != ComponentKind::FixedWeapon &&
                   std::max({armour.upperFront.thickness, armour.lowerFront.thickness,
                             armour.upperLeft.thickness, armour.upperRight.thickness}) > SheetThickness;
        });
}

} // namespace

std::string_view runningGearName(RunningGear gear) {
    return GearNames[static_cast<std::size_t>(gear)];
}

RunningGear runningGearOf(std::string_view type, std::string_view steering) {
    if (steering == HalfTrackSteering || (type == TypeHalfTrack && steering == FrontWheels)) {
        return RunningGear::HalfTracked;
    }
    if (steering == FrontWheels) {
        return RunningGear::Wheeled;
    }
    if (steering == DefaultSteering || steering.empty()) {
        if (type == TypeArmouredCar || type == TypeLorry) {
            return RunningGear::Wheeled;
        }
        if (type == TypeHalfTrack) {
            return RunningGear::HalfTracked;
        }
    }
    return RunningGear::Tracked;
}

BodyKind bodyKindOf(const SquadRecord& unit, RunningGear gear) {
    if (gear == RunningGear::HalfTracked) {
        return BodyKind::HalfTrack;
    }
    if (gear == RunningGear::Wheeled) {
        return unit.vehicle && isUnarmoured(*unit.vehicle) ? BodyKind::Lorry : BodyKind::ArmouredCar;
    }
    if (unit.type == TypeTank || unit.type == TypeArmouredCar) {
        return BodyKind::Tank;
    }
    const bool isCarrier = unit.type == TypeCarrier || unit.type == TypeHalfTrack || unit.type == TypeLorry;
    return isCarrier ? BodyKind::Carrier : BodyKind::AssaultGun;
}

} // namespace varrocade
