// Random text of the kinds that a reader of DBC files may meet.
// SPDX-License-Identifier: MIT
#include "support/random_text.h"

#include <array>
#include <string_view>

#include "support/reference_text.h"

namespace vexil::test {
namespace {

using namespace std::string_view_literals;

// The first and the last code point of each length, and what is odd beside the gaps.
constexpr std::array validCharacters = {
    "\x7e"sv,
    "\xc2\x80"sv,
    "\xc3\xa9"sv,
    "\xdf\xbf"sv,
    "\xe0\xa0\x80"sv,
    "\xe2\x82\xac"sv,
    "\xed\x9f\xbf"sv,
    "\xee\x80\x80"sv,
    "\xef\xbb\xbf"sv,
    "\xef\xbf\xbe"sv,
    "\xef\xbf\xbf"sv,
    "\xf0\x90\x80\x80"sv,
    "\xf0\x9f\x9a\x97"sv,
    "\xf4\x8f\xbf\xbf"sv,
};

// Lone leads and continuations, cut characters, overlong forms, surrogates, beyond the last code
// point, bytes that never occur.
constexpr std::array brokenUtf8 = {
    "\x80"sv,
    "\xbf"sv,
    "\xc2"sv,
    "\xdf"sv,
    "\xe2"sv,
    "\xe2\x82"sv,
    "\xf0"sv,
    "\xf0\x9f"sv,
    "\xf0\x9f\x9a"sv,
    "\xc0\x80"sv,
    "\xc1\xbf"sv,
    "\xe0\x80\x80"sv,
    "\xe0\x9f\xbf"sv,
    "\xf0\x80\x80\x80"sv,
    "\xf0\x8f\xbf\xbf"sv,
    "\xed\xa0\x80"sv,
    "\xed\xbf\xbf"sv,
    "\xf4\x90\x80\x80"sv,
    "\xf5\x80\x80\x80"sv,
    "\xf8\x88\x80\x80\x80"sv,
    "\xfe"sv,
    "\xff"sv,
};

constexpr std::array separators = {";"sv, ":"sv, ","sv, "|"sv,  "@"sv,  "("sv,
                                   ")"sv, "["sv, "]"sv, "\""sv, "\\"sv, "_"sv};

constexpr std::array words = {"Engine"sv,     "x1"sv,   "7"sv,  "007"sv, "-1"sv,
                              "4294967295"sv, "8@1+"sv, "SG"sv, "BO"sv,  "_"sv};

constexpr std::array numbers = {"0"sv,
                                "1"sv,
                                "7"sv,
                                "007"sv,
                                "255"sv,
                                "2147483647"sv,
                                "2147483648"sv,
                                "2147483649"sv,
                                "4294967294"sv,
                                "4294967295"sv,
                                "4294967296"sv,
                                "4294967297"sv,
                                "9223372036854775807"sv,
                                "9223372036854775808"sv,
                                "9223372036854775809"sv,
                                "18446744073709551615"sv,
                                "18446744073709551616"sv,
                                "99999999999999999999999"sv,
                                "000000001"sv,
                                "999999999"sv,
                                "294967297"sv};

}  // namespace

std::string RandomText::ValidCharacter() {
    return std::string(validCharacters[Below(validCharacters.size())]);
}

std::string RandomText::BrokenUtf8() {
    return std::string(brokenUtf8[Below(brokenUtf8.size())]);
}

std::string RandomText::Space() {
    return std::string(1, " \f\n\r\t\v"[Below(6)]);
}

std::string RandomText::KeywordLike() {
    std::string keyword = reference::Keywords[Below(reference::Keywords.size())].text;
    switch (Below(12)) {
        case 0:
            return keyword + "x";
        case 1:
            return "\"" + keyword;
        case 2:
            return keyword + ":";
        case 3:
            keyword.pop_back();
            return keyword;
        case 4:
            keyword.insert(Below(keyword.size()), 1, static_cast<char>(1 + Below(8)));
            return keyword;
        default:
            return keyword;
    }
}

std::string RandomText::ValidText(std::size_t maxPieces) {
    std::string text;
    for (std::size_t pieces = Below(maxPieces + 1); pieces > 0; --pieces) {
        switch (Below(6)) {
            case 0:
                text += ValidCharacter();
                break;
            case 1:
                text += Space();
                break;
            case 2:
                text += separators[Below(separators.size())];
                break;
            case 3:
                text += words[Below(words.size())];
                break;
            default:
                text += static_cast<char>('!' + Below(94));
                break;
        }
    }
    return text;
}

std::string RandomText::AnyText(std::size_t maxPieces) {
    std::string text;
    for (std::size_t pieces = Below(maxPieces + 1); pieces > 0; --pieces) {
        text += Below(4) == 0 ? BrokenUtf8() : ValidText(4);
    }
    return text;
}

std::string RandomText::NumberText() {
    std::string text;
    while (Below(3) == 0) {
        text += Space();
    }
    text += std::array{"", "", "", "-", "+", "--"}[Below(6)];
    text += numbers[Below(numbers.size())];
    text += std::array{"", "", " ", ";", "abc", ".5", "e5", "e-320", "e400", "x10"}[Below(10)];
    while (Below(3) == 0) {
        text += Space();
    }
    return text;
}

std::string RandomText::File(std::size_t maxPieces) {
    std::string file;
    for (std::size_t pieces = Below(maxPieces + 1); pieces > 0; --pieces) {
        switch (Below(16)) {
            case 0:
            case 1:
            case 2:
                file += KeywordLike();
                file += Below(10) == 0 ? "" : Space();
                break;
            case 3:
                file += std::array{"CM_ ", "BA_ ", "BA_DEF_ ", "CM_\n", "BA_\t"}[Below(5)];
                break;
            case 4:
                file += std::array{";\n", "; ", ";", ";\r\n", ";\n\n", ";\x01\n"}[Below(6)];
                break;
            case 5:
            case 6:
                file += "\n";
                break;
            case 7:
            case 8:
                file += Space();
                break;
            case 9:
                file += separators[Below(separators.size())];
                break;
            case 10:
                file += static_cast<char>(Below(33) == 32 ? 127 : Below(32));
                break;
            case 11:
                file += ValidCharacter();
                break;
            case 12:
                file += BrokenUtf8();
                break;
            case 13:
                // Long enough to meet the limit of a statement now and then.
                file += Below(20) == 0 ? std::string(3900 + Below(400), 'x') : "x";
                break;
            default:
                file += words[Below(words.size())];
                break;
        }
    }
    return file;
}

}  // namespace vexil::test
