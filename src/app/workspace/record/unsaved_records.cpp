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

/// The place of the present list's record among those that are not shown.
std::size_t placeAside(const Workspace& workspace, const std::string& name) {
    const auto& aside = workspace.aside;
    const auto found = std::find_if(aside.begin(), aside.end(), [&](const OpenRecord& record) {
        return isOf(record, baseFolder(workspace), workspace.category, name);
    });
    return static_cast<std::size_t>(found - aside.begin());
}

} // namespace

EntryMark markOf(const Workspace& workspace, const std::string& name) {
    const OpenRecord* record = nullptr;
    if (isOf(workspace.open, baseFolder(workspace), workspace.category, name)) {
        record = &workspace.open;
    } else if (const std::size_t place = placeAside(workspace, name); place < workspace.aside.size()) {
        record = &workspace.aside[place];
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
    return placeAside(workspace, name) < workspace.aside.size();
}

std::optional<OpenRecord> takeFromAside(Workspace& workspace, const std::string& name) {
    const std::size_t place = placeAside(workspace, name);
    if (place >= workspace.aside.size()) {
        return std::nullopt;
    }
    OpenRecord record = std::move(workspace.aside[place]);
    workspace.aside.erase(workspace.aside.begin() + static_cast<std::ptrdiff_t>(place));
    return record;
}

bool canSaveAll(const Workspace& workspace) {
    return workspace.open.isUnsaved() ||
           std::any_of(workspace.aside.begin(), workspace.aside.end(),
                       [&](const OpenRecord& record) { return record.base == baseFolder(workspace); });
}

} // namespace varrocade
