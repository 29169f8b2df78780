#include "app/windows/child_window.h"

#include "app/windows/application.h"

namespace varrocade {

bool registerChildWindow(const char* className, WNDPROC procedure) {
    WNDCLASSEXA windowClass{};
    windowClass.cbSize = sizeof(windowClass);
    windowClass.style = CS_HREDRAW | CS_VREDRAW | CS_DBLCLKS;
    windowClass.lpfnWndProc = procedure;
    windowClass.hInstance = application().instance;
    windowClass.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    windowClass.lpszClassName = className;
    return RegisterClassExA(&windowClass) != 0;
}

HWND createChildWindow(const char* className, const char* name, HWND parent, int id, DWORD style) {
    return CreateWindowExA(0, className, name, WS_CHILD | WS_VISIBLE | WS_TABSTOP | style, 0, 0, 0, 0, parent,
                           reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), application().instance,
                           nullptr);
}

} // namespace varrocade
