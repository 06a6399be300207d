// Whether a standard stream is a terminal.
// SPDX-License-Identifier: MIT
#pragma once

namespace vexil::tool {

inline constexpr int StandardOutputStream = 1;
inline constexpr int StandardErrorStream = 2;

bool IsTerminal(int stream);

// Whether standard output shows colours: it is a terminal, and the environment variable NO_COLOR is
// not set or empty. On Windows it never does, since not every terminal has them.
bool WantsColour();

}  // namespace vexil::tool
