#include "app/commands/game_folder.h"

#include "app/windows/application.h"
#include "app/workspace/options_file.h"
#include "platform/messages.h"

#include <shlobj.h>

#include <array>
#include <memory>

namespace varrocade {

namespace {

constexpr std::string_view GameProgram = "Varrocade.exe";

/// The browser starts in the folder that is set, or at the root of the first drive.
int CALLBACK startInFolder(HWND browser, UINT message, LPARAM, LPARAM) {
    if (message == BFFM_INITIALIZED) {
        const std::string& folder = theWorkspace().gameFolder;
        const std::string start = folder.empty() ? "C:\\" : folder;
        SendMessageA(browser, BFFM_SETSELECTIONA, TRUE, reinterpret_cast<LPARAM>(start.c_str()));
    }
    return 0;
}

struct FreeItemList {
    void operator()(ITEMIDLIST* list) const { CoTaskMemFree(list); }
};

} // namespace

void browseForGameFolder() {
    std::array<char, MAX_PATH> path{};
    BROWSEINFOA browse{};
    browse.hwndOwner = application().window;
    browse.lpszTitle = "Browse for the folder that contains Varrocade.exe...";
    browse.ulFlags = BIF_RETURNONLYFSDIRS;
    browse.lpfn = startInFolder;
    const std::unique_ptr<ITEMIDLIST, FreeItemList> chosen(SHBrowseForFolderA(&browse));
    if (!chosen || SHGetPathFromIDListA(chosen.get(), path.data()) == FALSE) {
        return;
    }
    std::string folder = path.data();
    if (!folder.ends_with('\\')) {
        folder += '\\';
    }
    if (!systemFiles().exists(folder + std::string(GameProgram)) || folder.size() >= MaxPathLength) {
        showMessage({.text = folder + "\n\nThere is no " + std::string(GameProgram) + " in this folder",
                     .caption = "Error",
                     .icon = MessageIcon::Information});
        return;
    }
    theWorkspace().gameFolder = folder;
}

} // namespace varrocade
