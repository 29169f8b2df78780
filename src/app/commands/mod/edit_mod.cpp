#include "app/commands/mod/edit_mod.h"

#include "app/windows/application.h"
#include "app/windows/mod_band_win32.h"
#include "editors/mod/mod_dialog.h"
#include "mod/mod_settings.h"
#include "platform/messages.h"

#include <string>
#include <vector>

namespace varrocade {

namespace {

bool saveSettings(const ModSettings& settings) {
    Workspace& workspace = theWorkspace();
    if (const auto failure =
            saveModSettings(*workspace.files, workspace.backups, workspace.modFolder, settings)) {
        debugLine("ERROR: " + failure->path + ": " + failure->reason);
        showCouldNotSave(failure->path);
        return false;
    }
    workspace.modSettings = settings;
    showModBand();
    return true;
}

} // namespace

void editModSettings() {
    Workspace& workspace = theWorkspace();
    if (!workspace.modSettings) {
        return;
    }
    const std::vector<std::string> bases = imageBases(workspace);
    // The file may have been changed by hand since the mod was opened.
    ModEdit edit{.settings = loadModSettings(workspace.modFolder).value_or(*workspace.modSettings),
                 .imageBases = bases,
                 .folders = gameFolders(workspace),
                 .save = saveSettings,
                 .drawing = application().drawing,
                 .pictures = application().pictures};
    editMod(application().window, edit);
}

} // namespace varrocade
