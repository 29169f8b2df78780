#include "platform/messages.h"

#include <cstdio>

namespace varrocade {

void debugLine(std::string_view line) {
    const std::string text = std::string(line) + "\n";
    std::fputs(text.c_str(), stderr);
}

} // namespace varrocade
