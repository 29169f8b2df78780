#pragma once
// How a vehicle runs and what it is built for, as far as its figures depend on that.

#include "data/unit/unit_record.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace varrocade {

enum class RunningGear : std::uint8_t { Tracked = 0, HalfTracked = 1, Wheeled = 2 };
inline constexpr std::size_t RunningGearCount = 3;

/// "tracked", "half-tracked", "wheeled"
std::string_view runningGearName(RunningGear gear);

/// Bodies that weigh alike for their size.
enum class BodyKind : std::uint8_t {
    Tank = 0,
    AssaultGun = 1, ///< tracked, its gun in the hull or under open sky
    Carrier = 2,    ///< tracked, with room for infantry or load
    HalfTrack = 3,
    ArmouredCar = 4, ///< wheeled, whatever it carries
    Lorry = 5,       ///< wheeled, without armour
};
inline constexpr std::size_t BodyKindCount = 6;

/// From the unit's type and its steering. Steering by front wheels or of a half-track is believed; the
/// others, of which one is what a file without `steering` has, leave it to the type: armoured cars and
/// lorries have wheels, half-tracks half-tracks.
RunningGear runningGearOf(std::string_view type, std::string_view steering);

BodyKind bodyKindOf(const SquadRecord& unit, RunningGear gear);

} // namespace varrocade
