#pragma once
// What the program knows of the problems of the files, and the window that lists them.

#include "app/workspace/problems/problem_list.h"
#include "tools/checks/engine/background_check.h"

#include <windows.h>

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace varrocade {

/// The window's size as the template has it, and the places of its controls then.
struct ProblemsLayout {
    SIZE frame{};
    SIZE client{};
    std::map<int, RECT> places;
};

struct ProblemsState {
    ProblemBook book;
    GameFolders folders;    ///< that the book is about
    BackgroundCheck search; ///< of all files
    ProblemView view;
    std::vector<Problem> shown; ///< as the view has them
    std::size_t chosen = 0;     ///< the place of the problem that was gone to last, or that is selected
    bool hasGone = false;       ///< the chosen problem was gone to, and F8 goes on to the next
    bool isStepDue = false;     ///< the next problem is to be gone to as soon as the search is done
    HWND window = nullptr;
    ProblemsLayout layout;
    std::string told; ///< what the last fix has come to
};

} // namespace varrocade
