#pragma once
// List boxes of dialogs: keys that do what the buttons beside them do, and room for their lines.

#include <windows.h>

#include <span>

namespace varrocade {

/// A key and the button that it presses while that can be pressed.
struct ListKey {
    WPARAM key;
    bool withAlt;
    int button;
    const char* tip; ///< what the button says of it while the mouse rests there
};

/// Lets a list box of a dialog take the keys of a table, whose rows must live as long as the dialog, and has
/// the buttons tell of them.
void bindListKeys(HWND dialog, int listBox, std::span<const ListKey> keys);

/// Has Ctrl+Z and Ctrl+Y press IDC_ENTRY_UNDO and IDC_ENTRY_REDO of a dialog that has these, wherever the
/// keyboard is. An edit takes back what was typed into it before.
void bindUndoKeys(HWND dialog);

/// A text that a control shows while the mouse rests on it.
struct Tip {
    int control;
    const char* text;
};
void addTips(HWND dialog, std::span<const Tip> tips);

/// Lets a list box be scrolled sideways as far as its widest line needs; where none does, it has no bar.
void measureLines(HWND box);

/// Gives the keyboard to a control when `former`, which had it, has been disabled: the dialog would take no
/// key any more.
void keepKeyboard(HWND dialog, HWND former, int control);

} // namespace varrocade
