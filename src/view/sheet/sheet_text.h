#pragma once
// How figures and names read on the data sheet.

#include "data/unit/unit_record.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace varrocade {

/// With commas between the thousands: "56,900".
std::string grouped(std::int32_t value);
/// "632 cm", or "-" when there is none.
std::string centimetres(std::int32_t value);
std::string yesNo(bool value);
/// Horsepower a metric ton with one decimal, "-" without a weight.
std::string powerToWeight(std::int32_t horsepower, std::int32_t kilograms);
/// A weapon type for people: "Cannon 75 KWK42 L70".
std::string weaponWord(std::string_view weaponType);
/// A flavour for people: its display name where there is one, otherwise its name without the prefix.
std::string flavourWord(std::string_view flavour);

/// "40 APCBC", or "16" without a flavour.
std::string ammoText(const AmmoLoadRecord& ammo);
/// "40 APCBC, 39 HE" for a weapon; ammunition is carried for a weapon type, not for one piece.
std::string ammoFor(std::span<const AmmoLoadRecord> loads, std::string_view weaponType);

} // namespace varrocade
