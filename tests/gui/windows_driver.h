#pragma once
// Windows of another process, driven by messages: by class, caption and control id. All texts are UTF-8.

#include <windows.h>

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace varrocade::gui {

std::string toUtf8(std::wstring_view text);
std::wstring toWide(std::string_view text);

/// When what is waited for from now on must have come. A test that has failed already waits no longer.
ULONGLONG deadline();

/// Polls until `condition` holds; false when it did not within the test's patience.
template <typename Condition>
bool eventually(Condition condition) {
    constexpr DWORD pollMilliseconds = 5;
    const ULONGLONG end = deadline();
    while (!condition()) {
        if (GetTickCount64() >= end) {
            return false;
        }
        Sleep(pollMilliseconds);
    }
    return true;
}

/// A place in the client area of the parent, in pixels.
struct Area {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    bool operator==(const Area&) const = default;
};
std::ostream& operator<<(std::ostream& out, const Area& area);

/// A window of the editor. A message that is not answered in time fails the test; so does a missing control.
class Window {
public:
    Window() = default;
    explicit Window(HWND handle) : handle_(handle) {}

    [[nodiscard]] HWND handle() const { return handle_; }
    explicit operator bool() const { return handle_ != nullptr; }
    bool operator==(const Window&) const = default;

    LRESULT send(UINT message, WPARAM parameter = 0, LPARAM detail = 0) const;
    void post(UINT message, WPARAM parameter = 0, LPARAM detail = 0) const;
    /// A key, as the keyboard sends it.
    void pressKey(int key) const;

    [[nodiscard]] bool exists() const { return IsWindow(handle_) != FALSE; }
    [[nodiscard]] bool isEnabled() const { return IsWindowEnabled(handle_) != FALSE; }
    [[nodiscard]] bool isVisible() const { return IsWindowVisible(handle_) != FALSE; }
    [[nodiscard]] bool isChecked() const { return send(BM_GETCHECK) == BST_CHECKED; }
    [[nodiscard]] bool hasStyle(DWORD style) const;
    [[nodiscard]] std::string className() const;
    [[nodiscard]] std::string text() const;
    [[nodiscard]] Area areaInParent() const;
    [[nodiscard]] Window owner() const { return Window(GetWindow(handle_, GW_OWNER)); }

    [[nodiscard]] Window control(int id) const;
    /// The static text right before a control.
    [[nodiscard]] std::string labelOf(int id) const;
    void setText(int id, std::string_view text) const;
    /// Presses a button that can be pressed, and waits until the press has been dealt with.
    void press(int id) const;
    /// The same without waiting, for a button whose press opens a dialog.
    void startPress(int id) const;

    /// The texts of a list box, from top to bottom.
    [[nodiscard]] std::vector<std::string> listTexts() const;
    /// The texts of a drop-down list.
    [[nodiscard]] std::vector<std::string> choices() const;
    /// The text of the selected entry of a list box, or empty.
    [[nodiscard]] std::string selectedText() const;
    /// The place of an entry, which must be there.
    [[nodiscard]] int indexOf(std::string_view text) const;
    /// Selects an entry of a list box or a drop-down list and tells the parent, as a click does.
    void choose(int index) const;
    void choose(std::string_view text) const;
    /// The same without waiting, where it opens a box.
    void startChoosing(std::string_view text) const;
    void startChoosing(int index) const;

    /// Selects rows of a table, from the first to the last one, and no others.
    void selectRows(int first, int last) const;

private:
    [[nodiscard]] std::vector<std::string> texts(UINT countMessage, UINT lengthMessage,
                                                 UINT textMessage) const;
    [[nodiscard]] bool isComboBox() const { return className() == "ComboBox"; }
    /// The parameter with which this control tells its parent that another entry is selected.
    [[nodiscard]] WPARAM selectionNotice() const;

    HWND handle_ = nullptr;
};

/// What a message box shows. Its buttons are named by their ids, in the order of these.
struct Box {
    std::string caption;
    std::string text;
    std::vector<int> buttons = {IDOK};
    bool operator==(const Box&) const = default;
};
std::ostream& operator<<(std::ostream& out, const Box& box);

/// The content of a message box.
Box contentOf(Window messageBox);

/// The text on the clipboard, or nothing.
std::string clipboardText();

/// The visible top-level windows of a process.
std::vector<Window> topLevelWindows(DWORD processId);

} // namespace varrocade::gui
