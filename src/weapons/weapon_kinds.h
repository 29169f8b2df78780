#pragma once
// What is usual for the types of weapons: how their names begin, which ammunition they fire, and the figures
// that a new weapon of the type begins with.

#include "weapons/weapon_record.h"

#include <span>
#include <string>
#include <string_view>

namespace varrocade {

/// "WEAPON_CANNON_": what the names of a type's weapons begin with.
std::string namePrefixOf(WeaponType type);

/// The type whose prefix a name has, the longest where there are several ("WEAPON_GRENADE_LAUNCHER_" before
/// "WEAPON_GRENADE_"); `WeaponType::None` for a name that has none.
WeaponType typeOfWeaponName(std::string_view name);

/// The name with the prefix of another type: in the place of the one that it has, or before it.
std::string nameForType(std::string_view name, WeaponType type);

/// The flavours that weapons of a type fire in the game, the usual one first.
std::span<const AmmoFlavour> flavoursOf(WeaponType type);

/// A weapon of a type with figures that are about the middle of what such weapons have, and one kind of
/// ammunition. It has no name yet.
WeaponRecord startingWeapon(WeaponType type);

/// The ammunition that it begins with, which is also what is added to a weapon of the type.
AmmoTypeRecord startingAmmo(WeaponType type);

} // namespace varrocade
