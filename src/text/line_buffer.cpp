// LineBuffer: growing.
// SPDX-License-Identifier: MIT
#include "text/line_buffer.h"

#include <algorithm>

namespace vexil {

void LineBuffer::Grow(std::size_t bytes) {
    constexpr std::size_t FirstCapacity = 256;
    const std::size_t larger = std::max({FirstCapacity, capacity * 2, size + bytes});
    auto moved = std::make_unique_for_overwrite<char[]>(larger);
    std::copy_n(characters.get(), size, moved.get());
    characters = std::move(moved);
    capacity = larger;
}

}  // namespace vexil
