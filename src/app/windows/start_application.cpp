#include "app/windows/start_application.h"

#include "app/windows/application.h"
#include "app/windows/main_window.h"
#include "app/windows/message_boxes.h"
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

#include <array>

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

int runMessageLoop() {
    const HACCEL accelerators = LoadAcceleratorsA(application().instance, MAKEINTRESOURCEA(IDR_ACCELERATORS));
    MSG message{};
    while (GetMessageA(&message, nullptr, 0, 0) > 0) {
        if (TranslateAcceleratorA(application().window, accelerators, &message) == 0 &&
            !isWindowNavigation(message)) {
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
    detectModMode(workspace);
    ShowWindow(app.window, showCommand);
    UpdateWindow(app.window);
    offerUnsavedChanges(workspace);
    const int status = runMessageLoop();
    writeOptions(workspace);
    releaseRecordsAndDrawing();
    return status;
}

} // namespace varrocade
