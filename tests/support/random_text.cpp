// Random text of the kinds that a reader of DBC files may meet.
// SPDX-License-Identifier: MIT
#include "support/random_text.h"

#include <array>
#include <string_view>

#include "support/reference_text.h"

namespace vexil::test {
namespace {

template <typename... Text>
constexpr std::array<std::string_view, sizeof...(Text)> Texts(Text... texts) {
    return {std::string_view(texts)...};
}

// The first and the last code point of each length, and what is odd beside the gaps.
constexpr auto validCharacters =
    Texts("\x7e", "\xc2\x80", "\xc3\xa9", "\xdf\xbf", "\xe0\xa0\x80", "\xe2\x82\xac",
          "\xed\x9f\xbf", "\xee\x80\x80", "\xef\xbb\xbf", "\xef\xbf\xbe", "\xef\xbf\xbf",
          "\xf0\x90\x80\x80", "\xf0\x9f\x9a\x97", "\xf4\x8f\xbf\xbf");

// Lone leads and continuations, cut characters, overlong forms, surrogates, beyond the last code
// point, bytes that never occur.
constexpr auto brokenUtf8 =
    Texts("\x80", "\xbf", "\xc2", "\xdf", "\xe2", "\xe2\x82", "\xf0", "\xf0\x9f", "\xf0\x9f\x9a",
          "\xc0\x80", "\xc1\xbf", "\xe0\x80\x80", "\xe0\x9f\xbf", "\xf0\x80\x80\x80",
          "\xf0\x8f\xbf\xbf", "\xed\xa0\x80", "\xed\xbf\xbf", "\xf4\x90\x80\x80",
          "\xf5\x80\x80\x80", "\xf8\x88\x80\x80\x80", "\xfe", "\xff");

constexpr auto separators = Texts(";", ":", ",", "|", "@", "(", ")", "[", "]", "\"", "\\", "_");

constexpr auto words =
    Texts("Engine", "x1", "7", "007", "-1", "4294967295", "8@1+", "SG", "BO", "_");

constexpr auto numbers =
    Texts("0", "1", "7", "007", "255", "2147483647", "2147483648", "2147483649", "4294967294",
          "4294967295", "4294967296", "4294967297", "9223372036854775807", "9223372036854775808",
          "9223372036854775809", "18446744073709551615", "18446744073709551616",
          "99999999999999999999999", "000000001", "999999999", "294967297");

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
                // Long enough to reach the limit of a statement now and then.
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
