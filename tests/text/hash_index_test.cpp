// Tests of text/hash_index.h.
// SPDX-License-Identifier: MIT
#include "text/hash_index.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <new>
#include <string>
#include <vector>

namespace vexil {
namespace {

const auto anyEntry = [](std::size_t) { return true; };

// A list with its index, under the hash of the test.
class IndexedList {
  public:
    explicit IndexedList(std::function<std::size_t(const std::string&)> hashOf)
        : hash(std::move(hashOf)) {}

    void Add(const std::string& entry) {
        index.Add(hash(entry), entries.size());
        entries.push_back(entry);
    }

    // The position of the entry, or the number of entries.
    std::size_t Find(const std::string& entry) {
        const std::uint32_t* position =
            index.Find(hash(entry), [&](std::size_t at) { return entries[at] == entry; });
        return position == nullptr ? entries.size() : *position;
    }

  private:
    std::function<std::size_t(const std::string&)> hash;
    std::vector<std::string> entries;
    HashIndex index;
};

void ExpectFindsAll(std::function<std::size_t(const std::string&)> hash) {
    IndexedList list(std::move(hash));
    for (std::size_t count = 0; count < 500; ++count) {
        EXPECT_EQ(list.Find(std::to_string(count)), count);
        list.Add(std::to_string(count));
        for (std::size_t at = 0; at <= count; at += 1 + count / 10) {
            ASSERT_EQ(list.Find(std::to_string(at)), at);
        }
    }
    EXPECT_EQ(list.Find("500"), 500U);
}

TEST(HashIndex, FindsNothingWhenEmpty) {
    HashIndex index;
    EXPECT_EQ(index.Find(0, anyEntry), nullptr);
}

TEST(HashIndex, FindsEachEntryAsItGrows) {
    ExpectFindsAll([](const std::string& entry) { return std::hash<std::string>()(entry); });
}

TEST(HashIndex, DistinguishesEntriesOfOneHash) {
    ExpectFindsAll([](const std::string&) { return std::size_t{7}; });
}

TEST(HashIndex, WrapsAroundAfterTheLastSlot) {
    ExpectFindsAll([](const std::string&) { return ~std::size_t{0}; });
}

TEST(HashIndex, ComparesOnlyEntriesOfTheHash) {
    HashIndex index;
    index.Add(1, 10);
    index.Add(17, 11);  // in the next slot, as sixteen slots are the first
    EXPECT_EQ(*index.Find(17, anyEntry), 11U);
    EXPECT_EQ(index.Find(33, anyEntry), nullptr);
    EXPECT_EQ(*index.Find(1, anyEntry), 10U);
}

// The last of 2^n slots is the one of the hash 2^32 - 1, so its place shows how many slots there
// are.
TEST(HashIndex, DoublesTheSlotsWhenThreeQuartersAreTaken) {
    HashIndex index;
    index.Add(0, 0);
    index.Add(0xFFFFFFFF, 1);
    std::size_t slots = 16;
    for (std::size_t count = 2; count < 200; ++count) {
        const auto first = reinterpret_cast<std::uintptr_t>(index.Find(0, anyEntry));
        const auto last = reinterpret_cast<std::uintptr_t>(index.Find(0xFFFFFFFF, anyEntry));
        EXPECT_EQ((last - first) / (2 * sizeof(std::uint32_t)) + 1, slots) << count << " entries";
        if (count == slots * 3 / 4) {
            slots *= 2;
        }
        index.Add(count - 1, count);
    }
}

TEST(HashIndex, AllowsAPositionToBeReplaced) {
    HashIndex index;
    index.Add(1, 10);
    *index.Find(1, anyEntry) = 11;
    EXPECT_EQ(*index.Find(1, anyEntry), 11U);
}

TEST(HashIndex, ThrowsBadAllocForAPositionThatDoesNotFit) {
    HashIndex index;
    EXPECT_THROW(index.Add(1, 0xFFFFFFFF), std::bad_alloc);
    EXPECT_EQ(index.Find(1, anyEntry), nullptr);
    index.Add(1, 0xFFFFFFFE);
    EXPECT_EQ(*index.Find(1, anyEntry), 0xFFFFFFFEU);
}

TEST(HashIndex, FindsNothingAfterClear) {
    HashIndex index;
    index.Add(1, 10);
    index.Clear();
    EXPECT_EQ(index.Find(1, anyEntry), nullptr);
    index.Add(1, 11);
    EXPECT_EQ(*index.Find(1, anyEntry), 11U);
}

}  // namespace
}  // namespace vexil
