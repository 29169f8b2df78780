#pragma once
// How weapon files name their symbolic values.

#include "weapons/weapon_record.h"

#include <optional>
#include <string_view>

namespace varrocade {

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

} // namespace varrocade
