// ClosestWord: which word a mistyped one was meant to be.
// SPDX-License-Identifier: MIT
#include "view/closest_word.h"

#include <gtest/gtest.h>

#include <string>

namespace vexil::tool {
namespace {

const std::vector<std::string_view> Words{"check", "explain", "rewrite"};

TEST(ClosestWord, CountsEachKindOfMistakeOnce) {
    for (const char* const typed : {"check", "chec", "checkk", "chack", "hceck", "hcekc"}) {
        EXPECT_EQ(ClosestWord(typed, Words), "check") << typed;
    }
}

TEST(ClosestWord, IsNotThereAmongOtherWords) {
    for (const char* const typed : {"kehcc", "", "file", "rite", "explanation"}) {
        EXPECT_EQ(ClosestWord(typed, Words), "") << typed;
    }
}

TEST(ClosestWord, TakesMoreMistakesInALongWord) {
    EXPECT_EQ(ClosestWord("name-mad-idntifer", {"name-made-identifier"}), "name-made-identifier");
}

TEST(ClosestWord, PrefersTheCloserWord) {
    EXPECT_EQ(ClosestWord("name", {"names", "nam", "name"}), "name");
    EXPECT_EQ(ClosestWord("nase", {"nuse", "nose"}), "nuse");
}

TEST(ClosestWord, IsNotThereForALongWord) {
    EXPECT_EQ(ClosestWord(std::string(101, 'c'), {std::string(101, 'c')}), "");
}

}  // namespace
}  // namespace vexil::tool
