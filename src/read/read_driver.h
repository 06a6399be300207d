// Reading a file: one pass over its statements.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace vexil {

// The body of VexilReadDbcFile; see there for arguments, result and result code.
bool ReadDbcFile(const char* path, std::uint32_t pathBufferSize, std::uint32_t& resultCode);

}  // namespace vexil
