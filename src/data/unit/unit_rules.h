#pragma once
// What each element of a unit file means: the table behind the unit reader.

#include "data/tag_rules.h"
#include "data/unit/unit_reader.h"
#include "data/unit_fields.h"

#include <cstdint>
#include <string_view>

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
    Diagnostics& diagnostics;

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

using Rule = tag_rules::Rule<Reading>;

/// The rules of unit files.
const tag_rules::RuleTable<Reading>& ruleTable();

/// Whether an element of this name means something in some place.
bool isElement(std::string_view name);

/// Walks the tree and fills the record.
void readTree(Reading& reading);

/// A point of the older quarterly availability, such as "1942Q3" with its number.
void addQuarter(Reading& reading, std::string_view name, std::string_view text);

/// A file tells at most so much about itself: finding a line costs a pass over the file.
inline constexpr std::size_t MaxDiagnostics = 100;

/// Adds a line to the diagnostics.
void report(Reading& reading, std::string_view line);

/// Notes what was left out and on which line of the file.
void reportLeftOut(Reading& reading, std::string_view what);

} // namespace varrocade::unit_rules
