// Pieces of text from which the shapes are made.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace vexil::growth {

// Appends piece(0), piece(1) and so on until the text has the size. Returns the number of pieces.
template <typename Piece>
std::size_t FillUpTo(std::string& text, std::size_t size, Piece piece) {
    std::size_t count = 0;
    while (text.size() < size) {
        text += piece(count++);
    }
    return count;
}

inline std::string Repeated(std::string_view piece, std::size_t size) {
    std::string text;
    FillUpTo(text, size, [piece](std::size_t) { return piece; });
    return text;
}

inline std::string Numbered(std::string_view text, std::uint64_t number) {
    return std::string(text).append(std::to_string(number));
}

inline std::string Quoted(std::string_view text) {
    return std::string("\"").append(text).append("\"");
}

inline std::string MessageLine(std::size_t id, std::string_view name = "M",
                               std::string_view transmitter = "A") {
    return Numbered("BO_ ", id) + " " + std::string(name) + ": 8 " + std::string(transmitter) +
           "\n";
}

// A signal of 32 bits, which a SIG_VALTYPE_ can make a float.
inline std::string SignalLine(std::string_view name) {
    return " SG_ " + std::string(name) + " : 0|32@1+ (1,0) [0|0] \"\" B\n";
}

}  // namespace vexil::growth
