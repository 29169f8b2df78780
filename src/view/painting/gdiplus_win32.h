#pragma once
// GDI+ needs the OLE headers that a lean <windows.h> leaves out, and names min and max without saying whose.

#include <algorithm>
#include <windows.h>

#include <objbase.h>
#include <objidl.h>

namespace Gdiplus {
using std::max;
using std::min;
} // namespace Gdiplus

#include <gdiplus.h>

namespace varrocade {

/// What reading pictures needs, for the length of a scope: GDI+, and COM on this thread. Without COM held,
/// each picture would load the system's decoders anew.
class PictureSession {
public:
    PictureSession() : hasCom_(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {
        const Gdiplus::GdiplusStartupInput input;
        Gdiplus::GdiplusStartup(&token_, &input, nullptr);
    }
    PictureSession(const PictureSession&) = delete;
    PictureSession& operator=(const PictureSession&) = delete;
    ~PictureSession() {
        Gdiplus::GdiplusShutdown(token_);
        if (hasCom_) {
            CoUninitialize();
        }
    }

private:
    bool hasCom_;
    ULONG_PTR token_ = 0;
};

} // namespace varrocade
