#pragma once

#include <windows.h>

namespace varrocade {

/// Runs the program from its start to the end of the message loop. Returns the process's exit status.
int startApplication(HINSTANCE instance, int showCommand);

/// Reads "options.dat" in the program's folder; a missing one leaves the game folder empty, one that
/// announces a longer text than a path can be ends the process.
void readOptions();

/// Writes "options.dat"; 1 on success, 0 on a failure, which has been shown.
int writeOptions();

} // namespace varrocade
