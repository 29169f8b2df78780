#include "app/workspace/record/unsaved_moves.h"

#include "view/drawing/component_places.h"
#include "view/drawing/part_positions.h"

namespace varrocade {

namespace {

/// The weapons' positions of a component whose weapons are still the same ones.
void takeWeaponPositions(SquadRecord& unit, std::size_t component, const SquadRecord& saved,
                         std::size_t former) {
    const std::size_t count = unit.vehicle->components[component].weapons.size();
    if (count != saved.vehicle->components[former].weapons.size()) {
        return;
    }
    for (std::size_t i = 0; i < count; ++i) {
        takePosition(unit, {PartKind::Weapon, component, i}, saved, {PartKind::Weapon, former, i});
    }
}

void takeWeaponPositions(SquadRecord& unit, const SquadRecord& saved) {
    if (unit.vehicle && saved.vehicle) {
        const FormerPlaces places = placesBetween(saved.vehicle->components, unit.vehicle->components);
        for (std::size_t i = 0; i < places.size(); ++i) {
            if (places[i] != NewPlace) {
                takeWeaponPositions(unit, i, saved, places[i]);
            }
        }
    } else if (unit.aircraft && saved.aircraft &&
               unit.aircraft->weapons.size() == saved.aircraft->weapons.size()) {
        for (std::size_t i = 0; i < unit.aircraft->weapons.size(); ++i) {
            takePosition(unit, {PartKind::Weapon, 0, i}, saved, {PartKind::Weapon, 0, i});
        }
    }
}

void takeExhaustPositions(SquadRecord& unit, const SquadRecord& saved) {
    if (unit.vehicle && saved.vehicle &&
        unit.vehicle->exhaustPipes.size() == saved.vehicle->exhaustPipes.size()) {
        for (std::size_t i = 0; i < unit.vehicle->exhaustPipes.size(); ++i) {
            takePosition(unit, {PartKind::Exhaust, 0, i}, saved, {PartKind::Exhaust, 0, i});
        }
    }
}

} // namespace

RecordState withoutMoves(const OpenRecord& open) {
    RecordState state = open.present;
    auto* unit = std::get_if<SquadRecord>(&state.record);
    const auto* saved = std::get_if<SquadRecord>(&open.saved.record);
    if (unit == nullptr || saved == nullptr) {
        return state;
    }
    if (open.weaponPosChanged()) {
        takeWeaponPositions(*unit, *saved);
        state.weaponMove = open.saved.weaponMove;
    }
    if (open.exhaustPosChanged()) {
        takeExhaustPositions(*unit, *saved);
        state.exhaustMove = open.saved.exhaustMove;
    }
    return state;
}

} // namespace varrocade
