// The helpers that parse and format text, each compared with a plain statement of its rule.
//
// The first three bytes of an input select two positions and a keyword or character. The rest is
// the text, with which every function is called.
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <bit>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "attributes/tokens.h"
#include "expect.h"
#include "frame/model_text.h"
#include "frame/notes.h"
#include "frame/record_text.h"
#include "property/text_rules.h"
#include "scratch_file.h"
#include "support/files.h"
#include "support/reference_text.h"
#include "support/token_twin.h"
#include "target.h"
#include "text/keyed_hash.h"
#include "text/keywords.h"
#include "text/lexical.h"
#include "text/line_buffer.h"
#include "text/statement_file.h"
#include "text/utf8_text.h"
#include "vexil64.h"
#include "write/number_text.h"

namespace vexil::fuzz {
namespace {

namespace reference = test::reference;

constexpr std::string_view WhiteSpace = " \f\n\r\t\v";

struct Input {
    Position from;
    Position to;
    unsigned char choice;
    std::string text;
};

// A position in the text, at its end or after it; one value of the byte means no position.
Position PositionOf(unsigned char byte, const std::string& text) {
    return byte == 0xFF ? npos : byte % (text.size() + 3);
}

// Calls both functions, with an initial value that a successful call must replace, and compares the
// results and the values.
template <typename Value, typename Helper, typename Reference>
void Compare(Helper helper, Reference reference, const char* what) {
    Value value = 99;
    Value expected = 99;
    const auto result = helper(value);
    const auto expectedResult = reference(expected);
    ExpectSame(result, expectedResult, what);
    if constexpr (std::is_same_v<Value, double>) {
        ExpectSame(std::bit_cast<std::uint64_t>(value), std::bit_cast<std::uint64_t>(expected),
                   what);
    } else {
        ExpectSame(value, expected, what);
    }
}

// -- Keywords -----------------------------------------------------------------------------------

void CheckKeywords(const Input& input) {
    const std::string& keyword =
        reference::Keywords[input.choice % reference::Keywords.size()].text;
    Compare<Position>(
        [&](Position& end) { return MatchKeyword(input.text, keyword, end, input.from); },
        [&](Position& end) {
            const Position start = input.text.find_first_not_of(WhiteSpace, input.from);
            end = start == npos ? npos : start + keyword.size();
            return end < input.text.size() && input.text.substr(start, keyword.size()) == keyword &&
                   WhiteSpace.find(input.text[end]) != npos;
        },
        "MatchKeyword");
    for (const std::string& token : test::TwinRawTokens(input.text, WhiteSpace)) {
        const auto row = std::find_if(reference::Keywords.begin(), reference::Keywords.end(),
                                      [&](const auto& entry) { return entry.text == token; });
        ExpectSame(KeywordRowOf(token), static_cast<std::size_t>(row - reference::Keywords.begin()),
                   "KeywordRowOf");
        Expect(row == reference::Keywords.end() || MayEndKeyword(token.back()), "MayEndKeyword");
    }
}

// -- UTF-8 --------------------------------------------------------------------------------------

template <std::size_t Size>
void CheckArray(const std::string& valid) {
    char array[Size];
    std::memset(array, 'x', Size);
    Expect(CopyTextOut(valid, array), "a valid text fits any array");
    ExpectSame(std::string(array), test::CutText(valid, Size - 1), "CopyTextOut");
}

void CheckUtf8(const Input& input, const std::string& valid) {
    std::string line = input.text;
    ReplaceInvalidUtf8(line);
    ExpectSame(line, valid, "ReplaceInvalidUtf8");
    const std::uint64_t bufferSize = std::min<std::uint64_t>(input.to, input.text.size());
    Compare<std::uint64_t>(
        [&](std::uint64_t& length) { return Utf8FitLength(input.text, bufferSize, length); },
        [&](std::uint64_t& length) {
            return reference::Utf8FitLength(input.text, bufferSize, length);
        },
        "Utf8FitLength");
    std::string_view out = "before";
    std::string expected = "before";
    const std::vector<char> buffer(input.text.begin(),
                                   input.text.begin() + static_cast<std::ptrdiff_t>(bufferSize));
    ExpectSame(CopyUtf8Text(out, buffer.data(), bufferSize),
               reference::CopyUtf8Text(expected, buffer.data(), bufferSize), "CopyUtf8Text");
    ExpectSame(out, expected, "CopyUtf8Text");
    ExpectSame(FoldToAscii(valid), reference::FoldToAscii(valid), "FoldToAscii");
    const std::string oneText = valid.substr(0, valid.find('\0'));
    CheckArray<ShortTextSize>(oneText);
    CheckArray<LongTextSize>(oneText);
}

// -- Ranges and forms ----------------------------------------------------------------------------

void CheckRanges(const Input& input) {
    std::uint32_t value = 99;
    std::uint32_t expectedValue = 99;
    Compare<Position>(
        [&](Position& end) { return ParseUnsignedToken(input.text, value, end, input.from); },
        [&](Position& end) {
            return reference::ParseUnsignedToken(input.text, expectedValue, end, input.from);
        },
        "ParseUnsignedToken");
    ExpectSame(value, expectedValue, "ParseUnsignedToken");
    const char ch = static_cast<char>(input.choice);
    Compare<Position>(
        [&](Position& found) {
            return std::string(TextUpToChar(input.text, input.from, ch, found));
        },
        [&](Position& found) {
            found = input.text.find(ch, input.from);
            return found == npos ? "" : input.text.substr(input.from, found - input.from);
        },
        "TextUpToChar");
    const bool isRange = input.from < input.to && input.from < input.text.size();
    const Position end = std::min<Position>(input.to, input.text.size());
    const std::string range = isRange ? input.text.substr(input.from, end - input.from + 1) : "";
    ExpectSame(std::string(TrimmedRange(input.text, input.from, input.to)),
               reference::Trimmed(range), "TrimmedRange");
    ExpectSame(std::string(Trimmed(input.text)), reference::Trimmed(input.text), "Trimmed");
}

void CheckForms(const std::string& text, const std::string& valid) {
    ExpectSame(IsValidCIdentifier(text), reference::IsValidCIdentifier(text), "IsValidCIdentifier");
    ExpectSame(MakeCIdentifier(valid), reference::MakeCIdentifier(valid), "MakeCIdentifier");
    Arena arena;
    ExpectSame(IdentifierForm(arena, valid), reference::MakeCIdentifier(valid), "IdentifierForm");
    ExpectSame(DisplayForm(arena, text), test::WithoutLineControls(text), "DisplayForm");
    Notes notes;
    notes.SetComment(arena, arena.Keep(text));
    LineBuffer line;
    notes.AppendComment(line);
    ExpectSame(line.Text(), test::WithEscapedQuotes(text), "AppendComment");
}

// -- Numbers ------------------------------------------------------------------------------------

template <typename Number>
void CheckNumber(std::string_view text, bool (*helper)(std::string_view, Number&),
                 bool (*reference)(const std::string&, Number&), const char* what) {
    const std::string whole(text);
    Compare<Number>([&](Number& value) { return helper(text, value); },
                    [&](Number& value) { return reference(whole, value); }, what);
}

bool ParsedByStrtod(const std::string& text, double& value) {
    char* end = nullptr;
    errno = 0;
    const double number = std::strtod(text.c_str(), &end);
    const bool isParsed = end != text.c_str() && errno != ERANGE;
    value = isParsed ? number : 0;
    return isParsed;
}

void CheckNumbers(std::string_view text) {
    CheckNumber<std::uint32_t>(text, TryParseU32, reference::TryParseU32, "TryParseU32");
    CheckNumber<std::int32_t>(text, TryParseI32, reference::TryParseI32, "TryParseI32");
    CheckNumber<std::int64_t>(text, TryParseI64, reference::TryParseI64, "TryParseI64");
    CheckNumber<double>(text, TryParseDouble, ParsedByStrtod, "TryParseDouble");
}

// Checks the double with these bits, and the number that is read from its decimal text.
void CheckNumberText(const std::string& text) {
    double numbers[2] = {};
    std::memcpy(numbers, text.data(), std::min(text.size(), sizeof numbers));
    double read = 0;
    numbers[1] = TryParseDouble(text, read) ? read : numbers[1];
    char expected[80];
    std::snprintf(expected, sizeof expected, " (%.10g,%.10g)", numbers[0], numbers[1]);
    LineBuffer line;
    NumberText().AppendPair(line, " (,)", numbers[0], numbers[1]);
    ExpectSame(line.Text(), expected, "AppendPair");
}

// -- Tokens of attributes -----------------------------------------------------------------------

std::string ReferenceQuotedContent(const std::string& token) {
    std::vector<std::size_t> quotes;
    for (std::size_t at = 0; at < token.size(); ++at) {
        if (token[at] == '"') {
            quotes.push_back(at);
        }
    }
    return quotes.size() < 2 ? ""
                             : token.substr(quotes.front() + 1, quotes.back() - quotes.front() - 1);
}

TokenClass ReferenceClass(const std::string& token) {
    if (!ReferenceQuotedContent(token).empty()) {
        return TokenClass::QuotedString;
    }
    const bool beginsNumber =
        std::string_view("-0123456789").find(token.front()) != std::string_view::npos;
    std::int64_t number = 0;
    return beginsNumber && reference::TryParseI64(token, number) ? TokenClass::Number
                                                                 : TokenClass::Other;
}

void CheckTokens(const std::string& text) {
    const StatementTokens tokens(text);
    const std::vector<std::string> expected = test::TwinTokens(text, " \f\n\r\t\v;,");
    ExpectSame(tokens.Size(), expected.size(), "StatementTokens");
    for (std::size_t at = 0; at < expected.size(); ++at) {
        ExpectSame(tokens[at], expected[at], "StatementTokens");
        ExpectSame(std::string(QuotedContent(tokens[at])), ReferenceQuotedContent(expected[at]),
                   "QuotedContent");
        Expect(ClassifyToken(tokens[at]) == ReferenceClass(expected[at]), "ClassifyToken");
    }
}

// -- Hashes -------------------------------------------------------------------------------------

void CheckHashes(const Input& input) {
    const std::size_t second = std::min<std::size_t>(input.to, input.text.size());
    const std::size_t first = std::min<std::size_t>(input.from, second);
    PrefixHash hash(input.choice, input.text);
    for (const std::size_t size : {first, second}) {
        ExpectSame(hash.UpTo(size), KeyedHash(input.choice, input.text.substr(0, size)),
                   "PrefixHash");
    }
}

// -- Statements of a file -----------------------------------------------------------------------

// The position of the first keyword from a position on, or the size of the text.
std::size_t FindKeyword(const std::string& text, std::size_t from) {
    for (std::size_t at = from; at < text.size();) {
        at = std::min(text.find_first_not_of(WhiteSpace, at), text.size());
        const std::size_t end = std::min(text.find_first_of(WhiteSpace, at), text.size());
        if (KeywordRowOf(std::string_view(text).substr(at, end - at)) < keywordTable.size()) {
            return at;
        }
        at = end;
    }
    return text.size();
}

// Each statement begins with the first keyword after the statement before it and ends before the
// next keyword, at the end of the file, or behind 4096 bytes. Only free text may hold keywords.
void CheckStatements(const std::string& bytes) {
    constexpr std::size_t Limit = 4096;
    static const std::string path = ScratchFile("statements.dbc");
    test::WriteBytes(path, bytes);
    std::string text = reference::CleanLine(bytes);
    text += bytes.empty() || bytes.back() == '\n' ? "" : "\n";
    StatementFile file;
    file.Open(path.c_str(), static_cast<std::uint32_t>(path.size() + 1), OpenMode::Read);
    std::size_t end = 0;
    while (file.NextStatement()) {
        const std::size_t start = FindKeyword(text, end);
        const std::string_view statement = file.statement;
        ExpectSame(std::string(statement), text.substr(start, statement.size()), "a statement");
        end = start + statement.size();
        const std::string word(statement.substr(0, statement.find_first_of(WhiteSpace)));
        const bool isFreeText = keywordTable[KeywordRowOf(word)].needsSemicolon;
        Expect(isFreeText || FindKeyword(text, start + word.size()) >= end, "one keyword");
        Expect(statement.size() > Limit || end == text.size() || FindKeyword(text, end) == end,
               "a statement ends before a keyword");
        Expect(file.lineNumber >=
                   std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(end), '\n'),
               "the lines of a statement are read");
    }
    ExpectSame(FindKeyword(text, end), text.size(), "no statement is left");
}

}  // namespace
}  // namespace vexil::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vexil::fuzz;
    if (size < 3) {
        return 0;
    }
    Input input{0, 0, data[2], std::string(data + 3, data + size)};
    input.from = PositionOf(data[0], input.text);
    input.to = PositionOf(data[1], input.text);
    std::string valid = input.text;
    vexil::test::reference::ReplaceInvalidUtf8(valid);
    CheckKeywords(input);
    CheckUtf8(input, valid);
    CheckRanges(input);
    CheckForms(input.text, valid);
    CheckNumbers(input.text);
    CheckNumberText(input.text);
    CheckTokens(input.text);
    CheckHashes(input);
    CheckStatements(input.text);
    return 0;
}
