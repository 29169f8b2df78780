#pragma once
// How ammunition reads to people.

#include "data/unit/unit_record.h"

#include <span>
#include <string>
#include <string_view>

namespace varrocade {

/// A flavour for people: its display name where there is one, otherwise its name without the prefix.
std::string flavourWord(std::string_view flavour);

/// "40 APCBC", or "16" without a flavour.
std::string ammoText(const AmmoLoadRecord& ammo);
/// "40 APCBC, 39 HE" for a weapon; ammunition is carried for a weapon type, not for one piece.
std::string ammoFor(std::span<const AmmoLoadRecord> loads, std::string_view weaponType);

} // namespace varrocade
