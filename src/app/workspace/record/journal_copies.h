#pragma once
// Where the copies of unsaved changes stand, and how they begin.

#include "data/category.h"

#include <string>
#include <string_view>

namespace varrocade {

inline constexpr std::string_view UnsavedFolder = "Backups\\Unsaved\\";

/// Where the copy of a file's unsaved changes stands.
std::string journalPath(const std::string& base, Category category, const std::string& name);

/// The first line of a copy, with its end: a comment with the fingerprint of the file that was changed.
std::string journalHead(std::string_view content);

} // namespace varrocade
