#pragma once
// GDI+ needs the OLE headers that a lean <windows.h> leaves out, and names min and max without saying whose.

#include <algorithm>
#include <windows.h>

#include <objidl.h>

namespace Gdiplus {
using std::max;
using std::min;
} // namespace Gdiplus

#include <gdiplus.h>
