#include "app/open_record.h"

#include "app/application.h"
#include "app/file_list.h"
#include "app/main_window.h"
#include "data/unit_reader.h"
#include "editors/vehicle_editor.h"
#include "platform/messages.h"
#include "weapons/weapon_files.h"

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

SaveResult saveOpenRecord() {
    Application& app = application();
    if (app.openWeapon) {
        const SaveResult result =
            saveWeapon(systemFiles(), app.backups, baseFolder(), app.openWeapon->fileName, *app.openWeapon);
        app.catalogue.refresh(app.openWeapon->fileName);
        return result;
    }
    if (app.openUnit) {
        const SaveResult result = saveUnit(systemFiles(), app.backups, baseFolder(), app.category, *app.openUnit);
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

void keepUnsavedUnit() {
    Application& app = application();
    if (!isUnitModified()) {
        return;
    }
    const std::optional<std::string> text = unitFileText(app.category, *app.openUnit);
    const std::string path = dataFilePath(baseFolder(), app.category, app.openUnit->fileName);
    if (text) {
        if (const auto failure = app.backups.keepUnsaved(systemFiles(), baseFolder(), path, *text)) {
            debugLine("ERROR: " + failure->path + ": " + failure->reason);
        }
    }
}

void unitChanged(std::string_view change) {
    Application& app = application();
    app.history.note(change, *app.openUnit);
    displayChanged();
    redrawNow();
    redrawSelectedEntry();
}

void undoChange() {
    Application& app = application();
    if (app.openUnit && app.history.canUndo()) {
        app.openUnit = app.history.undo();
        displayChanged();
        redrawNow();
        redrawSelectedEntry();
    }
}

void redoChange() {
    Application& app = application();
    if (app.openUnit && app.history.canRedo()) {
        app.openUnit = app.history.redo();
        displayChanged();
        redrawNow();
        redrawSelectedEntry();
    }
}

void editOpenRecord() {
    Application& app = application();
    if (!canEditOpenRecord()) {
        return;
    }
    EditContext edit{.record = *app.openUnit,
                     .catalogue = app.catalogue,
                     .imageBases = imageBases(),
                     .redraw =
                         [] {
                             displayChanged();
                             redrawNow();
                         },
                     .changed = unitChanged};
    if (editVehicle(app.window, edit, app.drawing)) {
        saveOpenRecord();
    }
    displayChanged();
    redrawNow();
    redrawSelectedEntry();
}

} // namespace varrocade
