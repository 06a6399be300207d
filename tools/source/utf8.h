// UTF-8 as the library decodes it.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

namespace vexil::tool {

// The size of the character that begins at a place of the text, 0 if none does: a wrong lead byte,
// too few continuation bytes, an overlong form, a surrogate, or a number above U+10FFFF.
std::size_t Utf8Length(std::string_view text, std::size_t at);

}  // namespace vexil::tool
