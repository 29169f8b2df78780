#pragma once
// How figures read to people, on sheets, in lists and in reports.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace varrocade {

/// With commas between the thousands: "56,900".
std::string grouped(std::int32_t value);
/// A number of things that an "s" makes several of: "1 unit", "2 units".
std::string counted(std::size_t count, std::string_view one);
std::string yesNo(bool value);
/// Horsepower a metric ton with one decimal, "-" without a weight.
std::string powerToWeight(std::int32_t horsepower, std::int32_t kilograms);

} // namespace varrocade
