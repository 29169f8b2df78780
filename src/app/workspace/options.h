#pragma once
// The options between the program's runs.

#include "app/workspace/workspace.h"

namespace varrocade {

/// Reads "options.dat" in the program's folder, and what is remembered of mods; a missing one leaves the game
/// folder empty. False when it
/// announces a longer text than a path can be, and the program must not go on.
bool readOptions(Workspace& workspace);

/// Writes "options.dat"; 1 on success, 0 on a failure, which has been shown.
int writeOptions(const Workspace& workspace);

} // namespace varrocade
