#include "mod/mod_words.h"

#include "data/category.h"
#include "data/format/numbers.h"

#include <algorithm>
#include <array>

namespace varrocade {

namespace {

constexpr auto Sides = std::to_array<std::string_view>({"SIDE_FIRST", "SIDE_SECOND", "SIDE_NEUTRAL"});

constexpr std::string_view DecimalDigits = "0123456789";

} // namespace

std::span<const std::string_view> sideNames() {
    return Sides;
}

std::span<const std::string_view> unitCategoryWords() {
    static const std::array<std::string_view, CategoryCount - 1> words = {
        categoryWord(Category::Vehicles), categoryWord(Category::AtGuns), categoryWord(Category::Infantry),
        categoryWord(Category::Aircraft)};
    return words;
}

std::string valueText(const Rgb& colour) {
    std::string text;
    for (const std::uint8_t part : {colour.red, colour.green, colour.blue}) {
        if (!text.empty()) {
            text += ' ';
        }
        appendInteger(text, part);
    }
    return text;
}

void convert(std::string_view text, Rgb& colour) {
    for (std::uint8_t* part : {&colour.red, &colour.green, &colour.blue}) {
        text.remove_prefix(std::min(text.find_first_of(DecimalDigits), text.size()));
        *part = toClamped<std::uint8_t>(text);
        text.remove_prefix(std::min(text.find_first_not_of(DecimalDigits), text.size()));
    }
}

} // namespace varrocade
