#pragma once
// What is odd about the arms, pictures and sounds of a squad or an aircraft, noted beside its lists while it
// is edited. Nothing of it is refused.

#include "data/unit/unit_record.h"
#include "weapons/weapon_catalogue.h"

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace varrocade {

/// A note, and the place of the member in the squad's list that it is about.
struct SquadNote {
    static constexpr std::size_t Everybody = static_cast<std::size_t>(-1);
    std::size_t member = Everybody;
    std::string text;
};

/// Men without a weapon, weapons that nobody has ammunition for, ammunition for a weapon that nobody carries,
/// a type that the heavy weapon contradicts, pictures that are not below `bases`. Grenades need nobody who
/// carries them: they are ammunition alone. A catalogue without weapons knows no grenades.
std::vector<SquadNote> squadNotes(const SquadRecord& squad, const WeaponCatalogue& catalogue,
                                  std::span<const std::string> bases);

/// The same of an aircraft, its sound included. Bombs and rockets are weapons with ammunition like others.
std::vector<SquadNote> aircraftNotes(const SquadRecord& unit, const WeaponCatalogue& catalogue,
                                     std::span<const std::string> bases);

/// What somebody carries, a line each.
std::string carriedLines(std::span<const std::string> weapons, std::span<const AmmoLoadRecord> ammo);

/// The notes as lines.
std::string noteLines(std::span<const SquadNote> notes);

/// The weapons that a man of the squad may have ammunition for: his own, the grenades of his nation and time,
/// then those of the others and of the heavy weapon.
std::vector<std::string> ammoWeaponsOf(const SquadRecord& squad, const CrewManRecord& man,
                                       const WeaponCatalogue& catalogue);

} // namespace varrocade
