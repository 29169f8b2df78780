#pragma once
// What the values of a vehicle must be beyond what each may be by itself. Forms refuse what is not so;
// whoever checks files tells of it. A finding's `field` is the element of the value to change, from the
// record on that is looked at.

#include "data/finding.h"
#include "data/unit/unit_record.h"

#include <optional>
#include <span>
#include <vector>

namespace varrocade {

/// The limits of a turret or fixed weapon lie within a full circle and add up to no more than one, and its
/// offset angle within half a circle to either side. A turret that turns all round has none to look at.
std::optional<Finding> traverseFinding(const ComponentRecord& component);

/// A fixed weapon stands above the ground.
std::optional<Finding> offsetHeightFinding(const ComponentRecord& component);

/// A turret or fixed weapon takes some time to turn.
std::optional<Finding> rotateTimeFinding(const ComponentRecord& component);

/// The limit of an engine's revolutions is not below its idle ones.
std::optional<Finding> revolutionsFinding(const VehicleRecord& vehicle);

/// Why a vehicle takes no further component.
std::optional<Finding> componentRoomFinding(const VehicleRecord& vehicle);

/// Ammunition is for one of these weapons.
std::optional<Finding> ammunitionFinding(const AmmoLoadRecord& load,
                                         std::span<const WeaponMountRecord> weapons);

/// The ammunition of a unit that is for none of the weapons beside it, with fields from the unit on:
/// "vehicle.turret[2].ammo[1].for".
std::vector<Finding> ammunitionFindings(const SquadRecord& unit);

/// Everything that is inconsistent in a vehicle, with fields from the unit on:
/// "vehicle.turret[2].rotate_left" is that of its second turret.
std::vector<Finding> vehicleFindings(const VehicleRecord& vehicle);

} // namespace varrocade
