#pragma once
// What a user may call a new file.

#include "data/category.h"
#include "data/format/file_name.h"
#include "data/unit/unit_name.h"
#include "data/unit/unit_record.h"
#include "weapons/weapon_record.h"

#include <optional>
#include <string>
#include <string_view>

namespace varrocade {

/// A name that begins with one nationality's word, with another's in its place; an empty one begins with it.
std::string nameForNationality(const std::string& name, std::string_view former, std::string_view next);

/// A new unit of a category as its first file holds it.
SquadRecord newUnit(Category category, std::string_view name, std::string_view nationality);

/// A new weapon with the figures that its type begins with.
WeaponRecord newWeapon(std::string_view name, WeaponType type = WeaponType::Rifle);

} // namespace varrocade
