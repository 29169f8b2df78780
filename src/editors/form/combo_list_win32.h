#pragma once
// Drop-down lists that are typed into: the list shows what fits the text, and no key or wheel exchanges the
// text for an entry that nobody chose.

#include <windows.h>

#include <span>
#include <string>

namespace varrocade {

/// Whether a control is a drop-down list, whose messages are others than an edit's.
bool isComboBox(HWND control);

/// Whether it has an edit part.
bool isTypedInto(HWND control);

/// Puts other entries into a drop-down list. Its text stays, and the place of the caret in it.
void replaceEntries(HWND combo, std::span<const std::string> entries);

/// From here on the arrow keys open a list that holds nothing like its text, instead of taking the list's
/// first entry; the wheel leaves it alone; Ctrl+Z takes back what was typed, though the list is filled anew
/// meanwhile.
void guardText(HWND combo);

} // namespace varrocade
