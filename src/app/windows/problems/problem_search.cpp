#include "app/windows/problems/problem_search.h"

#include "app/commands/edit_record.h"
#include "app/commands/edit_weapon.h"
#include "app/windows/application.h"
#include "app/windows/display/redraw.h"
#include "app/windows/file_list.h"
#include "app/windows/part_selection.h"
#include "app/windows/problems/open_problems.h"
#include "app/windows/problems/problems_view.h"
#include "app/workspace/category_list.h"
#include "data/format/texts.h"
#include "tools/checks/engine/file_findings.h"

#include <algorithm>
#include <iterator>

namespace varrocade {

namespace {

/// The open record is checked when nobody has typed for so long.
constexpr UINT TypingPause = 150;

ProblemsState& searchState() {
    return application().problems;
}

/// Redraws everything that has signs of problems.
void showSigns() {
    displayChanged();
    redrawNow();
    redrawEntries();
}

std::string textWithProblem(const Problem& problem) {
    const Workspace& workspace = theWorkspace();
    return workspace.open.category == problem.category &&
                   equalsIgnoringCase(openFileName(workspace), problem.name)
               ? textOf(workspace.open)
               : std::string();
}

} // namespace

void startProblemSearch() {
    followProblemFolder();
    searchState().search.start(searchState().folders);
    showProblemList();
}

void goToProblem(const Problem& problem, bool opensEditor) {
    Workspace& workspace = theWorkspace();
    if (IsWindowEnabled(application().window) == FALSE || problem.name.empty()) {
        return;
    }
    const bool isOpen = workspace.open.category == problem.category &&
                        workspace.category == problem.category &&
                        equalsIgnoringCase(listedOpenName(workspace), problem.name);
    if (!isOpen) {
        showFile(workspace, problem.category, problem.name);
        if (!equalsIgnoringCase(listedOpenName(workspace), problem.name)) {
            return;
        }
    }
    const std::string path = pathOfFinding(problem.category, textWithProblem(problem), problem.finding);
    if (const WeaponRecord* weapon = openWeapon(workspace)) {
        if (opensEditor) {
            editOpenWeapon(targetOfField(*weapon, path));
        }
        return;
    }
    const SquadRecord* unit = openUnit(workspace);
    if (unit == nullptr) {
        return;
    }
    selectPart(partOfField(*unit, path));
    if (opensEditor && canEditOpenRecord()) {
        editPartAt(targetOfField(*unit, path));
    }
}

void searchProblemsAgain() {
    if (searchState().book.check() != nullptr || searchState().window != nullptr) {
        startProblemSearch();
    }
}

bool takeSearch() {
    ProblemsState& problems = searchState();
    std::unique_ptr<FolderCheck> check = problems.search.take();
    if (check == nullptr) {
        return !problems.search.isRunning();
    }
    problems.book.take(std::move(check));
    const Workspace& workspace = theWorkspace();
    checkRecordAgain(problems.book, workspace, workspace.open);
    for (const OpenRecord& record : workspace.aside) {
        checkRecordAgain(problems.book, workspace, record);
    }
    showProblemList();
    showSigns();
    return true;
}

void openProblemsOutdated() {
    followProblemFolder();
    if (searchState().book.check() != nullptr) {
        SetTimer(application().window, ProblemsTimer, TypingPause, nullptr);
    }
    if (searchState().view.scope != ProblemScope::Folder) {
        showProblemList();
    }
}

void checkOpenRecord() {
    KillTimer(application().window, ProblemsTimer);
    if (checkRecordAgain(searchState().book, theWorkspace(), theWorkspace().open)) {
        showProblemList();
        showSigns();
    }
}

void followFilesOfList() {
    followProblemFolder();
    const Workspace& workspace = theWorkspace();
    ProblemsState& problems = searchState();
    if (problems.book.check() == nullptr || problems.search.isRunning()) {
        return;
    }
    const std::vector<std::string>& names = workspace.list.all;
    const bool isNew = std::any_of(names.begin(), names.end(), [&](const std::string& name) {
        return !isOfGame(workspace.list, name) && problems.book.of(workspace.category, name) == nullptr;
    });
    std::size_t known = 0;
    for (const FileProblems* file : problems.book.files()) {
        known += file->category == workspace.category && !file->name.empty() ? 1 : 0;
    }
    const auto own =
        static_cast<std::size_t>(std::count_if(names.begin(), names.end(), [&](const std::string& name) {
            return !isOfGame(workspace.list, name);
        }));
    if (isNew || known != own) {
        startProblemSearch();
    } else if (problems.view.scope == ProblemScope::Category) {
        showProblemList();
    }
}

} // namespace varrocade
