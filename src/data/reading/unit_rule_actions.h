#pragma once
// What the rules of the unit reader do with an element's text: set members by their types, create entries,
// convert the older forms. Only unit_rules.cpp includes it.

#include "data/format/numbers.h"
#include "data/reading/unit_reading.h"
#include "data/unit/engine_table.h"
#include "data/unit/enumerations.h"
#include "data/unit/image_names.h"
#include "data/unit_fields.h"

#include <algorithm>
#include <concepts>
#include <limits>
#include <type_traits>
#include <utility>
#include <vector>

namespace varrocade {

/// A thickness alone, or a thickness, "@" and an angle.
inline void convert(std::string_view text, ArmourPlate& field) {
    const std::size_t at = text.find('@');
    field.thickness = toInteger(text);
    field.angle = at == std::string_view::npos ? 0 : toInteger(text.substr(at + 1));
}

namespace unit_rules {

using tag_rules::judge;
using tag_rules::noteEntry;
using tag_rules::ownerOf;
using tag_rules::reportLeftOut;
using tag_rules::set;
using tag_rules::targetOf;

// The object that a rule's member belongs to; null while there is none.
inline SquadRecord* target(Reading& reading, const SquadRecord*) {
    return &reading.record;
}
inline VehicleRecord* target(Reading& reading, const VehicleRecord*) {
    return reading.record.vehicle ? &*reading.record.vehicle : nullptr;
}
inline AircraftRecord* target(Reading& reading, const AircraftRecord*) {
    return reading.record.aircraft ? &*reading.record.aircraft : nullptr;
}
inline ArmourRecord* target(Reading& reading, const ArmourRecord*) {
    return reading.component != nullptr ? &reading.component->armour : nullptr;
}
inline AvailabilityPoint* target(Reading& reading, const AvailabilityPoint*) {
    return reading.point;
}
inline ComponentRecord* target(Reading& reading, const ComponentRecord*) {
    return reading.component;
}
inline CrewManRecord* target(Reading& reading, const CrewManRecord*) {
    return reading.man;
}
inline WeaponMountRecord* target(Reading& reading, const WeaponMountRecord*) {
    return reading.weapon;
}
inline AmmoLoadRecord* target(Reading& reading, const AmmoLoadRecord*) {
    return reading.ammo;
}
inline SmokeDischargerRecord* target(Reading& reading, const SmokeDischargerRecord*) {
    return reading.discharger;
}
inline ExhaustPipeRecord* target(Reading& reading, const ExhaustPipeRecord*) {
    return reading.exhaustPipe;
}
inline HeavyWeaponRecord* target(Reading& reading, const HeavyWeaponRecord*) {
    return reading.heavyWeapon;
}
inline RotorBladesRecord* target(Reading& reading, const RotorBladesRecord*) {
    return reading.rotorBlades;
}

template <typename Member>
struct MemberOf;
template <typename Record, typename Field>
struct MemberOf<Field Record::*> {
    using Owner = Record;
};

template <const auto& F>
void setUniformImage(Reading& reading, std::string_view text) {
    F.of(*targetOf<F>(reading)) = isDefaultImage(text) ? DefaultImageName : imageNameOf(text);
}

inline void setUniformName(Reading& reading, std::string_view text) {
    SquadRecord* record = targetOf<field::UniformName>(reading);
    record->namedUniform = true;
    record->uniformName = text;
    if (isDefaultImage(text)) {
        record->uniformName.clear();
        judge(reading, true);
    }
}

inline void setQuality(Reading& reading, std::string_view text) {
    const auto names = qualityNames();
    const bool known = std::find(names.begin(), names.end(), text) != names.end();
    judge(reading, known);
    targetOf<field::Quality>(reading)->quality =
        !known ? QualityRegular : (text == QualityRaw ? QualityUntrained : text);
}

// ---- availability

inline void addPoint(Reading& reading, std::string_view) {
    std::vector<AvailabilityPoint>& points = reading.record.availability;
    reading.point = nullptr;
    if (points.size() >= MaxAvailabilityPoints) {
        reportLeftOut(reading, "more than 255 availability points");
        return;
    }
    reading.point = &points.emplace_back();
    noteEntry(reading);
}

// ---- vehicle

/// The entries of a component that is no longer the current one, or no longer there.
inline void forgetComponentEntries(Reading& reading) {
    reading.man = nullptr;
    reading.weapon = nullptr;
    reading.ammo = nullptr;
    reading.discharger = nullptr;
}

inline void createVehicle(Reading& reading, std::string_view) {
    reading.record.vehicle.emplace();
    noteEntry(reading, true);
    reading.component = nullptr;
    reading.exhaustPipe = nullptr;
    forgetComponentEntries(reading);
}

inline void setEngineMount(Reading& reading, std::string_view text) {
    if (VehicleRecord* vehicle = targetOf<field::MountOfEngine>(reading)) {
        const auto names = mountNames();
        judge(reading, std::find(names.begin(), names.end(), text) != names.end());
        vehicle->engineMount = text == MountFront    ? EngineMount::Front
                               : text == MountMiddle ? EngineMount::Middle
                                                     : EngineMount::Rear;
    }
}

/// The older form names the engine in the element itself, by its name or by an identifier of the engine
/// table.
inline void setFlatEngine(Reading& reading, std::string_view text) {
    if (text.empty() || !reading.record.vehicle) {
        return;
    }
    VehicleRecord& vehicle = *targetOf<field::EngineName>(reading);
    if (!text.starts_with(EnginePrefix)) {
        vehicle.engineName = text;
        return;
    }
    const EngineRow* row = findEngine(text);
    vehicle.engineName = row != nullptr ? row->name : std::string_view();
    judge(reading, row != nullptr);
    if (row != nullptr) {
        targetOf<field::Horsepower>(reading)->horsepower = row->horsepower;
    }
}

template <ComponentKind Kind>
void addComponent(Reading& reading, std::string_view) {
    reading.component = nullptr;
    forgetComponentEntries(reading);
    if (!reading.record.vehicle) {
        return;
    }
    std::vector<ComponentRecord>& components = reading.record.vehicle->components;
    if (components.size() >= MaxSquadMembers) {
        reportLeftOut(reading, "more than 13 components");
        return;
    }
    components.reserve(MaxSquadMembers);
    reading.component = &components.emplace_back();
    reading.component->kind = Kind;
    noteEntry(reading);
}

/// Appends to a list of the object that is being filled, and makes the new entry the current one.
template <auto List, auto Current>
void append(Reading& reading, std::string_view) {
    auto* object = ownerOf<typename MemberOf<decltype(List)>::Owner>(reading);
    reading.*Current = object != nullptr ? &(object->*List).emplace_back() : nullptr;
    if (object != nullptr) {
        noteEntry(reading);
    }
}

/// A man's entries begin afresh, so that what a refused man holds goes nowhere.
template <auto List>
void addMan(Reading& reading, std::string_view text) {
    append<List, &Reading::man>(reading, text);
    reading.ammo = nullptr;
}

template <const auto& F>
void setLimit(Reading& reading, std::string_view text) {
    set<Reading, F>(reading, text);
    if (auto* object = targetOf<F>(reading)) {
        // A fixed weapon's limits always apply, without a flag.
        if constexpr (std::same_as<RecordOf<F>, ComponentRecord>) {
            object->limitedTraverse = object->kind == ComponentKind::Turret;
        } else {
            object->limitedTraverse = true;
        }
    }
}

/// The older limits count from straight ahead: to the left negative, to the right positive.
template <const auto& F>
void setLimitFromNegative(Reading& reading, std::string_view text) {
    setLimit<F>(reading, text);
    if (auto* object = targetOf<F>(reading)) {
        const std::int32_t value = F.of(*object);
        const bool negatable = value != std::numeric_limits<std::int32_t>::min();
        F.of(*object) = std::max(0, negatable ? -value : std::numeric_limits<std::int32_t>::max());
    }
}

template <const auto& F>
void setLimitFromPositive(Reading& reading, std::string_view text) {
    setLimit<F>(reading, text);
    if (auto* object = targetOf<F>(reading)) {
        F.of(*object) = std::max(0, F.of(*object));
    }
}

template <const auto& F, bool SmokeDischargerRecord::*Given = nullptr>
void setDirection(Reading& reading, std::string_view text) {
    set<Reading, F>(reading, text);
    if (reading.discharger != nullptr) {
        reading.discharger->directional = true;
        if constexpr (Given != nullptr) {
            reading.discharger->*Given = true;
        }
    }
}

// ---- squads on foot, heavy weapons, aircraft

inline void addInfantryman(Reading& reading, std::string_view) {
    reading.man = nullptr;
    reading.ammo = nullptr;
    if (reading.record.infantrymen.size() >= MaxSquadMembers) {
        reportLeftOut(reading, "more than 13 infantrymen");
        return;
    }
    reading.man = &reading.record.infantrymen.emplace_back();
    noteEntry(reading);
}

inline void addPersonalWeapon(Reading& reading, std::string_view) {
    if (reading.man != nullptr) {
        reading.man->weapons.emplace_back();
    }
}

inline void setPersonalWeapon(Reading& reading, std::string_view text) {
    if (reading.man != nullptr && !reading.man->weapons.empty()) {
        reading.man->weapons.back() = text;
        if (reading.trace != nullptr) {
            reading.trace->noteItem(&field::PersonalWeapons, reading.man->weapons.back());
        }
    }
}

template <HeavyWeaponKind Kind>
void createHeavyWeapon(Reading& reading, std::string_view) {
    reading.heavyWeapon = nullptr;
    reading.weapon = nullptr;
    reading.ammo = nullptr;
    if (reading.record.heavyWeapon) {
        reportLeftOut(reading, "a second heavy weapon");
        return;
    }
    reading.heavyWeapon = &reading.record.heavyWeapon.emplace();
    reading.heavyWeapon->kind = Kind;
    noteEntry(reading);
    reading.record.heavyWeaponPlace = reading.record.infantrymen.size();
}

inline void createAircraft(Reading& reading, std::string_view) {
    reading.record.aircraft.emplace();
    noteEntry(reading, true);
    reading.weapon = nullptr;
    reading.ammo = nullptr;
    reading.rotorBlades = nullptr;
}

/// Into -180 to 180, in whole turns.
inline void setNormalisedAngle(Reading& reading, std::string_view text) {
    if (WeaponMountRecord* weapon = targetOf<field::MountedOffsetAngle>(reading)) {
        constexpr std::int32_t fullTurn = 360;
        constexpr std::int32_t halfTurn = 180;
        std::int32_t angle = toInteger(text) % fullTurn;
        if (angle > halfTurn) {
            angle -= fullTurn;
        } else if (angle < -halfTurn) {
            angle += fullTurn;
        }
        weapon->offsetAngle = angle;
    }
}

} // namespace unit_rules

} // namespace varrocade
