#pragma once
// Another name for a file, on systems that tell letter case apart and on those that do not.

#include "platform/file_operations.h"

#include <string>
#include <string_view>

namespace varrocade {

/// What a file's name has at its end while the case of its letters is changed.
inline constexpr std::string_view RenamingEnding = ".renaming";

/// Gives a file its other name; the reason where that fails, which leaves it its own. Some systems do nothing
/// where only the case of letters changes: so there is a step between, and a look at what came of it.
std::string renameFileOnDisk(FileOperations& files, const std::string& from, const std::string& to);

} // namespace varrocade
