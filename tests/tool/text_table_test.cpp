// The widths of the columns of a table.
// SPDX-License-Identifier: MIT
#include "view/text_table.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vexil::test {
namespace {

using Lines = std::vector<std::string>;

tool::TextTable Table() {
    tool::TextTable table({{"name"}, {"number", true}, {"text"}});
    table.AddRow({"Temperature_of_the_engine", "1", "some words that can be broken"}, "a note");
    table.AddRow({"X", "25000", ""});
    return table;
}

TEST(TextTable, FitsItsColumnsToTheContents) {
    EXPECT_EQ(Table().Lines(100),
              (Lines{"name                       number  text",
                     "Temperature_of_the_engine       1  some words that can be broken",
                     "    a note",  //
                     "X                           25000"}));
}

TEST(TextTable, BreaksLinesBetweenWordsFirst) {
    EXPECT_EQ(Table().Lines(46), (Lines{"name                       number  text",
                                        "Temperature_of_the_engine       1  some words",
                                        "                                   that can be",
                                        "                                   broken",
                                        "    a note",  //
                                        "X                           25000"}));
}

TEST(TextTable, BreaksTheWordsOfTheFirstColumnLast) {
    EXPECT_EQ(Table().Lines(30),
              (Lines{"name            number  text", "Temperature_of       1  some",
                     "_the_engine             words", "                        that",
                     "                        can be", "                        broken",
                     "    a note",  //
                     "X                25000"}));
}

TEST(TextTable, BreaksTheWordsOfOtherColumnsBeforeThoseOfTheFirst) {
    tool::TextTable table({{"name"}, {"unit"}});
    table.AddRow({"Temperature_of_the_engine", "Unit_DegreesCelsius"});
    EXPECT_EQ(table.Lines(40),
              (Lines{"name                       unit", "Temperature_of_the_engine  Unit_DegreesC",
                     "                           elsius"}));
}

TEST(TextTable, NeedsTheWidthOfItsLongestWords) {
    EXPECT_EQ(Table().WidthOfWords(), 25U + 2 + 6 + 2 + 6);
}

TEST(TextTable, MeasuresColumnsAndNotBytes) {
    tool::TextTable table({{"unit"}, {"next"}});
    table.AddRow({"\xE6\xB8\xA9\xE5\xBA\xA6", "a"});
    table.AddRow(
        {"\xC2\xB0"
         "C",
         "b"});
    EXPECT_EQ(table.Lines(100), (Lines{"unit  next", "\xE6\xB8\xA9\xE5\xBA\xA6  a",
                                       "\xC2\xB0"
                                       "C    b"}));
}

TEST(TextTable, KeepsColumnsWideEnoughToRead) {
    EXPECT_EQ(Table().Lines(1), Table().Lines(24));
    EXPECT_NE(Table().Lines(1), Table().Lines(25));
}

}  // namespace
}  // namespace vexil::test
