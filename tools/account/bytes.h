// Bytes that are not valid UTF-8, in words.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

#include "source/source_text.h"

namespace vexil::tool {

// Where the invalid bytes of a statement are, which ones they are, and what they would be in
// Windows-1252 if they look like it.
//   first, count  in source.InvalidBytes()
std::string DescribeInvalidBytes(const SourceText& source, std::size_t first, std::size_t count);

}  // namespace vexil::tool
