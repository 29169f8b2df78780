#include "app/commands/game_folder.h"

#include "app/windows/application.h"
#include "app/workspace/journal.h"
#include "app/workspace/mod_mode.h"
#include "app/workspace/options_file.h"
#include "data/unit/image_folders.h"
#include "platform/messages.h"

#include <shlobj.h>

#include <array>
#include <memory>

namespace varrocade {

namespace {

constexpr std::string_view GameProgram = "Varrocade.exe";

/// `detail` is the folder that the browser starts in.
int CALLBACK startInFolder(HWND browser, UINT message, LPARAM, LPARAM detail) {
    if (message == BFFM_INITIALIZED) {
        SendMessageA(browser, BFFM_SETSELECTIONA, TRUE, detail);
    }
    return 0;
}

struct FreeItemList {
    void operator()(ITEMIDLIST* list) const { CoTaskMemFree(list); }
};

} // namespace

std::string browseForFolder(const char* title, const std::string& start) {
    std::array<char, MAX_PATH> path{};
    BROWSEINFOA browse{};
    browse.hwndOwner = application().window;
    browse.lpszTitle = title;
    browse.ulFlags = BIF_RETURNONLYFSDIRS;
    browse.lpfn = startInFolder;
    browse.lParam = reinterpret_cast<LPARAM>(start.c_str());
    const std::unique_ptr<ITEMIDLIST, FreeItemList> chosen(SHBrowseForFolderA(&browse));
    if (!chosen || SHGetPathFromIDListA(chosen.get(), path.data()) == FALSE) {
        return {};
    }
    std::string folder = path.data();
    if (!folder.ends_with('\\')) {
        folder += '\\';
    }
    return folder;
}

void browseForGameFolder() {
    const std::string& former = theWorkspace().gameFolder;
    const std::string folder = browseForFolder("Browse for the folder that contains Varrocade.exe...",
                                               former.empty() ? "C:\\" : former);
    if (folder.empty()) {
        return;
    }
    if (!systemFiles().exists(folder + std::string(GameProgram)) || folder.size() >= MaxPathLength) {
        showMessage({.text = folder + "\n\nThere is no " + std::string(GameProgram) + " in this folder",
                     .caption = "Error",
                     .icon = MessageIcon::Information});
        return;
    }
    theWorkspace().gameFolder = folder;
}

void chooseProgramFolder() {
    Workspace& workspace = theWorkspace();
    const std::string folder =
        browseForFolder("Choose the folder that holds the game's Data and Images...",
                        workspace.gameFolder.empty() ? workspace.programFolder : workspace.gameFolder);
    if (folder.empty()) {
        return;
    }
    if (!moveToGame(workspace, folder)) {
        return;
    }
    // The ground's picture is found from the current folder.
    SetCurrentDirectoryA(folder.c_str());
    Application& app = application();
    loadGrid(app.drawing, std::string(image_folder::Grid));
    app.pictures.clear();
    offerUnsavedChanges(workspace);
}

} // namespace varrocade
