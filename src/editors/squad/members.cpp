#include "editors/squad/members.h"

#include "data/unit/enumerations.h"
#include "editors/squad/heavy_weapon_form.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <variant>

namespace varrocade {

namespace {

/// A list of men in which the heavy weapon has a place like theirs.
using Members = std::vector<std::optional<CrewManRecord>>; ///< none: the heavy weapon

Members takeMembers(SquadRecord& squad) {
    Members members;
    for (std::size_t place = 0; place < memberCount(squad); ++place) {
        const auto man = manAt(squad, place);
        members.push_back(man ? std::optional(std::move(squad.infantrymen[*man])) : std::nullopt);
    }
    return members;
}

void putMembers(SquadRecord& squad, Members members) {
    const auto heavy = std::find(members.begin(), members.end(), std::nullopt);
    if (heavy == members.end()) {
        squad.heavyWeapon.reset();
    }
    squad.heavyWeaponPlace = heavy == members.end() ? 0 : static_cast<std::size_t>(heavy - members.begin());
    squad.infantrymen.clear();
    for (std::optional<CrewManRecord>& member : members) {
        if (member) {
            squad.infantrymen.push_back(std::move(*member));
        }
    }
}

std::string listed(const std::vector<std::string>& words) {
    std::string text;
    for (const std::string& word : words) {
        text += (text.empty() ? "" : ", ") + word;
    }
    return text;
}

} // namespace

std::size_t memberCount(const SquadRecord& squad) {
    return squad.infantrymen.size() + (squad.heavyWeapon ? 1 : 0);
}

std::size_t heavyPlace(const SquadRecord& squad) {
    return std::min(squad.heavyWeaponPlace, squad.infantrymen.size());
}

bool isHeavyPlace(const SquadRecord& squad, std::size_t place) {
    return squad.heavyWeapon && place == heavyPlace(squad);
}

std::size_t placeOfMan(const SquadRecord& squad, std::size_t man) {
    return squad.heavyWeapon && man >= heavyPlace(squad) ? man + 1 : man;
}

std::optional<std::size_t> manAt(const SquadRecord& squad, std::size_t place) {
    if (place >= memberCount(squad) || isHeavyPlace(squad, place)) {
        return std::nullopt;
    }
    return squad.heavyWeapon && place > heavyPlace(squad) ? place - 1 : place;
}

std::string memberLine(const SquadRecord& squad, std::size_t place) {
    std::vector<std::string> arms;
    std::string who;
    if (const auto man = manAt(squad, place)) {
        who = squadJobWord(squad.infantrymen[*man].job);
        std::transform(squad.infantrymen[*man].weapons.begin(), squad.infantrymen[*man].weapons.end(),
                       std::back_inserter(arms), [](const Text& type) { return weaponWord(type); });
    } else {
        who = Codec<HeavyWeaponKind>::textOf(squad.heavyWeapon->kind, {});
        std::transform(squad.heavyWeapon->weapons.begin(), squad.heavyWeapon->weapons.end(),
                       std::back_inserter(arms),
                       [](const WeaponMountRecord& weapon) { return weaponWord(weapon.type); });
    }
    return std::to_string(place + 1) + ". " + who + ": " + (arms.empty() ? "no weapon" : listed(arms));
}

std::size_t roomForMen(const SquadRecord& squad) {
    return MaxSquadMembers - std::min(squad.infantrymen.size(), MaxSquadMembers);
}

MemberPlaces addMen(SquadRecord& squad, const CrewManRecord& man, std::size_t count,
                    std::optional<std::size_t> behind) {
    const std::size_t first = behind ? *behind + 1 : memberCount(squad);
    const std::size_t added = std::min(count, roomForMen(squad));
    const std::optional<CrewManRecord> member = man;
    Members members = takeMembers(squad);
    members.insert(members.begin() + static_cast<std::ptrdiff_t>(std::min(first, members.size())), added,
                   member);
    putMembers(squad, std::move(members));
    MemberPlaces places;
    for (std::size_t i = 0; i < added; ++i) {
        places.push_back(first + i);
    }
    return places;
}

void addHeavyWeapon(SquadRecord& squad) {
    squad.heavyWeapon.emplace();
    squad.heavyWeaponPlace = squad.infantrymen.size();
}

void deleteMembers(SquadRecord& squad, std::span<const std::size_t> places) {
    Members members = takeMembers(squad);
    for (std::size_t i = places.size(); i-- > 0;) {
        members.erase(members.begin() + static_cast<std::ptrdiff_t>(places[i]));
    }
    putMembers(squad, std::move(members));
}

bool moveMembers(SquadRecord& squad, MemberPlaces& places, bool upwards) {
    if (places.empty() || (upwards ? places.front() == 0 : places.back() + 1 >= memberCount(squad))) {
        return false;
    }
    Members members = takeMembers(squad);
    const auto step = [&](std::size_t& place) {
        const std::size_t other = upwards ? place - 1 : place + 1;
        std::swap(members[place], members[other]);
        place = other;
    };
    if (upwards) {
        std::for_each(places.begin(), places.end(), step);
    } else {
        std::for_each(places.rbegin(), places.rend(), step);
    }
    putMembers(squad, std::move(members));
    return true;
}

} // namespace varrocade
