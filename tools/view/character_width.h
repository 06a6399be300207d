// How many columns of a terminal a character takes. The function of the C library depends on the
// locale, and Windows has none.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>

namespace vexil::tool {

// Returns 0 for a combining mark or a format character, 2 for a wide character such as a Chinese
// one, 1 for all others.
std::size_t CharacterWidth(std::uint32_t character);

}  // namespace vexil::tool
