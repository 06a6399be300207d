// Texts of a file as a terminal or a pager may show them.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace vexil::tool {

// The text on one line: control characters, which include those that change the direction of text,
// become escapes such as \n and \x1B, as do bytes that are no UTF-8.
std::string Visible(std::string_view text);

}  // namespace vexil::tool
