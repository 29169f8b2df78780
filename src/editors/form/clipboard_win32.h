#pragma once

#include <windows.h>

#include <string>

namespace varrocade {

/// Puts a text on the clipboard in place of what is there. Without effect while another program holds it.
void copyToClipboard(HWND owner, const std::string& text);

/// The text on the clipboard; empty where there is none.
std::string clipboardText(HWND owner);

} // namespace varrocade
