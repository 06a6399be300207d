// UTF-8 as the library decodes it.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

namespace vexil::tool {

// Returns the size of the character at a position of the text, or 0 if it is not valid: a wrong
// lead byte, too few continuation bytes, an overlong form, a surrogate, or a code point above
// U+10FFFF.
std::size_t Utf8Length(std::string_view text, std::size_t at);

}  // namespace vexil::tool
