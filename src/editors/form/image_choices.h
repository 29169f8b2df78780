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

} // namespace varrocade
