// Pairs of two lists, and what of them has moved.
// SPDX-License-Identifier: MIT
#include "comparison/pairing.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace vexil::tool {

// Tells the test framework how to show a pair.
void PrintTo(const Pair& pair, std::ostream* out);
void PrintTo(const Pair& pair, std::ostream* out) {
    *out << static_cast<int>(pair.before) << "-" << static_cast<int>(pair.after);
}

}  // namespace vexil::tool

namespace vexil::test {
namespace {

using tool::Nowhere;
using tool::Pair;
using Pairs = std::vector<Pair>;

// Pairs the letters of two words.
Pairs PairLetters(const std::string& before, const std::string& after) {
    tool::Pairing pairing({0, static_cast<std::uint32_t>(before.size())},
                          {0, static_cast<std::uint32_t>(after.size())});
    pairing.PairEqual([&](std::uint32_t index) { return before[index]; },
                      [&](std::uint32_t index) { return after[index]; });
    return pairing.All();
}

TEST(Pairing, PutsTheFirstListBeforeTheSecondOne) {
    EXPECT_EQ(PairLetters("abc", "cxa"), (Pairs{{1, Nowhere}, {2, 0}, {Nowhere, 1}, {0, 2}}));
}

TEST(Pairing, PairsEqualKeysInTheirOrder) {
    EXPECT_EQ(PairLetters("aba", "aaa"), (Pairs{{1, Nowhere}, {0, 0}, {2, 1}, {Nowhere, 2}}));
}

TEST(Pairing, PairsNothingWithAnEmptyList) {
    EXPECT_EQ(PairLetters("", "ab"), (Pairs{{Nowhere, 0}, {Nowhere, 1}}));
    EXPECT_EQ(PairLetters("ab", ""), (Pairs{{0, Nowhere}, {1, Nowhere}}));
    EXPECT_EQ(PairLetters("", ""), Pairs());
}

TEST(Pairing, KeepsPairsOfAnEarlierKey) {
    const std::string before = "aB";
    const std::string after = "bA";
    const auto lower = [](char ch) { return ch < 'a' ? static_cast<char>(ch - 'A' + 'a') : ch; };
    tool::Pairing pairing({0, 2}, {0, 2});
    pairing.PairEqual([](std::uint32_t index) { return index; },
                      [](std::uint32_t index) { return index + 1; });
    EXPECT_EQ(pairing.All(), (Pairs{{0, Nowhere}, {1, 0}, {Nowhere, 1}}));
    pairing.PairEqual([&](std::uint32_t index) { return lower(before[index]); },
                      [&](std::uint32_t index) { return lower(after[index]); });
    EXPECT_EQ(pairing.All(), (Pairs{{1, 0}, {0, 1}}));
}

TEST(Pairing, TakesIndexesFromTheFirstOneOfTheRange) {
    tool::Pairing pairing({5, 2}, {7, 1});
    pairing.PairEqual([](std::uint32_t index) { return index; },
                      [](std::uint32_t index) { return index - 1; });
    EXPECT_EQ(pairing.All(), (Pairs{{5, Nowhere}, {6, 7}}));
}

std::vector<std::uint32_t> Moved(const std::vector<std::uint32_t>& order) {
    Pairs pairs;
    for (const std::uint32_t before : order) {
        pairs.push_back({before, static_cast<std::uint32_t>(pairs.size())});
    }
    return FindMoved(pairs);
}

using Indexes = std::vector<std::uint32_t>;

TEST(FindMoved, FindsTheFewestThatAreOutOfOrder) {
    EXPECT_EQ(Moved({}), Indexes());
    EXPECT_EQ(Moved({0, 1, 2, 3}), Indexes());
    EXPECT_EQ(Moved({3, 0, 1, 2}), Indexes{0});
    EXPECT_EQ(Moved({1, 2, 3, 0}), Indexes{3});
    EXPECT_EQ(Moved({0, 3, 1, 2, 4}), Indexes{1});
    EXPECT_EQ(Moved({3, 2, 1, 0}).size(), 3U);
    EXPECT_EQ(Moved({1, 0, 3, 2, 5, 4}).size(), 3U);
}

TEST(FindMoved, DoesNotCountWhatIsInOneListAlone) {
    EXPECT_EQ(tool::FindMoved({{4, Nowhere}, {0, 0}, {Nowhere, 1}, {3, 2}, {1, 3}, {2, 4}}),
              Indexes{2});
    EXPECT_EQ(tool::FindMoved({{0, Nowhere}, {Nowhere, 0}}), Indexes());
}

}  // namespace
}  // namespace vexil::test
