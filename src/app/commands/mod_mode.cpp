#include "app/commands/mod_mode.h"

#include "app/commands/stubs.h"
#include "app/windows/application.h"
#include "app/windows/main_window.h"
#include "app/workspace/positions.h"
#include "platform/messages.h"
#include "resources/resource.h"

#include <shlobj.h>

#include <array>

namespace varrocade {

namespace {

// The steps of the way from the profile to the mod, each of which may have to be created.
constexpr std::array<std::string_view, 3> ModFolderSteps = {"\\AppData\\Roaming\\Quorlin Games\\",
                                                            "Varrocade\\", "Mod\\"};
constexpr std::string_view ProgramModFolder = "Mod\\";

std::string profileFolder() {
    std::array<char, MAX_PATH> path{};
    SHGetFolderPathA(nullptr, CSIDL_PROFILE, nullptr, SHGFP_TYPE_CURRENT, path.data());
    return path.data();
}

std::string userModFolder() {
    std::string folder = profileFolder();
    for (const std::string_view step : ModFolderSteps) {
        folder += step;
    }
    return folder;
}

bool hasModFile(const std::string& folder) {
    std::string content;
    return readFileBeginning(folder + std::string(ModFileName), 1, content);
}

/// Title, check mark and enabling of the present mode, its weapons and the list of its files.
void showMode() {
    Application& app = application();
    const UINT checked = app.modMode ? MF_CHECKED : MF_UNCHECKED;
    const UINT enabled = app.modMode ? MF_ENABLED : MF_GRAYED;
    CheckMenuItem(app.menu, IDM_MOD_MODE, MF_BYCOMMAND | checked);
    EnableMenuItem(app.menu, IDM_EDIT_MOD, MF_BYCOMMAND | enabled);
    const std::string title =
        "Varrocade Data Editor" + (app.modMode ? " - Mod Mode from: " + app.modFolder : "");
    SetWindowTextA(app.window, title.c_str());
    loadCatalogue();
    SendMessageA(app.window, RefreshListMessage, 0, 0);
}

void turnOn(ModSettings settings) {
    Application& app = application();
    app.modMode = true;
    app.modSettings = std::move(settings);
    showMode();
}

/// Asks for a new mod and creates it; false when the user cancelled that.
bool offerNewMod() {
    const Answer answer = showMessage(
        {.text = "This will create a new mod (starting with the default WW2 settings) in the folder:\n\n" +
                 application().modFolder +
                 "\n\nWhen you next run the game this mod will be used. To return to the orignal game with "
                 "no mod, "
                 "just rename or move this folder",
         .caption = "Create New Mod",
         .buttons = MessageButtons::OkCancel,
         .icon = MessageIcon::Information});
    if (answer == Answer::Cancel) {
        return false;
    }
    if (createModFolder()) {
        closeRecord(application().programFolder);
        showOpenRecord();
        editModSettings();
    }
    return true;
}

} // namespace

bool detectModMode() {
    Application& app = application();
    app.modMode = false;
    app.modFolder = userModFolder();
    if (!hasModFile(app.modFolder)) {
        app.modFolder = app.programFolder + std::string(ProgramModFolder);
    }
    if (hasModFile(app.modFolder)) {
        turnOn(loadModSettings(app.modFolder));
        return true;
    }
    app.modFolder = userModFolder();
    app.modSettings.reset();
    showMode();
    return false;
}

bool createModFolder() {
    Application& app = application();
    std::string folder = profileFolder();
    for (const std::string_view step : ModFolderSteps) {
        folder += step;
        if (!systemFiles().createFolder(folder)) {
            showMessage(
                {.text = folder, .caption = "Failed to create directory", .icon = MessageIcon::Error});
            return false;
        }
    }
    app.modFolder = folder;
    const ModSettings settings = loadModSettings(folder);
    if (saveModSettings(systemFiles(), folder, settings)) {
        showCouldNotSave(folder + std::string(ModFileName));
        return false;
    }
    turnOn(settings);
    return true;
}

void leaveModMode() {
    Application& app = application();
    app.modMode = false;
    app.modSettings.reset();
    showMode();
}

void switchModMode() {
    if (!mayLeavePositions()) {
        return;
    }
    if (application().modMode) {
        // Closed while its folder is still the mod's: what is unsaved is kept there.
        closeRecord();
        leaveModMode();
        showOpenRecord();
    } else if (!detectModMode() && !offerNewMod()) {
        return;
    }
    application().rememberedSelections.fill({});
}

} // namespace varrocade
