// Terminals of the system.
// SPDX-License-Identifier: MIT
#include "file/terminal.h"

#include <cstdlib>

#ifdef _WIN32
#include <io.h>
#include <windows.h>
#else
#include <sys/ioctl.h>
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

std::size_t TerminalWidth() {
#ifdef _WIN32
    CONSOLE_SCREEN_BUFFER_INFO info{};
    if (GetConsoleScreenBufferInfo(GetStdHandle(STD_OUTPUT_HANDLE), &info) == 0 ||
        info.srWindow.Right < info.srWindow.Left) {
        return 0;
    }
    return static_cast<std::size_t>(info.srWindow.Right - info.srWindow.Left) + 1;
#else
    winsize size{};
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): the system has no other call for it
    return ioctl(StandardOutputStream, TIOCGWINSZ, &size) == 0 ? size.ws_col : 0;
#endif
}

}  // namespace vexil::tool
