#include "data/unit/unit_name.h"

#include "data/unit/enumerations.h"

namespace varrocade {

std::optional<std::string> refusalOfNationality(std::string_view name, std::string_view nationality) {
    const std::string word = displayName(nationality, NationalityPrefix);
    if (name.starts_with(word)) {
        return std::nullopt;
    }
    return "The filename must begin with the squad's nationality name:\n\n        " + word;
}

} // namespace varrocade
