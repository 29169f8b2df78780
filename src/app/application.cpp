#include "app/application.h"

namespace varrocade {

Application& application() {
    static Application instance;
    return instance;
}

const std::string& baseFolder() {
    const Application& app = application();
    return app.modMode ? app.modFolder : app.programFolder;
}

std::vector<std::string> imageBases() {
    const Application& app = application();
    if (app.modMode) {
        return {app.modFolder, app.programFolder};
    }
    return {app.programFolder};
}

bool isRecordOpen() {
    const Application& app = application();
    return app.openUnit.has_value() || app.openWeapon.has_value();
}

void closeRecord() {
    Application& app = application();
    app.openUnit.reset();
    app.openWeapon.reset();
    app.weaponPosChanged = false;
    app.exhaustPosChanged = false;
}

} // namespace varrocade
