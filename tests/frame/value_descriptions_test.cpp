// Tests of ValueDescriptions: each owner has what it would have alone.
// SPDX-License-Identifier: MIT
#include "frame/value_descriptions.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "support/random_text.h"

namespace vexil {
namespace {

using Entries = std::vector<ValueDescriptions::Entry>;

struct Owner {
    ValueDescriptions enums;
};

DescriptionList ListOf(const Entries& entries) {
    DescriptionList list;
    list.AddAll(entries);
    return list;
}

TEST(ValueDescriptions, AreNoneWhenMade) {
    const ValueDescriptions descriptions;
    EXPECT_TRUE(descriptions.HasNone());
    EXPECT_EQ(descriptions.Count(), 0U);
    EXPECT_EQ(descriptions.Sorted(), Entries{});
}

TEST(ValueDescriptions, TakeOneAfterTheOther) {
    ValueDescriptions descriptions;
    descriptions.Add(2, "two");
    EXPECT_FALSE(descriptions.HasNone());
    EXPECT_EQ(descriptions.Count(), 1U);
    descriptions.Add(1, "one");
    descriptions.Add(2, "zwei");
    EXPECT_EQ(descriptions.Count(), 2U);
    EXPECT_EQ(descriptions.Sorted(), (Entries{{1, "one"}, {2, "two - zwei"}}));
}

TEST(ValueDescriptions, AreNoneWhenCleared) {
    ValueDescriptions descriptions;
    descriptions.Add(1, "one");
    descriptions.Clear();
    EXPECT_TRUE(descriptions.HasNone());
    EXPECT_EQ(descriptions.Count(), 0U);
    EXPECT_EQ(descriptions.Sorted(), Entries{});
}

TEST(ValueDescriptions, JoinTheTextsOfSeveralLists) {
    ValueDescriptions descriptions;
    descriptions.SharedLists().Append(ListOf({{2, "a"}, {5, "b"}}));
    EXPECT_EQ(descriptions.Sorted(), (Entries{{2, "a"}, {5, "b"}}));
    descriptions.SharedLists().Append(ListOf({{1, "c"}, {2, "d"}}));
    EXPECT_EQ(descriptions.Count(), 3U);
    EXPECT_EQ(descriptions.Sorted(), (Entries{{1, "c"}, {2, "a - d"}, {5, "b"}}));
    EXPECT_EQ(descriptions.Count(), 3U);
    descriptions.SharedLists().Append(ListOf({{2, "e"}}));
    EXPECT_EQ(descriptions.Sorted(), (Entries{{1, "c"}, {2, "a - d - e"}, {5, "b"}}));
}

TEST(ValueDescriptions, FollowFromTheNextListOn) {
    ValueDescriptions first;
    first.SharedLists().Append(ListOf({{1, "a"}}));
    ValueDescriptions second;
    second.Follow(first);
    EXPECT_TRUE(second.HasNone());
    EXPECT_EQ(second.Count(), 0U);
    first.SharedLists().Append(ListOf({{1, "b"}}));
    ValueDescriptions third;
    third.Follow(first);
    first.SharedLists().Append(ListOf({{2, "c"}}));
    // To and fro, since what several lists give is kept for the last look alone.
    for (int look = 0; look < 2; ++look) {
        EXPECT_EQ(first.Sorted(), (Entries{{1, "a - b"}, {2, "c"}}));
        EXPECT_EQ(second.Sorted(), (Entries{{1, "b"}, {2, "c"}}));
        EXPECT_EQ(third.Sorted(), (Entries{{2, "c"}}));
        EXPECT_EQ(first.Count(), 2U);
        EXPECT_EQ(second.Count(), 2U);
        EXPECT_EQ(third.Count(), 1U);
    }
}

TEST(ValueDescriptions, AreAddedToNoOtherThatSharesThem) {
    ValueDescriptions first;
    first.SharedLists().Append(ListOf({{1, "a"}}));
    ValueDescriptions second;
    second.Follow(first);
    first.SharedLists().Append(ListOf({{3, "b"}}));
    second.Add(3, "c");
    first.Add(2, "d");
    EXPECT_EQ(first.Sorted(), (Entries{{1, "a"}, {2, "d"}, {3, "b"}}));
    EXPECT_EQ(second.Sorted(), (Entries{{3, "b - c"}}));
}

TEST(ValueDescriptions, KeepTheirOwnListInFrontOfThoseThatTheyShare) {
    ValueDescriptions descriptions;
    ASSERT_NE(descriptions.OwnList(), nullptr);
    descriptions.OwnList()->Add(1, "a");
    descriptions.SharedLists().Append(ListOf({{1, "b"}}));
    EXPECT_EQ(descriptions.OwnList(), nullptr);
    EXPECT_EQ(descriptions.Sorted(), (Entries{{1, "a - b"}}));
    descriptions.Clear();
    EXPECT_TRUE(descriptions.HasNone());
    EXPECT_NE(descriptions.OwnList(), nullptr);
}

TEST(ValueDescriptions, TakePairsOnceSomebodyLooks) {
    const auto text = std::make_shared<const std::string>("x 2 \"a\" 1 \"b\"");
    ValueDescriptions descriptions;
    descriptions.SharedLists().AppendPairs(text, 1);
    EXPECT_FALSE(descriptions.HasNone());
    EXPECT_EQ(text.use_count(), 2);
    EXPECT_EQ(descriptions.Count(), 2U);
    EXPECT_EQ(text.use_count(), 1);
    EXPECT_EQ(descriptions.Sorted(), (Entries{{1, "b"}, {2, "a"}}));
    descriptions.SharedLists().AppendPairs(text, 5);
    EXPECT_EQ(descriptions.Sorted(), (Entries{{1, "b - b"}, {2, "a"}}));
    EXPECT_EQ(text.use_count(), 1);
}

TEST(ValueDescriptions, AreNotAddedInFrontOfTheFirst) {
    ValueDescriptions second;
    {
        ValueDescriptions first;
        first.SharedLists().Append(ListOf({{1, "a"}}));
        second.Follow(first);
    }
    second.Add(2, "b");
    EXPECT_EQ(second.Sorted(), (Entries{{2, "b"}}));
}

TEST(ListsOf, ReachEachOwnerAsItWouldBeAlone) {
    for (std::uint32_t seed = 1; seed <= 500 && !HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        test::RandomText random(seed);
        std::vector<std::unique_ptr<Owner>> owners;
        std::vector<DescriptionList> expected;
        for (std::size_t steps = 1 + random.Below(12); steps > 0; --steps) {
            for (std::size_t more = random.Below(3) + (owners.empty() ? 1 : 0); more > 0; --more) {
                owners.push_back(std::make_unique<Owner>());
                expected.emplace_back();
            }
            Entries entries;
            for (std::size_t count = 1 + random.Below(4); count > 0; --count) {
                entries.emplace_back(static_cast<std::int32_t>(random.Below(6)),
                                     std::string(1, static_cast<char>('a' + random.Below(26))));
            }
            ListsOf(owners).Append(ListOf(entries));
            for (DescriptionList& list : expected) {
                list.AddAll(entries);
            }
            if (random.Below(3) == 0) {
                const std::size_t owner = random.Below(owners.size());
                EXPECT_EQ(owners[owner]->enums.Sorted(), expected[owner].Sorted());
            }
        }
        for (std::size_t owner = 0; owner < owners.size(); ++owner) {
            EXPECT_EQ(owners[owner]->enums.Count(), expected[owner].Sorted().size());
            EXPECT_EQ(owners[owner]->enums.Sorted(), expected[owner].Sorted()) << owner;
        }
    }
}

}  // namespace
}  // namespace vexil
