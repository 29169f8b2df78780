#pragma once
// The rules over the values of a weapon file.

#include "tools/checks/engine/file_findings.h"
#include "tools/checks/engine/knowledge.h"
#include "weapons/weapon_record.h"

#include <string_view>

namespace varrocade {

/// A weapon with what its rules look at.
struct CheckedWeapon {
    const WeaponRecord& weapon;
    std::string_view fileName; ///< without ".txt"
    const CheckKnowledge& knowledge;
    FileFindings& out;
};

/// Names, ammunition, period and countries.
void checkWeapon(const CheckedWeapon& checked);
/// Values unlike those of all other weapons of the kind.
void checkWeaponValues(const CheckedWeapon& checked);

} // namespace varrocade
