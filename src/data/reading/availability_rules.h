#pragma once

#include "data/reading/unit_reading.h"

#include <string_view>

namespace varrocade::unit_rules {

/// A point of the older quarterly availability, such as "1942Q3" with its number.
void addQuarter(Reading& reading, std::string_view name, std::string_view text);

} // namespace varrocade::unit_rules
