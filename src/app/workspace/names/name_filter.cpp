#include "app/workspace/names/name_filter.h"

#include "data/format/texts.h"
#include "data/unit/enumerations.h"

namespace varrocade {

namespace {

bool containsIgnoringCase(std::string_view text, std::string_view part) {
    for (std::size_t i = 0; i + part.size() <= text.size(); ++i) {
        if (equalsIgnoringCase(text.substr(i, part.size()), part)) {
            return true;
        }
    }
    return false;
}

/// Enumeration words have underscores where file names have blanks.
bool beginsWithWord(std::string_view name, std::string_view word) {
    if (name.size() < word.size() || (name.size() > word.size() && name[word.size()] != ' ')) {
        return false;
    }
    for (std::size_t i = 0; i < word.size(); ++i) {
        const char wanted = word[i] == '_' ? ' ' : word[i];
        if (!equalsIgnoringCase(name.substr(i, 1), std::string_view(&wanted, 1))) {
            return false;
        }
    }
    return true;
}

} // namespace

bool passesFilter(std::string_view name, std::string_view filter) {
    while (!filter.empty()) {
        const std::size_t begin = filter.find_first_not_of(' ');
        if (begin == std::string_view::npos) {
            return true;
        }
        filter.remove_prefix(begin);
        const std::size_t end = filter.find(' ');
        if (!containsIgnoringCase(name, filter.substr(0, end))) {
            return false;
        }
        filter.remove_prefix(end == std::string_view::npos ? filter.size() : end);
    }
    return true;
}

std::string_view nationalityOfName(std::string_view name) {
    std::string_view longest;
    for (const std::string_view nationality : nationalityNames()) {
        const std::string_view word = nationality.substr(NationalityPrefix.size());
        if (word.size() > longest.size() && beginsWithWord(name, word)) {
            longest = word;
        }
    }
    return longest;
}

} // namespace varrocade
