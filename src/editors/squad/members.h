#pragma once
// The members of a squad as one list: its men, and its heavy weapon wherever it stands among them.

#include "data/unit/unit_record.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace varrocade {

/// The places of members in the list, from 0, in order.
using MemberPlaces = std::vector<std::size_t>;

std::size_t memberCount(const SquadRecord& squad);

/// Whether the heavy weapon stands at this place.
bool isHeavyPlace(const SquadRecord& squad, std::size_t place);

/// The place of the heavy weapon, which there must be, and of a man by his place among the men.
std::size_t heavyPlace(const SquadRecord& squad);
std::size_t placeOfMan(const SquadRecord& squad, std::size_t man);

/// The man at a place, by his place among the men; nothing where the heavy weapon stands or nobody.
std::optional<std::size_t> manAt(const SquadRecord& squad, std::size_t place);

/// A line of the list: "3. Squad leader: Rifle Kar98K, 2 kinds of ammunition".
std::string memberLine(const SquadRecord& squad, std::size_t place);

/// How many men fit in yet.
std::size_t roomForMen(const SquadRecord& squad);

/// Adds men like this one behind a member, or at the end where `behind` is nothing, as many as fit; returns
/// the places of those that were added.
MemberPlaces addMen(SquadRecord& squad, const CrewManRecord& man, std::size_t count,
                    std::optional<std::size_t> behind);

/// Adds a new heavy weapon at the end. There must be none yet.
void addHeavyWeapon(SquadRecord& squad);

/// Deletes members.
void deleteMembers(SquadRecord& squad, std::span<const std::size_t> places);

/// Moves members up or down by one place; false where one of them stands at that end already. Returns the
/// places where they stand then through `places`.
bool moveMembers(SquadRecord& squad, MemberPlaces& places, bool upwards);

} // namespace varrocade
