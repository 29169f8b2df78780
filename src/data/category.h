#pragma once
// The five kinds of data files and where they lie.

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace varrocade {

enum class Category : std::uint8_t { Vehicles = 0, AtGuns = 1, Infantry = 2, Aircraft = 3, Weapons = 4 };

inline constexpr std::size_t CategoryCount = 5;

inline constexpr std::array<Category, CategoryCount> AllCategories = {
    Category::Vehicles, Category::AtGuns, Category::Infantry, Category::Aircraft, Category::Weapons};

inline constexpr std::string_view DataFolder = "Data\\";
inline constexpr std::string_view DataFileEnding = ".txt";

/// The name on the category's button, which is also its folder under "Data\".
std::string_view categoryName(Category category);

/// The category's name on the command line, such as "atguns".
std::string_view categoryWord(Category category);
std::optional<Category> categoryOfWord(std::string_view word);

/// Base + "Data\" + the category's folder, with its backslash. `base` ends in a backslash.
std::string categoryFolder(std::string_view base, Category category);

/// The data file of a unit or weapon under `base`.
std::string dataFilePath(std::string_view base, Category category, std::string_view name);

} // namespace varrocade
