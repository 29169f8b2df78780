#pragma once

#include <string_view>

namespace varrocade {

inline constexpr std::string_view ImageEnding = ".png";
/// The image name that stands for the default one of the nationality.
inline constexpr std::string_view DefaultImageName = "Default";

/// An image name as records hold it: without its ".png", in whatever case that is written.
std::string_view imageNameOf(std::string_view text);

/// Whether a text is "Default" or "Default.png" in any letter case.
bool isDefaultImage(std::string_view text);

} // namespace varrocade
