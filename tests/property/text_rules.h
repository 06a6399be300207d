// What the library does to single texts, in plain steps of our own.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace vexil::test {

// At most size bytes of the text, cut at a character.
std::string CutText(const std::string& text, std::size_t size);

// The identifier that a name becomes.
std::string IdentifierOf(const std::string& text);

// The identifiers of a list with commas.
std::vector<std::string> ReceiversOf(const std::string& list);

// The text with one blank for each tab, line feed, vertical tab, form feed and carriage return.
std::string WithoutLineControls(std::string text);

// The text without control characters that are no white space, which no line of a file keeps.
std::string WithoutControls(std::string text);

// The text with a backslash before each double quote that has none.
std::string WithEscapedQuotes(const std::string& text);

bool IsKeyword(const std::string& token);

// Whether a reader would see a keyword in a quoted text, which ends most statements; and whether it
// would see one after the first line, where it ends a comment.
bool HoldsKeyword(const std::string& text);
bool HoldsKeywordBehindItsFirstLine(const std::string& text);

// The number as a file has it, and back. False when it is out of the range of a double on its way
// back.
bool NumberByFile(double& number);

// The quoted text that the value of an attribute statement gives, the token at that place in it.
// False when there is none.
bool AttributeText(const std::string& statement, std::size_t tokenAt, std::string& text);

// Adds the value descriptions of a text: numbers and quoted texts in turn, each pair found by its
// quotes only.
void AddDescriptions(const std::string& text, std::map<std::int32_t, std::string>& enums);

// A multiplex indicator at the end of the text before the colon.
struct Indicator {
    std::uint32_t type = 0;
    std::uint32_t value = 0;
    std::string name;  // the text before it
};

Indicator IndicatorOf(const std::string& head);

}  // namespace vexil::test
