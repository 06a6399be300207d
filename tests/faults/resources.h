// Resources that a call must not leak.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <filesystem>
#include <iterator>

namespace vexil::faults {

// How many file descriptors the process has open.
inline std::ptrdiff_t OpenDescriptors() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"),
                         std::filesystem::directory_iterator());
}

}  // namespace vexil::faults
