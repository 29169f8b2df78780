#pragma once
// The fields of the "Heavy Weapon" dialog, without any window.

#include "editors/form/form.h"

#include "data/unit/unit_record.h"

#include <span>
#include <string>
#include <string_view>

namespace varrocade {

template <>
struct FormWords<HeavyWeaponKind> {
    static std::span<const FormWord<HeavyWeaponKind>> words();
};

const FormShape<HeavyWeaponRecord>& heavyWeaponShape();

/// The kind that the form shows.
HeavyWeaponKind shownKind(FormPort& port, const HeavyWeaponRecord& weapon);

/// Names what the file of the kind that is shown does not store, or empty.
std::string heavyWeaponNotStored(FormPort& port, const HeavyWeaponRecord& weapon);

/// What to tell of a unit type that is none of a kind of heavy weapon, or empty.
std::string kindNote(HeavyWeaponKind kind, std::string_view unitType);

/// The unit type that a kind of heavy weapon makes.
std::string_view unitTypeOf(HeavyWeaponKind kind);

} // namespace varrocade
