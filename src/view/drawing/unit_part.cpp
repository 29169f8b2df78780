#include "view/drawing/unit_part.h"

#include "data/unit/component_words.h"
#include "data/unit/enumerations.h"

namespace varrocade {

namespace {

const ComponentRecord* componentOf(const SquadRecord& unit, const UnitPart& part) {
    return unit.vehicle && part.component < unit.vehicle->components.size()
               ? &unit.vehicle->components[part.component]
               : nullptr;
}

/// How many parts of the kind there are beside this one.
std::size_t countAround(const SquadRecord& unit, const UnitPart& part) {
    const ComponentRecord* component = componentOf(unit, part);
    switch (part.kind) {
    case PartKind::Weapon: {
        const auto* weapons = weaponsAround(unit, part);
        return weapons != nullptr ? weapons->size() : 0;
    }
    case PartKind::Discharger:
        return component != nullptr ? component->smokeDischargers.size() : 0;
    case PartKind::CrewMan:
        return component != nullptr ? component->crew.size() : 0;
    case PartKind::Exhaust:
        return unit.vehicle ? unit.vehicle->exhaustPipes.size() : 0;
    case PartKind::Man:
        return unit.infantrymen.size();
    case PartKind::Rotor:
        return unit.aircraft ? unit.aircraft->rotorBlades.size() : 0;
    default:
        return 0;
    }
}

} // namespace

const std::vector<WeaponMountRecord>* weaponsAround(const SquadRecord& unit, const UnitPart& part) {
    if (const ComponentRecord* component = componentOf(unit, part)) {
        return &component->weapons;
    }
    if (unit.heavyWeapon) {
        return &unit.heavyWeapon->weapons;
    }
    return unit.aircraft ? &unit.aircraft->weapons : nullptr;
}

bool isSameShown(const UnitPart& a, const UnitPart& b) {
    const auto isComponent = [](const UnitPart& part) {
        return part.kind == PartKind::Component || part.kind == PartKind::Armour;
    };
    return isComponent(a) && isComponent(b) ? a.component == b.component : a == b;
}

bool hasPart(const SquadRecord& unit, const UnitPart& part) {
    switch (part.kind) {
    case PartKind::None:
        return false;
    case PartKind::Details:
    case PartKind::Availability:
        return true;
    case PartKind::Drive:
        return unit.vehicle.has_value();
    case PartKind::Component:
    case PartKind::Armour:
        return componentOf(unit, part) != nullptr;
    case PartKind::Ammunition:
        return weaponsAround(unit, part) != nullptr;
    case PartKind::HeavyWeapon:
        return unit.heavyWeapon.has_value();
    case PartKind::Aircraft:
        return unit.aircraft.has_value();
    default:
        return part.index < countAround(unit, part);
    }
}

std::string weaponOf(const SquadRecord& unit, const UnitPart& part) {
    return part.kind == PartKind::Weapon && hasPart(unit, part)
               ? (*weaponsAround(unit, part))[part.index].type.str()
               : std::string();
}

std::string partName(const SquadRecord& unit, const UnitPart& part) {
    if (!hasPart(unit, part)) {
        return {};
    }
    const std::string number = std::to_string(part.index + 1);
    switch (part.kind) {
    case PartKind::Component:
        return componentLine(part.component + 1, *componentOf(unit, part));
    case PartKind::Armour:
        return "Armour";
    case PartKind::Weapon:
        return weaponWord((*weaponsAround(unit, part))[part.index].type);
    case PartKind::Ammunition:
        return "Ammunition";
    case PartKind::Discharger:
        return "Smoke discharger " + number;
    case PartKind::CrewMan:
        return shownWord(componentOf(unit, part)->crew[part.index].job, JobPrefix, jobNames());
    case PartKind::Exhaust:
        return "Exhaust pipe " + number;
    case PartKind::Man:
        return number + ". " + squadJobWord(unit.infantrymen[part.index].job);
    case PartKind::Rotor:
        return "Rotor " + number;
    case PartKind::HeavyWeapon:
        return "Heavy weapon";
    case PartKind::Aircraft:
        return "Aircraft";
    case PartKind::Drive:
        return "Drive";
    case PartKind::Availability:
        return "Availability";
    default:
        return "Details";
    }
}

} // namespace varrocade
