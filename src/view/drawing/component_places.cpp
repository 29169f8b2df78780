#include "view/drawing/component_places.h"

#include "view/drawing/drawing_angles.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace varrocade {

namespace {

bool isOfComponent(PartKind kind) {
    switch (kind) {
    case PartKind::Component:
    case PartKind::Armour:
    case PartKind::Weapon:
    case PartKind::Ammunition:
    case PartKind::Discharger:
    case PartKind::CrewMan:
        return true;
    default:
        return false;
    }
}

FormerPlaces unchangedPlaces(std::size_t count) {
    FormerPlaces places(count);
    std::iota(places.begin(), places.end(), std::size_t{0});
    return places;
}

} // namespace

FormerPlaces swappedPlaces(std::size_t count, std::size_t a, std::size_t b) {
    FormerPlaces places = unchangedPlaces(count);
    std::swap(places[a], places[b]);
    return places;
}

FormerPlaces placesWithout(std::size_t count, std::size_t removed) {
    FormerPlaces places = unchangedPlaces(count);
    places.erase(places.begin() + static_cast<std::ptrdiff_t>(removed));
    return places;
}

FormerPlaces placesBetween(std::span<const ComponentRecord> before, std::span<const ComponentRecord> after) {
    FormerPlaces places(after.size(), NewPlace);
    std::vector<bool> isTaken(before.size(), false);
    const auto take = [&](std::size_t place, std::size_t former) {
        if (former < before.size() && !isTaken[former] && places[place] == NewPlace) {
            places[place] = former;
            isTaken[former] = true;
        }
    };
    // What stayed in its place first, or one of two alike would be taken for the other.
    for (std::size_t i = 0; i < after.size(); ++i) {
        if (i < before.size() && before[i] == after[i]) {
            take(i, i);
        }
    }
    for (std::size_t i = 0; i < after.size(); ++i) {
        for (std::size_t former = 0; former < before.size(); ++former) {
            if (!isTaken[former] && before[former] == after[i]) {
                take(i, former);
            }
        }
    }
    for (std::size_t i = 0; i < after.size(); ++i) {
        take(i, i);
    }
    return places;
}

void carryTurns(std::vector<double>& turns, const FormerPlaces& places) {
    std::vector<double> carried;
    carried.reserve(places.size());
    for (const std::size_t former : places) {
        carried.push_back(turnOf(turns, former));
    }
    turns = std::move(carried);
}

UnitPart carriedPart(const UnitPart& part, const FormerPlaces& places) {
    if (!isOfComponent(part.kind)) {
        return part;
    }
    const auto place = std::find(places.begin(), places.end(), part.component);
    if (place == places.end()) {
        return {};
    }
    UnitPart carried = part;
    carried.component = static_cast<std::size_t>(place - places.begin());
    return carried;
}

} // namespace varrocade
