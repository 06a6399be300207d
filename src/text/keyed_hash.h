// The hash of the library's tables. Its key is a secret of the process, so that nobody can write a
// file whose names or ids all fall into one bucket. No hash reaches a caller or a file.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace vexil {

// The hash of a number and a text. Hashing prefixes of a text in ascending length costs together as
// much as hashing the text once.
class PrefixHash {
  public:
    // text: a view that lives as long as the object.
    PrefixHash(std::uint64_t number, std::string_view text) noexcept;

    // Returns the hash of the number and the first size bytes of the text. Precondition: no earlier
    // call had a greater size.
    std::size_t UpTo(std::size_t size) noexcept;

  private:
    std::uint64_t state;     // of the number and the whole words so far
    std::string_view whole;  // the text
    std::size_t done = 0;    // bytes of the text in these words
};

// The hash of a number and a whole text.
inline std::size_t KeyedHash(std::uint64_t number, std::string_view text) noexcept {
    return PrefixHash(number, text).UpTo(text.size());
}

}  // namespace vexil
