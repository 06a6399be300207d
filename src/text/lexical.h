// Helpers with which the handlers parse a statement: by byte position, without tokens. They have no
// side effects besides their output arguments, and do not throw on bad input.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "text/constants.h"

namespace vexil {

// Parses an unsigned decimal number: a token that white space follows.
// value: the number; 0 after false. end: the position of the white space; npos after false.
// Returns false for a sign, any other character, a value above 32 bits, or a token that ends the
// text. Intentional: a token that begins with a minus sign and a number passes if its length is the
// number of digits of 2^32 less the number, whatever follows the digits.
bool ParseUnsignedToken(std::string_view text, std::uint32_t& value, Position& end, Position from);

// Returns the text from from up to the next ch, a view into text.
// foundPos: the position of ch; npos, with an empty result, when there is none or from is not
// inside the text. The result is also empty when ch is at from.
std::string_view TextUpToChar(std::string_view text, Position from, char ch, Position& foundPos);

// Returns the text from from to to inclusive, without white space at its ends, a view into text.
// Intentional: empty when from is not below to, even if there is a character.
std::string_view TrimmedRange(std::string_view text, Position from, Position to);

// Returns text without white space at its ends, a view into text.
std::string_view Trimmed(std::string_view text);

// Whether text is an identifier: 1 to 32 ASCII letters, digits or "_", the first not a digit.
bool IsValidCIdentifier(std::string_view text);

// Returns the identifier made from text: folded to ASCII, cut to 32 characters, with "_" in place
// of a leading digit and of every character that identifiers do not have. Empty for an empty text.
// Different texts may give equal identifiers. Precondition: text is valid UTF-8.
std::string MakeCIdentifier(std::string_view text);

// The number of decimal digits of the number.
std::size_t DigitCount(std::uint32_t number);

// Parse the number at the start of text, in base 10. White space and a sign may precede it. Text
// after it is ignored.
// value: the number; 0 after false, which means that there is no number or that it is out of
// range.
// TryParseU32 accepts a minus sign like strtoul, within 32 bits: "-1" is 4294967295.
// TryParseDouble is strtod under the C locale of the host. A result that overflows or underflows is
// out of range.
bool TryParseU32(std::string_view text, std::uint32_t& value);
bool TryParseI32(std::string_view text, std::int32_t& value);
bool TryParseI64(std::string_view text, std::int64_t& value);
bool TryParseDouble(std::string_view text, double& value);

}  // namespace vexil
