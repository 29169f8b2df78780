#include "app/workspace/problems/fix_problems.h"

#include "app/workspace/edits.h"
#include "app/workspace/record/unsaved_records.h"
#include "app/workspace/record_files.h"
#include "data/writing/unit_writers.h"
#include "tools/checks/fixes/quick_fixes.h"

#include <algorithm>
#include <map>
#include <utility>

namespace varrocade {

namespace {

/// The problems of one file.
using ProblemsOfFile = std::map<std::pair<Category, std::string>, std::vector<Finding>>;

OpenRecord* recordInMemory(Workspace& workspace, Category category, const std::string& name) {
    const std::string& base = baseFolder(workspace);
    if (!isInMemory(workspace, base, category, name)) {
        return nullptr;
    }
    const auto aside = findAside(workspace, base, category, name);
    return aside == workspace.aside.end()
               ? &workspace.open
               : &workspace.aside[static_cast<std::size_t>(aside - workspace.aside.begin())];
}

std::string stepName(const std::vector<Problem>& problems) {
    return problems.size() == 1 ? "Fix " + std::string(problems.front().finding.key)
                                : "Fix " + std::to_string(problems.size()) + " problems";
}

/// Changes a record as its text is changed.
std::size_t fixRecord(const ProblemBook& book, Workspace& workspace, OpenRecord& record,
                      const std::vector<Finding>& findings, const std::string& step) {
    const std::string name = fileNameOf(record.present.record);
    const FixedText fixed =
        fixText(book.check()->knowledge(), record.category, name, textOf(record), findings);
    if (fixed.fixed == 0) {
        return 0;
    }
    record.present.record = readRecord(record.category, fixed.text, name);
    if (&record == &workspace.open) {
        recordChanged(workspace, step);
    } else {
        record.history.note(step, record.present);
        workspace.listener->marksChanged();
    }
    return fixed.fixed;
}

/// Writes a file of the disk; nothing where it stays as it is.
std::size_t fixFile(const ProblemBook& book, Workspace& workspace, Category category, const std::string& name,
                    const std::vector<Finding>& findings, FileStep& step) {
    const std::string& base = baseFolder(workspace);
    const std::string path = dataFilePath(base, category, name);
    std::string content;
    if (!readWholeFile(path, content)) {
        return 0;
    }
    const FixedText fixed = fixText(book.check()->knowledge(), category, name, content, findings);
    if (fixed.fixed == 0) {
        return 0;
    }
    if (const auto failure = replaceDataFile(*workspace.files, workspace.backups, base, path, fixed.text)) {
        tellFailure({.result = SaveResult::Failed, .failure = *failure});
        return 0;
    }
    step.replaced.push_back({path, std::move(content), fixed.text});
    return fixed.fixed;
}

} // namespace

std::string fixName(const ProblemBook& book, const Problem& problem) {
    return book.check() == nullptr || problem.name.empty()
               ? std::string()
               : quickFixName(book.check()->knowledge(), problem.finding);
}

std::vector<Problem> fixableLike(const ProblemBook& book, const std::vector<Problem>& problems,
                                 const Problem& problem) {
    std::vector<Problem> alike;
    std::copy_if(problems.begin(), problems.end(), std::back_inserter(alike), [&](const Problem& other) {
        return other.finding.key == problem.finding.key && !fixName(book, other).empty();
    });
    return alike;
}

FixResult fixProblems(ProblemBook& book, Workspace& workspace, const std::vector<Problem>& problems) {
    FixResult result;
    if (book.check() == nullptr) {
        return result;
    }
    ProblemsOfFile files;
    for (const Problem& problem : problems) {
        files[{problem.category, problem.name}].push_back(problem.finding);
    }
    FileStep step;
    step.record.base = baseFolder(workspace);
    step.name = stepName(problems);
    bool hasWeapons = false;
    for (const auto& [key, findings] : files) {
        const auto& [category, name] = key;
        OpenRecord* record = recordInMemory(workspace, category, name);
        const std::size_t fixed = record != nullptr
                                      ? fixRecord(book, workspace, *record, findings, step.name)
                                      : fixFile(book, workspace, category, name, findings, step);
        result.fixed += fixed;
        result.files += fixed > 0 ? 1 : 0;
        result.inMemory += fixed > 0 && record != nullptr ? 1 : 0;
        hasWeapons = hasWeapons || (fixed > 0 && category == Category::Weapons);
        if (record != nullptr) {
            checkRecordAgain(book, workspace, *record);
        } else {
            checkFileAgain(book, workspace, category, name);
        }
    }
    if (!step.replaced.empty()) {
        workspace.fileSteps.push_back(std::move(step));
        workspace.isFileStepLast = true;
    }
    if (hasWeapons) {
        loadCatalogue(workspace);
    }
    return result;
}

} // namespace varrocade
