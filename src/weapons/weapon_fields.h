#pragma once
// The fields of weapons, each described once. The units are the game's own: calibre and barrel length in
// millimetres, range in metres, speed in metres a second, masses in kilograms, fuse delay in seconds.

#include "data/each_field.h"
#include "weapons/weapon_elements.h"
#include "weapons/weapon_names.h"
#include "weapons/weapon_record.h"

#include <array>
#include <tuple>

namespace varrocade {

/// What a weapon of a type, or ammunition of a flavour, counts as where files leave fields out.
Holder holderOf(WeaponType type);
Holder holderOf(AmmoFlavour flavour);

namespace weapon_field {

namespace row = field_row;

inline constexpr auto TracerImages = std::to_array<ImageSource>({{image_folder::Tracers}});
/// What is thrown or dropped has neither barrel nor magazine.
inline constexpr Holders WithBarrel = Holders::allBut(Holder::Grenade, Holder::Bomb);
inline constexpr NumberRange Short = {.least = 0, .greatest = INT16_MAX};

inline constexpr auto Name = row::text(&WeaponRecord::name, "name", "Name");
inline constexpr auto Type = row::choice(&WeaponRecord::type, "type", "Type", weaponTypeNames);
inline constexpr auto BarrelLength =
    row::number(&WeaponRecord::barrelLength, "barrel_length", "Barrel length",
                {.unit = "mm", .range = Short, .omitted = Omission::UpToDefault, .stored = WithBarrel});
inline constexpr auto Calibre =
    row::real(&WeaponRecord::calibre, "calibre", "Calibre",
              {.unit = "mm", .range = NotNegative, .omitted = Omission::UpToDefault, .stored = WithBarrel});
inline constexpr auto NumberOfBarrels = row::number(
    &WeaponRecord::numberOfBarrels, "number_barrels", "Number of barrels",
    {.range = {.least = 1, .greatest = UINT8_MAX}, .omitted = Omission::UpToDefault, .stored = WithBarrel});
inline constexpr auto Range = row::number(&WeaponRecord::range, "range", "Range",
                                          {.unit = "m", .range = Short, .omitted = Omission::Default});
inline constexpr auto ShootSound = row::reference(FieldKind::Sound, &WeaponRecord::shootSound, "sound_shoot",
                                                  "Shot", {.omitted = Omission::Default});
inline constexpr auto TracerImage = row::image(&WeaponRecord::tracerImage, "tracer_image", "Tracer image",
                                               TracerImages, {.omitted = Omission::Default});
inline constexpr auto MuzzleFlash = row::flag(&WeaponRecord::muzzleFlash, "muzzle_flash", "Muzzle flash");
inline constexpr auto RateOfFire =
    row::number(&WeaponRecord::rateOfFire, "rof", "Rate of fire",
                {.unit = "rounds a minute", .range = Short, .omitted = Omission::Default});
inline constexpr auto Reload =
    row::choice(&WeaponRecord::reload, "reload", "Reload", reloadModeNames, {.omitted = Omission::Default});
inline constexpr auto Capacity = row::number(&WeaponRecord::magazineCapacity, "capacity", "Capacity",
                                             {.unit = "rounds",
                                              .range = {.least = 1, .greatest = INT16_MAX},
                                              .omitted = Omission::UpToDefault,
                                              .stored = WithBarrel});
inline constexpr auto SingleShot =
    row::flag(&WeaponRecord::singleShot, "single_shot", "Single shot", WithBarrel);
inline constexpr auto ReloadSound =
    row::reference(FieldKind::Sound, &WeaponRecord::reloadSound, "sound_reload", "Reloading",
                   {.omitted = Omission::Default, .stored = WithBarrel});
inline constexpr auto EjectClipSound =
    row::reference(FieldKind::Sound, &WeaponRecord::ejectClipSound, "sound_eject_clip", "Ejecting the clip",
                   {.omitted = Omission::Default, .stored = WithBarrel});
inline constexpr auto Comments =
    row::text(&WeaponRecord::comments, "comments", "Comments", {.omitted = Omission::Default});
inline constexpr auto Period =
    row::text(&WeaponRecord::period, "period", "Period", {.omitted = Omission::Default});
inline constexpr auto Countries =
    row::text(&WeaponRecord::countries, "countries", "Countries", {.omitted = Omission::Default});

// ---- ammunition

inline constexpr auto Flavour = row::choice(&AmmoTypeRecord::flavour, "flavour", "Flavour", flavourNames);
inline constexpr auto Era =
    row::choice(&AmmoTypeRecord::era, "era", "HEAT era", heatEraNames,
                {.omitted = Omission::Default, .stored = Holders::of(Holder::ShapedCharge)});
/// Grenades are thrown.
inline constexpr auto Speed =
    row::real(&AmmoTypeRecord::speed, "speed", "Speed",
              {.unit = "m/s", .range = NotNegative, .storedWithin = Holders::allBut(Holder::Grenade)});
inline constexpr auto Mass =
    row::real(&AmmoTypeRecord::mass, "mass", "Mass", {.unit = "kg", .range = NotNegative});
inline constexpr auto HighExplosive = row::real(&AmmoTypeRecord::highExplosive, "HE", "High explosive",
                                                {.unit = "kg",
                                                 .range = NotNegative,
                                                 .omitted = Omission::UpToDefault,
                                                 .stored = Holders::allBut(Holder::PlainSmoke)});
inline constexpr auto ExplodeIn =
    row::real(&AmmoTypeRecord::explodeIn, "explode_in", "Fuse",
              {.unit = "s", .range = NotNegative, .omitted = Omission::UpToDefault});
inline constexpr auto Guided = row::choice(&AmmoTypeRecord::guided, "guided", "Guidance", guidanceModeNames,
                                           {.omitted = Omission::Default});
inline constexpr auto SmokeTrail = row::flag(&AmmoTypeRecord::smokeTrail, "smoke_trail", "Smoke trail");
inline constexpr auto AmmoTracerImage =
    row::image(&AmmoTypeRecord::tracerImage, "tracer_image", "Tracer image", TracerImages,
               {.omitted = Omission::Default});
inline constexpr auto ExplodeSound =
    row::reference(FieldKind::Sound, &AmmoTypeRecord::explodeSound, "explode_sound", "Explosion",
                   {.omitted = Omission::Default});
inline constexpr auto AmmoName = row::text(&AmmoTypeRecord::name, "name", "Name");

} // namespace weapon_field

template <>
inline constexpr auto fieldsOf<WeaponRecord> = std::tie(
    weapon_field::Name, weapon_field::Type, weapon_field::BarrelLength, weapon_field::Calibre,
    weapon_field::NumberOfBarrels, weapon_field::Range, weapon_field::ShootSound, weapon_field::TracerImage,
    weapon_field::MuzzleFlash, weapon_field::RateOfFire, weapon_field::Reload, weapon_field::Capacity,
    weapon_field::SingleShot, weapon_field::ReloadSound, weapon_field::EjectClipSound, weapon_field::Comments,
    weapon_field::Period, weapon_field::Countries);
template <>
inline constexpr auto fieldsOf<AmmoTypeRecord> = std::tie(
    weapon_field::Flavour, weapon_field::Era, weapon_field::Speed, weapon_field::Mass,
    weapon_field::SmokeTrail, weapon_field::Guided, weapon_field::AmmoTracerImage,
    weapon_field::HighExplosive, weapon_field::ExplodeIn, weapon_field::ExplodeSound, weapon_field::AmmoName);

/// Visits every value of a weapon and of its ammunition ("ammo[2].speed"), as for units.
template <typename Weapon, typename Visit>
requires std::same_as<std::remove_const_t<Weapon>, WeaponRecord>
void forEachField(Weapon& weapon, Visit&& visit) {
    each_field::Walk<Visit> walk(visit);
    walk.values(weapon, holderOf(weapon.type));
    for (std::size_t i = 0; i < weapon.ammoTypes.size(); ++i) {
        walk.entry(weapon.ammoTypes[i], weapon_element::Ammo, i + 1, holderOf(weapon.ammoTypes[i].flavour),
                   holderOf(weapon.type));
    }
}

} // namespace varrocade
