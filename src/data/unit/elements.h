#pragma once
// The names of the elements of unit files, each written once, for the reader and the writers.

#include <string_view>

namespace varrocade::element {

inline constexpr std::string_view AA = "AA";
inline constexpr std::string_view Aircraft = "aircraft";
inline constexpr std::string_view Ammo = "ammo";
inline constexpr std::string_view Angle = "angle";
inline constexpr std::string_view Armament = "armament";
inline constexpr std::string_view Armour = "armour";
inline constexpr std::string_view Atgun = "atgun";
inline constexpr std::string_view Attributes = "attributes";
inline constexpr std::string_view Availability = "availability";
inline constexpr std::string_view BodyArmour = "body_armour";
inline constexpr std::string_view Bottom = "bottom";
inline constexpr std::string_view CanMakeSmokeScreen = "can_make_smoke_screen";
inline constexpr std::string_view CanMountInfantry = "can_mount_infantry";
inline constexpr std::string_view Clockwise = "clockwise";
inline constexpr std::string_view Comment = "comment";
inline constexpr std::string_view Commonness = "commonness";
inline constexpr std::string_view Data = "data";
inline constexpr std::string_view Description = "description";
inline constexpr std::string_view Diameter = "diameter";
inline constexpr std::string_view Drive = "drive";
inline constexpr std::string_view EjectsFlares = "ejects_flares";
inline constexpr std::string_view Elevation = "elevation";
inline constexpr std::string_view Engine = "engine";
inline constexpr std::string_view ExhaustPipe = "exhaust_pipe";
inline constexpr std::string_view FixedWeapon = "fixed_weapon";
inline constexpr std::string_view Flavour = "flavour";
inline constexpr std::string_view For = "for";
inline constexpr std::string_view Forwards = "forwards";
inline constexpr std::string_view Front = "front";
inline constexpr std::string_view FrontSpaced = "front_spaced";
inline constexpr std::string_view Gears = "gears";
inline constexpr std::string_view Height = "height";
inline constexpr std::string_view Hmg = "hmg";
inline constexpr std::string_view Horsepower = "horsepower";
inline constexpr std::string_view Hull = "hull";
inline constexpr std::string_view Image = "image";
inline constexpr std::string_view ImageDestroyed = "image_destroyed";
inline constexpr std::string_view ImageProfile = "image_profile";
inline constexpr std::string_view ImageView = "image_view";
inline constexpr std::string_view ImageViewBase = "image_view_base";
inline constexpr std::string_view ImageViewGun = "image_view_gun";
inline constexpr std::string_view IsAmphibious = "is_amphibious";
inline constexpr std::string_view Job = "job";
inline constexpr std::string_view Language = "language";
inline constexpr std::string_view Length = "length";
inline constexpr std::string_view LongName = "long_name";
inline constexpr std::string_view LowerFront = "lower_front";
inline constexpr std::string_view LowerLeft = "lower_left";
inline constexpr std::string_view LowerRear = "lower_rear";
inline constexpr std::string_view LowerRight = "lower_right";
inline constexpr std::string_view LowerSide = "lower_side";
inline constexpr std::string_view Man = "man";
inline constexpr std::string_view Mantlet = "mantlet";
inline constexpr std::string_view Mass = "mass";
inline constexpr std::string_view Month = "month";
inline constexpr std::string_view Mortar = "mortar";
inline constexpr std::string_view Mount = "mount";
inline constexpr std::string_view Moveable = "moveable";
inline constexpr std::string_view Name = "name";
inline constexpr std::string_view Nationality = "nationality";
inline constexpr std::string_view NightVision = "night_vision";
inline constexpr std::string_view Number = "number";
inline constexpr std::string_view OffsetAngle = "offset_angle";
inline constexpr std::string_view OffsetX = "offsetX";
inline constexpr std::string_view OffsetY = "offsetY";
inline constexpr std::string_view OffsetZ = "offsetZ";
inline constexpr std::string_view Quality = "quality";
inline constexpr std::string_view Rear = "rear";
inline constexpr std::string_view RearSpaced = "rear_spaced";
inline constexpr std::string_view RecoillessRifle = "recoilless_rifle";
inline constexpr std::string_view Reliability = "reliability";
inline constexpr std::string_view Reload = "reload";
inline constexpr std::string_view Reverse = "reverse";
inline constexpr std::string_view RotateLeft = "rotate_left";
inline constexpr std::string_view RotateRight = "rotate_right";
inline constexpr std::string_view RotateTime = "rotate_time";
inline constexpr std::string_view RotorBlades = "rotor_blades";
inline constexpr std::string_view Rounds = "rounds";
inline constexpr std::string_view RpmIdle = "rpm_idle";
inline constexpr std::string_view RpmLimit = "rpm_limit";
inline constexpr std::string_view ShortName = "short_name";
inline constexpr std::string_view Side = "side";
inline constexpr std::string_view SideSpaced = "side_spaced";
inline constexpr std::string_view SmokeDischarger = "smoke_discharger";
inline constexpr std::string_view Sound = "sound";
inline constexpr std::string_view Speed = "speed";
inline constexpr std::string_view Squad = "squad";
inline constexpr std::string_view Steering = "steering";
inline constexpr std::string_view Superstructure = "superstructure";
inline constexpr std::string_view Top = "top";
inline constexpr std::string_view TrailLength = "trail_length";
inline constexpr std::string_view Turret = "turret";
inline constexpr std::string_view Type = "type";
inline constexpr std::string_view Uniform = "uniform";
inline constexpr std::string_view UniformGame = "uniform_game";
inline constexpr std::string_view UniformProfile = "uniform_profile";
inline constexpr std::string_view UniformRanks = "uniform_ranks";
inline constexpr std::string_view UpperFront = "upper_front";
inline constexpr std::string_view UpperLeft = "upper_left";
inline constexpr std::string_view UpperRear = "upper_rear";
inline constexpr std::string_view UpperRight = "upper_right";
inline constexpr std::string_view UpperSide = "upper_side";
inline constexpr std::string_view Vehicle = "vehicle";
inline constexpr std::string_view VerticalAngle = "vertical_angle";
inline constexpr std::string_view Weapon = "weapon";
inline constexpr std::string_view Weight = "weight";
inline constexpr std::string_view Width = "width";
inline constexpr std::string_view Year = "year";

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
