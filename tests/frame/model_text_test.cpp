// Tests of frame/model_text.h: what texts go through on their way into the model.
// SPDX-License-Identifier: MIT
#include "frame/model_text.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

namespace vexil {
namespace {

struct TextCase {
    std::string text;
    std::string expected;
};

TEST(CleanControlChars, ReplacesFiveCharactersByBlanks) {
    for (int code = 0; code < 256; ++code) {
        const char ch = static_cast<char>(code);
        const bool isReplaced = ch == '\t' || ch == '\n' || ch == '\v' || ch == '\f' || ch == '\r';
        std::string text{'a', ch, 'b'};
        CleanControlChars(text);
        EXPECT_EQ(text, (std::string{'a', isReplaced ? ' ' : ch, 'b'})) << "byte " << code;
    }
}

TEST(CleanControlChars, KeepsTheLength) {
    for (const TextCase& row : std::initializer_list<TextCase>{{"", ""},
                                                               {"\t", " "},
                                                               {"\r\n", "  "},
                                                               {" a\t\tb \n", " a  b  "},
                                                               {"plain", "plain"}}) {
        std::string text = row.text;
        CleanControlChars(text);
        EXPECT_EQ(text, row.expected) << testing::PrintToString(row.text);
    }
}

TEST(EscapeQuotes, PutsABackslashInFrontOfEachQuoteThatHasNone) {
    for (const TextCase& row : std::initializer_list<TextCase>{
             {"", ""},
             {"no quote \\ here", "no quote \\ here"},
             {"say \"hello\"", "say \\\"hello\\\""},
             {"say \\\"hello\\\"", "say \\\"hello\\\""},
             // In first place there is nothing in front of it.
             {"\"", "\\\""},
             {"\"a", "\\\"a"},
             {"\"\"", "\\\"\\\""},
             {"\"\"\"", "\\\"\\\"\\\""},
             {"\\\"\"", "\\\"\\\""},
             {"\\\"", "\\\""},
             // One character is looked at, so two backslashes count as one.
             {"\\\\\"", "\\\\\""},
             {"\\ \"", "\\ \\\""},
             {"a\"\\", "a\\\"\\"}}) {
        std::string text = row.text;
        EscapeQuotes(text);
        EXPECT_EQ(text, row.expected) << testing::PrintToString(row.text);
        EscapeQuotes(text);
        EXPECT_EQ(text, row.expected) << "twice, " << testing::PrintToString(row.text);
    }
}

TEST(EscapeQuotes, LeavesWhatStandsInFrontOfItsStart) {
    std::string text = "a\"b\"c\\\"d";
    EscapeQuotes(text, 2);
    EXPECT_EQ(text, "a\"b\\\"c\\\"d");
    text = "ab\\\"c";
    EscapeQuotes(text, 3);
    EXPECT_EQ(text, "ab\\\"c");
    text = "ab\"";
    EscapeQuotes(text, 3);
    EXPECT_EQ(text, "ab\"");
}

TEST(IdentifierForm, KeepsAnIdentifierAndMakesOneOfAnyOtherText) {
    EXPECT_EQ(IdentifierForm("Speed_1"), "Speed_1");
    EXPECT_EQ(IdentifierForm(std::string(32, 'a')), std::string(32, 'a'));
    EXPECT_EQ(IdentifierForm(std::string(33, 'a')), std::string(32, 'a'));
    EXPECT_EQ(IdentifierForm("1 Engine speed/rpm"), "__Engine_speed_rpm");
    EXPECT_EQ(IdentifierForm("T\xc3\xbcr"), "T_r");
    EXPECT_EQ(IdentifierForm(""), "");
}

}  // namespace
}  // namespace vexil
