#pragma once
// The editor at work on the open weapon, and what its users are told of.

#include "view/sheet/unit_problems.h"

#include <string_view>

namespace varrocade {

/// Whether a weapon is open.
bool isWeaponOpen();

/// Opens "Weapon Data" on the open weapon, at a value of it, and saves what the user keeps.
void editOpenWeapon(const WeaponTarget& target = {});

/// Opens a unit as the list of users names it: "Vehicles: German Panzer VI Tiger Ausf E".
void openUser(std::string_view unit);

/// Before the file of the open weapon is deleted: says which units carry it. False when the user thinks
/// better of it. `action` is what is to be done, such as "Deleting".
bool mayTakeWeaponAway(std::string_view action);

} // namespace varrocade
