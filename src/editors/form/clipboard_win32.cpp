#include "editors/form/clipboard_win32.h"

#include <cstring>

namespace varrocade {

void copyToClipboard(HWND owner, const std::string& text) {
    if (OpenClipboard(owner) == FALSE) {
        return;
    }
    EmptyClipboard();
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, text.size() + 1);
    if (void* bytes = memory != nullptr ? GlobalLock(memory) : nullptr) {
        std::memcpy(bytes, text.c_str(), text.size() + 1);
        GlobalUnlock(memory);
        // The system owns the memory from now on.
        if (SetClipboardData(CF_TEXT, memory) == nullptr) {
            GlobalFree(memory);
        }
    }
    CloseClipboard();
}

std::string clipboardText(HWND owner) {
    std::string text;
    if (OpenClipboard(owner) == FALSE) {
        return text;
    }
    HANDLE memory = GetClipboardData(CF_TEXT);
    if (const void* bytes = memory != nullptr ? GlobalLock(memory) : nullptr) {
        const auto* begin = static_cast<const char*>(bytes);
        text.assign(begin, strnlen(begin, GlobalSize(memory)));
        GlobalUnlock(memory);
    }
    CloseClipboard();
    return text;
}

} // namespace varrocade
