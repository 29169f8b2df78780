#pragma once
// The problems that a list shows: of which files, how bad, in which order; as text, and the way from one to
// the next.

#include "app/workspace/problems/problem_book.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade {

/// A finding and the file that it is about.
struct Problem {
    Category category = Category::Vehicles;
    std::string name; ///< of the file, as `FileProblems` has it
    Finding finding;
    bool operator==(const Problem&) const = default;
};

enum class ProblemScope : std::uint8_t { OpenRecord, Category, Folder };

enum class ProblemColumn : std::uint8_t { Severity, File, Line, Field, Message, Hint };
inline constexpr std::size_t ProblemColumnCount = 6;

/// What of the problems is shown, and in which order.
struct ProblemView {
    ProblemScope scope = ProblemScope::Folder;
    bool showsErrors = true;
    bool showsWarnings = true;
    bool showsNotes = true;
    ProblemColumn sortedBy = ProblemColumn::File;
    bool isDescending = false;
};

/// The problems of a view; those that its column does not tell apart are in the order of their files and
/// lines.
std::vector<Problem> problemsIn(const ProblemBook& book, const Workspace& workspace, const ProblemView& view);

/// A problem in the cells of a list.
std::array<std::string, ProblemColumnCount> cellsOf(const Problem& problem);
/// The heads above the cells.
std::array<std::string_view, ProblemColumnCount> problemHeads();

/// "2 errors, 1 warning"; "No problems" of none.
std::string problemCounts(const std::vector<Problem>& problems);

/// Tab separated lines below a line of heads, for spreadsheets and posts.
std::string problemsAsText(const std::vector<Problem>& problems);

/// The place of a problem in a list, or of what stands there now: one that is gone leaves its place to the
/// next of its file. Nothing in an empty list.
std::optional<std::size_t> placeOf(const std::vector<Problem>& problems, const Problem& problem,
                                   std::size_t formerPlace);

} // namespace varrocade
