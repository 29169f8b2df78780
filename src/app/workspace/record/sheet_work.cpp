#include "app/workspace/record/sheet_work.h"

#include "app/workspace/category_list.h"
#include "app/workspace/record/unsaved_records.h"
#include "platform/messages.h"

#include <algorithm>
#include <utility>

namespace varrocade {

namespace {

bool isOneOf(const std::vector<FileReplacement>& files, const OpenRecord& record) {
    const std::string path = dataFilePath(record.base, record.category, fileNameOf(record.present.record));
    return std::any_of(files.begin(), files.end(),
                       [&](const FileReplacement& file) { return equalsIgnoringCase(file.path, path); });
}

} // namespace

std::vector<std::size_t> unsavedAmong(const Workspace& workspace, const std::vector<FileReplacement>& files) {
    std::vector<std::size_t> places;
    const auto records = unsavedRecords(workspace);
    for (std::size_t i = 0; i < records.size(); ++i) {
        if (isOneOf(files, *records[i])) {
            places.push_back(i);
        }
    }
    return places;
}

void noteImport(Workspace& workspace, const SheetImport& import) {
    FileStep step{.record = {},
                  .content = {},
                  .renamedTo = {},
                  .name = std::string(ImportStepName),
                  .replaced = import.files()};
    step.record.base = import.base();
    step.record.category = import.category().value_or(workspace.category);
    workspace.fileSteps.push_back(std::move(step));
    workspace.isFileStepLast = true;
    refreshAll(workspace);
}

bool takeReplacedBack(Workspace& workspace, const FileStep& step) {
    FileFailure failure;
    if (const auto unsaved = unsavedAmong(workspace, step.replaced); !unsaved.empty()) {
        failure = {unsavedRecordText(workspace, *unsavedRecords(workspace)[unsaved.front()]),
                   "It has unsaved changes. Save or discard them first."};
    } else {
        std::vector<FileReplacement> back = step.replaced;
        for (FileReplacement& file : back) {
            std::swap(file.before, file.after);
        }
        const auto failed =
            replaceTogether(*workspace.files, workspace.backups, step.record.base, std::move(back));
        if (!failed) {
            refreshAll(workspace);
            workspace.listener->filesRewritten();
            return true;
        }
        failure = *failed;
    }
    showMessage({.text = failure.path + "\n\n" + failure.reason,
                 .caption = "Couldn't undo: " + step.name,
                 .icon = MessageIcon::Warning});
    return false;
}

} // namespace varrocade
