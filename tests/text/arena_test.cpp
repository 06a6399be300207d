// Tests of text/arena.h, over a resource that counts what it gives.
// SPDX-License-Identifier: MIT
#include "text/arena.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "text/counting_resource.h"

namespace vexil {
namespace {

using test::CountingResource;

constexpr std::size_t Kilobyte = 1024;
constexpr std::size_t HeadSize = 2 * sizeof(void*);  // of a chunk

class ArenaTest : public testing::Test {
  protected:
    CountingResource resource;
    Arena arena{&resource};
};

TEST_F(ArenaTest, TakesNoMemoryBeforeTheFirstAllocation) {
    EXPECT_TRUE(arena.Keep("").empty());
    arena.Release();
    EXPECT_EQ(resource.sizes, std::vector<std::size_t>{});
}

TEST_F(ArenaTest, KeepsCopiesOfTexts) {
    std::vector<std::string_view> kept;
    for (std::size_t size = 0; size < 600; ++size) {
        std::string source(size, static_cast<char>('a' + size % 26));
        kept.push_back(arena.Keep(source));
        source.assign(size, '?');
    }
    for (std::size_t size = 0; size < 600; ++size) {
        EXPECT_EQ(kept[size], std::string(size, static_cast<char>('a' + size % 26)));
    }
}

TEST_F(ArenaTest, KeepsATextToBeOverwrittenInPlace) {
    const std::string_view kept = arena.Keep("abc");
    Arena::Characters(kept)[1] = 'x';
    EXPECT_EQ(kept, "axc");
}

TEST_F(ArenaTest, AlignsObjectsAfterTextsOfAnyLength) {
    struct Pair {
        std::uint64_t first;
        std::uint8_t second;
    };
    std::vector<const Pair*> pairs;
    for (std::uint8_t number = 0; number < 200; ++number) {
        arena.Keep(std::string(number % 9U, 'x'));
        pairs.push_back(arena.New<Pair>(std::uint64_t{number} << 40U, number));
        auto* const bytes = arena.NewArray<char>(number % 11U);
        std::fill_n(bytes, number % 11U, '?');
    }
    for (std::uint8_t number = 0; number < 200; ++number) {
        const Pair* pair = pairs[number];
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(pair) % alignof(Pair), 0U);
        EXPECT_EQ(pair->first, std::uint64_t{number} << 40U);
        EXPECT_EQ(pair->second, number);
    }
}

TEST_F(ArenaTest, DoublesItsChunksUpToALimit) {
    for (int count = 0; count < 700; ++count) {
        arena.Allocate(Kilobyte);
    }
    EXPECT_EQ(resource.sizes,
              (std::vector<std::size_t>{16 * Kilobyte, 32 * Kilobyte, 64 * Kilobyte, 128 * Kilobyte,
                                        256 * Kilobyte, 256 * Kilobyte}));
}

// Objects and texts fill a chunk to its last byte.
TEST_F(ArenaTest, FillsAChunk) {
    arena.Allocate(16 * Kilobyte - HeadSize - 8);
    arena.Keep("1");
    arena.Keep("2345678");
    EXPECT_EQ(resource.sizes.size(), 1U);
    arena.Keep("9");
    EXPECT_EQ(resource.sizes.size(), 2U);
    arena.Allocate(32 * Kilobyte - HeadSize - 8);
    EXPECT_EQ(resource.sizes.size(), 2U);
    arena.Allocate(1);
    EXPECT_EQ(resource.sizes.size(), 3U);
}

// Thirteen bytes are left, of which five come before the next aligned one.
TEST_F(ArenaTest, CountsThePaddingBeforeAnAlignedAddress) {
    arena.Allocate(16 * Kilobyte - HeadSize - 16);
    arena.Keep("123");
    arena.Allocate(9);
    EXPECT_EQ(resource.sizes.size(), 2U);
}

TEST_F(ArenaTest, TakesALargerChunkForALargeText) {
    const std::string large(1000 * Kilobyte + 1, 'a');
    EXPECT_EQ(arena.Keep(large), large);
    auto* const bytes = arena.NewArray<char>(large.size());
    std::fill_n(bytes, large.size(), 'b');
    EXPECT_EQ(arena.Keep("the next text"), "the next text");
    const std::size_t wholeWords = large.size() + 7;
    EXPECT_EQ(resource.sizes, (std::vector<std::size_t>{wholeWords + HeadSize,
                                                        wholeWords + HeadSize, 64 * Kilobyte}));
}

TEST_F(ArenaTest, ReleaseReturnsAllMemoryAndStartsAnew) {
    arena.Allocate(40 * Kilobyte);
    arena.Allocate(40 * Kilobyte);
    EXPECT_EQ(resource.inUse, 2U);
    arena.Release();
    EXPECT_EQ(resource.inUse, 0U);
    resource.sizes.clear();
    EXPECT_EQ(arena.Keep("abc"), "abc");
    EXPECT_EQ(resource.sizes, std::vector<std::size_t>{16 * Kilobyte});
}

TEST_F(ArenaTest, UsesNoReleasedChunk) {
    EXPECT_EQ(arena.Allocate(0), nullptr);
    EXPECT_NE(arena.Allocate(8), nullptr);
    arena.Release();
    EXPECT_EQ(arena.Allocate(0), nullptr);
}

TEST_F(ArenaTest, DestructorReturnsAllMemory) {
    {
        Arena other(&resource);
        other.Allocate(1);
        other.Allocate(40 * Kilobyte);
        EXPECT_EQ(resource.inUse, 2U);
    }
    EXPECT_EQ(resource.inUse, 0U);
}

TEST_F(ArenaTest, IsUnchangedWhenOutOfMemory) {
    const std::string_view kept = arena.Keep("abc");
    resource.left = 0;
    EXPECT_THROW(arena.Allocate(16 * Kilobyte), std::bad_alloc);
    EXPECT_THROW(arena.Keep(std::string(16 * Kilobyte, 'x')), std::bad_alloc);
    EXPECT_EQ(arena.Keep("def"), "def");
    EXPECT_EQ(kept, "abc");
    resource.left = 1;
    arena.Allocate(16 * Kilobyte);
    EXPECT_EQ(resource.sizes, (std::vector<std::size_t>{16 * Kilobyte, 32 * Kilobyte}));
}

}  // namespace
}  // namespace vexil
