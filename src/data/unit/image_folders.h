#pragma once
// Where the game keeps its pictures, by what they show, and its sounds.

#include <string_view>

namespace varrocade::image_folder {

inline constexpr std::string_view Grid = "Images\\grid.png";
inline constexpr std::string_view Units = "Images\\Units\\";
inline constexpr std::string_view Hulls = "Images\\Units\\Vehicles\\Hulls\\";
inline constexpr std::string_view Turrets = "Images\\Units\\Vehicles\\Turrets\\";
inline constexpr std::string_view Destroyed = "Images\\Units\\Vehicles\\Destroyed\\";
inline constexpr std::string_view Profiles = "Images\\Units\\Vehicles\\Profiles\\";
inline constexpr std::string_view Uniforms = "Images\\Uniforms\\";
inline constexpr std::string_view Tracers = "Images\\Tracers\\";
inline constexpr std::string_view StaticFlags = "Images\\Flags\\Static\\";
inline constexpr std::string_view AnimatedFlags = "Images\\Flags\\Animated\\";

} // namespace varrocade::image_folder

namespace varrocade {

inline constexpr std::string_view SoundFolder = "Sounds\\";
/// Files name sounds without it.
inline constexpr std::string_view SoundEnding = ".wav";

/// A folder of pictures and what the names begin with that belong to a field.
struct ImageSource {
    std::string_view folder;
    std::string_view prefix = {};
};

} // namespace varrocade
