#pragma once
// Saving that never loses the old file: the new content goes to a temporary file beside the target, is
// flushed to the device and closed, and only then takes the target's place in one step.

#include "platform/file_operations.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace varrocade {

/// Replaces the file `path` by `content`. Every step is checked; on failure the old file is whole, the
/// temporary file is gone, and the failure names `path`.
std::optional<FileFailure> saveFile(FileOperations& files, const std::string& path, std::string_view content);

/// Creates every folder of `path` (which ends in a backslash) that does not exist yet.
/// On failure the folder that could not be created.
std::optional<FileFailure> createFolders(FileOperations& files, const std::string& path);

/// What a temporary file's name has behind that of its target, and a number behind that.
inline constexpr std::string_view TemporaryEnding = ".saving";

} // namespace varrocade
