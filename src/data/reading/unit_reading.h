#pragma once
// What the unit reader is filling, and where in a file it is.

#include "data/tag_rules.h"
#include "data/unit/unit_record.h"

#include <cstdint>

namespace varrocade::unit_rules {

/// Where in a file an element stands, as far as the rules tell places apart. What stands above a squad or an
/// aircraft does not matter, nor does what an unknown element holds.
enum class Place : std::uint8_t {
    Unknown,
    Squad,
    Aircraft,
    Availability,
    AvailabilityData,
    Commonness,
    SquadDescription,
    AircraftDescription,
    Infantryman,
    InfantrymanWeapon,
    InfantrymanAmmo,
    HeavyWeapon,
    HeavyWeaponWeapon,
    HeavyWeaponAmmo,
    Armament,
    AircraftWeapon,
    AircraftAmmo,
    RotorBlades,
    Vehicle,
    Attributes,
    Drive,
    Engine,
    Gears,
    ExhaustPipe,
    Hull,
    Superstructure,
    Turret,
    FixedWeapon,
    ComponentWeapon,
    ComponentAmmo,
    CrewMan,
    CrewManWeapon,
    CrewManAmmo,
    SmokeDischarger,
    Armour,
    Count
};

/// What the walk is filling. A pointer is null outside the member it stands for, and while a member that
/// found no room is passed over.
struct Reading : TagReading {
    using Place = unit_rules::Place;
    using File = SquadRecord;

    SquadRecord& record;

    AvailabilityPoint* point = nullptr;
    ComponentRecord* component = nullptr;
    CrewManRecord* man = nullptr;
    WeaponMountRecord* weapon = nullptr;
    AmmoLoadRecord* ammo = nullptr;
    SmokeDischargerRecord* discharger = nullptr;
    ExhaustPipeRecord* exhaustPipe = nullptr;
    HeavyWeaponRecord* heavyWeapon = nullptr;
    RotorBladesRecord* rotorBlades = nullptr;
};

} // namespace varrocade::unit_rules
