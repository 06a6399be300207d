// Terminals of the system.
// SPDX-License-Identifier: MIT
#include "file/terminal.h"

#include <cstdlib>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace vexil::tool {

bool IsTerminal(int stream) {
#ifdef _WIN32
    return _isatty(stream) != 0;
#else
    return isatty(stream) != 0;
#endif
}

bool WantsColour() {
#ifdef _WIN32
    return false;
#else
    const char* const noColour = std::getenv("NO_COLOR");
    return IsTerminal(StandardOutputStream) && (noColour == nullptr || *noColour == '\0');
#endif
}

}  // namespace vexil::tool
