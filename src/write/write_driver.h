// Writing a file: the sections in their fixed order.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace vexil {

// The body of VexilWriteDbcFile; see there for arguments, result and result code.
bool WriteDbcFile(const char* path, std::uint32_t pathBufferSize, std::uint32_t order,
                  std::uint32_t& resultCode);

}  // namespace vexil
