#include "editors/form.h"

#include "data/numbers.h"

namespace varrocade {

std::optional<std::int32_t> wholeNumber(std::string_view text) {
    constexpr std::string_view blanks = " \t";
    const std::size_t begin = text.find_first_not_of(blanks);
    if (begin == std::string_view::npos) {
        return std::nullopt;
    }
    text = text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
    const std::size_t digits = text[0] == '-' || text[0] == '+' ? 1 : 0;
    if (digits == text.size() || text.find_first_not_of("0123456789", digits) != std::string_view::npos) {
        return std::nullopt;
    }
    return toInteger(text);
}

std::string rangeMessage(std::string_view label, const NumberRange& range) {
    std::string message = "\"" + std::string(label) + "\" must be a whole number";
    if (range.least != INT32_MIN && range.greatest != INT32_MAX) {
        message += " from " + std::to_string(range.least) + " to " + std::to_string(range.greatest);
    } else if (range.least != INT32_MIN) {
        message += " of at least " + std::to_string(range.least);
    }
    return message;
}

std::string unknownChoices(FormPort& port, std::span<const ChoiceField> fields) {
    std::string names;
    for (const ChoiceField& field : fields) {
        const std::string text = port.text(field.control);
        if (!text.empty() && !port.offers(field.control, text)) {
            names += (names.empty() ? "Unknown, kept as it is: " : ", ") + std::string(field.label) + " \"" +
                     text + "\"";
        }
    }
    return names;
}

} // namespace varrocade
