#pragma once
// The files of a walk divided among threads, so that what they come to can be put together in the files'
// order.

#include "data/game_files.h"

#include <cstddef>
#include <vector>

namespace varrocade {

/// Neighbours among the files of one category.
struct FileShare {
    Category category;
    std::size_t first; ///< the place of the first one among all files
    GameFileWalk walk;
};

/// Divides each category into `parts` shares of like size, since its files cost much the same to read. They
/// come in the files' order. Files of a category must stand together.
std::vector<FileShare> shareFiles(const std::vector<GameFile>& files, std::size_t parts);

/// What could not be read, in the files' order.
void appendFailures(std::vector<FileFailure>& failures, const std::vector<FileShare>& shares);

} // namespace varrocade
