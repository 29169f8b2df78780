#include "menu_probe.h"

#include <windows.h>

extern "C" __declspec(dllexport) LRESULT CALLBACK probeMenu(int code, WPARAM parameter, LPARAM detail) {
    const auto& sent = *reinterpret_cast<const CWPSTRUCT*>(detail);
    if (code == HC_ACTION && sent.message == RegisterWindowMessageW(varrocade::gui::MenuProbeMessage)) {
        const UINT state = GetMenuState(GetMenu(sent.hwnd), static_cast<UINT>(sent.wParam), MF_BYCOMMAND);
        SetPropW(sent.hwnd, varrocade::gui::MenuStateProperty,
                 reinterpret_cast<HANDLE>(static_cast<ULONG_PTR>(state + 1)));
    }
    return CallNextHookEx(nullptr, code, parameter, detail);
}
