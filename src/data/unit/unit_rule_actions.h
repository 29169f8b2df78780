#pragma once
// What the rules of the unit reader do with an element's text: set members by their types, create entries,
// convert the older forms. Only unit_rules.cpp includes it.

#include "data/format/numbers.h"
#include "data/unit/engine_table.h"
#include "data/unit/enumerations.h"
#include "data/unit/image_names.h"
#include "data/unit/unit_rules.h"

#include <algorithm>
#include <concepts>
#include <limits>
#include <type_traits>
#include <utility>
#include <vector>

namespace varrocade::unit_rules {

inline constexpr std::string_view Yes = "yes";

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

template <auto Member>
using OwnerOf = typename MemberOf<decltype(Member)>::Owner;
template <auto Member>
using FieldOf = std::remove_cvref_t<decltype(std::declval<OwnerOf<Member>&>().*Member)>;

/// The object whose list or reference a rule changes.
template <auto Member>
auto* ownerOf(Reading& reading) {
    const OwnerOf<Member>* kind = nullptr;
    return target(reading, kind);
}

/// The object whose member a rule is about to set.
template <auto Member, ValueKind Kind = kindOfField<FieldOf<Member>>()>
auto* targetOf(Reading& reading) {
    auto* object = ownerOf<Member>(reading);
    if (reading.trace != nullptr && object != nullptr) {
        reading.trace->note<Member>(*object, std::same_as<OwnerOf<Member>, SquadRecord>, Kind);
    }
    return object;
}

/// The element made an entry; `alone`: and put away the former one.
inline void noteEntry(Reading& reading, bool alone = false) {
    if (reading.trace != nullptr) {
        reading.trace->noteEntry(reading.node->name, alone);
    }
}

inline void judge(Reading& reading, bool understood) {
    if (reading.trace != nullptr) {
        reading.trace->judge(understood);
    }
}

inline void convert(std::string_view text, bool& field) {
    field = text == Yes;
}
inline void convert(std::string_view text, double& field) {
    field = toReal(text);
}
template <std::integral Integer>
void convert(std::string_view text, Integer& field) {
    field = toClamped<Integer>(text);
}
template <std::size_t Capacity>
void convert(std::string_view text, FixedString<Capacity>& field) {
    field = text;
}
/// A thickness alone, or a thickness, "@" and an angle.
inline void convert(std::string_view text, ArmourPlate& field) {
    const std::size_t at = text.find('@');
    field.thickness = toInteger(text);
    field.angle = at == std::string_view::npos ? 0 : toInteger(text.substr(at + 1));
}

/// Sets members from the element's text, by their types.
template <auto... Members>
void set(Reading& reading, std::string_view text) {
    const auto setOne = [&]<auto Member>() {
        if (auto* object = targetOf<Member>(reading)) {
            convert(text, object->*Member);
        }
    };
    (setOne.template operator()<Members>(), ...);
}

template <auto Member>
void setImage(Reading& reading, std::string_view text) {
    if (auto* object = targetOf<Member, ValueKind::Image>(reading)) {
        object->*Member = imageNameOf(text);
    }
}

template <auto Member>
void setUniformImage(Reading& reading, std::string_view text) {
    SquadRecord* record = targetOf<Member, ValueKind::Image>(reading);
    record->*Member = isDefaultImage(text) ? DefaultImageName : imageNameOf(text);
}

inline void setUniformName(Reading& reading, std::string_view text) {
    SquadRecord* record = targetOf<&SquadRecord::uniformName>(reading);
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
    targetOf<&SquadRecord::quality>(reading)->quality =
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
    if (VehicleRecord* vehicle = targetOf<&VehicleRecord::engineMount>(reading)) {
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
    VehicleRecord& vehicle = *targetOf<&VehicleRecord::engineName>(reading);
    if (!text.starts_with(EnginePrefix)) {
        vehicle.engineName = text;
        return;
    }
    const EngineRow* row = findEngine(text);
    vehicle.engineName = row != nullptr ? row->name : std::string_view();
    judge(reading, row != nullptr);
    if (row != nullptr) {
        targetOf<&VehicleRecord::horsepower>(reading)->horsepower = row->horsepower;
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
    auto* object = ownerOf<List>(reading);
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

template <auto Member>
void setLimit(Reading& reading, std::string_view text) {
    set<Member>(reading, text);
    if (auto* object = targetOf<Member>(reading)) {
        // A fixed weapon's limits always apply, without a flag.
        if constexpr (std::same_as<typename MemberOf<decltype(Member)>::Owner, ComponentRecord>) {
            object->limitedTraverse = object->kind == ComponentKind::Turret;
        } else {
            object->limitedTraverse = true;
        }
    }
}

/// The older limits count from straight ahead: to the left negative, to the right positive.
template <auto Member>
void setLimitFromNegative(Reading& reading, std::string_view text) {
    setLimit<Member>(reading, text);
    if (auto* object = targetOf<Member>(reading)) {
        const std::int32_t value = object->*Member;
        const bool negatable = value != std::numeric_limits<std::int32_t>::min();
        object->*Member = std::max(0, negatable ? -value : std::numeric_limits<std::int32_t>::max());
    }
}

template <auto Member>
void setLimitFromPositive(Reading& reading, std::string_view text) {
    setLimit<Member>(reading, text);
    if (auto* object = targetOf<Member>(reading)) {
        object->*Member = std::max(0, object->*Member);
    }
}

template <auto Member, bool SmokeDischargerRecord::*Given = nullptr>
void setDirection(Reading& reading, std::string_view text) {
    set<Member>(reading, text);
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
            reading.trace->noteItem(fieldId<&CrewManRecord::weapons>(), reading.man->weapons.back());
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
    if (WeaponMountRecord* weapon = targetOf<&WeaponMountRecord::offsetAngle>(reading)) {
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

} // namespace varrocade::unit_rules
