#pragma once
// The ammunition of whoever carries weapons: which of it a weapon still lacks, and what happens to it when
// its weapon goes.

#include "data/unit/unit_record.h"
#include "editors/unit/weapon_choices.h"
#include "weapons/weapon_catalogue.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// The types of weapons, each once: two weapons of a type share their ammunition.
std::vector<std::string> weaponTypesOf(std::span<const WeaponMountRecord> weapons);

/// A new load: for the first weapon that has no ammunition yet, or the first flavour of a weapon that has
/// none of it; after all of these for the first weapon once more. For no weapon where there is none.
AmmoLoadRecord nextAmmunition(std::span<const std::string> weaponTypes, std::span<const AmmoLoadRecord> loads,
                              bool hasFlavour, const WeaponCatalogue& catalogue);

/// How many rounds of one kind a bearer usually carries for a weapon. 0 for a weapon that the catalogue does
/// not hold, and for a vehicle, where they depend on its size.
std::int32_t usualRounds(const WeaponCatalogue& catalogue, std::string_view weaponType, WeaponBearer bearer);

/// What a bearer usually carries for a weapon: some of its first ammunition; a heavy weapon or an aircraft
/// also of its first high explosive. Nothing for a weapon that the catalogue does not hold.
std::vector<AmmoLoadRecord> usualLoads(const WeaponCatalogue& catalogue, std::string_view weaponType,
                                       WeaponBearer bearer);

/// Ammunition whose weapon an edit took away.
struct OrphanedAmmo {
    std::string weaponType;
    std::string successor; ///< the type of the weapon that took its place, or empty
    std::int64_t rounds = 0;
};

/// The ammunition among `loads` for the weapons that are in `former` and no longer in `present`.
std::vector<OrphanedAmmo> orphanedAmmo(std::span<const WeaponMountRecord> former,
                                       std::span<const WeaponMountRecord> present,
                                       std::span<const AmmoLoadRecord> loads);

/// Whether its ammunition goes with its weapon, as a question for people.
std::string orphanQuestion(const OrphanedAmmo& orphan);

/// Takes the ammunition away, or leaves it to the weapon's successor; without one it stays as it is.
void settleOrphan(const OrphanedAmmo& orphan, bool goesToo, std::vector<AmmoLoadRecord>& loads);

} // namespace varrocade
