#pragma once
// The figures of a weapon beside those of another one.

#include "weapons/weapon_record.h"

#include <cstddef>
#include <string>
#include <vector>

namespace varrocade {

/// A figure for people; `other` is empty where there is nothing to compare with.
struct FigureRow {
    std::string label;
    std::string own;
    std::string other;
};

/// The ammunition of a weapon that is compared with a flavour: the first of the same flavour, otherwise the
/// first of all.
std::size_t comparedAmmo(const WeaponRecord& weapon, AmmoFlavour flavour);

/// The figures of a weapon with one of its ammunition types, which need not be there, and those of `other`,
/// which may be null.
std::vector<FigureRow> weaponFigureRows(const WeaponRecord& weapon, std::size_t ammo,
                                        const WeaponRecord* other);

/// "2.97" kJ: three digits, as many as are worth comparing.
std::string energyText(double kilojoules);

} // namespace varrocade
