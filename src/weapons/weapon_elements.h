#pragma once
// The names of the elements of weapon files that hold others. Those of values stand with their fields.

#include <string_view>

namespace varrocade::weapon_element {

inline constexpr std::string_view Ammo = "ammo";
inline constexpr std::string_view Comments = "comments";
inline constexpr std::string_view Dimensions = "dimensions";
inline constexpr std::string_view Magazine = "magazine";
inline constexpr std::string_view Shoot = "shoot";
inline constexpr std::string_view Type = "type";
inline constexpr std::string_view Usage = "usage";
inline constexpr std::string_view Weapon = "weapon";

} // namespace varrocade::weapon_element
