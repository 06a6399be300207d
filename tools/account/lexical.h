// How the library takes words and numbers out of a statement.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vexil::tool {

// The text without white space at its ends.
std::string_view Trim(std::string_view text);

// The text on one line, each run of white space made one blank, and cut if it is long.
std::string Shown(std::string_view text);

// The words of a statement, one after the other.
class Words {
  public:
    explicit Words(std::string_view text) : whole(text) {}

    // The next run of characters that are not white space; empty at the end.
    std::string_view Next();

    // What Next would return, without taking it.
    std::string_view Peek() const;

    // All that has not been taken.
    std::string_view Rest() const { return whole.substr(position); }

  private:
    std::string_view whole;
    std::size_t position = 0;
};

// An id: decimal digits alone, of 32 bits, with white space after them.
std::optional<std::uint32_t> TakeId(Words& words);

// The whole number at the front of a text, white space and a sign before it allowed; nothing if
// there is none of 32 bits.
struct LeadingNumber {
    std::int32_t value = 0;
    bool isWhole = true;  // nothing but white space follows it
};
std::optional<LeadingNumber> ReadLeadingNumber(std::string_view text);

// A number of double precision at the front of a text, in the same way.
struct LeadingDouble {
    double value = 0;
    bool isWhole = true;
};
std::optional<LeadingDouble> ReadLeadingDouble(std::string_view text);

// Whether a name is an identifier: letters, digits and underscores, no digit first, at most 32.
bool IsIdentifier(std::string_view name);

// Whether all of its characters may be in an identifier, whatever its length.
bool HasIdentifierCharacters(std::string_view name);

// The identifier that the library makes of a text.
std::string MakeIdentifier(std::string_view text);

}  // namespace vexil::tool
