#pragma once

#include "windows_driver.h"

#include <optional>
#include <string>
#include <string_view>

namespace varrocade::gui {

/// The path of a file beside the tests, where the editor stands too.
std::wstring pathBesideTests(std::wstring_view name);

/// A running editor, started in a folder of its own.
class EditorProcess {
public:
    explicit EditorProcess(const std::string& folder);
    EditorProcess(const EditorProcess&) = delete;
    EditorProcess& operator=(const EditorProcess&) = delete;
    /// Ends the editor the hard way when it still runs.
    ~EditorProcess();

    /// The main window once it is shown; none when the process ended instead.
    [[nodiscard]] Window waitForMainWindow() const;
    /// A dialog or a message box, by its caption, in front of the others; none when it does not come.
    [[nodiscard]] Window waitForDialog(std::string_view caption) const;
    /// Every dialog and message box that is open.
    [[nodiscard]] std::vector<Window> dialogs() const;
    /// The exit status; nothing when the process does not end in time.
    [[nodiscard]] std::optional<DWORD> waitForExit() const;
    [[nodiscard]] bool isRunning() const;
    void terminate() const;

    /// The state of a menu item, as MF_... flags, at the moment when the menu is shown.
    [[nodiscard]] UINT menuState(Window mainWindow, int command) const;
    /// The window that has the keyboard.
    [[nodiscard]] Window focus() const;
    /// Where its caret is, in the client area of the window that has it.
    [[nodiscard]] POINT caret() const;

private:
    HANDLE process_ = nullptr;
    DWORD processId_ = 0;
    DWORD threadId_ = 0;
};

} // namespace varrocade::gui
