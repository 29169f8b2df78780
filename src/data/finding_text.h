#pragma once
// Findings in words: for people, for the debugger, as lines of a report.

#include "data/finding.h"
#include "data/format/source_map.h"
#include "platform/file_operations.h"

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// A file or folder that the system does not give out, in the system's words.
Finding cannotRead(const FileFailure& failure);

/// "error", "warning" or "note".
std::string_view severityWord(Severity severity);

/// "2 errors, 1 warning, 0 notes"; those of which there are none only where `tellsNone`.
std::string severityCounts(std::span<const Severity> severities, bool tellsNone);

/// The same of what holds findings; `findingOf` gives that of one.
template <typename Things, typename FindingOf>
std::string severityCounts(const Things& things, FindingOf findingOf, bool tellsNone) {
    std::vector<Severity> severities;
    severities.reserve(things.size());
    for (const auto& thing : things) {
        severities.push_back(std::invoke(findingOf, thing).severity);
    }
    return severityCounts(severities, tellsNone);
}

/// What a reader writes to the debugger: the game's own line where it has one, otherwise
/// "ERROR: name: line 12: ...".
std::string debuggerLine(const Finding& finding);

/// "file:line:column: severity: message [key]", which editors and terminals take for a place to go to. What
/// is not known of the place is left out.
std::string reportLine(const Finding& finding);

/// The message with its line and hint, to stand behind other words: `line 12: ... (...)`.
std::string explanation(const Finding& finding);

/// The same for people to read by itself: "Line 12: ...."
std::string sentence(const Finding& finding);

/// The line of the file that a finding names and, below it, a caret at its column: two lines with their ends.
/// Of a long line only what is around the column. Empty without a line.
std::string sourceExcerpt(const Finding& finding, const LineIndex& lines);

/// A text between quotation marks, cut when it is long and without control characters.
std::string quoted(std::string_view text);

/// "<name>", cut when it is long.
std::string tagText(std::string_view name);

/// An element with its text, if it has one.
std::string elementText(const TagNode& node);

} // namespace varrocade
