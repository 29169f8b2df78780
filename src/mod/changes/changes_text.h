#pragma once
// What a mod changes, as text to read and as Markdown for release notes.

#include "mod/changes/mod_changes.h"

#include <string>

namespace varrocade {

enum class ChangesFormat : std::uint8_t { Plain, Markdown };

/// Lines that end in LF. `title`: such as the mod's name; in Markdown the heading.
std::string changesText(const ModChanges& changes, ChangesFormat format, std::string_view title);

/// How many files are of each kind: "1 added, 2 changed, 0 removed".
std::string kindCounts(const ModChanges& changes);

/// A value with its unit; "-" where there is none, and quotes around an empty one.
std::string shownValue(const std::optional<std::string>& value, std::string_view unit);

} // namespace varrocade
