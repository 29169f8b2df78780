#pragma once
// Menus that open at the mouse.

#include <windows.h>

#include <string>
#include <string_view>

namespace varrocade {

/// A name in a menu, where "&" would underline a letter and a long one make the menu too wide.
inline std::string menuText(std::string_view name) {
    constexpr std::size_t most = 48;
    std::string text;
    for (const char c : name.substr(0, most)) {
        text += c == '&' ? "&&" : std::string(1, c);
    }
    return name.size() > most ? text + "..." : text;
}

/// Owner of a menu for the length of a scope.
class PopupMenu {
public:
    PopupMenu() : menu_(CreatePopupMenu()) {}
    PopupMenu(const PopupMenu&) = delete;
    PopupMenu& operator=(const PopupMenu&) = delete;
    ~PopupMenu() { DestroyMenu(menu_); }

    void add(int command, const std::string& text, bool isEnabled) const {
        AppendMenuA(menu_, isEnabled ? MF_STRING : MF_STRING | MF_GRAYED, static_cast<UINT_PTR>(command),
                    text.c_str());
    }
    /// Shows the menu at a pixel of the screen, and sends the command that is chosen to its window.
    void run(HWND window, POINT screenPixel) const {
        const int command = TrackPopupMenu(menu_, TPM_RETURNCMD | TPM_RIGHTBUTTON, screenPixel.x,
                                           screenPixel.y, 0, window, nullptr);
        if (command != 0) {
            SendMessageA(window, WM_COMMAND, MAKEWPARAM(command, 0), 0);
        }
    }
    void addSeparator() const { AppendMenuA(menu_, MF_SEPARATOR, 0, nullptr); }

private:
    HMENU menu_;
};

} // namespace varrocade
