#include "app/workspace/record/unsaved_records.h"

#include "data/format/texts.h"

#include <algorithm>
#include <utility>

namespace varrocade {

namespace {

bool isOf(const OpenRecord& record, const std::string& base, Category category, const std::string& name) {
    return record.category == category && record.base == base &&
           equalsIgnoringCase(fileNameOf(record.present.record), name);
}

/// The same of a name of the present list.
std::vector<OpenRecord>::const_iterator listedAside(const Workspace& workspace, const std::string& name) {
    return findAside(workspace, baseOfEntry(workspace, name), workspace.category, name);
}

} // namespace

std::vector<OpenRecord>::const_iterator findAside(const Workspace& workspace, const std::string& base,
                                                  Category category, const std::string& name) {
    return std::find_if(workspace.aside.begin(), workspace.aside.end(),
                        [&](const OpenRecord& record) { return isOf(record, base, category, name); });
}

bool isInMemory(const Workspace& workspace, const std::string& base, Category category,
                const std::string& name) {
    return isOf(workspace.open, base, category, name) ||
           findAside(workspace, base, category, name) != workspace.aside.end();
}

EntryMark markOf(const Workspace& workspace, const std::string& name) {
    const OpenRecord* record = nullptr;
    if (isOf(workspace.open, baseOfEntry(workspace, name), workspace.category, name)) {
        record = &workspace.open;
    } else if (const auto found = listedAside(workspace, name); found != workspace.aside.end()) {
        record = &*found;
    }
    if (record == nullptr || !record->isUnsaved()) {
        return EntryMark::None;
    }
    return record->isChangedOutside ? EntryMark::ChangedOutside : EntryMark::Unsaved;
}

std::vector<const OpenRecord*> unsavedRecords(const Workspace& workspace) {
    std::vector<const OpenRecord*> records;
    if (workspace.open.isUnsaved()) {
        records.push_back(&workspace.open);
    }
    for (const OpenRecord& record : workspace.aside) {
        records.push_back(&record);
    }
    return records;
}

std::string unsavedRecordText(const Workspace& workspace, const OpenRecord& record) {
    std::string text = std::string(categoryName(record.category)) + ": " + fileNameOf(record.present.record);
    if (record.base != baseFolder(workspace)) {
        text += " (in " + record.base + ")";
    }
    return record.isChangedOutside ? text + " (changed outside)" : text;
}

bool isAside(const Workspace& workspace, const std::string& name) {
    return listedAside(workspace, name) != workspace.aside.end();
}

std::optional<OpenRecord> takeFromAside(Workspace& workspace, const std::string& name) {
    const auto found = listedAside(workspace, name);
    if (found == workspace.aside.end()) {
        return std::nullopt;
    }
    OpenRecord record = *found;
    workspace.aside.erase(found);
    return record;
}

bool canSaveAll(const Workspace& workspace) {
    return workspace.open.isUnsaved() ||
           std::any_of(workspace.aside.begin(), workspace.aside.end(),
                       [&](const OpenRecord& record) { return record.base == baseFolder(workspace); });
}

} // namespace varrocade
