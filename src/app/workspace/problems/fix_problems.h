#pragma once
// Quick fixes of problems in the workspace's files. What is in memory is changed there, as a step of its
// history, and saved by the user; all other files are written, with backups, as one step that undo takes
// back.

#include "app/workspace/problems/problem_list.h"
#include "app/workspace/workspace.h"

#include <cstddef>
#include <string>
#include <vector>

namespace varrocade {

/// What "Fix" would do with a problem, in words; empty where it can do nothing.
std::string fixName(const ProblemBook& book, const Problem& problem);

/// Those of some problems that are of the kind of one of them and can be fixed.
std::vector<Problem> fixableLike(const ProblemBook& book, const std::vector<Problem>& problems,
                                 const Problem& problem);

/// What came of fixing.
struct FixResult {
    std::size_t fixed = 0;
    std::size_t files = 0;
    std::size_t inMemory = 0; ///< of these files, those whose record is now unsaved
};

/// Fixes problems that `fixName` has words for, and checks their files again. A file that cannot be written
/// is told of and stays.
FixResult fixProblems(ProblemBook& book, Workspace& workspace, const std::vector<Problem>& problems);

} // namespace varrocade
