#include "app/windows/application.h"

#include "app/commands/open_record.h"

namespace varrocade {

Application& application() {
    static Application instance;
    return instance;
}

const std::string& baseFolder() {
    const Application& app = application();
    return app.modMode ? app.modFolder : app.programFolder;
}

GameFolders gameFolders() {
    const Application& app = application();
    return {.program = app.programFolder, .mod = app.modMode ? app.modFolder : std::string()};
}

std::vector<std::string> imageBases() {
    const Application& app = application();
    if (app.modMode) {
        return {app.modFolder, app.programFolder};
    }
    return {app.programFolder};
}

void loadCatalogue() {
    const GameFolders folders = gameFolders();
    application().catalogue.load(folders.program, folders.mod);
}

bool isRecordOpen() {
    const Application& app = application();
    return app.openUnit.has_value() || app.openWeapon.has_value();
}

std::string openFileName() {
    const Application& app = application();
    if (app.openWeapon) {
        return app.openWeapon->fileName;
    }
    return app.openUnit ? app.openUnit->fileName.str() : std::string();
}

bool isUnitModified() {
    const Application& app = application();
    return app.openUnit && app.savedUnit && *app.openUnit != *app.savedUnit;
}

void closeRecord(const std::string& base) {
    Application& app = application();
    keepUnsavedUnit(base);
    app.openUnit.reset();
    app.savedUnit.reset();
    app.history.clear();
    app.openWeapon.reset();
    app.weaponPosChanged = false;
    app.exhaustPosChanged = false;
}

} // namespace varrocade
