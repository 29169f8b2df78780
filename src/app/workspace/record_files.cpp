#include "app/workspace/record_files.h"

#include "app/workspace/record/kept_changes.h"
#include "app/workspace/record/unsaved_moves.h"
#include "app/workspace/record/unsaved_records.h"
#include "data/finding_text.h"
#include "data/losses/save_losses.h"
#include "data/reading/unit_reader.h"
#include "platform/messages.h"
#include "weapons/weapon_files.h"
#include "weapons/weapon_losses.h"

#include <utility>
#include <vector>

namespace varrocade {

namespace {

void tellDebugger(const Diagnostics& diagnostics) {
    for (const Finding& finding : diagnostics) {
        debugLine(debuggerLine(finding));
    }
}

/// The weapon's name is the caption: without one there is no box.
void tellUnknownTypes(const Diagnostics& diagnostics) {
    constexpr int mostBoxes = 3;
    int boxes = 0;
    for (const Finding& finding : diagnostics) {
        if (finding.key == finding_key::UnknownWeaponType && !finding.subject.empty() && boxes < mostBoxes) {
            ++boxes;
            showMessage({.text = "unknown <type> '" + finding.value + "'",
                         .caption = finding.subject,
                         .icon = MessageIcon::Error});
        }
    }
}

void tellDebugger(const FileFailure& failure) {
    debugLine("ERROR: " + failure.path + ": " + failure.reason);
}

/// What a loaded unit or weapon has in common.
template <typename Loaded>
void take(OpenRecord& open, Loaded& loaded, const Diagnostics& diagnostics) {
    if (!loaded.record) {
        tellDebugger(loaded.failure);
        showCouldNotLoad(loaded.failure.path);
        return;
    }
    tellDebugger(diagnostics);
    open.present.record = std::move(*loaded.record);
    open.saved = open.present;
    open.history.start(open.present);
    open.content = std::move(loaded.content);
}

OpenRecord loadRecord(const Workspace& workspace, const std::string& name) {
    OpenRecord open;
    open.base = baseOfEntry(workspace, name);
    open.category = workspace.category;
    if (workspace.category != Category::Weapons) {
        LoadedUnit unit = loadUnit(*workspace.files, open.base, workspace.category, name);
        take(open, unit, unit.diagnostics);
        return open;
    }
    LoadedWeapon weapon = loadWeapon(*workspace.files, open.base, name);
    take(open, weapon, weapon.diagnostics);
    tellUnknownTypes(weapon.diagnostics);
    return open;
}

/// The first lines of what a save would lose, for a box of a readable size.
std::string lossSummary(const std::vector<Finding>& losses) {
    constexpr std::size_t mostLines = 12;
    std::string text;
    for (std::size_t i = 0; i < losses.size() && i < mostLines; ++i) {
        text += "line " + lossText(losses[i]) + "\n";
    }
    if (losses.size() > mostLines) {
        text += "and " + std::to_string(losses.size() - mostLines) + " more\n";
    }
    return text;
}

/// What the box about a hand-made file says around the list of what is lost.
struct HandMadeWords {
    std::string_view before;
    std::string_view after;
};

/// Tells what the game's layout has no place for of a file that was written by hand; false where the user
/// would rather not. What is only spelt otherwise is no reason to ask.
bool mayLoseHandMade(const OpenRecord& record, const std::string& content, const HandMadeWords& words) {
    if (content.empty() || content == fileTextOf(record.category, record.saved.record)) {
        return true;
    }
    auto losses = record.category == Category::Weapons ? std::optional(weaponSaveLosses(content))
                                                       : unitSaveLosses(record.category, content);
    if (!losses) {
        return true;
    }
    std::erase_if(*losses, [](const Finding& loss) { return loss.key == finding_key::Respelt; });
    if (losses->empty()) {
        return true;
    }
    const Answer answer =
        showMessage({.text = "This file was written by hand. " + std::string(words.before) + ":\n\n" +
                             lossSummary(*losses) + "\n" + std::string(words.after),
                     .caption = "Hand-made file",
                     .buttons = MessageButtons::OkCancel,
                     .icon = MessageIcon::Warning});
    return answer == Answer::Ok;
}

bool mayReplaceHandMade(const OpenRecord& record, const std::string& content) {
    return mayLoseHandMade(
        record, content,
        {"Saving it in the game's layout loses", "The file as it is now is kept in the folder Backups."});
}

Answer askAboutOutsideChange(const std::string& path) {
    return showMessage(
        {.text = path + "\n\nThis file is not what was opened here: another program has changed it, or "
                        "it is the mod's.\n\nYes: reload it (Undo brings your changes back)\nNo: "
                        "overwrite it (it is kept in the folder Backups)\nCancel: leave both as they are",
         .caption = "Changed outside",
         .buttons = MessageButtons::YesNoCancel,
         .icon = MessageIcon::Warning});
}

/// Takes what the file holds for the record, as a change that can be undone.
void reload(OpenRecord& record, std::string content) {
    const bool wasMoved = record.weaponPosChanged() || record.exhaustPosChanged();
    record.present.record = readRecord(record.category, content, fileNameOf(record.present.record));
    if (wasMoved) {
        // Undone, the moves are unsaved again.
        record.present.weaponMove = record.present.exhaustMove = ++record.lastMove;
    }
    record.saved = record.present;
    record.content = std::move(content);
    record.isChangedOutside = false;
    record.history.note("Reload", record.present);
}

std::string pathOf(const OpenRecord& record, const std::string& base) {
    return dataFilePath(base, record.category, fileNameOf(record.present.record));
}

/// Marks a record with unsaved changes whose file is another than the one that was read.
bool markIfChangedOutside(Workspace& workspace, OpenRecord& record) {
    std::string content;
    const bool isRead = workspace.files->read(pathOf(record, record.base), content);
    const bool was = std::exchange(record.isChangedOutside, !isRead || content != record.content);
    return was != record.isChangedOutside;
}

SaveOutcome write(Workspace& workspace, const OpenRecord& record, const std::string& base) {
    if (const auto* weapon = std::get_if<WeaponRecord>(&record.present.record)) {
        SaveOutcome outcome =
            saveWeapon(*workspace.files, workspace.backups, base, weapon->fileName, *weapon);
        workspace.catalogue.refresh(weapon->fileName);
        return outcome;
    }
    return saveUnit(*workspace.files, workspace.backups, base, record.category,
                    std::get<SquadRecord>(record.present.record));
}

} // namespace

bool openFile(Workspace& workspace, const std::string& name) {
    closeRecord(workspace);
    if (auto kept = takeFromAside(workspace, name)) {
        workspace.open = std::move(*kept);
        markIfChangedOutside(workspace, workspace.open);
    } else {
        workspace.open = loadRecord(workspace, name);
        if (!isRecordOpen(workspace) && !workspace.files->exists(pathOf(workspace, name))) {
            workspace.listener->listOutdated(workspace);
        }
    }
    noteVisit(workspace);
    workspace.listener->recordOpened();
    return isRecordOpen(workspace);
}

void reopenIfChanged(Workspace& workspace) {
    OpenRecord& open = workspace.open;
    if (!open.isOpen()) {
        return;
    }
    if (open.isUnsaved()) {
        if (markIfChangedOutside(workspace, open)) {
            workspace.listener->marksChanged();
        }
        return;
    }
    const std::string name = openFileName(workspace);
    std::string content;
    const bool isRead = workspace.files->read(pathOf(open, open.base), content);
    if (isRead &&
        (content == open.content || readRecord(open.category, content, name) == open.saved.record)) {
        open.content = std::move(content);
    } else if (open.base == baseFolder(workspace) && open.category == workspace.category) {
        openFile(workspace, name);
    }
}

bool noticeOutsideChanges(Workspace& workspace) {
    std::vector<std::string> ofGame;
    if (namesToList(workspace, ofGame) != workspace.list.all) {
        workspace.listener->listOutdated(workspace);
    }
    const auto isLocked = [&workspace](const OpenRecord& record) {
        const std::string path = pathOf(record, record.base);
        std::string content;
        return workspace.files->exists(path) && !workspace.files->read(path, content);
    };
    bool isAnyLocked = false;
    bool isMarkChanged = false;
    for (OpenRecord& record : workspace.aside) {
        if (isLocked(record)) {
            isAnyLocked = true;
        } else {
            isMarkChanged = markIfChangedOutside(workspace, record) || isMarkChanged;
        }
    }
    if (isMarkChanged) {
        workspace.listener->marksChanged();
    }
    const OpenRecord& open = workspace.open;
    if (open.isOpen() && workspace.files->exists(pathOf(open, open.base))) {
        if (isLocked(open)) {
            return false;
        }
        reopenIfChanged(workspace);
    }
    return !isAnyLocked;
}

bool tellFailure(const SaveOutcome& outcome) {
    if (outcome.result != SaveResult::Failed) {
        return false;
    }
    tellDebugger(outcome.failure);
    showCouldNotSave(outcome.failure.path);
    return true;
}

namespace {

/// Whether a record that is to be saved below another base folder finds one with unsaved changes of that
/// file.
bool hasRival(const Workspace& workspace, const OpenRecord& record, const std::string& base) {
    return record.base != base && findAside(workspace, base, record.category,
                                            fileNameOf(record.present.record)) != workspace.aside.end();
}

/// Asks before a file is replaced: yes to reload what it holds, no to replace it.
Answer mayReplace(const Workspace& workspace, const OpenRecord& record, const std::string& base,
                  const std::string& content) {
    const Answer answer = content == record.content && !hasRival(workspace, record, base)
                              ? Answer::No
                              : askAboutOutsideChange(pathOf(record, base));
    return answer == Answer::No && !mayReplaceHandMade(record, content) ? Answer::Cancel : answer;
}

} // namespace

SaveResult saveRecord(Workspace& workspace, OpenRecord& record, const std::string& base) {
    const std::string path = pathOf(record, base);
    std::string content;
    if (workspace.files->read(path, content)) {
        const Answer answer = mayReplace(workspace, record, base, content);
        if (answer != Answer::Yes && answer != Answer::No) {
            return SaveResult::Failed;
        }
        if (answer == Answer::Yes && !keepChanges(workspace, record)) {
            return SaveResult::Failed;
        }
        if (hasRival(workspace, record, base) &&
            !dropAside(workspace, base, record.category, fileNameOf(record.present.record))) {
            return SaveResult::Failed;
        }
        if (answer == Answer::Yes) {
            reload(record, std::move(content));
            record.base = base;
            return SaveResult::NothingToSave;
        }
    } else if (workspace.files->exists(path)) {
        // What cannot be compared is not replaced.
        record.saveFailure = workspace.files->lastError();
        tellFailure({.result = SaveResult::Failed, .failure = {path, record.saveFailure}, .content = {}});
        return SaveResult::Failed;
    }
    SaveOutcome outcome = write(workspace, record, base);
    tellFailure(outcome);
    record.saveFailure = outcome.failure.reason;
    if (outcome.result == SaveResult::Saved) {
        // The file holds moved positions too.
        record.saved = record.present;
        record.content = std::move(outcome.content);
        record.base = base;
        record.isChangedOutside = false;
    }
    return outcome.result;
}

bool mayCopyHandMade(const OpenRecord& record) {
    return mayLoseHandMade(record, record.content,
                           {"A copy in the game's layout does not have", "The file itself stays as it is."});
}

SaveResult saveOpenRecord(Workspace& workspace) {
    OpenRecord& open = workspace.open;
    if (!open.isOpen()) {
        return SaveResult::NothingToSave;
    }
    const std::string former = open.base;
    const SaveResult result = saveRecord(workspace, open, baseFolder(workspace));
    if (result == SaveResult::Failed) {
        if (!open.saveFailure.empty()) {
            workspace.listener->recordChanged();
        }
        return result;
    }
    if (open.base != former || !isListed(workspace.list, openFileName(workspace))) {
        workspace.listener->listOutdated(workspace);
    }
    if (result == SaveResult::Saved) {
        workspace.listener->recordSaved();
    } else {
        workspace.listener->recordChanged();
    }
    return result;
}

bool saveAll(Workspace& workspace) {
    bool isAllSaved = !workspace.open.isUnsaved() || saveOpenRecord(workspace) != SaveResult::Failed;
    const std::string base = baseFolder(workspace);
    for (OpenRecord& record : workspace.aside) {
        if (record.base == base) {
            isAllSaved = saveRecord(workspace, record, base) != SaveResult::Failed && isAllSaved;
        }
    }
    std::erase_if(workspace.aside, [](const OpenRecord& record) { return !record.isUnsaved(); });
    workspace.listener->listOutdated(workspace);
    return isAllSaved;
}

void discardChanges(Workspace& workspace) {
    OpenRecord& open = workspace.open;
    if (!open.isUnsaved()) {
        return;
    }
    if (!keepChanges(workspace, open)) {
        return;
    }
    if (std::holds_alternative<std::monostate>(open.saved.record)) {
        open = {};
        workspace.listener->recordOpened();
        return;
    }
    open.present = open.saved;
    open.history.note("Discard changes", open.present);
    workspace.isFileStepLast = false;
    workspace.listener->recordChanged();
}

void closeRecord(Workspace& workspace) {
    OpenRecord open = std::exchange(workspace.open, {});
    if (!open.isOpen()) {
        return;
    }
    const RecordState kept = withoutMoves(open);
    if (open.weaponPosChanged() || open.exhaustPosChanged()) {
        open.present = kept;
        open.history.note("Leave the moved positions", kept);
    }
    if (open.isModified()) {
        workspace.aside.push_back(std::move(open));
    }
    workspace.listener->marksChanged();
}

} // namespace varrocade
