#pragma once

#include <windows.h>

namespace varrocade {

/// Runs the program from its start to the end of the message loop. Returns the process's exit status.
int startApplication(HINSTANCE instance, int showCommand);

} // namespace varrocade
