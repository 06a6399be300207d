// Tests of frame/model_text.h: the forms of a text in the model.
// SPDX-License-Identifier: MIT
#include "frame/model_text.h"

#include <gtest/gtest.h>

#include <string>

namespace vexil {
namespace {

TEST(DisplayForm, ReplacesTabsAndLineEndsWithBlanks) {
    Arena arena;
    for (int code = 0; code < 256; ++code) {
        const char ch = static_cast<char>(code);
        const bool isReplaced = ch == '\t' || ch == '\n' || ch == '\v' || ch == '\f' || ch == '\r';
        const std::string text{'a', ch, 'b'};
        EXPECT_EQ(DisplayForm(arena, text), (std::string{'a', isReplaced ? ' ' : ch, 'b'}))
            << "byte " << code;
    }
}

TEST(DisplayForm, KeepsTheLength) {
    Arena arena;
    EXPECT_EQ(DisplayForm(arena, ""), "");
    EXPECT_EQ(DisplayForm(arena, "\r\n"), "  ");
    EXPECT_EQ(DisplayForm(arena, " a\t\tb \n"), " a  b  ");
}

TEST(DisplayForm, CopiesOnlyATextThatChanges) {
    Arena arena;
    const std::string plain = "plain text";
    EXPECT_EQ(DisplayForm(arena, plain).data(), plain.data());
    const std::string text = "a\tb";
    EXPECT_EQ(DisplayForm(arena, text), "a b");
    EXPECT_EQ(text, "a\tb");
}

TEST(IdentifierForm, KeepsAnIdentifierAndMakesOneOfAnyOtherText) {
    Arena arena;
    const std::string longest(32, 'a');
    EXPECT_EQ(IdentifierForm(arena, longest).data(), longest.data());
    EXPECT_EQ(IdentifierForm(arena, longest), longest);
    EXPECT_EQ(IdentifierForm(arena, longest + "a"), longest);
    EXPECT_EQ(IdentifierForm(arena, "1 Engine speed/rpm"), "__Engine_speed_rpm");
    EXPECT_EQ(IdentifierForm(arena, "T\xc3\xbcr"), "T_r");
    EXPECT_EQ(IdentifierForm(arena, ""), "");
}

TEST(AsciiForm, PutsOneUnderscoreForEachCharacterBeyondAscii) {
    Arena arena;
    const std::string plain = "km/h \t\"";
    EXPECT_EQ(AsciiForm(arena, plain).data(), plain.data());
    EXPECT_EQ(AsciiForm(arena, plain), plain);
    EXPECT_EQ(AsciiForm(arena, "\xc2\xb0\xf0\x9f\x9a\x97/s"), "__/s");
    EXPECT_EQ(AsciiForm(arena, ""), "");
}

TEST(MakeNames, MakesTheIdentifierOfTheDisplayForm) {
    Arena arena;
    std::string_view longName;
    std::string_view name;
    const std::string identifier = "Speed_1";
    MakeNames(arena, identifier, longName, name);
    EXPECT_EQ(longName.data(), identifier.data());
    EXPECT_EQ(name, identifier);
    EXPECT_EQ(name.data(), longName.data());
    MakeNames(arena, "1\tEngine speed/rpm", longName, name);
    EXPECT_EQ(longName, "1 Engine speed/rpm");
    EXPECT_EQ(name, "__Engine_speed_rpm");
    MakeNames(arena, "", longName, name);
    EXPECT_EQ(longName, "");
    EXPECT_EQ(name, "");
}

}  // namespace
}  // namespace vexil
