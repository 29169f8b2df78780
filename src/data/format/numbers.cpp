#include "data/format/numbers.h"

#include "data/format/texts.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <system_error>

namespace varrocade {

namespace {

/// Skips what the C library takes for white space, and notes a sign.
std::string_view withoutSpaceAndSign(std::string_view text, bool& negative) {
    const std::size_t start = text.find_first_not_of(" \t\n\v\f\r");
    text.remove_prefix(start == std::string_view::npos ? text.size() : start);
    negative = text.starts_with('-');
    if (negative || text.starts_with('+')) {
        text.remove_prefix(1);
    }
    return text;
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// The power of ten of a number's first digit that is not 0, such as 2 of "120.5" and -1 of "0.1"; of 0
/// itself one below 0.
std::int64_t decimalPlace(std::string_view number) {
    const std::size_t end = std::min(number.find_first_of("eE"), number.size());
    const std::size_t point = std::min(number.find('.'), end);
    const std::size_t first = number.find_first_not_of("0.");
    if (first >= end) {
        return -1;
    }
    const auto place = static_cast<std::int64_t>(point) - static_cast<std::int64_t>(first);
    const std::int64_t exponent = end < number.size() ? toInteger(number.substr(end + 1)) : 0;
    return exponent + (first < point ? place - 1 : place);
}

} // namespace

std::int32_t toInteger(std::string_view text) {
    bool negative = false;
    text = withoutSpaceAndSign(text, negative);
    std::int64_t value = 0;
    constexpr std::int64_t bound = std::int64_t{1} << 31;
    for (const char c : text) {
        if (!isDigit(c)) {
            break;
        }
        value = value * 10 + (c - '0');
        if (value > bound) {
            value = bound;
        }
    }
    if (negative) {
        return static_cast<std::int32_t>(-value);
    }
    return static_cast<std::int32_t>(value < bound ? value : bound - 1);
}

double toReal(std::string_view text) {
    bool negative = false;
    text = withoutSpaceAndSign(text, negative);
    // Words such as "inf" and "nan" are no numbers here.
    const bool isNumber =
        !text.empty() && (isDigit(text[0]) || (text[0] == '.' && text.size() > 1 && isDigit(text[1])));
    if (!isNumber) {
        return 0.0;
    }
    double value = 0.0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        // The library leaves open whether it was too large or too small.
        const bool tiny = decimalPlace(std::string_view(text.data(), result.ptr)) < 0;
        value = tiny ? 0.0 : std::numeric_limits<double>::max();
    }
    return negative ? -value : value;
}

float toFloat(std::string_view text) {
    const double value = toReal(text);
    constexpr double largest = std::numeric_limits<float>::max();
    if (std::abs(value) > largest) {
        return static_cast<float>(std::copysign(largest, value));
    }
    return static_cast<float>(value);
}

std::optional<std::int64_t> entireInteger(std::string_view text) {
    text = trimmed(text);
    const bool isNegative = text.starts_with('-');
    text.remove_prefix(isNegative || text.starts_with('+') ? 1 : 0);
    if (text.empty() || text.find_first_not_of("0123456789") != std::string_view::npos) {
        return std::nullopt;
    }
    std::int64_t value = 0;
    if (std::from_chars(text.data(), text.data() + text.size(), value).ec != std::errc()) {
        value = INT64_MAX;
    }
    return isNegative ? -value : value;
}

std::optional<double> entireReal(std::string_view text) {
    text = trimmed(text);
    if (text.starts_with('+') && !text.starts_with("+-")) {
        text.remove_prefix(1);
    }
    double value = 0.0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool isNumber = result.ec == std::errc() && result.ptr == text.data() + text.size();
    return isNumber && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

void appendInteger(std::string& out, std::int32_t value) {
    std::array<char, 16> digits{};
    const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), value);
    out.append(digits.data(), result.ptr);
}

void appendShortest(std::string& out, double value) {
    std::array<char, 64> digits{};
    constexpr int significantDigits = 6;
    const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                      std::chars_format::general, significantDigits);
    out.append(digits.data(), result.ptr);
}

void appendFixed(std::string& out, double value, int decimals) {
    // The largest double has 309 digits before the point.
    std::array<char, 400> digits{};
    const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                      std::chars_format::fixed, decimals < 0 || decimals > 32 ? 2 : decimals);
    out.append(digits.data(), result.ptr);
}

} // namespace varrocade
