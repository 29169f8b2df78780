#include "app/workspace/problems/problem_list.h"

#include "data/finding_text.h"
#include "data/format/texts.h"

#include <algorithm>

namespace varrocade {

namespace {

bool isInScope(const FileProblems& file, const Workspace& workspace, ProblemScope scope) {
    switch (scope) {
    case ProblemScope::OpenRecord:
        return workspace.open.isOpen() && file.category == workspace.open.category &&
               equalsIgnoringCase(file.name, openFileName(workspace));
    case ProblemScope::Category:
        return file.category == workspace.category && !file.name.empty();
    case ProblemScope::Folder:
        break;
    }
    return true;
}

bool isShown(const Finding& finding, const ProblemView& view) {
    switch (finding.severity) {
    case Severity::Error:
        return view.showsErrors;
    case Severity::Warning:
        return view.showsWarnings;
    case Severity::Note:
        break;
    }
    return view.showsNotes;
}

std::string fileCell(const Problem& problem) {
    return problem.name.empty() ? problem.finding.file
                                : std::string(categoryName(problem.category)) + ": " + problem.name;
}

/// Below 0 where `a` comes first by the column alone.
int compareBy(ProblemColumn column, const Problem& a, const Problem& b) {
    const auto compare = [](const auto& x, const auto& y) { return x < y ? -1 : y < x ? 1 : 0; };
    switch (column) {
    case ProblemColumn::Severity:
        return compare(b.finding.severity, a.finding.severity);
    case ProblemColumn::File:
        return compareIgnoringCase(fileCell(a), fileCell(b));
    case ProblemColumn::Line:
        return compare(a.finding.line, b.finding.line);
    case ProblemColumn::Field:
        return compareIgnoringCase(a.finding.field, b.finding.field);
    case ProblemColumn::Message:
        return compareIgnoringCase(a.finding.message, b.finding.message);
    case ProblemColumn::Hint:
        return compareIgnoringCase(a.finding.hint, b.finding.hint);
    }
    return 0;
}

} // namespace

std::vector<Problem> problemsIn(const ProblemBook& book, const Workspace& workspace,
                                const ProblemView& view) {
    std::vector<Problem> problems;
    for (const FileProblems* file : book.files()) {
        if (!isInScope(*file, workspace, view.scope)) {
            continue;
        }
        for (const Finding& finding : file->findings) {
            if (isShown(finding, view)) {
                problems.push_back({file->category, file->name, finding});
            }
        }
    }
    std::stable_sort(problems.begin(), problems.end(), [&](const Problem& a, const Problem& b) {
        const int order = compareBy(view.sortedBy, a, b);
        return view.isDescending ? order > 0 : order < 0;
    });
    return problems;
}

std::array<std::string, ProblemColumnCount> cellsOf(const Problem& problem) {
    const Finding& finding = problem.finding;
    return {std::string(severityWord(finding.severity)),
            fileCell(problem),
            finding.line > 0 ? std::to_string(finding.line) : std::string(),
            finding.field,
            finding.message,
            finding.hint};
}

std::array<std::string_view, ProblemColumnCount> problemHeads() {
    return {"Severity", "File", "Line", "Field", "Problem", "Hint"};
}

std::string problemCounts(const std::vector<Problem>& problems) {
    return problems.empty() ? "No problems" : severityCounts(problems, &Problem::finding, false);
}

std::string problemsAsText(const std::vector<Problem>& problems) {
    std::string text;
    const auto addLine = [&text](const auto& cells) {
        for (std::size_t i = 0; i < cells.size(); ++i) {
            text += (i == 0 ? "" : "\t") + std::string(cells[i]);
        }
        text += "\r\n";
    };
    addLine(problemHeads());
    for (const Problem& problem : problems) {
        addLine(cellsOf(problem));
    }
    return text;
}

std::optional<std::size_t> placeOf(const std::vector<Problem>& problems, const Problem& problem,
                                   std::size_t formerPlace) {
    if (problems.empty()) {
        return std::nullopt;
    }
    const auto found = std::find(problems.begin(), problems.end(), problem);
    return found != problems.end() ? static_cast<std::size_t>(found - problems.begin())
                                   : std::min(formerPlace, problems.size() - 1);
}

} // namespace varrocade
