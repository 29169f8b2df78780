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

/// The way to what a rule looks at. It becomes a text only for what is found. Those that lead on from it
/// refer to it.
class RulePath {
public:
    RulePath() = default; ///< to the record itself
    RulePath(const RulePath& around, std::string_view name, std::size_t number = 0)
        : step_{around.step_.name.empty() ? nullptr : &around.step_, name, number} {}
    RulePath(const RulePath&) = delete;
    RulePath& operator=(const RulePath&) = delete;

    [[nodiscard]] std::string text() const { return FieldPath(&step_).text(); }
    /// To a value of it, as a text.
    [[nodiscard]] std::string to(const FieldInfo& field) const {
        return RulePath(*this, field.element).text();
    }

private:
    FieldPath::Step step_;
};

/// Calls `visit` with each component and its path, such as "vehicle.turret[2]".
template <typename Visit>
void forEachComponentPath(const VehicleRecord& vehicle, Visit visit) {
    const RulePath record;
    const RulePath ofVehicle(record, element::Vehicle);
    std::size_t counts[4] = {};
    for (const ComponentRecord& component : vehicle.components) {
        const std::size_t number = ++counts[static_cast<std::size_t>(component.kind)];
        visit(component, RulePath(ofVehicle, elementOf(component.kind), number));
    }
}

/// Calls `visit` with all that carries weapons and ammunition, and its path.
template <typename Visit>
void forEachArmed(const SquadRecord& unit, Visit visit) {
    if (unit.vehicle) {
        forEachComponentPath(*unit.vehicle, visit);
    }
    const RulePath record;
    if (unit.heavyWeapon) {
        visit(*unit.heavyWeapon, RulePath(record, elementOf(unit.heavyWeapon->kind)));
    }
    if (unit.aircraft) {
        visit(*unit.aircraft, RulePath(record, element::Aircraft));
    }
}

} // namespace varrocade
