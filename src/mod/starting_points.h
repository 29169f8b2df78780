#pragma once
// What a new mod can begin with.

#include "mod/mod_record.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace varrocade {

/// In the order in which they are offered.
enum class StartingPoint : std::uint8_t { SecondWorldWar, FirstWorldWar, ColdWar, Today };

/// What they are called, in that order.
std::span<const std::string_view> startingPointNames();

/// The settings of a war: its years and who takes part on which side, with names, ranks, surnames and the
/// game's uniforms. Equipment is left out, since it follows from the game's units.
ModSettings startingSettings(StartingPoint point);

/// Adds to a nationality what is known of it and not given yet: its names, ranks, surnames and uniform.
void completeNationality(ModNationality& nation);

} // namespace varrocade
