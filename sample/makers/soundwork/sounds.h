#pragma once
// The sounds by group. Each name is the one that weapon and aircraft files use, without ".wav".

#include "synthesis.h"

#include <string_view>
#include <vector>

namespace soundwork {

struct NamedSound {
    std::string_view name;
    Sound sound;
};

/// Single shots and bursts, from the pistol to the howitzer, and launches.
void addShots(std::vector<NamedSound>& sounds);
/// Explosions, reloading, ejected cases and clips.
void addEffects(std::vector<NamedSound>& sounds);
/// Aircraft and helicopters, each a loop without a seam.
void addEngines(std::vector<NamedSound>& sounds);
/// What men call, in the folder Voices.
void addVoices(std::vector<NamedSound>& sounds);

} // namespace soundwork
