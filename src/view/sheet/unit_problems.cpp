#include "view/sheet/unit_problems.h"

#include "data/each_field.h"
#include "data/format/numbers.h"
#include "data/unit/elements.h"
#include "weapons/weapon_elements.h"
#include "weapons/weapon_fields.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace varrocade {

namespace {

/// A step of a path: "turret[2]" is the name "turret" and the number 2, which counts from 1; 0 for none.
struct Step {
    std::string_view name;
    std::size_t number = 0;

    [[nodiscard]] std::size_t place() const { return number > 0 ? number - 1 : 0; }
};

Step takeStep(std::string_view& path) {
    const std::size_t end = std::min(path.find('.'), path.size());
    Step step{path.substr(0, end)};
    path.remove_prefix(std::min(path.size(), end + 1));
    const std::size_t bracket = step.name.find('[');
    if (bracket != std::string_view::npos) {
        step.number = static_cast<std::size_t>(toInteger(step.name.substr(bracket + 1)));
        step.name = step.name.substr(0, bracket);
    }
    return step;
}

constexpr std::size_t Nowhere = static_cast<std::size_t>(-1);

/// The place in the list of the component that a path counts among those of its kind.
std::size_t componentPlace(const VehicleRecord& vehicle, const Step& step) {
    std::size_t number = 0;
    for (std::size_t i = 0; i < vehicle.components.size(); ++i) {
        const bool isOfKind = elementOf(vehicle.components[i].kind) == step.name;
        if (isOfKind && ++number == step.number) {
            return i;
        }
    }
    return Nowhere;
}

UnitPart partOfComponent(std::size_t component, const Step& step) {
    constexpr std::pair<std::string_view, PartKind> kinds[] = {
        {element::Weapon, PartKind::Weapon},
        {element::Ammo, PartKind::Ammunition},
        {element::SmokeDischarger, PartKind::Discharger},
        {element::Man, PartKind::CrewMan},
        {element::Armour, PartKind::Armour}};
    for (const auto& [name, kind] : kinds) {
        if (step.name == name) {
            return {kind, component, kind == PartKind::Ammunition ? 0 : step.place()};
        }
    }
    return {PartKind::Component, component, 0};
}

UnitPart partOfVehicle(const VehicleRecord& vehicle, std::string_view path) {
    const Step step = takeStep(path);
    if (const std::size_t component = componentPlace(vehicle, step); component != Nowhere) {
        return partOfComponent(component, takeStep(path));
    }
    if (step.name == element::ExhaustPipe) {
        return {PartKind::Exhaust, 0, step.place()};
    }
    constexpr FieldId ofDetails[] = {&field::ProfileImage, &field::Weight, &field::CanMountInfantry,
                                     &field::Amphibious};
    const bool isOfDetails = std::any_of(std::begin(ofDetails), std::end(ofDetails),
                                         [&](FieldId field) { return field->element == step.name; });
    return {isOfDetails ? PartKind::Details : PartKind::Drive};
}

/// The field of a path, or null: what the path names need not be a value.
template <typename Record>
FieldId fieldAt(const Record& record, std::string_view path) {
    FieldId found = nullptr;
    forEachField(record, [&](const FieldPlace& place, const auto&) {
        if (found == nullptr && place.path == path) {
            found = &place.field;
        }
    });
    return found;
}

/// What follows a step of a name in a path, as "ammo[1].rounds" follows "man[2]."
std::string_view behind(std::string_view path, std::string_view name) {
    for (std::size_t at = 0; at < path.size();) {
        std::string_view rest = path.substr(at);
        const Step step = takeStep(rest);
        if (step.name == name) {
            return rest;
        }
        at = path.size() - rest.size();
    }
    return {};
}

} // namespace

FieldTarget targetOfField(const SquadRecord& record, std::string_view path) {
    FieldTarget target{.part = partOfField(record, path), .focus = {.field = fieldAt(record, path)}};
    UnitPart& part = target.part;
    if (part.kind == PartKind::Man || part.kind == PartKind::CrewMan) {
        std::string_view carried = behind(path, element::Man);
        const Step step = takeStep(carried);
        target.focus.carried = step.name == element::Weapon ? PartKind::Weapon
                               : step.name == element::Ammo ? PartKind::Ammunition
                                                            : PartKind::None;
        target.focus.carriedIndex = step.place();
        return target;
    }
    const bool mayCarry = part.kind == PartKind::Ammunition || part.kind == PartKind::HeavyWeapon ||
                          part.kind == PartKind::Aircraft;
    for (std::string_view rest = path; mayCarry && !rest.empty();) {
        const Step step = takeStep(rest);
        if (step.name == element::Ammo) {
            part = {PartKind::Ammunition, part.component, step.place()};
        }
    }
    if (part.kind == PartKind::Availability) {
        part.index = takeStep(path).place();
    }
    return target;
}

WeaponTarget targetOfField(const WeaponRecord& weapon, std::string_view path) {
    const FieldId field = fieldAt(weapon, path);
    const Step step = takeStep(path);
    return {step.number > 0 ? step.place() : 0, field};
}

UnitPart partOfField(const WeaponRecord& weapon, std::string_view path) {
    const Step step = takeStep(path);
    const bool isAmmo = step.name == weapon_element::Ammo && step.number > 0;
    return isAmmo && step.place() < weapon.ammoTypes.size() ? UnitPart{PartKind::Ammunition, 0, step.place()}
                                                            : UnitPart{PartKind::Details};
}

UnitPart partOfField(const SquadRecord& record, std::string_view path) {
    const Step step = takeStep(path);
    if (step.name == element::Vehicle && record.vehicle) {
        return partOfVehicle(*record.vehicle, path);
    }
    if (step.name == element::Availability) {
        return {PartKind::Availability};
    }
    if (step.name == element::Man) {
        return {PartKind::Man, 0, step.place()};
    }
    const bool isHeavy = record.heavyWeapon && step.name == elementOf(record.heavyWeapon->kind);
    if (isHeavy || step.name == element::Aircraft) {
        const Step part = takeStep(path);
        if (part.name == element::Weapon) {
            return {PartKind::Weapon, 0, part.place()};
        }
        if (part.name == element::RotorBlades) {
            return {PartKind::Rotor, 0, part.place()};
        }
        return {isHeavy ? PartKind::HeavyWeapon : PartKind::Aircraft};
    }
    return {PartKind::Details};
}

} // namespace varrocade
