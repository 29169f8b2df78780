#pragma once
// What each element of a unit file means: the table behind the unit reader.

#include "data/format/tag_tree.h"
#include "data/losses/reading_trace.h"
#include "data/reader_findings.h"
#include "data/unit/unit_record.h"

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
struct Reading {
    SquadRecord& record;
    const TagTree& tree;
    /// Where to note what the record cannot take, or null.
    ReaderFindings* findings = nullptr;
    const TagNode* node = nullptr;
    /// Where to note what becomes of each element, or null.
    ReadingTrace* trace = nullptr;

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

/// One rule: an element in a place leads to another place and does something with its text.
struct Rule {
    Place parent;
    std::string_view element;
    Place place;
    void (*apply)(Reading& reading, std::string_view text);
};

/// The rule for an element in a place, or null.
const Rule* findRule(Place parent, std::string_view element);

/// Walks the tree and fills the record.
void readTree(Reading& reading);

/// A point of the older quarterly availability, such as "1942Q3" with its number.
void addQuarter(Reading& reading, std::string_view name, std::string_view text);

/// Notes that the element being read was left out, and why.
void reportLeftOut(Reading& reading, std::string_view what);

} // namespace varrocade::unit_rules
