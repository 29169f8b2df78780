#include "platform/messages.h"

#include <windows.h>

namespace varrocade {

void debugLine(std::string_view line) {
    const std::string text = std::string(line) + "\n";
    OutputDebugStringA(text.c_str());
}

} // namespace varrocade
