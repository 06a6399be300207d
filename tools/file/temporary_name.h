// Names of temporary files.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

namespace vexil::tool {

// Returns a name that no other file is likely to have, another one for each call. It can be
// guessed: the caller makes the file only if there is none of that name, and asks for the next name
// otherwise.
//   size  of the name in characters
std::string TemporaryName(std::size_t size);

}  // namespace vexil::tool
