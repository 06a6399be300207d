// Tests of SharedTail: where tails start, and what they share.
// SPDX-License-Identifier: MIT
#include "frame/shared_tail.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace vexil {
namespace {

using Tail = SharedTail<std::string>;

struct Owner {
    bool isNew;
};

// The positions of the owners that Newcomers gives.
std::vector<std::size_t> NewcomersOf(const std::vector<bool>& areNew) {
    std::vector<std::unique_ptr<Owner>> owners;
    for (const bool isNew : areNew) {
        owners.push_back(std::make_unique<Owner>(isNew));
    }
    std::vector<std::size_t> positions;
    for (const auto& owner : Newcomers(owners, [](const Owner& of) { return of.isNew; })) {
        positions.push_back(static_cast<std::size_t>(&owner - owners.data()));
    }
    return positions;
}

TEST(SharedTail, IsAllOfANewContainerWhenMade) {
    const Tail tail;
    EXPECT_TRUE(tail.IsEmpty());
    EXPECT_EQ(tail.Start(), 0U);
    EXPECT_EQ(tail.Whole(), "");
}

TEST(SharedTail, GrowsWithItsContainer) {
    const Tail tail;
    tail.Whole() += "ab";
    EXPECT_FALSE(tail.IsEmpty());
    EXPECT_EQ(tail.Whole(), "ab");
    EXPECT_EQ(tail.Start(), 0U);
}

TEST(SharedTail, StartsInsideTheContainerOfAnother) {
    const Tail first;
    first.Whole() = "ab";
    const Tail second(first, 2);
    EXPECT_TRUE(second.IsEmpty());
    first.Whole() += "c";
    EXPECT_FALSE(second.IsEmpty());
    EXPECT_EQ(second.Start(), 2U);
    EXPECT_EQ(&second.Whole(), &first.Whole());
}

TEST(Newcomers, AreTheLastOfTheOwnersButNeverTheFirst) {
    EXPECT_EQ(NewcomersOf({false}), std::vector<std::size_t>{});
    EXPECT_EQ(NewcomersOf({true}), std::vector<std::size_t>{});
    EXPECT_EQ(NewcomersOf({true, true}), (std::vector<std::size_t>{1}));
    EXPECT_EQ(NewcomersOf({false, false, true, true}), (std::vector<std::size_t>{2, 3}));
    EXPECT_EQ(NewcomersOf({false, true, false}), std::vector<std::size_t>{});
}

}  // namespace
}  // namespace vexil
