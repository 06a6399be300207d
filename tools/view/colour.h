// Colours of a terminal.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vexil::tool {

enum class Colour : std::uint8_t { None, Red, Yellow, Green };

// Returns the text with the terminal codes of the colour.
inline std::string InColour(std::string_view text, Colour colour) {
    if (colour == Colour::None) {
        return std::string(text);
    }
    const std::string_view code = colour == Colour::Red     ? "\x1B[31m"
                                  : colour == Colour::Green ? "\x1B[32m"
                                                            : "\x1B[33m";
    return std::string(code) + std::string(text) + "\x1B[0m";
}

}  // namespace vexil::tool
