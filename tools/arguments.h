// The command line in UTF-8.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace vexil::tool {

// The arguments behind the name of the program. On Windows main has them in the code page of the
// system, which lacks most characters, so they are fetched anew there.
std::vector<std::string> Utf8Arguments(int argc, const char* const* argv);

}  // namespace vexil::tool
