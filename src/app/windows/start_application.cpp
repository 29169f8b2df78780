#include "app/windows/start_application.h"

#include "app/windows/application.h"
#include "app/windows/main_window.h"
#include "app/windows/message_boxes.h"
#include "app/windows/mod_band_win32.h"
#include "app/windows/window_listener.h"
#include "app/workspace/journal.h"
#include "app/workspace/mod_mode.h"
#include "app/workspace/options.h"
#include "app/workspace/options_file.h"
#include "data/unit/image_folders.h"
#include "platform/messages.h"
#include "resources/resource.h"

#include <commctrl.h>
#include <shlobj.h>

#include <algorithm>
#include <array>
#include <string>

namespace varrocade {

namespace {

std::string currentFolder() {
    std::array<char, MaxPathLength> path{};
    const DWORD length = GetCurrentDirectoryA(static_cast<DWORD>(path.size()), path.data());
    std::string folder(path.data(), length < path.size() ? length : 0);
    if (!folder.ends_with('\\')) {
        folder += '\\';
    }
    return folder;
}

/// Whether the system's code page has all letters of a text.
bool isInCodePage(const std::wstring& text) {
    if (GetACP() == CP_UTF8) {
        return true;
    }
    BOOL isReplaced = FALSE;
    WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, text.c_str(), -1, nullptr, 0, nullptr, &isReplaced);
    return isReplaced == FALSE;
}

/// Says at once when files below the program's folder cannot be opened by their paths, which are 8-bit texts
/// of a limited length for the game, too. Without it each file would fail for itself later.
void tellOfUnusableFolder() {
    std::wstring folder(GetCurrentDirectoryW(0, nullptr), L'\0');
    folder.resize(GetCurrentDirectoryW(static_cast<DWORD>(folder.size()), folder.data()));
    std::string reason;
    constexpr std::size_t shortestRoom = 40;
    const std::size_t spent = dataFilePath("\\", Category::Vehicles, "").size() + folder.size();
    const std::size_t room = MaxDataPathLength - std::min(MaxDataPathLength, spent);
    if (!isInCodePage(folder)) {
        reason =
            "This folder's path has letters that the system's code page lacks. The game's files in it cannot "
            "be opened by their names. Move the game to a folder with plain letters.";
    } else if (room < shortestRoom) {
        reason = "This folder's path has " + std::to_string(folder.size()) + " characters, which leaves " +
                 std::to_string(room) + " for a file's name: the game opens paths of at most " +
                 std::to_string(MaxDataPathLength) + ". Move the game to a folder with a shorter path.";
    }
    if (!reason.empty()) {
        showMessage({.text = theWorkspace().programFolder + "\n\n" + reason,
                     .caption = "The game's folder",
                     .icon = MessageIcon::Warning});
    }
}

std::string profileFolder() {
    std::array<char, MAX_PATH> path{};
    SHGetFolderPathA(nullptr, CSIDL_PROFILE, nullptr, SHGFP_TYPE_CURRENT, path.data());
    return path.data();
}

/// Under a debugger-less system a crash ends the process with a failing status instead of a dialog.
LONG WINAPI endOnCrash(EXCEPTION_POINTERS* exception) {
    debugLine("ERROR: the program crashed");
    TerminateProcess(GetCurrentProcess(), exception->ExceptionRecord->ExceptionCode);
    return EXCEPTION_EXECUTE_HANDLER;
}

/// Ctrl+Z in an edit takes back what was typed there, not the unit's last change.
bool isUndoOfTyping(const MSG& message) {
    if (message.message != WM_KEYDOWN || message.wParam != 'Z') {
        return false;
    }
    std::array<char, 8> name{};
    GetClassNameA(message.hwnd, name.data(), static_cast<int>(name.size()));
    return lstrcmpiA(name.data(), "Edit") == 0;
}

int runMessageLoop() {
    const HACCEL accelerators = LoadAcceleratorsA(application().instance, MAKEINTRESOURCEA(IDR_ACCELERATORS));
    MSG message{};
    while (GetMessageA(&message, nullptr, 0, 0) > 0) {
        const bool isCommand = !isUndoOfTyping(message) &&
                               TranslateAcceleratorA(application().window, accelerators, &message) != 0;
        if (!isCommand && !isWindowNavigation(message)) {
            TranslateMessage(&message);
            DispatchMessageA(&message);
        }
    }
    return static_cast<int>(message.wParam);
}

/// What is released while GDI+ is still running. The mark of the dischargers and the grid stay to the end of
/// the process.
void releaseRecordsAndDrawing() {
    Application& app = application();
    app.workspace.listener = &deafListener();
    // What is unsaved is in the journal since the window was closed.
    app.workspace.open = {};
    app.workspace.aside.clear();
    app.workspace.modSettings.reset();
    app.display = {};
    app.pictures.clear();
    DrawingObjects& drawing = app.drawing;
    for (GdiObject<HFONT>* font :
         {&drawing.smallFont, &drawing.normalFont, &drawing.boldFont, &drawing.largeFont}) {
        font->reset();
    }
    for (GdiObject<HBRUSH>& brush : drawing.greenBrushes) {
        brush.reset();
    }
    for (GdiObject<HBRUSH>* brush : {&drawing.beigeBrush, &drawing.whiteBrush, &drawing.highlightBrush}) {
        brush->reset();
    }
    for (GdiObject<HPEN>* pen :
         {&drawing.redPen, &drawing.greenPen, &drawing.blackPen, &drawing.paleGreenPen, &drawing.yellowPen,
          &drawing.whitePen, &drawing.bluePen, &drawing.secondGreenPen}) {
        pen->reset();
    }
    drawing.weaponMark.reset();
    drawing.exhaustMark.reset();
    static_cast<void>(drawing.grid.release());
}

} // namespace

int startApplication(HINSTANCE instance, int showCommand) {
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
    SetUnhandledExceptionFilter(endOnCrash);
    useMessageBoxes();
    Application& app = application();
    app.instance = instance;
    Workspace& workspace = app.workspace;
    workspace.programFolder = currentFolder();
    workspace.profileFolder = profileFolder();
    workspace.listener = &windowListener();
    if (!readOptions(workspace)) {
        ExitProcess(1);
    }
    const PictureSession pictures;
    app.drawing =
        createDrawingObjects(instance, std::string(image_folder::Grid), static_cast<int>(GetDpiForSystem()));
    const INITCOMMONCONTROLSEX controls{sizeof(INITCOMMONCONTROLSEX),
                                        ICC_STANDARD_CLASSES | ICC_LISTVIEW_CLASSES};
    InitCommonControlsEx(&controls);
    if (createMainWindow() == nullptr) {
        releaseRecordsAndDrawing();
        return 0;
    }
    app.menu = GetMenu(app.window);
    workspace.hasStartedInMod = detectModMode(workspace);
    showModBand();
    ShowWindow(app.window, showCommand);
    UpdateWindow(app.window);
    tellOfUnusableFolder();
    offerUnsavedChanges(workspace);
    const int status = runMessageLoop();
    writeOptions(workspace);
    releaseRecordsAndDrawing();
    return status;
}

} // namespace varrocade
