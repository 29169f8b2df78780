#pragma once
// The rules over the values of a unit: what they name, whether they fit each other and the game around them.

#include "data/category.h"
#include "data/each_field.h"
#include "data/unit/unit_record.h"
#include "tools/checks/engine/file_findings.h"
#include "tools/checks/engine/knowledge.h"

#include <string>
#include <string_view>

namespace varrocade {

/// A unit with what its rules look at.
struct CheckedUnit {
    const SquadRecord& unit;
    Category category;
    std::string_view fileName; ///< without ".txt"
    const CheckKnowledge& knowledge;
    FileFindings& out;
    bool looksIntoPictures = false; ///< takes them apart, not only their sizes
};

/// Weapons, flavours, pictures, sounds, flags that are not there, or in other letter case.
void checkReferences(const CheckedUnit& checked);
/// Sizes of pictures against the data and against each other.
void checkPictures(const CheckedUnit& checked);
/// Ammunition and weapons without each other.
void checkArmament(const CheckedUnit& checked);
/// Weapons without men and men without jobs.
void checkCrew(const CheckedUnit& checked);
/// Sizes, offsets, traverse, and what else must fit within a vehicle.
void checkPlacement(const CheckedUnit& checked);
/// Plates that are missing or out of proportion; the weight.
void checkArmour(const CheckedUnit& checked);
/// When there are how many.
void checkAvailability(const CheckedUnit& checked);
/// Weapons before their period or of other countries.
void checkUsage(const CheckedUnit& checked);
/// Category, nationality and names.
void checkIdentity(const CheckedUnit& checked);
/// Values that the file of such a unit does not carry, and those unlike all others.
void checkValues(const CheckedUnit& checked);

/// Calls `visit` with each component and its path, with a point at its end: "vehicle.turret[2].".
template <typename Visit>
void forEachComponentPath(const VehicleRecord& vehicle, Visit visit) {
    std::size_t counts[4] = {};
    for (const ComponentRecord& component : vehicle.components) {
        const std::size_t number = ++counts[static_cast<std::size_t>(component.kind)];
        visit(component, std::string(element::Vehicle) + "." + std::string(elementOf(component.kind)) + "[" +
                             std::to_string(number) + "].");
    }
}

/// Calls `visit` with all that carries weapons and ammunition, and its path.
template <typename Visit>
void forEachArmed(const SquadRecord& unit, Visit visit) {
    if (unit.vehicle) {
        forEachComponentPath(*unit.vehicle, visit);
    }
    if (unit.heavyWeapon) {
        visit(*unit.heavyWeapon, std::string(elementOf(unit.heavyWeapon->kind)) + ".");
    }
    if (unit.aircraft) {
        visit(*unit.aircraft, std::string(element::Aircraft) + ".");
    }
}

/// "weapon[2]", "ammo[1]"
inline std::string numbered(std::string_view name, std::size_t index) {
    return std::string(name) + "[" + std::to_string(index + 1) + "]";
}

} // namespace varrocade
