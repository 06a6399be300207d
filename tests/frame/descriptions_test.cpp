// Tests of Descriptions: the texts of all statements and appended records, sorted by value.
// SPDX-License-Identifier: MIT
#include "frame/descriptions.h"

#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <random>
#include <string>
#include <string_view>

#include "frame/enums_of.h"

namespace vexil {
namespace {

using test::EnumPairs;
using test::EnumsOf;

constexpr std::int32_t smallest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t largest = std::numeric_limits<std::int32_t>::max();

class DescriptionsTest : public testing::Test {
  protected:
    // Gives the notes one more statement. Precondition: no look at them yet.
    void AddStatement(Notes& notes, std::string_view text) {
        Note** end = &notes.statements;
        while (*end != nullptr) {
            end = &(*end)->next;
        }
        *end = arena.New<Note>(arena.Keep(text));
    }

    void Append(Notes& notes, std::int32_t value, std::string_view text) {
        notes.added = arena.New<AddedDescription>(value, arena.Keep(text), notes.added);
    }

    // The descriptions after a look at the notes.
    EnumPairs Look(const Notes& notes) {
        descriptions.LookAt(notes);
        return EnumsOf(descriptions);
    }

    Arena arena;
    Descriptions descriptions;
};

TEST_F(DescriptionsTest, AreEmptyForNewNotes) {
    EXPECT_EQ(descriptions.Count(), 0U);
    EXPECT_EQ(Look(Notes()), EnumPairs{});
}

TEST_F(DescriptionsTest, AreSortedBySignedValue) {
    Notes notes;
    for (const std::int32_t value : {0, 2, largest, -1, smallest, 1}) {
        Append(notes, value, std::to_string(value));
    }
    EXPECT_EQ(Look(notes), (EnumPairs{{smallest, "-2147483648"},
                                      {-1, "-1"},
                                      {0, "0"},
                                      {1, "1"},
                                      {2, "2"},
                                      {largest, "2147483647"}}));
}

TEST_F(DescriptionsTest, JoinTheTextsOfAValueInTheirOrder) {
    Notes notes;
    AddStatement(notes, " 3 \"a\" 1 \"\" 3 \"b\"");
    AddStatement(notes, " 3 \"c\" 1 \"off\"");
    Append(notes, 3, "");
    Append(notes, 1, "say \"off\"");
    Append(notes, 3, "d");
    EXPECT_EQ(Look(notes), (EnumPairs{{1, " - off - say \"off\""}, {3, "a - b - c -  - d"}}));
}

TEST_F(DescriptionsTest, IncludeDescriptionsAppendedSinceTheLastLook) {
    Notes notes;
    AddStatement(notes, " 2 \"a\" 4 \"b\"");
    EXPECT_EQ(Look(notes), (EnumPairs{{2, "a"}, {4, "b"}}));
    Append(notes, 5, "c");
    Append(notes, 4, "d");
    EXPECT_EQ(Look(notes), (EnumPairs{{2, "a"}, {4, "b - d"}, {5, "c"}}));
    EXPECT_EQ(Look(notes), (EnumPairs{{2, "a"}, {4, "b - d"}, {5, "c"}}));
    Append(notes, 5, "e");
    EXPECT_EQ(Look(notes), (EnumPairs{{2, "a"}, {4, "b - d"}, {5, "c - e"}}));
    Append(notes, 2, "f");
    Append(notes, 1, "g");
    EXPECT_EQ(Look(notes), (EnumPairs{{1, "g"}, {2, "a - f"}, {4, "b - d"}, {5, "c - e"}}));
}

TEST_F(DescriptionsTest, BelongToTheSignalOfTheLastLook) {
    Notes first;
    AddStatement(first, " 1 \"a\"");
    AddStatement(first, " 1 \"b\"");
    Notes late;  // has only the second statement of first
    late.statements = first.statements->next;
    Notes copy = first;
    Notes other;
    for (int round = 0; round < 3; ++round) {
        Append(copy, 2, "t");
        Append(other, 3, "o");
        std::string copyText = "t";
        std::string otherText = "o";
        for (int earlier = 0; earlier < round; ++earlier) {
            copyText += " - t";
            otherText += " - o";
        }
        EXPECT_EQ(Look(first), (EnumPairs{{1, "a - b"}}));
        EXPECT_EQ(Look(copy), (EnumPairs{{1, "a - b"}, {2, copyText}}));
        EXPECT_EQ(Look(first), (EnumPairs{{1, "a - b"}}));
        EXPECT_EQ(Look(late), (EnumPairs{{1, "b"}}));
        EXPECT_EQ(Look(other), (EnumPairs{{3, otherText}}));
        EXPECT_EQ(Look(Notes()), EnumPairs{});
    }
}

TEST_F(DescriptionsTest, StopJoiningWhenTheTextIsLongEnough) {
    Notes notes;
    AddStatement(notes, " 1 \"aa\" 1 \"bb\" 1 \"cc\"");
    descriptions.LookAt(notes);
    LineBuffer scratch;
    scratch.Append("of an earlier call");
    EXPECT_EQ(descriptions.Text(0, scratch, 2), "aa");
    EXPECT_EQ(descriptions.Text(0, scratch, 3), "aa - bb");
    EXPECT_EQ(descriptions.Text(0, scratch, 7), "aa - bb");
    EXPECT_EQ(descriptions.Text(0, scratch, 8), "aa - bb - cc");
}

TEST_F(DescriptionsTest, AreNotCopiedWhereAValueHasOneText) {
    Notes notes;
    Append(notes, 1, "a");
    Append(notes, 2, "b");
    descriptions.LookAt(notes);
    LineBuffer scratch;
    EXPECT_EQ(descriptions.Text(0, scratch, 1).data(), notes.added->earlier->text.data());
    EXPECT_EQ(descriptions.Text(1, scratch, 1).data(), notes.added->text.data());
    EXPECT_EQ(scratch.Text(), "");
}

// Changing the text of the notes shows whether the descriptions are cached.
TEST_F(DescriptionsTest, AreCachedUntilClear) {
    Notes notes;
    AddStatement(notes, " 1 \"a\"");
    EXPECT_EQ(Look(notes), (EnumPairs{{1, "a"}}));
    notes.statements->text = " 2 \"b\" 1 \"c\"";
    EXPECT_EQ(Look(notes), (EnumPairs{{1, "a"}}));
    Append(notes, 1, "d");
    EXPECT_EQ(Look(notes), (EnumPairs{{1, "a - d"}}));
    descriptions.Clear();
    EXPECT_EQ(descriptions.Count(), 0U);
    EXPECT_EQ(Look(notes), (EnumPairs{{1, "c - d"}, {2, "b"}}));
}

// Compares the descriptions with a map, with looks between the appends.
TEST_F(DescriptionsTest, EqualASortedMapForAnyOrderOfAppends) {
    for (std::uint32_t seed = 1; seed <= 500 && !HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        std::mt19937 random(seed);
        const std::size_t values = seed % 10 == 0 ? 200 : 10;
        Notes notes;
        std::map<std::int32_t, std::string> expected;
        for (std::size_t count = random() % (values * 3); count > 0; --count) {
            const std::int32_t value = static_cast<std::int32_t>(random() % values) - 5;
            const std::string text(1, static_cast<char>('a' + random() % 26));
            const auto [entry, isNew] = expected.try_emplace(value, text);
            if (!isNew) {
                entry->second += " - " + text;
            }
            Append(notes, value, text);
            if (random() % (values / 2) == 0) {
                EXPECT_EQ(Look(notes), EnumPairs(expected.begin(), expected.end()));
            }
        }
        EXPECT_EQ(Look(notes), EnumPairs(expected.begin(), expected.end()));
    }
}

}  // namespace
}  // namespace vexil
