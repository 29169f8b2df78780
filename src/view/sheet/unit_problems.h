#pragma once
// What is wrong with the open unit, as the bar on top of its sheet shows it: each finding with the part of
// the unit that it is about.

#include "data/field.h"
#include "data/finding.h"
#include "data/unit/unit_record.h"
#include "view/drawing/unit_part.h"
#include "weapons/weapon_record.h"

#include <string>
#include <string_view>

namespace varrocade {

/// A finding and what it is about, if that can be pointed at.
struct SheetProblem {
    Finding finding;
    UnitPart part = {};
    std::string source = {}; ///< the line of the file, where the finding is about one
};

/// Where an editor of a part begins: at a field, and of a man perhaps at something that he carries.
struct FieldFocus {
    FieldId field = nullptr;
    PartKind carried = PartKind::None; ///< `Weapon` or `Ammunition` of the man
    std::size_t carriedIndex = 0;
};

/// What is to be edited where something is wrong with a value.
struct FieldTarget {
    UnitPart part;
    FieldFocus focus = {};
};

/// The part whose dialog edits a field, with the entry that it begins with, by the field's path. Of a path
/// that leads nowhere, the nearest part around it.
FieldTarget targetOfField(const SquadRecord& record, std::string_view path);

/// The same of a weapon: the place of the ammunition, and the field.
struct WeaponTarget {
    std::size_t ammo = 0;
    FieldId field = nullptr;
};
WeaponTarget targetOfField(const WeaponRecord& weapon, std::string_view path);

/// The part that a field belongs to, by its path from the unit on: "vehicle.turret[2].rotate_left".
UnitPart partOfField(const SquadRecord& record, std::string_view path);
/// Of a weapon, a type of its ammunition or, of kind `Details`, the weapon itself.
UnitPart partOfField(const WeaponRecord& weapon, std::string_view path);

} // namespace varrocade
