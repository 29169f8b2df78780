#pragma once
// The folders that pictures are looked for in.

#include "data/unit/image_folders.h"

#include <array>
#include <string_view>

namespace varrocade::picture_folders {

inline constexpr auto All = std::to_array<std::string_view>(
    {image_folder::Units, image_folder::Hulls, image_folder::Turrets, image_folder::Destroyed,
     image_folder::Profiles, image_folder::Uniforms, image_folder::Tracers, image_folder::StaticFlags});

} // namespace varrocade::picture_folders
