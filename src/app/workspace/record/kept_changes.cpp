#include "app/workspace/record/kept_changes.h"

#include "app/workspace/record/unsaved_records.h"
#include "platform/messages.h"

#include <algorithm>

namespace varrocade {

bool keepChanges(Workspace& workspace, const OpenRecord& record) {
    const auto text = fileTextOf(record.category, record.present.record);
    if (!text || !record.isModified()) {
        return true;
    }
    const std::string path = dataFilePath(record.base, record.category, fileNameOf(record.present.record));
    if (const auto failure = workspace.backups.keepContent(*workspace.files, record.base, path, *text)) {
        tellNotKept(*failure);
        return false;
    }
    return true;
}

bool dropAside(Workspace& workspace, const std::string& base, Category category, const std::string& name) {
    const auto found = findAside(workspace, base, category, name);
    if (found == workspace.aside.end()) {
        return true;
    }
    if (!keepChanges(workspace, *found)) {
        return false;
    }
    workspace.aside.erase(found);
    return true;
}

void tellNotKept(const FileFailure& failure) {
    debugLine("ERROR: " + failure.path + ": " + failure.reason);
    showMessage(
        {.text = failure.path + "\n\n" + failure.reason +
                 "\n\nThe unsaved changes are in the editor's memory only. They can be saved or discarded.",
         .caption = "Couldn't keep the unsaved changes",
         .icon = MessageIcon::Warning});
}

} // namespace varrocade
