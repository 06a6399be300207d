// How text is drawn on a terminal.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace vexil::tool {

inline constexpr std::size_t LeastWidth = 40;
inline constexpr std::size_t UsualWidth = 100;

struct DrawStyle {
    std::size_t width = UsualWidth;  // in columns, at least LeastWidth
    bool ascii = false;              // lines of + - and | instead of box-drawing characters
    bool colour = false;
};

}  // namespace vexil::tool
