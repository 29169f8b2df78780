#include "app/open_record.h"

#include "app/application.h"
#include "app/main_window.h"
#include "data/unit_reader.h"
#include "editors/vehicle_editor.h"
#include "weapons/weapon_files.h"

namespace varrocade {

bool openFile(const std::string& name) {
    Application& app = application();
    closeRecord();
    if (app.category == Category::Weapons) {
        app.openWeapon = loadWeapon(baseFolder(), name);
    } else {
        app.openUnit = loadUnit(baseFolder(), app.category, name);
    }
    showOpenRecord();
    return isRecordOpen();
}

SaveResult saveOpenRecord() {
    Application& app = application();
    if (app.openWeapon) {
        return saveWeapon(systemFiles(), app.backups, baseFolder(), app.openWeapon->fileName, *app.openWeapon);
    }
    if (app.openUnit) {
        return saveUnit(systemFiles(), app.backups, baseFolder(), app.category, *app.openUnit);
    }
    return SaveResult::NothingToSave;
}

bool canEditOpenRecord() {
    const Application& app = application();
    return app.category == Category::Vehicles && app.openUnit && app.openUnit->vehicle;
}

void editOpenRecord() {
    Application& app = application();
    if (!canEditOpenRecord()) {
        return;
    }
    const bool isKept = editVehicle({.owner = app.window,
                                     .record = *app.openUnit,
                                     .imageBases = imageBases(),
                                     .redraw = [] {
                                         displayChanged();
                                         redrawNow();
                                     }});
    if (isKept && saveOpenRecord() == SaveResult::Saved) {
        // The file holds the positions too, moved ones among them.
        app.weaponPosChanged = false;
        app.exhaustPosChanged = false;
    }
    displayChanged();
    redrawNow();
}

} // namespace varrocade
