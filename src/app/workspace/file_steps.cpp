#include "app/workspace/file_steps.h"

#include "app/workspace/category_list.h"
#include "app/workspace/edits.h"
#include "app/workspace/file_actions.h"
#include "app/workspace/names/rename_everywhere.h"
#include "app/workspace/positions.h"
#include "app/workspace/record/sheet_work.h"
#include "app/workspace/record/unsaved_records.h"
#include "app/workspace/record_files.h"
#include "platform/messages.h"
#include "platform/safe_save.h"

namespace varrocade {

namespace {

std::string formerName(const FileStep& step) {
    return fileNameOf(step.record.present.record);
}

void tellInTheWay(const std::string& path) {
    showMessage({.text = path + "\n\nThere is a file of that name again",
                 .caption = "Couldn't bring the file back",
                 .icon = MessageIcon::Warning});
}

/// Shows the category of a step; false when the user wants to stay.
bool goToCategory(Workspace& workspace, const FileStep& step) {
    if (!mayLeavePositions(workspace)) {
        return false;
    }
    closeRecord(workspace);
    chooseCategory(workspace, step.record.category);
    closeRecord(workspace);
    return true;
}

bool bringBack(Workspace& workspace, const FileStep& step) {
    const std::string name = formerName(step);
    const std::string path = dataFilePath(step.record.base, step.record.category, name);
    if (workspace.files->exists(path) ||
        isInMemory(workspace, step.record.base, step.record.category, name)) {
        tellInTheWay(path);
        return false;
    }
    if (const auto failure = saveFile(*workspace.files, path, step.content)) {
        showCouldNotSave(failure->path);
        return false;
    }
    if (!goToCategory(workspace, step)) {
        workspace.files->remove(path);
        return false;
    }
    workspace.open = step.record;
    workspace.open.content = step.content;
    refillAndSelect(workspace, name);
    noteVisit(workspace);
    workspace.listener->recordOpened();
    return true;
}

bool renameBack(Workspace& workspace, const FileStep& step) {
    const std::string name = formerName(step);
    if (listedOpenName(workspace) != step.renamedTo || workspace.category != step.record.category) {
        showFile(workspace, step.record.category, step.renamedTo);
    }
    if (listedOpenName(workspace) != step.renamedTo) {
        return false;
    }
    if (isAside(workspace, name)) {
        tellInTheWay(pathOf(workspace, name));
        return false;
    }
    if (!giveName(workspace, name)) {
        return false;
    }
    showRenamed(workspace);
    return true;
}

/// The base folder that a step was made in.
const std::string& baseOf(const FileStep& step) {
    return step.rewrites.empty() ? step.record.base : step.base;
}

/// Whether the last step is one of a file, and not of the open record.
bool isFileStepNext(const Workspace& workspace) {
    const bool isLast = workspace.isFileStepLast || !workspace.open.history.canUndo();
    return isLast && !workspace.fileSteps.empty() &&
           baseOf(workspace.fileSteps.back()) == baseFolder(workspace);
}

void undoFileStep(Workspace& workspace) {
    const FileStep step = workspace.fileSteps.back();
    const bool isUndone = !step.rewrites.empty()   ? undoRenaming(workspace, step)
                          : !step.replaced.empty() ? takeReplacedBack(workspace, step)
                          : step.renamedTo.empty() ? bringBack(workspace, step)
                                                   : renameBack(workspace, step);
    if (isUndone) {
        workspace.fileSteps.pop_back();
        workspace.isFileStepLast = false;
    }
}

} // namespace

std::string lastStepName(const Workspace& workspace) {
    if (!isFileStepNext(workspace)) {
        return std::string(workspace.open.history.undoName());
    }
    const FileStep& step = workspace.fileSteps.back();
    if (!step.name.empty()) {
        return step.name;
    }
    return (step.renamedTo.empty() ? "Delete " : "Rename ") + formerName(step);
}

bool canUndoLast(const Workspace& workspace) {
    return isFileStepNext(workspace) || workspace.open.history.canUndo();
}

void undoLast(Workspace& workspace) {
    if (isFileStepNext(workspace)) {
        undoFileStep(workspace);
    } else {
        undoChange(workspace);
    }
}

} // namespace varrocade
