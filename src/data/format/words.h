#pragma once
// How figures read to people, on sheets, in lists and in reports.

#include <cstdint>
#include <string>

namespace varrocade {

/// With commas between the thousands: "56,900".
std::string grouped(std::int32_t value);
std::string yesNo(bool value);
/// Horsepower a metric ton with one decimal, "-" without a weight.
std::string powerToWeight(std::int32_t horsepower, std::int32_t kilograms);

} // namespace varrocade
