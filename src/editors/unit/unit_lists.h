#pragma once
// How the lists inside a unit are shown and edited: exhaust pipes, smoke dischargers, crew, weapons,
// ammunition, availability. Without any window.

#include "editors/form/list_model.h"

#include "data/unit/unit_record.h"

#include <cstdint>

namespace varrocade {

/// A personal weapon as a list entry.
struct PersonalWeapon {
    Text type;
    bool operator==(const PersonalWeapon&) const = default;
};

const ListShape<ExhaustPipeRecord>& exhaustPipeShape();
const ListShape<SmokeDischargerRecord>& smokeDischargerShape();
const ListShape<CrewManRecord>& crewShape();
const ListShape<WeaponMountRecord>& weaponShape();
const ListShape<PersonalWeapon>& personalWeaponShape();
const ListShape<AmmoLoadRecord>& ammunitionShape();
const ListShape<AvailabilityPoint>& availabilityShape();

/// An offset to the right or an angle, seen in a mirror that stands along the vehicle.
std::int32_t mirrored(std::int32_t value);

/// Brings points into the order of their dates; equal dates keep theirs.
void sortByDate(std::vector<AvailabilityPoint>& points);

} // namespace varrocade
