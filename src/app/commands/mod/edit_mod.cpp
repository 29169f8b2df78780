#include "app/commands/mod/edit_mod.h"

#include "app/windows/application.h"
#include "app/windows/mod_band_win32.h"
#include "data/finding_text.h"
#include "editors/mod/mod_dialog.h"
#include "mod/mod_settings.h"
#include "platform/messages.h"
#include "tools/checks/engine/mod_file_check.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace varrocade {

namespace {

constexpr std::string_view Caption = "Edit Mod";
constexpr std::size_t MostTold = 8;

/// What the file held when the dialog was opened, as the dialog took it.
struct OpenedMod {
    std::string text;
    ModSettings settings;
};

/// Whether to go on where others have written the same settings meanwhile.
bool mayOverwrite(const std::vector<std::string>& conflicts) {
    std::string text =
        std::string(ModFileName) +
        " has been changed by another program since this dialog was opened, in what was changed "
        "here, too:\n";
    for (const std::string& name : conflicts) {
        text += "\n" + name;
    }
    text += "\n\nWrite what stands here? The file as it is now is kept in the folder Backups.";
    return showMessage({.text = std::move(text),
                        .caption = std::string(Caption),
                        .buttons = MessageButtons::OkCancel,
                        .icon = MessageIcon::Question}) == Answer::Ok;
}

bool saveSettings(const OpenedMod& opened, const ModSettings& settings) {
    Workspace& workspace = theWorkspace();
    ModSettings joined = settings;
    std::string present;
    if (readWholeFile(workspace.modFolder + std::string(ModFileName), present) && !present.empty() &&
        present != opened.text) {
        std::vector<std::string> conflicts;
        joined = joinedSettings(opened.settings, readModSettings(present), settings, conflicts);
        if (!conflicts.empty() && !mayOverwrite(conflicts)) {
            return false;
        }
    }
    if (const auto failure =
            saveModSettings(*workspace.files, workspace.backups, workspace.modFolder, joined, opened.text)) {
        debugLine("ERROR: " + failure->path + ": " + failure->reason);
        showCouldNotSave(failure->path, failure->reason);
        return false;
    }
    workspace.modSettings = std::move(joined);
    showModBand();
    return true;
}

/// Tells of tags that do not match, for a part of the file may not be in the dialog then.
void tellUnread(const std::string& content) {
    std::string text;
    std::size_t count = 0;
    for (const Finding& finding : checkModFile(content)) {
        if (hidesSettings(finding) && ++count <= MostTold) {
            text += "\n\n" + sentence(finding);
        }
    }
    if (count == 0) {
        return;
    }
    text = "Not all of " + std::string(ModFileName) + " can be read:" + text;
    text += count > MostTold ? "\n\nand " + std::to_string(count - MostTold) + " more" : "";
    showMessage({.text = text + "\n\nWhat cannot be read is not shown here. It stays in the file.",
                 .caption = std::string(Caption),
                 .icon = MessageIcon::Warning});
}

} // namespace

void editModSettings() {
    Workspace& workspace = theWorkspace();
    if (!workspace.modSettings) {
        return;
    }
    const std::vector<std::string> bases = imageBases(workspace);
    // The file may have been changed by hand since the mod was opened.
    OpenedMod opened{.text = {}, .settings = *workspace.modSettings};
    if (readWholeFile(workspace.modFolder + std::string(ModFileName), opened.text)) {
        opened.settings = readModSettings(opened.text);
        tellUnread(opened.text);
    }
    ModEdit edit{.settings = opened.settings,
                 .imageBases = bases,
                 .folders = gameFolders(workspace),
                 .save = [&opened](const ModSettings& settings) { return saveSettings(opened, settings); },
                 .drawing = application().drawing,
                 .pictures = application().pictures};
    editMod(application().window, edit);
}

} // namespace varrocade
