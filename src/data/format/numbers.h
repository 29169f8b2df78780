#pragma once
// Numbers in data files: read with the leniency of the C library's conversions, written as its "%d" and "%g"
// print them, both whatever the locale.

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

namespace varrocade {

/// Leading white space, an optional sign, digits up to the first other character; no digits give 0, a value
/// beyond 32 bits the nearest one.
std::int32_t toInteger(std::string_view text);

/// As `toInteger`, brought into the range of a narrower type.
template <typename Integer>
Integer toClamped(std::string_view text) {
    const std::int32_t value = toInteger(text);
    if (value < std::int32_t{std::numeric_limits<Integer>::min()}) {
        return std::numeric_limits<Integer>::min();
    }
    if (value > std::int32_t{std::numeric_limits<Integer>::max()}) {
        return std::numeric_limits<Integer>::max();
    }
    return static_cast<Integer>(value);
}

/// Decimal floating point with the same leniency; no number gives 0, one too large the largest finite one.
double toReal(std::string_view text);
float toFloat(std::string_view text);

/// The number that a whole text is, blanks at its ends aside, or nothing: people's input and comparisons need
/// more care than the game takes. A whole number too long for 64 bits is brought to the nearest one.
std::optional<std::int64_t> entireInteger(std::string_view text);
std::optional<double> entireReal(std::string_view text);

void appendInteger(std::string& out, std::int32_t value);
/// As "%g" and "%.6g": the shortest of fixed and exponent form with at most six significant digits.
void appendShortest(std::string& out, double value);
/// As "%.*f".
void appendFixed(std::string& out, double value, int decimals);

} // namespace varrocade
