#include "data/unit/older_words.h"

#include "data/unit/enumerations.h"

#include <algorithm>
#include <array>
#include <utility>

namespace varrocade {

namespace {

/// Words that files had once, and what they are today.
constexpr auto OlderWords = std::to_array<std::pair<std::string_view, std::string_view>>({
    {QualityRaw, QualityUntrained},
    {"NATIONALITY_ARMENIA", "NATIONALITY_ARMENIAN"},
    {"NATIONALITY_AZERBAIJAN", "NATIONALITY_AZERBAIJANI"},
    {"NATIONALITY_FINLAND", "NATIONALITY_FINNISH"},
    {"NATIONALITY_KUWATI", "NATIONALITY_KUWAITI"},
});

} // namespace

std::string_view todaysWord(std::string_view word) {
    const auto older = std::find_if(OlderWords.begin(), OlderWords.end(),
                                    [word](const auto& row) { return row.first == word; });
    return older == OlderWords.end() ? word : older->second;
}

} // namespace varrocade
