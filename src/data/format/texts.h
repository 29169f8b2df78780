#pragma once
// Characters and texts as the files have them: 8 bits, letters of ASCII.

#include <algorithm>
#include <string>
#include <string_view>

namespace varrocade {

/// What the format strips at the ends of lines.
inline constexpr std::string_view Blanks = " \t";

constexpr bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

constexpr char lowered(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

inline std::string loweredText(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), lowered);
    return result;
}

/// Compares as file names of the game's system are, letter case aside.
constexpr bool equalsIgnoringCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return lowered(x) == lowered(y); });
}

/// Less than 0, 0 or more, as `std::string_view::compare` of both in small letters.
constexpr int compareIgnoringCase(std::string_view a, std::string_view b) {
    for (std::size_t i = 0; i < a.size() && i < b.size(); ++i) {
        const auto x = static_cast<unsigned char>(lowered(a[i]));
        const auto y = static_cast<unsigned char>(lowered(b[i]));
        if (x != y) {
            return x < y ? -1 : 1;
        }
    }
    return static_cast<int>(a.size() > b.size()) - static_cast<int>(a.size() < b.size());
}

/// Without the blanks at its ends.
constexpr std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(Blanks);
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(Blanks) - first + 1);
}

} // namespace varrocade
