#include "editor_process.h"

#include "menu_probe.h"

#include <gtest/gtest.h>

#include <array>

namespace varrocade::gui {

namespace {

constexpr std::wstring_view EditorName = L"VarrocadeDataEditor.exe";
constexpr std::string_view MainWindowClass = "VARROCADETANKEDITOR";
constexpr std::string_view DialogClass = "#32770";
constexpr UINT StatusOfTerminated = 1000;

std::vector<Window> windowsOfClass(DWORD process, std::string_view name) {
    std::vector<Window> found = topLevelWindows(process);
    std::erase_if(found, [&](Window window) { return window.className() != name; });
    return found;
}

GUITHREADINFO threadInfo(DWORD thread) {
    GUITHREADINFO info{};
    info.cbSize = sizeof(info);
    GetGUIThreadInfo(thread, &info);
    return info;
}

} // namespace

std::wstring pathBesideTests(std::wstring_view name) {
    std::array<wchar_t, MAX_PATH> path{};
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    std::wstring beside(path.data(), length);
    beside.resize(beside.rfind(L'\\') + 1);
    return beside.append(name);
}

EditorProcess::EditorProcess(const std::string& folder) {
    const std::wstring program = pathBesideTests(EditorName);
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION started{};
    if (CreateProcessW(program.c_str(), nullptr, nullptr, nullptr, FALSE, 0, nullptr, toWide(folder).c_str(),
                       &startup, &started) == 0) {
        ADD_FAILURE() << "cannot start " << toUtf8(program) << ": error " << GetLastError();
        return;
    }
    CloseHandle(started.hThread);
    process_ = started.hProcess;
    processId_ = started.dwProcessId;
    threadId_ = started.dwThreadId;
}

EditorProcess::~EditorProcess() {
    if (process_ != nullptr) {
        terminate();
        CloseHandle(process_);
    }
}

Window EditorProcess::waitForMainWindow() const {
    std::vector<Window> found;
    eventually([&] {
        found = windowsOfClass(processId_, MainWindowClass);
        return !found.empty() || !isRunning();
    });
    return found.empty() ? Window() : found.front();
}

std::vector<Window> EditorProcess::dialogs() const {
    return windowsOfClass(processId_, DialogClass);
}

Window EditorProcess::waitForDialog(std::string_view caption) const {
    Window found;
    const std::wstring wanted = toWide(caption);
    eventually([&] {
        for (const Window dialog : dialogs()) {
            // The caption as the system keeps it: a dialog that is being made does not answer messages yet.
            std::array<wchar_t, 256> text{};
            GetWindowTextW(dialog.handle(), text.data(), static_cast<int>(text.size()));
            if (text.data() == wanted && dialog.isEnabled()) {
                found = dialog;
            }
        }
        return found || !isRunning();
    });
    EXPECT_TRUE(found) << "no dialog \"" << caption << '"';
    return found;
}

std::optional<DWORD> EditorProcess::waitForExit() const {
    const ULONGLONG patience = deadline() - GetTickCount64();
    DWORD status = 0;
    if (WaitForSingleObject(process_, static_cast<DWORD>(patience)) != WAIT_OBJECT_0 ||
        GetExitCodeProcess(process_, &status) == 0) {
        return std::nullopt;
    }
    return status;
}

bool EditorProcess::isRunning() const {
    return process_ != nullptr && WaitForSingleObject(process_, 0) == WAIT_TIMEOUT;
}

void EditorProcess::terminate() const {
    if (isRunning()) {
        TerminateProcess(process_, StatusOfTerminated);
        WaitForSingleObject(process_, INFINITE);
    }
}

UINT EditorProcess::menuState(Window mainWindow, int command) const {
    const HMODULE library = LoadLibraryW(pathBesideTests(MenuProbeLibrary).c_str());
    const FARPROC function = library == nullptr ? nullptr : GetProcAddress(library, MenuProbeFunction);
    const HHOOK hook = SetWindowsHookExW(
        WH_CALLWNDPROC, reinterpret_cast<HOOKPROC>(reinterpret_cast<void*>(function)), library, threadId_);
    if (hook == nullptr) {
        ADD_FAILURE() << "the menu cannot be asked";
        return 0;
    }
    mainWindow.send(WM_INITMENU, reinterpret_cast<WPARAM>(GetMenu(mainWindow.handle())));
    mainWindow.send(RegisterWindowMessageW(MenuProbeMessage), static_cast<WPARAM>(command));
    const auto answer = reinterpret_cast<ULONG_PTR>(RemovePropW(mainWindow.handle(), MenuStateProperty));
    UnhookWindowsHookEx(hook);
    EXPECT_NE(answer, 0U) << "no menu item " << command;
    return static_cast<UINT>(answer) - 1;
}

Window EditorProcess::focus() const {
    return Window(threadInfo(threadId_).hwndFocus);
}

POINT EditorProcess::caret() const {
    const RECT place = threadInfo(threadId_).rcCaret;
    return {place.left, place.top};
}

} // namespace varrocade::gui
