// Tests of text/arena_list.h.
// SPDX-License-Identifier: MIT
#include "text/arena_list.h"

#include <gtest/gtest.h>

#include <new>
#include <vector>

#include "text/counting_resource.h"

namespace vexil {
namespace {

struct Entry {
    std::size_t number;
    const Entry* self;
};

class ArenaListTest : public testing::Test {
  protected:
    test::CountingResource resource;
    Arena arena{&resource};
};

TEST_F(ArenaListTest, IsEmptyWithoutMemory) {
    const ArenaList<int> list;
    const PagedList<int> paged;
    EXPECT_EQ(list.Size(), 0U);
    EXPECT_EQ(list.begin(), list.end());
    EXPECT_EQ(paged.Size(), 0U);
    EXPECT_EQ(resource.inUse, 0U);
}

TEST_F(ArenaListTest, KeepsElementsInTheirOrderAsItGrows) {
    ArenaList<std::size_t> list;
    std::vector<std::size_t> expected;
    for (std::size_t number = 0; number < 100; ++number) {
        list.Add(arena, number);
        expected.push_back(number);
        ASSERT_EQ(list.Size(), expected.size());
        ASSERT_EQ(std::vector<std::size_t>(list.begin(), list.end()), expected);
        ASSERT_EQ(list[number], number);
    }
    list[70] = 7;
    EXPECT_EQ(*(list.begin() + 70), 7U);
}

// Room for eight, then for twice as many each time.
TEST_F(ArenaListTest, DoublesItsCapacityFromEight) {
    struct Large {
        char bytes[4096];
    };
    ArenaList<Large> list;
    std::vector<std::size_t> pieces;
    for (std::size_t count = 1; count <= 33; ++count) {
        const std::size_t before = resource.sizes.size();
        list.Add(arena, {});
        if (resource.sizes.size() != before) {
            pieces.push_back(count);
        }
    }
    EXPECT_EQ(pieces, (std::vector<std::size_t>{1, 9, 17, 33}));
}

TEST_F(ArenaListTest, IsUnchangedWhenOutOfMemory) {
    ArenaList<std::size_t> list;
    for (std::size_t number = 0; number < 8; ++number) {
        list.Add(arena, number);
    }
    arena.Allocate(16384 - 16 - 64 - 8);  // the rest of the chunk is too small for sixteen
    resource.left = 0;
    EXPECT_THROW(list.Add(arena, 8), std::bad_alloc);
    EXPECT_EQ(list.Size(), 8U);
    resource.left = 1;
    list.Add(arena, 8);
    EXPECT_EQ(std::vector<std::size_t>(list.begin(), list.end()),
              (std::vector<std::size_t>{0, 1, 2, 3, 4, 5, 6, 7, 8}));
}

TEST_F(ArenaListTest, PagedListNeverMovesElements) {
    PagedList<Entry> list;
    for (std::size_t number = 0; number < 5000; ++number) {
        Entry& added = list.Add(arena, {number, nullptr});
        added.self = &added;
        ASSERT_EQ(list.Size(), number + 1);
    }
    for (std::size_t number = 0; number < 5000; ++number) {
        ASSERT_EQ(list[number].number, number);
        ASSERT_EQ(list[number].self, &list[number]);
    }
}

TEST_F(ArenaListTest, PagedListIsUnchangedWhenOutOfMemory) {
    PagedList<Entry> list;
    std::size_t failures = 0;
    for (std::size_t number = 0; number < 5000; ++number) {
        // Memory runs out at each new page.
        resource.left = 0;
        try {
            list.Add(arena, {number, nullptr});
        } catch (const std::bad_alloc&) {
            ++failures;
            ASSERT_EQ(list.Size(), number);
            resource.left = 1;
            list.Add(arena, {number, nullptr});
        }
    }
    EXPECT_EQ(failures, 3U);
    for (std::size_t number = 0; number < 5000; ++number) {
        ASSERT_EQ(list[number].number, number);
    }
}

TEST_F(ArenaListTest, PagedListIsEmptyAfterClear) {
    PagedList<int> list;
    list.Add(arena, 1);
    list.Clear();
    EXPECT_EQ(list.Size(), 0U);
    arena.Release();
    list.Add(arena, 2);
    EXPECT_EQ(list[0], 2);
}

}  // namespace
}  // namespace vexil
