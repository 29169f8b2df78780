#pragma once
// What the window "Problems" shows: the list, how many there are, the chosen one in words. Without the window
// only the list is made.

#include "app/workspace/problems/problem_list.h"

#include <windows.h>

namespace varrocade {

/// The problem that is selected or was gone to last; null where there is none.
const Problem* chosenProblem();

/// Shows the problems of the book anew, as far as the view has them. What was chosen stays chosen.
void showProblemList();
/// Selects the chosen problem.
void showChosenProblem();
/// Shows it in words that no column cuts, with its rule and what "Fix" would do.
void showProblemWords();
/// Shows how many there are and how far a search has come.
void showProblemCount();

} // namespace varrocade
