#pragma once
// Pictures and sounds that values name and that are not there.

#include "data/each_field.h"
#include "data/finding.h"
#include "weapons/weapon_record.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// The finding of a value whose picture or sound is in none of the base folders; nothing for any other kind
/// of field, for an empty value and for the default picture of the nationality.
std::optional<Finding> missingFile(const FieldPlace& place, std::string_view value,
                                   std::span<const std::string> bases);
/// The same, known to be missing.
Finding missingFileFinding(const FieldPlace& place, std::string_view value);

/// All of a weapon's.
std::vector<Finding> missingFiles(const WeaponRecord& weapon, std::span<const std::string> bases);

} // namespace varrocade
