// Takes numbers and texts from the front of a fuzz input. An input that has ended returns 0 and
// empty texts.
//
// Inputs can be typed: a digit is a number, and a text ends at "|".
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>
#include <string_view>

namespace vexil::fuzz {

class ByteSource {
  public:
    explicit ByteSource(std::string_view input) : rest(input) {}

    bool IsAtEnd() const { return rest.empty(); }

    // The rest of the input.
    std::string_view Rest() const { return rest; }

    char Byte() {
        const std::string_view byte = Take(1);
        return byte.empty() ? '\0' : byte.front();
    }

    // Removes the next byte if it is equal to the argument.
    bool Next(char ch) {
        const bool isNext = rest.starts_with(ch);
        Take(isNext ? 1 : 0);
        return isNext;
    }

    // One byte: a digit is a number, "#" takes the next four bytes, any other byte selects a number
    // near a limit.
    std::uint32_t Word() {
        constexpr std::uint32_t Edges[] = {
            10,  16,  31,  32,   33,  63,   64,         65,         254,        255,       256,
            257, 260, 261, 9999, 291, 0xFF, 2147483647, 2147483648, 4294967294, 4294967295};
        const char ch = Byte();
        if (ch >= '0' && ch <= '9') {
            return static_cast<std::uint32_t>(ch - '0');
        }
        return ch == '#' ? Raw<std::uint32_t>() : Edge(Edges, ch);
    }

    // The same with eight bytes.
    double Number() {
        constexpr double Edges[] = {0.1,
                                    -0.0,
                                    -40,
                                    1.0 / 3,
                                    6553.5,
                                    1e-5,
                                    9999999999,
                                    12345678901,
                                    999999.99995,
                                    1e100,
                                    1e-310,
                                    std::numeric_limits<double>::max(),
                                    std::numeric_limits<double>::min(),
                                    std::numeric_limits<double>::infinity(),
                                    -std::numeric_limits<double>::infinity(),
                                    std::numeric_limits<double>::quiet_NaN()};
        const char ch = Byte();
        if (ch >= '0' && ch <= '9') {
            return ch - '0';
        }
        return ch == '#' ? Raw<double>() : Edge(Edges, ch);
    }

    // The text up to the next end byte, which is removed, too.
    std::string_view TextUpTo(char ch) {
        const std::string_view text = Take(std::min(rest.find(ch), rest.size()));
        Take(1);
        return text;
    }

    // Copies a text into an array. A text that begins with "*" is repeated until the array is full.
    // A text as long as the array has no NUL; after the NUL of a shorter text, the array is filled
    // with bytes that are not valid UTF-8.
    template <std::size_t Size>
    void TextInto(char (&array)[Size]) {
        std::string text(TextUpTo('|'));
        if (text.starts_with('*') && text.size() > 1) {
            const std::string once = text.substr(1);
            for (text.clear(); text.size() < Size;) {
                text += once;
            }
        }
        std::memset(array, 0xA5, Size);
        const std::size_t count = std::min(text.size(), Size);
        std::copy_n(text.begin(), count, array);
        if (count < Size) {
            array[count] = '\0';
        }
    }

  private:
    std::string_view Take(std::size_t count) {
        const std::string_view taken = rest.substr(0, count);
        rest.remove_prefix(taken.size());
        return taken;
    }

    template <typename Value>
    Value Raw() {
        Value value{};
        const std::string_view taken = Take(sizeof value);
        std::memcpy(&value, taken.data(), taken.size());
        return value;
    }

    template <typename Value, std::size_t Size>
    static Value Edge(const Value (&edges)[Size], char ch) {
        return edges[static_cast<unsigned char>(ch) % Size];
    }

    std::string_view rest;
};

}  // namespace vexil::fuzz
