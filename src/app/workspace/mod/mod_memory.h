#pragma once
// What is remembered of working in mods from one run to the next. "options.dat" belongs to the game's folder
// alone and cannot take more; this has a file of its own, in the syntax of the data files.

#include "app/workspace/workspace.h"

#include <cstddef>
#include <string_view>

namespace varrocade {

inline constexpr std::string_view ModMemoryFileName = "editor.txt";

/// How many folders of mods are remembered.
inline constexpr std::size_t MostOtherMods = 9;

/// Reads it from the program's folder. A missing file, and whatever in it makes no sense, counts as nothing.
void readModMemory(Workspace& workspace);

/// Writes it where it says something else than the file. A failure goes to the debugger: nothing of the
/// user's work depends on it.
void keepModMemory(Workspace& workspace);

} // namespace varrocade
