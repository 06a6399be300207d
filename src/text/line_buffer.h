// LineBuffer, a buffer in which lines are composed.
// SPDX-License-Identifier: MIT
#pragma once

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

namespace vexil {

// A string that is only appended to and cleared. Appending is inline and takes several pieces at
// once, since a written line consists of many short pieces.
class LineBuffer {
  public:
    // Appends the pieces in order: texts, characters, and integers in decimal. Throws
    // std::bad_alloc and then changes nothing.
    template <typename... Pieces>
    LineBuffer& Append(const Pieces&... pieces) {
        char* at = Room((MostSize(pieces) + ...));
        ((at = Put(at, pieces)), ...);
        size = static_cast<std::size_t>(at - characters.get());
        return *this;
    }

    std::string_view Text() const noexcept { return {characters.get(), size}; }
    std::size_t Size() const noexcept { return size; }

    // Cuts the text to its first bytes. Does not free memory.
    void Cut(std::size_t smaller) noexcept { size = smaller; }
    void Clear() noexcept { size = 0; }

  private:
    static constexpr std::size_t MostDigits = 10;  // of 32 bits

    static std::size_t MostSize(std::string_view text) noexcept { return text.size(); }
    static std::size_t MostSize(char /*ch*/) noexcept { return 1; }
    static std::size_t MostSize(std::uint32_t /*number*/) noexcept { return MostDigits; }
    static std::size_t MostSize(std::int32_t /*number*/) noexcept { return 1 + MostDigits; }

    static char* Put(char* at, std::string_view text) noexcept {
        return at + text.copy(at, text.size());
    }
    static char* Put(char* at, char ch) noexcept {
        *at = ch;
        return at + 1;
    }
    static char* Put(char* at, std::uint32_t number) noexcept {
        return number < 10 ? Put(at, static_cast<char>('0' + number))
                           : std::to_chars(at, at + MostDigits, number).ptr;
    }
    static char* Put(char* at, std::int32_t number) noexcept {
        const auto bits = static_cast<std::uint32_t>(number);
        return number < 0 ? Put(Put(at, '-'), 0 - bits) : Put(at, bits);
    }

    // Returns the end of the text, with room for that many bytes.
    char* Room(std::size_t bytes) {
        if (capacity - size < bytes) {
            Grow(bytes);
        }
        return characters.get() + size;
    }
    void Grow(std::size_t bytes);

    std::unique_ptr<char[]> characters;
    std::size_t size = 0;
    std::size_t capacity = 0;
};

}  // namespace vexil
