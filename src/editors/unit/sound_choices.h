#pragma once
// The sounds of a game, by the names that weapon files have for them.

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// The names of the sounds below each of `bases`, each once, sorted. Bases end in a backslash.
std::vector<std::string> soundChoices(std::span<const std::string> bases);

/// The file of a sound in the first of the folders that has it, or empty.
std::string soundPath(std::span<const std::string> bases, std::string_view name);

} // namespace varrocade
