#pragma once
// How weapon files name their symbolic values.

#include "weapons/weapon_record.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace varrocade {

/// The words that files may have, in the order in which lists offer them. A guidance or reload mode of none
/// has no word.
std::span<const std::string_view> weaponTypeNames();
std::span<const std::string_view> flavourNames();
std::span<const std::string_view> heatEraNames();
std::span<const std::string_view> guidanceModeNames();
std::span<const std::string_view> reloadModeNames();

/// "WEAPON_NONE" for a value that has no name.
std::string_view nameOf(WeaponType type);
/// `WeaponType::None` for an unknown name.
WeaponType weaponTypeOf(std::string_view name);

/// "FLAVOUR_NONE" for a value that has no name.
std::string_view nameOf(AmmoFlavour flavour);
/// The flavour of a name, older spellings included; `AmmoFlavour::None` for an unknown one and for those that
/// files may not name.
AmmoFlavour flavourOf(std::string_view name);
/// What lists and data sheets call a flavour, such as "APCBC"; "Unknown" for a value that has no name.
std::string_view displayNameOf(AmmoFlavour flavour);

/// Whether a flavour is a shaped charge and so has a HEAT era.
bool isHeat(AmmoFlavour flavour);

/// "HEAT_ERA_LATE" for values above the last era.
std::string_view nameOf(HeatEra era);
std::optional<HeatEra> heatEraOf(std::string_view name);

/// "GUIDED_MANUAL" for values above the last mode.
std::string_view nameOf(GuidanceMode mode);
std::optional<GuidanceMode> guidanceModeOf(std::string_view name);

/// "RELOAD_AUTOMATIC" for every value but none and semi-automatic.
std::string_view nameOf(ReloadMode mode);
std::optional<ReloadMode> reloadModeOf(std::string_view name);

/// What people call a value, such as "Submachine gun". What files cannot name has the word of what would be
/// written for it.
std::string_view wordOf(WeaponType type);
std::string_view wordOf(HeatEra era);
std::string_view wordOf(GuidanceMode mode);
std::string_view wordOf(ReloadMode mode);

/// The names of the files; empty for the modes that are never written.
std::string valueText(WeaponType value);
std::string valueText(AmmoFlavour value);
std::string valueText(HeatEra value);
std::string valueText(GuidanceMode value);
std::string valueText(ReloadMode value);

} // namespace varrocade
