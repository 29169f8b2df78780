#pragma once
// Words of unit files that are written otherwise today.

#include <string_view>

namespace varrocade {

/// What is written today for a quality or nationality that older files name otherwise; any other word as it
/// is.
std::string_view todaysWord(std::string_view word);

} // namespace varrocade
