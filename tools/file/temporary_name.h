// Names of temporary files.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

namespace vexil::tool {

// Returns a name that is probably unique, a different one for each call. It can be guessed, so the
// caller must make the file only if it does not exist, and otherwise ask for another name.
//   size  of the name in characters
std::string TemporaryName(std::size_t size);

}  // namespace vexil::tool
