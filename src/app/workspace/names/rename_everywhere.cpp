#include "app/workspace/names/rename_everywhere.h"

#include "app/workspace/category_list.h"
#include "app/workspace/file_actions.h"
#include "app/workspace/positions.h"
#include "app/workspace/record/unsaved_records.h"
#include "app/workspace/record_files.h"
#include "data/format/texts.h"
#include "platform/messages.h"
#include "tools/references.h"
#include "tools/where_used.h"

#include <algorithm>
#include <utility>

namespace varrocade {

namespace {

std::string pathOf(const OpenRecord& record) {
    return dataFilePath(record.base, record.category, fileNameOf(record.present.record));
}

const FileRewrite* rewriteOf(std::span<const FileRewrite> rewrites, const OpenRecord& record) {
    const std::string path = pathOf(record);
    const auto found = std::find_if(rewrites.begin(), rewrites.end(), [&](const FileRewrite& rewrite) {
        return equalsIgnoringCase(rewrite.path, path);
    });
    return found == rewrites.end() ? nullptr : &*found;
}

bool hasName(const Record& record, const std::string& name) {
    bool isFound = false;
    const auto visit = [&](const Reference& reference) {
        const std::string_view written = bareName(reference.written);
        isFound |= equalsIgnoringCase(written.substr(written.find_last_of("\\/") + 1), name);
    };
    if (const auto* unit = std::get_if<SquadRecord>(&record)) {
        forEachReference(*unit, visit);
    } else if (const auto* weapon = std::get_if<WeaponRecord>(&record)) {
        forEachReference(*weapon, visit);
    }
    return isFound;
}

/// The name of a data file by its path.
std::string nameOfPath(const std::string& path) {
    const std::size_t begin = path.rfind('\\') + 1;
    return path.substr(begin, path.size() - begin - DataFileEnding.size());
}

/// The names that the files of the categories have now are remembered in the place of the former ones.
void follow(Workspace& workspace, std::span<const FileRewrite> rewrites) {
    for (const FileRewrite& rewrite : rewrites) {
        if (rewrite.path == rewrite.newPath || rewrite.keepsContent) {
            continue;
        }
        for (const Category category : AllCategories) {
            if (!rewrite.path.starts_with(categoryFolder(baseFolder(workspace), category))) {
                continue;
            }
            const std::string former = nameOfPath(rewrite.path);
            const std::string name = nameOfPath(rewrite.newPath);
            std::string& remembered = workspace.rememberedSelections[static_cast<std::size_t>(category)];
            remembered = remembered == former ? name : remembered;
            workspace.visits.rename({baseFolder(workspace), category, former}, name);
        }
    }
}

/// Reads the list and the open record anew, whose file may have changed or have another name.
void showAfter(Workspace& workspace, std::span<const FileRewrite> rewrites) {
    follow(workspace, rewrites);
    loadCatalogue(workspace);
    const FileRewrite* open = isRecordOpen(workspace) ? rewriteOf(rewrites, workspace.open) : nullptr;
    const std::string name = open != nullptr ? nameOfPath(open->newPath) : workspace.list.selected;
    if (open != nullptr) {
        workspace.open = {};
    }
    refillAndSelect(workspace, name);
    if (open != nullptr) {
        openFile(workspace, name);
    } else {
        workspace.listener->recordChanged();
    }
}

bool writeAll(Workspace& workspace, std::span<const FileRewrite> rewrites) {
    const auto failure = applyRewrites(*workspace.files, workspace.backups, baseFolder(workspace), rewrites);
    if (failure) {
        showMessage({.text = failure->path + "\n\n" + failure->reason + "\n\nNothing is renamed.",
                     .caption = "Couldn't rename",
                     .icon = MessageIcon::Warning});
    }
    return !failure;
}

} // namespace

std::vector<std::size_t> unsavedWithName(const Workspace& workspace, const RenamePlan& plan,
                                         const std::string& name) {
    std::vector<std::size_t> places;
    const std::vector<const OpenRecord*> records = unsavedRecords(workspace);
    for (std::size_t i = 0; i < records.size(); ++i) {
        if (records[i]->base == plan.base &&
            (rewriteOf(plan.rewrites, *records[i]) != nullptr || hasName(records[i]->present.record, name))) {
            places.push_back(i);
        }
    }
    return places;
}

bool renameEverywhere(Workspace& workspace, const RenamePlan& plan) {
    if (!plan.isPossible() || plan.base != baseFolder(workspace) || !mayLeavePositions(workspace)) {
        return false;
    }
    FileStep step{.record = workspace.open, .content = {}, .renamedTo = {}, .rewrites = plan.rewrites};
    step.name = "Rename " + plan.changes.front().from + " everywhere";
    step.base = plan.base;
    if (!writeAll(workspace, plan.rewrites)) {
        return false;
    }
    showAfter(workspace, plan.rewrites);
    noteFileStep(workspace, std::move(step));
    return true;
}

bool undoRenaming(Workspace& workspace, const FileStep& step) {
    const std::vector<FileRewrite> rewrites = reversed(step.rewrites);
    std::string inTheWay;
    for (const OpenRecord* record : unsavedRecords(workspace)) {
        if (rewriteOf(rewrites, *record) != nullptr) {
            inTheWay += "\n    " + unsavedRecordText(workspace, *record);
        }
    }
    if (!inTheWay.empty()) {
        showMessage(
            {.text = "These files have changes that are not saved. Save or discard them first:\n" + inTheWay,
             .caption = "Couldn't rename",
             .icon = MessageIcon::Warning});
        return false;
    }
    if (!mayLeavePositions(workspace) || !writeAll(workspace, rewrites)) {
        return false;
    }
    const bool isSameOpen = isRecordOpen(workspace) && step.record.isOpen() &&
                            rewriteOf(rewrites, workspace.open) != nullptr &&
                            rewriteOf(step.rewrites, step.record) != nullptr &&
                            rewriteOf(rewrites, workspace.open)->newPath == pathOf(step.record);
    showAfter(workspace, rewrites);
    if (isSameOpen) {
        // With its history from before.
        workspace.open = step.record;
        workspace.listener->recordOpened();
    }
    return true;
}

} // namespace varrocade
