#include "editors/form/form.h"

#include "data/format/clean_text.h"

#include <charconv>

namespace varrocade {

std::optional<std::int64_t> wholeNumber(std::string_view text) {
    constexpr std::string_view blanks = " \t";
    const std::size_t begin = text.find_first_not_of(blanks);
    if (begin == std::string_view::npos) {
        return std::nullopt;
    }
    text = text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
    const bool isNegative = text[0] == '-';
    text.remove_prefix(isNegative || text[0] == '+' ? 1 : 0);
    if (text.empty() || text.find_first_not_of("0123456789") != std::string_view::npos) {
        return std::nullopt;
    }
    std::int64_t value = 0;
    if (std::from_chars(text.data(), text.data() + text.size(), value).ec != std::errc()) {
        value = INT64_MAX;
    }
    return isNegative ? -value : value;
}

std::string rangeMessage(std::string_view label, const NumberRange& range, std::string_view text) {
    std::string message = "\"" + std::string(label) + "\" must be a whole number";
    // Nobody needs the bounds of the type but who went beyond them.
    const auto number = wholeNumber(text);
    const bool isBeyond = number && (*number < INT32_MIN || *number > INT32_MAX);
    const bool namesLeast = range.least != INT32_MIN || isBeyond;
    if (namesLeast && (range.greatest != INT32_MAX || isBeyond)) {
        message += " from " + std::to_string(range.least) + " to " + std::to_string(range.greatest);
    } else if (namesLeast) {
        message += " of at least " + std::to_string(range.least);
    }
    return message;
}

std::optional<FormError> valueError(int control, std::string_view label, std::string_view text) {
    if (canBeValue(text)) {
        return std::nullopt;
    }
    return FormError{
        control, "\"" + std::string(label) +
                     "\" must not begin with \"<\" nor contain \"</\" or \"//\": the file could not hold it"};
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
