#pragma once
// The names of the elements of unit files that hold others or set several values at once. Those of single
// values stand with their fields.

#include <string_view>

namespace varrocade::element {

inline constexpr std::string_view Aircraft = "aircraft";
inline constexpr std::string_view Ammo = "ammo";
inline constexpr std::string_view Armament = "armament";
inline constexpr std::string_view Armour = "armour";
inline constexpr std::string_view Atgun = "atgun";
inline constexpr std::string_view Attributes = "attributes";
inline constexpr std::string_view Availability = "availability";
inline constexpr std::string_view Commonness = "commonness";
inline constexpr std::string_view Data = "data";
inline constexpr std::string_view Description = "description";
inline constexpr std::string_view Drive = "drive";
inline constexpr std::string_view Engine = "engine";
inline constexpr std::string_view ExhaustPipe = "exhaust_pipe";
inline constexpr std::string_view FixedWeapon = "fixed_weapon";
inline constexpr std::string_view Front = "front";
inline constexpr std::string_view Gears = "gears";
inline constexpr std::string_view Hmg = "hmg";
inline constexpr std::string_view Hull = "hull";
inline constexpr std::string_view LowerSide = "lower_side";
inline constexpr std::string_view Man = "man";
inline constexpr std::string_view Mortar = "mortar";
inline constexpr std::string_view Rear = "rear";
inline constexpr std::string_view RecoillessRifle = "recoilless_rifle";
inline constexpr std::string_view RotorBlades = "rotor_blades";
inline constexpr std::string_view Side = "side";
inline constexpr std::string_view SmokeDischarger = "smoke_discharger";
inline constexpr std::string_view Squad = "squad";
inline constexpr std::string_view Superstructure = "superstructure";
inline constexpr std::string_view Turret = "turret";
inline constexpr std::string_view UpperSide = "upper_side";
inline constexpr std::string_view Vehicle = "vehicle";
inline constexpr std::string_view Weapon = "weapon";

/// Names that older files use and that are read but never written.
namespace older {

inline constexpr std::string_view AngleLeft = "angle_left";
inline constexpr std::string_view AngleOffset = "angle_offset";
inline constexpr std::string_view AngleRight = "angle_right";
inline constexpr std::string_view FrontLower = "front_lower";
inline constexpr std::string_view FrontUpper = "front_upper";
inline constexpr std::string_view HorizontalAngle = "horizontal_angle";
inline constexpr std::string_view LeftLower = "left_lower";
inline constexpr std::string_view LeftUpper = "left_upper";
inline constexpr std::string_view MaxAngle = "max_angle";
inline constexpr std::string_view MaxAngleCamel = "maxAngle";
inline constexpr std::string_view MinAngle = "min_angle";
inline constexpr std::string_view MinAngleCamel = "minAngle";
inline constexpr std::string_view OffsetAngleCamel = "offsetAngle";
inline constexpr std::string_view RearLower = "rear_lower";
inline constexpr std::string_view RearUpper = "rear_upper";
inline constexpr std::string_view RightLower = "right_lower";
inline constexpr std::string_view RightUpper = "right_upper";
inline constexpr std::string_view SideLower = "side_lower";
inline constexpr std::string_view SideUpper = "side_upper";

} // namespace older

} // namespace varrocade::element
