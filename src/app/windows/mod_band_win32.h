#pragma once
// The coloured band below the menu that names the mod. It belongs to the window's frame: so everything in the
// client area keeps its place.

#include <windows.h>

namespace varrocade {

/// The pixels that it takes; 0 outside mod mode.
int modBandHeight();

/// Makes the control, never shown, whose text is the band's: for programs that read or drive this one.
void createModBand(HWND window);

/// What the system does with WM_NCCALCSIZE, WM_NCPAINT and WM_NCACTIVATE, and the band with it.
LRESULT withModBand(HWND window, UINT message, WPARAM parameter, LPARAM detail);

/// Has the band say what it has to now. It comes and goes with mod mode, which changes the frame.
void showModBand();

} // namespace varrocade
