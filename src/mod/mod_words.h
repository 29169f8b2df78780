#pragma once
// The words of a mod's settings, and its colours as text.

#include "mod/mod_record.h"

#include <span>
#include <string>
#include <string_view>

namespace varrocade {

inline constexpr std::string_view SidePrefix = "SIDE_";

/// The two sides of the war, and neither.
std::span<const std::string_view> sideNames();

/// The categories of units, without weapons, as the command line calls them.
std::span<const std::string_view> unitCategoryWords();

/// A colour as files have it: "239 226 191", from red to blue.
std::string valueText(const Rgb& colour);
/// The same read leniently: whole numbers with anything between them, those that are missing are 0, those
/// that are too large 255.
void convert(std::string_view text, Rgb& colour);

} // namespace varrocade
