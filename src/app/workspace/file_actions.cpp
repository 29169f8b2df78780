#include "app/workspace/file_actions.h"

#include "app/workspace/category_list.h"
#include "app/workspace/names/file_names.h"
#include "app/workspace/positions.h"
#include "app/workspace/record_files.h"
#include "data/format/texts.h"
#include "platform/messages.h"
#include "weapons/weapon_files.h"

namespace varrocade {

namespace {

/// The refusal of a name for another file of the open record. `taken`, that there is such a file, comes
/// before what the name begins with. A name whose former one did not begin with the nationality either need
/// not do so.
NameCheck refusalOfOtherName(const Workspace& workspace, const std::string& name, const NameCheck& taken) {
    if (auto refusal = refusalOfName(name)) {
        return refusal;
    }
    if (taken) {
        return taken;
    }
    const SquadRecord* unit = openUnit(workspace);
    if (unit != nullptr && !refusalOfNationality(unit->fileName, unit->nationality)) {
        return refusalOfNationality(name, unit->nationality);
    }
    return std::nullopt;
}

NameCheck checkOf(const SaveOutcome& outcome) {
    return !tellFailure(outcome) && outcome.result == SaveResult::Saved ? NameCheck() : NameCheck("");
}

SaveOutcome saveNew(Workspace& workspace, const Record& record) {
    const std::string& base = baseFolder(workspace);
    if (const auto* weapon = std::get_if<WeaponRecord>(&record)) {
        return saveWeapon(*workspace.files, workspace.backups, base, weapon->fileName, *weapon);
    }
    return saveUnit(*workspace.files, workspace.backups, base, workspace.category,
                    std::get<SquadRecord>(record));
}

} // namespace

NameCheck createUnit(Workspace& workspace, const std::string& name, const std::string& nationality) {
    if (auto refusal = refusalOfName(name)) {
        return refusal;
    }
    if (auto refusal = refusalOfNationality(name, nationality)) {
        return refusal;
    }
    if (workspace.files->exists(pathOf(workspace, name))) {
        return "Squad name already exists";
    }
    return checkOf(saveNew(workspace, newUnit(workspace.category, name, nationality)));
}

NameCheck createWeapon(Workspace& workspace, const std::string& name) {
    if (auto refusal = refusalOfName(name)) {
        return refusal;
    }
    if (workspace.files->exists(pathOf(workspace, name))) {
        return "Weapon name already exists";
    }
    return checkOf(saveNew(workspace, newWeapon(name)));
}

NameCheck duplicateRecord(Workspace& workspace, const std::string& name) {
    const bool isTaken = workspace.files->exists(pathOf(workspace, name));
    if (auto refusal =
            refusalOfOtherName(workspace, name, isTaken ? NameCheck("File already exists") : NameCheck())) {
        return refusal;
    }
    Record copy = workspace.open.present.record;
    setFileName(copy, name);
    return checkOf(saveNew(workspace, copy));
}

void openNewFile(Workspace& workspace, const std::string& name) {
    refillAndSelect(workspace, name);
    openFile(workspace, name);
}

NameCheck renameFile(Workspace& workspace, const std::string& name) {
    const std::string former = openFileName(workspace);
    const std::string target = pathOf(workspace, name);
    // Another case of the same letters is the same file to the system, and a fair new name.
    const bool isOnlyCase = equalsIgnoringCase(former, name) && former != name;
    const bool isTaken = !isOnlyCase && workspace.files->exists(target);
    if (auto refusal = refusalOfOtherName(workspace, name,
                                          isTaken ? NameCheck("That file already exists") : NameCheck())) {
        return refusal;
    }
    if (!workspace.files->rename(pathOf(workspace, former), target)) {
        showMessage({.text = pathOf(workspace, former) + "\n\n" + workspace.files->lastError(),
                     .caption = "Couldn't rename file",
                     .icon = MessageIcon::Warning});
        return "";
    }
    OpenRecord& open = workspace.open;
    setFileName(open.present.record, name);
    setFileName(open.saved.record, name);
    open.history.rename(name);
    return std::nullopt;
}

void showRenamed(Workspace& workspace) {
    refillAndSelect(workspace, openFileName(workspace));
    workspace.listener->recordChanged();
}

void deleteFile(Workspace& workspace) {
    const std::string name = workspace.list.selected;
    if (name.empty() || !isRecordOpen(workspace) || !mayLeavePositions(workspace)) {
        return;
    }
    const Answer answer = showMessage({.text = workspace.category == Category::Weapons
                                                   ? "Are you sure you want to delete this weapon?"
                                                   : "Are you sure you want to delete this squad?",
                                       .caption = "Delete",
                                       .buttons = MessageButtons::YesNo,
                                       .icon = MessageIcon::Question});
    if (answer != Answer::Yes) {
        return;
    }
    const std::string path = pathOf(workspace, name);
    if (workspace.backups.keep(*workspace.files, baseFolder(workspace), path) ||
        !workspace.files->recycle(path)) {
        showMessage({.text = path, .caption = "Couldn't delete file", .icon = MessageIcon::Warning});
        return;
    }
    const std::string next = nameAfterSelected(workspace.list);
    closeRecord(workspace);
    refillAndSelect(workspace, next);
    if (!next.empty()) {
        openFile(workspace, next);
    } else {
        workspace.listener->recordOpened();
    }
}

} // namespace varrocade
