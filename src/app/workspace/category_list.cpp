#include "app/workspace/category_list.h"

#include "app/workspace/positions.h"
#include "app/workspace/record/unsaved_records.h"
#include "app/workspace/record_files.h"

namespace varrocade {

namespace {

bool select(Workspace& workspace, const std::string& name) {
    const bool isShown = selectName(workspace.list, name);
    workspace.listener->selectionChanged();
    return isShown;
}

void dropFilter(Workspace& workspace) {
    if (!workspace.list.filter.empty()) {
        workspace.list.filter.clear();
        workspace.listener->filterDropped();
    }
}

/// Selects an entry, and drops the filter when that hides it.
void selectUnfiltered(Workspace& workspace, const std::string& name) {
    if (!selectName(workspace.list, name)) {
        dropFilter(workspace);
        filterNames(workspace.list, {});
    }
    select(workspace, name);
}

} // namespace

void setFilter(Workspace& workspace, const std::string& filter) {
    workspace.list.filter = filter;
    filterNames(workspace.list, listedOpenName(workspace));
    workspace.listener->namesChanged();
}

void openEntry(Workspace& workspace, const std::string& name) {
    if (name.empty()) {
        return;
    }
    selectName(workspace.list, name);
    if (isRecordOpen(workspace) && name == listedOpenName(workspace)) {
        reopenIfChanged(workspace);
        return;
    }
    if (!mayLeavePositions(workspace)) {
        select(workspace, listedOpenName(workspace));
        return;
    }
    rememberedSelection(workspace) = name;
    openFile(workspace, name);
}

bool openFirstShown(Workspace& workspace) {
    const NameList& list = workspace.list;
    if (list.shown.empty()) {
        return false;
    }
    if (list.selected.empty()) {
        const std::string name = list.shown.front();
        select(workspace, name);
        openEntry(workspace, name);
    }
    return true;
}

void chooseCategory(Workspace& workspace, Category category) {
    if (category == workspace.category) {
        workspace.listener->listOutdated(workspace);
        return;
    }
    if (!mayLeavePositions(workspace)) {
        return;
    }
    closeRecord(workspace);
    dropFilter(workspace);
    workspace.category = category;
    workspace.listener->listOutdated(workspace);
    const std::string remembered = rememberedSelection(workspace);
    if (select(workspace, remembered)) {
        openFile(workspace, remembered);
    } else {
        workspace.listener->recordOpened();
    }
}

void showFile(Workspace& workspace, Category category, const std::string& name) {
    if (category != workspace.category) {
        // So that the file selected there last is not opened in between.
        workspace.rememberedSelections[static_cast<std::size_t>(category)] = name;
        chooseCategory(workspace, category);
    }
    if (category == workspace.category) {
        selectUnfiltered(workspace, name);
        openEntry(workspace, workspace.list.selected);
    }
}

void showUnsaved(Workspace& workspace, std::size_t index) {
    const auto records = unsavedRecords(workspace);
    if (index >= records.size() || records[index] == &workspace.open ||
        records[index]->base != baseFolder(workspace)) {
        return;
    }
    const Category category = records[index]->category;
    const std::string name = fileNameOf(records[index]->present.record);
    showFile(workspace, category, name);
    // One whose file is gone is not in the list.
    if (category == workspace.category && isAside(workspace, name) && mayLeavePositions(workspace)) {
        openFile(workspace, name);
    }
}

void refillAndSelect(Workspace& workspace, const std::string& name) {
    if (workspace.category == Category::Weapons) {
        loadCatalogue(workspace);
    }
    workspace.listener->listOutdated(workspace);
    selectUnfiltered(workspace, name);
    rememberedSelection(workspace) = name;
}

void refreshAll(Workspace& workspace) {
    loadCatalogue(workspace);
    workspace.listener->listOutdated(workspace);
    if (!listedOpenName(workspace).empty() && !workspace.list.selected.empty()) {
        reopenIfChanged(workspace);
    }
    workspace.listener->recordChanged();
}

} // namespace varrocade
