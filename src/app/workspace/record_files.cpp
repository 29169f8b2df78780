#include "app/workspace/record_files.h"

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
    open.category = workspace.category;
    if (workspace.category != Category::Weapons) {
        LoadedUnit unit = loadUnit(*workspace.files, baseFolder(workspace), workspace.category, name);
        take(open, unit, unit.diagnostics);
        return open;
    }
    LoadedWeapon weapon = loadWeapon(*workspace.files, baseFolder(workspace), name);
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

/// Before a file that was written by hand is replaced for the first time, tells what the game's layout has no
/// place for. What is only spelt otherwise is no reason to ask.
bool mayReplaceFile(const Workspace& workspace, const std::string& path) {
    std::string content;
    if (workspace.backups.hasKept(path) || !workspace.files->read(path, content)) {
        return true;
    }
    const Category category = workspace.open.category;
    auto losses = category == Category::Weapons ? std::optional(weaponSaveLosses(content))
                                                : unitSaveLosses(category, content);
    if (!losses) {
        return true;
    }
    std::erase_if(*losses, [](const Finding& loss) { return loss.key == finding_key::Respelt; });
    if (losses->empty()) {
        return true;
    }
    const Answer answer =
        showMessage({.text = "This file was written by hand. Saving it in the game's layout loses:\n\n" +
                             lossSummary(*losses) + "\nThe file as it is now is kept in the folder Backups.",
                     .caption = "Hand-made file",
                     .buttons = MessageButtons::OkCancel,
                     .icon = MessageIcon::Warning});
    return answer == Answer::Ok;
}

/// The path of the open record's file below a base folder.
std::string openPath(const Workspace& workspace, const std::string& base) {
    return dataFilePath(base, workspace.open.category, openFileName(workspace));
}

} // namespace

bool openFile(Workspace& workspace, const std::string& name) {
    closeRecord(workspace);
    workspace.open = loadRecord(workspace, name);
    workspace.listener->recordOpened();
    return isRecordOpen(workspace);
}

void reopenIfChanged(Workspace& workspace) {
    OpenRecord& open = workspace.open;
    if (!open.isOpen() || open.isUnsaved()) {
        return;
    }
    const std::string name = openFileName(workspace);
    std::string content;
    const bool isRead = workspace.files->read(openPath(workspace, baseFolder(workspace)), content);
    if (isRead &&
        (content == open.content || readRecord(open.category, content, name) == open.saved.record)) {
        open.content = std::move(content);
    } else {
        openFile(workspace, name);
    }
}

bool tellFailure(const SaveOutcome& outcome) {
    if (outcome.result != SaveResult::Failed) {
        return false;
    }
    tellDebugger(outcome.failure);
    showCouldNotSave(outcome.failure.path);
    return true;
}

SaveResult saveOpenRecord(Workspace& workspace) {
    OpenRecord& open = workspace.open;
    if (!open.isOpen()) {
        return SaveResult::NothingToSave;
    }
    const std::string& base = baseFolder(workspace);
    if (!mayReplaceFile(workspace, openPath(workspace, base))) {
        return SaveResult::Failed;
    }
    const WeaponRecord* weapon = openWeapon(workspace);
    SaveOutcome outcome =
        weapon != nullptr
            ? saveWeapon(*workspace.files, workspace.backups, base, weapon->fileName, *weapon)
            : saveUnit(*workspace.files, workspace.backups, base, open.category, *openUnit(workspace));
    if (weapon != nullptr) {
        workspace.catalogue.refresh(weapon->fileName);
    }
    tellFailure(outcome);
    if (outcome.result == SaveResult::Saved) {
        // The file holds moved positions too.
        open.saved = open.present;
        open.content = std::move(outcome.content);
        workspace.listener->recordSaved();
    }
    return outcome.result;
}

void keepUnsaved(Workspace& workspace, const std::string& base) {
    const OpenRecord& open = workspace.open;
    if (!open.isModified()) {
        return;
    }
    if (const auto text = fileTextOf(open.category, open.present.record)) {
        if (const auto failure =
                workspace.backups.keepUnsaved(*workspace.files, base, openPath(workspace, base), *text)) {
            tellDebugger(*failure);
        }
    }
}

void closeRecord(Workspace& workspace, const std::string& base) {
    keepUnsaved(workspace, base);
    workspace.open = {};
}

void closeRecord(Workspace& workspace) {
    closeRecord(workspace, baseFolder(workspace));
}

} // namespace varrocade
