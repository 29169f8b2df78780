#pragma once
// What of a unit can be pointed at: in its drawing, on its data sheet, in the menu of either.

#include "data/unit/unit_record.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace varrocade {

enum class PartKind : std::uint8_t {
    None,
    Details, ///< the unit's own figures and names
    Drive,
    Availability,
    Component,
    Armour,
    Weapon,     ///< of a component, of a heavy weapon or of an aircraft
    Ammunition, ///< of the same
    Discharger,
    CrewMan,
    Exhaust,
    HeavyWeapon,
    Man, ///< of a squad
    Aircraft,
    Rotor,
};

struct UnitPart {
    PartKind kind = PartKind::None;
    std::size_t component = 0; ///< what has components: the place in their list
    std::size_t index = 0;     ///< what there are several of: the place in their list
    bool operator==(const UnitPart&) const = default;
    explicit operator bool() const { return kind != PartKind::None; }
};

/// Whether two parts are shown as one: a component and its armour.
bool isSameShown(const UnitPart& a, const UnitPart& b);

/// Whether the unit has such a part: it may have gone with an edit.
bool hasPart(const SquadRecord& unit, const UnitPart& part);

/// The weapons of the component, heavy weapon or aircraft that a part of kind `Weapon` is of; null when there
/// are none.
const std::vector<WeaponMountRecord>* weaponsAround(const SquadRecord& unit, const UnitPart& part);

/// The type of the weapon that a part is; empty for other parts.
std::string weaponOf(const SquadRecord& unit, const UnitPart& part);

/// A part for people: "2. Turret", "Cannon 88 KWK36 L56", "Exhaust pipe 1".
std::string partName(const SquadRecord& unit, const UnitPart& part);

} // namespace varrocade
