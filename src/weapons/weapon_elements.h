#pragma once
// The names of the elements of weapon files, each written once, for the reader and the writer.

#include <string_view>

namespace varrocade::weapon_element {

inline constexpr std::string_view Ammo = "ammo";
inline constexpr std::string_view BarrelLength = "barrel_length";
inline constexpr std::string_view Calibre = "calibre";
inline constexpr std::string_view Capacity = "capacity";
inline constexpr std::string_view Comments = "comments";
inline constexpr std::string_view Countries = "countries";
inline constexpr std::string_view Dimensions = "dimensions";
inline constexpr std::string_view Era = "era";
inline constexpr std::string_view ExplodeIn = "explode_in";
inline constexpr std::string_view ExplodeSound = "explode_sound";
inline constexpr std::string_view Flavour = "flavour";
inline constexpr std::string_view Guided = "guided";
inline constexpr std::string_view HE = "HE";
inline constexpr std::string_view Magazine = "magazine";
inline constexpr std::string_view Mass = "mass";
inline constexpr std::string_view MuzzleFlash = "muzzle_flash";
inline constexpr std::string_view Name = "name";
inline constexpr std::string_view NumberBarrels = "number_barrels";
inline constexpr std::string_view Period = "period";
inline constexpr std::string_view Range = "range";
inline constexpr std::string_view Reload = "reload";
inline constexpr std::string_view Rof = "rof";
inline constexpr std::string_view Shoot = "shoot";
inline constexpr std::string_view SingleShot = "single_shot";
inline constexpr std::string_view SmokeTrail = "smoke_trail";
inline constexpr std::string_view SoundEjectClip = "sound_eject_clip";
inline constexpr std::string_view SoundReload = "sound_reload";
inline constexpr std::string_view SoundShoot = "sound_shoot";
inline constexpr std::string_view Speed = "speed";
inline constexpr std::string_view TracerImage = "tracer_image";
inline constexpr std::string_view Type = "type";
inline constexpr std::string_view Usage = "usage";
inline constexpr std::string_view Weapon = "weapon";

} // namespace varrocade::weapon_element
