#pragma once
// What the drop-down lists offer for weapons and ammunition.

#include "data/unit/unit_record.h"
#include "weapons/weapon_catalogue.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// The eras that the catalogue's period texts name and in which there are such units, by their availability:
/// up to 1919 "WW1", up to 1945 "WW2", up to 1991 "Cold War", then "Modern". The last date counts for its own
/// month, whatever comes after. Empty for a unit without dates.
std::vector<std::string_view> periodsOf(const SquadRecord& record);

/// The last year of the era that a year belongs to; of the present one there is no last.
int lastYearOfEra(int year);

/// All of them, in the order of time.
std::vector<std::string> knownPeriods();

/// What carries a weapon, which decides the weapon types that its list offers. A thrower is whoever throws
/// grenades.
enum class WeaponBearer : std::uint8_t { Man, Vehicle, HeavyWeapon, Aircraft, Thrower };

/// The names of the weapons that a bearer in a unit of this nationality and its periods uses, or of all
/// weapons.
std::vector<std::string> weaponChoices(const WeaponCatalogue& catalogue, const SquadRecord& record,
                                       WeaponBearer bearer, bool all);

/// Names a weapon that the catalogue does not hold, or empty; lists offer only some of those that it holds.
std::string unknownWeapon(std::string_view weaponType, const WeaponCatalogue& catalogue);

/// Names a flavour of ammunition that the game does not know, or empty.
std::string unknownFlavour(std::string_view flavour);

/// The names of the flavours that a weapon really has; empty for an unknown weapon.
std::vector<std::string> flavourChoices(const WeaponCatalogue& catalogue, std::string_view weaponType);

/// What is wrong with ammunition for a component's or man's weapons, or empty: it is for a weapon that is not
/// there, or of a flavour that the weapon has not.
std::string ammunitionWarning(const AmmoLoadRecord& ammo, std::span<const std::string> weaponTypes,
                              const WeaponCatalogue& catalogue);

} // namespace varrocade
