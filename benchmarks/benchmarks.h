#pragma once

#include "contest.h"

#include <cstddef>

namespace varrocade::benchmarks {

/// How many units the parsing and the loading are measured with.
inline constexpr std::size_t UnitCount = 2000;
inline constexpr std::size_t WeaponCount = 600;

/// The tag tree's parser against pugixml's, both building their trees in memory.
ContestResult parsingContest(std::size_t rounds);

/// Reading unit files into records against only opening and reading the files.
ContestResult loadingContest(std::size_t rounds);

/// The same from the disk, as after a start of the machine: the system's copies of the files in memory are
/// dropped before each turn, and the clock on the wall counts.
ContestResult coldLoadingContest(std::size_t rounds);

/// Loading the weapon catalogue against only opening and reading its files.
ContestResult catalogueContest(std::size_t rounds);

} // namespace varrocade::benchmarks
