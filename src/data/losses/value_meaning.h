#pragma once
// Whether the text of an element says what its reader took from it.

#include "data/losses/reading_trace.h"

#include <string>
#include <string_view>

namespace varrocade {

/// False where the reader had to guess or to cut: "5 kg" for 5, "Yes" for a flag that is not set, a text
/// longer than its field.
bool means(std::string_view text, const TracedValue& value,
           Understanding understanding = Understanding::ByText);

/// Whether a text is the value with the other sign, as in older elements that count the other way.
bool meansOpposite(std::string_view text, const TracedValue& value);

/// How a text that does not mean its value was taken: `is read as "5"`.
std::string misreadText(std::string_view text, const TracedValue& value);

} // namespace varrocade
