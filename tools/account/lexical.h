// Parses words and numbers of a statement as the library does.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vexil::tool {

// Returns the text without white space at its ends.
std::string_view Trim(std::string_view text);

// Returns the text on one line: each run of white space becomes a blank, and a long text is cut.
std::string Shown(std::string_view text);

// The words of a statement, one after the other.
class Words {
  public:
    explicit Words(std::string_view text) : whole(text) {}

    // The next run of characters that are not white space; empty at the end.
    std::string_view Next();

    // The word that Next will return.
    std::string_view Peek() const;

    // The text after the last word.
    std::string_view Rest() const { return whole.substr(position); }

  private:
    std::string_view whole;
    std::size_t position = 0;
};

// Parses an id: only decimal digits, at most 32 bits, with white space after them.
std::optional<std::uint32_t> TakeId(Words& words);

// Parses an integer at the front of a text, after optional white space and a sign. Returns nothing
// if there is none or it exceeds 32 bits.
struct LeadingNumber {
    std::int32_t value = 0;
    bool isWhole = true;  // only white space follows it
};
std::optional<LeadingNumber> ReadLeadingNumber(std::string_view text);

// Parses a double at the front of a text, in the same way.
struct LeadingDouble {
    double value = 0;
    bool isWhole = true;
};
std::optional<LeadingDouble> ReadLeadingDouble(std::string_view text);

// Returns whether a name is an identifier: at most 32 letters, digits and underscores, not starting
// with a digit.
bool IsIdentifier(std::string_view name);

// Returns whether an identifier can have all characters of the name. Its length does not matter.
bool HasIdentifierCharacters(std::string_view name);

// Returns the identifier that the library makes of a text.
std::string MakeIdentifier(std::string_view text);

}  // namespace vexil::tool
