// Whether a standard stream is a terminal, and how wide it is.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace vexil::tool {

inline constexpr int StandardOutputStream = 1;
inline constexpr int StandardErrorStream = 2;

bool IsTerminal(int stream);

// Returns whether reports on standard output have colours: it is a terminal, and the environment
// variable NO_COLOR is not set or empty. Never on Windows, where not every terminal has colours.
bool WantsColour();

// Returns the number of columns of the terminal that standard output is; 0 if it is no terminal or
// does not report them.
std::size_t TerminalWidth();

}  // namespace vexil::tool
