#include "cli/command_line.h"

#include <cstdio>
#include <string>
#include <vector>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

int main(int argumentCount, char** argumentTexts) {
#ifdef _WIN32
    // Output is the same, byte for byte, on every system.
    _setmode(_fileno(stdout), _O_BINARY);
#endif
    const std::vector<std::string> arguments(argumentTexts + (argumentCount > 0 ? 1 : 0),
                                             argumentTexts + argumentCount);
    return varrocade::cli::runCommandLine(arguments);
}
