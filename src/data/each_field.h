#pragma once
// Looping over all values of a unit, with the path to each: what checks, differences and tables are made of.

#include "data/unit/elements.h"
#include "data/unit_fields.h"

#include <array>
#include <concepts>
#include <string>
#include <string_view>
#include <tuple>

namespace varrocade {

/// The way to a value: a chain of steps, good as long as the value is visited. Most values are only looked at
/// and nobody asks for their paths, which become texts only then.
class FieldPath {
public:
    struct Step {
        const Step* around = nullptr; ///< null for the outermost
        std::string_view name = {};
        std::size_t number = 0; ///< of an entry, from 1; 0 for what is there once
    };
    /// Nothing lies deeper.
    static constexpr std::size_t MostSteps = 8;

    FieldPath() = default;
    explicit FieldPath(const Step* last) : last_(last) {}

    /// Such as "vehicle.turret[2].armour.mantlet"; entries count from 1.
    [[nodiscard]] std::string text() const;
    /// Whether that is its text, without making it.
    bool operator==(std::string_view text) const;

private:
    friend class KeptPath;

    const Step* last_ = nullptr;
};

/// The steps of a path, to know it again in another record.
class KeptPath {
public:
    KeptPath() = default;
    explicit KeptPath(FieldPath path);
    /// Whether a path has these steps. Their texts are not read: a path whose names lie elsewhere in the
    /// memory is taken for another one.
    [[nodiscard]] bool isKnown(FieldPath path) const {
        const FieldPath::Step* step = path.last_;
        for (std::size_t i = 0; i < count_; ++i, step = step->around) {
            if (step == nullptr || step->name.data() != steps_[i].name || step->number != steps_[i].number) {
                return false;
            }
        }
        return step == nullptr;
    }

private:
    struct Step {
        const char* name;
        std::size_t number;
    };

    std::array<Step, FieldPath::MostSteps> steps_ = {}; ///< the last one first
    std::size_t count_ = 0;
};

/// One value of a record while it is visited.
struct FieldPlace {
    FieldPath path;
    const FieldInfo& field;
    Holder holder; ///< of the record that the value belongs to
    Holder around; ///< of what that stands in, where it matters; otherwise the same

    /// Whether the file of this record has the value. One that is not stored is lost with saving.
    [[nodiscard]] bool isStored() const { return field.isStoredBy(holder, around); }
};

/// The element of a component or a heavy weapon.
std::string_view elementOf(ComponentKind kind);
std::string_view elementOf(HeavyWeaponKind kind);
/// What holds the fields of a component or a heavy weapon: its kind.
Holder holderOf(ComponentKind kind);
Holder holderOf(HeavyWeaponKind kind);
/// The file that a unit is written to.
Holder holderOf(const SquadRecord& unit);

namespace each_field {

/// A step of the way for as long as the object lives.
class Descent {
public:
    Descent(const FieldPath::Step*& last, std::string_view name, std::size_t number = 0)
        : last_(last), step_{last, name, number} {
        last = &step_;
    }
    ~Descent() { last_ = step_.around; }
    Descent(const Descent&) = delete;
    Descent& operator=(const Descent&) = delete;

private:
    const FieldPath::Step*& last_;
    FieldPath::Step step_;
};

/// The walk over a record and what it holds. `Visit` takes a `FieldPlace` and a reference to the value.
template <typename Visit>
class Walk {
public:
    explicit Walk(Visit& visit) : visit_(visit) {}

    template <typename Unit>
    void unit(Unit& unit) {
        const Holder file = holderOf(unit);
        values(unit, file);
        list(unit.availability, element::Availability, file);
        if (unit.vehicle) {
            const Descent step(last_, element::Vehicle);
            vehicle(*unit.vehicle, file);
        }
        men(unit.infantrymen, Holder::Infantryman);
        if (unit.heavyWeapon) {
            const Descent step(last_, elementOf(unit.heavyWeapon->kind));
            const Holder holder = holderOf(unit.heavyWeapon->kind);
            values(*unit.heavyWeapon, holder);
            armament(*unit.heavyWeapon, holder);
        }
        if (unit.aircraft) {
            const Descent step(last_, element::Aircraft);
            values(*unit.aircraft, Holder::AircraftFile);
            armament(*unit.aircraft, Holder::AircraftFile);
            list(unit.aircraft->rotorBlades, element::RotorBlades, Holder::AircraftFile);
        }
    }

    /// The fields of one record, without those of the records in it.
    template <typename Record>
    void values(Record& record, Holder holder) {
        values(record, holder, holder);
    }
    template <typename Record>
    void values(Record& record, Holder holder, Holder around) {
        std::apply([&](const auto&... fields) { (value(record, fields, holder, around), ...); },
                   fieldsOf<std::remove_const_t<Record>>);
    }

    /// The fields of an entry of a list.
    template <typename Record>
    void entry(Record& record, std::string_view name, std::size_t number, Holder holder, Holder around) {
        const Descent step(last_, name, number);
        values(record, holder, around);
    }

private:
    template <typename Record, typename FieldType>
    void value(Record& record, const FieldType& field, Holder holder, Holder around) {
        auto& value = field.of(record);
        if constexpr (std::is_same_v<const FieldType, decltype(field::PersonalWeapons)>) {
            for (std::size_t i = 0; i < value.size(); ++i) {
                const FieldPath::Step step{last_, element::Weapon, i + 1};
                visit_(FieldPlace{FieldPath(&step), field, holder, around}, value[i]);
            }
        } else {
            const FieldPath::Step step{last_, field.element};
            visit_(FieldPlace{FieldPath(&step), field, holder, around}, value);
        }
    }

    template <typename List>
    void list(List& entries, std::string_view name, Holder holder) {
        for (std::size_t i = 0; i < entries.size(); ++i) {
            entry(entries[i], name, i + 1, holder, holder);
        }
    }

    template <typename Armed>
    void armament(Armed& armed, Holder holder) {
        list(armed.weapons, element::Weapon, holder);
        list(armed.ammo, element::Ammo, holder);
    }

    template <typename Men>
    void men(Men& men, Holder holder) {
        for (std::size_t i = 0; i < men.size(); ++i) {
            const Descent step(last_, element::Man, i + 1);
            values(men[i], holder);
            list(men[i].ammo, element::Ammo, holder);
        }
    }

    template <typename Vehicle>
    void vehicle(Vehicle& vehicle, Holder file) {
        values(vehicle, file);
        list(vehicle.exhaustPipes, element::ExhaustPipe, file);
        std::array<std::size_t, 4> counts{};
        for (auto& component : vehicle.components) {
            const std::size_t number = ++counts.at(static_cast<std::size_t>(component.kind));
            const Descent step(last_, elementOf(component.kind), number);
            const Holder holder = holderOf(component.kind);
            values(component, holder);
            {
                const Descent armour(last_, element::Armour);
                values(component.armour, holder);
            }
            list(component.smokeDischargers, element::SmokeDischarger, holder);
            armament(component, holder);
            men(component.crew, Holder::CrewMan);
        }
    }

    Visit& visit_;
    const FieldPath::Step* last_ = nullptr; ///< on the way to where the walk is
};

} // namespace each_field

/// Visits every value of a unit, in the order of its records' members. `visit` is called with a `FieldPlace`
/// and a reference to the value, which it may change where the unit is not constant. The path is good until
/// it returns.
template <typename Unit, typename Visit>
requires std::same_as<std::remove_const_t<Unit>, SquadRecord>
void forEachField(Unit& unit, Visit&& visit) {
    each_field::Walk<Visit>(visit).unit(unit);
}

} // namespace varrocade
