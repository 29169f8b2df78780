#include "windows_driver.h"

#include <gtest/gtest.h>

#include <commctrl.h>

#include <array>
#include <ostream>

namespace varrocade::gui {

namespace {

constexpr ULONGLONG PatienceMilliseconds = 15000;
constexpr ULONGLONG PatienceAfterFailure = 500;
constexpr int MessageTextId = 0xFFFF;

} // namespace

std::string toUtf8(std::wstring_view text) {
    const auto length = static_cast<int>(text.size());
    const int needed = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string converted(static_cast<std::size_t>(needed), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), length, converted.data(), needed, nullptr, nullptr);
    return converted;
}

std::wstring toWide(std::string_view text) {
    const auto length = static_cast<int>(text.size());
    const int needed = MultiByteToWideChar(CP_UTF8, 0, text.data(), length, nullptr, 0);
    std::wstring converted(static_cast<std::size_t>(needed), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), length, converted.data(), needed);
    return converted;
}

ULONGLONG deadline() {
    return GetTickCount64() + (testing::Test::HasFailure() ? PatienceAfterFailure : PatienceMilliseconds);
}

std::ostream& operator<<(std::ostream& out, const Area& area) {
    return out << "x " << area.x << ", y " << area.y << ", " << area.width << " x " << area.height;
}

LRESULT Window::send(UINT message, WPARAM parameter, LPARAM detail) const {
    DWORD_PTR result = 0;
    const auto patience = static_cast<UINT>(deadline() - GetTickCount64());
    if (SendMessageTimeoutW(handle_, message, parameter, detail, SMTO_ABORTIFHUNG, patience, &result) == 0) {
        ADD_FAILURE() << "The window does not answer message " << message << " with parameter " << parameter;
        return 0;
    }
    return static_cast<LRESULT>(result);
}

void Window::post(UINT message, WPARAM parameter, LPARAM detail) const {
    EXPECT_NE(PostMessageW(handle_, message, parameter, detail), 0) << "message " << message;
}

void Window::pressKey(int key) const {
    post(WM_KEYDOWN, static_cast<WPARAM>(key), 1);
    // Bits 30 and 31: the key was down, and is released.
    post(WM_KEYUP, static_cast<WPARAM>(key), static_cast<LPARAM>(0xC0000001));
}

bool Window::hasStyle(DWORD style) const {
    return (static_cast<DWORD>(GetWindowLongW(handle_, GWL_STYLE)) & style) == style;
}

std::string Window::className() const {
    std::array<wchar_t, 64> name{};
    const int length = GetClassNameW(handle_, name.data(), static_cast<int>(name.size()));
    return toUtf8({name.data(), static_cast<std::size_t>(length)});
}

std::string Window::text() const {
    std::wstring text(static_cast<std::size_t>(send(WM_GETTEXTLENGTH)) + 1, L'\0');
    text.resize(
        static_cast<std::size_t>(send(WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
    return toUtf8(text);
}

Area Window::areaInParent() const {
    RECT place{};
    GetWindowRect(handle_, &place);
    MapWindowPoints(nullptr, GetParent(handle_), reinterpret_cast<POINT*>(&place), 2);
    return {place.left, place.top, place.right - place.left, place.bottom - place.top};
}

Window Window::control(int id) const {
    HWND found = GetDlgItem(handle_, id);
    EXPECT_NE(found, nullptr) << "no control " << id;
    return Window(found);
}

std::string Window::labelOf(int id) const {
    return Window(GetWindow(control(id).handle(), GW_HWNDPREV)).text();
}

void Window::setText(int id, std::string_view text) const {
    control(id).send(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(toWide(text).c_str()));
}

void Window::press(int id) const {
    const Window button = control(id);
    EXPECT_TRUE(button.isEnabled()) << "button " << id;
    send(WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), reinterpret_cast<LPARAM>(button.handle()));
}

void Window::startPress(int id) const {
    const Window button = control(id);
    EXPECT_TRUE(button.isEnabled()) << "button " << id;
    post(WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), reinterpret_cast<LPARAM>(button.handle()));
}

std::vector<std::string> Window::texts(UINT countMessage, UINT lengthMessage, UINT textMessage) const {
    std::vector<std::string> found;
    const LRESULT count = send(countMessage);
    for (LRESULT i = 0; i < count; ++i) {
        const LRESULT length = send(lengthMessage, static_cast<WPARAM>(i));
        std::wstring text(static_cast<std::size_t>(length > 0 ? length : 0) + 1, L'\0');
        const LRESULT copied =
            send(textMessage, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text.data()));
        text.resize(static_cast<std::size_t>(copied > 0 ? copied : 0));
        found.push_back(toUtf8(text));
    }
    return found;
}

