#pragma once
// What can be seen in the lines of a file as they stand.

#include "tools/checks/engine/file_findings.h"

#include <string_view>

namespace varrocade {

/// Whether a file begins with the mark of UTF-16: then nothing of it looks like an element.
bool hasWideMark(std::string_view content);

/// Whether a file holds bytes beyond ASCII.
bool hasForeignBytes(std::string_view content);

/// Characters that are not of ASCII, once a line.
void checkCharacters(std::string_view content, FileFindings& out);

/// Lines that are too long, and values with "//" in them. For files that are not plainly nested: in others
/// there are none.
void checkLines(std::string_view content, FileFindings& out);

} // namespace varrocade
