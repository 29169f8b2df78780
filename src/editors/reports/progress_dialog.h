#pragma once
// A window that drives a job, shows how far it is, and stops it.

#include "tools/job.h"

#include <windows.h>

#include <string>

namespace varrocade {

/// Steps a job to its end while the window answers: what it does, at which file, how long it will take, and
/// "Cancel". False when it was cancelled before.
bool runJobInWindow(HWND owner, const std::string& caption, Job& job);

} // namespace varrocade
