// Describes bytes that are not valid UTF-8.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

#include "source/source_text.h"

namespace vexil::tool {

// Describes the place and value of the invalid bytes of a statement, and their character in
// Windows-1252 if that is likely.
//   first, count  range of the bytes in source.InvalidBytes()
std::string DescribeInvalidBytes(const SourceText& source, std::size_t first, std::size_t count);

}  // namespace vexil::tool
