#pragma once
// Windows of our own within the main window, which can have the keyboard.

#include <windows.h>

namespace varrocade {

/// A class for windows that are painted whole and take double-clicks.
bool registerChildWindow(const char* className, WNDPROC procedure);

/// A visible tab stop of such a class, without a place yet.
HWND createChildWindow(const char* className, const char* name, HWND parent, int id, DWORD style = 0);

} // namespace varrocade
