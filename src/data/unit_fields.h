#pragma once
// The fields of units, each described once. Lengths and offsets are centimetres, angles degrees clockwise
// seen from above with 0 straight ahead; what is left out here has the meaning that its record tells.

#include "data/field.h"
#include "data/unit/enumerations.h"
#include "data/unit/unit_record.h"

#include <array>
#include <tuple>

namespace varrocade {

/// Where the pictures of each kind of field lie, in the order in which they are looked for.
namespace image_sources {

inline constexpr std::string_view GenericPrefix = "Image-";
inline constexpr std::string_view ProfilePrefix = "Profile-";

inline constexpr auto Hull =
    std::to_array<ImageSource>({{image_folder::Hulls}, {image_folder::Units, GenericPrefix}});
inline constexpr auto Turret =
    std::to_array<ImageSource>({{image_folder::Turrets}, {image_folder::Units, GenericPrefix}});
/// What no kind of component rules out.
inline constexpr auto Component = std::to_array<ImageSource>(
    {{image_folder::Hulls}, {image_folder::Turrets}, {image_folder::Units, GenericPrefix}});
inline constexpr auto Destroyed = std::to_array<ImageSource>({{image_folder::Destroyed}});
inline constexpr auto Profile =
    std::to_array<ImageSource>({{image_folder::Profiles}, {image_folder::Units, ProfilePrefix}});
inline constexpr auto Unit = std::to_array<ImageSource>({{image_folder::Units}});
/// Those of guns and aircraft as they are drawn.
inline constexpr auto UnitPicture = std::to_array<ImageSource>({{image_folder::Units, GenericPrefix}});
inline constexpr auto UnitProfile = std::to_array<ImageSource>({{image_folder::Units, ProfilePrefix}});
inline constexpr auto UniformProfile =
    std::to_array<ImageSource>({{image_folder::Units, ProfilePrefix}, {image_folder::Uniforms, "uniform_"}});
inline constexpr auto UniformGame = std::to_array<ImageSource>(
    {{image_folder::Uniforms, "uniform_game"}, {image_folder::Uniforms, "uniform_"}});
inline constexpr auto UniformRanks = std::to_array<ImageSource>(
    {{image_folder::Uniforms, "uniform_ranks"}, {image_folder::Uniforms, "uniform_"}});
inline constexpr auto Uniform =
    std::to_array<ImageSource>({{image_folder::Uniforms}, {image_folder::Units, ProfilePrefix}});

} // namespace image_sources

/// One object a value. Where an element sets several values, as "side" sets four plates, each has its own
/// here.
namespace field {

namespace row = field_row;

inline constexpr std::string_view Centimetres = "cm";
inline constexpr std::string_view Millimetres = "mm";
inline constexpr std::string_view Kilograms = "kg";
inline constexpr std::string_view Degrees = "degrees";
inline constexpr std::string_view Seconds = "s";

inline constexpr NumberRange Bearing = {.least = -360, .greatest = 360};
inline constexpr NumberRange Slope = {.least = -90, .greatest = 90};

// ---- any unit

inline constexpr auto NotInAircraft = Holders::allBut(Holder::AircraftFile);

inline constexpr auto Type = row::word(&SquadRecord::type, "type", "Type", unitTypeNames);
inline constexpr auto LongName = row::text(&SquadRecord::longName, "long_name", "Long name");
inline constexpr auto ShortName = row::text(&SquadRecord::shortName, "short_name", "Short name");
inline constexpr auto Comment = row::text(&SquadRecord::comment, "comment", "Description");
inline constexpr auto Nationality = row::make(FieldKind::Nationality, &SquadRecord::nationality,
                                              "nationality", "Nationality", {}, nationalityNames);
inline constexpr auto Quality = row::word(&SquadRecord::quality, "quality", "Quality", qualityNames,
                                          {.stored = Holders::of(Holder::SquadFile)});
inline constexpr auto VoiceLanguage = row::reference(FieldKind::Language, &SquadRecord::language, "language",
                                                     "Voice language", {.omitted = Omission::Default});
inline constexpr auto UniformName =
    row::make(FieldKind::Uniform, &SquadRecord::uniformName, "uniform", "Uniform", {.stored = NotInAircraft},
              nullptr, image_sources::Uniform);
inline constexpr auto UniformProfile = row::make(
    FieldKind::Image, &SquadRecord::uniformProfile, "uniform_profile", "Profile image",
    {.omitted = Omission::Default, .stored = NotInAircraft}, nullptr, image_sources::UniformProfile);
inline constexpr auto UniformGame =
    row::make(FieldKind::Image, &SquadRecord::uniformGame, "uniform_game", "Game image",
              {.omitted = Omission::Default, .stored = NotInAircraft}, nullptr, image_sources::UniformGame);
inline constexpr auto UniformRanks =
    row::make(FieldKind::Image, &SquadRecord::uniformRanks, "uniform_ranks", "Rank Image",
              {.omitted = Omission::Default, .stored = NotInAircraft}, nullptr, image_sources::UniformRanks);

inline constexpr auto Month =
    row::number(&AvailabilityPoint::month, "month", "Month", {.range = {.least = 1, .greatest = 12}});
inline constexpr auto Year =
    row::number(&AvailabilityPoint::year, "year", "Year", {.range = {.least = 1000, .greatest = 5000}});
inline constexpr auto NumberOfUnits = row::number(&AvailabilityPoint::number, "number", "Number");

// ---- vehicles

inline constexpr auto ProfileImage =
    row::image(&VehicleRecord::profileImage, "image_profile", "Control panel image", image_sources::Profile);
inline constexpr auto Weight = row::number(&VehicleRecord::weight, "weight", "Weight",
                                           {.unit = Kilograms, .range = {.zeroForOtherTexts = true}});
inline constexpr auto CanMountInfantry =
    row::flag(&VehicleRecord::canMountInfantry, "can_mount_infantry", "Can mount infantry");
inline constexpr auto Amphibious = row::flag(&VehicleRecord::amphibious, "is_amphibious", "Is amphibious");
inline constexpr auto EngineName =
    row::reference(FieldKind::Engine, &VehicleRecord::engineName, "name", "Engine");
inline constexpr auto Horsepower =
    row::number(&VehicleRecord::horsepower, "horsepower", "Horsepower", {.unit = "hp", .range = NotNegative});
inline constexpr auto Reliability =
    row::word(&VehicleRecord::reliability, "reliability", "Reliability", reliabilityNames);
inline constexpr auto MountOfEngine = row::choice(&VehicleRecord::engineMount, "mount", "Engine mount",
                                                  mountNames, {.omitted = Omission::Default});
inline constexpr auto IdleRevolutions =
    row::number(&VehicleRecord::idleRevolutions, "rpm_idle", "Idle", {.unit = "rpm", .range = NotNegative});
inline constexpr auto RevolutionLimit =
    row::number(&VehicleRecord::revolutionLimit, "rpm_limit", "Limit", {.unit = "rpm", .range = NotNegative});
inline constexpr auto ForwardGears =
    row::number(&VehicleRecord::forwardGears, "forwards", "Forwards", {.range = NotNegative});
inline constexpr auto ReverseGears =
    row::number(&VehicleRecord::reverseGears, "reverse", "Reverse", {.range = NotNegative});
inline constexpr auto Steering = row::word(&VehicleRecord::steering, "steering", "Steering", steeringNames);
inline constexpr auto SmokeScreen =
    row::flag(&VehicleRecord::smokeScreen, "can_make_smoke_screen", "Can make a smoke screen");

inline constexpr auto ExhaustOffsetX =
    row::number(&ExhaustPipeRecord::offsetX, "offsetX", "OffsetX", {.unit = Centimetres});
inline constexpr auto ExhaustOffsetY =
    row::number(&ExhaustPipeRecord::offsetY, "offsetY", "OffsetY", {.unit = Centimetres});
inline constexpr auto ExhaustAngle =
    row::number(&ExhaustPipeRecord::angle, "angle", "Angle",
                {.unit = Degrees, .range = Bearing, .omitted = Omission::Default});
inline constexpr auto ExhaustVerticalAngle =
    row::number(&ExhaustPipeRecord::verticalAngle, "vertical_angle", "Vertical angle",
                {.unit = Degrees, .range = Slope, .omitted = Omission::Default});

// ---- components

inline constexpr auto Boxes = Holders::of(Holder::Hull, Holder::Superstructure);
inline constexpr auto Turning = Holders::of(Holder::Turret, Holder::FixedWeapon);

inline constexpr auto ViewImage =
    row::image(&ComponentRecord::viewImage, "image_view", "Image", image_sources::Component,
               {.stored = Holders::allBut(Holder::Superstructure)});
inline constexpr auto DestroyedImage =
    row::image(&ComponentRecord::destroyedImage, "image_destroyed", "Destroyed", image_sources::Destroyed,
               {.omitted = Omission::Default, .stored = Holders::allBut(Holder::Superstructure)});
inline constexpr auto Width =
    row::number(&ComponentRecord::width, "width", "Width", {.unit = Centimetres, .stored = Boxes});
inline constexpr auto Length =
    row::number(&ComponentRecord::length, "length", "Length", {.unit = Centimetres, .stored = Boxes});
inline constexpr auto Height =
    row::number(&ComponentRecord::height, "height", "Height",
                {.unit = Centimetres, .stored = Holders::allBut(Holder::FixedWeapon)});
inline constexpr auto Diameter = row::number(&ComponentRecord::diameter, "diameter", "Diameter",
                                             {.unit = Centimetres, .stored = Holders::of(Holder::Turret)});
inline constexpr auto OffsetX = row::number(&ComponentRecord::offsetX, "offsetX", "OffsetX",
                                            {.unit = Centimetres, .stored = Holders::allBut(Holder::Hull)});
inline constexpr auto OffsetY = row::number(&ComponentRecord::offsetY, "offsetY", "OffsetY",
                                            {.unit = Centimetres, .stored = Holders::allBut(Holder::Hull)});
inline constexpr auto OffsetZ =
    row::number(&ComponentRecord::offsetZ, "offsetZ", "OffsetZ",
                {.unit = Centimetres, .stored = Holders::of(Holder::FixedWeapon)});
inline constexpr auto RotateTime = row::number(&ComponentRecord::rotateTime, "rotate_time", "Rotate time",
                                               {.unit = Seconds, .range = NotNegative, .stored = Turning});
inline constexpr auto RotateLeft = row::number(&ComponentRecord::rotateLeft, "rotate_left", "Rotate Left",
                                               {.unit = Degrees, .stored = Turning});
inline constexpr auto RotateRight = row::number(&ComponentRecord::rotateRight, "rotate_right", "Rotate Right",
                                                {.unit = Degrees, .stored = Turning});
inline constexpr auto OffsetAngle =
    row::number(&ComponentRecord::offsetAngle, "offset_angle", "Offset Angle",
                {.unit = Degrees, .omitted = Omission::Default, .stored = Turning});
inline constexpr auto AntiAircraft =
    row::flag(&ComponentRecord::antiAircraft, "AA", "Can shoot aircraft", Turning);
inline constexpr auto NightVision =
    row::flag(&ComponentRecord::nightVision, "night_vision", "Infrared night vision", Turning);

// ---- armour

inline constexpr auto Armoured = Holders::allBut(Holder::FixedWeapon);
inline constexpr FieldTraits PlateTraits = {.unit = Millimetres, .stored = Armoured};
/// Thicknesses that the armour dialog takes.
inline constexpr NumberRange Thickness = {.least = 0, .greatest = 100000};
inline constexpr FieldTraits SpacedTraits = {
    .unit = Millimetres, .omitted = Omission::UpToDefault, .stored = Armoured};

inline constexpr auto UpperFront =
    row::reference(FieldKind::Plate, &ArmourRecord::upperFront, "upper_front", "Upper front", PlateTraits);
inline constexpr auto LowerFront =
    row::reference(FieldKind::Plate, &ArmourRecord::lowerFront, "lower_front", "Lower front", PlateTraits);
inline constexpr auto UpperLeft =
    row::reference(FieldKind::Plate, &ArmourRecord::upperLeft, "upper_left", "Upper left", PlateTraits);
inline constexpr auto UpperRight =
    row::reference(FieldKind::Plate, &ArmourRecord::upperRight, "upper_right", "Upper right", PlateTraits);
inline constexpr auto LowerLeft =
    row::reference(FieldKind::Plate, &ArmourRecord::lowerLeft, "lower_left", "Lower left", PlateTraits);
inline constexpr auto LowerRight =
    row::reference(FieldKind::Plate, &ArmourRecord::lowerRight, "lower_right", "Lower right", PlateTraits);
inline constexpr auto UpperRear =
    row::reference(FieldKind::Plate, &ArmourRecord::upperRear, "upper_rear", "Upper rear", PlateTraits);
inline constexpr auto LowerRear =
    row::reference(FieldKind::Plate, &ArmourRecord::lowerRear, "lower_rear", "Lower rear", PlateTraits);
/// The plates that stand around a component.
inline constexpr auto Plates = std::to_array<const Field<ArmourRecord, ArmourPlate>*>(
    {&UpperFront, &LowerFront, &UpperLeft, &UpperRight, &LowerLeft, &LowerRight, &UpperRear, &LowerRear});

inline constexpr auto FrontSpaced =
    row::number(&ArmourRecord::frontSpaced, "front_spaced", "Front spaced", SpacedTraits);
inline constexpr auto SideSpaced =
    row::number(&ArmourRecord::sideSpaced, "side_spaced", "Side spaced", SpacedTraits);
inline constexpr auto RearSpaced =
    row::number(&ArmourRecord::rearSpaced, "rear_spaced", "Rear spaced", SpacedTraits);
inline constexpr auto Top = row::number(&ArmourRecord::top, "top", "Top",
                                        {.unit = Millimetres, .range = Thickness, .stored = Armoured});
inline constexpr auto Bottom = row::number(
    &ArmourRecord::bottom, "bottom", "Bottom",
    {.unit = Millimetres, .range = Thickness, .omitted = Omission::UpToDefault, .stored = Armoured});
inline constexpr auto Mantlet = row::number(&ArmourRecord::mantlet, "mantlet", "Mantlet",
                                            {.unit = Millimetres,
                                             .range = Thickness,
                                             .omitted = Omission::UpToDefault,
                                             .stored = Holders::of(Holder::Turret)});

inline constexpr auto PlateThickness =
    row::number(&ArmourPlate::thickness, "thickness", "thickness", {.unit = Millimetres, .range = Thickness});
inline constexpr auto PlateAngle = row::number(&ArmourPlate::angle, "angle", "angle",
                                               {.unit = Degrees, .range = {.least = 0, .greatest = 90}});

// ---- smoke dischargers

inline constexpr auto DischargerOffsetX =
    row::number(&SmokeDischargerRecord::offsetX, "offsetX", "OffsetX", {.unit = Centimetres});
inline constexpr auto DischargerOffsetY =
    row::number(&SmokeDischargerRecord::offsetY, "offsetY", "OffsetY", {.unit = Centimetres});
inline constexpr auto DischargerAngle =
    row::number(&SmokeDischargerRecord::angle, "angle", "Angle", {.unit = Degrees, .range = Bearing});
inline constexpr auto DischargerElevation = row::number(&SmokeDischargerRecord::elevation, "elevation",
                                                        "Elevation", {.unit = Degrees, .range = Slope});
inline constexpr auto DischargerSpeed =
    row::number(&SmokeDischargerRecord::speed, "speed", "Speed", {.unit = "m/s", .range = NotNegative});
inline constexpr auto DischargerAmmo =
    row::number(&SmokeDischargerRecord::ammo, "ammo", "Rounds", {.range = NotNegative});
inline constexpr auto DischargerReload =
    row::number(&SmokeDischargerRecord::reload, "reload", "Reload", {.unit = Seconds, .range = NotNegative});

// ---- men

inline constexpr auto Job = row::word(&CrewManRecord::job, "job", "Job", jobNames);
inline constexpr auto ManLanguage = row::reference(FieldKind::Language, &CrewManRecord::language, "language",
                                                   "Language", {.omitted = Omission::Default});
inline constexpr auto BodyArmour = row::flag(&CrewManRecord::bodyArmour, "body_armour", "Body armour");
inline constexpr auto ManNightVision = row::flag(&CrewManRecord::nightVision, "night_vision", "Night vision");
/// Each of the list is the `type` of a `weapon`.
inline constexpr auto PersonalWeapons =
    row::reference(FieldKind::Weapon, &CrewManRecord::weapons, "type", "Weapon");

// ---- weapons and ammunition

inline constexpr auto Placed = Holders::of(Holder::Turret, Holder::AircraftFile);

inline constexpr auto MountedType =
    row::reference(FieldKind::Weapon, &WeaponMountRecord::type, "type", "Weapon");
inline constexpr auto Mount =
    row::text(&WeaponMountRecord::mount, "mount", "Mount", {.omitted = Omission::Default, .stored = Turning});
inline constexpr auto MountedOffsetX =
    row::number(&WeaponMountRecord::offsetX, "offsetX", "OffsetX",
                {.unit = Centimetres, .omitted = Omission::Default, .stored = Placed});
inline constexpr auto MountedOffsetY =
    row::number(&WeaponMountRecord::offsetY, "offsetY", "OffsetY",
                {.unit = Centimetres, .omitted = Omission::Default, .stored = Placed});
inline constexpr auto MountedOffsetAngle = row::number(
    &WeaponMountRecord::offsetAngle, "offset_angle", "Angle",
    {.unit = Degrees, .range = Bearing, .omitted = Omission::Default, .stored = Holders::of(Holder::Turret)});
inline constexpr auto AmmoFor = row::reference(FieldKind::Weapon, &AmmoLoadRecord::weaponType, "for", "For");
inline constexpr auto Flavour =
    row::reference(FieldKind::Flavour, &AmmoLoadRecord::flavour, "flavour", "Flavour",
                   {.omitted = Omission::Default, .stored = Holders::allBut(Holder::CrewMan)});
inline constexpr auto Rounds =
    row::number(&AmmoLoadRecord::rounds, "rounds", "Rounds", {.range = NotNegative});

// ---- heavy weapons

inline constexpr auto AtGunOnly = Holders::of(Holder::AtGun);

inline constexpr auto BaseImage = row::image(&HeavyWeaponRecord::baseImage, "image_view_base", "Base image",
                                             image_sources::Unit, {.omitted = Omission::Default});
inline constexpr auto GunImage = row::image(&HeavyWeaponRecord::gunImage, "image_view_gun", "Gun image",
                                            image_sources::Unit, {.omitted = Omission::Default});
inline constexpr auto HeavyProfileImage =
    row::image(&HeavyWeaponRecord::profileImage, "image_profile", "Profile image", image_sources::UnitProfile,
               {.omitted = Omission::Default});
inline constexpr auto HeavyNightVision =
    row::flag(&HeavyWeaponRecord::nightVision, "night_vision", "Night vision");
inline constexpr auto HeavyAntiAircraft =
    row::flag(&HeavyWeaponRecord::antiAircraft, "AA", "Can shoot aircraft", AtGunOnly);
inline constexpr auto HeavyRotateLeft =
    row::number(&HeavyWeaponRecord::rotateLeft, "rotate_left", "Rotate Left", {.unit = Degrees});
inline constexpr auto HeavyRotateRight =
    row::number(&HeavyWeaponRecord::rotateRight, "rotate_right", "Rotate Right", {.unit = Degrees});
inline constexpr auto Mass = row::number(&HeavyWeaponRecord::mass, "mass", "Mass",
                                         {.unit = Kilograms, .range = NotNegative, .stored = AtGunOnly});
inline constexpr auto TrailLength =
    row::real(&HeavyWeaponRecord::trailLength, "trail_length", "Trail length",
              {.unit = "m", .omitted = Omission::UpToDefault, .stored = AtGunOnly, .decimals = 2});
inline constexpr auto Moveable = row::flag(&HeavyWeaponRecord::moveable, "moveable", "Can be moved");

// ---- aircraft

inline constexpr auto AircraftImage =
    row::image(&AircraftRecord::image, "image", "Image", image_sources::Unit, {.omitted = Omission::Default});
inline constexpr auto EjectsFlares =
    row::flag(&AircraftRecord::ejectsFlares, "ejects_flares", "Ejects flares");
inline constexpr auto AircraftSound = row::reference(FieldKind::Sound, &AircraftRecord::sound, "sound",
                                                     "Sound", {.omitted = Omission::Default});
/// The format names no unit.
inline constexpr auto AircraftSpeed =
    row::number(&AircraftRecord::speed, "speed", "Speed", {.range = NotNegative});

inline constexpr auto RotorImage =
    row::image(&RotorBladesRecord::image, "image", "Image", image_sources::Unit);
inline constexpr auto RotorOffsetX = row::number(&RotorBladesRecord::offsetX, "offsetX", "OffsetX",
                                                 {.unit = Centimetres, .omitted = Omission::Default});
inline constexpr auto RotorOffsetY = row::number(&RotorBladesRecord::offsetY, "offsetY", "OffsetY",
                                                 {.unit = Centimetres, .omitted = Omission::Default});
inline constexpr auto RotorDiameter = row::number(&RotorBladesRecord::diameter, "diameter", "Diameter",
                                                  {.unit = Centimetres, .omitted = Omission::Default});
inline constexpr auto Clockwise = row::flag(&RotorBladesRecord::clockwise, "clockwise", "Clockwise");

} // namespace field

template <>
inline constexpr auto fieldsOf<SquadRecord> = std::tie(field::Type, field::LongName, field::ShortName,
                                                       field::Comment, field::Nationality, field::Quality,
                                                       field::VoiceLanguage, field::UniformName,
                                                       field::UniformProfile, field::UniformGame,
                                                       field::UniformRanks);
template <>
inline constexpr auto fieldsOf<AvailabilityPoint> = std::tie(field::Month, field::Year, field::NumberOfUnits);
template <>
inline constexpr auto fieldsOf<VehicleRecord> = std::tie(
    field::ProfileImage, field::Weight, field::CanMountInfantry, field::Amphibious, field::EngineName,
    field::Horsepower, field::Reliability, field::IdleRevolutions, field::RevolutionLimit,
    field::ForwardGears, field::ReverseGears, field::Steering, field::MountOfEngine, field::SmokeScreen);
template <>
inline constexpr auto fieldsOf<ExhaustPipeRecord> = std::tie(field::ExhaustOffsetX, field::ExhaustOffsetY,
                                                             field::ExhaustAngle,
                                                             field::ExhaustVerticalAngle);
template <>
inline constexpr auto fieldsOf<ComponentRecord> = std::tie(
    field::ViewImage, field::DestroyedImage, field::Width, field::Length, field::Height, field::Diameter,
    field::OffsetX, field::OffsetY, field::OffsetZ, field::RotateTime, field::RotateLeft, field::RotateRight,
    field::OffsetAngle, field::AntiAircraft, field::NightVision);
template <>
inline constexpr auto fieldsOf<ArmourRecord> = std::tie(field::UpperFront, field::LowerFront,
                                                        field::UpperLeft, field::UpperRight, field::LowerLeft,
                                                        field::LowerRight, field::UpperRear, field::LowerRear,
                                                        field::FrontSpaced, field::SideSpaced,
                                                        field::RearSpaced, field::Top, field::Bottom,
                                                        field::Mantlet);
template <>
inline constexpr auto fieldsOf<SmokeDischargerRecord> = std::tie(
    field::DischargerAngle, field::DischargerElevation, field::DischargerOffsetX, field::DischargerOffsetY,
    field::DischargerSpeed, field::DischargerReload, field::DischargerAmmo);
template <>
inline constexpr auto fieldsOf<CrewManRecord> = std::tie(field::Job, field::ManLanguage, field::BodyArmour,
                                                         field::ManNightVision, field::PersonalWeapons);
template <>
inline constexpr auto fieldsOf<WeaponMountRecord> = std::tie(field::MountedType, field::Mount,
                                                             field::MountedOffsetX, field::MountedOffsetY,
                                                             field::MountedOffsetAngle);
template <>
inline constexpr auto fieldsOf<AmmoLoadRecord> = std::tie(field::AmmoFor, field::Flavour, field::Rounds);
template <>
inline constexpr auto
    fieldsOf<HeavyWeaponRecord> = std::tie(field::BaseImage, field::GunImage, field::HeavyProfileImage,
                                           field::HeavyNightVision, field::HeavyAntiAircraft,
                                           field::HeavyRotateLeft, field::HeavyRotateRight, field::Mass,
                                           field::TrailLength, field::Moveable);
template <>
inline constexpr auto fieldsOf<AircraftRecord> = std::tie(field::AircraftImage, field::EjectsFlares,
                                                          field::AircraftSound, field::AircraftSpeed);
template <>
inline constexpr auto fieldsOf<RotorBladesRecord> = std::tie(field::RotorImage, field::RotorOffsetX,
                                                             field::RotorOffsetY, field::RotorDiameter,
                                                             field::Clockwise);

} // namespace varrocade
