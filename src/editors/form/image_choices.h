#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// A folder of pictures below "Images\" and what their names begin with.
struct ImageSource {
    std::string_view folder;
    std::string_view prefix = {};
};

/// The names, without ".png", of the pictures in `sources` below each of `bases`, as the folders list them,
/// each name once.
std::vector<std::string> imageChoices(std::span<const std::string> bases,
                                      std::span<const ImageSource> sources);

} // namespace varrocade
