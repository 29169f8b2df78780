#pragma once
// How the tests ask for the state of a menu item: they send this message, with the command in `wParam`, to a
// window whose thread has the hook; the answer is a property of that window, 1 more than `GetMenuState`
// returned.

namespace varrocade::gui {

inline constexpr wchar_t MenuProbeLibrary[] = L"menu_probe.dll";
inline constexpr char MenuProbeFunction[] = "probeMenu";
inline constexpr wchar_t MenuProbeMessage[] = L"VarrocadeMenuProbe";
inline constexpr wchar_t MenuStateProperty[] = L"VarrocadeMenuState";

} // namespace varrocade::gui
