#include "data/codec.h"

#include "data/format/clean_text.h"

namespace varrocade {

namespace {

/// " from 0 to 90" or " of at least 0"; nothing where neither bound is to be named.
std::string boundsText(const IntegerRange& range, bool namesLeast, bool namesGreatest) {
    if (namesLeast && namesGreatest) {
        return " from " + std::to_string(range.least) + " to " + std::to_string(range.greatest);
    }
    if (namesGreatest) {
        return " of at most " + std::to_string(range.greatest);
    }
    return namesLeast ? " of at least " + std::to_string(range.least) : std::string();
}

std::string quotedLabel(std::string_view label) {
    return "\"" + std::string(label) + "\"";
}

} // namespace

std::string integerRefusal(std::string_view label, const IntegerRange& range, std::string_view text) {
    const auto number = entireInteger(text);
    const bool isBeyond = number && (*number < INT32_MIN || *number > INT32_MAX);
    const bool namesLeast = isBeyond || range.least > INT32_MIN;
    const bool namesGreatest = isBeyond || range.greatest < INT32_MAX;
    return quotedLabel(label) + " must be a whole number" + boundsText(range, namesLeast, namesGreatest);
}

std::string realRefusal(std::string_view label, const NumberRange& range) {
    return quotedLabel(label) + " must be a number" +
           boundsText({.least = range.least, .greatest = range.greatest}, range.least != INT32_MIN,
                      range.greatest != INT32_MAX);
}

Refusal textRefusal(std::string_view label, std::string_view text) {
    if (canBeValue(text)) {
        return std::nullopt;
    }
    return quotedLabel(label) +
           " must not begin with \"<\" nor contain \"</\" or \"//\": the file could not hold it";
}

std::optional<double> realWithin(std::string_view text, const NumberRange& range) {
    const std::optional<double> number = entireReal(text);
    if (!number) {
        return range.zeroForOtherTexts ? std::optional(0.0) : std::nullopt;
    }
    const bool isBelow = range.least != INT32_MIN && *number < range.least;
    const bool isAbove = range.greatest != INT32_MAX && *number > range.greatest;
    return isBelow || isAbove ? std::nullopt : number;
}

std::string realText(double value, int decimals) {
    std::string text;
    if (decimals < 0) {
        appendShortest(text, value);
    } else {
        appendFixed(text, value, decimals);
    }
    return text;
}

} // namespace varrocade