std::vector<std::string> Window::listTexts() const {
    return texts(LB_GETCOUNT, LB_GETTEXTLEN, LB_GETTEXT);
}

std::vector<std::string> Window::choices() const {
    return texts(CB_GETCOUNT, CB_GETLBTEXTLEN, CB_GETLBTEXT);
}

std::string Window::selectedText() const {
    const std::vector<std::string> all = listTexts();
    const auto selected = static_cast<std::size_t>(send(LB_GETCURSEL));
    return selected < all.size() ? all[selected] : std::string();
}

int Window::indexOf(std::string_view text) const {
    const LRESULT index = send(isComboBox() ? CB_FINDSTRINGEXACT : LB_FINDSTRINGEXACT,
                               static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(toWide(text).c_str()));
    EXPECT_GE(index, 0) << "the list does not hold \"" << text << '"';
    return static_cast<int>(index);
}

WPARAM Window::selectionNotice() const {
    static_assert(LBN_SELCHANGE == CBN_SELCHANGE);
    return MAKEWPARAM(GetDlgCtrlID(handle_), LBN_SELCHANGE);
}

void Window::choose(int index) const {
    send(isComboBox() ? CB_SETCURSEL : LB_SETCURSEL, static_cast<WPARAM>(index));
    Window(GetParent(handle_)).send(WM_COMMAND, selectionNotice(), reinterpret_cast<LPARAM>(handle_));
}

void Window::choose(std::string_view text) const {
    choose(indexOf(text));
}

void Window::startChoosing(std::string_view text) const {
    startChoosing(indexOf(text));
}

void Window::startChoosing(int index) const {
    send(isComboBox() ? CB_SETCURSEL : LB_SETCURSEL, static_cast<WPARAM>(index));
    Window(GetParent(handle_)).post(WM_COMMAND, selectionNotice(), reinterpret_cast<LPARAM>(handle_));
}

void Window::selectRows(int first, int last) const {
    // The table reads what to do from the memory of its own process.
    DWORD processId = 0;
    GetWindowThreadProcessId(handle_, &processId);
    HANDLE process = OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_WRITE, FALSE, processId);
    void* memory = VirtualAllocEx(process, nullptr, sizeof(LVITEMW), MEM_COMMIT, PAGE_READWRITE);
    ASSERT_NE(memory, nullptr);
    const auto setSelected = [&](int row, UINT state) {
        LVITEMW item{};
        item.stateMask = LVIS_SELECTED;
        item.state = state;
        WriteProcessMemory(process, memory, &item, sizeof item, nullptr);
        send(LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(memory));
    };
    setSelected(-1, 0);
    for (int row = first; row <= last; ++row) {
        setSelected(row, LVIS_SELECTED);
    }
    VirtualFreeEx(process, memory, 0, MEM_RELEASE);
    CloseHandle(process);
}

std::ostream& operator<<(std::ostream& out, const Box& box) {
    out << '[' << box.caption << "] " << box.text;
    for (const int button : box.buttons) {
        out << " (" << button << ')';
    }
    return out;
}

std::string clipboardText() {
    std::string text;
    if (OpenClipboard(nullptr) != FALSE) {
        HANDLE memory = GetClipboardData(CF_TEXT);
        if (const void* bytes = memory != nullptr ? GlobalLock(memory) : nullptr) {
            text = static_cast<const char*>(bytes);
            GlobalUnlock(memory);
        }
        CloseClipboard();
    }
    return text;
}

Box contentOf(Window messageBox) {
    Box box{.caption = messageBox.text(), .text = messageBox.control(MessageTextId).text(), .buttons = {}};
    for (int id = IDOK; id <= IDCONTINUE; ++id) {
        const Window button(GetDlgItem(messageBox.handle(), id));
        if (button && button.isVisible()) {
            box.buttons.push_back(id);
        }
    }
    return box;
}

std::vector<Window> topLevelWindows(DWORD processId) {
    struct Search {
        DWORD processId;
        std::vector<Window> found;
    } search{processId, {}};
    const auto collect = [](HWND window, LPARAM parameter) -> BOOL {
        auto& into = *reinterpret_cast<Search*>(parameter);
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        if (owner == into.processId && IsWindowVisible(window) != FALSE) {
            into.found.emplace_back(window);
        }
        return TRUE;
    };
    EnumWindows(collect, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

} // namespace varrocade::gui
