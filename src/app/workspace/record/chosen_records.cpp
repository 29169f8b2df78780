#include "app/workspace/record/chosen_records.h"

#include "app/workspace/record/kept_changes.h"
#include "app/workspace/record_files.h"
#include "platform/messages.h"

#include <algorithm>
#include <functional>
#include <vector>

namespace varrocade {

namespace {

/// Places among `unsavedRecords`, taken apart.
struct Chosen {
    bool isOpenOne = false;
    std::vector<std::size_t> aside; ///< the places there, the last first
};

Chosen chosenOf(const Workspace& workspace, std::span<const std::size_t> places) {
    Chosen chosen;
    const std::size_t first = workspace.open.isUnsaved() ? 1 : 0;
    for (const std::size_t place : places) {
        if (place < first) {
            chosen.isOpenOne = true;
        } else if (place - first < workspace.aside.size()) {
            chosen.aside.push_back(place - first);
        }
    }
    std::sort(chosen.aside.begin(), chosen.aside.end(), std::greater<>());
    return chosen;
}

bool mayDiscard(const Workspace& workspace, const Chosen& chosen) {
    if (chosen.aside.empty()) {
        return true;
    }
    std::string names;
    for (const std::size_t place : chosen.aside) {
        const OpenRecord& record = workspace.aside[place];
        names +=
            "\n    " + std::string(categoryName(record.category)) + ": " + fileNameOf(record.present.record);
    }
    return showMessage({.text = "Discard the changes of these files?\n" + names +
                                "\n\nA copy of each is kept in the folder Backups.",
                        .caption = "Discard changes",
                        .buttons = MessageButtons::YesNo,
                        .icon = MessageIcon::Question}) == Answer::Yes;
}

} // namespace

bool saveChosen(Workspace& workspace, std::span<const std::size_t> places) {
    const Chosen chosen = chosenOf(workspace, places);
    bool isAllSaved = true;
    for (const std::size_t place : chosen.aside) {
        OpenRecord& record = workspace.aside[place];
        isAllSaved = saveRecord(workspace, record, record.base) != SaveResult::Failed && isAllSaved;
    }
    // Saving the open one below another base folder may take a record of that file out of memory.
    std::erase_if(workspace.aside, [](const OpenRecord& record) { return !record.isUnsaved(); });
    if (chosen.isOpenOne) {
        isAllSaved = saveOpenRecord(workspace) != SaveResult::Failed && isAllSaved;
    }
    workspace.listener->listOutdated(workspace);
    return isAllSaved;
}

void discardChosen(Workspace& workspace, std::span<const std::size_t> places) {
    const Chosen chosen = chosenOf(workspace, places);
    if (!mayDiscard(workspace, chosen)) {
        return;
    }
    for (const std::size_t place : chosen.aside) {
        const auto record = workspace.aside.begin() + static_cast<std::ptrdiff_t>(place);
        if (keepChanges(workspace, *record)) {
            workspace.aside.erase(record);
        }
    }
    if (chosen.isOpenOne) {
        discardChanges(workspace);
    }
    workspace.listener->marksChanged();
}

} // namespace varrocade
