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

/// Spreadsheets of all units and weapons, on all cores, against loading their records on one; the clock on
/// the wall counts.
ContestResult sheetsContest(std::size_t rounds);

/// The lists of used and unused pictures, and the check for unused files, against loading all records and
/// listing the pictures, in the same way.
ContestResult usageContest(std::size_t rounds);
ContestResult unusedContest(std::size_t rounds);

/// The same on one core, in processor time.
ContestResult singleSheetsContest(std::size_t rounds);
ContestResult singleUsageContest(std::size_t rounds);
ContestResult singleUnusedContest(std::size_t rounds);

/// How many vehicles thumbnails are made of.
inline constexpr std::size_t ThumbnailCount = 2000;

/// Thumbnails and sheets of vehicles with five pictures each, on one thread, against decoding the pictures
/// and encoding the thumbnails and sheets only.
ContestResult thumbnailContest(std::size_t rounds);

/// The same on one thread against two, by the clock on the wall: how many times faster two are.
ContestResult thumbnailThreadContest(std::size_t rounds);

/// Checking a folder of so many units and weapons, on all cores, against loading its files on one; the clock
/// on the wall counts.
ContestResult checkingContest(std::size_t rounds);

/// The same on one core, in processor time.
ContestResult singleCheckingContest(std::size_t rounds);

/// Reading 4 MB of entries too many, and finding what a save would lose of them, against four files of 1 MB:
/// four times as long where the time grows with the square of the size.
ContestResult weaponLeftOutContest(std::size_t rounds);
ContestResult unitLeftOutContest(std::size_t rounds);

} // namespace varrocade::benchmarks
