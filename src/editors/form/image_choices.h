#pragma once

#include "data/unit/image_folders.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// The names, without ".png", of the pictures in `sources` below each of `bases`, as the folders list them,
/// each name once.
std::vector<std::string> imageChoices(std::span<const std::string> bases,
                                      std::span<const ImageSource> sources);

/// The same, but the pictures of a part first, by how their names end (" gun"); where `ending` is empty,
/// those that are of no part.
std::vector<std::string> partChoices(std::span<const std::string> bases, std::span<const ImageSource> sources,
                                     std::string_view ending);

} // namespace varrocade
