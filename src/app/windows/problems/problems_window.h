#pragma once
// The window "Problems", which stays open beside the main window, and the keys that go from one to the next.

#include <windows.h>

namespace varrocade {

/// Opens the window, or brings it to the front, and looks at all files if nobody has yet.
void openProblemsWindow();
/// Whether a message was one of the keyboard's in that window.
bool isProblemsNavigation(MSG& message);

/// Shows the file of the next problem, with the part that it is about.
void goToNextProblem();
void goToPreviousProblem();

} // namespace varrocade
