#pragma once
// Whether a weapon's figures are out of the ordinary: compared with those of the other weapons of its kind in
// the same game folder.

#include "weapons/weapon_catalogue.h"
#include "weapons/weapon_record.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace varrocade {

/// What most weapons have of a figure.
struct UsualSpan {
    double least = 0;
    double greatest = 0;
};

/// Fewer weapons than this tell nothing of what is usual.
inline constexpr std::size_t LeastForSpan = 5;

/// What the middle nine tenths of the values lie between; nothing for too few values.
std::optional<UsualSpan> usualSpan(std::vector<double> values);

/// Whether a value lies outside of a span by more than a quarter.
bool isUnusual(double value, const UsualSpan& span);

/// The energy of a projectile at the muzzle in kilojoules: half its mass times the square of its speed.
double muzzleEnergy(const AmmoTypeRecord& ammo);

/// Notes on what is out of the ordinary in a weapon and in one of its ammunition types, a sentence each:
/// "Speed 9350 m/s: usual for APCBC is 457 to 1000 m/s". The weapon's own entry of the catalogue,
/// by its file name, does not count. `ammo` may be beyond the list: then there is none to look at.
std::vector<std::string> unusualFigures(const WeaponRecord& weapon, std::size_t ammo,
                                        std::span<const CatalogueEntry> others);

} // namespace varrocade
