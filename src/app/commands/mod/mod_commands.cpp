#include "app/commands/mod/mod_commands.h"

#include "app/commands/game_folder.h"
#include "app/commands/mod/mod_files_dialog.h"
#include "app/windows/application.h"
#include "app/workspace/mod_mode.h"
#include "data/format/words.h"
#include "platform/messages.h"
#include "resources/resource.h"

namespace varrocade {

namespace {

/// Tells what went wrong, and what came of the rest.
void tellModWork(const ModWork& work, std::string_view caption, std::string_view did) {
    std::string text = counted(work.done.size(), "file") + " " + std::string(did) + ".";
    if (!work.left.empty()) {
        text += " " + counted(work.left.size(), "file") + " left as the mod has it.";
    }
    constexpr std::size_t mostLines = 12;
    for (std::size_t i = 0; i < work.failures.size() && i < mostLines; ++i) {
        text += "\n\n" + work.failures[i].path + "\n" + work.failures[i].reason;
    }
    showMessage({.text = std::move(text),
                 .caption = std::string(caption),
                 .icon = work.failures.empty() ? MessageIcon::Information : MessageIcon::Warning});
}

/// Works on the mod of a folder; false, which is told, where there is none.
bool openModOf(const std::string& folder) {
    if (!hasModFile(folder)) {
        showMessage({.text = folder + "\n\nThere is no Mod.txt in this folder",
                     .caption = "Error",
                     .icon = MessageIcon::Information});
        return false;
    }
    openOtherMod(theWorkspace(), folder);
    return true;
}

/// The menu, among those below another, that holds a command.
HMENU menuWith(HMENU menu, UINT command) {
    for (int i = 0; i < GetMenuItemCount(menu); ++i) {
        HMENU below = GetSubMenu(menu, i);
        if (below == nullptr && GetMenuItemID(menu, i) == command) {
            return menu;
        }
        if (HMENU found = below != nullptr ? menuWith(below, command) : nullptr) {
            return found;
        }
    }
    return nullptr;
}

/// A text as menus show it: a single "&" would underline what is behind it.
std::string menuText(const std::string& text) {
    std::string shown;
    for (const char c : text) {
        shown += c == '&' ? "&&" : std::string(1, c);
    }
    return shown;
}

} // namespace

void toggleGameUnits() {
    Workspace& workspace = theWorkspace();
    showGameUnits(workspace, !workspace.showsGameUnits);
}

void copyFilesIntoMod() {
    Workspace& workspace = theWorkspace();
    ModFiles files{.caption = "Copy into mod",
                   .names = namesToCopy,
                   .chosen = workspace.list.selected,
                   .needs = CopyNeeds::Yes};
    if (chooseModFiles(files)) {
        tellModWork(copyIntoMod(workspace, files.category, files.picked, *files.needs), files.caption,
                    "copied");
    }
}

void removeFilesFromMod() {
    Workspace& workspace = theWorkspace();
    ModFiles files{.caption = "Remove from mod", .names = namesToRemove, .chosen = workspace.list.selected};
    if (chooseModFiles(files)) {
        tellModWork(removeFromMod(workspace, files.category, files.picked), files.caption, "removed");
    }
}

void browseForMod() {
    const std::string folder = browseForFolder("Browse for the folder of a mod, which contains Mod.txt...",
                                               theWorkspace().modFolder);
    if (!folder.empty()) {
        openModOf(folder);
    }
}

void openRecentMod(std::size_t place) {
    const std::string folder = theWorkspace().otherMods.at(place);
    if (!openModOf(folder)) {
        forgetMod(theWorkspace(), folder);
    }
}

void listRecentMods(HMENU menu) {
    HMENU recent = menuWith(menu, IDM_MOD_RECENT);
    while (DeleteMenu(recent, 1, MF_BYPOSITION) != FALSE) {
    }
    const std::vector<std::string>& folders = theWorkspace().otherMods;
    ModifyMenuA(recent, IDM_MOD_RECENT, MF_BYCOMMAND | MF_STRING, IDM_MOD_RECENT, "(none yet)");
    for (std::size_t i = 0; i < folders.size(); ++i) {
        const std::string text = "&" + std::to_string(i + 1) + "  " + menuText(folders[i]);
        const auto id = static_cast<UINT>(IDM_MOD_RECENT + i);
        if (i == 0) {
            ModifyMenuA(recent, id, MF_BYCOMMAND | MF_STRING, id, text.c_str());
        } else {
            AppendMenuA(recent, MF_STRING, id, text.c_str());
        }
    }
}

} // namespace varrocade
