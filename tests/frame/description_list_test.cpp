// Tests of DescriptionList: texts by value, in whatever order they come.
// SPDX-License-Identifier: MIT
#include "frame/description_list.h"

#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <string>

#include "support/random_text.h"

namespace vexil {
namespace {

using Entries = std::vector<DescriptionList::Entry>;

constexpr std::int32_t smallest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t largest = std::numeric_limits<std::int32_t>::max();

TEST(DescriptionList, IsEmptyWhenMade) {
    const DescriptionList descriptions;
    EXPECT_TRUE(descriptions.IsEmpty());
    EXPECT_EQ(descriptions.Sorted(), Entries{});
}

TEST(DescriptionList, IsInTheOrderOfTheSignedValues) {
    DescriptionList descriptions;
    for (const std::int32_t value : {0, 2, largest, -1, smallest, 1}) {
        descriptions.Add(value, std::to_string(value));
    }
    EXPECT_EQ(descriptions.Sorted(), (Entries{{smallest, "-2147483648"},
                                              {-1, "-1"},
                                              {0, "0"},
                                              {1, "1"},
                                              {2, "2"},
                                              {largest, "2147483647"}}));
}

TEST(DescriptionList, KeepsEveryTextOfAValue) {
    DescriptionList descriptions;
    descriptions.Add(3, "on");
    descriptions.Add(3, "an");
    descriptions.Add(3, "");
    descriptions.Add(1, "");
    descriptions.Add(1, "off");
    descriptions.Add(3, "say \"on\"");
    EXPECT_EQ(descriptions.Sorted(), (Entries{{1, " - off"}, {3, "on - an -  - say \"on\""}}));
}

TEST(DescriptionList, TakesWhatAnotherHas) {
    DescriptionList descriptions;
    descriptions.Add(1, "a");
    descriptions.AddAll({{0, "b"}, {1, "c"}});
    EXPECT_EQ(descriptions.Sorted(), (Entries{{0, "b"}, {1, "a - c"}}));
}

TEST(DescriptionList, TakesPairsOfANumberAndAText) {
    DescriptionList descriptions;
    descriptions.Add(1, "a");
    descriptions.AddPairs("x 1 \"b\" 0 \"c\" ;", 1);
    EXPECT_EQ(descriptions.Sorted(), (Entries{{0, "c"}, {1, "a - b"}}));
}

TEST(DescriptionList, ShiftsByAQuoteWhereNoNumberStands) {
    DescriptionList descriptions;
    descriptions.AddPairs("S x \"1\" 2 \"3\" 4 \"", 1);
    EXPECT_EQ(descriptions.Sorted(), (Entries{{1, " 2 "}, {3, " 4 "}}));
}

TEST(DescriptionList, TakesNothingWhereNoPairStands) {
    DescriptionList descriptions;
    descriptions.AddPairs("S x ;", 1);
    descriptions.AddPairs("S 1 ;", 1);
    descriptions.AddPairs("S", 1);
    EXPECT_EQ(descriptions.Sorted(), Entries{});
}

TEST(DescriptionList, IsEmptyWhenCleared) {
    DescriptionList descriptions;
    descriptions.Add(2, "two");
    EXPECT_FALSE(descriptions.IsEmpty());
    descriptions.Add(1, "one");
    descriptions.Clear();
    EXPECT_TRUE(descriptions.IsEmpty());
    EXPECT_EQ(descriptions.Sorted(), Entries{});
    descriptions.Add(1, "eins");
    EXPECT_EQ(descriptions.Sorted(), (Entries{{1, "eins"}}));
}

// Against a map, with looks at the entries in between.
TEST(DescriptionList, IsThatOfAMapWhateverTheOrder) {
    for (std::uint32_t seed = 1; seed <= 2000 && !HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        test::RandomText random(seed);
        const bool isLong = random.Below(10) == 0;
        const std::size_t values = 1 + random.Below(isLong ? 200 : 30);
        const std::size_t looks = isLong ? 200 : 6;  // one in so many
        DescriptionList descriptions;
        std::map<std::int32_t, std::string> expected;
        for (std::size_t count = random.Below(isLong ? 600 : 60); count > 0; --count) {
            const std::int32_t value = static_cast<std::int32_t>(random.Below(values)) - 5;
            const std::string text(1, static_cast<char>('a' + random.Below(26)));
            const auto [entry, isNew] = expected.try_emplace(value, text);
            if (!isNew) {
                entry->second += " - " + text;
            }
            descriptions.Add(value, text);
            if (random.Below(looks) == 0) {
                EXPECT_EQ(descriptions.Sorted(), Entries(expected.begin(), expected.end()));
            }
        }
        EXPECT_EQ(descriptions.Sorted(), Entries(expected.begin(), expected.end()));
    }
}

}  // namespace
}  // namespace vexil
