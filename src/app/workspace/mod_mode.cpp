#include "app/workspace/mod_mode.h"

#include "app/workspace/options.h"
#include "app/workspace/positions.h"
#include "app/workspace/record_files.h"
#include "mod/equipment_lists.h"
#include "mod/starting_points.h"
#include "platform/messages.h"

#include <array>
#include <utility>

namespace varrocade {

namespace {

// The steps of the way from the profile to the mod, each of which may have to be created.
constexpr std::array<std::string_view, 3> ModFolderSteps = {"\\AppData\\Roaming\\Quorlin Games\\",
                                                            "Varrocade\\", "Mod\\"};
constexpr std::string_view ProgramModFolder = "Mod\\";

std::string userModFolder(const Workspace& workspace) {
    std::string folder = workspace.profileFolder;
    for (const std::string_view step : ModFolderSteps) {
        folder += step;
    }
    return folder;
}

/// Reads the weapons of the present mode and has it shown with the list of its files.
void enterMode(Workspace& workspace) {
    loadCatalogue(workspace);
    workspace.hasStartedInMod = false;
    // A file of the same name in the other folder is another file.
    workspace.list.selected.clear();
    workspace.listener->modeChanged();
    workspace.listener->listOutdated(workspace);
}

/// A new mod is about the Second World War, with the units that the game has.
ModSettings newModSettings(const Workspace& workspace) {
    ModSettings settings = startingSettings(StartingPoint::SecondWorldWar);
    // A unit that cannot be read is in no list, which is no reason to have no mod.
    listEquipment(settings, readEquipmentSources({.program = workspace.programFolder}));
    return settings;
}

void turnOn(Workspace& workspace, ModSettings settings) {
    workspace.modMode = true;
    workspace.modSettings = std::move(settings);
    enterMode(workspace);
}

bool wantsNewMod(const std::string& folder) {
    const Answer answer = showMessage(
        {.text = "This will create a new mod (starting with the default WW2 settings) in the folder:\n\n" +
                 folder +
                 "\n\nWhen you next run the game this mod will be used. To return to the orignal game with "
                 "no mod, "
                 "just rename or move this folder",
         .caption = "Create New Mod",
         .buttons = MessageButtons::OkCancel,
         .icon = MessageIcon::Information});
    return answer != Answer::Cancel;
}

} // namespace

bool hasModFile(const std::string& folder) {
    std::string content;
    return readFileBeginning(folder + std::string(ModFileName), 1, content);
}

void enterMod(Workspace& workspace, std::string folder) {
    workspace.modFolder = std::move(folder);
    turnOn(workspace, loadModSettings(workspace.modFolder).value_or(ModSettings{}));
}

bool detectModMode(Workspace& workspace) {
    workspace.modMode = false;
    workspace.modFolder = userModFolder(workspace);
    if (!hasModFile(workspace.modFolder)) {
        workspace.modFolder = workspace.programFolder + std::string(ProgramModFolder);
    }
    if (hasModFile(workspace.modFolder)) {
        enterMod(workspace, workspace.modFolder);
        return true;
    }
    workspace.modFolder = userModFolder(workspace);
    leaveModMode(workspace);
    return false;
}

bool createModFolder(Workspace& workspace) {
    std::string folder = workspace.profileFolder;
    for (const std::string_view step : ModFolderSteps) {
        folder += step;
        if (!workspace.files->createFolder(folder)) {
            showMessage(
                {.text = folder, .caption = "Failed to create directory", .icon = MessageIcon::Error});
            return false;
        }
    }
    workspace.modFolder = folder;
    std::optional<ModSettings> present = loadModSettings(folder);
    const ModSettings settings = present ? std::move(*present) : newModSettings(workspace);
    if (saveModSettings(*workspace.files, workspace.backups, folder, settings)) {
        showCouldNotSave(folder + std::string(ModFileName));
        return false;
    }
    turnOn(workspace, settings);
    return true;
}

void leaveModMode(Workspace& workspace) {
    workspace.modMode = false;
    workspace.modSettings.reset();
    enterMode(workspace);
}

bool moveToGame(Workspace& workspace, const std::string& folder) {
    if (!isFolder(folder + std::string(DataFolder))) {
        showMessage({.text = folder + "\n\nThere is no folder \"Data\" in this folder",
                     .caption = "Error",
                     .icon = MessageIcon::Information});
        return false;
    }
    if (!mayLeavePositions(workspace)) {
        return false;
    }
    closeRecord(workspace);
    workspace.programFolder = folder;
    readOptions(workspace);
    workspace.rememberedSelections.fill({});
    detectModMode(workspace);
    workspace.listener->recordOpened();
    return true;
}

bool switchModMode(Workspace& workspace) {
    if (!mayLeavePositions(workspace)) {
        return false;
    }
    bool isCreated = false;
    if (workspace.modMode) {
        closeRecord(workspace);
        leaveModMode(workspace);
        workspace.listener->recordOpened();
    } else if (!detectModMode(workspace)) {
        if (!wantsNewMod(workspace.modFolder)) {
            return false;
        }
        isCreated = createModFolder(workspace);
        if (isCreated) {
            closeRecord(workspace);
            workspace.listener->recordOpened();
        }
    }
    workspace.rememberedSelections.fill({});
    return isCreated;
}

} // namespace varrocade
