#include "app/commands/open_record.h"

#include "app/windows/application.h"
#include "app/windows/file_list.h"
#include "app/windows/main_window.h"
#include "data/losses/save_losses.h"
#include "data/unit/unit_reader.h"
#include "editors/vehicle/details_dialog.h"
#include "platform/messages.h"
#include "view/drawing/part_positions.h"
#include "weapons/weapon_files.h"
#include "weapons/weapon_losses.h"

namespace varrocade {

bool openFile(const std::string& name) {
    Application& app = application();
    closeRecord();
    if (app.category == Category::Weapons) {
        app.openWeapon = loadWeapon(baseFolder(), name);
    } else {
        app.openUnit = loadUnit(baseFolder(), app.category, name);
        if (app.openUnit) {
            app.savedUnit = app.openUnit;
            app.history.start(*app.openUnit);
        }
    }
    showOpenRecord();
    return isRecordOpen();
}

void reopenIfChanged() {
    Application& app = application();
    if (!isRecordOpen() || isUnitModified() || app.weaponPosChanged || app.exhaustPosChanged) {
        return;
    }
    const std::string name = openFileName();
    const std::string path = dataFilePath(baseFolder(), app.category, name);
    std::string content;
    bool isSame = false;
    if (readWholeFile(path, content)) {
        Diagnostics diagnostics;
        WeaponReadReport report;
        isSame = app.openWeapon ? readWeapon(content, name, report) == *app.openWeapon
                                : readUnit(content, name, diagnostics) == *app.savedUnit;
    }
    if (!isSame) {
        openFile(name);
    }
}

namespace {

/// The first lines of what a save would lose, for a box of a readable size.
std::string lossSummary(const std::vector<SaveLoss>& losses) {
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
bool mayReplaceFile(Category category, const std::string& path) {
    std::string content;
    if (application().backups.hasKept(path) || !readWholeFile(path, content)) {
        return true;
    }
    auto losses = category == Category::Weapons ? std::optional(weaponSaveLosses(content))
                                                : unitSaveLosses(category, content);
    if (!losses) {
        return true;
    }
    std::erase_if(*losses, [](const SaveLoss& loss) { return loss.kind == LossKind::Respelt; });
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

} // namespace

SaveResult saveOpenRecord() {
    Application& app = application();
    const std::string name =
        app.openWeapon ? app.openWeapon->fileName : (app.openUnit ? app.openUnit->fileName.str() : "");
    if (isRecordOpen() && !mayReplaceFile(app.category, dataFilePath(baseFolder(), app.category, name))) {
        return SaveResult::Failed;
    }
    if (app.openWeapon) {
        const SaveResult result =
            saveWeapon(systemFiles(), app.backups, baseFolder(), app.openWeapon->fileName, *app.openWeapon);
        app.catalogue.refresh(app.openWeapon->fileName);
        return result;
    }
    if (app.openUnit) {
        const SaveResult result =
            saveUnit(systemFiles(), app.backups, baseFolder(), app.category, *app.openUnit);
        if (result == SaveResult::Saved) {
            // The file holds moved positions too.
            app.savedUnit = app.openUnit;
            app.weaponPosChanged = false;
            app.exhaustPosChanged = false;
        }
        return result;
    }
    return SaveResult::NothingToSave;
}

bool canEditOpenRecord() {
    const Application& app = application();
    return app.category == Category::Vehicles && app.openUnit && app.openUnit->vehicle;
}

void keepUnsavedUnit(const std::string& base) {
    Application& app = application();
    if (!isUnitModified()) {
        return;
    }
    const std::optional<std::string> text = unitFileText(app.category, *app.openUnit);
    const std::string path = dataFilePath(base, app.category, app.openUnit->fileName);
    if (text) {
        if (const auto failure = app.backups.keepUnsaved(systemFiles(), base, path, *text)) {
            debugLine("ERROR: " + failure->path + ": " + failure->reason);
        }
    }
}

namespace {

/// What the display keeps of each component goes with it.
void carryComponents(const FormerPlaces& places) {
    UnitDisplay& display = application().display;
    carryTurns(display.turns, places);
    display.selected = carriedPart(display.selected, places);
    display.movedPart = carriedPart(display.movedPart, places);
}

/// Goes to another state of the history.
void goTo(const SquadRecord& state) {
    Application& app = application();
    if (app.openUnit->vehicle && state.vehicle) {
        carryComponents(placesBetween(app.openUnit->vehicle->components, state.vehicle->components));
    }
    app.openUnit = state;
}

} // namespace

void unitChanged(std::string_view change) {
    Application& app = application();
    app.history.note(change, *app.openUnit);
    displayChanged();
    redrawNow();
    redrawSelectedEntry();
}

namespace {

/// After going to another state: shows it, and asks for its positions to be saved when they are not those of
/// the file.
void stateChanged() {
    Application& app = application();
    if (app.savedUnit) {
        const MovedPositions moved = movedPositions(*app.savedUnit, *app.openUnit);
        app.weaponPosChanged = moved.weapons;
        app.exhaustPosChanged = moved.exhausts;
    }
    displayChanged();
    redrawNow();
    redrawSelectedEntry();
}

} // namespace

void undoChange() {
    Application& app = application();
    if (app.openUnit && app.history.canUndo()) {
        goTo(app.history.undo());
        stateChanged();
    }
}

void redoChange() {
    Application& app = application();
    if (app.openUnit && app.history.canRedo()) {
        goTo(app.history.redo());
        stateChanged();
    }
}

void withEditContext(const std::function<bool(EditContext&)>& work) {
    Application& app = application();
    EditContext edit{.record = *app.openUnit,
                     .catalogue = app.catalogue,
                     .drawing = app.drawing,
                     .imageBases = imageBases(),
                     .rearranged = carryComponents,
                     .redraw =
                         [] {
                             displayChanged();
                             redrawNow();
                         },
                     .changed = unitChanged};
    if (work(edit)) {
        saveOpenRecord();
    }
    displayChanged();
    redrawNow();
    redrawSelectedEntry();
}

void editOpenRecord() {
    if (canEditOpenRecord()) {
        withEditContext(
            [](EditContext& edit) { return editVehicle(application().window, edit, application().drawing); });
    }
}

} // namespace varrocade
