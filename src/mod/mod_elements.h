#pragma once
// The elements of "Mod.txt" that hold others. Those that hold a value stand with their fields.

#include <string_view>

namespace varrocade::mod_element {

inline constexpr std::string_view Mod = "mod";
inline constexpr std::string_view Years = "years";
inline constexpr std::string_view Credits = "credits";
inline constexpr std::string_view CreditLine = "line";
inline constexpr std::string_view Colours = "colours";
inline constexpr std::string_view Nationality = "nationality";
inline constexpr std::string_view Allegiance = "allegiance";
inline constexpr std::string_view Surnames = "surnames";
inline constexpr std::string_view Surname = "surname";
inline constexpr std::string_view Uniform = "uniform";
inline constexpr std::string_view Ranks = "ranks";
inline constexpr std::string_view Rank = "rank";
inline constexpr std::string_view Equipment = "equipment";
inline constexpr std::string_view Unit = "unit";

} // namespace varrocade::mod_element
