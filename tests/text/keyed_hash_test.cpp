// Tests of text/keyed_hash.h. The key is nobody's to know, so hashes are compared with each other,
// and the rounds that make them, under a key of the test, with values of SipHash.
// SPDX-License-Identifier: MIT
#include "text/keyed_hash.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <chrono>
#include <cstring>
#include <set>
#include <string>
#include <vector>

// The unit once more, for what it keeps to itself.
namespace once_more {
#include "text/keyed_hash.cpp"
}

namespace vexil {
namespace {

struct Vector {
    std::vector<std::uint64_t> words;
    std::uint64_t hash;
};

// Messages of the bytes 0, 1, 2 and so on, under a key of the bytes 0 to 15, in words of eight. The
// highest byte of the last word is the length.
TEST(KeyedHash, MixesAsSipHashWithOneRoundAndThreeDoes) {
    const std::vector<Vector> vectors = {
        {{0}, 0xabac0158050fc4dcU},
        {{0x0706050403020100U, 0x0800000000000000U}, 0x369095118d299a8eU},
        {{0x0706050403020100U, 0x0f0e0d0c0b0a0908U}, 0xd320d86d2a519956U},
        {{0x0706050403020100U, 0x0f0e0d0c0b0a0908U, 0x1716151413121110U, 0x1800000000000000U},
         0xf464aeb267349c8cU},
    };
    for (const Vector& vector : vectors) {
        once_more::vexil::SipState state(0x0706050403020100U, 0x0f0e0d0c0b0a0908U);
        for (const std::uint64_t word : vector.words) {
            state.Add(word);
        }
        EXPECT_EQ(state.Finish(), vector.hash) << vector.words.size() << " words";
    }
}

TEST(KeyedHash, IsTheSameForTheSame) {
    const std::string text = "a name of 24 characters.";
    EXPECT_EQ(KeyedHash(7, text), KeyedHash(7, std::string(text)));
}

TEST(KeyedHash, DependsOnEachBitOfTheNumber) {
    std::set<std::size_t> hashes = {KeyedHash(0, "name")};
    for (unsigned bit = 0; bit < 64; ++bit) {
        hashes.insert(KeyedHash(std::uint64_t{1} << bit, "name"));
    }
    EXPECT_EQ(hashes.size(), 65U);
}

TEST(KeyedHash, DependsOnEachBitOfTheText) {
    for (std::size_t size = 0; size <= 24; ++size) {
        std::string text(size, 'a');
        std::set<std::size_t> hashes = {KeyedHash(0, text)};
        for (char& ch : text) {
            for (unsigned bit = 0; bit < 8; ++bit) {
                ch = static_cast<char>(ch ^ (1U << bit));
                hashes.insert(KeyedHash(0, text));
                ch = 'a';
            }
        }
        EXPECT_EQ(hashes.size(), 1 + size * 8) << size << " bytes";
    }
}

TEST(KeyedHash, DependsOnTheLength) {
    for (const char ch : {'\0', '\xff'}) {
        std::set<std::size_t> hashes;
        for (std::size_t size = 0; size <= 24; ++size) {
            hashes.insert(KeyedHash(0, std::string(size, ch)));
        }
        EXPECT_EQ(hashes.size(), 25U);
    }
}

TEST(KeyedHash, DependsOnTheOrderOfItsWords) {
    EXPECT_NE(KeyedHash(0, "firstwrdsecondwd"), KeyedHash(0, "secondwdfirstwrd"));
}

}  // namespace
}  // namespace vexil
