#include "app/windows/problems/open_problems.h"

#include "app/windows/application.h"
#include "app/windows/file_list.h"

#include <algorithm>
#include <iterator>

namespace varrocade {

void followProblemFolder() {
    ProblemsState& problems = application().problems;
    const GameFolders folders = gameFolders(theWorkspace());
    if (problems.folders != folders) {
        problems.search.cancel();
        problems.book.clear();
        problems.shown.clear();
        problems.folders = folders;
    }
}

void noteOpenProblems(const std::vector<SheetProblem>& problems) {
    Application& app = application();
    std::vector<Finding> findings;
    std::transform(problems.begin(), problems.end(), std::back_inserter(findings),
                   [](const SheetProblem& problem) { return problem.finding; });
    ProblemBook& book = app.problems.book;
    const OpenRecord& open = app.workspace.open;
    const SquadRecord* unit = openUnit(app.workspace);
    const WeaponRecord* weapon = openWeapon(app.workspace);
    const std::string name = unit != nullptr     ? unit->fileName.str()
                             : weapon != nullptr ? weapon->fileName
                                                 : "";
    const bool isOfFolder = open.base == baseFolder(app.workspace);
    if (const FileProblems* known = book.of(open.category, name);
        book.check() != nullptr && isOfFolder && known != nullptr) {
        findings.insert(findings.end(), known->findings.begin(), known->findings.end());
    } else if (isOfFolder) {
        followProblemFolder();
        if (book.set(open.category, name, findings)) {
            redrawOpenEntry();
        }
    }
    if (unit != nullptr) {
        app.display.marks = markedParts(*unit, findings);
    } else if (weapon != nullptr) {
        app.display.marks = markedParts(*weapon, findings);
    }
}

} // namespace varrocade
