#include "data/category.h"

#include <algorithm>

namespace varrocade {

namespace {

struct CategoryRow {
    std::string_view name;
    std::string_view word;
};

constexpr std::array<CategoryRow, CategoryCount> Rows = {{
    {"Vehicles", "vehicles"},
    {"AT Guns", "atguns"},
    {"Infantry", "infantry"},
    {"Aircraft", "aircraft"},
    {"Weapons", "weapons"},
}};

const CategoryRow& rowOf(Category category) {
    return Rows[static_cast<std::size_t>(category)];
}

} // namespace

std::string_view categoryName(Category category) {
    return rowOf(category).name;
}

std::string_view categoryWord(Category category) {
    return rowOf(category).word;
}

std::optional<Category> categoryOfWord(std::string_view word) {
    const auto found = std::find_if(AllCategories.begin(), AllCategories.end(),
                                    [word](Category category) { return categoryWord(category) == word; });
    return found == AllCategories.end() ? std::nullopt : std::optional(*found);
}

std::string categoryFolder(std::string_view base, Category category) {
    std::string folder(base);
    folder += DataFolder;
    folder += categoryName(category);
    folder += '\\';
    return folder;
}

std::string dataFilePath(std::string_view base, Category category, std::string_view name) {
    std::string path = categoryFolder(base, category);
    path += name;
    path += DataFileEnding;
    return path;
}

} // namespace varrocade
