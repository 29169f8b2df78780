#pragma once
// The cells of a unit's or weapon's row in a sheet: one a value, in the order of the fields; a plate has two,
// so that numbers are numbers. A cell's heading follows from where its value stands.

#include "data/each_field.h"
#include "data/field_text.h"
#include "weapons/weapon_fields.h"

#include <algorithm>
#include <concepts>
#include <string>
#include <type_traits>
#include <vector>

namespace varrocade {

/// Where the value of a cell stands.
struct CellPlace {
    const FieldPlace& place;
    const FieldInfo& field; ///< that of the place, or of a plate its thickness or angle
    bool isLeftOpen;        ///< the file does not give the value: the cell is empty
};

/// "Turret 2 armour Upper front thickness [mm]"
std::string headingOf(const CellPlace& cell);

/// A number that below 0 is none: a bottom or mantlet without a thickness.
bool mayBeNegativeForNone(const FieldInfo& field);

/// A value that the file gives only where a flag beside it is set.
template <typename Flag>
struct GivenValue {
    const void* value;
    Flag* isGiven;
};

/// The values of a unit with such flags.
template <typename Unit, typename Flag = std::conditional_t<std::is_const_v<Unit>, const bool, bool>>
std::vector<GivenValue<Flag>> givenValues(Unit& unit) {
    std::vector<GivenValue<Flag>> values;
    if constexpr (std::same_as<std::remove_const_t<Unit>, SquadRecord>) {
        if (unit.heavyWeapon) {
            auto& gun = *unit.heavyWeapon;
            values.push_back({&gun.rotateLeft, &gun.limitedTraverse});
            values.push_back({&gun.rotateRight, &gun.limitedTraverse});
        }
        if (unit.vehicle) {
            for (auto& component : unit.vehicle->components) {
                if (component.kind == ComponentKind::Turret) {
                    values.push_back({&component.rotateLeft, &component.limitedTraverse});
                    values.push_back({&component.rotateRight, &component.limitedTraverse});
                    values.push_back({&component.offsetAngle, &component.limitedTraverse});
                }
                for (auto& discharger : component.smokeDischargers) {
                    values.push_back({&discharger.angle, &discharger.angleGiven});
                    values.push_back({&discharger.elevation, &discharger.elevationGiven});
                    values.push_back({&discharger.speed, &discharger.directional});
                }
            }
        }
    }
    return values;
}

/// Visits the cells of a record with `visit(const CellPlace&, value)`; what its file does not store has none.
template <typename Record, typename Visit>
void forEachCell(Record& record, Visit&& visit) {
    const auto given = givenValues(record);
    const auto isOpen = [&](const auto& value, const FieldInfo& field) {
        if constexpr (std::same_as<std::remove_cvref_t<decltype(value)>, std::int32_t>) {
            return (value < 0 && mayBeNegativeForNone(field)) ||
                   std::any_of(given.begin(), given.end(),
                               [&](const auto& row) { return row.value == &value && !*row.isGiven; });
        } else {
            return false;
        }
    };
    forEachField(record, [&](const FieldPlace& place, auto& value) {
        if (!place.isStored()) {
            return;
        }
        if constexpr (std::same_as<std::remove_cvref_t<decltype(value)>, ArmourPlate>) {
            visit(CellPlace{place, field::PlateThickness, false}, value.thickness);
            visit(CellPlace{place, field::PlateAngle, false}, value.angle);
        } else {
            visit(CellPlace{place, place.field, isOpen(value, place.field)}, value);
        }
    });
}

/// Whether cells of this type are texts, which a spreadsheet program must leave alone.
template <typename Value>
inline constexpr bool IsText = std::convertible_to<const Value&, std::string_view>;

/// A value as its cell has it, before quotes and marks: a real number with the digits that files have.
template <typename Value>
std::string plainText(const CellPlace& cell, const Value& value) {
    std::string text;
    if (cell.isLeftOpen) {
        return text;
    }
    if constexpr (std::floating_point<Value>) {
        field_text::append(text, cell.field, value);
        return text;
    } else {
        return textOfValue(value);
    }
}

} // namespace varrocade
