// Random text of the kinds that a reader of DBC files may meet, the same for the same seed on every
// platform.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>

namespace vexil::test {

class RandomText {
  public:
    explicit RandomText(std::uint32_t seed) : engine(seed) {}

    // A number below limit. Precondition: limit is not 0.
    std::size_t Below(std::size_t limit) { return engine() % limit; }

    // Characters of one to four bytes, separators and white space.
    std::string ValidText(std::size_t maxPieces);

    // ValidText mixed with broken UTF-8, of at most maxPieces pieces.
    std::string AnyText(std::size_t maxPieces);

    // A number with sign, white space and whatever may follow it, near the edges of 32 and 64 bits.
    std::string NumberText();

    // A whole file: keywords, words near to them, separators, lines, control bytes, broken UTF-8.
    std::string File(std::size_t maxPieces);

    // One keyword, or a word that is nearly one.
    std::string KeywordLike();

  private:
    std::string ValidCharacter();
    std::string BrokenUtf8();
    std::string Space();

    std::mt19937 engine;  // the one engine whose numbers the standard fixes
};

}  // namespace vexil::test
