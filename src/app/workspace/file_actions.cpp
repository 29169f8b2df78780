#include "app/workspace/file_actions.h"

#include "app/workspace/category_list.h"
#include "app/workspace/names/file_names.h"
#include "app/workspace/positions.h"
#include "app/workspace/record/kept_changes.h"
#include "app/workspace/record/unsaved_moves.h"
#include "app/workspace/record/unsaved_records.h"
#include "app/workspace/record_files.h"
#include "data/format/texts.h"
#include "data/unit/image_folders.h"
#include "data/unit/image_names.h"
#include "platform/messages.h"
#include "tools/renaming/rename_file.h"
#include "weapons/weapon_files.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace varrocade {

namespace {

/// The refusal of a name for a file that is to be written.
NameCheck refusalOfFile(const Workspace& workspace, const std::string& name) {
    if (auto refusal = refusalOfName(name)) {
        return refusal;
    }
    const std::size_t length = pathOf(workspace, name).size();
    if (length > MaxDataPathLength) {
        return "The path of the file would have " + std::to_string(length) +
               " characters. The game opens paths of at most " + std::to_string(MaxDataPathLength) + ".";
    }
    return std::nullopt;
}

/// Whether a name has its file, or a record with unsaved changes whose file is gone.
bool isTaken(const Workspace& workspace, const std::string& name) {
    return workspace.files->exists(pathOf(workspace, name)) || isAside(workspace, name);
}

/// The refusal of another nationality's name for the open record. One whose former name did not begin with
/// the nationality either need not do so.
NameCheck refusalOfOtherNationality(const Workspace& workspace, const std::string& name) {
    const SquadRecord* unit = openUnit(workspace);
    if (unit != nullptr && !refusalOfNationality(unit->fileName, unit->nationality)) {
        return refusalOfNationality(name, unit->nationality);
    }
    return std::nullopt;
}

NameCheck checkOf(const SaveOutcome& outcome) {
    return !tellFailure(outcome) && outcome.result == SaveResult::Saved ? NameCheck() : NameCheck("");
}

/// Takes a file away, whose content goes to the backups; the reason where that fails.
std::string removeKept(Workspace& workspace, const std::string& path, std::string& content) {
    FileOperations& files = *workspace.files;
    if (!files.read(path, content)) {
        return files.lastError();
    }
    if (const auto failure = workspace.backups.keepContent(files, baseFolder(workspace), path, content)) {
        return "Its content could not be kept as " + failure->path + ": " + failure->reason;
    }
    return files.recycle(path) && !files.exists(path) ? std::string() : files.lastError();
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

void noteFileStep(Workspace& workspace, FileStep step) {
    constexpr std::size_t mostSteps = 50;
    if (workspace.fileSteps.size() == mostSteps) {
        workspace.fileSteps.erase(workspace.fileSteps.begin());
    }
    workspace.fileSteps.push_back(std::move(step));
    workspace.isFileStepLast = true;
}

NameCheck createUnit(Workspace& workspace, const std::string& name, const std::string& nationality,
                     const UnitStart& start) {
    if (auto refusal = refusalOfFile(workspace, name)) {
        return refusal;
    }
    if (auto refusal = refusalOfNationality(name, nationality)) {
        return refusal;
    }
    if (isTaken(workspace, name)) {
        return "Squad name already exists";
    }
    SquadRecord unit = newUnit(workspace.category, name, nationality);
    beginWith(unit, workspace.category, start, workspace.catalogue, [&](std::string_view picture) {
        const std::vector<std::string> bases = imageBases(workspace);
        return std::any_of(bases.begin(), bases.end(), [&](const std::string& base) {
            return workspace.files->exists(base + std::string(image_folder::Units) + std::string(picture) +
                                           std::string(ImageEnding));
        });
    });
    return checkOf(saveNew(workspace, unit));
}

NameCheck createWeapon(Workspace& workspace, const std::string& name, WeaponType type) {
    if (auto refusal = refusalOfFile(workspace, name)) {
        return refusal;
    }
    if (isTaken(workspace, name)) {
        return "Weapon name already exists";
    }
    return checkOf(saveNew(workspace, newWeapon(name, type)));
}

NameCheck duplicateRecord(Workspace& workspace, const std::string& name) {
    if (auto refusal = refusalOfFile(workspace, name)) {
        return refusal;
    }
    if (isTaken(workspace, name)) {
        return "File already exists";
    }
    if (auto refusal = refusalOfOtherNationality(workspace, name)) {
        return refusal;
    }
    if (!mayCopyHandMade(workspace.open)) {
        return "";
    }
    Record copy = workspace.open.present.record;
    setFileName(copy, name);
    return checkOf(saveNew(workspace, copy));
}

void openNewFile(Workspace& workspace, const std::string& name) {
    refillAndSelect(workspace, name);
    openFile(workspace, name);
}

NameCheck refusalOfRenaming(const Workspace& workspace, const std::string& name) {
    const std::string former = openFileName(workspace);
    if (auto refusal = refusalOfFile(workspace, name)) {
        return refusal;
    }
    if (!equalsIgnoringCase(former, name) || former == name) {
        // Another case of the same letters is the same file to the system, and a fair new name.
        if (isTaken(workspace, name)) {
            return "That file already exists";
        }
    }
    return refusalOfOtherNationality(workspace, name);
}

NameCheck renameFile(Workspace& workspace, const std::string& name) {
    if (auto refusal = refusalOfRenaming(workspace, name)) {
        return refusal;
    }
    FileStep step{.record = workspace.open, .content = {}, .renamedTo = name};
    if (!giveName(workspace, name)) {
        return "";
    }
    noteFileStep(workspace, std::move(step));
    return std::nullopt;
}

bool giveName(Workspace& workspace, const std::string& name) {
    OpenRecord& open = workspace.open;
    const std::string from = pathOf(workspace, openFileName(workspace));
    std::string reason;
    if (const auto failure = workspace.backups.keep(*workspace.files, open.base, from)) {
        reason = failure->reason;
    } else {
        reason = renameFileOnDisk(*workspace.files, from, pathOf(workspace, name));
    }
    if (!reason.empty()) {
        showMessage({.text = from + "\n\n" + reason,
                     .caption = "Couldn't rename file",
                     .icon = MessageIcon::Warning});
        return false;
    }
    workspace.visits.rename({open.base, open.category, openFileName(workspace)}, name);
    setFileName(open.present.record, name);
    setFileName(open.saved.record, name);
    open.history.rename(name);
    return true;
}

void showRenamed(Workspace& workspace) {
    refillAndSelect(workspace, openFileName(workspace));
    workspace.listener->recordChanged();
}

void deleteFile(Workspace& workspace) {
    const std::string name = workspace.list.selected;
    if (name.empty() || name != listedOpenName(workspace) || isOfGame(workspace.list, name) ||
        !mayLeavePositions(workspace)) {
        return;
    }
    const Answer answer = showMessage({.text = workspace.category == Category::Weapons
                                                   ? "Are you sure you want to delete this weapon?"
                                                   : "Are you sure you want to delete this squad?",
                                       .caption = "Delete " + name,
                                       .buttons = MessageButtons::YesNo,
                                       .icon = MessageIcon::Question});
    if (answer != Answer::Yes) {
        return;
    }
    FileStep step{.record = workspace.open, .content = {}, .renamedTo = {}};
    step.record.present = withoutMoves(step.record);
    const std::string path = pathOf(workspace, name);
    if (!keepChanges(workspace, step.record)) {
        return;
    }
    if (const std::string reason = removeKept(workspace, path, step.content); !reason.empty()) {
        showMessage({.text = path + "\n\n" + reason,
                     .caption = "Couldn't delete file",
                     .icon = MessageIcon::Warning});
        return;
    }
    noteFileStep(workspace, std::move(step));
    const std::string next = nameAfterSelected(workspace.list);
    workspace.open = {};
    refillAndSelect(workspace, next);
    if (!next.empty()) {
        openFile(workspace, next);
    } else {
        workspace.listener->recordOpened();
    }
}

} // namespace varrocade
