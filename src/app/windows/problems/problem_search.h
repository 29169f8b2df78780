#pragma once
// Finding the problems of all files beside the window, keeping them up to date, and going to one of them.

#include "app/workspace/problems/problem_list.h"

#include <windows.h>

namespace varrocade {

/// The main window's timer that has `checkOpenRecord` called.
inline constexpr UINT_PTR ProblemsTimer = 2;

/// Looks at all files, beside the window.
void startProblemSearch();
/// The same where somebody has wanted to know before.
void searchProblemsAgain();
/// Takes the findings of a search that is done; false while it is under way.
bool takeSearch();

/// The open record is another than before: it is checked in a moment.
void openProblemsOutdated();
void checkOpenRecord();
/// Files may have come or gone.
void followFilesOfList();

/// Shows the file of a problem, with the part that it is about; where wanted, opens the dialog that mends it,
/// at the field.
void goToProblem(const Problem& problem, bool opensEditor);

} // namespace varrocade
